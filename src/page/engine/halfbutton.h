#pragma once

class BoundTexts;
class QPushButton;
class QWidget;

/// Gives a button the pictures of one half of a selector or switch; its label's leading blanks are kept.
void dressHalfButton(QPushButton *button);

/// One half of a two-way selector, checkable.
QPushButton *makeHalfButton(const char *label, BoundTexts &texts, QWidget *parent);
