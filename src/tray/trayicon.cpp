#include "tray/trayicon.h"

#include <QMenu>

#include "controls/pictures.h"

static constexpr int kBalloonTime = 10000; // ms

void dressTrayMenu(QMenu *menu)
{
    menu->setStyleSheet(
        QStringLiteral("QMenu { background-color: #161d1a; color: #c9c9c9; border: 1px solid #1b5043; }"
                       "QMenu::item { padding: 6px 24px; } QMenu::item:selected { background: #1b5043; }"));
}

TrayIcon::TrayIcon(QWidget *window) : QSystemTrayIcon(QIcon(Pictures::kRoot + QStringLiteral("app.ico")), window)
{
    setToolTip(QStringLiteral("QUORVEL"));
    auto *menu = new QMenu(window);
    dressTrayMenu(menu);
    menu->addAction(QObject::tr("Show"), this, &TrayIcon::showWanted);
    menu->addAction(QObject::tr("Exit"), this, &TrayIcon::exitWanted);
    setContextMenu(menu);
    connect(this, &QSystemTrayIcon::activated, this, [this](ActivationReason reason) {
        if (reason == Trigger)
            Q_EMIT pressed();
        else if (reason != Context)
            Q_EMIT showWanted();
    });
}

void TrayIcon::tellRunning()
{
    showMessage(QStringLiteral("QUORVEL"), QObject::tr("Background running"), Information, kBalloonTime);
}
