#include "page/Nightloom/music/musicstream.h"

#include <utility>

#include "PictureAudioCom/soundanalyzer.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "page/Nightloom/work/livedisplay.h"
#include "platform/desk.h"
#include "usb-hid/accessorylink.h"

namespace {

constexpr platform::milliseconds kLookAfter{1000};
constexpr int kQuietLooks = 5; // then it is listened anew: another device may have become the default one
constexpr platform::milliseconds kRetryAfter{3000};

} // namespace

MusicStream::MusicStream(LiveDisplay &display) : m_display(display), m_analyzer(SoundAnalyzer::instance())
{
    connect(&m_analyzer, &SoundAnalyzer::heightsReady, this, &MusicStream::take);
    connect(&m_analyzer, &SoundAnalyzer::ended, this, &MusicStream::onCaptureEnded);
    connect(ledWorkThread::instance(), &ledWorkThread::frameBuilt, this, &MusicStream::sendBuiltFrame);
    connect(&m_display, &LiveDisplay::musicBegins, this, &MusicStream::start);
    connect(&m_display, &LiveDisplay::musicEnds, this, &MusicStream::stop);
    connect(&m_display, &LiveDisplay::changed, this, &MusicStream::onSwitched);
}

MusicStream::~MusicStream()
{
    m_analyzer.stop();
    m_analyzer.wait();
    freeAccessory(true);
}

/// The user has switched something on or off, here or on another page.
void MusicStream::onSwitched()
{
    if (m_display.shown() != LiveDisplay::Show::Music)
        setHearing(Hearing::Off);
}

void MusicStream::setHearing(Hearing hearing)
{
    m_hearing = hearing;
    Q_EMIT hearingChanged();
}

bool MusicStream::streams() const
{
    return m_display.streams(LiveDisplay::Show::Music);
}

void MusicStream::start()
{
    setHearing(Hearing::Waiting);
    ledWorkThread::instance()->setSource(this);
    m_streams = true;
    m_use.begin();
    m_startAgain = m_analyzer.isRunning(); // a start would be lost now
    if (!m_startAgain)
        m_analyzer.start();
    m_heard = false;
    m_quietLooks = 0;
    ++m_lookRun;
    lookLater();
}

void MusicStream::stop()
{
    m_startAgain = false;
    ++m_lookRun;
    m_use.end();
    Q_EMIT heightsCame({});
    freeAccessory(false);
}

/// Sees to it that no frame of ours goes out any more, and takes the last one off the matrix. Nothing is written when
/// that was done before: something else may have the accessory since.
void MusicStream::freeAccessory(bool sendStop)
{
    ledWorkThread::instance()->setSource(nullptr); // once this returns no frame of ours is under way
    for (const auto &[form, visual] : m_visuals)
        visual->reset();
    if (std::exchange(m_streams, false) && sendStop)
        ledWorkThread::instance()->endDisplay();
}

void MusicStream::onCaptureEnded()
{
    if (!streams() || m_analyzer.isRunning()) // it may have been started again since
        return;
    if (std::exchange(m_startAgain, false))
        return m_analyzer.start();
    setHearing(Hearing::Failed);
    ++m_lookRun;
    if (m_analyzer.hasBegun()) // and it has ended by itself
        freeAccessory(true);
    if (std::exchange(m_retryWaits, true))
        return;
    platform::desk().clock().callLater(kRetryAfter, this, [this] {
        m_retryWaits = false;
        if (streams() && !m_analyzer.isRunning())
            start();
    });
}

void MusicStream::take(const QList<int> &heights)
{
    if (!streams())
        return;
    m_heard = true;
    setHearing(Hearing::Sound);
    Q_EMIT heightsCame(heights);
    ledWorkThread *worker = ledWorkThread::instance();
    worker->setLevels({heights.begin(), heights.end()});
    worker->begin(ledWorkThread::BuildSpectrum);
}

void MusicStream::sendBuiltFrame()
{
    if (streams() && ledWorkThread::instance()->state() == ledWorkThread::BuildSpectrum)
        ledWorkThread::instance()->begin(ledWorkThread::SendSpectrum);
}

void MusicStream::lookLater()
{
    platform::desk().clock().callLater(kLookAfter, this, [this, run = m_lookRun] {
        if (run == m_lookRun)
            lookForSound();
    });
}

/// Says that nothing is heard when nothing was for a while, and then listens anew every few seconds: the client of a
/// device that is no longer the default one stays alive and hears nothing.
void MusicStream::lookForSound()
{
    lookLater();
    if (std::exchange(m_heard, false)) {
        m_quietLooks = 0;
        return;
    }
    if (!m_analyzer.isCapturing())
        return;
    setHearing(Hearing::Silence);
    if (++m_quietLooks % kQuietLooks != 0)
        return;
    m_startAgain = true;
    m_analyzer.stop();
}

AudioVisual *MusicStream::audioVisual()
{
    const MatrixForm *form = accessoryLink.form;
    if (!form)
        return nullptr;
    auto &visual = m_visuals[form];
    if (!visual)
        visual = makeAudioBars(*form);
    visual->setTemplate(m_template);
    return visual.get();
}
