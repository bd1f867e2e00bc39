#pragma once

class BoundTexts;
class QPushButton;
class QWidget;

/// One half of a two-way selector, checkable; its label's leading blanks are kept.
QPushButton *makeHalfButton(const char *label, BoundTexts &texts, QWidget *parent);
