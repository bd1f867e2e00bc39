#pragma once

#include <QtTest>

#include "ddc_protocol/command.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/settingsstore.h"
#include "ddc_protocol/transport.h"
#include "platform/virtual/virtualplatform.h"
#include "support/datarow.h"
#include "support/manualclock.h"
#include "support/textfile.h"
#include "virtualdesk/virtualdesk.h"

/// What most tests stand on: a simulated desk with two monitors and a clock that does not wait, installed as the
/// process's desk; an empty working folder; the monitor link as at start-up; and the log lines, collected.
class DeskFixture
{
public:
    DeskFixture();
    ~DeskFixture();
    Q_DISABLE_COPY_MOVE(DeskFixture)

    virtualdesk::SimulatedMonitor &monitor(std::size_t index = 0) { return desk.monitor(index); }

    /// The requests that a monitor saw since the last call, as "R 22", "W 10=62", with "!" behind a failed one.
    QStringList takeRequests(std::size_t index = 0);

    /// The requests without the announcements on 0x99.
    QStringList takeCommands(std::size_t index = 0);

    /// The log lines since the last call.
    QStringList takeLog();

    QString folder() const { return m_folder.path(); }

    ManualClock clock;
    virtualdesk::VirtualDesk desk;

private:
    QTemporaryDir m_folder;
    QString m_folderBefore;
    platform::VirtualPlatform m_platform;
};

/// Every test of a suite that derives from this begins on a desk of its own.
class DeskSuite : public QObject
{
    Q_OBJECT
protected:
    std::unique_ptr<DeskFixture> m_desk;

protected Q_SLOTS:
    void init() { m_desk = std::make_unique<DeskFixture>(); }
    void cleanup() { m_desk.reset(); }
};
