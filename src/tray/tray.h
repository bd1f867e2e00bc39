#pragma once

#include <QObject>

class CommandQueue;
class QWidget;
class TrayIcon;
class TrayPanelOpener;

/// The program's place in the system tray: the icon, where there is a tray, and the panel that it opens.
class Tray : public QObject
{
    Q_OBJECT
public:
    /// The window owns it.
    Tray(CommandQueue &queue, QWidget *window);

    TrayPanelOpener *panel() const { return m_panel; }

    /// Where there is a tray: tells for 10 s that the program goes on although its window is gone.
    void tellRunning();

Q_SIGNALS:
    void showWanted();
    void exitWanted();

private:
    TrayPanelOpener *m_panel;
    TrayIcon *m_icon = nullptr; ///< null where there is no tray
};
