#include "virtualdesk/osdfunctions.h"

#include <algorithm>
#include <array>
#include <vector>

#include <QObject>

namespace virtualdesk {

namespace {

#define NAME(text) QT_TRANSLATE_NOOP("QObject", text)

constexpr OsdOption kSwitch[] = {{0, NAME("Close")}, {1, NAME("Open")}};
constexpr OsdOption kColorTemperature[] = {{0, "5000K"}, {1, "5500K"}, {2, "6300K"}, {3, "6500K"},
                                           {4, "7000K"}, {5, "7500K"}, {6, "9300K"}, {7, NAME("Night View C.T")},
                                           {8, "User1"}, {9, "User2"}, {10, "User3"}};
constexpr OsdOption kGamma[] = {{0, "1.6"}, {1, "1.8"}, {2, "2.0"},  {3, "2.2"},
                                {4, "2.4"}, {5, "2.6"}, {6, "sRGB"}, {7, "CAD/CAM"}};
// 0 is the off state of the switch that the same menus have beside their levels.
constexpr OsdOption kLocalDimming[] = {{0, NAME("Close")},  {2, NAME("Close")},  {3, NAME("Low")},
                                       {4, NAME("Smooth")}, {5, NAME("Medium")}, {6, NAME("Strong")}};
constexpr OsdOption kMotion[] = {{0, NAME("Close")},      {2, NAME("Close")},     {3, NAME("Low")},
                                 {4, NAME("Medium")},     {5, NAME("High")},      {6, NAME("Ull-Level1")},
                                 {7, NAME("Ull-Level2")}, {8, NAME("Ull-Level3")}};
constexpr OsdOption kResponse[] = {
    {0, NAME("Close")}, {1, NAME("Level1")}, {2, NAME("Level2")}, {3, NAME("Level3")}, {4, NAME("Topspeed")}};
constexpr OsdOption kHdr[] = {{0, NAME("Close")}, {1, NAME("Auto")}, {2, NAME("Game")}, {3, NAME("Movie")}};
constexpr OsdOption kNightVision[] = {
    {0, NAME("Close")}, {1, NAME("Level1")}, {2, NAME("Level2")}, {3, NAME("Auto-L1")}, {4, NAME("Auto-L2")}};
constexpr OsdOption kPixelShift[] = {{0, NAME("Close")}, {1, NAME("Slow")}, {2, NAME("Normal")}, {3, NAME("Fast")}};
constexpr OsdOption kDetection[] = {{0, NAME("Slow")}, {1, NAME("Normal")}, {2, NAME("Fast")}};
constexpr OsdOption kDimming[] = {{0, NAME("Close")}, {1, NAME("Low")}, {2, NAME("Medium")}, {3, NAME("High")}};
constexpr OsdOption kCareMode[] = {{0, NAME("Auto")}, {1, NAME("Manual")}};
constexpr OsdOption kCareInterval[] = {
    {0, NAME("4 Hour")}, {1, NAME("8 Hour")}, {2, NAME("12 Hour")}, {3, NAME("24 Hour")}};
constexpr OsdOption kWindows[] = {{0, NAME("Close")}, {1, NAME("PIP")}, {2, NAME("PBP")}};
constexpr OsdOption kInsetSize[] = {{0, NAME("Small")}, {1, NAME("Medium")}, {2, NAME("Large")}};
constexpr OsdOption kInsetPlace[] = {
    {0, NAME("Top Left")}, {1, NAME("Top Right")}, {2, NAME("Bottom Left")}, {3, NAME("Bottom Right")}};
constexpr OsdOption kInput[] = {{0, NAME("Auto")},   {1, NAME("DP1")},   {2, NAME("DP2")},
                                {3, NAME("Type-C")}, {4, NAME("HDMI1")}, {5, NAME("HDMI2")}};
constexpr OsdOption kUsb[] = {{0, NAME("Type-C")}, {1, NAME("Type-B")}};
constexpr OsdOption kRange[] = {{0, NAME("RGB Auto")}, {1, NAME("RGB Limit")}, {2, NAME("RGB Full")}};
constexpr OsdOption kLink[] = {{0, NAME("5.4G")}, {1, NAME("8.1G")}};
constexpr OsdOption kAudio[] = {{0, NAME("Standard")}, {1, NAME("Movie")}, {2, NAME("Convo")}};
constexpr OsdOption kSaving[] = {{0, NAME("Close")}, {1, NAME("Level1")}, {2, NAME("Level2")}};
constexpr OsdOption kLed[] = {{1, NAME("Close")}, {2, NAME("Level1")}, {3, NAME("Level2")}, {4, NAME("Level3")}};
constexpr OsdOption kPaper[] = {
    {0, NAME("Close")}, {1, NAME("Paper_A4")}, {2, NAME("Paper_B5")}, {3, NAME("Paper_B6")}, {4, NAME("Custom Size")}};
constexpr OsdOption kAlignment[] = {
    {0, NAME("Close")}, {1, NAME("Alignment_4")}, {2, NAME("Alignment_6")}, {3, NAME("Alignment_9")}};
constexpr OsdOption kRuler[] = {{0, NAME("Close")}, {1, NAME("Ruler")}, {2, NAME("Angle Ruler")}};
constexpr OsdOption kComposition[] = {{0, NAME("Close")},          {1, NAME("Triangle")},   {2, NAME("Frame")},
                                      {3, NAME("Golden Section")}, {4, NAME("Trichotomy")}, {5, NAME("Round")}};
constexpr OsdOption kRest[] = {{0, NAME("Close")},    {1, NAME("30s")},      {2, NAME("1 Hour")},
                               {3, NAME("1.5 Hour")}, {4, NAME("2 Hour")},   {5, NAME("2.5 Hour")},
                               {6, NAME("3 Hour")},   {7, NAME("3.5 Hour")}, {8, NAME("4 Hour")}};
constexpr OsdOption kLightMode[] = {{0, NAME("Close")},         {1, NAME("Normal")},        {2, NAME("Effect")},
                                    {3, NAME("Global Rhythm")}, {4, NAME("2 Zone Rhythm")}, {5, NAME("Eye Care")}};
constexpr OsdOption kLightEffect[] = {
    {0, NAME("Breathe")}, {1, NAME("Flow")}, {2, NAME("Rainbow")}, {3, NAME("Wave")}, {4, NAME("Flicker")}};
constexpr OsdOption kLightColor[] = {{0, NAME("Red")},   {1, NAME("Yellow")}, {2, NAME("Green")},
                                     {3, NAME("Cyan")},  {4, NAME("Blue")},   {5, NAME("Purple")},
                                     {6, NAME("White")}, {7, NAME("Auto")},   {8, NAME("Custom")}};
constexpr OsdOption kLampLevel[] = {{0, NAME("Soft")}, {1, NAME("Standard")}, {2, NAME("Highlight")}};
constexpr OsdOption kRhythmSource[] = {{0, NAME("Sound")}, {1, NAME("Screen")}};
constexpr OsdOption kLightDirection[] = {{0, NAME("Clockwise")}, {1, NAME("Counterclockwise")}};
constexpr OsdOption kLightTimer[] = {{0, NAME("Close")}, {1, NAME("30 min")}, {2, NAME("1 Hour")}, {3, NAME("2 Hour")}};
constexpr OsdOption kBeltEffect[] = {{0, NAME("Normal")}, {1, NAME("Breathe")}, {2, NAME("Flicker")},
                                     {3, NAME("Water")},  {4, NAME("Star")},    {5, NAME("Pearl")}};

constexpr OsdOption kCorner[] = {
    {0, NAME("Top Left")}, {1, NAME("Top Right")}, {2, NAME("Bottom Left")}, {3, NAME("Bottom Right")}};
constexpr OsdOption kColor[] = {{0, NAME("Red")},  {1, NAME("Yellow")}, {2, NAME("Green")}, {3, NAME("Cyan")},
                                {4, NAME("Blue")}, {5, NAME("Purple")}, {6, NAME("White")}, {7, NAME("Auto")}};
constexpr OsdOption kShape[] = {{1, NAME("Cross")}, {2, NAME("Open cross")}, {3, NAME("Dotted cross")},
                                {4, NAME("Ring")},  {5, NAME("Caret")},      {6, NAME("Dot")}};
constexpr OsdOption kHeight[] = {
    {0, NAME("Top")}, {1, NAME("Middle+")}, {2, NAME("Middle")}, {3, NAME("Middle-")}, {4, NAME("Bottom")}};
constexpr OsdOption kCountUp[] = {{1, NAME("15 min")}, {2, NAME("30 min")}, {3, NAME("60 min")}, {4, NAME("90 min")}};
constexpr OsdOption kCountDown[] = {{1, NAME("30 min")}, {2, NAME("40 min")}, {3, NAME("50 min")}, {4, NAME("60 min")}};
constexpr OsdOption kZoom[] = {{0, NAME("x1.5")}, {1, NAME("x2")}, {2, NAME("x4")}};
constexpr OsdOption kFive[] = {
    {0, NAME("Level1")}, {1, NAME("Level2")}, {2, NAME("Level3")}, {3, NAME("Level4")}, {4, NAME("Level5")}};
constexpr OsdOption kStrength[] = {{0, NAME("Low")}, {1, NAME("Medium")}, {2, NAME("High")}};
constexpr OsdOption kSize[] = {{0, NAME("Small")}, {1, NAME("Medium")}, {2, NAME("Large")}};

constexpr std::uint16_t bit(int number)
{
    return static_cast<std::uint16_t>(1u << number);
}

constexpr std::uint16_t kGame = bit(10);

// In the order of the OSD; picture first, since the scene changes most of it.
constexpr OsdFunction kMenu[] = {
    {0x10, NAME("Brightness"), 50, 100, {}},
    {0x12, NAME("Contrast"), 50, 100, {}},
    {0x87, NAME("Sharpness"), 4, 8, {}},
    {0x14, NAME("Color Temperature"), 3, 10, kColorTemperature},
    {0x15, NAME("Night View C.T"), 50, 100, {}},
    {0x26, NAME("Gama"), 3, 7, kGamma},
    {0x40, NAME("Color Enchance"), 0, 10, {}},
    {0x41, NAME("CR Enhance"), 2, 10, {}},
    {0x42, NAME("Black Level"), 50, 100, {}},
    {0x44, NAME("Super Resolution"), 1, 5, {}},
    {0x49, NAME("Gray Response"), 1, 4, kResponse},
    {0x48, NAME("DyDs TECH"), 2, 8, kMotion},
    {0x47, NAME("Localdimming"), 4, 6, kLocalDimming, bit(0)},
    {0x46, NAME("Halo Control"), 40, 100, {}, bit(1)},
    {0xD8, NAME("Low Blue Light"), 0, 4, {}},
    {0xDA, NAME("Light Sensor"), 0, 1, kSwitch},
    {0x4A, NAME("HDR"), 0, 3, kHdr},
    {0x45, NAME("Night Vision"), 0, 4, kNightVision},
    {0x43, NAME("Adaptive-Sync"), 1, 1, kSwitch},
    {0xE4, NAME("Game Rush"), 0, 1, kSwitch},
    {0x3D, NAME("Game Crosshair"), 0, 1, kSwitch, kGame},
    {0x34, NAME("Crosshair Shape"), 1, 6, kShape, kGame},
    {0x32, NAME("Crosshair Color"), 0, 7, kColor, kGame},
    {0xFA, NAME("Crosshair Place"), 2, 4, kHeight, kGame},
    {0x39, NAME("Dynamic Crosshair"), 0, 1, kSwitch, kGame},
    {0x38, NAME("Dynamic Crosshair Color"), 7, 7, kColor, kGame},
    {0x3A, NAME("Dynamic Crosshair Size"), 1, 2, kSize, kGame},
    {0x63, NAME("HawkEye Vision"), 0, 1, kSwitch, kGame},
    {0x4D, NAME("HawkEye Zoom"), 1, 2, kZoom, kGame},
    {0x64, NAME("HawkEye Brightness"), 2, 4, kFive, kGame},
    {0x65, NAME("HawkEye Contrast"), 2, 4, kFive, kGame},
    {0x66, NAME("HawkEye Sharpness"), 2, 4, kFive, kGame},
    {0x30, NAME("Refresh Rate"), 0, 1, kSwitch, kGame},
    {0x31, NAME("Refresh Rate Place"), 0, 3, kCorner, kGame},
    {0x3E, NAME("Stopwatch"), 0, 1, kSwitch, kGame},
    {0x33, NAME("Stopwatch Time"), 1, 4, kCountUp, kGame},
    {0x35, NAME("Stopwatch Place"), 0, 3, kCorner, kGame},
    {0x3F, NAME("Game Time"), 0, 1, kSwitch, kGame},
    {0x36, NAME("Game Time Length"), 1, 4, kCountDown, kGame},
    {0x37, NAME("Game Time Place"), 0, 3, kCorner, kGame},
    {0x4B, NAME("Focus Dimming"), 0, 1, kSwitch, kGame},
    {0x4C, NAME("Focus Dimming Level"), 0, 2, kStrength, kGame},
    {0x50, NAME("Multi-window"), 0, 2, kWindows},
    {0x54, NAME("Inset Size"), 1, 2, kInsetSize},
    {0x55, NAME("Inset Place"), 1, 3, kInsetPlace},
    {0x57, NAME("Input Signal"), 1, 5, kInput},
    {0x60, NAME("Output Range"), 0, 2, kRange},
    {0x5F, NAME("USB Switch"), 0, 1, kUsb},
    {0xD5, NAME("USB Power"), 1, 1, kSwitch},
    {0xD6, NAME("DP Alt Mode"), 0, 1, kSwitch},
    {0xD7, NAME("DP/Type-C"), 1, 1, kLink},
    {0xD9, NAME("CEC"), 0, 1, kSwitch},
    {0x61, NAME("Quick Boot"), 0, 1, kSwitch},
    {0xF6, NAME("Audio Volume"), 30, 100, {}},
    {0xF7, NAME("Audio Mute"), 0, 1, kSwitch},
    {0xEA, NAME("Audio Mode"), 0, 2, kAudio},
    {0xC0, NAME("Show Time(s)"), 20, 100, {}},
    {0xC1, NAME("H-Position"), 50, 100, {}},
    {0xC2, NAME("V-Position"), 50, 100, {}},
    {0xC3, NAME("Transparency"), 0, 100, {}},
    {0xC4, NAME("Menu Lock"), 0, 1, kSwitch},
    {0xC5, NAME("Power LED"), 2, 4, kLed},
    {0xC6, NAME("Power Saving"), 0, 2, kSaving},
    {0xCC, NAME("OSD Language"), 2, 23, {}},
    {0xE3, NAME("No Signal Timer"), 15, 100, {}},
    {0xEB, NAME("Gravity Sensor"), 0, 1, kSwitch},
    {0xE0, NAME("AI Dual Mode"), 0, 1, kSwitch},
    {0xEC, NAME("Paper"), 0, 4, kPaper},
    {0xF1, NAME("Alignment"), 0, 3, kAlignment},
    {0xF2, NAME("Ruler"), 0, 2, kRuler},
    {0x3B, NAME("Alignment Aid"), 0, 1, kSwitch},
    {0x72, NAME("Matrix Brightness"), 10, 10, {}},
    {0x73, NAME("Playback Level"), 5, 10, {}},
    {0xF8, NAME("Composition"), 0, 5, kComposition},
    {0xF9, NAME("Eyeshield Remind"), 0, 8, kRest},
    {0x01, NAME("Pixel Shift"), 2, 3, kPixelShift, bit(2)},
    {0x02, NAME("Still Picture"), 1, 1, kSwitch, bit(2)},
    {0x03, NAME("Detection Rate"), 1, 2, kDetection, bit(2)},
    {0x04, NAME("Static Icon"), 1, 3, kDimming, bit(2)},
    {0x05, NAME("Care Running"), 0, 1, {}, bit(2)},
    {0x06, NAME("Taskbar"), 1, 3, kDimming, bit(2)},
    {0x07, NAME("Boundary"), 0, 3, kDimming, bit(2)},
    {0x08, NAME("Care Due"), 0, 1, {}, bit(2)},
    {0x09, NAME("Care Reminder"), 1, 1, kSwitch, bit(2)},
    {0x0A, NAME("Care Mode"), 1, 1, kCareMode, bit(2)},
    {0x0B, NAME("Care Interval"), 0, 3, kCareInterval, bit(2)},
    {0x0D, NAME("ISP"), 1, 1, kSwitch, bit(2)},
    {0x0E, NAME("Start care"), 0, 1, {}, bit(2)},
    {0x75, NAME("Light Mode"), 1, 5, kLightMode, kGame}, // behind the screen and at the foot
    {0x76, NAME("Light Effect"), 0, 4, kLightEffect, kGame},
    {0x77, NAME("Light Brightness"), 60, 100, {}, kGame},
    {0x78, NAME("Light Speed"), 5, 10, {}, kGame},
    {0x79, NAME("Light Color"), 3, 8, kLightColor, kGame},
    {0x7A, NAME("Light Color R"), 255, 255, {}, kGame},
    {0x7B, NAME("Light Color G"), 160, 255, {}, kGame},
    {0x7C, NAME("Light Color B"), 64, 255, {}, kGame},
    {0x7D, NAME("Light Temperature"), 30, 100, {}, kGame},
    {0x7E, NAME("Light Level"), 1, 2, kLampLevel, kGame},
    {0x7F, NAME("Front Color"), 6, 7, kColor, kGame},
    {0x80, NAME("Rear Color"), 4, 7, kColor, kGame},
    {0x81, NAME("Front Brightness"), 40, 100, {}, kGame},
    {0x82, NAME("Rear Brightness"), 60, 100, {}, kGame},
    {0x83, NAME("Rhythm Source"), 1, 1, kRhythmSource, kGame},
    {0x84, NAME("Rhythm Level"), 2, 4, kFive, kGame},
    {0x85, NAME("Light Direction"), 0, 1, kLightDirection, kGame},
    {0x86, NAME("Rhythm Color"), 0, 0xFFFF, {}, kGame},
    {0x88, NAME("Rhythm Color L"), 0, 0xFFFF, {}, kGame},
    {0x89, NAME("Rhythm Color R"), 0, 0xFFFF, {}, kGame},
    {0x8A, NAME("Light in Standby"), 0, 1, kSwitch, kGame},
    {0x8B, NAME("Dark with the Screen"), 1, 1, kSwitch, kGame},
    {0x8C, NAME("Light Timer"), 0, 3, kLightTimer, kGame},
    {0x8D, NAME("Soft Changes"), 1, 1, kSwitch, kGame},
    {0xE5, NAME("Lamp Belt Color"), 5, 7, kColor, kGame},
    {0xE6, NAME("Lamp Belt Brightness"), 1, 2, kLampLevel, kGame},
    {0xE7, NAME("Lamp Belt Effect"), 0, 5, kBeltEffect, kGame},
    {0xE8, NAME("Lamp Belt Front Color"), 3, 7, kColor, kGame},
    {0xE9, NAME("Lamp Belt Rear Color"), 5, 7, kColor, kGame},
};

// Odd value of each mode; the next even one is the same mode with the user's own picture.
constexpr OsdOption kScenes[] = {
    {1, NAME("Standard")},        {3, NAME("CAD/CAM")},      {5, NAME("Animate")},
    {7, NAME("Art Design")},      {9, NAME("Movie")},        {11, NAME("Reading")},
    {13, NAME("Night")},          {15, NAME("Eye Care")},    {17, NAME("Light Programme")},
    {19, NAME("Dark Programme")}, {21, NAME("E-Book")},      {23, NAME("Zelmar")},
    {25, NAME("MPCS/ULL FPS")},   {27, NAME("MPCS/LD")},     {29, NAME("Display P3")},
    {31, NAME("sRGB(2.2)")},      {33, NAME("DCI-P3(D65)")}, {35, NAME("HDTV Video")},
    {37, NAME("NTSC Video")},     {39, NAME("PAL & SECAM")}, {41, NAME("Print(P3-D50)")},
    {43, NAME("Photo(P3-D65)")},  {45, NAME("Web(sRGB)")},   {47, NAME("AdobeRGB")},
    {49, NAME("Native")},         {51, NAME("EBU")},         {53, NAME("SMPTE-C")},
    {55, NAME("Rec.709")},        {57, NAME("DICOM")},       {59, NAME("Paper")},
    {61, NAME("Adobe")},          {63, NAME("sRGB")},        {65, NAME("DCI-P3")},
    {81, NAME("AdobeRGB(D50)")},  {83, NAME("Softproof")},   {85, NAME("Softproof(D55)")},
    {87, NAME("Softproof(D58)")},
};

#undef NAME

struct CodeRange
{
    int first;
    int last;
};
constexpr CodeRange kCodeRanges[] = {{0x01, 0x0E}, {0x10, 0x10}, {0x12, 0x12}, {0x14, 0x1E}, {0x22, 0x22},
                                     {0x24, 0x24}, {0x26, 0x26}, {0x30, 0x4D}, {0x50, 0x57}, {0x59, 0x6A},
                                     {0x70, 0x8D}, {0x9B, 0xA0}, {0xC0, 0xC8}, {0xCC, 0xCC}, {0xD0, 0xDA},
                                     {0xE0, 0xE1}, {0xE3, 0xF2}, {0xF6, 0xFB}, {0xFD, 0xFD}};

std::vector<std::uint8_t> listCodes()
{
    std::vector<std::uint8_t> codes;
    for (const CodeRange &range : kCodeRanges) {
        for (int code = range.first; code <= range.last; ++code)
            codes.push_back(static_cast<std::uint8_t>(code));
    }
    return codes;
}

} // namespace

std::span<const std::uint8_t> commandCodes()
{
    static const std::vector<std::uint8_t> codes = listCodes();
    return codes;
}

OsdFunction osdFunction(std::uint8_t code)
{
    const auto found = std::find_if(std::begin(kMenu), std::end(kMenu),
                                    [code](const OsdFunction &function) { return function.code == code; });
    if (found != std::end(kMenu))
        return *found;
    if (code >= 0x16 && code <= 0x1E) // the three user presets, red, green and blue each
        return {code, "", 80, 100, {}};
    if ((code >= 0x59 && code <= 0x5E) || (code >= 0x9B && code <= 0xA0)) // saturation and hue of six colours
        return {code, "", 50, 100, {}};
    return {code, "", 0, 255, {}};
}

std::span<const OsdFunction> osdMenu()
{
    return kMenu;
}

std::uint16_t neededByMenu()
{
    std::uint16_t bits = 0;
    for (const OsdFunction &function : kMenu)
        bits |= function.needs;
    return bits;
}

QString osdName(const OsdFunction &function)
{
    return *function.name == '\0' ? QString() : QObject::tr(function.name);
}

QString osdValueText(const OsdFunction &function, std::uint16_t value)
{
    for (const OsdOption &option : function.options) {
        if (option.value == value)
            return QObject::tr(option.name);
    }
    return QString::number(value);
}

std::uint16_t osdStep(const OsdFunction &function, std::uint16_t value, int direction)
{
    if (function.options.empty())
        return static_cast<std::uint16_t>(std::clamp(value + direction, 0, int(function.maximum)));
    const auto isOn = [value](const OsdOption &option) { return option.value == value; };
    const auto on = std::find_if(function.options.begin(), function.options.end(), isOn) - function.options.begin();
    const auto last = static_cast<std::ptrdiff_t>(function.options.size()) - 1;
    return function.options[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(on + direction, 0, last))].value;
}

QString sceneName(int mode)
{
    const int factory = mode % 2 == 0 ? mode - 1 : mode;
    QString name = QObject::tr("Mode %1").arg(mode);
    for (const OsdOption &scene : kScenes) {
        if (scene.value == factory)
            name = QObject::tr(scene.name);
    }
    const QString half = mode % 2 == 0 ? QObject::tr("Custom") : QObject::tr("Default");
    return QObject::tr("%1 · %2").arg(name, half);
}

} // namespace virtualdesk
