#include "page/Emberline/lightframe.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

#include <QColor>

namespace {

using std::chrono::milliseconds;

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kHueRound = 8000;                 // ms in which a colour of its own accord is all hues
constexpr double kSlowest = 6000, kFastest = 1000; // ms of one round of an effect
constexpr double kDarkest = 0.12;                  // what a breath leaves
constexpr double kFlickerStep = 140;               // ms
constexpr double kBeltRound = 3200;                // ms: the lamp belt has no speed of its own
constexpr double kDisplayGamma = 2.2;
constexpr QRgb kWarm = 0xffff9a3c, kCold = 0xffdbe9ff;

/// 0 up to 1 and back, in a round of 1.
double swell(double phase)
{
    return 0.5 - 0.5 * std::cos(kTurn * phase);
}

double breath(double phase)
{
    return kDarkest + (1 - kDarkest) * swell(phase);
}

/// The same number between 0 and 1 for the same lamp and step.
double chance(int lamp, std::int64_t step)
{
    auto mixed = static_cast<std::uint32_t>(lamp) * 2654435761u ^ static_cast<std::uint32_t>(step) * 2246822519u;
    mixed = (mixed ^ mixed >> 15) * 3266489917u;
    return (mixed ^ mixed >> 13) / 4294967295.0;
}

QRgb hue(double turn)
{
    return QColor::fromHsvF(static_cast<float>(turn - std::floor(turn)), 0.85f, 1.0f).rgb();
}

QRgb mixed(QRgb from, QRgb to, double share)
{
    const auto part = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return qRgb(part(qRed(from), qRed(to)), part(qGreen(from), qGreen(to)), part(qBlue(from), qBlue(to)));
}

QRgb shown(const LightLook::Color &color, double time)
{
    return color.value_or(hue(time / kHueRound));
}

/// One lamp of the ring; where it stands on it, 0 to 1 clockwise.
QRgb effectLamp(const LightLook &look, int lamp, double place, double time)
{
    const double round = kSlowest + (kFastest - kSlowest) * look.speed;
    const double phase = time / round;
    const double along = look.isReversed ? place + phase : place - phase; // what moves keeps its value here
    const QRgb color = shown(look.color, time);
    switch (look.effect) {
    case LightLook::Effect::Breathe:
        return dimmed(color, breath(phase));
    case LightLook::Effect::Flow: {
        const double behind = look.isReversed ? along - std::floor(along) : 1 - (along - std::floor(along));
        return dimmed(color, std::max(0.04, 1 - 2.2 * behind)); // a head with a tail
    }
    case LightLook::Effect::Rainbow:
        return hue(along);
    case LightLook::Effect::Wave:
        return dimmed(color, breath(2 * along));
    case LightLook::Effect::Flicker:
        return dimmed(color,
                      0.25 + 0.75 * chance(lamp, static_cast<std::int64_t>(time * (1 + look.speed) / kFlickerStep)));
    }
    return color;
}

QRgb ringLamp(const LightLook &look, int lamp, double place, double time)
{
    switch (look.mode) {
    case LightLook::Mode::Dark:
        return qRgb(0, 0, 0);
    case LightLook::Mode::Steady:
        return shown(look.color, time);
    case LightLook::Mode::Effect:
        return effectLamp(look, lamp, place, time);
    case LightLook::Mode::Global:
        return look.global;
    case LightLook::Mode::Zones: // seen from behind, the screen's left is at the right
        return place < 0.5 ? look.left : look.right;
    case LightLook::Mode::EyeCare:
        return dimmed(mixed(kWarm, kCold, look.coldness), look.eyeCareLevel);
    }
    return qRgb(0, 0, 0);
}

double beltLevel(const LightLook &look, int lamp, double place, double time)
{
    const double phase = time / kBeltRound;
    switch (look.beltEffect) {
    case LightLook::BeltEffect::Steady:
        return 1;
    case LightLook::BeltEffect::Breathe:
        return breath(phase);
    case LightLook::BeltEffect::Flicker:
        return 0.25 + 0.75 * chance(0, static_cast<std::int64_t>(time / kFlickerStep));
    case LightLook::BeltEffect::Water:
        return breath(1.5 * place - phase);
    case LightLook::BeltEffect::Star: // some lamps, each in its own time
        return chance(lamp, 0) < 0.5 ? 0.1 : breath(phase + chance(lamp, 1));
    case LightLook::BeltEffect::Pearl: { // a bead that runs
        const double distance = std::abs(place - (phase - std::floor(phase)));
        return std::max(0.08, 1 - 7 * std::min(distance, 1 - distance));
    }
    }
    return 1;
}

} // namespace

QRgb dimmed(QRgb color, double share)
{
    const double factor = std::pow(std::clamp(share, 0.0, 1.0), 1 / kDisplayGamma);
    return qRgb(static_cast<int>(std::lround(qRed(color) * factor)),
                static_cast<int>(std::lround(qGreen(color) * factor)),
                static_cast<int>(std::lround(qBlue(color) * factor)));
}

LightFrame lightFrame(const LightLook &look, milliseconds time)
{
    const auto now = static_cast<double>(time.count());
    LightFrame frame;
    for (std::size_t i = 0; i < frame.ring.size(); ++i) {
        const double place = (static_cast<double>(i) + 0.5) / static_cast<double>(frame.ring.size());
        frame.ring[i] = dimmed(ringLamp(look, static_cast<int>(i), place, now), look.brightness);
    }
    for (std::size_t i = 0; i < frame.belt.size(); ++i) {
        const double place = (static_cast<double>(i) + 0.5) / static_cast<double>(frame.belt.size());
        const double level = beltLevel(look, static_cast<int>(i), place, now);
        frame.belt[i] = dimmed(shown(look.belt, now), look.beltBrightness * level);
    }
    const double whole = beltLevel(look, 0, 0, now); // around the foot all lamps go together
    frame.beltFront = dimmed(shown(look.beltFront, now), look.beltBrightness * whole);
    frame.beltRear = dimmed(shown(look.beltRear, now), look.beltBrightness * whole);
    const bool isLit = look.mode != LightLook::Mode::Dark;
    frame.front = dimmed(shown(look.front, now), isLit ? look.frontBrightness : 0);
    frame.rear = dimmed(shown(look.rear, now), isLit ? look.rearBrightness : 0);
    return frame;
}

bool lightMoves(const LightLook &look)
{
    const bool isLit = look.mode != LightLook::Mode::Dark;
    const bool usesColor = look.mode == LightLook::Mode::Steady && look.brightness > 0;
    const bool barsMove =
        isLit && ((!look.front && look.frontBrightness > 0) || (!look.rear && look.rearBrightness > 0));
    const bool beltMoves = look.beltBrightness > 0 && (look.beltEffect != LightLook::BeltEffect::Steady || !look.belt ||
                                                       !look.beltFront || !look.beltRear);
    return look.mode == LightLook::Mode::Effect || (usesColor && !look.color) || barsMove || beltMoves;
}
