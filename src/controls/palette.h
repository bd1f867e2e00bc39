#pragma once

#include <QColor>
#include <QString>

/// The colours of the program, each once. What is written with them must stay readable: a text has 4.5 : 1 against what
/// is behind it, and the outline or the ground of a control 3 : 1, except where it cannot be used.
namespace Palette {
// Grounds, from the back to the front.
inline constexpr QRgb kGround = 0xff0d1210;   ///< the window, at its darkest
inline constexpr QRgb kWell = 0xff0f1512;     ///< inside of what is cut in: switches, key fields
inline constexpr QRgb kBox = 0xff101611;      ///< dialogs
inline constexpr QRgb kCard = 0xff141b18;     ///< a card on a panel
inline constexpr QRgb kRow = 0xff16201b;      ///< a row of a list
inline constexpr QRgb kFloating = 0xff161d1a; ///< menus, the tray panel
inline constexpr QRgb kPanelEnd = 0xff18201c; ///< a page, at its bottom
inline constexpr QRgb kPanel = 0xff1c2521;    ///< a page, at its top
inline constexpr QRgb kTip = 0xff1b2320;      ///< tool tips
inline constexpr QRgb kField = 0xff222d28;    ///< buttons, combo boxes, fields
inline constexpr QRgb kLit = 0xff263d35;      ///< what is chosen in a bar, under the pointer on a tile
inline constexpr QRgb kSelected = 0xff1b5043; ///< what is chosen in a list; pressed buttons
inline constexpr QRgb kProgress = 0xff1b7a62; ///< how far something has come, with a text over it
// Lines, and parts that are off.
inline constexpr QRgb kHairline = 0xff24332d; ///< around cards and rows, which are no controls
inline constexpr QRgb kRim = 0xff1b5043;      ///< around what floats or is cut in: notes, dialogs, wells
inline constexpr QRgb kEdge = 0xff607d71;     ///< around a control
inline constexpr QRgb kHoveredEdge = 0xff8fb0a3;
inline constexpr QRgb kTrack = 0xff34856f;       ///< around a switch
inline constexpr QRgb kRestingEdge = 0xff3a4a43; ///< around a control that cannot be used
inline constexpr QRgb kGroove = 0xff5d7a6c;      ///< of a slider
inline constexpr QRgb kRestingGroove = 0xff2b3631;
inline constexpr QRgb kRestingMark = 0xff4a5550;  ///< handle and value of a slider that cannot be used
inline constexpr QRgb kRestingPlate = 0xff5f7c6e; ///< behind the black caption of what cannot be used
inline constexpr QRgb kUnlit = 0xff5d7269;        ///< cells of a matrix
inline constexpr QRgb kScroll = 0xff458171;       ///< handle of a scroll bar
inline constexpr QRgb kHoveredScroll = 0xff58b09c;
// What is said under a page's title.
inline constexpr QRgb kRefusal = 0xff3a2c2b;
inline constexpr QRgb kRefusalText = 0xfff4b4b6;
inline constexpr QRgb kNotice = 0xff1d302a;
inline constexpr QRgb kNoticeText = 0xffc9e8dd;
// Marks.
inline constexpr QRgb kMint = 0xff7bfadb;
inline constexpr QRgb kBright = 0xff9cffc8;
inline constexpr QRgb kDeep = 0xff00c48c;    ///< where a gradient to mint begins
inline constexpr QRgb kChecked = 0xff2fae8f; ///< around a button that is on
inline constexpr QRgb kSignal = 0xff00ff71;
inline constexpr QRgb kError = 0xffda676d;
// Texts.
inline constexpr QRgb kText = 0xffffffff;
inline constexpr QRgb kSoft = 0xffc9c9c9;
inline constexpr QRgb kDim = 0xffadadad;
inline constexpr QRgb kHint = 0xff8d9a94;
inline constexpr QRgb kDisabled = 0xff696969;
inline constexpr QRgb kInk = 0xff0c100e; ///< on mint

/// The colour with so much of what is behind it: 0 lets all through, 255 nothing.
QColor translucent(QRgb colour, int alpha);

/// A style sheet with its names as colours: "@edge" is kEdge, "@hoveredEdge" kHoveredEdge. Unknown names stay.
QString styled(QStringView sheet);
} // namespace Palette
