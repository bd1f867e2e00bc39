#pragma once

#include <QByteArrayView>

/// A line in a settings file's sense: quotes and a backslash hide its end.
struct IniLine
{
    QByteArrayView text;
    qsizetype equals = -1; ///< the first one outside quotes; -1 for none
};

/// Cuts the bytes of a settings file into lines, leaving out comments and empty lines. The bytes outlive it.
class IniLines
{
public:
    explicit IniLines(QByteArrayView bytes) : m_bytes(bytes) {}

    /// The next line; false when there is none.
    bool next(IniLine &line);

private:
    IniLine take();
    void skipEscaped();

    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};
