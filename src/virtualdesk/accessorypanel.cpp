#include "virtualdesk/accessorypanel.h"

#include <algorithm>

#include <QGridLayout>
#include <QLabel>

#include "virtualdesk/accessoryforms.h"
#include "virtualdesk/accessoryscreen.h"
#include "virtualdesk/actionbuttons.h"
#include "virtualdesk/labels.h"
#include "virtualdesk/marked.h"
#include "virtualdesk/virtualdesk.h"

namespace virtualdesk {

namespace {

constexpr int kPanelMargin = 16;
constexpr int kButtonColumns = 2;
constexpr int kMidTransfer = 8; // writes until the device is pulled out
constexpr std::chrono::milliseconds kScreenRefresh{40};
constexpr int kTextMode = 0x2F;
constexpr qsizetype kShownGameBytes = 10; // as many as any report uses

constexpr char kAccessoryStyle[] = R"(
QLabel, QPushButton { font-size: 13px; }
QLabel { color: #c9c9c9; }
QLabel#value { color: #9cffc8; }
QLabel#state { color: #adadad; }
QLabel#fault { color: #da676d; }
QPushButton { color: #ffffff; background-color: #1b2320; border: 1px solid rgb(27,80,67);
    border-radius: 6px; padding: 5px 8px; min-height: 18px; }
QPushButton:hover { border-color: #4fae95; }
QPushButton:focus { border-color: #7bfadb; }
QPushButton:checked { color: #ffffff; background-color: #5a2a2d; border-color: #da676d; }
QPushButton#form:checked { background-color: #1b5043; border-color: #7bfadb; }
)";

/// What can be done to the accessory. A button is down while that lasts.
struct ActionSpec
{
    const char *name; ///< object name
    const char *text;
    const char *tip;
    void (*set)(SimulatedAccessory &accessory, bool on);
    bool (*isSet)(const SimulatedAccessory &accessory);
};

constexpr ActionSpec kActions[] = {
    {"unplug", NAME("Unplug"), NAME("The cable is pulled out until the button is released"),
     [](SimulatedAccessory &accessory, bool on) { accessory.setPlugged(!on); },
     [](const SimulatedAccessory &accessory) { return !accessory.isPlugged(); }},
    {"refuse", NAME("Refuse writes"), NAME("The accessory takes no report until the button is released"),
     [](SimulatedAccessory &accessory, bool on) { accessory.refuseWrites(on ? kForEver : 0); },
     [](const SimulatedAccessory &accessory) { return accessory.refusesWrites(); }},
    {"pull", NAME("Pull out in mid-transfer"), NAME("The cable is pulled out at the eighth report from now"),
     [](SimulatedAccessory &accessory, bool on) { accessory.unplugAtWrite(on ? kMidTransfer : 0); },
     [](const SimulatedAccessory &accessory) { return accessory.unplugsAtWrite(); }},
    {"form", NAME("Next form"),
     NAME("The accessory becomes the next of its models; the button is up while it is the first"),
     [](SimulatedAccessory &accessory, bool) { accessory.setForm(nextForm(accessory.form())); },
     [](const SimulatedAccessory &accessory) { return accessory.form() != knownForms().front(); }},
};

QString dashOr(bool known, const QString &text)
{
    return known ? text : QStringLiteral("–");
}

QString uploadText(const AccessoryUpload &upload, int form)
{
    const QString kind = upload.mode == kTextMode ? QObject::tr("text")
                                                  : QObject::tr("mode %1").arg(upload.mode, 2, 16, QLatin1Char('0'));
    if (!upload.isComplete())
        return QObject::tr("%1, chunk %2 of %3").arg(kind).arg(upload.received).arg(upload.total);
    return QObject::tr("%1, frames: %2").arg(kind).arg(uploadedFrames(upload, form));
}

QString switchText(int value)
{
    return value == 0 ? QObject::tr("Close") : QObject::tr("Open");
}

QString shownText(const AccessoryState &state, int)
{
    if (state.lamp == 0)
        return QObject::tr("lamp off");
    if (state.showsLive)
        return QObject::tr("live");
    return state.upload.cells.isEmpty() ? QObject::tr("nothing") : QObject::tr("upload");
}

QString hexText(const QByteArray &bytes)
{
    return dashOr(!bytes.isEmpty(), QString::fromLatin1(bytes.toHex(' ')));
}

/// What the accessory was told, and what came of it.
struct ValueSpec
{
    const char *name;
    QString (*text)(const AccessoryState &state, int form);
};

constexpr ValueSpec kValues[] = {
    {NAME("Shown"), shownText},
    {NAME("Live frames"), [](const AccessoryState &state, int) { return QString::number(state.liveFrames); }},
    {NAME("Upload"),
     [](const AccessoryState &state, int form) { return dashOr(state.uploads > 0, uploadText(state.upload, form)); }},
    {NAME("Lamp"), [](const AccessoryState &state, int) { return dashOr(state.lamp >= 0, switchText(state.lamp)); }},
    {NAME("Playback Level"),
     [](const AccessoryState &state, int) { return dashOr(state.level >= 0, QString::number(state.level)); }},
    {NAME("Brightness"),
     [](const AccessoryState &state, int) { return dashOr(state.brightness >= 0, QString::number(state.brightness)); }},
    {NAME("Animations"), [](const AccessoryState &state, int) { return hexText(state.animations); }},
    {NAME("Game report"),
     [](const AccessoryState &state, int) {
         return hexText(state.gameReport.first(std::min(kShownGameBytes, state.gameReport.size())));
     }},
};

} // namespace

AccessoryPanel::AccessoryPanel(VirtualDesk &desk, QWidget *parent)
    : QWidget(parent), m_accessory(desk.accessory()), m_matrix(new AccessoryScreen(m_accessory, this)),
      m_buttons(new ActionButtons(kButtonColumns, this)), m_state(new QLabel(this)), m_lastFault(new QLabel(this))
{
    setStyleSheet(QLatin1String(kAccessoryStyle));
    m_state->setObjectName(QStringLiteral("state"));
    m_lastFault->setObjectName(QStringLiteral("fault"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kPanelMargin, kPanelMargin, kPanelMargin, kPanelMargin);
    layout->setSpacing(8);
    layout->addWidget(m_matrix, 1);
    buildButtons();
    layout->addLayout(m_buttons->layout());
    layout->addWidget(m_state);
    layout->addWidget(m_lastFault);
    layout->addLayout(buildValues());

    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(kScreenRefresh);
    connect(&m_refreshTimer, &QTimer::timeout, this, &AccessoryPanel::refresh);
    retranslate();
    m_listener = m_accessory.addListener([this] { accessoryChanged(); });
    refresh();
}

AccessoryPanel::~AccessoryPanel()
{
    m_accessory.removeListener(m_listener);
}

void AccessoryPanel::buildButtons()
{
    for (const ActionSpec &action : kActions)
        m_buttons->add({QLatin1String(action.name), action.text, action.tip,
                        [this, &action](bool on) { action.set(m_accessory, on); },
                        [this, &action] { return action.isSet(m_accessory); }});
}

QLayout *AccessoryPanel::buildValues()
{
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(0, 1);
    for (int row = 0; row < static_cast<int>(std::size(kValues)); ++row)
        m_values.push_back(addValueLine(grid, row, this));
    return grid;
}

void AccessoryPanel::retranslate()
{
    m_matrix->setAccessibleName(QObject::tr("Matrix of the simulated accessory"));
    m_buttons->retranslate();
    for (std::size_t i = 0; i < m_values.size(); ++i)
        m_values[i].first->setText(QObject::tr(kValues[i].name));
    refresh();
}

void AccessoryPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

/// On any thread.
void AccessoryPanel::accessoryChanged()
{
    if (m_refreshAsked.exchange(true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!m_refreshTimer.isActive())
                m_refreshTimer.start();
        },
        Qt::QueuedConnection);
}

void AccessoryPanel::refresh()
{
    m_refreshAsked = false; // first: what changes from now on is shown by the next one
    m_matrix->refresh();
    refreshValues();
    refreshState();
}

void AccessoryPanel::refreshValues()
{
    const AccessoryState state = m_accessory.state();
    const int form = m_accessory.form();
    for (std::size_t i = 0; i < m_values.size(); ++i)
        setTextOf(m_values[i].second, kValues[i].text(state, form));
}

void AccessoryPanel::refreshState()
{
    m_buttons->showStates();
    const QString plugged = m_accessory.isPlugged() ? QObject::tr("Plugged in") : QObject::tr("Unplugged");
    setTextOf(m_state, QObject::tr("%1 · protocol faults: %2 · open handles: %3")
                           .arg(plugged)
                           .arg(m_accessory.protocolFaults() + m_accessory.handleFaults())
                           .arg(m_accessory.handlesOpen()));
    setTextOf(m_lastFault, QString::fromLatin1(m_accessory.lastFault()));
    m_lastFault->setVisible(!m_lastFault->text().isEmpty());
}

} // namespace virtualdesk
