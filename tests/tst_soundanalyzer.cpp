// The capture loop on a simulated endpoint: where each result code leads, and what it leaves behind.

#include <QtTest>

#include "PictureAudioCom/soundanalyzer.h"
#include "support/deskfixture.h"
#include "support/matrixforms.h"
#include "support/sounds.h"

using virtualdesk::AudioCall;
using virtualdesk::EndpointSetup;
using virtualdesk::MixKind;
using virtualdesk::SimulatedEndpoint;
using virtualdesk::Sound;

namespace {

using Strings = QStringList;

/// A desk, and an analyser that is stopped from within when the loop has asked for its n-th packet.
class Rig
{
public:
    explicit Rig(Sound kind = Sound::Tone)
    {
        useForm(0);
        endpoint.play(playing(kind));
        QObject::connect(&analyzer, &SoundAnalyzer::heightsReady, [this](const auto &list) { heights.append(list); });
        QObject::connect(&analyzer, &SoundAnalyzer::stopped, [this] { ++stops; });
    }

    /// Runs until the loop asks for the size of packet number asks, which is answered. Then does something at each of
    /// those questions.
    void run(int asks, const std::function<void(int ask)> &at = {})
    {
        endpoint.resetCounts();
        fixture.clock.takeWaits();
        fixture.takeLog();
        endpoint.setProbe([this, asks, at](AudioCall call, int number) {
            if (call != AudioCall::NextPacketSize)
                return;
            if (at)
                at(number);
            if (number == asks)
                analyzer.stop();
        });
        analyzer.start();
        QVERIFY(ended());
    }

    /// Waits for the analyser's end, and takes what it told.
    bool ended()
    {
        const bool in20Seconds = analyzer.wait(20000);
        QCoreApplication::processEvents();
        return in20Seconds;
    }

    /// What the first packet of a client with this format makes, by the analysis alone.
    QList<int> firstHeights(int rate, int channels, int frames) const
    {
        SpectrumAnalysis analysis;
        analysis.prepare(static_cast<std::uint32_t>(rate));
        const BarHeights expected =
            barHeights(*analysis.analyse(record(endpoint.setup().sound, rate, channels, frames)), kTapering);
        return {expected.begin(), expected.end()};
    }

    int count(AudioCall call) const { return endpoint.count(call); }
    /// Initialisations, starts, stops, resets, buffers asked for, buffers released.
    QList<int> counts() const
    {
        return {count(AudioCall::Initialize), count(AudioCall::Start),     count(AudioCall::Stop),
                count(AudioCall::Reset),      count(AudioCall::GetBuffer), count(AudioCall::ReleaseBuffer)};
    }
    /// Log lines that are no heights.
    Strings lines()
    {
        Strings log = fixture.takeLog();
        log.removeIf([](const QString &line) { return line.startsWith("QList"); });
        return log;
    }

    DeskFixture fixture;
    SimulatedEndpoint &endpoint = fixture.desk.sound();
    SoundAnalyzer analyzer;
    QList<QList<int>> heights;
    int stops = 0;
};

} // namespace

class TestSoundAnalyzer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void turnsAsMeant();
    void onlySleepsWhenIdle();
    void failedInitialisationEndsIt();
    void choosesFormat();
    void refusedFormat();
    void oldClientKeepsItsFormat();
    void silentPacketEndsTurn();
    void callFails_data();
    void callFails();
    void deviceComesBack();
    void stopsAtOnce();
};

void TestSoundAnalyzer::turnsAsMeant()
{
    Rig rig;
    rig.run(5);
    // A packet is there 10 ms after the start, that is after two waits.
    QCOMPARE(rig.fixture.clock.takeWaits(), (QList<int>{5, 5, 29, 5, 5}));
    QCOMPARE(rig.heights.size(), 1);
    QCOMPARE(rig.heights[0].size(), 11);
    QCOMPARE(rig.counts(), (QList<int>{1, 5, 1, 0, 1, 1}));
    QCOMPARE(rig.stops, 1);
    QVERIFY(!rig.analyzer.isCapturing());
    QCOMPARE(rig.fixture.takeLog(), Strings{QDebug::toString(rig.heights[0])});
    QCOMPARE(rig.endpoint.objects(), 1); // COM in the creating thread

    rig.run(3); // again, with everything made anew
    QCOMPARE(rig.heights.size(), 2);
    QCOMPARE(rig.count(AudioCall::Initialize), 1);
    QCOMPARE(rig.stops, 2);
    rig.fixture.takeLog();

    useForm(7); // unknown: no heights, and yet it goes on as with them
    rig.run(8);
    QCOMPARE(rig.heights.size(), 2);
    QCOMPARE(rig.count(AudioCall::ReleaseBuffer), 2);
    QVERIFY(rig.fixture.takeLog().isEmpty());
}

void TestSoundAnalyzer::onlySleepsWhenIdle()
{
    Rig rig(Sound::Nothing);
    bool capturing = false;
    rig.run(40, [&rig, &capturing](int) { capturing = rig.analyzer.isCapturing(); });
    QVERIFY(capturing);
    QCOMPARE(rig.fixture.clock.takeWaits(), QList<int>(40, 5));
    QCOMPARE(rig.counts(), (QList<int>{1, 40, 0, 0, 0, 0}));
    QVERIFY(rig.lines().isEmpty());
}

void TestSoundAnalyzer::failedInitialisationEndsIt()
{
    for (int call = 0; call <= static_cast<int>(AudioCall::RegisterTask); ++call) {
        const auto failing = static_cast<AudioCall>(call);
        if (failing == AudioCall::IsFormatSupported || failing == AudioCall::Initialize)
            continue; // neither of these two ends it
        Rig rig;
        rig.endpoint.fail({failing, platform::kAudioFailed, 1});
        rig.run(1);
        QCOMPARE(rig.count(failing), 1);
        for (int later = call + 1; later <= static_cast<int>(AudioCall::Last); ++later)
            QCOMPARE(rig.count(static_cast<AudioCall>(later)), 0);
        QCOMPARE(rig.stops, 0);
        QVERIFY(!rig.analyzer.isCapturing());
        QVERIFY(rig.fixture.takeLog().isEmpty());
        QCOMPARE(rig.endpoint.objects(), 1);
        rig.run(3);
        QCOMPARE(rig.heights.size(), 1);
    }
}

void TestSoundAnalyzer::choosesFormat()
{
    const auto device = [](MixKind mix, int rate, int channels, bool converts, int packet) {
        return EndpointSetup{true, mix, rate, channels, converts, packet, playing(Sound::Tone)};
    };
    for (const auto &[format, heard] : {std::pair(device(MixKind::ExtensibleFloat, 48000, 2, false, 0), true),
                                        {device(MixKind::Float, 48000, 2, false, 0), true},
                                        {device(MixKind::Integer, 48000, 2, false, 0), false},
                                        {device(MixKind::ExtensibleInteger, 48000, 2, false, 0), false},
                                        {device(MixKind::ExtensibleFloat, 44100, 2, false, 0), true},
                                        {device(MixKind::ExtensibleFloat, 192000, 2, true, 0), true},
                                        {device(MixKind::ExtensibleFloat, 48000, 8, false, 479), true},
                                        {device(MixKind::ExtensibleFloat, 48000, 2, false, 7001), true}}) { // above N
        Rig rig;
        rig.endpoint.change([&format = format](EndpointSetup &setup) { setup = format; });
        rig.run(60);
        QVERIFY(rig.lines().isEmpty());
        QCOMPARE(rig.count(AudioCall::Initialize), heard ? 1 : 0);
        QCOMPARE(!rig.heights.isEmpty(), heard);
        if (!heard)
            continue;
        const int given = format.convertsRates ? 48000 : format.sampleRate;
        const int frames = format.packetFrames > 0 ? format.packetFrames : given / 100;
        QCOMPARE(rig.heights[0], rig.firstHeights(given, format.channels, frames));
    }
}

void TestSoundAnalyzer::refusedFormat()
{
    Rig rig;
    rig.endpoint.fail({AudioCall::Initialize, platform::kAudioUnsupportedFormat, 1});
    rig.run(4);
    // It goes on and asks for the capture client, which a stream that was never initialised does not have.
    QCOMPARE(rig.lines(), Strings{"initialization failed. 0x88890008"});
    QCOMPARE(rig.count(AudioCall::CaptureClient), 1);
    QCOMPARE(rig.count(AudioCall::RegisterTask) + rig.stops, 0);
    rig.run(9, [&rig](int ask) {
        if (ask == 2) {
            rig.endpoint.fail({AudioCall::Initialize, platform::kAudioUnsupportedFormat, 3});
            rig.endpoint.change([](EndpointSetup &) {}); // another device, while it runs
        }
    });
    QCOMPARE(rig.lines().count("initialization failed. 0x88890008"), 3);
    QCOMPARE(rig.heights.size(), 1);
    // At once, and then with a rest before each attempt.
    QCOMPARE(rig.fixture.clock.takeWaits(), (QList<int>{5, 29, 29, 29, 5, 5, 29, 5}));
}

void TestSoundAnalyzer::oldClientKeepsItsFormat()
{
    Rig rig;
    rig.run(4, [&rig](int ask) {
        if (ask != 3)
            return;
        rig.endpoint.moveDefault([](EndpointSetup &setup) { setup.channels = 8; });
        rig.endpoint.fail({AudioCall::NextPacketSize, platform::kAudioFailed, 1});
        rig.endpoint.fail({AudioCall::CaptureClient, platform::kAudioFailed, 1});
    });
    QCOMPARE(rig.count(AudioCall::CaptureClient), 2);
    QCOMPARE(rig.heights, QList<QList<int>>{rig.firstHeights(48000, 2, 480)});
}

void TestSoundAnalyzer::silentPacketEndsTurn()
{
    Rig rig(Sound::Silence);
    rig.run(5);
    // The buffer was kept, so the next request fails, and a new client is made, for which there is no packet yet.
    QCOMPARE(rig.fixture.clock.takeWaits(), (QList<int>{5, 5, 5}));
    QCOMPARE(rig.counts(), (QList<int>{2, 5, 0, 0, 2, 0}));
    QCOMPARE(rig.endpoint.objects(), 1);
    QVERIFY(rig.heights.isEmpty());
    QVERIFY(rig.fixture.takeLog().isEmpty());
}

void TestSoundAnalyzer::callFails_data()
{
    columns<AudioCall, quint32, QList<int>, QList<int>, Strings>("call", "result", "counts", "waits", "lines");
    const auto size = AudioCall::NextPacketSize;
    row("size, invalidated", size, 0x88890004u, QList<int>{2, 4, 1, 0, 1, 1}, QList<int>{5, 5, 29},
        Strings{"DEVICE_INVALIDATED", "FAILED(hr)1 0x88890004"});
    row("size, service", size, 0x88890010u, QList<int>{2, 4, 1, 0, 1, 1}, QList<int>{5, 5, 29},
        Strings{"The Windows audio service is not running.", "FAILED(hr)1 0x88890010"});
    row("size, other", size, 0x80004005u, QList<int>{2, 4, 1, 0, 1, 1}, QList<int>{5, 5, 29},
        Strings{"FAILED(hr)1 0x80004005"});
    // Up to the failing request there are three questions, each with a start; a fourth ends it.
    const auto buffer = AudioCall::GetBuffer;
    row("buffer error", buffer, 0x88890018u, QList<int>{1, 5, 2, 1, 1, 1}, QList<int>{5, 5, 29, 5}, Strings());
    row("out of order", buffer, 0x88890007u, QList<int>{2, 4, 0, 0, 1, 0}, QList<int>{5, 5, 5}, Strings());
    row("buffer, other", buffer, 0x88890004u, QList<int>{1, 4, 2, 0, 2, 2}, QList<int>{5, 5, 29, 29},
        Strings{"FAILED(hr)2 0x88890004"});
    // No failure: a packet without frames is released, and the turn goes on to its end.
    row("empty", buffer, 0x08890001u, QList<int>{1, 4, 2, 0, 2, 2}, QList<int>{5, 5, 29, 29}, Strings());
}

void TestSoundAnalyzer::callFails()
{
    const auto [call, result] = fetch<AudioCall, quint32>();
    Rig rig;
    rig.endpoint.fail({call, result, 1});
    rig.run(4);
    QTEST(rig.counts(), "counts");
    QTEST(rig.fixture.clock.takeWaits(), "waits");
    QTEST(rig.lines(), "lines");
    QCOMPARE(rig.endpoint.objects(), 1);
}

void TestSoundAnalyzer::deviceComesBack()
{
    Rig rig;
    rig.run(30, [&rig](int ask) {
        if (ask == 4 || ask == 8)
            rig.endpoint.setPresent(ask == 8);
        if (ask == 15 || ask == 19)
            rig.endpoint.setServiceRunning(ask == 19);
        if (ask == 25)
            rig.endpoint.change([](EndpointSetup &setup) { setup.sampleRate = 96000; }); // another default device
    });
    const Strings lines = rig.lines();
    QCOMPARE(lines.count("DEVICE_INVALIDATED"), 7); // asks 4 to 8; 19, with the service back; 25
    QCOMPARE(lines.count("The Windows audio service is not running."), 4);
    QCOMPARE(lines.count("FAILED(hr)1 0x88890004") + lines.count("FAILED(hr)1 0x88890010"), 11);
    QVERIFY(rig.heights.size() >= 4);
    QCOMPARE(rig.endpoint.objects(), 1);
    QVERIFY(rig.fixture.clock.takeWaits().count(29) >= 4 + 3); // it rests between its attempts
}

void TestSoundAnalyzer::stopsAtOnce()
{
    Rig rig;
    rig.endpoint.setProbe([&rig](AudioCall call, int) {
        if (call == AudioCall::Activate) // while it is being initialised
            rig.analyzer.stop();
    });
    rig.analyzer.start();
    QVERIFY(rig.ended());
    QCOMPARE(rig.count(AudioCall::NextPacketSize), 0);

    rig.endpoint.setProbe({});
    rig.analyzer.start();
    QTRY_VERIFY(rig.analyzer.isCapturing());
    rig.analyzer.stop(); // from another thread, in mid-turn
    QVERIFY(rig.ended());
    QCOMPARE(rig.endpoint.objects(), 1);
}

QTEST_GUILESS_MAIN(TestSoundAnalyzer)
#include "tst_soundanalyzer.moc"
