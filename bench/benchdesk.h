#pragma once

#include <atomic>

#include <QTemporaryDir>

#include "platform/systemclock.h"
#include "platform/virtual/virtualplatform.h"
#include "virtualdesk/virtualdesk.h"

/// Real time, and how much of it was spent waiting.
class MeteredClock final : public platform::Clock
{
public:
    void sleep(platform::milliseconds duration) override;
    QDateTime now() override { return m_clock.now(); }
    void callLater(platform::milliseconds delay, QObject *context, std::function<void()> task) override
    {
        m_clock.callLater(delay, context, std::move(task));
    }

    /// The seconds that sleep took since the last call; a little more than was asked for.
    double takeSlept() { return static_cast<double>(m_sleptNanoseconds.exchange(0)) * 1e-9; }

private:
    platform::SystemClock m_clock;
    std::atomic<std::int64_t> m_sleptNanoseconds = 0;
};

/// The process's memory, in units of 10^6 bytes, with what is free given back first.
double residentMegabytes();

/// A simulated desk in real time, installed as the process's desk, with an empty working folder and the program's own
/// log handler: what the program does beside its requests costs here what it costs there.
class BenchDesk
{
public:
    explicit BenchDesk(bool logged = true);
    ~BenchDesk();
    Q_DISABLE_COPY_MOVE(BenchDesk)

    virtualdesk::SimulatedMonitor &monitor() { return desk.monitor(0); }

    MeteredClock clock; ///< the devices'
    platform::SystemClock programClock;
    virtualdesk::VirtualDesk desk{clock};

private:
    QTemporaryDir m_folder;
    QString m_folderBefore;
    platform::VirtualPlatform m_platform{desk, programClock};
};
