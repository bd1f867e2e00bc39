#pragma once

#include <QObject>

/// What is said of something named, with the colon of the language: "Gama: 2.6".
inline QString labelled(const QString &name, const QString &words)
{
    return QObject::tr("%1: %2").arg(name, words);
}
