#include "page/Nightloom/system/pageledsystem.h"

#include <QVBoxLayout>

#include "controls/metrics.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/settingsstore.h"
#include "page/Nightloom/parts/ownslider.h"
#include "page/Nightloom/system/matrixformsetting.h"
#include "page/Nightloom/work/livedisplay.h"
#include "page/engine/commandrows.h"
#include "page/engine/commonoptions.h"
#include "page/engine/optiongrouprow.h"
#include "usb-hid/accessorysettings.h"
#include "usb-hid/hidtransport.h"

namespace {

// What they are for.
constexpr char kSystemHelp[] =
    LABEL("How the LED matrix behind the monitor shines. Matrix Lamp and Clock: Close = off, Open = on.");
constexpr char kFormHelp[] = LABEL("The form of the matrix that you have: what is shown is drawn for it.");
constexpr char kClockHelp[] = LABEL("The matrix shows the time of day. Close = off, Open = on.");

constexpr char kSliders[] = "sliders";
constexpr char kLevel[] = LABEL("Playback Level");
constexpr char kBrightness[] = LABEL("Brightness");
constexpr char kLamp[] = LABEL("Matrix Lamp");
constexpr char kForm[] = LABEL("Matrix Form");
constexpr char kClock[] = LABEL("Clock");

std::span<const Option> matrixOptions()
{
    static const std::vector<Option> options = [] {
        std::vector<Option> list;
        for (const MatrixForm &form : matrixForms())
            list.push_back({form.label, form.number});
        return list;
    }();
    return options;
}

std::span<const PanelSpec> panels()
{
    static const Section settings[] = {CustomPart{kSliders}, ownSwitch(kLamp, kCloseOpen),
                                       OptionGroup{kForm, {}, matrixOptions(), {}, GroupLook::Buttons, kFormHelp},
                                       ownSwitch(kClock, kCloseOpen, kClockHelp)};
    static const PanelSpec all[] = {
        {LABEL("System Settings"), "led_system", "pageLEDSystemPanel", settings, {}, kSystemHelp}};
    return all;
}

int stored(const char *key, int usual)
{
    return storedInt(QLatin1String(key)).value_or(usual);
}

} // namespace

pageLEDSystem::pageLEDSystem(AccessoryCheck ensureConnected, LiveDisplay &display, CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pageLEDSystem"), OwnList::None, queue, parent),
      m_ensureConnected(std::move(ensureConnected)), m_display(display)
{
    buildPanels(panels());
    connect(&m_display, &LiveDisplay::changed, this, &pageLEDSystem::showWhatIsSet);
}

OptionGroupRow *pageLEDSystem::lampOptions() const
{
    return ownGroup(kLamp);
}

OptionGroupRow *pageLEDSystem::formOptions() const
{
    return ownGroup(kForm);
}

OptionGroupRow *pageLEDSystem::clockOptions() const
{
    return ownGroup(kClock);
}

/// The one part that the table names: the sliders.
QWidget *pageLEDSystem::buildPart(const char *)
{
    auto *part = new QWidget(this);
    m_level = makeSlider(kLevel, Command::AccessoryLevel, part);
    m_brightness = makeSlider(kBrightness, Command::AccessoryBrightness, part);
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kRowGap);
    column->addWidget(m_level);
    column->addWidget(m_brightness);
    return part;
}

/// A slider of the accessory's, whose value the monitor is told as well.
SliderWidget *pageLEDSystem::makeSlider(const char *name, Command command, QWidget *parent)
{
    return makeOwnSlider(name, texts(), parent, [this, name, command] {
        if (!isUpdating())
            onSliderReleased(qstrcmp(name, kLevel) == 0 ? m_level : m_brightness, command);
    });
}

void pageLEDSystem::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    showWhatIsSet();
}

void pageLEDSystem::showWhatIsSet()
{
    const Updating updating(*this);
    m_level->setValue(m_unstored ? m_unstored->first : stored(kPlaybackLevelKey, kUsualPlaybackLevel));
    m_brightness->setValue(m_unstored ? m_unstored->second : stored(kLedBrightnessKey, kUsualLedBrightness));
    showOwnValues();
}

std::optional<int> pageLEDSystem::ownValue(const char *label)
{
    if (qstrcmp(label, kLamp) == 0)
        return m_lampSet;
    if (qstrcmp(label, kClock) == 0)
        return m_display.shown() == LiveDisplay::Show::Clock ? 1 : 0;
    const MatrixForm *form = accessoryLink.form;
    return form ? std::optional(form->number) : std::nullopt;
}

void pageLEDSystem::onButtonClicked(const char *label, int value)
{
    if (qstrcmp(label, kLamp) == 0)
        switchLamp(value);
    else if (qstrcmp(label, kClock) == 0)
        switchClock(value);
    else
        chooseForm(value);
    showWhatIsSet();
}

void pageLEDSystem::onSliderReleased(SliderWidget *moved, Command command)
{
    showNotice({});
    const int level = m_level->value(); // before the check, whose box may have the page filled again
    const int brightness = m_brightness->value();
    const int value = moved->value();
    if (m_ensureConnected()) {
        AccessoryReport report;
        buildSystemSettings(report, static_cast<std::uint8_t>(level), static_cast<std::uint8_t>(brightness));
        {
            const LiveDisplay::Pause pause(m_display);
            writePageReport(report);
        }
        const bool stored =
            storeSettings({{QLatin1String(kPlaybackLevelKey), level}, {QLatin1String(kLedBrightnessKey), brightness}});
        m_unstored = stored ? std::nullopt : std::optional(std::pair(level, brightness));
        showStored(stored, Unstored::HoldsUntilExit);
        queue().post(command, value);
    }
    showWhatIsSet();
}

void pageLEDSystem::switchLamp(int value)
{
    if (!m_ensureConnected())
        return;
    const LiveDisplay::Pause pause(m_display);
    m_display.show(LiveDisplay::Show::Nothing); // or it would go on over the lamp
    AccessoryReport report;
    buildMatrixLamp(report, value != 0);
    writePageReport(report);
    m_lampSet = value;
}

void pageLEDSystem::chooseForm(int value)
{
    const LiveDisplay::Pause pause(m_display); // no frame may be half of one form
    if (const MatrixForm *form = findMatrixForm(value))
        showStored(chooseMatrixForm(*form), Unstored::HoldsUntilExit);
}

void pageLEDSystem::switchClock(int value)
{
    if (value == 0)
        m_display.show(LiveDisplay::Show::Nothing);
    else if (m_ensureConnected())
        m_display.show(LiveDisplay::Show::Clock);
}
