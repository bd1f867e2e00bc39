#pragma once

#include <array>
#include <chrono>
#include <optional>

#include <QRgb>

/// How the lamps at the monitor's back and foot are set. Shares are 0 to 1.
struct LightLook
{
    enum class Mode { Dark, Steady, Effect, Global, Zones, EyeCare };
    enum class Effect { Breathe, Flow, Rainbow, Wave, Flicker };
    enum class BeltEffect { Steady, Breathe, Flicker, Water, Star, Pearl };

    /// A colour that runs through all hues is none.
    using Color = std::optional<QRgb>;

    Mode mode = Mode::Dark;
    Effect effect = Effect::Breathe;
    Color color;
    double brightness = 1;
    double speed = 0.5;
    bool isReversed = false;
    double coldness = 0;       ///< of the light in eye care
    double eyeCareLevel = 0.6; ///< its brightness
    QRgb global = 0xff000000;  ///< what the rhythm last sent, as the two zones
    QRgb left = 0xff000000;
    QRgb right = 0xff000000;
    Color front;
    Color rear;
    double frontBrightness = 0;
    double rearBrightness = 0;
    BeltEffect beltEffect = BeltEffect::Steady;
    Color belt;
    Color beltFront;
    Color beltRear;
    double beltBrightness = 0;

    bool operator==(const LightLook &) const = default;
};

/// The lamps at one moment, as the colours that are seen.
struct LightFrame
{
    std::array<QRgb, 32> ring{}; ///< clockwise as one looks at the back, from the top
    std::array<QRgb, 24> belt{}; ///< along the lower edge, left to right
    QRgb front = 0;              ///< onto the desk
    QRgb rear = 0;               ///< onto the wall
    QRgb beltFront = 0;          ///< around the foot
    QRgb beltRear = 0;

    bool operator==(const LightFrame &) const = default;
};

/// What the lamps show so long after they were set.
LightFrame lightFrame(const LightLook &look, std::chrono::milliseconds time);

/// Whether that changes with the time.
bool lightMoves(const LightLook &look);

/// A colour as so much less light, 0 to 1.
QRgb dimmed(QRgb color, double share);
