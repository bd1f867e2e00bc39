#include "page/Scene/scenelooks.h"

#include <algorithm>

namespace {

struct SceneLook
{
    int mode; ///< the factory half's
    PictureLook look;
};

// As the modes' names promise. Every other one shows colours as they are.
constexpr SceneLook kLooks[] = {
    {3, {.contrast = 0.62}},
    {5, {.brightness = 0.55, .saturation = 0.72}},
    {7, {.saturation = 0.54}},
    {9, {.contrast = 0.6, .saturation = 0.6, .gamma = 2.4}},
    {11, {.brightness = 0.42, .contrast = 0.42, .saturation = 0.36, .kelvin = 5400}},
    {13, {.brightness = 0.3, .contrast = 0.46, .kelvin = 4600}},
    {15, {.brightness = 0.4, .contrast = 0.45, .saturation = 0.44, .kelvin = 4300}},
    {17, {.brightness = 0.56, .contrast = 0.54, .saturation = 0.44}},
    {19, {.brightness = 0.36, .contrast = 0.58, .saturation = 0.46}},
    {21, {.brightness = 0.46, .contrast = 0.46, .saturation = 0, .kelvin = 5600}},
    {23, {.brightness = 0.6, .contrast = 0.6, .saturation = 0.78, .kelvin = 8200}},
    {25, {.brightness = 0.62, .saturation = 0.62, .shadows = 0.6, .gamma = 2.0}},
    {27, {.brightness = 0.58, .saturation = 0.6}},
    {29, {.saturation = 0.62}},
    {33, {.saturation = 0.62, .gamma = 2.5}},
    {37, {.kelvin = 6200}},
    {41, {.saturation = 0.6, .kelvin = 5000}},
    {43, {.saturation = 0.6}},
    {47, {.saturation = 0.64}},
    {49, {.brightness = 0.56, .saturation = 0.7}},
    {57, {.saturation = 0, .gamma = 2.4, .kelvin = 7500}},
    {59, {.brightness = 0.42, .contrast = 0.42, .saturation = 0.36, .kelvin = 5000}},
    {61, {.saturation = 0.64}},
    {65, {.saturation = 0.62, .gamma = 2.5}},
    {81, {.saturation = 0.64, .kelvin = 5000}},
    {83, {.contrast = 0.44, .saturation = 0.4, .kelvin = 5000}},
    {85, {.contrast = 0.44, .saturation = 0.4, .kelvin = 5500}},
    {87, {.contrast = 0.44, .saturation = 0.4, .kelvin = 5800}},
};

} // namespace

PictureLook sceneLook(int mode)
{
    const int factory = mode % 2 == 0 ? mode - 1 : mode;
    const auto *found = std::ranges::find(kLooks, factory, &SceneLook::mode);
    return found == std::end(kLooks) ? PictureLook{} : found->look;
}
