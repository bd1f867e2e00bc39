#include "virtualdesk/monitormodel.h"

#include <algorithm>
#include <cstring>

#include "virtualdesk/osdfunctions.h"

namespace virtualdesk {

namespace {

constexpr std::uint16_t productLine(unsigned line)
{
    return static_cast<std::uint16_t>(line << 4);
}

// The first one has everything that the menu knows.
const MonitorModel kModels[] = {
    {"Q27-OLED", "QVL", 0x2701,
     static_cast<std::uint16_t>(neededByMenu() | OledPanel | ExtraScene | productLine(1) | GameFunctions), 0x0102, 597,
     336, 10},
    {"Q32-MPCS", "QVL", 0x3202, productLine(2) | MotionIsMpcs, 0x0203, 708, 399, 2},
    {"Q34-MINI", "QVL", 0x3403, LocalDimming | HaloControl | productLine(3) | GameFunctions, 0x0300, 797, 334, 1},
};

// The hues end C, M, Y and the saturations begin R, G, B, Y: the firmware's own order.
constexpr std::uint8_t kBlockCodes[] = {
    0x10, 0x12, 0x87, 0x40, 0x41, 0x42, 0x14,             // brightness to colour temperature
    0x16, 0x17, 0x18, 0x19, 0x1A, 0x1B, 0x1C, 0x1D, 0x1E, // user presets 1 to 3, red, green, blue
    0x9B, 0x9D, 0x9F, 0x9E, 0xA0, 0x9C,                   // hue
    0x59, 0x5B, 0x5D, 0x5A, 0x5C, 0x5E,                   // saturation
    0xD8, 0x26, 0x44, 0x49, 0x15, 0xDA, 0x47, 0x46, 0x48};

// What a mode changes of the plain factory picture.
struct SceneTaste
{
    int mode;
    std::uint8_t brightness, contrast, sharpness, colorTemperature, gamma, saturation, lowBlueLight;
};
constexpr SceneTaste kTastes[] = {
    {1, 50, 50, 4, 3, 3, 50, 0},  {3, 45, 58, 6, 3, 7, 50, 0},  {5, 60, 54, 5, 4, 3, 66, 0},
    {7, 52, 50, 4, 3, 3, 54, 0},  {9, 62, 50, 4, 3, 4, 58, 0},  {11, 38, 45, 3, 1, 3, 40, 2},
    {13, 22, 44, 3, 0, 3, 42, 3}, {15, 34, 46, 3, 0, 3, 42, 4}, {17, 55, 52, 5, 3, 3, 46, 1},
    {19, 28, 56, 5, 2, 3, 46, 1}, {21, 36, 48, 4, 1, 3, 0, 2},  {23, 70, 60, 6, 6, 3, 70, 0},
    {25, 80, 55, 6, 5, 2, 60, 0}, {27, 72, 55, 6, 5, 3, 60, 0}, {59, 40, 42, 3, 0, 3, 45, 1}};
constexpr SceneTaste kColorManaged = {0, 48, 50, 4, 3, 3, 50, 0}; // every other mode: a calibrated space

constexpr std::uint8_t kSystemCodes[] = {kSceneCode, kResetCode, kCapabilityCode, kFirmwareCode, kOfficeSizeCode};

int byteOf(std::uint8_t code)
{
    return static_cast<int>(std::find(std::begin(kBlockCodes), std::end(kBlockCodes), code) - std::begin(kBlockCodes));
}

void putText(QByteArray &edid, int offset, std::uint8_t tag, const char *text)
{
    edid[offset + 3] = static_cast<char>(tag);
    QByteArray padded(text);
    if (padded.size() < 13)
        padded.append('\n');
    padded = padded.leftJustified(13, ' ', true);
    edid.replace(offset + 5, 13, padded);
}

} // namespace

std::span<const MonitorModel> monitorModels()
{
    return kModels;
}

const MonitorModel *findModel(const QString &name)
{
    const auto found = std::find_if(std::begin(kModels), std::end(kModels),
                                    [&name](const MonitorModel &model) { return name == QLatin1String(model.name); });
    return found == std::end(kModels) ? nullptr : found;
}

std::span<const std::uint8_t> blockCodes()
{
    return kBlockCodes;
}

SceneBlock factoryBlock(int mode)
{
    const int factory = mode % 2 == 0 ? mode - 1 : mode;
    const auto found = std::find_if(std::begin(kTastes), std::end(kTastes),
                                    [factory](const SceneTaste &taste) { return taste.mode == factory; });
    const SceneTaste &taste = found == std::end(kTastes) ? kColorManaged : *found;

    SceneBlock block{};
    for (std::size_t i = 0; i < std::size(kBlockCodes); ++i)
        block[i] = static_cast<std::uint8_t>(osdFunction(kBlockCodes[i]).factory);
    const auto put = [&block](std::uint8_t code, std::uint8_t value) {
        block[static_cast<std::size_t>(byteOf(code))] = value;
    };
    put(0x10, taste.brightness);
    put(0x12, taste.contrast);
    put(0x87, taste.sharpness);
    put(0x14, taste.colorTemperature);
    put(0x26, taste.gamma);
    put(0xD8, taste.lowBlueLight);
    for (std::uint8_t code = 0x59; code <= 0x5E; ++code)
        put(code, taste.saturation);
    return block;
}

bool hasFunction(const MonitorModel &model, std::uint8_t code)
{
    const auto isIn = [code](std::span<const std::uint8_t> codes) {
        return std::find(codes.begin(), codes.end(), code) != codes.end();
    };
    if (const std::uint16_t needs = osdFunction(code).needs; needs != 0)
        return (model.capabilities & needs) != 0;
    return *osdFunction(code).name != '\0' || isIn(kBlockCodes) || isIn(kSystemCodes);
}

bool offersScene(const MonitorModel &model, int mode)
{
    if (mode == 23 || mode == 24)
        return (model.capabilities & ExtraScene) != 0;
    return (mode >= kFirstMode && mode <= 66) || (mode >= 81 && mode <= 88);
}

QByteArray buildEdid(const MonitorModel &model)
{
    static constexpr unsigned char kHeader[8] = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};
    QByteArray edid(128, '\0');
    std::memcpy(edid.data(), kHeader, sizeof kHeader);
    // Three letters of five bits each, A is 1; the word is big-endian, unlike the product code.
    const int word = (model.maker[0] - 0x40) << 10 | (model.maker[1] - 0x40) << 5 | (model.maker[2] - 0x40);
    edid[8] = static_cast<char>(word >> 8);
    edid[9] = static_cast<char>(word & 0xFF);
    edid[10] = static_cast<char>(model.product & 0xFF);
    edid[11] = static_cast<char>(model.product >> 8);
    edid[16] = 20; // week
    edid[17] = 34; // year since 1990
    edid[18] = 1;  // EDID 1.4
    edid[19] = 4;
    edid[20] = static_cast<char>(0xB5);                   // digital, 10 bits, DisplayPort
    edid[21] = static_cast<char>(model.officeWidth / 10); // cm
    edid[22] = static_cast<char>(model.officeHeight / 10);
    edid[23] = 120; // gamma 2.2
    edid[24] = 0x3A;
    // 2560 x 1440 at 60 Hz, reduced blanking: clock 241.5 MHz.
    static constexpr unsigned char kTiming[17] = {0x56, 0x5E, 0x00, 0xA0, 0xA0, 0xA0, 0x29, 0x50, 0x30,
                                                  0x20, 0x35, 0x00, 0x55, 0x50, 0x21, 0x00, 0x00};
    std::memcpy(edid.data() + 54, kTiming, sizeof kTiming);
    edid[71] = 0x1A;
    putText(edid, 72, 0xFF, "0000001");
    putText(edid, 90, 0xFC, model.name);
    putText(edid, 108, 0xFE, "simulated");
    int sum = 0;
    for (const char byte : std::as_const(edid))
        sum += static_cast<unsigned char>(byte);
    edid[127] = static_cast<char>((256 - sum % 256) % 256);
    return edid;
}

} // namespace virtualdesk
