#pragma once

#include <cstdint>
#include <mutex>
#include <optional>

#include "platform/monitorconfiguration.h"

// One request to a monitor, as it goes over the wire and into the record of the link. Commands are made of these: see
// transport.h.

/// Keeps other threads' commands out while held; the holder itself may go on sending.
[[nodiscard]] std::unique_lock<std::recursive_mutex> lockTransport();

/// Whether a request opens another attempt at what failed, for the record of the link only.
enum class Attempt { First, Again };

/// What GetVcpValue returns when the monitor did not answer.
inline constexpr std::uint32_t kNoAnswer = 0xFFFFFFFF;

/// The monitor that commands go to; nothing when it could not be fetched. Under lockTransport.
std::optional<platform::PhysicalMonitorHandle> selectedMonitor();

/// One read request of a table stream to a monitor; no answer without one.
platform::VcpReply requestBlockPart(std::optional<platform::PhysicalMonitorHandle> monitor, std::uint8_t code,
                                    Attempt attempt = Attempt::First);

/// One read request to the monitor that commands go to: its whole reply; no answer without one. Under lockTransport.
platform::VcpReply readVcp(std::uint8_t code, Attempt attempt);

/// One read request. The current value; kNoAnswer when the monitor did not answer, 0 when there is no monitor at all.
std::uint32_t GetVcpValue(std::uint8_t code, Attempt attempt = Attempt::First);

/// One write request. False when the monitor did not take it or there is none.
bool SetVcpValue(std::uint8_t code, std::uint32_t value, Attempt attempt = Attempt::First);
