#include "ddc_protocol/writecounts.h"

#include <utility>

#include <QStringList>
#include <QUrl>

#include "ddc_protocol/settingsstore.h"
#include "platform/desk.h"

WriteCounts writeCounts;

namespace {

constexpr int kDaysKept = 30;
constexpr qint64 kMostWrites = 1'000'000'000'000; // of a code on a day: what a file says beyond that is nonsense
const QString kFarBack = QStringLiteral("before");

QDate today()
{
    return platform::desk().clock().now().date();
}

} // namespace

void WriteCounts::note(const QString &monitor, int code)
{
    const std::lock_guard lock(m_mutex);
    const bool isFirst = m_new.empty();
    ++m_new[{monitor, code}][today()];
    if (isFirst && m_observer)
        m_observer();
}

template <typename IsMeant> WriteCount WriteCounts::sum(const IsMeant &isMeant) const
{
    const std::lock_guard file(m_file);
    if (!m_stored)
        m_stored = read();
    const std::lock_guard lock(m_mutex);
    const QDate now = today();
    WriteCount count;
    for (const Table *table : {&std::as_const(*m_stored), &m_new}) {
        for (const auto &[key, days] : *table) {
            if (!isMeant(key))
                continue;
            for (const auto &[day, writes] : days) {
                count.inAll += writes;
                count.today += day == now ? writes : 0;
            }
        }
    }
    return count;
}

WriteCount WriteCounts::countOf(const QString &monitor, int code) const
{
    return sum([&](const Key &key) { return key.first == monitor && key.second == code; });
}

WriteCount WriteCounts::countOf(const QString &monitor) const
{
    return sum([&](const Key &key) { return key.first == monitor && key.second != kAutomatic; });
}

void WriteCounts::store()
{
    const std::lock_guard file(m_file);
    Table fresh;
    {
        const std::lock_guard lock(m_mutex);
        fresh.swap(m_new);
    }
    if (fresh.empty())
        return;
    Table counts = read();
    add(counts, fresh);
    if (write(counts)) {
        m_stored = std::move(counts);
        return;
    }
    const std::lock_guard lock(m_mutex);
    const bool isFirst = m_new.empty();
    add(m_new, fresh);
    if (isFirst && m_observer)
        m_observer(); // to be stored later; else who wrote meanwhile has said so
}

void WriteCounts::add(Table &counts, const Table &more)
{
    for (const auto &[key, days] : more) {
        for (const auto &[day, writes] : days)
            counts[key][day] += writes;
    }
}

void WriteCounts::setObserver(std::function<void()> observer)
{
    const std::lock_guard lock(m_mutex);
    m_observer = std::move(observer);
}

void WriteCounts::clear()
{
    const std::lock_guard file(m_file);
    m_stored.reset();
    const std::lock_guard lock(m_mutex);
    m_new.clear();
}

/// A line for each monitor and code: "before:120 2024-03-08:4 2024-03-09:17". What is no such part is left out.
WriteCounts::Table WriteCounts::read()
{
    Table counts;
    for (const auto &[name, value] : readAllSettings(QLatin1String(kWritesFile))) {
        bool isCode = false;
        const int code = name.section(QLatin1Char('/'), 1).toInt(&isCode, 16);
        const QString monitor = QUrl::fromPercentEncoding(name.section(QLatin1Char('/'), 0, 0).toLatin1());
        for (const QString &part : value.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QString day = part.section(QLatin1Char(':'), 0, 0);
            const QDate date = QDate::fromString(day, Qt::ISODate);
            const qint64 writes = part.section(QLatin1Char(':'), 1).toLongLong();
            const bool isCount = writes > 0 && writes <= kMostWrites;
            if (isCode && code >= 0 && code <= kAutomatic && isCount && (date.isValid() || day == kFarBack))
                counts[{monitor, code}][date] += writes;
        }
    }
    return counts;
}

bool WriteCounts::write(const Table &counts)
{
    const QDate oldest = today().addDays(-kDaysKept);
    QList<QPair<QString, QString>> lines;
    for (const auto &[key, days] : counts) {
        QStringList parts;
        qint64 before = 0;
        for (const auto &[day, writes] : days) {
            if (!day.isValid() || day < oldest)
                before += writes;
            else
                parts.append(QStringLiteral("%1:%2").arg(day.toString(Qt::ISODate)).arg(writes));
        }
        if (before > 0)
            parts.prepend(QStringLiteral("%1:%2").arg(kFarBack).arg(before));
        const QString monitor = QString::fromLatin1(QUrl::toPercentEncoding(key.first));
        lines.append({QStringLiteral("%1/%2").arg(monitor).arg(key.second, 0, 16), parts.join(QLatin1Char(' '))});
    }
    return writeAllSettings(QLatin1String(kWritesFile), lines);
}
