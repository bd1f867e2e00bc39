#pragma once

#include <atomic>
#include <cstdint>
#include <memory>

#include <QList>

#include "PictureAudioCom/spectrumanalysis.h"
#include "platform/audiocapture.h"
#include "platform/joinedthread.h"

/// Listens to what the computer plays and tells how high the bars of its spectrum are. start() begins; a start while it
/// ends is lost, as with every thread. Its signals come to the thread that made it, once its event loop runs.
class SoundAnalyzer : public JoinedThread
{
    Q_OBJECT
public:
    /// Initialises COM for the calling thread.
    SoundAnalyzer();
    ~SoundAnalyzer() override;

    /// The one analyser of the process, made on first use and kept.
    static SoundAnalyzer &instance();

    /// Ends the capture at its next turn, 29 ms at most. Any thread.
    void stop();

    /// Whether sound is being captured: not yet while the initialisation runs, and never when it fails. Any thread.
    bool isCapturing() const { return m_running != 0; }

    /// Whether the initialisation of the run that is under way, or of the last one, succeeded. Any thread.
    bool hasBegun() const { return m_begun; }

Q_SIGNALS:
    /// Eleven heights, once per packet that held sound.
    void heightsReady(const QList<int> &heights);
    /// A capture that had begun has ended.
    void stopped();

protected:
    void run() override;

private:
    friend class SoundUse;

    bool init();
    bool openClient(platform::AudioClient &client, platform::AudioFormat &format);
    void captureTurns();
    bool waitForPacket();
    platform::AudioPacket takePacket(bool &goOn);
    bool analysePacket(const platform::AudioPacket &packet);
    void recover();
    void release();

    std::unique_ptr<platform::AudioScope> m_creatingThread;
    std::unique_ptr<platform::AudioScope> m_event; // made with the client; nothing waits for it
    std::unique_ptr<platform::AudioClient> m_client;
    std::unique_ptr<platform::AudioCaptureClient> m_capture; // goes before its client
    platform::AudioFormat m_format;                          // of the client
    std::unique_ptr<platform::AudioScope> m_task;
    SpectrumAnalysis m_analysis;
    int m_uses = 0;              // that have begun
    bool m_failedBefore = false; // the turn before ended in a new initialisation
    std::atomic<bool> m_begun = false;
    std::atomic<std::uint8_t> m_running = 0;
};
