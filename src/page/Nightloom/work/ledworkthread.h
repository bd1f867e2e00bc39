#pragma once

#include <atomic>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <span>
#include <stop_token>
#include <vector>

#include "page/Nightloom/work/senderthread.h"

class LedFrameSource;

/// Streams live frames to the accessory (spectrum, clock) and uploads rendered texts, one work after the other. There
/// is one instance, which lives until the program ends.
class ledWorkThread : public SenderThread
{
    Q_OBJECT
public:
    enum State : std::int32_t {
        BuildSpectrum = 1,
        SendSpectrum = 2,
        ClockLoop = 3,
        UploadText = 4,
        Stopped = 255,
    };

    /// The file that a rendered text is uploaded from.
    static constexpr char kTextFile[] = "out_frame.txt";

    static ledWorkThread *instance();

    /// Ends what is under way, and the thread, if there ever was one. For the program's end; takes a wait of the clock
    /// loop at most. Work may be begun again.
    static void shutDown();

    /// Who gives the spectrum frames; null takes it away and returns when no call is under way any more.
    void setSource(LedFrameSource *source);

    /// The spectrum that the next build draws. Safe from any thread.
    void setLevels(std::vector<std::int32_t> levels);

    /// Sets the state and starts the thread. While it still works on something else the new work waits its turn; a
    /// clock loop ends for it. Safe from any thread.
    void begin(State state);

    /// Ends the clock loop within one pass of it and forgets the frames that wait. An upload is made all the same: its
    /// page waits for its end. Does not wait itself.
    void stop();

    /// Stops and takes the last frame off the matrix: once this returns no frame of before comes any more. Waits for
    /// one that is under way. Not on the worker's own thread.
    void endDisplay();

    State state() const { return m_state; }

    /// The minute of the time shown last.
    int minute() const { return m_minute; }

    /// Sends one frame, in frame order, as live frame chunks.
    void sendData(std::span<const std::int32_t> cells);

Q_SIGNALS:
    /// Follows the last progress of a text upload, which goes to 100 while the device prepares and then again for the
    /// text itself, and is -1 without a file. Not complete when the accessory did not take every report.
    void uploadEnded(bool complete);

    /// A spectrum frame was built; always 0.
    void frameBuilt(int value);

protected:
    void run() override;

private:
    ledWorkThread() = default;
    ~ledWorkThread() override;

    std::optional<State> takeWork();
    void work(State state);
    void buildSpectrum();
    void sendSpectrum();
    void runClock();
    bool showTime();
    void upload();

    std::mutex m_frameMutex; // held while a frame is made and sent; guards the source
    LedFrameSource *m_source = nullptr;

    std::mutex m_mutex; // guards what follows
    std::vector<std::int32_t> m_levels;
    std::deque<State> m_waiting;
    bool m_works = false; ///< the thread will look for waiting work once more
    std::stop_source m_shutDown;
    std::stop_token m_uploadStop; ///< of the upload that was begun last

    std::atomic<State> m_state{}; // 0 before the first work
    std::atomic<std::int32_t> m_running = 0;
    std::atomic<std::int32_t> m_minute = 0;
};
