#pragma once

#include <cstdint>
#include <mutex>

#include "usb-hid/accessorylink.h"
#include "usb-hid/accessorypackets.h"

// The way to the one accessory. Reports are only written, never read.

/// Whether the device is connected. Once it was found, true without looking again.
bool Fun_hid_find(std::uint16_t vendor, std::uint16_t product);

/// Opens the device when it was found and is not open yet; null otherwise, or when that fails.
platform::HidDevice *Fun_hid_open(std::uint16_t vendor, std::uint16_t product);

/// Forgets what was found and opened, so that the next reopenHid looks again.
void clearHidFlags();

/// Closes the shared handle and opens the accessory anew, unless the flags say that it is open.
void reopenHid();

/// Closes the shared handle if there is one.
void closeHid();

using HidLock = std::unique_lock<std::mutex>;

/// Keeps everybody else from writing to, closing and opening the accessory until the lock goes: for reports that belong
/// together. Who holds it writes with it.
[[nodiscard]] HidLock lockHid();

enum class HidWrite { Done, NoHandle, Failed };

/// Writes a report's bytes, exactly as many as it has, through the shared handle. Logs nothing. Safe from any thread:
/// the handle is not closed meanwhile.
HidWrite writeHid(const AccessoryReport &report);
HidWrite writeHid(const AccessoryReport &report, const HidLock &held);

/// Writes a report of a page: without a handle it is left out, a failure is logged. Whether it went out.
bool writePageReport(const AccessoryReport &report);

inline constexpr char kHidWriteError[] = "HID write error.";
