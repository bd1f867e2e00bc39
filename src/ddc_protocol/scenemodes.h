#pragma once

#include <optional>
#include <span>
#include <vector>

#include "ddc_protocol/command.h"

class DeviceState;

/// The four tabs that show scene modes, in tab order.
enum class SceneFamily { Scene, MacView, ColorSpace, PrintMode };

/// One scene mode: the odd value with factory parameters; the next even value is the same mode with the user's.
struct SceneMode
{
    SceneFamily family;
    const char *label; ///< source text, to be translated in the context QObject
    int value;
    const char *icon; ///< picture name under img/entry/
    const char *hint; ///< one line about the mode, source text
    std::optional<Capability> needs = {};
};

/// Every scene mode, family by family in the order of the left bars.
std::span<const SceneMode> sceneModes();

/// The modes of one family that the connected monitor has.
std::vector<const SceneMode *> sceneModesOf(SceneFamily family, const DeviceState &state);

/// The mode that a scene-mode value belongs to, odd or even; null for a value that no mode has.
const SceneMode *sceneModeOf(int value);

/// The family that a scene-mode value opens; nothing for 0 and above 90.
std::optional<SceneFamily> familyOfSceneValue(int value);

/// The custom halves of the two modes that limit the motion function.
inline constexpr int kMpcsFpsCustom = 26; ///< motion at its sharpest: no local dimming
inline constexpr int kMpcsLdCustom = 28;  ///< motion together with local dimming
