#include "platform/virtual/processdesk.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimerEvent>

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

/// Calls once, after the first window of the program has been painted: what only a desk's user sees does not hold up
/// what everybody sees.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(std::function<void()> then) : QObject(qApp), m_then(std::move(then))
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType()) {
            qApp->removeEventFilter(this);
            startTimer(0); // behind all that this painting queues, also for whoever waits to see it
        }
        return false;
    }

    void timerEvent(QTimerEvent *event) override
    {
        killTimer(event->timerId());
        m_then();
        deleteLater();
    }

private:
    std::function<void()> m_then;
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
        if (!m_onScreen) {
            followScreen(QGuiApplication::primaryScreen());
            QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, qGuiApp, [this](QScreen *screen) {
                followScreen(screen);
                ownDesk.changeDisplays();
            });
        }
        if (m_window == nullptr && qEnvironmentVariable("QUORVEL_DESK_WINDOW") != QLatin1String("0"))
            new FirstPaint([this] { showWindow(); });
    }

private:
    /// The first display is the screen that the program is really shown on: when that changes, the desk's windows are
    /// told, as the system would tell them.
    void followScreen(QScreen *screen)
    {
        m_onScreen = std::make_unique<QObject>();
        if (screen != nullptr)
            QObject::connect(screen, &QScreen::geometryChanged, m_onScreen.get(), [this] { ownDesk.changeDisplays(); });
    }

    void showWindow()
    {
        m_window = std::make_unique<virtualdesk::DeskWindow>(ownDesk);
        // The desk outlives the application object, which a widget must not.
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, m_window.get(), [this] { m_window.reset(); });
        m_window->show();
    }

    std::optional<virtualdesk::RequestLog> m_requestLog;
    std::unique_ptr<virtualdesk::DeskWindow> m_window;
    std::unique_ptr<QObject> m_onScreen; ///< follows the screen as long as it is the first one
};

} // namespace

std::unique_ptr<Desk> createVirtualDesk()
{
    return std::make_unique<ProcessDesk>();
}

} // namespace platform
