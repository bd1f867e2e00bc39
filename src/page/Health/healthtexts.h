#pragma once

#include <QDateTime>
#include <QString>

#include "ddc_protocol/linkrecord.h"

// What the health page says, translated; the report is made of the same sentences.

/// The monitor's firmware as its own menu writes it, in base 16, such as "v1.2"; a dash while it is not known.
QString firmwareVersion();

/// The name of a monitor with its number among several of one name, such as "Q27-OLED (2)".
QString monitorTitle(std::size_t index);

/// Name, serial number, firmware, date of making and resolution, as far as they are known, in one line.
QString monitorFacts(std::size_t index);

/// An error: what happened, and what it means or what to try.
QString errorText(const LinkError &error);
QString errorAdvice(const LinkError &error);

/// What a tile shows: the figure, and a line of detail.
struct HealthFigure
{
    QString value;
    QString detail;
    bool isBad = false;
};

inline constexpr int kHealthFigures = 4;

/// The caption of a tile, as a source text.
const char *figureCaption(int figure);
HealthFigure healthFigure(int figure, std::size_t index, const LinkRecord &record);

/// The text for the clipboard, about one monitor: no paths, no names of programs, users or connections.
QString healthReport(std::size_t index, const LinkRecord &record, const QDateTime &now);
