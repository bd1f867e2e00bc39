#pragma once

#include <atomic>
#include <map>
#include <memory>

#include <QList>
#include <QObject>

#include "PictureAudioCom/sounduse.h"
#include "page/Nightloom/render/audioled.h"
#include "page/Nightloom/work/ledframesource.h"

class LiveDisplay;
class SoundAnalyzer;

/// Captures what the computer plays while the music mode streams, and brings its bars to the matrix: the source of the
/// LED worker's spectrum frames. A capture that fails is tried again, and one that hears nothing for long begins anew.
class MusicStream : public QObject, private LedFrameSource
{
    Q_OBJECT
public:
    enum class Hearing {
        Off,
        Waiting, ///< it has begun, and nothing was heard yet
        Sound,
        Silence, ///< it runs, and nothing has been heard for a while
        Failed,  ///< it is tried again
    };

    /// The display, which says when the music is to stream, outlives it.
    explicit MusicStream(LiveDisplay &display);

    /// Ends the capture and waits for its end.
    ~MusicStream() override;

    Hearing hearing() const { return m_hearing; }

    /// Whether the capture was ended only to begin anew: what it showed stays meanwhile.
    bool beginsAnew() const { return m_startAgain; }

    /// How the bars are drawn from the next frame on.
    void setTemplate(AudioTemplate which) { m_template = which; }
    AudioTemplate audioTemplate() const { return m_template; }

Q_SIGNALS:
    void hearingChanged();

    /// The bars of now; none when they go.
    void heightsCame(const QList<int> &heights);

private:
    AudioVisual *audioVisual() override;
    void frameSent() override {}

    bool streams() const;
    void start();
    void stop();
    void freeAccessory(bool sendStop);
    void onSwitched();
    void onCaptureEnded();
    void take(const QList<int> &heights);
    void sendBuiltFrame();
    void lookLater();
    void lookForSound();
    void setHearing(Hearing hearing);

    LiveDisplay &m_display;
    SoundAnalyzer &m_analyzer;
    SoundUse m_use;
    bool m_startAgain = false; ///< as soon as the capture that was stopped has ended
    bool m_retryWaits = false;
    bool m_streams = false; ///< a capture was started, whose frames may be on the matrix
    bool m_heard = false;   ///< since the last look
    int m_quietLooks = 0;   ///< since something was heard
    int m_lookRun = 0;      ///< looks of earlier runs mean nothing any more
    Hearing m_hearing = Hearing::Off;
    std::atomic<AudioTemplate> m_template = AudioTemplate::Bars;
    std::map<const MatrixForm *, std::unique_ptr<AudioBars>> m_visuals; ///< the worker's thread makes and uses them
};
