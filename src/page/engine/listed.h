#pragma once

#include <QObject>
#include <QStringList>

/// Texts one after the other, set apart as the language does it.
inline QString listed(const QStringList &texts)
{
    QString all;
    for (const QString &text : texts)
        all = all.isEmpty() ? text : QObject::tr("%1, %2").arg(all, text);
    return all;
}
