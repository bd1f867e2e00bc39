#include "page/Emberline/pageemberline.h"

#include <algorithm>
#include <iterator>
#include <span>

#include <QHBoxLayout>

#include "controls/captionlabel.h"
#include "controls/colorpicker.h"
#include "controls/dress.h"
#include "controls/focusgroup.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "ddc_protocol/automaticwriter.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "page/Emberline/lighttable.h"
#include "page/Emberline/lightview.h"
#include "page/Emberline/rhythmlight.h"
#include "page/engine/labels.h"
#include "page/engine/note.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/optionwords.h"

namespace {

constexpr int kCaptionPixels = 15;
constexpr int kEndsHeight = 20;
constexpr int kValueWidth = 84; // behind a groove: its value and the room for a lock

QLabel *makeCaption(QRgb colour, QWidget *parent)
{
    auto *label = new CaptionLabel(QString(), kCaptionPixels, parent);
    label->setFixedHeight(metrics::kControlHeight);
    dressText(label, {colour});
    return label;
}

} // namespace

pageEmberline::pageEmberline(CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pageEmberline"), OwnList::Shown, queue, parent)
{
    setLocks(lightLocks());
    paceSliders();
    buildPanelsWhenShown(lightPanels());
    connect(this, &SettingsPage::settingWanted, this, &pageEmberline::goToMode);
}

QWidget *pageEmberline::buildPart(const char *name)
{
    if (qstrcmp(name, kOwnColorPart) == 0)
        return buildOwnColor();
    if (qstrcmp(name, kRhythmNotePart) == 0)
        return buildRhythmNote();
    return qstrcmp(name, kTemperatureEndsPart) == 0 ? buildTemperatureEnds() : buildView();
}

/// The lamps, and beside them what the options above them do.
QWidget *pageEmberline::buildView()
{
    auto *stage = new QWidget(this);
    auto *view = new LightView(stage);
    texts().bind(LABEL("The monitor from behind, with its lamps"),
                 [view](const QString &text) { view->setAccessibleName(text); });
    view->setLook(lightLook(deviceState));
    m_views.push_back(view);
    const auto above = std::span(optionGroups()).subspan(m_followed);
    auto *words = new OptionWords({above.begin(), above.end()}, OptionWords::Shape::Column, stage);
    keepFresh(words);
    followPointing();
    auto *row = new QHBoxLayout(stage);
    row->setContentsMargins(0, metrics::kGap, 0, 0); // a block's gap from the rows, as the pictures of all pages
    row->setSpacing(metrics::kBlockGap);
    row->addWidget(view, 3);
    row->addWidget(words, 1);
    return stage;
}

QWidget *pageEmberline::buildOwnColor()
{
    m_ownColorRow = new QWidget(this);
    m_ownColor = new ColorPicker(m_ownColorRow);
    m_ownColor->setObjectName(QStringLiteral("ownLightColor"));
    QLabel *caption = makeCaption(Palette::kText, m_ownColorRow);
    caption->setFixedWidth(metrics::kCaptionWidth);
    texts().bind(LABEL("Custom Color"), [this, caption](const QString &text) {
        caption->setText(text);
        m_ownColor->setAccessibleName(text);
    });
    auto *row = new QHBoxLayout(m_ownColorRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    row->addWidget(caption);
    row->addWidget(m_ownColor);
    row->addStretch(1);
    connect(m_ownColor, &ColorPicker::sigColorChanged, this, &pageEmberline::sendOwnColor);
    return m_ownColorRow;
}

QWidget *pageEmberline::buildRhythmNote()
{
    m_rhythmNote = makeNote(this);
    m_rhythmNote->setWordWrap(true);
    showRhythm();
    return m_rhythmNote;
}

void pageEmberline::follow(const RhythmLight &rhythm)
{
    m_rhythm = &rhythm;
    connect(&rhythm, &RhythmLight::stateChanged, this, &pageEmberline::showRhythm);
    showRhythm();
}

void pageEmberline::showRhythm()
{
    if (!m_rhythmNote)
        return;
    const auto state = m_rhythm ? m_rhythm->state() : RhythmLight::State::Off;
    m_rhythmNote->setText(state == RhythmLight::State::UsedUp ? dayIsUsedUpText()
                          : state == RhythmLight::State::Holds
                              ? QObject::tr("Nothing can be heard or seen: the lamps keep their last colour.")
                              : QObject::tr("A colour that can be seen to change is sent, at most one a second."));
}

/// What the two ends of the slider above are called.
QWidget *pageEmberline::buildTemperatureEnds()
{
    auto *ends = new QWidget(this);
    auto *row = new QHBoxLayout(ends);
    row->setContentsMargins(metrics::kCaptionWidth + metrics::kGap, 0, kValueWidth, 0);
    for (const char *label : {LABEL("Warm"), LABEL("Cold")}) {
        QLabel *caption = makeCaption(Palette::kDim, ends);
        caption->setFixedHeight(kEndsHeight); // which keeps it close to its slider
        texts().bind(label, [caption](const QString &text) { caption->setText(text); });
        if (row->count() != 0)
            row->addStretch(1);
        row->addWidget(caption);
    }
    return ends;
}

/// Three values make one colour: what becomes of them is told as one.
void pageEmberline::sendOwnColor(const QColor &color)
{
    int taken = 0;
    for (const auto &[command, part] : {std::pair(Command::LightRed, color.red()),
                                        {Command::LightGreen, color.green()},
                                        {Command::LightBlue, color.blue()}})
        taken += send(command, part) ? 1 : 0;
    const auto again = [this, color] { sendOwnColor(color); };
    if (taken == 1 || taken == 2)
        showNotice(QObject::tr("The monitor took only a part of the colour: its lamps now show another one."), again);
    else
        showResult(taken == 3, QObject::tr("Custom Color"), again);
    showLight();
}

void pageEmberline::showLight()
{
    const LightLook look = lightLook(deviceState, m_preview);
    for (LightView *view : m_views)
        view->setLook(look);
    if (!m_ownColorRow)
        return;
    m_ownColorRow->setVisible(deviceState.value(Command::LightColor) == kOwnLightColor);
    if (const std::optional<QRgb> color = ownLightColor(deviceState))
        m_ownColor->setColor(QColor(*color));
    else
        m_ownColor->setUnknown();
}

void pageEmberline::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    showLight();
}

void pageEmberline::updateControlText()
{
    PanelPage::updateControlText();
    showRhythm();
}

/// What is pointed at is played before it is chosen, and nothing is sent.
void pageEmberline::followPointing()
{
    for (; m_followed < optionGroups().size(); ++m_followed) {
        const OptionGroupRow *row = optionGroups()[m_followed];
        connect(row, &OptionGroupRow::optionPointed, this, [this, row](std::optional<int> value) {
            m_preview.reset();
            if (value)
                m_preview = LightPreview{*row->group().command, *value};
            showLight();
        });
    }
}

void pageEmberline::followValue(Command command)
{
    const auto shown = lookCommands();
    if (std::ranges::find(shown, command) != shown.end())
        showLight();
}

/// What the picture shows is asked for behind what stands beside it.
void pageEmberline::reconcile()
{
    PanelPage::reconcile();
    if (!isVisible())
        return;
    std::vector<Command> looks;
    std::ranges::copy_if(lookCommands(), std::back_inserter(looks),
                         [](Command look) { return !deviceState.isFresh(look); });
    queue().askAll(looks, {});
}

void pageEmberline::goToMode(Command command)
{
    if (command != Command::LightMode)
        return;
    showPanel(kLightModePanel);
    if (const OptionGroupRow *row = optionGroup(command); row && !row->buttons().empty()) {
        QPushButton *chosen = row->buttonOf(deviceState.value(command));
        focusInSight(chosen ? chosen : row->buttons().front(), Qt::ShortcutFocusReason);
    }
}
