#include "page/Nightloom/animate/pageledanimate.h"

#include <array>
#include <cstdint>
#include <iterator>
#include <span>
#include <utility>

#include <QHBoxLayout>

#include "controls/metrics.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/settingsstore.h"
#include "page/Nightloom/animate/memorycard.h"
#include "page/Nightloom/animate/memorycommands.h"
#include "page/Nightloom/work/livedisplay.h"
#include "page/engine/labels.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/pagestyle.h"
#include "usb-hid/hidtransport.h"

namespace {

constexpr char kChosenKey[] = "NightLoom/PlayedAnimations";
constexpr std::size_t kMemories = std::size(kAnimationMemories);
constexpr int kAllMemories = (1 << kMemories) - 1;

constexpr char kPlayed[] = LABEL("Played");
constexpr char kCards[] = "memories";

std::span<const PanelSpec> panels()
{
    static const auto memories = [] {
        std::array<Option, kMemories> options{};
        for (std::size_t i = 0; i < kMemories; ++i)
            options[i] = {kAnimationMemories[i].label, 1 << i};
        return options;
    }();
    static const Section sections[] = {OptionGroup{kPlayed, {}, memories, {}, GroupLook::Several}, CustomPart{kCards}};
    static const PanelSpec all[] = {{LABEL("Animate Mode"),
                                     "led_animate",
                                     "pageLEDAnimatePanel",
                                     sections,
                                     {},
                                     LABEL("Which of the uploaded animations the matrix plays.")}};
    return all;
}

} // namespace

pageLEDAnimate::pageLEDAnimate(AccessoryCheck ensureConnected, LiveDisplay &display, CommandQueue &queue,
                               QWidget *parent)
    : PanelPage(QStringLiteral("pageLEDAnimate"), OwnList::None, queue, parent),
      m_ensureConnected(std::move(ensureConnected)), m_display(display)
{
    buildPanelsWhenShown(panels());
}

OptionGroupRow *pageLEDAnimate::memoryOptions() const
{
    return ownGroup(kPlayed);
}

/// The one part that the table names: the cards.
QWidget *pageLEDAnimate::buildPart(const char *)
{
    if (const std::optional<int> stored = storedInt(QLatin1String(kChosenKey)))
        m_chosen = *stored & kAllMemories;
    auto *part = new QWidget(this);
    dressPage(part); // for the cards
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    for (const AnimationMemory &memory : kAnimationMemories) {
        m_cards.push_back(new MemoryCard(memory, texts(), part));
        row->addWidget(m_cards.back(), 1);
    }
    showPlayed();
    return part;
}

std::optional<int> pageLEDAnimate::ownValue(const char *)
{
    return m_chosen;
}

void pageLEDAnimate::onButtonClicked(const char *, int bit)
{
    if (!m_ensureConnected())
        return;
    m_chosen = m_chosen.value_or(0) ^ bit;
    sendChoice();
    showStored(storeSetting(QLatin1String(kChosenKey), *m_chosen), Unstored::HoldsUntilExit);
    for (std::size_t i = 0; i < kMemories; ++i) {
        if (bit == 1 << i)
            queue().post(kMemoryCommands[i], (*m_chosen & bit) != 0 ? 1 : 0);
    }
    showPlayed();
}

void pageLEDAnimate::sendChoice()
{
    std::array<std::uint8_t, kMemories> numbers{};
    std::size_t count = 0;
    for (std::size_t i = 0; i < kMemories; ++i) {
        if ((*m_chosen & 1 << i) != 0)
            numbers[count++] = kAnimationMemories[i].number;
    }
    AccessoryReport report;
    buildAnimationChoice(report, std::span(numbers).first(count));
    const LiveDisplay::Pause pause(m_display);
    writePageReport(report);
}

void pageLEDAnimate::showPlayed()
{
    for (std::size_t i = 0; i < m_cards.size(); ++i)
        m_cards[i]->setPlayed((m_chosen.value_or(0) & 1 << i) != 0);
}
