#include "virtualdesk/accessorypanel.h"

#include <algorithm>
#include <array>

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "virtualdesk/accessoryforms.h"
#include "virtualdesk/labeltext.h"
#include "virtualdesk/marked.h"
#include "virtualdesk/matrixview.h"
#include "virtualdesk/virtualdesk.h"

namespace virtualdesk {

namespace {

constexpr int kMargin = 16;
constexpr int kButtonColumns = 2;
constexpr int kMidTransfer = 8; // writes until the device is pulled out
constexpr std::chrono::milliseconds kRefreshDelay{40};
constexpr std::chrono::milliseconds kFrameTime{120}; // of an uploaded animation
constexpr double kFullBrightness = 100.0;
constexpr double kDimmest = 0.05; // brightness 0 is dim, not dark
constexpr int kTextMode = 0x2F;
constexpr qsizetype kShownGameBytes = 8;

constexpr char kStyle[] = R"(
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

constexpr const char *kValueNames[] = {NAME("Shown"),      NAME("Live frames"),    NAME("Upload"),
                                       NAME("Lamp"),       NAME("Playback Level"), NAME("Brightness"),
                                       NAME("Animations"), NAME("Game report")};

QString dashOr(bool known, const QString &text)
{
    return known ? text : QStringLiteral("–");
}

int frameCount(const AccessoryUpload &upload, int form)
{
    const int cells = matrixCells(form);
    return cells == 0 ? 0 : static_cast<int>(upload.cells.size()) / cells;
}

QString uploadText(const AccessoryUpload &upload, int form)
{
    const QString kind = upload.mode == kTextMode ? QObject::tr("text")
                                                  : QObject::tr("mode %1").arg(upload.mode, 2, 16, QLatin1Char('0'));
    if (!upload.isComplete())
        return QObject::tr("%1, chunk %2 of %3").arg(kind).arg(upload.received).arg(upload.total);
    return QObject::tr("%1, frames: %2").arg(kind).arg(frameCount(upload, form));
}

QString switchText(int value)
{
    return value == 0 ? QObject::tr("Close") : QObject::tr("Open");
}

} // namespace

AccessoryPanel::AccessoryPanel(VirtualDesk &desk, QWidget *parent)
    : QWidget(parent), m_desk(desk), m_matrix(new MatrixView(this)), m_state(new QLabel(this)),
      m_lastFault(new QLabel(this))
{
    setStyleSheet(QLatin1String(kStyle));
    m_state->setObjectName(QStringLiteral("state"));
    m_lastFault->setObjectName(QStringLiteral("fault"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(8);
    layout->addWidget(m_matrix, 1);
    layout->addLayout(buildButtons());
    layout->addWidget(m_state);
    layout->addWidget(m_lastFault);
    layout->addLayout(buildValues());

    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(kRefreshDelay);
    connect(&m_refreshTimer, &QTimer::timeout, this, &AccessoryPanel::refresh);
    m_playTimer.setInterval(kFrameTime);
    connect(&m_playTimer, &QTimer::timeout, this, &AccessoryPanel::showNextFrame);
    retranslate();
    m_listener = m_desk.accessory().addListener([this] { accessoryChanged(); });
    refresh();
}

AccessoryPanel::~AccessoryPanel()
{
    m_desk.accessory().removeListener(m_listener);
}

QLayout *AccessoryPanel::buildButtons()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(8);
    for (const ActionSpec &action : kActions) {
        auto *button = new QPushButton(this);
        button->setObjectName(QLatin1String(action.name));
        button->setCheckable(true);
        connect(button, &QPushButton::clicked, this, [this, &action](bool on) { action.set(m_desk.accessory(), on); });
        const int place = static_cast<int>(m_buttons.size());
        grid->addWidget(button, place / kButtonColumns, place % kButtonColumns);
        m_buttons.push_back(button);
    }
    return grid;
}

QLayout *AccessoryPanel::buildValues()
{
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(0, 1);
    for (int row = 0; row < static_cast<int>(std::size(kValueNames)); ++row) {
        auto *name = new QLabel(this);
        auto *value = new QLabel(this);
        value->setObjectName(QStringLiteral("value"));
        grid->addWidget(name, row, 0);
        grid->addWidget(value, row, 1, Qt::AlignRight);
        m_values.emplace_back(name, value);
    }
    return grid;
}

void AccessoryPanel::retranslate()
{
    m_matrix->setAccessibleName(QObject::tr("Matrix of the simulated accessory"));
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i]->setText(QObject::tr(kActions[i].text));
        m_buttons[i]->setToolTip(QObject::tr(kActions[i].tip));
        m_buttons[i]->setAccessibleDescription(QObject::tr(kActions[i].tip));
    }
    for (std::size_t i = 0; i < m_values.size(); ++i)
        m_values[i].first->setText(QObject::tr(kValueNames[i]));
    refresh();
}

QStringList AccessoryPanel::values() const
{
    QStringList texts;
    for (const auto &[name, value] : m_values)
        texts.append(value->text());
    return texts;
}

void AccessoryPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void AccessoryPanel::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_playTimer.stop(); // nobody sees it
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
    const AccessoryState state = m_desk.accessory().state();
    showMatrix(state);
    refreshValues(state);
    refreshState();
}

void AccessoryPanel::refreshValues(const AccessoryState &state)
{
    const auto hex = [](const QByteArray &bytes) { return QString::fromLatin1(bytes.toHex(' ')); };
    const QString shown = state.lamp == 0                ? QObject::tr("lamp off")
                          : state.showsLive              ? QObject::tr("live")
                          : state.upload.cells.isEmpty() ? QObject::tr("nothing")
                                                         : QObject::tr("upload");
    const std::array<QString, std::size(kValueNames)> texts = {
        shown,
        QString::number(state.liveFrames),
        dashOr(state.uploads > 0, uploadText(state.upload, m_desk.accessory().form())),
        dashOr(state.lamp >= 0, switchText(state.lamp)),
        dashOr(state.level >= 0, QString::number(state.level)),
        dashOr(state.brightness >= 0, QString::number(state.brightness)),
        dashOr(!state.animations.isEmpty(), hex(state.animations)),
        dashOr(!state.gameReport.isEmpty(),
               hex(state.gameReport.first(std::min(kShownGameBytes, state.gameReport.size())))),
    };
    for (std::size_t i = 0; i < texts.size(); ++i)
        setTextOf(m_values[i].second, texts[i]);
}

void AccessoryPanel::refreshState()
{
    const SimulatedAccessory &accessory = m_desk.accessory();
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->setChecked(kActions[i].isSet(accessory));
    const QString plugged = accessory.isPlugged() ? QObject::tr("Plugged in") : QObject::tr("Unplugged");
    setTextOf(m_state, QObject::tr("%1 · protocol faults: %2 · open handles: %3")
                           .arg(plugged)
                           .arg(accessory.protocolFaults() + accessory.handleFaults())
                           .arg(accessory.handlesOpen()));
    setTextOf(m_lastFault, QString::fromLatin1(accessory.lastFault()));
    m_lastFault->setVisible(!m_lastFault->text().isEmpty());
}

void AccessoryPanel::showMatrix(const AccessoryState &state)
{
    const int form = m_desk.accessory().form();
    const bool plugged = m_desk.accessory().isPlugged();
    const double light = state.lamp == 0 || !plugged ? 0.0
                         : state.brightness < 0      ? 1.0
                                                     : std::clamp(state.brightness / kFullBrightness, kDimmest, 1.0);
    const int frames = frameCount(state.upload, form);
    const bool plays = !state.showsLive && state.upload.isComplete() && frames > 0 && light > 0;
    std::vector<std::int32_t> cells;
    if (state.showsLive) {
        cells = state.liveCells;
    } else if (frames > 0) {
        // While it is still being uploaded the frame that came last is shown.
        const int frame = plays ? m_playFrame % frames : frames - 1;
        const QByteArray part =
            state.upload.cells.mid(static_cast<qsizetype>(frame) * matrixCells(form), matrixCells(form));
        cells.assign(part.begin(), part.end());
    }
    m_matrix->show(form, cells, light);
    if (!plays || frames == 1 || !isVisible())
        m_playTimer.stop();
    else if (!m_playTimer.isActive())
        m_playTimer.start();
}

void AccessoryPanel::showNextFrame()
{
    ++m_playFrame;
    showMatrix(m_desk.accessory().state());
}

} // namespace virtualdesk
