#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

/// The model name of a monitor from its EDID (VESA E-EDID 1.3/1.4, base block): the first non-empty monitor-name
/// descriptor, or manufacturer and product code as "ABC-01F3". Empty for a block below 128 bytes.
QString edidModelName(const QByteArray &edid);

/// What else an EDID tells about a monitor; what it does not tell is empty or 0.
struct EdidFacts
{
    QString serial; ///< of its descriptor, else the number of the header
    int year = 0;
    int week = 0;     ///< of making, 1 to 54; 0 also when the year is that of the model
    QSize resolution; ///< native, in pixels: the preferred timing
};

/// All empty for a block below 128 bytes.
EdidFacts edidFacts(const QByteArray &edid);
