#include "page/Nightloom/pageledsystem.h"

#include <QVBoxLayout>

#include "controls/sliderwidget.h"
#include "ddc_protocol/settingsstore.h"
#include "ledmatrix/matrixform.h"
#include "page/Nightloom/ledworkthread.h"
#include "page/Nightloom/matrixformsetting.h"
#include "page/engine/commonoptions.h"
#include "page/engine/optiongrouprow.h"
#include "platform/desk.h"
#include "usb-hid/hidtransport.h"

namespace {

constexpr platform::milliseconds kWorkerEnds{150}; // a frame that is under way goes out meanwhile
constexpr Command kNoCommand{};                    // these options are the accessory's and never go to the monitor
constexpr int kHighestLevel = 10;
constexpr int kHighestBrightness = 100;
constexpr int kUsualLevel = 5; // until the user has chosen
constexpr int kUsualBrightness = 50;
constexpr int kCaptionWidth = 140;

constexpr char kSliders[] = "sliders";
constexpr char kLevel[] = LABEL("Playback Level");
constexpr char kBrightness[] = LABEL("Brightness");
constexpr char kLamp[] = LABEL("Matrix Lamp");
constexpr char kForm[] = LABEL("Matrix Form");
constexpr char kClock[] = LABEL("Clock");

constexpr Option kForms[] = {{LABEL("Tapering"), kTaperingForm}, {LABEL("Rectangle"), kRectangleForm}};

const Section kSettings[] = {CustomPart{kSliders}, CustomPart{kLamp}, CustomPart{kForm}, CustomPart{kClock}};
const PanelSpec kPanels[] = {{LABEL("System Settings"), "led_system", "pageLEDSystemPanel", kSettings}};

int stored(const char *key, int usual)
{
    const bool isStored = !settingsString(QLatin1String(key), {}, false, QLatin1String(kConfigFile)).isEmpty();
    return isStored ? settingsInt(QLatin1String(key), 0, false) : usual;
}

} // namespace

pageLEDSystem::pageLEDSystem(AccessoryCheck ensureConnected, CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pageLEDSystem"), OwnList::None, queue, parent),
      m_ensureConnected(std::move(ensureConnected))
{
    buildPanels(kPanels);
}

QWidget *pageLEDSystem::buildPart(const char *name)
{
    if (qstrcmp(name, kSliders) == 0)
        return buildSliders();
    if (qstrcmp(name, kLamp) == 0)
        return m_lamp = makeOptions({kLamp, kNoCommand, kCloseOpen}, &pageLEDSystem::switchLamp);
    if (qstrcmp(name, kForm) == 0)
        return m_form = makeOptions({kForm, kNoCommand, kForms}, &pageLEDSystem::chooseForm);
    return m_clock = makeOptions({kClock, kNoCommand, kCloseOpen}, &pageLEDSystem::switchClock);
}

QWidget *pageLEDSystem::buildSliders()
{
    auto *part = new QWidget(this);
    m_level = makeOwnSlider(kLevel, kHighestLevel, part);
    m_brightness = makeOwnSlider(kBrightness, kHighestBrightness, part);
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_level);
    column->addWidget(m_brightness);
    return part;
}

SliderWidget *pageLEDSystem::makeOwnSlider(const char *name, int maximum, QWidget *parent)
{
    auto *slider = new SliderWidget(QLatin1String(name), 0, maximum, parent);
    slider->setCaptionWidth(kCaptionWidth);
    texts().bind(name, [slider](const QString &text) { slider->setCaption(text); });
    connect(slider, &SliderWidget::sliderValueChanged, this, [this](const QString &, int, bool released) {
        if (released && !isUpdating())
            onSliderReleased();
    });
    return slider;
}

OptionGroupRow *pageLEDSystem::makeOptions(const OptionGroup &group, Chosen chosen)
{
    auto *row = new OptionGroupRow(group, texts(), this);
    connect(row, &OptionGroupRow::optionClicked, this, [this, row, chosen](QPushButton *button) {
        showNotice({});
        for (const Option &option : row->group().options) {
            if (row->buttonOf(option.value) == button)
                (this->*chosen)(option.value);
        }
        showWhatIsSet();
    });
    return row;
}

void pageLEDSystem::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    showWhatIsSet();
}

void pageLEDSystem::showEvent(QShowEvent *event)
{
    PanelPage::showEvent(event);
    showWhatIsSet(); // another page may have stopped the clock since
}

void pageLEDSystem::showWhatIsSet()
{
    const Updating updating(*this);
    m_level->setValue(stored(kPlaybackLevelKey, kUsualLevel));
    m_brightness->setValue(stored(kLedBrightnessKey, kUsualBrightness));
    m_lamp->showValue(m_lampSet);
    m_form->showValue(matrixForm.load());
    m_clock->showValue(clockRuns() ? 1 : 0);
}

/// Whether a packet may be written: the accessory is there and nothing else writes to it.
bool pageLEDSystem::takeOver()
{
    if (!m_ensureConnected())
        return false;
    stopWorker();
    return true;
}

void pageLEDSystem::stopWorker()
{
    ledWorkThread::instance()->stop();
    platform::desk().clock().sleep(kWorkerEnds);
}

bool pageLEDSystem::clockRuns() const
{
    return ledWorkThread::instance()->state() == ledWorkThread::ClockLoop;
}

void pageLEDSystem::endLiveDisplay()
{
    AccessoryReport report;
    buildLiveStop(report);
    writePageReport(report);
}

void pageLEDSystem::onSliderReleased()
{
    showNotice({});
    const int level = m_level->value(); // before the check, whose box may have the page filled again
    const int brightness = m_brightness->value();
    if (takeOver()) {
        AccessoryReport report;
        buildSystemSettings(report, static_cast<std::uint8_t>(level), static_cast<std::uint8_t>(brightness));
        writePageReport(report);
        settingsInt(QLatin1String(kPlaybackLevelKey), level, true);
        settingsInt(QLatin1String(kLedBrightnessKey), brightness, true);
    }
    showWhatIsSet();
}

void pageLEDSystem::switchLamp(int value)
{
    if (!takeOver())
        return;
    endLiveDisplay();
    Q_EMIT ledWorkThread::instance()->takenOver(); // or the music would go on over the lamp
    AccessoryReport report;
    buildMatrixLamp(report, value != 0);
    writePageReport(report);
    m_lampSet = value;
}

void pageLEDSystem::chooseForm(int value)
{
    const bool clockRan = clockRuns();
    stopWorker();
    if (clockRan)
        endLiveDisplay();
    chooseMatrixForm(value);
}

void pageLEDSystem::switchClock(int value)
{
    if (!takeOver())
        return;
    Q_EMIT ledWorkThread::instance()->takenOver();
    if (value != 0) {
        ledWorkThread::instance()->begin(ledWorkThread::ClockLoop);
        return;
    }
    endLiveDisplay(); // or the last time would stay
}
