#pragma once

class BoundTexts;
class QGridLayout;
class QPushButton;
class QVBoxLayout;
class QWidget;

// The parts of the column of tools that the accessory's drawing pages have at their side.

inline constexpr int kToolColumnWidth = 280;

/// A button with the column's look, named after its label.
QPushButton *makeToolButton(const char *label, BoundTexts &texts, QWidget *parent);

/// A thin line between two groups of tools.
QWidget *makeToolLine(QWidget *parent);
