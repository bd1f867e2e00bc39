#pragma once

#include <QLabel>

/// What stands in the place of a value that is not known.
inline const QString kDash = QStringLiteral("–");

/// Shows a value, or a dash for an empty one; a dash is read out as "unknown".
inline void showOrDash(QLabel *label, const QString &value)
{
    const bool isKnown = !value.isEmpty() && value != kDash;
    label->setText(isKnown ? value : kDash);
    label->setAccessibleName(isKnown ? QString() : QObject::tr("unknown"));
}
