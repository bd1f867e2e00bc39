#include "tray/traypanel.h"

#include <algorithm>

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QStyleOption>
#include <QToolButton>
#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/captionlabel.h"
#include "controls/captions.h"
#include "controls/focusring.h"
#include "controls/metrics.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/settingsstore.h"
#include "page/engine/labels.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/pagestyle.h"
#include "page/engine/plainbutton.h"
#include "page/engine/scrollarea.h"
#include "page/engine/storenotice.h"
#include "tray/traypanelfooter.h"
#include "tray/traypanelheader.h"
#include "tray/trayscene.h"

namespace {

constexpr int kWidth = 368;

} // namespace

TrayPanel::TrayPanel(CommandQueue &queue) : SettingsPage(queue), m_choices(deviceState)
{
    askWhenShown();
    paceSliders();
    build();
    showChosen();
    updateControlText();
}

void TrayPanel::build()
{
    setObjectName(QStringLiteral("TrayPanel"));
    describeAs(this, QAccessible::Dialog);
    setWindowTitle(QStringLiteral("QUORVEL"));
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    dressPage(this);
    setFixedWidth(kWidth);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(metrics::kInset, metrics::kInset, metrics::kInset, metrics::kInset);
    column->setSpacing(metrics::kGap);
    m_header = new TrayPanelHeader(column, this);
    m_scroll = makeScrollArea(this);
    fillScrollArea(m_scroll, buildBody());
    column->addWidget(m_scroll);
    m_footer = new TrayPanelFooter(m_choices, column, this);
    connect(m_footer, &TrayPanelFooter::chosen, this, &TrayPanel::choose);
}

QWidget *TrayPanel::buildBody()
{
    m_body = new QWidget(this);
    m_body->setObjectName(QStringLiteral("customArea"));
    auto *column = new QVBoxLayout(m_body);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kGap);
    m_scene = new TrayScene(texts(), column, m_body);
    connect(m_scene, &TrayScene::sceneChosen, this, &TrayPanel::sceneChosen);
    connect(m_scene, &TrayScene::halfChosen, this, &TrayPanel::halfChosen);
    connect(m_scene, &TrayScene::sceneChosen, this, &TrayPanel::showScene);
    connect(m_scene, &TrayScene::halfChosen, this, &TrayPanel::showScene);
    m_places = new QVBoxLayout;
    m_places->setSpacing(metrics::kRowGap);
    column->addSpacing(metrics::kGap);
    column->addLayout(m_places);
    m_arrange = makePlainButton(LABEL("Arrange the window"), QStringLiteral("arrangeWindow"), texts(), m_body);
    connect(m_arrange, &QPushButton::clicked, this, &TrayPanel::zonesWanted);
    column->addSpacing(metrics::kGap);
    column->addWidget(m_arrange);
    column->addStretch(1);
    return m_body;
}

TrayPanel::Row &TrayPanel::rowOf(const TrayControl &control)
{
    if (const auto found = m_rows.find(control.command); found != m_rows.end())
        return found->second;
    auto *holder = new QWidget(m_body);
    auto *column = new QVBoxLayout(holder);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    buildSections({&control.section, 1}, column);
    if (OptionGroupRow *options = optionGroup(control.command))
        options->makeNarrow(kTrayCaptionWidth);
    else
        sliders().back()->setWheelSteps(true);
    return m_rows.insert({control.command, {control, holder, control.usual}}).first->second;
}

void TrayPanel::showChosen()
{
    while (m_places->count() > 0) {
        const std::unique_ptr<QLayoutItem> item(m_places->takeAt(0));
        item->widget()->hide();
    }
    for (const TrayControl *control : m_choices.shown()) {
        QWidget *holder = rowOf(*control).holder;
        m_places->addWidget(holder);
        holder->show();
    }
    shrinkCaptions();
    orderKeyboard();
    updateInterfaceData();
}

void TrayPanel::shrinkCaptions()
{
    QList<CaptionLabel *> captions;
    for (int i = 0; i < m_places->count(); ++i)
        captions += m_places->itemAt(i)->widget()->findChildren<CaptionLabel *>();
    shrinkTogether(captions);
}

/// From the first control to the last as they stand, whenever they were made.
void TrayPanel::orderKeyboard()
{
    QWidget *before = m_scene->last();
    const auto append = [&before](QWidget *next) {
        setTabOrder(before, next);
        before = next;
    };
    for (int i = 0; i < m_places->count(); ++i) {
        for (QWidget *widget : m_places->itemAt(i)->widget()->findChildren<QWidget *>()) {
            if (widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy())
                append(widget);
        }
    }
    append(m_arrange);
    append(m_footer->chooser());
}

void TrayPanel::choose(std::size_t place, Command command)
{
    const bool stored = m_choices.choose(place, command);
    m_footer->showHint(stored ? QString() : storeNotice(Unstored::HoldsUntilExit, QLatin1String(kConfigFile)));
    showChosen();
    reconcile();
    Q_EMIT contentChanged();
}

void TrayPanel::showStatus(const MonitorStatus &status)
{
    m_header->showStatus(status);
    showScene();
}

void TrayPanel::setUsable(bool usable)
{
    if (usable == m_body->isEnabled())
        return;
    if (!usable)
        m_focusBefore = focusWidget();
    m_body->setEnabled(usable);
    m_footer->chooser()->setEnabled(usable);
    if (usable && m_focusBefore) // disabling takes the keyboard's place away
        m_focusBefore->setFocus();
}

void TrayPanel::begin()
{
    m_scene->fill(); // the model may be another one than it was
    showScene();
    m_scene->begin();
}

void TrayPanel::fitInto(int height)
{
    const int inside = width() - layout()->contentsMargins().left() - layout()->contentsMargins().right();
    const int wanted = m_body->layout()->totalHeightForWidth(inside);
    m_scroll->setFixedHeight(wanted);
    const int whole = layout()->totalHeightForWidth(width());
    m_scroll->setFixedHeight(std::max(wanted - std::max(whole - height, 0), 0));
    // A bar that came for a moment would stay: it takes the room in which a row of two options is one line.
    m_scroll->setVerticalScrollBarPolicy(whole > height ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setFixedHeight(std::min(whole, height));
    layout()->activate();
}

void TrayPanel::showScene()
{
    const Mark mark = markOf(Command::SceneMode);
    m_scene->show(mark);
    m_header->showScene(m_scene->words(), mark);
    setAccessibleName(m_header->text());
}

/// The first option and one other: the one that is on, or was on last.
void TrayPanel::showTwoOptions(Row &row)
{
    OptionGroupRow *options = optionGroup(row.control.command);
    if (!options)
        return;
    const int off = options->group().options.front().value;
    const int value = deviceState.value(row.control.command);
    if (deviceState.isKnown(row.control.command) && value != off && options->buttonOf(value))
        row.lastOn = value;
    for (const Option &option : options->group().options)
        options->buttonOf(option.value)->setVisible(option.value == off || option.value == row.lastOn);
}

void TrayPanel::updateInterfaceData()
{
    SettingsPage::updateInterfaceData();
    for (auto &[command, row] : m_rows)
        showTwoOptions(row);
    showScene();
}

void TrayPanel::updateControlText()
{
    SettingsPage::updateControlText();
    shrinkCaptions();
    m_footer->updateControlText();
    m_scene->fill();
    showScene();
}

void TrayPanel::followValue(Command command)
{
    if (command == Command::SceneMode)
        return updateInterfaceData();
    if (const auto row = m_rows.find(command); row != m_rows.end())
        showTwoOptions(row->second);
}

void TrayPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeWanted();
    else if (!pressFocused(event, this))
        SettingsPage::keyPressEvent(event);
}

/// A translucent window has no background of its own.
void TrayPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
