#include "page/Nightloom/game/pageledgame.h"

#include <array>
#include <cstdint>
#include <iterator>
#include <span>
#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "controls/captionlabel.h"
#include "controls/dress.h"
#include "controls/focusgroup.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/settingsstore.h"
#include "page/Nightloom/game/eventcard.h"
#include "page/Nightloom/parts/ownslider.h"
#include "page/Nightloom/work/livedisplay.h"
#include "page/engine/labels.h"
#include "page/engine/note.h"
#include "page/engine/numberfield.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/pagestyle.h"
#include "page/engine/plainbutton.h"
#include "usb-hid/accessorysettings.h"
#include "usb-hid/hidtransport.h"

namespace {

constexpr char kEventsKey[] = "GameVS/Events";
constexpr char kIntervalKey[] = "GameVS/PlayingInterval";
constexpr char kBrightnessKey[] = "GameVS/Brightness";
constexpr int kAllEvents = (1 << kGameEvents) - 1;
constexpr int kShortest = 1, kLongest = 60, kUsualInterval = 5; // seconds

constexpr char kEvents[] = LABEL("Events");
constexpr char kInterval[] = LABEL("Playing Interval");
constexpr char kBrightness[] = LABEL("Brightness");

// Bits, in the order in which the accessory counts the events.
constexpr Option kEventOptions[] = {
    {LABEL("Kill"), 1 << 0},    {LABEL("Double Kill"), 1 << 1}, {LABEL("Triple Kill"), 1 << 2},
    {LABEL("Assist"), 1 << 3},  {LABEL("Headshot"), 1 << 4},    {LABEL("Low Health"), 1 << 5},
    {LABEL("Victory"), 1 << 6}, {LABEL("Defeat"), 1 << 7},
};
static_assert(std::size(kEventOptions) == kGameEvents);

constexpr char kBulkPart[] = "all or none";
constexpr char kLookPart[] = "look";
constexpr char kPicturePart[] = "picture";

std::span<const PanelSpec> panels()
{
    static const Section sections[] = {CustomPart{kBulkPart},
                                       OptionGroup{kEvents, {}, kEventOptions, {}, GroupLook::Several},
                                       CustomPart{kLookPart}, CustomPart{kPicturePart}};
    static const PanelSpec all[] = {{LABEL("Game VS"),
                                     "game_vs",
                                     "pageLEDGamePanel",
                                     sections,
                                     {},
                                     LABEL("Which events of a game the matrix celebrates, how often and how bright.")}};
    return all;
}

/// A row that begins where the options do.
QHBoxLayout *makeRow(QWidget *part)
{
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins(metrics::kCaptionWidth + metrics::kGap, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    return row;
}

} // namespace

pageLEDGame::pageLEDGame(LiveDisplay &display, CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pageLEDGame"), OwnList::None, queue, parent), m_display(display)
{
    buildPanelsWhenShown(panels());
}

const SmallMatrix *pageLEDGame::picture() const
{
    return m_card ? m_card->picture() : nullptr;
}

OptionGroupRow *pageLEDGame::eventOptions() const
{
    return ownGroup(kEvents);
}

QWidget *pageLEDGame::buildPart(const char *name)
{
    if (qstrcmp(name, kBulkPart) == 0)
        return buildBulkButtons();
    return qstrcmp(name, kLookPart) == 0 ? buildLook() : buildPicture();
}

QWidget *pageLEDGame::buildBulkButtons()
{
    if (const std::optional<int> stored = storedInt(QLatin1String(kEventsKey)))
        m_events = *stored & kAllEvents;
    auto *part = new QWidget(this);
    QHBoxLayout *row = makeRow(part);
    auto *stop = new FocusGroup(part);
    for (const auto &[label, events] : {std::pair(LABEL("Select All"), kAllEvents), {LABEL("Select None"), 0}}) {
        QPushButton *button = makePlainButton(label, QLatin1String(label), texts(), part);
        connect(button, &QPushButton::clicked, this, [this, chosen = events] { choose(chosen); });
        stop->add(button);
        row->addWidget(button);
    }
    row->addStretch(1);
    return part;
}

QWidget *pageLEDGame::buildLook()
{
    m_look = {
        qBound(kShortest, storedInt(QLatin1String(kIntervalKey)).value_or(kUsualInterval), kLongest),
        qBound(0, storedInt(QLatin1String(kBrightnessKey)).value_or(kUsualLedBrightness), kHighestAccessoryValue)};
    auto *part = new QWidget(this);
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kRowGap);
    column->addWidget(makeInterval(part));
    m_brightness = makeOwnSlider(kBrightness, texts(), part, [this] { takeLook(); });
    column->addWidget(m_brightness);
    showLook();
    return part;
}

QWidget *pageLEDGame::makeInterval(QWidget *parent)
{
    auto *part = new QWidget(parent);
    auto *caption = new CaptionLabel(QString(), 15, part);
    caption->setFixedSize(metrics::kCaptionWidth, metrics::kControlHeight);
    dressText(caption, {Palette::kText});
    m_interval = makeNumberField(QStringLiteral("playingInterval"), QString(), part);
    m_interval->setRange(kShortest, kLongest);
    texts().bind(kInterval, [this, caption](const QString &text) {
        caption->setText(text);
        m_interval->setAccessibleName(text);
    });
    texts().bind(LABEL("%1 s"),
                 [this](const QString &text) { m_interval->setSuffix(text.section(QStringLiteral("%1"), 1)); });
    connect(m_interval, &QSpinBox::editingFinished, this, &pageLEDGame::takeLook);
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    row->addWidget(caption);
    row->addWidget(m_interval);
    row->addStretch(1);
    return part;
}

QWidget *pageLEDGame::buildPicture()
{
    auto *part = new QWidget(this);
    dressPage(part); // for the card
    m_card = new EventCard(part);
    QLabel *note = makeNote(part);
    texts().bind(LABEL("Point at an event to see its picture."), [note](const QString &text) { note->setText(text); });
    QHBoxLayout *row = makeRow(part);
    row->setSpacing(metrics::kBlockGap);
    row->addWidget(m_card);
    row->addWidget(note, 0, Qt::AlignTop);
    row->addStretch(1);
    connect(eventOptions(), &OptionGroupRow::optionPointed, this, [this](std::optional<int> bit) {
        for (int event = 0; bit && event < kGameEvents; ++event) {
            if (*bit == 1 << event)
                m_pointed = event;
        }
        showPicture();
    });
    texts().bind(kEvents, [this](const QString &) { showPicture(); });
    return part;
}

void pageLEDGame::showEvent(QShowEvent *event)
{
    PanelPage::showEvent(event);
    showPicture(); // the form may be another one by now
}

/// The last event that was pointed at stays.
void pageLEDGame::showPicture()
{
    m_card->tell(static_cast<GameEvent>(m_pointed), QObject::tr(kEventOptions[m_pointed].label));
}

std::optional<int> pageLEDGame::ownValue(const char *)
{
    return m_events;
}

void pageLEDGame::onButtonClicked(const char *, int bit)
{
    choose(m_events.value_or(0) ^ bit);
}

void pageLEDGame::choose(int events)
{
    m_events = events;
    std::array<bool, kGameEvents> chosen{};
    for (int event = 0; event < kGameEvents; ++event)
        chosen[static_cast<std::size_t>(event)] = (events & 1 << event) != 0;
    AccessoryReport report;
    buildGameChoice(report, chosen);
    sendReport(report);
    showStored(storeSetting(QLatin1String(kEventsKey), events), Unstored::HoldsUntilExit);
    showOwnValues();
}

void pageLEDGame::takeLook()
{
    const Look wanted{m_interval->value(), m_brightness->value()};
    if (isUpdating() || wanted == m_look)
        return;
    m_look = wanted;
    AccessoryReport report;
    buildGameSettings(report, static_cast<std::uint8_t>(wanted.interval), static_cast<std::uint8_t>(wanted.brightness));
    sendReport(report);
    const bool stored = storeSettings(
        {{QLatin1String(kIntervalKey), wanted.interval}, {QLatin1String(kBrightnessKey), wanted.brightness}});
    showStored(stored, Unstored::HoldsUntilExit);
    showLook();
}

void pageLEDGame::showLook()
{
    const Updating updating(*this);
    m_interval->setValue(m_look.interval);
    m_brightness->setValue(m_look.brightness);
}

void pageLEDGame::sendReport(const AccessoryReport &report)
{
    const LiveDisplay::Pause pause(m_display);
    const bool isTaken = writePageReport(report);
    showNotice(isTaken
                   ? QString()
                   : QObject::tr("The accessory cannot be reached. What you choose goes to it with the next change."));
}
