#include "tray/traypanel.h"

#include <algorithm>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QStandardItemModel>
#include <QStyleOption>
#include <QToolButton>
#include <QVBoxLayout>

#include "controls/captionlabel.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/scenemodes.h"
#include "ddc_protocol/settingsstore.h"
#include "navigation.h"
#include "page/engine/halfbutton.h"
#include "page/engine/listed.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/storenotice.h"

/// A line that cannot be chosen.
static void addHeading(QComboBox *box, const char *label)
{
    box->addItem(QObject::tr(label));
    auto *model = qobject_cast<QStandardItemModel *>(box->model());
    model->item(box->count() - 1)->setEnabled(false);
}

TrayPanel::TrayPanel(CommandQueue &queue)
    : SettingsPage(queue), m_choices(trayChoices(deviceState)), m_chosen(storedTrayChoices(m_choices))
{
    askWhenShown();
    paceSliders();
    build();
    showChosen();
    updateControlText();
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
        options->setCaptionWidth(kTrayCaptionWidth);
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
    for (const TrayControl &control : trayFixedControls(deviceState)) {
        m_places->addWidget(rowOf(control).holder);
        rowOf(control).holder->show();
    }
    for (const Command command : m_chosen) {
        const auto choice = std::find_if(m_choices.begin(), m_choices.end(),
                                         [command](const TrayControl &control) { return control.command == command; });
        m_places->addWidget(rowOf(*choice).holder);
        rowOf(*choice).holder->show();
    }
    orderKeyboard();
    updateInterfaceData();
}

/// From the first control to the last as they stand, whenever they were made.
void TrayPanel::orderKeyboard()
{
    QWidget *before = m_custom;
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
    append(m_chooser);
}

void TrayPanel::choose(std::size_t place, Command command)
{
    const auto elsewhere = std::find(m_chosen.begin(), m_chosen.end(), command);
    if (elsewhere != m_chosen.end())
        *elsewhere = m_chosen[place];
    m_chosen[place] = command;
    const bool stored = storeTrayChoices(m_choices, m_chosen);
    showHint(stored ? QString() : storeNotice(Unstored::HoldsUntilExit, QLatin1String(kConfigFile)));
    showChosen();
    reconcile();
    Q_EMIT contentChanged();
}

void TrayPanel::showStatus(const MonitorStatus &status)
{
    m_status = status;
    m_name->setText(status.name.isEmpty() ? QStringLiteral("–") : status.name);
    m_dot->setAccessibleName(status.state);
    m_dot->setStyleSheet(status.isGood ? QStringLiteral("color: #00ff71;") : QStringLiteral("color: #da676d;"));
    fillScene();
}

void TrayPanel::setUsable(bool usable)
{
    if (usable == m_body->isEnabled())
        return;
    if (!usable)
        m_focusBefore = focusWidget();
    m_body->setEnabled(usable);
    m_chooser->setEnabled(usable);
    if (usable && m_focusBefore) // disabling takes the keyboard's place away
        m_focusBefore->setFocus();
}

void TrayPanel::begin()
{
    fillScenes(); // the model may be another one than it was
    fillScene();
    m_scene->setFocus(Qt::ActiveWindowFocusReason);
}

void TrayPanel::fitInto(int height)
{
    const int inside = width() - layout()->contentsMargins().left() - layout()->contentsMargins().right();
    const int wanted = m_body->layout()->totalHeightForWidth(inside);
    m_scroll->setFixedHeight(wanted);
    const int whole = layout()->totalHeightForWidth(width());
    m_scroll->setFixedHeight(std::max(wanted - std::max(whole - height, 0), 0));
    setFixedHeight(std::min(whole, height));
    layout()->activate();
}

void TrayPanel::fillScenes()
{
    m_scene->clear();
    for (int family = 0; family < kSceneFamilies; ++family) {
        const auto modes = sceneModesOf(static_cast<SceneFamily>(family), deviceState);
        if (!modes.empty())
            addHeading(m_scene, navigationFamilies()[static_cast<std::size_t>(family)].label);
        for (const SceneMode *mode : modes)
            m_scene->addItem(QObject::tr(mode->label), mode->value);
    }
}

void TrayPanel::fillScene()
{
    const Mark mark = markOf(Command::SceneMode);
    const int value = deviceState.value(Command::SceneMode);
    const SceneMode *mode = mark != Mark::Unknown ? sceneModeOf(value) : nullptr;
    m_scene->setCurrentIndex(mode ? m_scene->findData(mode->value) : -1);
    QPushButton *half = value % 2 != 0 ? m_default : m_custom;
    checkOnly(*m_halves, mode ? half : nullptr);
    const QString scene = mode ? listed({QObject::tr(mode->label), half->text()}) : QStringLiteral("–");
    m_state->setText(QStringLiteral("%1 · %2").arg(m_status.state, scene));
    m_sceneMark->setMark(mark);
    m_scene->setAccessibleDescription(markText(mark));
    setAccessibleName(QStringLiteral("%1 %2").arg(m_name->text(), m_state->text()));
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
    fillScene();
}

void TrayPanel::updateControlText()
{
    SettingsPage::updateControlText();
    m_scene->setAccessibleName(QObject::tr("Scene"));
    m_chooser->setAccessibleName(QObject::tr("Choose the controls"));
    m_chooser->setToolTip(QObject::tr("Choose the controls"));
    showHint();
    fillScenes();
    fillScene();
}

void TrayPanel::showHint(const QString &notice)
{
    m_hint->setStyleSheet(notice.isEmpty() ? QString() : QStringLiteral("color: #da676d;"));
    m_hint->setText(notice.isEmpty() ? QObject::tr("Wheel: one step · Tab, arrows · Esc closes") : notice);
}

void TrayPanel::followValue(Command command)
{
    if (command == Command::SceneMode)
        return updateInterfaceData();
    if (const auto row = m_rows.find(command); row != m_rows.end())
        showTwoOptions(row->second);
}

/// Arrows open the list of modes: a held key must not send the monitor through all of them.
bool TrayPanel::eventFilter(QObject *watched, QEvent *event)
{
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key() : 0;
    if (watched != m_scene || (key != Qt::Key_Up && key != Qt::Key_Down))
        return SettingsPage::eventFilter(watched, event);
    m_scene->showPopup();
    return true;
}

void TrayPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeWanted();
    else
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
