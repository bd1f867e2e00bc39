#include "PictureAudioCom/soundanalyzer.h"

#include <utility>

#include <QDebug>

#include "platform/desk.h"
#include "platform/ending.h"
#include "usb-hid/accessorylink.h"

namespace {

using platform::AudioResult;

constexpr platform::milliseconds kNoPacketWait{5};
constexpr platform::milliseconds kRest{29};
constexpr std::uint32_t kWishedRate = 48000;
constexpr std::uint16_t kBits = 16;
constexpr int kPeriodsBuffered = 10;

QString hex(AudioResult result)
{
    return QStringLiteral("0x%1").arg(result, 8, 16, QLatin1Char('0'));
}

/// Makes 16-bit integer samples of a mix format of floating-point ones; false for any other.
bool makeInteger(platform::AudioFormat &format)
{
    if (format.tag == platform::kFormatFloat) {
        format.tag = platform::kFormatPcm;
    } else if (format.tag == platform::kFormatExtensible && format.subFormat == platform::kSubFormatFloat) {
        format.subFormat = platform::kSubFormatPcm;
        format.validBits = kBits;
    } else {
        return false;
    }
    format.bitsPerSample = kBits;
    format.blockAlign = static_cast<std::uint16_t>(format.channels * kBits / 8);
    format.bytesPerSecond = format.blockAlign * format.sampleRate;
    return true;
}

} // namespace

SoundAnalyzer::SoundAnalyzer() : m_creatingThread(platform::desk().audio().initialiseThread())
{
}

SoundAnalyzer::~SoundAnalyzer()
{
    stop();
    wait();
}

SoundAnalyzer &SoundAnalyzer::instance()
{
    static SoundAnalyzer analyzer;
    return analyzer;
}

void SoundAnalyzer::stop()
{
    m_running = 0;
    requestInterruption(); // reaches also a capture that is only being initialised
    exit(0);
}

bool SoundAnalyzer::init()
{
    platform::AudioCapture &audio = platform::desk().audio();
    std::unique_ptr<platform::AudioEndpoint> endpoint;
    {
        std::unique_ptr<platform::AudioEnumerator> enumerator;
        if (platform::audioFailed(audio.createEnumerator(enumerator)) ||
            platform::audioFailed(enumerator->defaultRenderEndpoint(endpoint)))
            return false;
    }
    auto event = audio.createEvent();
    std::unique_ptr<platform::AudioClient> client;
    platform::AudioFormat format;
    if (!event || platform::audioFailed(endpoint->activate(client)) || !openClient(*client, format))
        return false;
    std::unique_ptr<platform::AudioCaptureClient> capture;
    if (platform::audioFailed(client->captureClient(capture)))
        return false;

    // Only now, and all together: until there is something better the old client goes on, in its own format.
    m_format = format;
    m_capture = std::move(capture);
    m_client = std::move(client);
    m_event = std::move(event);
    m_task.reset(); // a thread has one task at a time
    m_task = audio.registerTask(u"Capture");
    return m_task != nullptr;
}

/// Sets the stream up and the transform for its format, which it tells.
bool SoundAnalyzer::openClient(platform::AudioClient &client, platform::AudioFormat &format)
{
    std::int64_t period = 0;
    if (platform::audioFailed(client.devicePeriod(period)) || platform::audioFailed(client.mixFormat(format)) ||
        !makeInteger(format))
        return false;

    platform::AudioFormat wished = format;
    wished.sampleRate = kWishedRate;
    wished.bytesPerSecond = wished.blockAlign * kWishedRate;
    if (client.isFormatSupported(wished) == platform::kAudioOk)
        format = wished;

    const AudioResult result = client.initialize(platform::kStreamLoopback, kPeriodsBuffered * period, format);
    if (platform::audioFailed(result)) // and yet it goes on: the system refuses the capture client then
        qDebug().noquote() << "initialization failed." << hex(result);
    return m_analysis.prepare(format.sampleRate);
}

void SoundAnalyzer::run()
{
    // The interface thread's COM does not reach here.
    const auto thread = platform::desk().audio().initialiseThread();
    m_begun = false;
    if (init()) {
        m_begun = true;
        m_running = 1;
        m_failedBefore = false;
        m_analysis.clear();
        captureTurns();
        m_running = 0;
        tell([this] { Q_EMIT stopped(); });
    }
    release();
}

void SoundAnalyzer::release()
{
    m_task.reset();
    m_capture.reset();
    m_client.reset();
    m_event.reset();
}

void SoundAnalyzer::captureTurns()
{
    while (m_running != 0 && !isInterruptionRequested() && !platform::programEnds()) {
        if (!waitForPacket())
            continue;
        bool goOn = false;
        const platform::AudioPacket packet = takePacket(goOn);
        if (goOn)
            continue;
        // A silent packet ends the turn at once, and its buffer stays with us. That is meant: the next request then
        // fails, and the client is initialised anew.
        if (packet.data && packet.frames != 0 && !analysePacket(packet))
            continue;
        m_capture->releaseBuffer(packet.frames);
        m_client->stop(); // started and stopped on every turn: that is meant
        platform::desk().clock().sleep(kRest);
    }
}

/// Starts the client; false when there is no packet, after what is to be done then.
bool SoundAnalyzer::waitForPacket()
{
    m_client->start(); // refused when it runs already, which does not matter
    std::uint32_t frames = 0;
    const AudioResult result = m_capture->nextPacketSize(frames);
    if (platform::audioFailed(result)) {
        recover();
        if (result == platform::kAudioDeviceInvalidated)
            qDebug() << "DEVICE_INVALIDATED";
        else if (result == platform::kAudioServiceNotRunning)
            qDebug() << "The Windows audio service is not running.";
        qDebug().noquote() << "FAILED(hr)1" << hex(result);
        return false;
    }
    if (frames != 0)
        return true;
    m_failedBefore = false;
    platform::desk().clock().sleep(kNoPacketWait);
    return false;
}

/// Initialises anew. The first attempt is made at once; those that follow before a turn went well rest, or they would
/// take all of a processor until the device is back.
void SoundAnalyzer::recover()
{
    if (m_failedBefore)
        platform::desk().clock().sleep(kRest);
    m_failedBefore = true;
    init();
}

/// The packet, without frames when there was none to be had. goOn says that the turn is over.
platform::AudioPacket SoundAnalyzer::takePacket(bool &goOn)
{
    platform::AudioPacket packet;
    const AudioResult result = m_capture->getBuffer(packet);
    if (!platform::audioFailed(result)) {
        m_failedBefore = false;
        return packet;
    }
    if (result == platform::kAudioBufferError) {
        m_client->stop();
        m_client->reset();
        m_client->start();
    } else if (result == platform::kAudioOutOfOrder) {
        recover();
        goOn = true;
    } else {
        qDebug().noquote() << "FAILED(hr)2" << hex(result);
    }
    return {};
}

/// False when the packet is silent.
bool SoundAnalyzer::analysePacket(const platform::AudioPacket &packet)
{
    const std::span samples(reinterpret_cast<const std::int16_t *>(packet.data),
                            std::size_t{packet.frames} * m_format.channels);
    const auto sums = m_analysis.analyse(samples);
    if (!sums)
        return false;
    if (const MatrixForm *form = accessoryLink.form) {
        const BarHeights heights = barHeights(*sums, *form);
        const QList<int> list(heights.begin(), heights.end());
        qDebug() << list;
        tell([this, list] { Q_EMIT heightsReady(list); });
    }
    return true;
}
