#pragma once

#include <vector>

#include <QtGlobal>

class BoundTexts;
class QHBoxLayout;
class QPushButton;
class QWidget;

// The two halves of a scene mode. The leading blanks are part of the labels.
inline constexpr char kDefaultLabel[] = QT_TRANSLATE_NOOP("QObject", "        Default");
inline constexpr char kCustomLabel[] = QT_TRANSLATE_NOOP("QObject", "        Custom");

/// What the two are halves of, for who does not see them side by side.
inline constexpr char kHalvesLabel[] = QT_TRANSLATE_NOOP("QObject", "Parameters of the mode");

/// The widths of a half: on pages, and where there is little room.
enum class HalfSize { Wide, Narrow };

/// Gives a button the pictures of one half of a selector or switch; its label's leading blanks are kept.
void dressHalfButton(QPushButton *button, HalfSize size = HalfSize::Wide);

/// Makes one control of halves that lie side by side: the track around them is painted by what holds them.
void layInTrack(QWidget *holder, const std::vector<QPushButton *> &halves);

/// Makes one choice of the two halves of a scene mode: one of them is checked, and both are one Tab stop. The row in
/// which they lie in the holder.
QHBoxLayout *joinHalves(QWidget *holder, QPushButton *defaultHalf, QPushButton *customHalf, BoundTexts &texts);

/// One half of a two-way selector, checkable.
QPushButton *makeHalfButton(const char *label, BoundTexts &texts, QWidget *parent);
