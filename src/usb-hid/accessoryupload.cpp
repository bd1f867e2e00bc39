#include "usb-hid/accessoryupload.h"

#include <algorithm>
#include <mutex>
#include <stop_token>

#include <QDebug>
#include <QFile>

#include "platform/desk.h"
#include "platform/ending.h"
#include "usb-hid/hidtransport.h"

namespace {

constexpr platform::milliseconds kWait{1000};

/// What the two kinds of uploads do not share.
struct UploadKind
{
    int waits;            ///< seconds that the device needs to prepare
    int waitStep;         ///< percents a wait
    bool doneAfterWaits;  ///< another 100 when the device is prepared
    qint64 cap;           ///< bytes that the device has room for
    double progressShare; ///< of a tenth of the chunks, between two progresses
    bool skipsChunks;     ///< goes on without the device instead of ending
    int (*progress)(int index, int total);
};

/// Runs on above 100, on purpose: the waits have reached 30 already.
int animationProgress(int index, int total)
{
    return kAnimationPrepared - static_cast<int>(static_cast<double>(index) / total * -100.0);
}

int textProgress(int index, int total)
{
    return static_cast<int>(static_cast<double>(index) / total * 100.0);
}

constexpr UploadKind kAnimation{kAnimationWaits / kWait, 5, false, kAnimationCap, 0.7, true, animationProgress};
constexpr UploadKind kText{kTextWaits / kWait, 4, true, kTextMemory, 1.0, false, textProgress};

std::mutex s_stopMutex;
std::stop_source s_stop; // of the uploads that were asked for since the last stop

class Upload
{
public:
    Upload(const UploadKind &kind, std::uint8_t mode, const std::function<void(int)> &progress,
           const std::stop_token &stop)
        : m_kind(kind), m_mode(mode), m_report(progress), m_stop(stop)
    {
    }

    bool run(const QString &fileName)
    {
        if (m_stop.stop_requested())
            return false; // the start alone makes the device forget what it has
        AccessoryReport start;
        buildUploadStart(start, m_mode);
        m_complete = writePageReport(start);
        waitForDevice();
        if (isStopped())
            return false;
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly)) {
            qDebug() << "Failed to open file:" << file.errorString();
            m_report(kProgressFailed);
            return false;
        }
        const bool stopped = !sendChunks(file);
        file.close();
        if (stopped)
            return false;
        m_report(kProgressEnd);
        return m_complete;
    }

private:
    bool isStopped() const { return m_stop.stop_requested() || platform::programEnds(); }

    void waitForDevice()
    {
        for (int wait = 1; wait <= m_kind.waits; ++wait) {
            platform::desk().clock().sleepUnlessStopped(kWait, m_stop);
            if (isStopped())
                return;
            m_report(wait * m_kind.waitStep);
        }
        if (m_kind.doneAfterWaits)
            m_report(kProgressEnd);
    }

    /// False when it was stopped before the last chunk.
    bool sendChunks(QFile &file)
    {
        const qint64 size = std::min(file.size(), m_kind.cap);
        const int total = chunkCount(size);
        qDebug() << "File size:" << size << "bytes";
        qDebug() << "Total chunks:" << total;
        const int between = std::max(1, static_cast<int>(total * 0.1 * m_kind.progressShare));
        qint64 left = size;
        for (int index = 1; index <= total; ++index) {
            if (isStopped())
                return false;
            const auto length = std::min(left, static_cast<qint64>(kChunkCells));
            left -= length;
            const HidWrite result = sendChunk(file, total, index, length);
            m_complete = m_complete && result == HidWrite::Done;
            if (result == HidWrite::NoHandle && m_kind.skipsChunks)
                continue;
            if (result != HidWrite::Done)
                break;
            if (index % between == 0)
                m_report(m_kind.progress(index, total));
        }
        return true;
    }

    /// Cells that the file does not have any more are dark: the device was told how many come.
    HidWrite sendChunk(QFile &file, int total, int index, qint64 length)
    {
        std::array<char, kChunkCells> characters{};
        file.read(characters.data(), length);
        AccessoryReport chunk;
        buildUploadChunk(chunk, m_mode, total, index, std::span(characters).first(static_cast<std::size_t>(length)));
        const HidWrite result = writeHid(chunk);
        if (result == HidWrite::Failed)
            qDebug() << kHidWriteError;
        else if (result == HidWrite::NoHandle && m_kind.skipsChunks)
            qDebug() << "HID handle is null.";
        return result;
    }

    const UploadKind &m_kind;
    const std::uint8_t m_mode;
    const std::function<void(int)> &m_report;
    const std::stop_token &m_stop;
    bool m_complete = false; ///< every report so far went out
};

} // namespace

std::stop_token uploadStop()
{
    const std::lock_guard lock(s_stopMutex);
    return s_stop.get_token();
}

std::chrono::milliseconds expectedWriteTime(qint64 bytes)
{
    return std::chrono::milliseconds(chunkCount(bytes)); // one a frame of the bus
}

bool uploadAnimation(const QString &fileName, std::uint8_t mode, const std::function<void(int)> &progress,
                     const std::stop_token &stop)
{
    return Upload(kAnimation, mode, progress, stop).run(fileName);
}

bool uploadText(const QString &fileName, const std::function<void(int)> &progress, const std::stop_token &stop)
{
    return Upload(kText, kTextMode, progress, stop).run(fileName);
}

void stopUploads()
{
    const std::lock_guard lock(s_stopMutex);
    s_stop.request_stop();
    s_stop = std::stop_source();
}
