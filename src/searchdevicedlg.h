#pragma once

#include <atomic>
#include <optional>

#include <QDialog>

#include "devicechanges.h"
#include "monitorchoice.h"
#include "snapshotreader.h"

class QComboBox;
class SessionHost;

/// The one device session: chooses the monitor that commands go to, reads its settings into deviceState, follows
/// devices being plugged in and out, and finds the monitor again when it stops answering. It is never shown; its combo
/// box holds the labels of the monitors.
class SearchDeviceDlg : public QDialog
{
    Q_OBJECT
public:
    explicit SearchDeviceDlg(QWidget *parent = nullptr);
    ~SearchDeviceDlg() override;

    /// The main window, once there is one; null takes it away.
    void setHost(SessionHost *host) { m_host = host; }

    /// Finds the monitors, chooses one and reads what reloadEdidType says. Ends the program with a message when the
    /// start-up read fails on every monitor.
    void searchDevices();

    /// The recovery after a failed write, a monitor's arrival or a failed scene read.
    void delayedSearchDevices();

    /// Whether the program may end, which the window's pages say. Asked by whoever restarts it for the user.
    bool mayLeave();

    /// Reads the whole snapshot. False when the monitor tells no scene mode.
    bool readDataFromDevice() { return m_reader.readAll(); }

    /// Reads the scene-mode block of an even mode; safe from the scene-mode worker. A short block schedules a
    /// reconnection and gives false. A positive odd mode gives false, a negative odd one true, both without reading:
    /// callers rely on that asymmetry.
    bool readSceneModeData(int mode) { return m_reader.readSceneBlock(mode); }

    /// The labels of the last search, in the order of monitorList.
    const QByteArrayList &labels() const { return m_monitors.labels(); }
    /// Whether a search is under way: what it reads must not be mixed with other questions.
    bool isSearching() const { return m_searching; }

    QComboBox *deviceBox() const { return m_monitors.box(); }

    bool nativeEvent(const QByteArray &eventType, void *message, qintptr *result) override;

protected:
    /// Says that the display cannot be used and ends the process with code 0.
    virtual void exitUnsupported();

    /// Says that no copy of the program could be started in this one's place.
    virtual void tellNotRestarted();

private Q_SLOTS:
    void onCurrentDeviceChanged(int index);

private:
    enum class PassResult { Next, Finished, Abandoned };

    PassResult runPass(int pass);
    bool readForReason();
    bool refusesSearch();
    int refusedReason() const;
    void runRememberedSearch();
    void requestSearchAfter(int delay);
    void requestReconnect();
    void restart();
    void goOnWithoutCopy();

    SessionHost *m_host = nullptr;
    MonitorChoice m_monitors;
    SnapshotReader m_reader;
    std::optional<DeviceChanges> m_changes; ///< while there is a window that can be told
    bool m_readSucceeded = false;
    bool m_searching = false;        ///< refuses a search within a search
    std::optional<int> m_remembered; ///< the reason of what was refused meanwhile
    bool m_runsRemembered = false;
    std::atomic<bool> m_reconnectWaiting = false;
};
