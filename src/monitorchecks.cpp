#include "monitorchecks.h"

#include <utility>

#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/monitoridentity.h"
#include "ddc_protocol/transport.h"
#include "interfacemodes.h"
#include "platform/desk.h"
#include "searchdevicedlg.h"

static constexpr platform::milliseconds kRemovalSettles{300}; // one unplugging is told several times

MonitorChecks::MonitorChecks(SearchDeviceDlg &session, CommandQueue &queue, const InterfaceModes &modes,
                             QObject *parent)
    : QObject(parent), m_session(session), m_queue(queue), m_modes(modes), m_shownMonitor(monitorIdentity())
{
}

void MonitorChecks::askAfterReconnection()
{
    const bool isThere = !m_session.labels().value(currentMonitorIndex.load()).isEmpty();
    const QString identity = monitorIdentity(); // twins have one label
    if (isThere && std::exchange(m_shownMonitor, identity) != identity) {
        deviceState.forgetSettings();
        readCommandOnce(readRow(Command::Capability));
        readCommandOnce(readRow(Command::Firmware));
    }
    readCommandOnce(readRow(Command::SceneMode));
}

void MonitorChecks::readMissingBlock(bool anew)
{
    const int mode = deviceState.value(Command::SceneMode);
    const bool isOn = mode % 2 == 0 && deviceState.confirmed(Command::SceneMode) == mode;
    if (!isOn || anew)
        m_blockAskedFor.reset();
    if (!isOn || m_modes.isLocked() || m_session.isSearching() || deviceState.sceneBlockValid() ||
        m_blockAskedFor == mode)
        return;
    m_blockAskedFor = mode;
    m_queue.askBlock(mode);
}

void MonitorChecks::deviceRemoved()
{
    if (std::exchange(m_checkWaits, true))
        return;
    platform::desk().clock().callLater(kRemovalSettles, this, [this] {
        m_checkWaits = false;
        readCommandOnce(readRow(Command::SceneMode));
        Q_EMIT checked();
    });
}
