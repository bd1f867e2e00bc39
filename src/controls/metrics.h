#pragma once

// The measures that pages share, in points. What one control alone needs stands with that control.
namespace metrics {

inline constexpr int kControlHeight = 36;
inline constexpr int kRowPitch = 52; ///< from row to row of controls
inline constexpr int kRowGap = kRowPitch - kControlHeight;
inline constexpr int kGap = 8;       ///< between what belongs together
inline constexpr int kLineGap = 4;   ///< between lines that are read as one
inline constexpr int kInset = 16;    ///< from a card's edge to what it holds
inline constexpr int kBlockGap = 24; ///< between blocks, and from a page's edge

// A page's head, from below the line around the page.
inline constexpr int kPageBorder = 1;
inline constexpr int kTitleBaseline = 41;
inline constexpr int kHelpBaseline = 67;
inline constexpr int kStripTop = 83; ///< the first row stands a gap below, or below the strip while that is shown

inline constexpr int kPageBottom = 16; ///< below what a page holds

inline constexpr int kCaptionWidth = 152; ///< before options and grooves, so that both begin at one edge

} // namespace metrics
