#pragma once

class QSpinBox;
class QString;
class QWidget;

/// A field for a number with its unit: it is typed, or stepped by the arrow keys, and not changed by the wheel. Its
/// range is the caller's.
QSpinBox *makeNumberField(const QString &name, const QString &unit, QWidget *parent);
