#include "page/Health/healthtexts.h"

#include <QLocale>
#include <QStringList>

#include "controls/dash.h"
#include "controls/labelled.h"
#include "ddc_protocol/commandnames.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/monitoridentity.h"
#include "ddc_protocol/writecounts.h"
#include "page/engine/labels.h"

namespace {

constexpr const char *kCaptions[kHealthFigures] = {LABEL("Answers"), LABEL("Median answer"), LABEL("Retries"),
                                                   LABEL("Written today")};

QString number(std::uint64_t value)
{
    return QLocale().toString(static_cast<qulonglong>(value));
}

QString duration(int milliseconds)
{
    return QObject::tr("%1 ms").arg(number(static_cast<std::uint64_t>(milliseconds)));
}

HealthFigure answers(const LinkRecord &record)
{
    if (record.requests() == 0)
        return {kDash, QObject::tr("nothing asked yet")};
    const std::uint64_t answered = record.requests() - record.failures();
    // Rounded down: a single lost answer must not read as 100 %.
    const double tenths = static_cast<double>(answered * 1000 / record.requests());
    return {QObject::tr("%1 %").arg(QLocale().toString(tenths / 10, 'f', tenths == 1000 ? 0 : 1)),
            QObject::tr("%1 of %2 lost").arg(number(record.failures()), number(record.requests())),
            record.failures() * 10 > record.requests()};
}

HealthFigure median(const LinkRecord &record)
{
    const auto median = record.medianLatency();
    if (!median)
        return {kDash, {}};
    return {duration(*median), QObject::tr("slowest %1").arg(duration(record.worstLatency()))};
}

HealthFigure retries(const LinkRecord &record)
{
    const std::uint64_t good = record.retries() - record.failedRetries();
    const QString detail = record.retries() == 0         ? QObject::tr("none needed")
                           : record.failedRetries() == 0 ? QObject::tr("all succeeded")
                                                         : QObject::tr("%1 succeeded").arg(number(good));
    return {number(record.retries()), detail, record.failedRetries() != 0};
}

/// Of this monitor, by whatever sent them; what no user asked for as well by itself.
HealthFigure written(std::size_t index)
{
    const QString monitor = index < monitorList.size() ? identityText(monitorList[index].identity) : QString();
    const WriteCount all = writeCounts.countOf(monitor);
    const auto byItself = writeCounts.countOf(monitor, WriteCounts::kAutomatic).today;
    const QString detail =
        QObject::tr("%1 in all, %2 by itself today")
            .arg(number(static_cast<std::uint64_t>(all.inAll)), number(static_cast<std::uint64_t>(byItself)));
    return {number(static_cast<std::uint64_t>(all.today)), detail};
}

QString withCommand(const char *text, const LinkError &error)
{
    return QObject::tr(text).arg(commandName(Command(error.code)));
}

/// A code stands in the report beside its name, for whoever reads it in another language.
QString errorLine(const LinkError &error)
{
    return QStringLiteral("%1  %2 (0x%3, %4x)  %5")
        .arg(error.until.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")), errorText(error))
        .arg(error.code, 2, 16, QLatin1Char('0'))
        .arg(error.count)
        .arg(errorAdvice(error));
}

} // namespace

QString firmwareVersion()
{
    if (!deviceState.isKnown(Command::Firmware))
        return kDash;
    const int firmware = deviceState.value(Command::Firmware);
    return QStringLiteral("v%1.%2").arg(firmware >> 8 & 0xFF, 0, 16).arg(firmware & 0xFF, 0, 16);
}

QString monitorTitle(std::size_t index)
{
    const QString name = monitorList[index].identity.name;
    int before = 0;
    int all = 0;
    for (std::size_t i = 0; i < monitorList.size(); ++i) {
        const bool isNamesake = monitorList[i].identity.name == name;
        all += isNamesake ? 1 : 0;
        before += isNamesake && i < index ? 1 : 0;
    }
    return all > 1 ? QStringLiteral("%1 (%2)").arg(name).arg(before + 1) : name;
}

QString monitorFacts(std::size_t index)
{
    const MonitorInfo &monitor = monitorList[index];
    const EdidFacts &facts = monitor.facts;
    QStringList parts{monitorTitle(index)};
    if (!facts.serial.isEmpty())
        parts += QObject::tr("serial %1").arg(facts.serial);
    if (index == currentMonitorIndex && deviceState.isKnown(Command::Firmware))
        parts += QObject::tr("firmware %1").arg(firmwareVersion());
    if (facts.week > 0)
        parts += QObject::tr("made %1, week %2").arg(facts.year).arg(facts.week);
    else if (facts.year > 0)
        parts += QObject::tr("made %1").arg(facts.year);
    if (!facts.resolution.isEmpty())
        parts += QStringLiteral("%1 × %2").arg(facts.resolution.width()).arg(facts.resolution.height());
    return parts.join(QStringLiteral("  •  "));
}

QString errorText(const LinkError &error)
{
    switch (error.fault) {
    case LinkFault::Silent: {
        const qint64 seconds = error.at.secsTo(error.until);
        return seconds > 0 ? QObject::tr("No answer for %1 s").arg(seconds) : QObject::tr("No answer");
    }
    case LinkFault::NotTold:
        return withCommand(LABEL("%1 was not told"), error);
    case LinkFault::NotTaken:
        return withCommand(LABEL("%1 was not taken"), error);
    case LinkFault::BlockBroken:
        return error.recovered ? QObject::tr("Scene block: one part came late")
                               : QObject::tr("Scene block: one part did not come");
    }
    return {};
}

QString errorAdvice(const LinkError &error)
{
    switch (error.fault) {
    case LinkFault::Silent:
        return error.recovered ? QObject::tr("It answers again; nothing to do.")
                               : QObject::tr("Is it on, its cable plugged in, and DDC/CI on in its menu?");
    case LinkFault::NotTold:
        return error.recovered ? QObject::tr("Asked again and told; nothing to do.")
                               : QObject::tr("This monitor may not have it; else read everything once.");
    case LinkFault::NotTaken:
        return error.recovered ? QObject::tr("Sent again and taken; nothing to do.")
                               : QObject::tr("Try again; its scene or another setting may forbid it.");
    case LinkFault::BlockBroken:
        return error.recovered ? QObject::tr("Asked again; nothing to do.")
                               : QObject::tr("Choose the scene again, or read everything once.");
    }
    return {};
}

const char *figureCaption(int figure)
{
    return kCaptions[figure];
}

HealthFigure healthFigure(int figure, std::size_t index, const LinkRecord &record)
{
    switch (figure) {
    case 0:
        return answers(record);
    case 1:
        return median(record);
    case 2:
        return retries(record);
    default:
        return written(index);
    }
}

QString healthReport(std::size_t index, const LinkRecord &record, const QDateTime &now)
{
    QStringList lines{QStringLiteral("QUORVEL %1").arg(QLatin1String(QUORVEL_VERSION)),
                      now.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")), monitorFacts(index)};
    for (int i = 0; i < kHealthFigures; ++i) {
        const HealthFigure figure = healthFigure(i, index, record);
        lines += labelled(QObject::tr(figureCaption(i)), QStringLiteral("%1 (%2)").arg(figure.value, figure.detail));
    }
    lines += QObject::tr("Last errors") + QLatin1Char(':');
    for (const LinkError &error : record.errors())
        lines += errorLine(error);
    if (record.errors().empty())
        lines += QObject::tr("None.");
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
