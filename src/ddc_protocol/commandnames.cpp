#include "ddc_protocol/commandnames.h"

#include <algorithm>

#include <QObject>

#include "ddc_protocol/devicestate.h"

/// Marks a text for translation.
#define LABEL(text) QT_TRANSLATE_NOOP("QObject", text)

namespace {

constexpr char kLightColor[] = LABEL("Light Color");
constexpr char kRhythmColor[] = LABEL("Rhythm Color");
constexpr char kUser[] = LABEL("Color Temperature");
constexpr char kHue[] = LABEL("Hue");
constexpr char kSaturation[] = LABEL("Saturation");

constexpr CommandName kNames[] = {
    {Command::PixelShift, LABEL("Pixel Shift"), Capability::OledPanel},
    {Command::StillPicture, LABEL("Still Picture"), Capability::OledPanel},
    {Command::DetectionRate, LABEL("Detection Rate"), Capability::OledPanel},
    {Command::StaticIcon, LABEL("Static Icon"), Capability::OledPanel},
    {Command::CareRunning, LABEL("Care Running"), Capability::OledPanel},
    {Command::Taskbar, LABEL("Taskbar"), Capability::OledPanel},
    {Command::Boundary, LABEL("Boundary"), Capability::OledPanel},
    {Command::CareDue, LABEL("Care Due"), Capability::OledPanel},
    {Command::CareReminder, LABEL("Care Reminder"), Capability::OledPanel},
    {Command::CareMode, LABEL("Care Mode"), Capability::OledPanel},
    {Command::CareInterval, LABEL("Care Interval"), Capability::OledPanel},
    {Command::CareIsp, LABEL("ISP"), Capability::OledPanel},
    {Command::CareNow, LABEL("Start care"), Capability::OledPanel},
    {Command::Brightness, LABEL("Brightness")},
    {Command::Contrast, LABEL("Contrast")},
    {Command::ColorTemperature, LABEL("Color Temperature")},
    {Command::NightViewTemperature, LABEL("Night View C.T")},
    {Command::User1Red, kUser},
    {Command::User1Green, kUser},
    {Command::User1Blue, kUser},
    {Command::User2Red, kUser},
    {Command::User2Green, kUser},
    {Command::User2Blue, kUser},
    {Command::User3Red, kUser},
    {Command::User3Green, kUser},
    {Command::User3Blue, kUser},
    {Command::SceneMode, LABEL("Scene")},
    {Command::Gamma, LABEL("Gama")},
    {Command::RefreshRate, LABEL("Refresh Rate"), Capability::GameFunctions},
    {Command::RefreshRatePlace, LABEL("Refresh Rate Place"), Capability::GameFunctions},
    {Command::CrosshairColor, LABEL("Crosshair Color"), Capability::GameFunctions},
    {Command::StopwatchTime, LABEL("Stopwatch Time"), Capability::GameFunctions},
    {Command::CrosshairShape, LABEL("Crosshair Shape"), Capability::GameFunctions},
    {Command::StopwatchPlace, LABEL("Stopwatch Place"), Capability::GameFunctions},
    {Command::GameTimeLength, LABEL("Game Time Length"), Capability::GameFunctions},
    {Command::GameTimePlace, LABEL("Game Time Place"), Capability::GameFunctions},
    {Command::Crosshair, LABEL("Game Crosshair"), Capability::GameFunctions},
    {Command::Stopwatch, LABEL("Stopwatch"), Capability::GameFunctions},
    {Command::GameTime, LABEL("Game Time"), Capability::GameFunctions},
    {Command::MovingCrosshairColor, LABEL("Dynamic Crosshair Color"), Capability::GameFunctions},
    {Command::MovingCrosshair, LABEL("Dynamic Crosshair"), Capability::GameFunctions},
    {Command::MovingCrosshairSize, LABEL("Dynamic Crosshair Size"), Capability::GameFunctions},
    {Command::AlignmentAid, LABEL("Alignment Aid")},
    {Command::ColorEnhance, LABEL("Color Enhance")},
    {Command::ContrastEnhance, LABEL("CR Enhance")},
    {Command::BlackLevel, LABEL("Black Level")},
    {Command::AdaptiveSync, LABEL("Adaptive-Sync")},
    {Command::SuperResolution, LABEL("Super Resolution")},
    {Command::NightVision, LABEL("Night Vision")},
    {Command::HaloControl, LABEL("Halo Control"), Capability::HaloControl},
    {Command::LocalDimming, LABEL("Localdimming"), Capability::LocalDimming},
    {Command::MotionTech, LABEL("DyDs TECH")},
    {Command::GrayResponse, LABEL("Gray Response")},
    {Command::Hdr, LABEL("HDR")},
    {Command::FocusDimming, LABEL("Focus Dimming"), Capability::GameFunctions},
    {Command::FocusDimmingLevel, LABEL("Focus Dimming Level"), Capability::GameFunctions},
    {Command::HawkEyeZoom, LABEL("HawkEye Zoom"), Capability::GameFunctions},
    {Command::MultiWindow, LABEL("Multi-window")},
    {Command::InsetSize, LABEL("Inset Size")},
    {Command::InsetPlace, LABEL("Inset Place")},
    {Command::InputSignal, LABEL("Input Signal")},
    {Command::SaturationRed, kSaturation},
    {Command::SaturationYellow, kSaturation},
    {Command::SaturationGreen, kSaturation},
    {Command::SaturationCyan, kSaturation},
    {Command::SaturationBlue, kSaturation},
    {Command::SaturationMagenta, kSaturation},
    {Command::UsbSwitch, LABEL("USB Switch")},
    {Command::OutputRange, LABEL("Output Range")},
    {Command::QuickBoot, LABEL("Quick Boot")},
    {Command::HawkEyeVision, LABEL("HawkEye Vision"), Capability::GameFunctions},
    {Command::HawkEyeBrightness, LABEL("HawkEye Brightness"), Capability::GameFunctions},
    {Command::HawkEyeContrast, LABEL("HawkEye Contrast"), Capability::GameFunctions},
    {Command::HawkEyeSharpness, LABEL("HawkEye Sharpness"), Capability::GameFunctions},
    {Command::AccessoryMode1, LABEL("Matrix Mode1")},
    {Command::AccessoryMode2, LABEL("Matrix Mode2")},
    {Command::AccessoryMode3, LABEL("Matrix Mode3")},
    {Command::AccessoryStandby, LABEL("Matrix Standby")},
    {Command::AccessoryPowerOff, LABEL("Matrix Power Off")},
    {Command::LightMode, LABEL("Light Mode"), Capability::GameFunctions},
    {Command::LightEffect, LABEL("Light Effect"), Capability::GameFunctions},
    {Command::LightBrightness, LABEL("Light Brightness"), Capability::GameFunctions},
    {Command::LightSpeed, LABEL("Light Speed"), Capability::GameFunctions},
    {Command::LightColor, kLightColor, Capability::GameFunctions},
    {Command::LightRed, kLightColor, Capability::GameFunctions},
    {Command::LightGreen, kLightColor, Capability::GameFunctions},
    {Command::LightBlue, kLightColor, Capability::GameFunctions},
    {Command::LightTemperature, LABEL("Light Temperature"), Capability::GameFunctions},
    {Command::LightEyeCare, LABEL("Light Level"), Capability::GameFunctions},
    {Command::LightFrontColor, LABEL("Front Color"), Capability::GameFunctions},
    {Command::LightRearColor, LABEL("Rear Color"), Capability::GameFunctions},
    {Command::LightFrontBrightness, LABEL("Front Brightness"), Capability::GameFunctions},
    {Command::LightRearBrightness, LABEL("Rear Brightness"), Capability::GameFunctions},
    {Command::LightRhythmSource, LABEL("Rhythm Source"), Capability::GameFunctions},
    {Command::LightRhythmLevel, LABEL("Rhythm Level"), Capability::GameFunctions},
    {Command::LightDirection, LABEL("Light Direction"), Capability::GameFunctions},
    {Command::LightGlobalTone, kRhythmColor, Capability::GameFunctions},
    {Command::Sharpness, LABEL("Sharpness")},
    {Command::LightLeftTone, kRhythmColor, Capability::GameFunctions},
    {Command::LightRightTone, kRhythmColor, Capability::GameFunctions},
    {Command::LightInStandby, LABEL("Light in Standby"), Capability::GameFunctions},
    {Command::LightWithScreen, LABEL("Dark with the Screen"), Capability::GameFunctions},
    {Command::LightTimer, LABEL("Light Timer"), Capability::GameFunctions},
    {Command::LightFade, LABEL("Soft Changes"), Capability::GameFunctions},
    {Command::HueRed, kHue},
    {Command::HueYellow, kHue},
    {Command::HueGreen, kHue},
    {Command::HueCyan, kHue},
    {Command::HueBlue, kHue},
    {Command::HueMagenta, kHue},
    {Command::OsdShowTime, LABEL("Show Time(s)")},
    {Command::OsdHPosition, LABEL("H-Position")},
    {Command::OsdVPosition, LABEL("V-Position")},
    {Command::OsdTransparency, LABEL("Transparency")},
    {Command::MenuLock, LABEL("Menu Lock")},
    {Command::PowerLed, LABEL("Power LED")},
    {Command::PowerSaving, LABEL("Power Saving")},
    {Command::ResetFactory, LABEL("Reset Factory"), {}, false},
    {Command::OsdLanguage, LABEL("OSD Language")},
    {Command::UsbPower, LABEL("USB Power")},
    {Command::DpAltMode, LABEL("DP Alt Mode")},
    {Command::DpTypeC, LABEL("DP/Type-C")},
    {Command::LowBlueLight, LABEL("Low Blue Light")},
    {Command::Cec, LABEL("CEC")},
    {Command::LightSensor, LABEL("Light Sensor")},
    {Command::AiDualMode, LABEL("AI Dual Mode")},
    {Command::NoSignalTimer, LABEL("No Signal Timer")},
    {Command::GameRush, LABEL("Game Rush"), Capability::GameFunctions},
    {Command::LampBeltColor, LABEL("Lamp Belt Color"), Capability::GameFunctions},
    {Command::LampBeltBrightness, LABEL("Lamp Belt Brightness"), Capability::GameFunctions},
    {Command::LampBeltEffect, LABEL("Lamp Belt Effect"), Capability::GameFunctions},
    {Command::LampBeltFrontColor, LABEL("Lamp Belt Front Color"), Capability::GameFunctions},
    {Command::LampBeltRearColor, LABEL("Lamp Belt Rear Color"), Capability::GameFunctions},
    {Command::AudioMode, LABEL("Audio Mode")},
    {Command::GravitySensor, LABEL("Gravity Sensor")},
    {Command::Paper, LABEL("Paper")},
    {Command::Capability, LABEL("Model")},
    {Command::Firmware, LABEL("Display Version")},
    {Command::OfficeArea, LABEL("Paper")},
    {Command::Alignment, LABEL("Alignment")},
    {Command::Ruler, LABEL("Ruler")},
    {Command::AudioVolume, LABEL("Audio Volume")},
    {Command::AudioMute, LABEL("Audio Mute")},
    {Command::Composition, LABEL("Composition")},
    {Command::RestTimer, LABEL("Eyeshield Remind")},
    {Command::CrosshairPlace, LABEL("Crosshair Place"), Capability::GameFunctions},
};

} // namespace

std::span<const CommandName> commandNames()
{
    return kNames;
}

const CommandName &nameOf(Command command)
{
    static constexpr CommandName kNone{Command{}, ""};
    const auto found = std::ranges::find(kNames, command, &CommandName::command);
    return found == std::end(kNames) ? kNone : *found;
}

QString commandName(Command command)
{
    const char *const label = nameOf(command).label;
    if (*label != '\0')
        return QObject::tr(label);
    return QStringLiteral("0x%1").arg(static_cast<int>(command), 2, 16, QLatin1Char('0'));
}

std::vector<Command> readableCommands()
{
    std::vector<Command> commands;
    for (const CommandName &name : kNames) {
        if (name.isReadable && deviceState.has(name.needs))
            commands.push_back(name.command);
    }
    return commands;
}
