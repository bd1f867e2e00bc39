#pragma once

#include <QByteArray>
#include <QString>

/// The model name of a monitor from its EDID (VESA E-EDID 1.3/1.4, base block): the first non-empty monitor-name
/// descriptor, or manufacturer and product code as "ABC-01F3". Empty for a block below 128 bytes.
QString edidModelName(const QByteArray &edid);
