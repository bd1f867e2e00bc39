#pragma once

#include <cstdint>

#include <QDateTime>

namespace virtualdesk {

/// Announces a command of the vendor protocol.
inline constexpr std::uint8_t kVendorCode = 0x99;

enum class RequestKind { Read, Write };

/// What became of a request.
enum class Outcome {
    Done,       ///< answered, or taken
    Adjusted,   ///< a write that was taken, but its value was out of range: limited or ignored
    Garbled,    ///< answered with wrong numbers
    Unexpected, ///< refused: it breaks the vendor protocol
    Refused,    ///< refused by a fault that was asked for
    Lost,       ///< done, but its reply never arrived
    Deaf,       ///< the monitor does not answer at all
    Unplugged   ///< nobody is on the line
};

/// What an outcome is called: a source text, which the panel translates.
const char *wordOf(Outcome outcome);

/// One request as the monitor saw it.
struct Request
{
    QDateTime time;
    RequestKind kind = RequestKind::Read;
    std::uint8_t code = 0;
    std::uint32_t value = 0;   ///< written, or answered as current value
    std::uint32_t maximum = 0; ///< answered
    Outcome outcome = Outcome::Done;

    /// Whether the caller was told that it worked.
    bool ok() const { return outcome <= Outcome::Garbled; }
};

/// What the caller of a request gets.
struct Reply
{
    std::uint32_t error = 0; ///< 0, or the graphics DDC/CI error number that Windows would leave
    std::uint32_t current = 0;
    std::uint32_t maximum = 0;

    bool ok() const { return error == 0; }
};

/// The error numbers used, with their names in winerror.h.
inline constexpr std::uint32_t kErrorNoSuchDevice = 0xC0262580;  ///< ERROR_GRAPHICS_I2C_DEVICE_DOES_NOT_EXIST
inline constexpr std::uint32_t kErrorTransmitting = 0xC0262582;  ///< ERROR_GRAPHICS_I2C_ERROR_TRANSMITTING_DATA
inline constexpr std::uint32_t kErrorReceiving = 0xC0262583;     ///< ERROR_GRAPHICS_I2C_ERROR_RECEIVING_DATA
inline constexpr std::uint32_t kErrorNotSupported = 0xC0262584;  ///< ERROR_GRAPHICS_DDCCI_VCP_NOT_SUPPORTED
inline constexpr std::uint32_t kErrorInvalidHandle = 0xC026258C; ///< ERROR_GRAPHICS_INVALID_PHYSICAL_MONITOR_HANDLE

/// What a program did wrong, as far as a monitor can tell.
struct ProtocolFaults
{
    int unannounced = 0; ///< a command code without 0x99 directly before it
    int mismatched = 0;  ///< announced as the other kind, or with another value
    int stray = 0;       ///< 0xFE or 0xFF outside a table stream
    int brokenPairs = 0; ///< 0x99 that was not followed by its command code
    int interleaved = 0; ///< requests of two threads mixed within a pair or at the same time
    int badValues = 0;   ///< values out of range, or writes to a code that can only be read
    int openStreams = 0; ///< table streams left before their closing 0xFE

    /// All but openStreams, which a short table read leaves behind rightly.
    int total() const { return unannounced + mismatched + stray + brokenPairs + interleaved + badValues; }
};

} // namespace virtualdesk
