#include "page/Scene/scenepicture.h"

#include <algorithm>

#include <QPainter>

#include "controls/testpicture.h"
#include "page/Scene/scenetable.h"
#include "page/engine/commonpictures.h"

namespace {

constexpr double kUsualGamma = 2.2;
constexpr double kUsualKelvin = 6500;
constexpr double kCoolestNight = 6500;
constexpr double kWarmestNight = 3500;

/// The display's gamma for the values of that setting; 6 is sRGB, 7 lifts what is dark in drawings.
double gammaOf(int value)
{
    static constexpr double kGammas[] = {1.6, 1.8, 2.0, 2.2, 2.4, 2.6, 2.2, 1.7};
    return value >= 0 && value < int(std::size(kGammas)) ? kGammas[value] : kUsualGamma;
}

double kelvinOf(const PictureValues &values)
{
    static constexpr double kKelvins[] = {5000, 5500, 6300, 6500, 7000, 7500, 9300};
    const int temperature = values(Command::ColorTemperature, 3);
    if (temperature == kNightViewTemperature)
        return kCoolestNight - (kCoolestNight - kWarmestNight) * values(Command::NightViewTemperature, 50) / 100;
    return temperature >= 0 && temperature < int(std::size(kKelvins)) ? kKelvins[temperature] : kUsualKelvin;
}

/// A mixture of the user's own, and the blue that is taken out.
void mixWhite(PictureLook &look, const PictureValues &values)
{
    if (const int slot = userSlot(values(Command::ColorTemperature, 3)); slot != 0) {
        const auto &colours = kUserColours[slot - 1];
        look.red = values(colours[0], 50) / 50.0;
        look.green = values(colours[1], 50) / 50.0;
        look.blue = values(colours[2], 50) / 50.0;
    }
    look.blue *= 1 - values(Command::LowBlueLight, 0) * 0.1;
}

PictureLook lookOf(const PictureValues &values)
{
    const double level = values(Command::BlackLevel, 50) / 100.0;
    PictureLook look{.brightness = values(Command::Brightness, 50) / 100.0,
                     .contrast = values(Command::Contrast, 50) / 100.0 + values(Command::ContrastEnhance, 0) / 12.0,
                     .saturation = 0.5 + values(Command::ColorEnhance, 0) / 20.0,
                     .shadows = std::max(0.0, level * 2 - 1),
                     .gamma = gammaOf(values(Command::Gamma, 3)) + std::max(0.0, 1 - level * 2),
                     .kelvin = kelvinOf(values)};
    mixWhite(look, values);
    return look;
}

struct OwnPicture
{
    Command command;
    const PanelPicture &picture;
};
// What a landscape that stands still does not show.
const OwnPicture kOwnPictures[] = {
    {Command::GrayResponse, commonpictures::kResponse},
    {Command::MotionTech, commonpictures::kMotion},
    {Command::LocalDimming, commonpictures::kDimming},
};

void paint(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    const auto *own = std::ranges::find(kOwnPictures, values.pointed,
                                        [](const OwnPicture &picture) { return std::optional(picture.command); });
    if (own != std::end(kOwnPictures))
        own->picture.screen(painter, screen, values);
    else
        drawTestPicture(painter, screen, lookOf(values));
}

} // namespace

const PanelPicture kScenePicture{paint};
