#include "virtualdesk/monitormemory.h"

#include <algorithm>
#include <cstring>

#include "virtualdesk/osdfunctions.h"

namespace virtualdesk {

namespace {

constexpr int kCareSeconds = 6 * 60;

bool isReadOnly(std::uint8_t code)
{
    return code == kCapabilityCode || code == kFirmwareCode || code == kOfficeSizeCode;
}

/// What the monitor alone sets, though it has a value from the factory.
bool isState(std::uint8_t code)
{
    return code == kCareRunningCode || code == kCareDueCode;
}

bool isCustom(int mode)
{
    return mode % 2 == 0 && mode > 0 && mode <= kLastMode;
}

/// Whether a paper's width, or its height, which has bit 15, lies within the office area.
bool isPaperSize(const MonitorModel &model, std::uint32_t value)
{
    constexpr std::uint32_t kHeight = 0x8000;
    return value <= ((value & kHeight) != 0 ? kHeight | model.officeHeight : model.officeWidth);
}

} // namespace

MonitorMemory::MonitorMemory(const MonitorModel &model) : m_model(model)
{
    resetToFactory();
    m_values[kCapabilityCode] = model.capabilities;
    m_values[kFirmwareCode] = model.firmware;
    m_values[kOfficeSizeCode] = model.officeHeight;
    changeScene(model.scene);
}

Reply MonitorMemory::answer(std::uint8_t code) const
{
    const std::uint16_t maximum = code == kOfficeSizeCode ? m_model.officeWidth
                                  : code == kSceneCode    ? kLastMode
                                  : isReadOnly(code)      ? 0xFFFF
                                                          : osdFunction(code).maximum;
    return {0, m_values[code], maximum};
}

bool MonitorMemory::take(std::uint8_t code, std::uint32_t value)
{
    if (code == kOfficeSizeCode && isPaperSize(m_model, value))
        return true; // which changes nothing that can be read back
    const OsdFunction function = osdFunction(code);
    const auto isOption = [value](const OsdOption &option) { return option.value == value; };
    const bool known = code == kSceneCode ? value <= kLastMode && offersScene(m_model, static_cast<int>(value))
                       : function.options.empty()
                           ? true
                           : std::any_of(function.options.begin(), function.options.end(), isOption);
    const bool isNumber = function.options.empty() && code != kSceneCode;
    const bool inRange = !isNumber || value <= function.maximum;
    const bool isTaken = known && !isReadOnly(code) && !isState(code);
    if (isTaken) {
        const std::uint32_t limit = isNumber ? function.maximum : 0xFFFF;
        set(code, static_cast<std::uint16_t>(std::min(value, limit)));
        if (function.shows != 0)
            m_values[function.shows] = 1;
    }
    return isTaken && inRange;
}

void MonitorMemory::set(std::uint8_t code, std::uint16_t value)
{
    if (code == kSceneCode)
        return changeScene(value);
    if (code == kResetCode)
        return resetToFactory();
    m_values[code] = value;
    if (code == kCareNowCode && value != 0 && !m_careEnds.isValid()) {
        m_values[kCareRunningCode] = 1;
        m_careEnds = m_now.addSecs(kCareSeconds);
    }
    const int mode = m_values[kSceneCode];
    const auto codes = blockCodes();
    const auto found = std::find(codes.begin(), codes.end(), code);
    // A factory mode forgets what was changed in it as soon as it is left.
    if (found != codes.end() && isCustom(mode))
        m_blocks[static_cast<std::size_t>(mode)][static_cast<std::size_t>(found - codes.begin())] =
            static_cast<std::uint8_t>(value);
}

void MonitorMemory::passTime(const QDateTime &now)
{
    m_now = now;
    if (!m_careEnds.isValid() || now < m_careEnds)
        return;
    m_careEnds = {};
    for (const std::uint8_t code : {kCareRunningCode, kCareDueCode, kCareNowCode})
        m_values[code] = 0;
}

void MonitorMemory::changeScene(int mode)
{
    m_values[kSceneCode] = static_cast<std::uint16_t>(mode);
    if (mode < kFirstMode || mode > kLastMode)
        return;
    const SceneBlock &kept = block(mode);
    const auto codes = blockCodes();
    for (std::size_t i = 0; i < codes.size(); ++i)
        m_values[codes[i]] = kept[i];
}

void MonitorMemory::resetToFactory()
{
    for (const std::uint8_t code : commandCodes()) {
        if (!isReadOnly(code))
            m_values[code] = osdFunction(code).factory;
    }
    for (int mode = kFirstMode; mode <= kLastMode; ++mode)
        m_blocks[static_cast<std::size_t>(mode)] = factoryBlock(mode);
    m_careEnds = {}; // its code says that none runs
    changeScene(kFirstMode);
}

void MonitorMemory::setBlock(int mode, const QByteArray &bytes)
{
    if (!isCustom(mode))
        return;
    const auto size = std::min<std::size_t>(static_cast<std::size_t>(bytes.size()), kBlockSize);
    std::memcpy(m_blocks[static_cast<std::size_t>(mode)].data(), bytes.constData(), size);
    if (m_values[kSceneCode] == mode)
        changeScene(mode);
}

} // namespace virtualdesk
