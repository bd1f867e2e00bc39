#pragma once

class QComboBox;
class QWidget;

/// Gives a page the look of the style sheet that all pages share; its object name chooses its panel.
void dressPage(QWidget *page);

/// Adds to what that style says of every combo box, and leaves the mouse wheel to the page.
void dressComboBox(QComboBox *box);
