
#include <QPushButton>

#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/settingspage.h"
#include "support/truthfixture.h"

using namespace std::chrono_literals;

namespace {

/// What the sliders of the pages set, by their names; user colours and scene-dependent ones are the option's.
const QMap<QString, int> kSliderCodes = {
    {"Brightness", 0x10},      {"Contrast", 0x12},      {"Sharpness", 0x87},      {"Color Enchance", 0x40},
    {"CR Enhance", 0x41},      {"Black Level", 0x42},   {"Halo Control", 0x46},   {"Super Resolution", 0x44},
    {"Saturation_R", 0x59},    {"Saturation_C", 0x5C},  {"Hue_R", 0x9B},          {"Hue_C", 0x9E},
    {"Low Blue Light", 0xD8},  {"Color Enhance", 0x40}, {"Shadow Balance", 0x42}, {"SR", 0x44},
    {"Show Time(s)", 0xC0},    {"H-Position", 0xC1},    {"V-Position", 0xC2},     {"Transparency", 0xC3},
    {"No Signal Timer", 0xE3}, {"Audio Volume", 0xF6},
};

} // namespace

void TruthFixture::settle()
{
    auto *queue = m_window->findChild<CommandQueue *>();
    QTRY_VERIFY(m_window->leftBar(8)->isEnabled() && queue->isIdle() && m_window->tabs()->tabs().front()->isEnabled());
    QCoreApplication::processEvents();
    QTRY_VERIFY(queue->isIdle());
    QCoreApplication::processEvents();
}

void TruthFixture::pass(std::chrono::milliseconds time)
{
    for (auto passed = 0ms; passed < time; passed += 250ms) {
        m_desk->clock.advance(250ms);
        settle();
    }
}

QPushButton *TruthFixture::half(bool custom) const
{
    for (QPushButton *button : m_window->scenePage()->findChildren<QPushButton *>()) {
        if (button->text() == QLatin1String(custom ? "        Custom" : "        Default"))
            return button;
    }
    return nullptr;
}

void TruthFixture::openPage(int family, const char *label)
{
    QTest::mouseClick(m_window->tabs()->tabs()[static_cast<std::size_t>(family)], Qt::LeftButton);
    QTest::mouseClick(entry(family, label), Qt::LeftButton);
}

QString TruthFixture::status() const
{
    return m_window->findChild<QLabel *>(QStringLiteral("status"))->accessibleName();
}

virtualdesk::SimulatedMonitor &TruthFixture::inUse() const
{
    return m_desk->monitor(status().contains("Q32") ? 1 : 0);
}

QStringList TruthFixture::lies() const
{
    QStringList found;
    const virtualdesk::SimulatedMonitor &monitor = inUse();
    if (&monitor == &m_desk->monitor(1) && (deviceState.value(Command::SceneMode) + 1) / 2 == 12)
        return {}; // the mode of the other model: this one says that it took it, and stays in its own
    for (const SettingsPage *page : m_window->findChildren<SettingsPage *>()) {
        for (const SliderWidget *slider : page->sliders()) {
            const int code = kSliderCodes.value(slider->name(), -1);
            if (code < 0 || !slider->isVisible() || slider->isUnknown() || slider->mark() != Mark::None)
                continue;
            const int has = monitor.value(static_cast<std::uint8_t>(code));
            if (slider->value() != std::clamp(has, slider->slider()->minimum(), slider->slider()->maximum()))
                found += QStringLiteral("%1 shows %2, has %3").arg(slider->name()).arg(slider->value()).arg(has);
        }
        for (const OptionGroupRow *row : page->optionGroups()) {
            if (!row->isVisible() || row->mark() != Mark::None)
                continue;
            const int has = monitor.value(static_cast<std::uint8_t>(*row->group().command));
            for (const Option &option : row->group().options) {
                const QPushButton *button = row->buttonOf(option.value);
                if (button->isChecked() != (button == row->buttonOf(has)))
                    found += QStringLiteral("%1, has %2").arg(button->objectName()).arg(has);
            }
        }
    }
    const int mode = monitor.value(0x22);
    if (deviceState.state(Command::SceneMode) == ValueState::Known && deviceState.value(Command::SceneMode) != mode)
        found += QStringLiteral("mode %1, has %2").arg(deviceState.value(Command::SceneMode)).arg(mode);
    return found;
}
