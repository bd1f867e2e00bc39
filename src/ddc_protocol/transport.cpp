#include "ddc_protocol/transport.h"

#include <algorithm>

#include <QDebug>

#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/monitoridentity.h"
#include "ddc_protocol/writecounts.h"
#include "platform/desk.h"

using platform::milliseconds;

std::array<std::uint8_t, 9> commandPacket = {};
std::vector<std::uint8_t> tableBuffer(2);
std::atomic<std::uint8_t> tableReadLength = 0;
std::atomic<bool> commandsSuspended = false;
std::atomic<int> reloadEdidType = kFullRead;

namespace {

constexpr int kWriteAttempts = 2;
constexpr int kReadAttempts = 5;
constexpr milliseconds kWritePause{100};
constexpr milliseconds kReadPause{250};
constexpr std::size_t kPacketVendorByte = 3;
constexpr std::size_t kPacketCodeByte = 5;

std::function<void()> s_reconnect;

QString hex(std::uint32_t number)
{
    return QString::number(number, 16);
}

/// Whether there is another attempt.
bool pause(milliseconds duration)
{
    return platform::desk().clock().sleepBeforeRetry(duration);
}

Command commandOf(COMMAND_set_Type row)
{
    return Command(commandCode(row));
}

/// A scene mode out of range is no answer to build on: the session asks again.
void keepTold(COMMAND_set_Type row, std::uint32_t value)
{
    const bool isMode = value >= 1 && value <= kHighestSceneMode;
    if (!monitorList.empty() && (commandOf(row) != Command::SceneMode || isMode))
        deviceState.told(commandOf(row), static_cast<int>(value));
}

Attempt attemptOf(int number)
{
    return number == 0 ? Attempt::First : Attempt::Again;
}

bool writeOnce(std::uint16_t value, Attempt attempt)
{
    for (const std::size_t byte : {kPacketVendorByte, kPacketCodeByte}) {
        if (SetVcpValue(commandPacket[byte], value, byte == kPacketVendorByte ? attempt : Attempt::First))
            continue;
        qDebug().noquote().nospace() << "Fail to retry errorCode: 03 " << hex(commandPacket[byte]);
        return false;
    }
    return true;
}

int readCommand(COMMAND_set_Type command, bool logged)
{
    const auto lock = lockTransport();
    BuildCommandPacket(command, 0);
    std::uint32_t value = kNoAnswer;
    for (int attempt = 0; attempt < kReadAttempts; ++attempt) {
        GetVcpValue(commandPacket[kPacketVendorByte], attemptOf(attempt));
        value = GetVcpValue(commandPacket[kPacketCodeByte]);
        if (value < kNoAnswer) {
            keepTold(command, value);
            break;
        }
        if (logged)
            qDebug().noquote().nospace() << "Faile to retry errorCode: 01 99 " << hex(commandPacket[kPacketCodeByte]);
        if (!pause(kReadPause))
            break;
    }
    return static_cast<int>(value);
}

} // namespace

void setReconnectHandler(std::function<void()> handler)
{
    const auto lock = lockTransport();
    s_reconnect = std::move(handler);
}

int BuildCommandPacket(COMMAND_set_Type command, std::uint16_t value)
{
    const auto lock = lockTransport();
    const CommandRow &row = commandTable[static_cast<std::size_t>(command)];
    const std::size_t length = (row[2] & 0x7F) + 5u;
    std::uint8_t checksum = 0;
    for (std::size_t i = 0; i + 1 < length; ++i) {
        const bool high = i == length - 3;
        const bool low = i == length - 2;
        commandPacket[i] = high  ? static_cast<std::uint8_t>(value >> 8)
                           : low ? static_cast<std::uint8_t>(value)
                                 : row[i];
        checksum ^= commandPacket[i];
    }
    commandPacket[length - 1] = checksum;
    return static_cast<int>(length);
}

bool Korvu_SetCommandVal(COMMAND_set_Type command, std::uint16_t value, std::uint16_t)
{
    std::function<void()> reconnect;
    {
        const auto lock = lockTransport(); // first: whoever suspends for a moment holds it, and others only wait
        if (commandsSuspended)
            return false;
        BuildCommandPacket(command, value);
        for (int attempt = 0; attempt < kWriteAttempts; ++attempt) {
            if (writeOnce(value, attemptOf(attempt))) {
                deviceState.taken(commandOf(command), value);
                writeCounts.note(monitorIdentity(), commandCode(command));
                return true;
            }
            if (!pause(kWritePause))
                break;
        }
        deviceState.refused(commandOf(command), value);
        qDebug().noquote().nospace() << "Write faile, errorCode: 03 99" << hex(commandPacket[kPacketCodeByte]) << "\r";
        reloadEdidType = kReconnect;
        reconnect = s_reconnect;
    }
    if (reconnect)
        reconnect();
    return false;
}

int Korvu_GetCommandVal(COMMAND_set_Type command, std::uint16_t)
{
    return readCommand(command, true);
}

int Korvu_GetCommandValQuiet(COMMAND_set_Type command, std::uint16_t)
{
    return readCommand(command, false);
}

std::optional<int> readCommandOnce(COMMAND_set_Type command)
{
    const auto lock = lockTransport();
    if (monitorList.empty())
        return {};
    BuildCommandPacket(command, 0);
    GetVcpValue(commandPacket[kPacketVendorByte]);
    const std::uint32_t value = GetVcpValue(commandPacket[kPacketCodeByte]);
    if (value == kNoAnswer)
        return {};
    keepTold(command, value);
    return static_cast<int>(value);
}

bool Korvu_GetCommandValMax(COMMAND_set_Type command, std::uint32_t &current, std::uint32_t &maximum)
{
    const auto lock = lockTransport();
    if (monitorList.empty())
        return false;
    BuildCommandPacket(command, 0);
    GetVcpValue(commandPacket[kPacketVendorByte]);
    const platform::VcpReply reply = readVcp(commandPacket[kPacketCodeByte], Attempt::First);
    current = reply.current;
    maximum = reply.maximum;
    return true;
}

using ReadTable = decltype(&DDCCIReadTable);

static const std::uint8_t *readTable(COMMAND_set_Type command, std::uint16_t selector, std::uint16_t length,
                                     ReadTable read)
{
    const auto lock = lockTransport();
    BuildCommandPacket(command, selector);
    if (monitorList.empty())
        return nullptr;
    tableBuffer.assign(2 + std::max<std::size_t>(4, (length + 3u) / 4 * 4), 0);
    tableReadLength =
        static_cast<std::uint8_t>(read(selectedMonitor(), kVendorCode, commandPacket[kPacketCodeByte],
                                       static_cast<std::uint8_t>(selector & 0xFF), tableBuffer.data(), length));
    return tableBuffer.data() + 2;
}

const std::uint8_t *Korvu_ReadCommandTable(COMMAND_set_Type command, std::uint16_t selector, std::uint16_t length)
{
    return readTable(command, selector, length, &DDCCIReadTable);
}

const std::uint8_t *readCommandTableOnce(COMMAND_set_Type command, std::uint16_t selector, std::uint16_t length)
{
    return readTable(command, selector, length, &readTableOnce);
}
