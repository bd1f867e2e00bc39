#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// Everything a file holds; empty when it cannot be read.
inline QByteArray readText(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// True when the file then holds exactly this.
inline bool writeText(const QString &fileName, const QByteArray &text)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}
