#pragma once

#include <QDebug>

#include "automation.h"
#include "framelesswindow.h"
#include "interfacemodes.h"
#include "monitorchecks.h"
#include "navigator.h"
#include "page/Nightloom/accessorypages.h"
#include "page/pageset.h"
#include "reconciler.h"
#include "sessionhost.h"
#include "tray/tray.h"
#include "usb-hid/hidtransport.h"

class CommandQueue;
class HotkeyOverlay;
class RhythmLight;
class SearchDeviceDlg;
class Splitting;
class StatusCard;
class TrayPanelOpener;
class pageSceneSetting;

/// The program's one top-level window. It builds and places what does the work: the way through the pages, the pages
/// themselves, the tray, the links' followers; and it hands on what the session and the pages ask of it. Closing hides
/// it; "Exit" in the tray ends the program.
class MainWindow : public FramelessWindow, public SessionHost
{
    Q_OBJECT
public:
    explicit MainWindow(SearchDeviceDlg &session);
    ~MainWindow() override;

    /// The one main window; null before it exists.
    static MainWindow *instance();

    /// The plate that pages put behind captions; loaded once.
    const QPixmap &labelPixmap() const { return m_labelPixmap; }

    /// What pages switch around long work: see InterfaceModes::set.
    void setInterfaceMode(int code) { m_modes->set(code); }

    void updateControlText();

    void refreshPages() override;
    void reconnectPages() override;
    void updateInterface() override;
    void hideWindow() override { hide(); }
    void showWindow() override;
    bool mayLeave() override { return m_pages.mayLeave(); }
    void deviceArrived() override { updateInterface(); }
    void deviceRemoved() override { m_checks->deviceRemoved(); }
    void systemNoticed(SystemNotice notice) override;

    /// Closes the accessory's handle and opens the accessory anew, unless the flags say that it is open.
    void reopenHidDevice() override { reopenHid(); }

    /// Looks for the accessory, whatever was found before. False when it is not there, which the user is told.
    bool ensureHidConnected() { return m_accessory->ensureConnected(); }

    TopTabFrame *tabs() const { return m_navigator->tabs(); }
    LeftBar *leftBar(int family) const { return m_navigator->bar(family); }
    pageSceneSetting *scenePage() const { return m_scenePage; }
    /// See PageSet.
    SettingsPage *settingsPage(PageId id) const { return m_pages.settings(id); }
    Page *page(PageId id) const { return m_pages.page(id); }
    TrayPanelOpener *trayPanel() const { return m_tray->panel(); }
    Splitting *splitting() const { return m_splitting; }
    HotkeyOverlay *overlay() const { return m_automation->overlay(); }

    /// Ends the program, unless the user is asked and wants to stay.
    void leave();

protected:
    void cameToFront() override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

    /// Tells the user that the accessory is not connected, and waits for the answer.
    virtual void warnNotConnected();

public Q_SLOTS:
    // Hooks that only log their names, on purpose: working hot keys go through the shortcut page.
    void onBrightnessAddShortcut() { qDebug() << "MainWindow::onBrightnessAddShortcut"; }
    void onBrightnessSubShortcut() { qDebug() << "MainWindow::onBrightnessSubShortcut"; }
    void onSoundAddShortcut() { qDebug() << "MainWindow::onSoundAddShortcut"; }
    void onSoundSubShortcut() { qDebug() << "MainWindow::onSoundSubShortcut"; }
    void onEyeModeShortcut() { qDebug() << "MainWindow::onEyeModeShortcut"; }
    void onSplitModeShortcut() { qDebug() << "MainWindow::onSplitModeShortcut"; }
    void onAudioRhyShortcut() { qDebug() << "MainWindow::onAudioRhyShortcut"; }
    void onScreenRhyShortcut() { qDebug() << "MainWindow::onScreenRhyShortcut"; }

    // The screen splitter: the zones of the layout that is chosen, or of one that every screen has.
    void onSpliter();
    void onSpliterFixed();

private:
    void createPages();
    void createFollowers();
    void createTray();
    void placeParts();
    void placeStatus();
    void followSent(Command command);
    void followSight();
    std::vector<Page *> pagesInSight() const;

    SearchDeviceDlg &m_session;
    QPixmap m_labelPixmap;
    PageSet m_pages;
    CommandQueue *m_queue;
    Navigator *m_navigator;
    StatusCard *m_status;
    InterfaceModes *m_modes;
    MonitorChecks *m_checks;
    AccessoryPages *m_accessory;
    pageSceneSetting *m_scenePage = nullptr;
    Automation *m_automation = nullptr;
    RhythmLight *m_rhythm = nullptr;
    Splitting *m_splitting = nullptr;
    Reconciler *m_reconciler = nullptr;
    Tray *m_tray = nullptr;
    bool m_wasInFront = false;
};
