#pragma once

#include <functional>

class QComboBox;
class QString;
class QVariant;
class QWidget;

/// A combo box in the look of the pages: its arrow, its open list, and no changes by the wheel or by keys while it is
/// closed.
QComboBox *makeDropDown(QWidget *parent);

/// Ticks the entries of a drop-down whose data are listed elsewhere already; they cannot be chosen, for this reason.
void markListed(QComboBox *box, const QString &reason, const std::function<bool(const QVariant &)> &isListed);
