#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <stop_token>

#include <QString>

#include "ledmatrix/devicememory.h"

// Uploads of a file into the accessory's memory. They take as long as the device does, 6 s or 24 s before the first
// byte, and so run in a thread of their own. The file holds a digit a cell, frame behind frame; what it holds beyond
// the device's memory is not sent.
//
// progress is called with percents on the calling thread. Whatever the device does, the last one is 100; without a
// file it is -1. True is returned when every report went out. A stop ends an upload within a chunk or a wait of it;
// then it reports nothing more.

inline constexpr int kProgressEnd = 100;
inline constexpr int kProgressFailed = -1;
inline constexpr int kAnimationPrepared = 30; ///< progress of an animation when the waits are over
inline constexpr int kAnimationWritten = 130; ///< and when its last chunk is out, before the end is told

/// What an upload should take: until the device is prepared, and a chunk at the pace of a full-speed device.
inline constexpr std::chrono::milliseconds kAnimationWaits{6000};
inline constexpr std::chrono::milliseconds kTextWaits{24000};
std::chrono::milliseconds expectedWriteTime(qint64 bytes);

/// Asked to stop by the next stopUploads(). Taken where an upload is asked for, before its thread comes to it.
std::stop_token uploadStop();

/// Uploads a hand-drawn animation, at most 192 frames of 949 cells. mode is the canvas's mode byte, 0x24 to 0x28.
/// After the waits progress runs from 30 to 130. While the device is away, its chunks are left out.
bool uploadAnimation(const QString &fileName, std::uint8_t mode, const std::function<void(int)> &progress,
                     const std::stop_token &stop = uploadStop());

/// Uploads a rendered text, at most kTextMemory cells. progress runs to 100 twice: through the waits, then
/// through the chunks. Ends when the device is away.
bool uploadText(const QString &fileName, const std::function<void(int)> &progress,
                const std::stop_token &stop = uploadStop());

/// Ends the uploads that are under way or asked for, in whatever thread: when the user cancels the one that there is,
/// and at the program's end. One that has not begun yet writes nothing.
void stopUploads();
