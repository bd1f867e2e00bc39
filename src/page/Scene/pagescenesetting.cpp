#include "page/Scene/pagescenesetting.h"

#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "controls/labelled.h"
#include "controls/metrics.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/scenemodes.h"
#include "ddc_protocol/valuewatch.h"
#include "page/Scene/customhalf.h"
#include "page/Scene/factoryhalf.h"
#include "page/Scene/scenelocks.h"
#include "page/Scene/scenetable.h"
#include "page/Scene/workthread.h"
#include "page/engine/halfbutton.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/pagehead.h"
#include "page/engine/pagestyle.h"

pageSceneSetting::pageSceneSetting(SearchDeviceDlg &session, CommandQueue &queue, QWidget *parent)
    : SettingsPage(queue, parent), m_worker(new WorkThread(session, this)), m_areas(new QStackedWidget(this))
{
    setObjectName(QStringLiteral("pageSceneSetting"));
    layGround(this);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(metrics::kBlockGap, 0, metrics::kBlockGap, metrics::kPageBottom);
    column->setSpacing(metrics::kGap);
    buildHead(column);
    buildHalves(column);
    addUndoBar(column);

    addRules();
    connect(m_worker, &WorkThread::ended, this, &pageSceneSetting::onWorkFinished);
    showHalf(deviceState.value(Command::SceneMode) % 2 != 0);
    updateInterfaceData();
}

pageSceneSetting::~pageSceneSetting()
{
    m_worker->wait();
}

void pageSceneSetting::buildHead(QVBoxLayout *column)
{
    m_head = addHead(column);
    auto *holder = new QWidget(m_head);
    m_defaultButton = makeHalfButton(kDefaultLabel, texts(), holder);
    m_customButton = makeHalfButton(kCustomLabel, texts(), holder);
    joinHalves(holder, m_defaultButton, m_customButton, texts())->setSpacing(0);
    layInTrack(holder, {m_defaultButton, m_customButton});
    m_head->corner()->addWidget(holder, 0, Qt::AlignTop);
    for (QPushButton *half : {m_defaultButton, m_customButton})
        connect(half, &QPushButton::clicked, this, &pageSceneSetting::onHalfClicked);
}

void pageSceneSetting::buildHalves(QVBoxLayout *column)
{
    m_factoryHalf = new FactoryHalf(texts(), m_areas);
    connect(m_factoryHalf->ownButton(), &QPushButton::clicked, m_customButton, &QPushButton::click);
    m_customHalf = new CustomHalf(m_areas);
    setLocks(sceneLocks());
    buildSections(sceneSections(), m_customHalf->controls());
    m_customHalf->controls()->addStretch(1);
    m_areas->addWidget(m_factoryHalf);
    m_areas->addWidget(m_customHalf);
    column->addWidget(m_areas, 1);
}

/// What is not in sight is neither built nor drawn.
void pageSceneSetting::refreshPicture()
{
    if (!isVisible() || m_defaultView)
        return;
    m_customHalf->refreshPicture(optionGroups());
}

void pageSceneSetting::addRules()
{
    connect(&queue().values(), &ValueWatch::changed, this, &pageSceneSetting::refreshPicture);
    beforeSending(Command::ColorTemperature, [this](int value) { fillUserColours(value); });
    for (int channel = 0; channel < 3; ++channel) {
        chooseCommand(kUserColourSliders[channel], [this, channel]() -> std::optional<Command> {
            if (m_userColourSlot == 0)
                return {};
            return kUserColours[m_userColourSlot - 1][channel];
        });
    }
}

void pageSceneSetting::onHalfClicked()
{
    const QString text = qobject_cast<QPushButton *>(QObject::sender())->text();
    if (text == QObject::tr(kDefaultLabel))
        switchHalf(true);
    else if (text == QObject::tr(kCustomLabel))
        switchHalf(false);
}

void pageSceneSetting::showHalf(bool defaultView)
{
    m_defaultView = defaultView;
    m_defaultButton->setChecked(defaultView);
    m_customButton->setChecked(!defaultView);
    m_areas->setCurrentIndex(defaultView ? 0 : 1);
    showTitle();
    refreshPicture();
    Q_EMIT viewShown(defaultView);
}

void pageSceneSetting::switchHalf(bool defaultView)
{
    const int value = deviceState.value(Command::SceneMode);
    if (value < 1) { // no mode is known, so there is no other half to go to
        showHalf(m_defaultView);
        return;
    }
    const bool isOdd = value % 2 != 0;
    const int wanted = defaultView == isOdd ? value : defaultView ? value - 1 : value + 1;
    const bool changed = wanted != deviceState.lastSceneModeSent;
    const bool blockValid = deviceState.sceneBlockValid();
    if (changed) {
        queue().drain(); // a drag's last value belongs to the half that is left
        deviceState.wish(Command::SceneMode, wanted);
    }
    showHalf(defaultView);
    if (blockValid) {
        if (changed)
            showModeResult(wanted, send(Command::SceneMode, wanted));
        fillCustomArea();
        return;
    }
    Q_EMIT modeChangeBegins();
    if (changed)
        m_worker->begin(wanted);
    else
        Q_EMIT modeChangeEnded();
}

/// The snapshot knows what became of the mode: keys, rules and a reconnection may have changed it meanwhile.
void pageSceneSetting::onWorkFinished()
{
    updateInterfaceData();
    showModeResult(m_worker->mode(), m_worker->isTaken());
    Q_EMIT modeChangeEnded();
}

void pageSceneSetting::chooseScene(int value)
{
    const SceneMode *wanted = sceneModeOf(value);
    const bool isOn = wanted == sceneModeOf(deviceState.value(Command::SceneMode));
    if (!wanted || (isOn && deviceState.state(Command::SceneMode) != ValueState::Refused))
        return;
    queue().drain(); // a drag's last value belongs to the mode that is left
    deviceState.wish(Command::SceneMode, wanted->value);
    showHalf(true);
    showModeResult(wanted->value, send(Command::SceneMode, wanted->value));
}

/// What was wished is told and may be wished once more, whichever mode the monitor has told since.
void pageSceneSetting::showModeResult(int wished, bool ok)
{
    const SceneMode *mode = sceneModeOf(wished);
    const auto isHalf = [mode] { return mode == sceneModeOf(deviceState.confirmed(Command::SceneMode).value_or(0)); };
    const QString name = mode ? QObject::tr(mode->label) : QString();
    const char *half = wished % 2 != 0 ? kDefaultLabel : kCustomLabel;
    showResult(ok, isHalf() ? labelled(name, QObject::tr(half).trimmed()) : name, [this, wished, isHalf] {
        if (isHalf())
            switchHalf(wished % 2 != 0);
        else
            chooseScene(wished);
    });
}

void pageSceneSetting::showTitle()
{
    const SceneMode *mode = sceneModeOf(deviceState.value(Command::SceneMode));
    m_head->setTitle(mode ? QObject::tr(mode->label) : QObject::tr("Scene"));
    m_head->setHelp(m_defaultView ? QObject::tr("The picture as the factory set it.")
                                  : QObject::tr("Your own picture. Changes are sent to the monitor as you make them."));
    m_factoryHalf->showMode(mode);
}

void pageSceneSetting::showEvent(QShowEvent *event)
{
    SettingsPage::showEvent(event);
    refreshPicture();
}

/// Whoever comes back, or looks at another monitor, begins anew.
void pageSceneSetting::hideEvent(QHideEvent *event)
{
    SettingsPage::hideEvent(event);
    showResult(true);
}

void pageSceneSetting::followValue(Command command)
{
    if (command == Command::SceneMode) {
        if (!deviceState.isKnown(Command::SceneMode))
            showResult(true);
        return updateInterfaceData(); // another half may have come into sight
    }
    const bool isColour = command == Command::ColorTemperature || command == Command::User1Red;
    if (showsValues() && isColour && deviceState.isKnown(Command::ColorTemperature))
        fillUserColours(deviceState.value(Command::ColorTemperature));
}

void pageSceneSetting::updateInterfaceData()
{
    showHalf(deviceState.value(Command::SceneMode) % 2 != 0);
    fillCustomArea();
}

void pageSceneSetting::fillCustomArea()
{
    if (!showsValues())
        return;
    const Updating updating(*this);
    m_filled = m_filled || deviceState.sceneBlockValid();
    SettingsPage::updateInterfaceData();
    if (deviceState.isKnown(Command::ColorTemperature))
        fillUserColours(deviceState.value(Command::ColorTemperature));
    if (OptionGroupRow *dimming = optionGroup(Command::LocalDimming))
        dimming->setVisible(deviceState.has(dimming->group().needs) &&
                            deviceState.value(Command::SceneMode) != kMpcsFpsCustom);
    update();
}

void pageSceneSetting::fillUserColours(int temperature)
{
    const Updating updating(*this);
    const int slot = userSlot(temperature);
    for (int channel = 0; slot != m_userColourSlot && channel < 3; ++channel)
        slider(kUserColourSliders[channel])->slider()->loseHold(); // it stands for another mixture now
    m_userColourSlot = slot;
    for (int channel = 0; channel < 3; ++channel) {
        SliderWidget *colour = slider(kUserColourSliders[channel]);
        if (colour->isHeld())
            continue;
        colour->setValue(0);
        if (m_userColourSlot != 0)
            fillSlider(colour, kUserColours[m_userColourSlot - 1][channel]);
    }
}

void pageSceneSetting::updateControlText()
{
    SettingsPage::updateControlText();
    showTitle();
    refreshPicture();
}

void pageSceneSetting::reconcile()
{
    const int mode = deviceState.value(Command::SceneMode);
    if (isVisible() && !deviceState.isFresh(Command::SceneMode))
        queue().ask(Command::SceneMode);
    const bool isOn =
        mode % 2 == 0 && deviceState.isKnown(Command::SceneMode) && deviceState.confirmed(Command::SceneMode) == mode;
    if (isVisible() && !m_defaultView && isOn && !deviceState.isSceneBlockFresh())
        queue().askBlock(mode);
}
