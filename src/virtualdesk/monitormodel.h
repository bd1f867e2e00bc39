#pragma once

#include <array>
#include <cstdint>
#include <span>

#include <QByteArray>
#include <QString>

namespace virtualdesk {

/// What tells one simulated monitor model from another.
struct MonitorModel
{
    const char *name;           ///< as its EDID says, at most 13 characters
    const char *maker;          ///< three letters
    std::uint16_t product;      ///< product code
    std::uint16_t capabilities; ///< the capability word, see Capability
    std::uint16_t firmware;     ///< major in the high byte, minor in the low one
    std::uint16_t officeWidth;  ///< office area, horizontal, mm
    std::uint16_t officeHeight; ///< office area, vertical, mm
    std::uint8_t scene;         ///< the scene mode it wakes up in
};

/// Bits of the capability word; bits 4 and 5 are the product line, 1 to 3.
enum Capability : std::uint16_t {
    LocalDimming = 1u << 0,
    HaloControl = 1u << 1,
    OledPanel = 1u << 2,
    ExtraScene = 1u << 3,
    MotionIsMpcs = 1u << 6,
    GameFunctions = 1u << 10,
};

/// All models that the desk can show.
std::span<const MonitorModel> monitorModels();

/// A model by its name; null when there is none.
const MonitorModel *findModel(const QString &name);

inline constexpr std::uint8_t kSceneCode = 0x22;
inline constexpr std::uint8_t kResetCode = 0xC7;
inline constexpr std::uint8_t kCapabilityCode = 0xED;
inline constexpr std::uint8_t kFirmwareCode = 0xEE;
/// Its maximum is the office area's horizontal size, its current value the vertical one.
inline constexpr std::uint8_t kOfficeSizeCode = 0xEF;

// Care of the panel. While it runs the screen is black; when it is over none is due.
inline constexpr std::uint8_t kCareRunningCode = 0x05;
inline constexpr std::uint8_t kCareDueCode = 0x08;
inline constexpr std::uint8_t kCareNowCode = 0x0E;

inline constexpr int kFirstMode = 1;
inline constexpr int kLastMode = 90;
inline constexpr int kBlockSize = 40;

using SceneBlock = std::array<std::uint8_t, kBlockSize>;

/// The command codes of a scene mode's block, byte by byte; its last three bytes carry nothing.
std::span<const std::uint8_t> blockCodes();

/// The picture that a scene mode has from the factory; custom modes begin with their neighbour's.
SceneBlock factoryBlock(int mode);

/// Whether the model has something behind a command code, with a menu entry or without. One that has not answers all
/// the same, as the real ones do.
bool hasFunction(const MonitorModel &model, std::uint8_t code);

/// Whether the model offers the scene mode.
bool offersScene(const MonitorModel &model, int mode);

/// A 128-byte EDID of the model with name descriptor, preferred timing and checksum.
QByteArray buildEdid(const MonitorModel &model);

} // namespace virtualdesk
