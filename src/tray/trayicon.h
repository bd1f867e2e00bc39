#pragma once

#include <QSystemTrayIcon>

class QWidget;

/// The program's place in the system tray, with a menu that shows the window or ends the program. For a system that has
/// a tray.
class TrayIcon : public QSystemTrayIcon
{
    Q_OBJECT
public:
    /// The window owns it and its menu.
    explicit TrayIcon(QWidget *window);

    /// Tells for 10 s that the program goes on although its window is gone.
    void tellRunning();

Q_SIGNALS:
    /// A single press, or the first of two.
    void pressed();

    void showWanted();
    void exitWanted();
};
