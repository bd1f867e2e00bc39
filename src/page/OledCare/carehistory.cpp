#include "page/OledCare/carehistory.h"

#include <algorithm>

#include <QStringList>

#include "page/OledCare/careplan.h"

namespace {

constexpr qint64 kMostUsed = 100'000 * 3600LL; // s; more than a panel lasts
constexpr qint64 kDay = 24 * 3600;             // s

// The parts of the line: "used:4711 last:2026-03-09T12:00:00 later:... due:1 2026-03-08:28800:1".
const QString kUsed = QStringLiteral("used");
const QString kLast = QStringLiteral("last");
const QString kLater = QStringLiteral("later");
const QString kDue = QStringLiteral("due");

std::optional<QDateTime> timeOf(const QString &text, const std::optional<QDateTime> &otherwise)
{
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    return time.isValid() ? std::optional(time) : otherwise;
}

bool canBe(const QDate &day, const QDateTime &now)
{
    return day <= now.date().addDays(1);
}

} // namespace

CareDay &CareHistory::dayOf(const QDate &date)
{
    const auto found = std::ranges::lower_bound(days, date, {}, &CareDay::date);
    const auto day = found != days.end() && found->date == date ? found : days.insert(found, {date});
    if (static_cast<int>(days.size()) <= kDaysKept)
        return *day;
    days.erase(days.begin());
    return *std::ranges::lower_bound(days, std::max(date, days.front().date), {}, &CareDay::date);
}

void CareHistory::forgetFuture(const QDateTime &now)
{
    if (last && *last > now.addSecs(kDay))
        last.reset();
    if (putOff && *putOff > now.addMSecs(kCarePutOff.count()))
        putOff.reset();
    std::erase_if(days, [&now](const CareDay &day) { return !canBe(day.date, now); });
}

void CareHistory::use(const QDateTime &from, const QDateTime &to)
{
    const qint64 seconds = std::min<qint64>(from.secsTo(to), kCareLook.count() / 1000);
    if (seconds <= 0)
        return;
    used = std::min(used + seconds, kMostUsed);
    dayOf(to.date()).used += seconds;
}

bool CareHistory::note(std::optional<bool> isDue, bool isRunning, bool askedWhenOver, const QDateTime &now)
{
    wasDue = wasDue || isDue == true;
    wasRunning = wasRunning || isRunning;
    if (isRunning || isDue != false || !(wasDue || wasRunning || askedWhenOver))
        return false;
    wasDue = wasRunning = false;
    used = 0;
    last = now;
    putOff.reset();
    ++dayOf(now.date()).cares;
    return true;
}

QString CareHistory::text() const
{
    QStringList parts{QStringLiteral("%1:%2").arg(kUsed).arg(used)};
    for (const auto &[name, time] : {std::pair(kLast, last), {kLater, putOff}}) {
        if (time)
            parts.append(QStringLiteral("%1:%2").arg(name, time->toString(Qt::ISODate)));
    }
    if (wasDue)
        parts.append(QStringLiteral("%1:1").arg(kDue));
    for (const CareDay &day : days)
        parts.append(QStringLiteral("%1:%2:%3").arg(day.date.toString(Qt::ISODate)).arg(day.used).arg(day.cares));
    return parts.join(QLatin1Char(' '));
}

CareHistory CareHistory::fromText(const QString &text, const QDateTime &now)
{
    CareHistory history;
    for (const QString &part : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString name = part.section(QLatin1Char(':'), 0, 0);
        const QString value = part.section(QLatin1Char(':'), 1);
        if (name == kUsed)
            history.used = std::clamp<qint64>(value.toLongLong(), 0, kMostUsed);
        else if (name == kLast)
            history.last = timeOf(value, history.last);
        else if (name == kLater)
            history.putOff = timeOf(value, history.putOff);
        else if (name == kDue)
            history.wasDue = value.toInt() != 0;
        else if (const QDate date = QDate::fromString(name, Qt::ISODate); date.isValid() && canBe(date, now)) {
            CareDay &day = history.dayOf(date);
            day.used = std::clamp<qint64>(value.section(QLatin1Char(':'), 0, 0).toLongLong(), 0, kDay);
            day.cares = std::clamp(value.section(QLatin1Char(':'), 1).toInt(), 0, 99);
        }
    }
    history.forgetFuture(now);
    return history;
}
