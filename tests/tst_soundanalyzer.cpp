// The capture loop on a simulated endpoint: where each result code leads, and what it leaves behind.

#include <QtTest>

#include "PictureAudioCom/soundanalyzer.h"
#include "ledmatrix/matrixform.h"
#include "support/deskfixture.h"

using virtualdesk::AudioCall;
using virtualdesk::AudioFault;
using virtualdesk::EndpointSetup;
using virtualdesk::MixKind;
using virtualdesk::SimulatedEndpoint;
using virtualdesk::Sound;
using virtualdesk::SoundSetup;

namespace {

using Strings = QStringList;

SoundSetup playing(Sound kind)
{
    SoundSetup sound;
    sound.sound = kind;
    return sound;
}

/// A desk, and an analyser that is stopped from within when the loop has asked for its n-th packet.
class Rig
{
public:
    explicit Rig(Sound kind = Sound::Tone)
    {
        matrixForm = kTaperingForm;
        endpoint.play(playing(kind));
        QObject::connect(
            &analyzer, &SoundAnalyzer::heightsReady, &analyzer,
            [this](const QList<int> &list) { heights.append(list); }, Qt::DirectConnection);
        QObject::connect(
            &analyzer, &SoundAnalyzer::stopped, &analyzer, [this] { ++stops; }, Qt::DirectConnection);
        QObject::connect(
            &analyzer, &QThread::finished, &analyzer, [this] { ++ends; }, Qt::DirectConnection);
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

    /// Waits for the analyser's end. ThreadSanitizer sees the count, and not the toolkit's own lock.
    bool ended() { return analyzer.wait(20000) && ends > 0; }

    /// What the first packet of a client with this format makes, by the analysis alone.
    QList<int> firstHeights(int rate, int channels, int frames) const
    {
        std::vector<std::int16_t> samples;
        for (int frame = 0; frame < frames; ++frame) {
            for (int channel = 0; channel < channels; ++channel) {
                const double value = endpoint.setup().sound.sample(frame, channel, rate);
                samples.push_back(static_cast<std::int16_t>(std::lround(32767 * value)));
            }
        }
        SpectrumAnalysis analysis;
        analysis.prepare(static_cast<std::uint32_t>(rate));
        const BarHeights expected = *barHeights(*analysis.analyse(samples), kTaperingForm);
        return {expected.begin(), expected.end()};
    }

    int count(AudioCall call) const { return endpoint.count(call); }
    /// Log lines that are no heights.
    Strings lines()
    {
        Strings log = fixture.takeLog();
        log.erase(std::remove_if(log.begin(), log.end(), [](const QString &line) { return line.startsWith("QList"); }),
                  log.end());
        return log;
    }

    DeskFixture fixture;
    SimulatedEndpoint &endpoint = fixture.desk.sound();
    SoundAnalyzer analyzer;
    QList<QList<int>> heights;
    int stops = 0;
    std::atomic<int> ends = 0;
};

} // namespace

class TestSoundAnalyzer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void turnsAsMeant();
    void onlySleepsWhenIdle();
    void failedInitialisationEndsIt_data();
    void failedInitialisationEndsIt();
    void choosesFormat_data();
    void choosesFormat();
    void refusedFormat();
    void oldClientKeepsItsFormat();
    void silentPacketEndsTurn();
    void packetSizeFails_data();
    void packetSizeFails();
    void bufferFails_data();
    void bufferFails();
    void deviceComesBack();
    void unknownFormMakesNoHeights();
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
    QCOMPARE(rig.count(AudioCall::Start), 5);
    QCOMPARE(rig.count(AudioCall::Stop), 1);
    QCOMPARE(rig.count(AudioCall::Reset), 0);
    QCOMPARE(rig.count(AudioCall::GetBuffer), 1);
    QCOMPARE(rig.count(AudioCall::ReleaseBuffer), 1);
    QCOMPARE(rig.count(AudioCall::Initialize), 1);
    QCOMPARE(rig.stops, 1);
    QVERIFY(!rig.analyzer.isCapturing());
    QCOMPARE(rig.fixture.takeLog(), Strings{QDebug::toString(rig.heights[0])});
    QCOMPARE(rig.endpoint.objects(), 1); // COM in the creating thread

    rig.run(3); // again, with everything made anew
    QCOMPARE(rig.heights.size(), 2);
    QCOMPARE(rig.count(AudioCall::Initialize), 1);
    QCOMPARE(rig.stops, 2);
}

void TestSoundAnalyzer::onlySleepsWhenIdle()
{
    Rig rig(Sound::Nothing);
    bool capturing = false;
    rig.run(40, [&rig, &capturing](int) { capturing = rig.analyzer.isCapturing(); });
    QVERIFY(capturing);
    QCOMPARE(rig.fixture.clock.takeWaits(), QList<int>(40, 5));
    QCOMPARE(rig.count(AudioCall::Initialize), 1);
    QCOMPARE(rig.count(AudioCall::Stop) + rig.count(AudioCall::GetBuffer), 0);
    QVERIFY(rig.lines().isEmpty());
}

void TestSoundAnalyzer::failedInitialisationEndsIt_data()
{
    QTest::addColumn<int>("call");
    for (int call = 0; call <= static_cast<int>(AudioCall::RegisterTask); ++call) {
        // Neither of these two ends it.
        if (call != static_cast<int>(AudioCall::IsFormatSupported) && call != static_cast<int>(AudioCall::Initialize))
            QTest::addRow("call %d", call) << call;
    }
}

void TestSoundAnalyzer::failedInitialisationEndsIt()
{
    QFETCH(int, call);
    Rig rig;
    rig.endpoint.fail({static_cast<AudioCall>(call), platform::kAudioFailed, 1});
    rig.run(1);
    QCOMPARE(rig.count(static_cast<AudioCall>(call)), 1);
    for (int later = call + 1; later <= static_cast<int>(AudioCall::Last); ++later)
        QCOMPARE(rig.count(static_cast<AudioCall>(later)), 0);
    QCOMPARE(rig.stops, 0);
    QVERIFY(!rig.analyzer.isCapturing());
    QVERIFY(rig.fixture.takeLog().isEmpty());
    QCOMPARE(rig.endpoint.objects(), 1);
    rig.run(3);
    QCOMPARE(rig.heights.size(), 1);
}

void TestSoundAnalyzer::choosesFormat_data()
{
    QTest::addColumn<EndpointSetup>("format");
    QTest::addColumn<bool>("heard");
    const auto row = [](const char *name, MixKind mix, int rate, int channels, bool converts, int packet, bool heard) {
        QTest::newRow(name) << EndpointSetup{true, mix, rate, channels, converts, packet, playing(Sound::Tone)}
                            << heard;
    };
    row("extensible", MixKind::ExtensibleFloat, 48000, 2, false, 0, true);
    row("plain", MixKind::Float, 48000, 2, false, 0, true);
    row("integer", MixKind::Integer, 48000, 2, false, 0, false);
    row("extensible integer", MixKind::ExtensibleInteger, 48000, 2, false, 0, false);
    row("44100", MixKind::ExtensibleFloat, 44100, 2, false, 0, true);
    row("44100 converted", MixKind::ExtensibleFloat, 44100, 2, true, 0, true);
    row("96000", MixKind::Float, 96000, 2, false, 0, true);
    row("192000", MixKind::ExtensibleFloat, 192000, 2, false, 0, true);
    row("192000 converted", MixKind::ExtensibleFloat, 192000, 2, true, 0, true);
    row("one channel", MixKind::ExtensibleFloat, 48000, 1, false, 0, true);
    row("eight channels", MixKind::ExtensibleFloat, 48000, 8, false, 0, true);
    row("odd packet", MixKind::ExtensibleFloat, 48000, 2, false, 479, true);
    row("larger than N", MixKind::ExtensibleFloat, 48000, 2, false, 7001, true);
}

void TestSoundAnalyzer::choosesFormat()
{
    QFETCH(EndpointSetup, format);
    QFETCH(bool, heard);
    Rig rig;
    rig.endpoint.change([&format](EndpointSetup &setup) { setup = format; });
    rig.run(60);
    QVERIFY(rig.lines().isEmpty());
    QCOMPARE(rig.count(AudioCall::Initialize), heard ? 1 : 0);
    QCOMPARE(!rig.heights.isEmpty(), heard);
    if (!heard)
        return;
    const int given = format.convertsRates ? 48000 : format.sampleRate;
    const int frames = format.packetFrames > 0 ? format.packetFrames : given / 100;
    QCOMPARE(rig.heights[0], rig.firstHeights(given, format.channels, frames));
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
    QCOMPARE(rig.count(AudioCall::GetBuffer), 2);
    QCOMPARE(rig.count(AudioCall::ReleaseBuffer), 0);
    QCOMPARE(rig.count(AudioCall::Stop), 0);
    QCOMPARE(rig.count(AudioCall::Initialize), 2);
    QCOMPARE(rig.endpoint.objects(), 1);
    QVERIFY(rig.heights.isEmpty());
    QVERIFY(rig.fixture.takeLog().isEmpty());
}

void TestSoundAnalyzer::packetSizeFails_data()
{
    QTest::addColumn<quint32>("result");
    QTest::addColumn<Strings>("lines");
    QTest::newRow("invalidated") << quint32{0x88890004} << Strings{"DEVICE_INVALIDATED", "FAILED(hr)1 0x88890004"};
    QTest::newRow("service") << quint32{0x88890010}
                             << Strings{"The Windows audio service is not running.", "FAILED(hr)1 0x88890010"};
    QTest::newRow("other") << quint32{0x80004005} << Strings{"FAILED(hr)1 0x80004005"};
}

void TestSoundAnalyzer::packetSizeFails()
{
    QFETCH(quint32, result);
    QFETCH(Strings, lines);
    Rig rig;
    rig.endpoint.fail({AudioCall::NextPacketSize, result, 1});
    rig.run(5);
    QCOMPARE(rig.lines(), lines);
    QCOMPARE(rig.count(AudioCall::Initialize), 2);
    QCOMPARE(rig.count(AudioCall::Stop), 1);
    QCOMPARE(rig.count(AudioCall::Reset), 0);
    QCOMPARE(rig.heights.size(), 1);
    QCOMPARE(rig.fixture.clock.takeWaits(), (QList<int>{5, 5, 29, 5}));
    QCOMPARE(rig.endpoint.objects(), 1);
}

void TestSoundAnalyzer::bufferFails_data()
{
    QTest::addColumn<quint32>("result");
    QTest::addColumn<int>("initialisations");
    QTest::addColumn<int>("starts");
    QTest::addColumn<int>("stops");
    QTest::addColumn<int>("resets");
    QTest::addColumn<int>("releases");
    QTest::addColumn<QList<int>>("waits");
    QTest::addColumn<Strings>("lines");
    // Up to the failing request there are three questions, each with a start; a fourth ends it.
    QTest::newRow("buffer error") << quint32{0x88890018} << 1 << 5 << 2 << 1 << 1 << QList<int>{5, 5, 29, 5}
                                  << Strings();
    QTest::newRow("out of order") << quint32{0x88890007} << 2 << 4 << 0 << 0 << 0 << QList<int>{5, 5, 5} << Strings();
    QTest::newRow("invalidated") << quint32{0x88890004} << 1 << 4 << 2 << 0 << 2 << QList<int>{5, 5, 29, 29}
                                 << Strings{"FAILED(hr)2 0x88890004"};
    QTest::newRow("other") << quint32{0x80004005} << 1 << 4 << 2 << 0 << 2 << QList<int>{5, 5, 29, 29}
                           << Strings{"FAILED(hr)2 0x80004005"};
    // No failure: a packet without frames is released, and the turn goes on to its end.
    QTest::newRow("empty") << quint32{0x08890001} << 1 << 4 << 2 << 0 << 2 << QList<int>{5, 5, 29, 29} << Strings();
}

void TestSoundAnalyzer::bufferFails()
{
    QFETCH(quint32, result);
    Rig rig;
    rig.endpoint.fail({AudioCall::GetBuffer, result, 1});
    rig.run(4);
    QTEST(rig.count(AudioCall::Initialize), "initialisations");
    QTEST(rig.count(AudioCall::Start), "starts");
    QTEST(rig.count(AudioCall::Stop), "stops");
    QTEST(rig.count(AudioCall::Reset), "resets");
    QTEST(rig.count(AudioCall::ReleaseBuffer), "releases");
    QTEST(rig.fixture.clock.takeWaits(), "waits");
    QTEST(rig.lines(), "lines");
    QCOMPARE(rig.endpoint.objects(), 1);
}

void TestSoundAnalyzer::deviceComesBack()
{
    Rig rig;
    rig.run(30, [&rig](int ask) {
        if (ask == 4)
            rig.endpoint.setPresent(false);
        if (ask == 8)
            rig.endpoint.setPresent(true);
        if (ask == 15)
            rig.endpoint.setServiceRunning(false);
        if (ask == 19)
            rig.endpoint.setServiceRunning(true);
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

void TestSoundAnalyzer::unknownFormMakesNoHeights()
{
    Rig rig;
    matrixForm = 7;
    rig.run(8);
    QVERIFY(rig.heights.isEmpty());
    QCOMPARE(rig.count(AudioCall::ReleaseBuffer), 2); // and yet it goes on as with heights
    QVERIFY(rig.fixture.takeLog().isEmpty());
    matrixForm = kTaperingForm;
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
