#pragma once

class QComboBox;
class QWidget;

/// A combo box in the look of the pages: its arrow, its open list, and no changes by the wheel.
QComboBox *makeDropDown(QWidget *parent);
