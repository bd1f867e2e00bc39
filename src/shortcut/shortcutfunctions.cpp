#include "shortcut/shortcutfunctions.h"

#include <algorithm>

#include <QtGlobal>

#define LABEL(text) QT_TRANSLATE_NOOP("QObject", text)

namespace {

using enum AtEnd;
constexpr auto kGame = Capability::GameFunctions;

/// Plus sets the mode with the factory parameters, minus the same mode with the user's.
constexpr FixedValues scene(int mode)
{
    return {Command::SceneMode, mode, mode + 1};
}

// What a monitor may lack stands last.
constexpr ShortcutFunction kFunctions[] = {
    {LABEL("Standard Mode"), scene(1)},
    {LABEL("CAD/CAM Mode"), scene(3)},
    {LABEL("Animate Mode"), scene(5)},
    {LABEL("Art Design Mode"), scene(7)},
    {LABEL("Movie Mode"), scene(9)},
    {LABEL("Reading Mode"), scene(11)},
    {LABEL("Night Mode"), scene(13)},
    {LABEL("Eye Care Mode"), scene(15)},
    {LABEL("Light Programme"), scene(17)},
    {LABEL("Dark Programme"), scene(19)},
    {LABEL("E-Book Mode"), scene(21)},
    {LABEL("Display P3 Mode"), scene(29)},
    {LABEL("Brightness"), SteppedValue{Command::Brightness, 10, 100, Stop}},
    {LABEL("Contrast"), SteppedValue{Command::Contrast, 10, 100, Stop}},
    {LABEL("Color Temperature"), SteppedValue{Command::ColorTemperature, 1, 10, Wrap}},
    {LABEL("Low Blue Light"), SteppedValue{Command::LowBlueLight, 1, 4, Stop}},
    {LABEL("Gamma"), SteppedValue{Command::Gamma, 1, 7, Wrap, 6}}, // 6, sRGB, is not for keys
    {LABEL("CR Enhance"), SteppedValue{Command::ContrastEnhance, 1, 10, Wrap}},
    {LABEL("Black Level"), SteppedValue{Command::BlackLevel, 10, 100, Stop}},
    {LABEL("Paper"), SteppedValue{Command::Paper, 1, 3, Wrap}}, // not the custom size, 4
    {LABEL("Alignment"), SteppedValue{Command::Alignment, 1, 3, Wrap}},
    {LABEL("Ruler"), SteppedValue{Command::Ruler, 1, 2, Wrap}},
    {LABEL("Composition"), SteppedValue{Command::Composition, 1, 5, Wrap}},
    {LABEL("Audio Mute"), FixedValues{Command::AudioMute, 1, 0}},
    {LABEL("Refresh Rate"), &stepRefreshRate, kGame},
    {LABEL("Game Crosshair"), &stepCrosshair, kGame},
    {LABEL("Stopwatch"), &stepStopwatch, kGame},
    {LABEL("Game Time"), &stepGameTime, kGame},
    {LABEL("HawkEye Vision"), FixedValues{Command::HawkEyeVision, 1, 0}, kGame},
    {LABEL("Night Vision"), SteppedValue{Command::NightVision, 1, 4, Wrap}, kGame},
};

} // namespace

std::span<const ShortcutFunction> shortcutFunctions()
{
    return kFunctions;
}

std::span<const ShortcutFunction> shortcutFunctionsOf(const DeviceState &state)
{
    const auto lacking = std::find_if(std::begin(kFunctions), std::end(kFunctions), [&state](const auto &function) {
        return function.needs && !state.has(*function.needs);
    });
    return {std::begin(kFunctions), lacking};
}
