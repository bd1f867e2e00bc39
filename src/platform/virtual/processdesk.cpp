#include "platform/virtual/processdesk.h"

#include <optional>

#include <QCoreApplication>

#include "platform/systemclock.h"
#include "platform/virtual/virtualplatform.h"
#include "virtualdesk/deskscript.h"
#include "virtualdesk/deskwindow.h"
#include "virtualdesk/requestlog.h"
#include "virtualdesk/virtualdesk.h"
#include "virtualdesk/whereabouts.h"

namespace platform {

namespace {

using virtualdesk::VirtualDesk;

/// What the process's own desk stands on; a base, so that it is there before the adapters are.
struct OwnDesk
{
    SystemClock programClock;
    SystemClock deskClock; // devices take their time also when the program ends
    VirtualDesk ownDesk{deskClock, virtualdesk::setupFromEnvironment()};
};

class ProcessDesk final : private OwnDesk, public VirtualPlatform
{
public:
    ProcessDesk() : VirtualPlatform(ownDesk, programClock)
    {
        ownDesk.process().startsPrograms = true;
        const QString requestFile = qEnvironmentVariable("QUORVEL_DESK_LOG");
        if (!requestFile.isEmpty())
            m_requestLog.emplace(ownDesk, requestFile);
    }

    void mainWindowShown() override
    {
        VirtualPlatform::mainWindowShown();
        const QString places = qEnvironmentVariable("QUORVEL_DESK_PLACES");
        if (!places.isEmpty())
            new virtualdesk::Whereabouts(places, qApp);
        if (m_window != nullptr || qEnvironmentVariable("QUORVEL_DESK_WINDOW") == QLatin1String("0"))
            return;
        m_window = std::make_unique<virtualdesk::DeskWindow>(ownDesk);
        // The desk outlives the application object, which a widget must not.
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, m_window.get(), [this] { m_window.reset(); });
        m_window->show();
    }

private:
    std::optional<virtualdesk::RequestLog> m_requestLog;
    std::unique_ptr<virtualdesk::DeskWindow> m_window;
};

} // namespace

std::unique_ptr<Desk> createVirtualDesk()
{
    return std::make_unique<ProcessDesk>();
}

} // namespace platform
