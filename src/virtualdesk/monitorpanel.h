#pragma once

#include <mutex>
#include <vector>

#include <QTimer>
#include <QWidget>

#include "virtualdesk/request.h"

class QComboBox;
class QLabel;
class QPlainTextEdit;

namespace virtualdesk {

class ActionButtons;
class OsdList;
class ScreenView;
class SimulatedMonitor;
class VirtualDesk;

/// What a person in front of the simulated monitor would see, what the monitor was asked, and
/// buttons for everything that can go wrong with it. It follows the monitor without polling.
class MonitorPanel : public QWidget
{
    Q_OBJECT

public:
    /// The desk outlives the panel.
    explicit MonitorPanel(VirtualDesk &desk, QWidget *parent = nullptr);
    ~MonitorPanel() override;

    void retranslate();

private:
    void layOut();
    void buildFaults();
    void selectMonitor(int index);
    void requestArrived(const Request &request);
    void refresh();
    void refreshState();
    void appendRequests(const std::vector<Request> &requests);
    void askForRefresh();
    SimulatedMonitor &monitor() const;

    VirtualDesk &m_desk;
    ActionButtons *m_faults;
    std::size_t m_index = 0;
    int m_listener = 0;

    std::mutex m_arrivedMutex; // requests come from any thread
    std::vector<Request> m_arrived;
    bool m_refreshAsked = false;

    QTimer m_refreshTimer; // single shot: many requests, one repaint
    QComboBox *m_selector = nullptr;
    ScreenView *m_screen = nullptr;
    OsdList *m_osd = nullptr;
    QLabel *m_osdTitle = nullptr;
    QLabel *m_requestsTitle = nullptr;
    QLabel *m_state = nullptr;
    QPlainTextEdit *m_requests = nullptr;
};

} // namespace virtualdesk
