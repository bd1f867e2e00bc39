#pragma once

#include <functional>
#include <memory>

#include <QDateTime>
#include <QObject>
#include <QRect>

#include "monitorstatus.h"
#include "tray/traypanelplace.h"

class CommandQueue;
class QScreen;
class QWindow;
class TrayPanel;

/// Opens and closes the panel of the tray icon, which is made when it is first wanted. The window owns it.
class TrayPanelOpener : public QObject
{
    Q_OBJECT
public:
    explicit TrayPanelOpener(CommandQueue &queue, QObject *parent = nullptr);
    ~TrayPanelOpener() override;

    using IconPlace = std::function<QRect()>;

    /// The icon was pressed, by mouse or keyboard. The panel asks where it is once more when the displays change. An
    /// icon whose place the tray does not tell has no place, or an empty one: then the pointer's place counts.
    void press(const IconPlace &icon);

    void close();

    /// The panel; null until it is first wanted.
    TrayPanel *panel() const { return m_panel.get(); }
    bool isOpen() const;

    void showStatus(const MonitorStatus &status);
    void setUsable(bool usable);
    void updateControlText();

Q_SIGNALS:
    /// What the panel says: see there.
    void sceneChosen(int value);
    void halfChosen(bool defaultView);

    void opened();

    /// The window that was in front is to be arranged; the panel is closed.
    void zonesWanted();
    void windowWanted();

private:
    void open(const IconPlace &icon);
    void make();
    void place();
    void followScreen(const QScreen *screen);
    void followScreens();
    void followFocus(const QWindow *focused);
    TrayPressFacts facts() const;

    CommandQueue &m_queue;
    std::unique_ptr<TrayPanel> m_panel;
    MonitorStatus m_status;
    bool m_usable = true;
    bool m_hadFocus = false; ///< since it was opened
    IconPlace m_iconPlace;
    QRect m_icon;       ///< at which the panel stands
    QDateTime m_opened; ///< when it was opened last
    QDateTime m_left;   ///< when it closed because the user went elsewhere
};
