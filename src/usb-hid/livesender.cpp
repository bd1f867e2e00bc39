#include "usb-hid/livesender.h"

#include <algorithm>
#include <atomic>

#include <QDebug>

#include "usb-hid/hidtransport.h"

static std::atomic<bool> s_failed = false; // the last write; one for all live sends, or the log would flood

/// Whether the frame may go on.
static bool writeLiveChunk(const AccessoryReport &chunk, const HidLock &lock)
{
    const HidWrite result = writeHid(chunk, lock);
    if (result == HidWrite::NoHandle)
        return false;
    const bool failed = result == HidWrite::Failed;
    if (s_failed.exchange(failed) != failed)
        qDebug() << (failed ? kHidWriteError : "HID write ok.");
    return !failed;
}

void sendLiveFrame(std::span<const std::int32_t> cells)
{
    const MatrixForm *form = accessoryLink.form;
    if (!form || std::ssize(cells) != form->cells())
        return;
    const int total = chunkCount(std::ssize(cells));
    const HidLock lock = lockHid(); // a page's report may not fall between the chunks
    AccessoryReport chunk;
    for (int index = 1; index <= total; ++index) {
        const auto part = cells.subspan(static_cast<std::size_t>(index - 1) * kChunkCells);
        buildLiveChunk(chunk, total, index, part.first(std::min(part.size(), kChunkCells)));
        if (!writeLiveChunk(chunk, lock))
            return;
    }
}

void resetLiveLatch()
{
    s_failed = false;
}
