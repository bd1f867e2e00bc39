#include "page/Scene/pagescenesetting.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/focusgroup.h"
#include "controls/metrics.h"
#include "controls/monitorpicture.h"
#include "controls/sharedfonts.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/scenemodes.h"
#include "ddc_protocol/valuewatch.h"
#include "page/Scene/scenelocks.h"
#include "page/Scene/scenelooks.h"
#include "page/Scene/scenepicture.h"
#include "page/Scene/scenetable.h"
#include "page/Scene/workthread.h"
#include "page/engine/halfbutton.h"
#include "page/engine/labels.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/optionwords.h"
#include "page/engine/pagehead.h"
#include "page/engine/pagestyle.h"
#include "page/engine/picturestage.h"
#include "page/engine/plainbutton.h"

static constexpr QSize kLook(420, 280); // of the drawn monitor

pageSceneSetting::pageSceneSetting(SearchDeviceDlg &session, CommandQueue &queue, QWidget *parent)
    : SettingsPage(queue, parent), m_worker(new WorkThread(session, this)), m_areas(new QStackedWidget(this))
{
    setObjectName(QStringLiteral("pageSceneSetting"));
    dressPage(this);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(metrics::kBlockGap, 0, metrics::kBlockGap, 16);
    column->setSpacing(metrics::kGap);
    buildHead(column);
    m_areas->addWidget(buildDefaultArea());
    m_areas->addWidget(buildCustomArea());
    column->addWidget(m_areas, 1);
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
    describeAs(holder, QAccessible::Grouping);
    texts().bind(kHalvesLabel, [holder](const QString &text) { holder->setAccessibleName(text); });
    auto *row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    m_defaultButton = makeHalfButton(kDefaultLabel, texts(), holder);
    m_customButton = makeHalfButton(kCustomLabel, texts(), holder);
    auto *halves = new QButtonGroup(holder);
    auto *stop = new FocusGroup(holder);
    layInTrack(holder, {m_defaultButton, m_customButton});
    m_head->corner()->addWidget(holder, 0, Qt::AlignTop);
    for (QPushButton *half : {m_defaultButton, m_customButton}) {
        halves->addButton(half);
        stop->add(half);
        row->addWidget(half);
        connect(half, &QPushButton::clicked, this, &pageSceneSetting::onHalfClicked);
    }
}

QWidget *pageSceneSetting::buildDefaultArea()
{
    auto *area = new QWidget(m_areas);
    m_look = new MonitorPicture(area);
    m_look->setFixedSize(kLook);
    m_look->setPainter([](QPainter &painter, const QRectF &screen) {
        painter.drawImage(screen.topLeft(),
                          testPicture(screen.size().toSize(), sceneLook(deviceState.value(Command::SceneMode))));
    });
    m_defaultText = new QLabel(area);
    m_defaultText->setObjectName(QStringLiteral("note"));
    m_defaultText->setFont(noteFont);
    m_defaultText->setAlignment(Qt::AlignCenter);
    auto *column = new QVBoxLayout(area);
    column->setSpacing(16);
    column->addStretch(2);
    column->addWidget(m_look, 0, Qt::AlignHCenter);
    column->addWidget(m_defaultText);
    auto *own = makePlainButton(LABEL("Make it your own"), QStringLiteral("makeOwn"), texts(), area);
    connect(own, &QPushButton::clicked, m_customButton, &QPushButton::click);
    column->addWidget(own, 0, Qt::AlignHCenter);
    column->addStretch(3);
    return area;
}

QWidget *pageSceneSetting::buildCustomArea()
{
    auto *area = new QWidget(m_areas);
    auto *column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kGap);
    column->addWidget(buildControls(area), 1);
    return area;
}

QScrollArea *pageSceneSetting::buildControls(QWidget *parent)
{
    auto *scroll = new QScrollArea(parent);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    m_customArea = new QWidget(scroll->viewport());
    m_customArea->setObjectName(QStringLiteral("customArea"));
    auto *column = new QVBoxLayout(m_customArea);
    column->setContentsMargins(0, 0, metrics::kGap, 0);
    column->setSpacing(metrics::kRowGap);
    setLocks(sceneLocks());
    buildSections(sceneSections(), column);
    column->addStretch(1);
    scroll->setWidget(m_customArea);
    return scroll;
}

/// What is not in sight is neither built nor drawn.
void pageSceneSetting::refreshStage()
{
    if (!isVisible() || m_defaultView)
        return;
    if (!m_stage) {
        std::vector<OptionGroupRow *> rows = optionGroups();
        std::erase_if(rows, [](const OptionGroupRow *row) { return !OptionWords::hasWords(row->group()); });
        m_stage =
            new PictureStage(kScenePicture, std::move(rows), nullptr, m_areas->widget(1), PictureStage::Shape::Strip);
        m_areas->widget(1)->layout()->addWidget(m_stage);
    }
    m_stage->refresh();
}

void pageSceneSetting::addRules()
{
    connect(&queue().values(), &ValueWatch::changed, this, &pageSceneSetting::refreshStage);
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
    refreshStage();
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
            showModeResult(send(Command::SceneMode, wanted));
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
    showModeResult(m_worker->isTaken());
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
    showModeResult(send(Command::SceneMode, wanted->value));
}

/// The half or mode that is shown was wished and not taken: it may be wished once more.
void pageSceneSetting::showModeResult(bool ok)
{
    const int wished = deviceState.value(Command::SceneMode);
    const SceneMode *mode = sceneModeOf(wished);
    showResult(ok, mode ? QObject::tr(mode->label) : QString(), [this, wished] {
        if (wished % 2 != 0)
            chooseScene(wished);
        else
            switchHalf(false);
    });
}

void pageSceneSetting::showTitle()
{
    const SceneMode *mode = sceneModeOf(deviceState.value(Command::SceneMode));
    const QString title = mode ? QObject::tr(mode->label) : QObject::tr("Scene");
    m_head->setTitle(title);
    setAccessibleName(title);
    m_head->setHelp(m_defaultView ? QObject::tr("The picture as the factory set it.")
                                  : QObject::tr("Your own picture. Changes are sent to the monitor as you make them."));
    m_defaultText->setText(mode ? QObject::tr(mode->hint) : QString());
    m_look->setAccessibleName(QObject::tr("What it looks like"));
    m_look->setAccessibleDescription(m_defaultText->text());
    m_look->update();
}

void pageSceneSetting::showEvent(QShowEvent *event)
{
    SettingsPage::showEvent(event);
    refreshStage();
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

void pageSceneSetting::updateControlText()
{
    SettingsPage::updateControlText();
    showTitle();
    refreshStage();
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
