#pragma once

#include <functional>
#include <mutex>
#include <vector>

#include <QPointer>

#include "platform/clock.h"

/// A clock that does not wait: it records every wait and moves its own time on by it. Later tasks run when the test
/// moves the time past them.
class ManualClock final : public platform::Clock
{
public:
    void sleep(platform::milliseconds duration) override;
    QDateTime now() override;
    void callLater(platform::milliseconds delay, QObject *context, std::function<void()> task) override;

    /// Moves the time on and runs what has become due, in order.
    void advance(platform::milliseconds duration);

    void setNow(const QDateTime &now);

    /// The waits since the last call, in milliseconds.
    QList<int> takeWaits();

    std::size_t tasksWaiting() const;

private:
    struct Task
    {
        QDateTime due;
        QPointer<QObject> context;
        std::function<void()> run;
    };

    mutable std::mutex m_mutex;
    QDateTime m_now = QDateTime(QDate(2024, 3, 9), QTime(12, 0));
    QList<int> m_waits;
    std::vector<Task> m_tasks;
};
