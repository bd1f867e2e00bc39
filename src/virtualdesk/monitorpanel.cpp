#include "virtualdesk/monitorpanel.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "virtualdesk/actionbuttons.h"
#include "virtualdesk/labels.h"
#include "virtualdesk/osdfunctions.h"
#include "virtualdesk/osdlist.h"
#include "virtualdesk/screenview.h"
#include "virtualdesk/selector.h"
#include "virtualdesk/virtualdesk.h"

namespace virtualdesk {

namespace {

constexpr int kKeptLines = 400;
constexpr std::size_t kShownAtOnce = 100;
constexpr std::chrono::milliseconds kPanelRefresh{60};

constexpr int kFaultColumns = 3;

QString requestLine(const Request &request)
{
    return QStringLiteral("%1 %2 %3 %4 %5")
        .arg(request.time.toString(QStringLiteral("hh:mm:ss.zzz")))
        .arg(QLatin1Char(request.kind == RequestKind::Read ? 'R' : 'W'))
        .arg(request.code, 2, 16, QLatin1Char('0'))
        .arg(request.value, 5)
        .arg(QObject::tr(wordOf(request.outcome)));
}

} // namespace

MonitorPanel::MonitorPanel(VirtualDesk &desk, QWidget *parent)
    : QWidget(parent), m_desk(desk), m_faults(new ActionButtons(kFaultColumns, this))
{
    layOut();
    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(kPanelRefresh);
    connect(&m_refreshTimer, &QTimer::timeout, this, &MonitorPanel::refresh);
    connect(&m_desk, &VirtualDesk::monitorsChanged, this, &MonitorPanel::askForRefresh);
    for (std::size_t i = 0; i < m_desk.monitorCount(); ++i)
        m_selector->addItem(QLatin1String(m_desk.monitor(i).model().name));
    connect(m_selector, &QComboBox::currentIndexChanged, this, &MonitorPanel::selectMonitor);

    retranslate();
    selectMonitor(0);
}

MonitorPanel::~MonitorPanel()
{
    if (m_listener != 0)
        monitor().removeListener(m_listener);
}

void MonitorPanel::layOut()
{
    m_selector = new Selector(this);
    m_screen = new ScreenView(this);
    m_state = new QLabel(this);
    m_state->setObjectName(QStringLiteral("state"));
    m_osd = new OsdList(this);
    m_osd->setEnabled(m_desk.monitorCount() > 0);
    connect(m_osd, &OsdList::stepped, this, [this](const OsdFunction &function, int direction) {
        monitor().setValue(function.code, osdStep(function, monitor().value(function.code), direction));
        askForRefresh();
    });
    connect(m_osd, &OsdList::grown, this, &MonitorPanel::askForRefresh);
    m_osdTitle = makeTitle(this);
    m_requestsTitle = makeTitle(this);
    m_requests = new QPlainTextEdit(this);
    m_requests->setReadOnly(true);
    m_requests->setTabChangesFocus(true);
    m_requests->setMaximumBlockCount(kKeptLines);
    m_requests->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_requests->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPixelSize(12);
    m_requests->setFont(fixed);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_selector);
    layout->addWidget(m_screen);
    buildFaults();
    layout->addLayout(m_faults->layout());
    layout->addWidget(m_state);
    layout->addWidget(m_osdTitle);
    layout->addWidget(m_osd, 3);
    layout->addWidget(m_requestsTitle);
    layout->addWidget(m_requests, 2);
}

SimulatedMonitor &MonitorPanel::monitor() const
{
    return m_desk.monitor(m_index);
}

void MonitorPanel::buildFaults()
{
    for (const MonitorFault &fault : monitorFaults()) {
        const FaultButton &button = fault.button;
        if (button.label == nullptr)
            continue;
        const auto press = [this, &fault, &button](bool on) {
            m_desk.apply(m_index,
                         on ? MonitorEvent{&fault, button.times, kAnyCommand, button.wait} : MonitorEvent{&fault, 0});
            askForRefresh();
        };
        m_faults->add({QStringLiteral("fault_") + QLatin1String(fault.word), button.label, button.tip, press,
                       [this, &fault] { return monitor().isOn(fault); }});
    }
    for (QPushButton *button : m_faults->buttons())
        button->setEnabled(m_desk.monitorCount() > 0);
}

void MonitorPanel::retranslate()
{
    m_osdTitle->setText(QObject::tr("On-screen menu"));
    m_osd->setAccessibleName(m_osdTitle->text());
    m_requestsTitle->setText(QObject::tr("Requests"));
    m_selector->setAccessibleName(QObject::tr("Simulated monitor"));
    m_selector->setToolTip(QObject::tr("The simulated monitor that is shown here"));
    m_screen->setAccessibleName(QObject::tr("Screen of the simulated monitor"));
    m_requests->setAccessibleName(QObject::tr("Last requests to the monitor"));
    m_requests->setToolTip(QObject::tr("Time, read or write, code, value and what became of it"));
    m_faults->retranslate();
    m_osd->retranslate();
    askForRefresh();
}

void MonitorPanel::selectMonitor(int index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= m_desk.monitorCount())
        return;
    if (m_listener != 0)
        monitor().removeListener(m_listener);
    m_index = static_cast<std::size_t>(index);
    m_requests->clear();
    {
        const std::lock_guard lock(m_arrivedMutex);
        m_arrived.clear();
    }
    // A request between the two lines is shown twice, none is missed.
    m_listener = monitor().addListener([this](const Request &request) { requestArrived(request); });
    appendRequests(monitor().history());
    refresh();
}

/// On any thread.
void MonitorPanel::requestArrived(const Request &request)
{
    {
        const std::lock_guard lock(m_arrivedMutex);
        m_arrived.push_back(request);
        if (std::exchange(m_refreshAsked, true))
            return;
    }
    QMetaObject::invokeMethod(this, &MonitorPanel::askForRefresh, Qt::QueuedConnection);
}

void MonitorPanel::askForRefresh()
{
    if (!m_refreshTimer.isActive())
        m_refreshTimer.start();
}

void MonitorPanel::refresh()
{
    std::vector<Request> arrived;
    {
        const std::lock_guard lock(m_arrivedMutex);
        arrived.swap(m_arrived);
        m_refreshAsked = false;
    }
    appendRequests(arrived);
    if (m_desk.monitorCount() == 0)
        return;
    m_screen->show(monitor());
    m_osd->show(monitor());
    refreshState();
}

void MonitorPanel::appendRequests(const std::vector<Request> &requests)
{
    if (requests.empty())
        return;
    const std::size_t skipped = requests.size() > kShownAtOnce ? requests.size() - kShownAtOnce : 0;
    QStringList lines;
    for (std::size_t i = skipped; i < requests.size(); ++i)
        lines.append(requestLine(requests[i]));
    m_requests->appendPlainText(lines.join(QLatin1Char('\n')));
    if (!m_requests->hasFocus()) // else somebody reads there
        m_requests->verticalScrollBar()->setValue(m_requests->verticalScrollBar()->maximum());
}

void MonitorPanel::refreshState()
{
    m_faults->showStates();
    const QString plugged = monitor().isPlugged() ? QObject::tr("Plugged in") : QObject::tr("Unplugged");
    setTextOf(m_state, QObject::tr("%1 · protocol faults: %2 · open handles: %3")
                           .arg(plugged)
                           .arg(monitor().protocolFaults().total())
                           .arg(m_desk.handles().countOpen()));
}

} // namespace virtualdesk
