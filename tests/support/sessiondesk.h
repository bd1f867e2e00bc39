#pragma once

#include "searchdevicedlg.h"
#include "support/deskfixture.h"

/// A desk with a session whose search has found the monitors.
class SessionDesk : public DeskFixture
{
public:
    SessionDesk() { search(); }

    /// With one monitor in this scene; for any but the first one, the first is unplugged before the search.
    explicit SessionDesk(int scene, std::size_t index = 0)
    {
        monitor(index).setValue(0x22, static_cast<std::uint16_t>(scene));
        if (index != 0)
            desk.unplug(0);
        search();
        takeCommands(index);
    }

    SearchDeviceDlg &session() { return *m_session; }

private:
    void search()
    {
        m_session = std::make_unique<SearchDeviceDlg>();
        m_session->searchDevices();
    }

    std::unique_ptr<SearchDeviceDlg> m_session;
};
