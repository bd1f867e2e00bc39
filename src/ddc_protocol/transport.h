#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "ddc_protocol/command.h"
#include "ddc_protocol/vcprequest.h"
#include "platform/monitorconfiguration.h"

// The vendor commands over DDC/CI. Every command is a request on the vendor code 0x99 and then one on its own code.
// All functions may be called from any thread; one lock keeps two commands from interleaving. A failed write takes up
// to 200 ms, a failed read 1.25 s, beside the monitor's own time. What the monitor takes, refuses and tells goes into
// the snapshot here, under the lock and so in the order of the wire.

/// The last packet built: six bytes of the row, the value high byte first, and the XOR checksum. Only the vendor code
/// (byte 3) and the command code (byte 5) of it reach the wire: the platform frames its requests itself.
extern std::array<std::uint8_t, 9> commandPacket;

/// The last table read, its data from the third byte on. Guarded by lockTransport.
extern std::vector<std::uint8_t> tableBuffer;

/// The low 8 bits of the last table read's result; the failure -1 reads back as 255.
extern std::atomic<std::uint8_t> tableReadLength;

/// While set, Korvu_SetCommandVal sends nothing and returns false. Set by the main window while it is built, and
/// by the set of pages while it fills them.
extern std::atomic<bool> commandsSuspended;

/// Why the device session searches: see ReloadReason. Written by the session, and by a failed command.
extern std::atomic<int> reloadEdidType;

/// The values of reloadEdidType.
enum ReloadReason {
    kReconnect = 0,      ///< after a failed command: find the monitors again, read nothing
    kFullRead = 1,       ///< start-up
    kRestartProgram = 2, ///< start a new copy of the program and quit
    kSceneBlockOnly = 3, ///< read the block of the current scene mode
    kIdle = 255,
};

/// What callers hand to the commands as their last argument, which the transport does not use.
inline constexpr std::uint16_t kRetryCount = 10;

/// Fills commandPacket for a command and its value; returns the packet's length, 9.
int BuildCommandPacket(COMMAND_set_Type command, std::uint16_t value);

/// Writes a command, in at most 2 attempts 100 ms apart. True when both requests went through. After the second
/// failure the session is asked to find the monitor again. The last argument is not used.
bool Korvu_SetCommandVal(COMMAND_set_Type command, std::uint16_t value, std::uint16_t retries);

/// Reads a command, in at most 5 attempts 250 ms apart. The value; -1 when the monitor did not answer, 0 when there is
/// no monitor (callers rely on it as "a value"). The last argument is not used.
int Korvu_GetCommandVal(COMMAND_set_Type command, std::uint16_t retries);

/// Korvu_GetCommandVal without log lines.
int Korvu_GetCommandValQuiet(COMMAND_set_Type command, std::uint16_t retries);

/// Reads a command once, without retry and without a log line; nothing when the monitor did not answer or there is
/// none.
std::optional<int> readCommandOnce(COMMAND_set_Type command);

/// Reads a command once, without retry: current and maximum value, both 0 when the monitor did not answer. False only
/// when there is no monitor.
bool Korvu_GetCommandValMax(COMMAND_set_Type command, std::uint32_t &current, std::uint32_t &maximum);

/// Reads a block of length bytes (rounded up to a multiple of 4) that the selector chooses. The first data byte in
/// tableBuffer, or null when there is no monitor; tableReadLength tells how much was read. Hold lockTransport while
/// using the bytes.
const std::uint8_t *Korvu_ReadCommandTable(COMMAND_set_Type command, std::uint16_t selector, std::uint16_t length);

/// Korvu_ReadCommandTable without retries.
const std::uint8_t *readCommandTableOnce(COMMAND_set_Type command, std::uint16_t selector, std::uint16_t length);

/// The table stream itself: requests a, b and c, then the continuation code until length bytes are there. buffer takes
/// 2 bytes of room and then the data, length rounded up to a multiple of 4 and at least 4. Returns the number of data
/// bytes; 0 when the stream or b got lost, -1 when c was not answered. Without a monitor no request is answered.
int DDCCIReadTable(std::optional<platform::PhysicalMonitorHandle> monitor, std::uint8_t a, std::uint8_t b,
                   std::uint8_t c, std::uint8_t *buffer, int length);

/// DDCCIReadTable without retries.
int readTableOnce(std::optional<platform::PhysicalMonitorHandle> monitor, std::uint8_t a, std::uint8_t b,
                  std::uint8_t c, std::uint8_t *buffer, int length);

/// Who finds the monitor again after a failed write; empty takes it away. Called on the thread that wrote.
void setReconnectHandler(std::function<void()> handler);
