#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <stop_token>

#include <QByteArrayList>

#include "ledmatrix/memoryfile.h"
#include "page/Nightloom/work/senderthread.h"

/// What the canvas page hands its thread, taken from the page before the thread starts.
struct LEDJob
{
    QByteArrayList frames; ///< digits in tab order
    QString fileName;
    const AnimationMemory *memory = nullptr; ///< that an upload fills
    const MatrixForm *form = nullptr;        ///< of what is uploaded
    std::stop_token stop{};                  ///< ends an upload
};

/// The canvas page's long work: it writes, asks to read, or uploads an animation. It touches nothing that is shown. An
/// interruption that is requested ends an export before its file takes the old one's place.
class LEDThread : public SenderThread
{
    Q_OBJECT
public:
    enum State : std::int32_t { Export = 1, Upload = 2, Import = 3 };

    /// Asks the page to import, on its own thread.
    static constexpr int kImportNow = 200;

    /// Uploads a job's file, telling percents; whether the accessory took it whole. Called on the thread.
    using Send = bool (*)(const LEDJob &job, const std::function<void(int)> &progress);

    explicit LEDThread(Send send);
    ~LEDThread() override;

    /// Starts the work of a state; the work before has ended. Interface thread only.
    void begin(State state, LEDJob job);

    State state() const { return m_state; }

    /// Why the last work failed, or, of an upload that the accessory took, why it could not be kept here; empty when
    /// there is nothing to say or the reason is not known.
    QString error() const;

Q_SIGNALS:
    /// Both signals come from the thread itself: who is connected directly may interrupt an export between two frames.
    /// Follows the last progress, which goes beyond 100 during an upload, is -1 when it fails, or kImportNow. 100 alone
    /// does not say that the work is done: it is passed on the way as well, and comes at the end even of an upload that
    /// the accessory did not take whole, or of an export without its file.
    void workEnded(bool complete);

protected:
    void run() override;

private:
    bool exportFrames();
    bool upload();
    void fail(const QString &error);

    const Send m_send;
    State m_state = Export;
    LEDJob m_job;
    mutable std::mutex m_mutex;
    QString m_error; ///< guarded by the mutex
};
