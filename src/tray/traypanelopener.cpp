#include "tray/traypanelopener.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <QWindow>

#include "platform/desk.h"
#include "tray/traypanel.h"

/// Within these milliseconds the notification area that was pressed may take the focus back.
static constexpr qint64 kComes = 400;

TrayPanelOpener::TrayPanelOpener(CommandQueue &queue, QObject *parent) : QObject(parent), m_queue(queue)
{
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &TrayPanelOpener::followFocus);
    connect(qApp, &QGuiApplication::screenAdded, this, &TrayPanelOpener::followScreen);
    connect(qApp, &QGuiApplication::screenRemoved, this, &TrayPanelOpener::followScreens);
    for (const QScreen *screen : QGuiApplication::screens())
        followScreen(screen);
}

TrayPanelOpener::~TrayPanelOpener() = default;

bool TrayPanelOpener::isOpen() const
{
    return m_panel && m_panel->isVisible();
}

TrayPressFacts TrayPanelOpener::facts() const
{
    const QDateTime now = platform::desk().clock().now();
    const auto since = [&now](const QDateTime &then) {
        return then.isValid() ? std::optional(platform::milliseconds(then.msecsTo(now))) : std::nullopt;
    };
    return {isOpen(), since(m_opened), since(m_left), platform::milliseconds(QApplication::doubleClickInterval())};
}

/// A question that stands in the window is not to be missed behind the panel.
void TrayPanelOpener::press(const IconPlace &icon)
{
    const TrayPress meaning = QApplication::activeModalWidget() ? TrayPress::ShowWindow : meaningOfTrayPress(facts());
    if (meaning == TrayPress::Open)
        return open(icon);
    close();
    if (meaning == TrayPress::ShowWindow)
        Q_EMIT windowWanted();
}

void TrayPanelOpener::close()
{
    m_opened = {};
    m_left = {};
    if (m_panel)
        m_panel->hide();
}

void TrayPanelOpener::open(const IconPlace &icon)
{
    make();
    m_iconPlace = icon;
    m_icon = icon ? icon() : QRect();
    if (m_icon.isEmpty())
        m_icon = QRect(QCursor::pos(), QSize(1, 1));
    m_opened = platform::desk().clock().now();
    m_left = {};
    m_hadFocus = false;
    m_panel->begin();
    place();
    m_panel->show();
    m_panel->raise();
    m_panel->activateWindow();
    Q_EMIT opened();
}

void TrayPanelOpener::make()
{
    if (m_panel)
        return;
    m_panel = std::make_unique<TrayPanel>(m_queue);
    connect(m_panel.get(), &TrayPanel::sceneChosen, this, &TrayPanelOpener::sceneChosen);
    connect(m_panel.get(), &TrayPanel::halfChosen, this, &TrayPanelOpener::halfChosen);
    connect(m_panel.get(), &TrayPanel::closeWanted, this, &TrayPanelOpener::close);
    connect(m_panel.get(), &TrayPanel::zonesWanted, this, [this] {
        close();
        Q_EMIT zonesWanted();
    });
    connect(m_panel.get(), &TrayPanel::contentChanged, this, &TrayPanelOpener::place);
    m_panel->showStatus(m_status);
    m_panel->setUsable(m_usable);
}

void TrayPanelOpener::place()
{
    const QScreen *screen = QGuiApplication::screenAt(m_icon.center());
    if (!screen)
        screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect available = screen->availableGeometry();
    m_panel->fitInto(available.height() - 2 * kTrayPanelGap);
    m_panel->move(placeTrayPanel(m_icon, available, m_panel->size()));
}

void TrayPanelOpener::followScreen(const QScreen *screen)
{
    connect(screen, &QScreen::availableGeometryChanged, this, &TrayPanelOpener::followScreens);
    followScreens();
}

/// When all has been told: the taskbar moves with its screen, and so does the icon.
void TrayPanelOpener::followScreens()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!isOpen())
                return;
            if (const QRect icon = m_iconPlace ? m_iconPlace() : QRect(); !icon.isEmpty())
                m_icon = icon;
            place();
        },
        Qt::QueuedConnection);
}

/// A press elsewhere takes the focus away; the panel's own lists do not count.
void TrayPanelOpener::followFocus(const QWindow *focused)
{
    if (!isOpen())
        return;
    for (const QWindow *window = focused; window; window = window->transientParent()) {
        if (window == m_panel->windowHandle()) {
            m_hadFocus = true;
            return;
        }
    }
    const QDateTime now = platform::desk().clock().now();
    if (!m_hadFocus || m_opened.msecsTo(now) < kComes)
        return; // what was under way before it came
    close();
    m_left = now;
}

void TrayPanelOpener::showStatus(const MonitorStatus &status)
{
    m_status = status;
    if (m_panel)
        m_panel->showStatus(status);
}

void TrayPanelOpener::setUsable(bool usable)
{
    m_usable = usable;
    if (m_panel)
        m_panel->setUsable(usable);
}

void TrayPanelOpener::updateControlText()
{
    if (m_panel)
        m_panel->updateControlText();
}
