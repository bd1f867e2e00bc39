#include "tray/trayicon.h"

#include <QMenu>

#include "controls/pictures.h"

static constexpr int kBalloonTime = 10000; // ms

TrayIcon::TrayIcon(QWidget *window) : QSystemTrayIcon(QIcon(Pictures::kRoot + QStringLiteral("app.ico")), window)
{
    setToolTip(QStringLiteral("QUORVEL"));
    auto *menu = new QMenu(window);
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
