#pragma once

#include <vector>

#include <QString>

#include "splitter/splitlayout.h"

inline constexpr std::size_t kMostOwnLayouts = 5; ///< of a screen: with the fixed ones a row on the page
inline constexpr int kLongestLayoutName = 24;     ///< characters

/// The layouts of one screen at one resolution.
struct ScreenLayouts
{
    std::vector<SplitLayout> own;
    SplitLayout chosen = fixedLayouts().front();
    bool operator==(const ScreenLayouts &) const = default;

    /// The fixed ones, and then the own ones.
    std::vector<SplitLayout> all() const;
};

/// Those that "config.ini" holds of a screen, by its key; what is damaged there is left out, one by one.
ScreenLayouts loadLayouts(const QString &screenKey);

/// False when they could not be stored.
[[nodiscard]] bool storeLayouts(const QString &screenKey, const ScreenLayouts &layouts);

/// Layouts as they are stored, "Name:left-top-right-bottom+...", with a blank between them.
QString layoutsText(const std::vector<SplitLayout> &layouts);
std::vector<SplitLayout> layoutsFromText(const QString &text);
