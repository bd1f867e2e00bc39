#pragma once

class QWidget;

/// Gives a page the look of the style sheet that all pages share; its object name chooses its panel.
void dressPage(QWidget *page);
