#include "tray/tray.h"

#include <QDebug>
#include <QWidget>

#include "tray/trayicon.h"
#include "tray/traypanelopener.h"

Tray::Tray(CommandQueue &queue, QWidget *window) : QObject(window), m_panel(new TrayPanelOpener(queue, this))
{
    connect(m_panel, &TrayPanelOpener::windowWanted, this, &Tray::showWanted);
    if (!QSystemTrayIcon::isSystemTrayAvailable()) {
        qDebug() << "SystemTray not available";
        return;
    }
    m_icon = new TrayIcon(window);
    connect(m_icon, &TrayIcon::pressed, this, [this] { m_panel->press([this] { return m_icon->geometry(); }); });
    connect(m_icon, &TrayIcon::showWanted, this, &Tray::showWanted);
    connect(m_icon, &TrayIcon::exitWanted, this, &Tray::exitWanted);
    m_icon->show();
}

void Tray::tellRunning()
{
    if (m_icon)
        m_icon->tellRunning();
}
