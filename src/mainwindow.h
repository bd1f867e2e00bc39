#pragma once

#include <array>
#include <map>
#include <optional>

#include <QLabel>
#include <QPointer>

#include "monitorstatus.h"
#include "navigation.h"
#include "sessionhost.h"

class EmptyPage;
class HotkeyOverlay;
class CommandQueue;
class LeftBar;
class QStackedWidget;
class SearchDeviceDlg;
class TopTabFrame;
class TrayIcon;
class TrayPanelOpener;
class Page;
class PageOffice;
class PanelPage;
class SettingsPage;
class LiveDisplay;
class pageScenarioFollowing;
class pageSceneSetting;
class pageShortcutKey;
class Reconciler;

/// The codes of MainWindow::setInterfaceMode; 2 has no meaning.
enum InterfaceMode { kLocked = 0, kUnlocked = 1, kByModel = 3, kBusy = 4, kBusyEnded = 5 };

/// The program's one top-level window: tabs, left bars and pages. Closing hides it; "Exit" in the tray ends the
/// program.
class MainWindow : public QLabel, public SessionHost
{
    Q_OBJECT
public:
    explicit MainWindow(SearchDeviceDlg &session);
    ~MainWindow() override;

    /// The one main window; null before it exists.
    static MainWindow *instance();

    /// The plate that pages put behind captions; loaded once.
    const QPixmap &labelPixmap() const { return m_labelPixmap; }

    /// What pages switch around long work: 0 nothing can be chosen, 1 everything can, 3 as 1 and the model's say on the
    /// current bar, 4 the busy mode of the accessory, 5 its end. The busy mode outlasts 0, 1 and 3.
    void setInterfaceMode(int code);

    void updateControlText();

    void refreshPages() override;
    void reconnectPages() override;
    void updateInterface() override;
    void hideWindow() override { hide(); }
    void showWindow() override;
    bool mayLeave() override;
    void deviceArrived() override;
    void deviceRemoved() override;
    void systemNoticed(SystemNotice notice) override;

    /// Closes the accessory's handle and opens the accessory anew, unless the flags say that it is open.
    void reopenHidDevice() override;

    /// Looks for the accessory, whatever was found before. False when it is not there, which the user is told.
    bool ensureHidConnected();

    TopTabFrame *tabs() const { return m_tabs; }
    LeftBar *leftBar(int family) const { return m_bars[static_cast<std::size_t>(family)]; }
    pageSceneSetting *scenePage() const { return m_scenePage; }
    /// The page of monitor settings that an entry leads to; null for those that are none.
    SettingsPage *settingsPage(PageId id) const;
    /// The page that an entry leads to; null for entries without one.
    Page *page(PageId id) const;
    TrayPanelOpener *trayPanel() const { return m_trayPanel; }
    HotkeyOverlay *overlay() const { return m_overlay; }

    /// Ends the program, unless the user is asked and wants to stay.
    void leave();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

    /// Tells the user that the accessory is not connected, and waits for the answer.
    virtual void warnNotConnected();

public Q_SLOTS:
    // Hooks that only log their names, on purpose: working hot keys go through the shortcut page.
    void onBrightnessAddShortcut();
    void onBrightnessSubShortcut();
    void onSoundAddShortcut();
    void onSoundSubShortcut();
    void onEyeModeShortcut();
    void onSplitModeShortcut();
    void onAudioRhyShortcut();
    void onScreenRhyShortcut();

private Q_SLOTS:
    void showFamily(int family);

private:
    void buildForm();
    void setUpFrame();
    void initialise();
    void createPages();
    void createAccessoryPages();
    void addPage(PageId id, Page *page);
    void createAutomation();
    void createTrayIcon();
    void chooseEntry(int family, int index);
    void showEntryPage(int family);
    void showSceneFamily(int family);
    void followSceneMode();
    void openFamilyOfScene();
    void decideEntriesByModel();
    void followAccessoryWork(bool begins);
    void setAccessoryBusy(bool busy);
    void enableAccessoryEntries();
    void enableEverything(bool enabled);
    void explainEntries();
    const char *lockOf(int family, int entry) const;
    void showSetting(Command command);
    void endAccessoryWork();
    void endWithSession();
    void checkMonitor();
    void fillPages();
    void showShortcutResult(int function, Command command, int value, bool ok);
    QString valueText(int function, Command command, int value) const;
    void followValue(Command command);
    void readMissingBlock();
    void createReconciler();
    void createTrayPanel();
    MonitorStatus monitorStatus() const;
    std::vector<Page *> pagesInSight() const;
    Page *pageInWindow() const;

    SearchDeviceDlg &m_session;
    QPixmap m_labelPixmap;
    CommandQueue *m_queue = nullptr;
    Reconciler *m_reconciler = nullptr;
    TopTabFrame *m_tabs = nullptr;
    QStackedWidget *m_barStack = nullptr;
    std::array<LeftBar *, kFamilies> m_bars = {};
    QStackedWidget *m_pages = nullptr;
    pageSceneSetting *m_scenePage = nullptr;
    std::map<PageId, Page *> m_pageOf;
    PageOffice *m_officePage = nullptr;
    LiveDisplay *m_liveDisplay = nullptr;
    HotkeyOverlay *m_overlay = nullptr;
    EmptyPage *m_emptyPage = nullptr;
    QLabel *m_status = nullptr;
    TrayPanelOpener *m_trayPanel = nullptr;
    TrayIcon *m_tray = nullptr; ///< null where there is no tray
    int m_family = 0;
    bool m_checkWaiting = false;
    bool m_asksToLeave = false;
    bool m_locked = false; ///< nothing can be chosen
    bool m_accessoryBusy = false;
    bool m_wasInFront = false;
    QByteArray m_shownMonitor;          ///< the label of the monitor that the pages' values belong to
    std::optional<int> m_blockAskedFor; ///< the mode whose block was asked for last
    QPointer<QWidget> m_focusBefore;    ///< while nothing can be used
    std::optional<QPoint> m_dragStart;  ///< where the window was taken hold of
};
