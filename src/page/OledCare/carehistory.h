#pragma once

#include <optional>
#include <vector>

#include <QDateTime>
#include <QString>

/// What a panel's use and care came to on one day.
struct CareDay
{
    QDate date;
    qint64 used = 0; ///< seconds
    int cares = 0;
    bool operator==(const CareDay &) const = default;
};

/// What is remembered of one panel. The monitor tells neither when its care was nor how long it has been used since.
struct CareHistory
{
    static constexpr int kDaysKept = 35;

    qint64 used = 0;               ///< seconds since the last care, or since they are counted
    std::optional<QDateTime> last; ///< when it was cared for last; nothing while nobody saw that
    std::optional<QDateTime> putOff;
    bool wasDue = false;
    bool wasRunning = false;   ///< not kept in the file
    std::vector<CareDay> days; ///< rising, at most so many

    /// Leaves out what cannot be yet, by a clock that was ahead or a file that somebody wrote: beyond a day, by which
    /// the clocks of two places differ, and a reminder that was put off for longer than that is done.
    void forgetFuture(const QDateTime &now);

    /// Counts the time between two looks as use; see kCareLook. A clock that was set back counts nothing.
    void use(const QDateTime &from, const QDateTime &to);

    /// What the monitor told. One that was @p askedWhenOver, after the hours were over, and says that nothing is due
    /// has been cared for, whoever saw it. True when a care is over, which is kept.
    bool note(std::optional<bool> isDue, bool isRunning, bool askedWhenOver, const QDateTime &now);

    /// One line for a settings file, and back; what is no such part of it is left out, and what cannot be yet.
    QString text() const;
    static CareHistory fromText(const QString &text, const QDateTime &now);

    bool operator==(const CareHistory &) const = default;

private:
    CareDay &dayOf(const QDate &date);
};
