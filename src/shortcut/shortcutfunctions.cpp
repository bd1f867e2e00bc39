#include "shortcut/shortcutfunctions.h"

#include <algorithm>
#include <iterator>

#include <QtGlobal>

#include "ddc_protocol/devicestate.h"

#define LABEL(text) QT_TRANSLATE_NOOP("QObject", text)

namespace {

using enum AtEnd;
constexpr auto kGame = Capability::GameFunctions;

/// Plus sets the mode with the factory parameters, minus the same mode with the user's.
constexpr FixedValues scene(int mode)
{
    return {Command::SceneMode, mode, mode + 1};
}

constexpr ShortcutFunction kFunctions[] = {
    {0, LABEL("Standard Mode"), scene(1)},
    {1, LABEL("CAD/CAM Mode"), scene(3)},
    {2, LABEL("Animate Mode"), scene(5)},
    {3, LABEL("Art Design Mode"), scene(7)},
    {4, LABEL("Movie Mode"), scene(9)},
    {5, LABEL("Reading Mode"), scene(11)},
    {6, LABEL("Night Mode"), scene(13)},
    {7, LABEL("Eye Care Mode"), scene(15)},
    {8, LABEL("Light Programme"), scene(17)},
    {9, LABEL("Dark Programme"), scene(19)},
    {10, LABEL("E-Book Mode"), scene(21)},
    {11, LABEL("Display P3 Mode"), scene(29)},
    {12, LABEL("Brightness"), SteppedValue{Command::Brightness, 10, 100, Stop}},
    {13, LABEL("Contrast"), SteppedValue{Command::Contrast, 10, 100, Stop}},
    {14, LABEL("Color Temperature"), SteppedValue{Command::ColorTemperature, 1, 10, Wrap}},
    {15, LABEL("Low Blue Light"), SteppedValue{Command::LowBlueLight, 1, 4, Stop}},
    {16, LABEL("Gamma"), SteppedValue{Command::Gamma, 1, 7, Wrap, 6}}, // 6, sRGB, is not for keys
    {17, LABEL("CR Enhance"), SteppedValue{Command::ContrastEnhance, 1, 10, Wrap}},
    {18, LABEL("Black Level"), SteppedValue{Command::BlackLevel, 10, 100, Stop}},
    {19, LABEL("Paper"), SteppedValue{Command::Paper, 1, 3, Wrap}}, // not the custom size, 4
    {20, LABEL("Alignment"), SteppedValue{Command::Alignment, 1, 3, Wrap}},
    {21, LABEL("Ruler"), SteppedValue{Command::Ruler, 1, 2, Wrap}},
    {22, LABEL("Composition"), SteppedValue{Command::Composition, 1, 5, Wrap}},
    {23, LABEL("Audio Mute"), FixedValues{Command::AudioMute, 1, 0}},
    {24, LABEL("Refresh Rate"), &stepRefreshRate, kGame},
    {25, LABEL("Game Crosshair"), &stepCrosshair, kGame},
    {26, LABEL("Stopwatch"), &stepStopwatch, kGame},
    {27, LABEL("Game Time"), &stepGameTime, kGame},
    {28, LABEL("HawkEye Vision"), FixedValues{Command::HawkEyeVision, 1, 0}, kGame},
    {29, LABEL("Night Vision"), SteppedValue{Command::NightVision, 1, 4, Wrap}, kGame},
};

constexpr bool numbersAreUnique()
{
    for (const ShortcutFunction &function : kFunctions) {
        const auto isSame = [&function](const ShortcutFunction &other) { return other.number == function.number; };
        if (std::count_if(std::begin(kFunctions), std::end(kFunctions), isSame) != 1)
            return false;
    }
    return true;
}
static_assert(numbersAreUnique(), "two functions have one number");

} // namespace

std::span<const ShortcutFunction> shortcutFunctions()
{
    return kFunctions;
}

const ShortcutFunction *shortcutFunction(int number)
{
    const auto found = std::find_if(std::begin(kFunctions), std::end(kFunctions),
                                    [number](const ShortcutFunction &function) { return function.number == number; });
    return found == std::end(kFunctions) ? nullptr : found;
}

std::vector<const ShortcutFunction *> shortcutFunctionsOf(const DeviceState &state,
                                                          std::span<const ShortcutFunction> of)
{
    std::vector<const ShortcutFunction *> functions;
    for (const ShortcutFunction &function : of) {
        if (state.has(function.needs))
            functions.push_back(&function);
    }
    return functions;
}
