// From what plays to what the matrix shows: the drawings, the simulated sound, and the music page with all behind it.

#include <set>

#include <QComboBox>
#include <QPushButton>
#include <QSemaphore>
#include <QSlider>
#include <QtTest>

#include "PictureAudioCom/soundanalyzer.h"
#include "controls/sharedfonts.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/settingsstore.h"
#include "ledmatrix/matrixform.h"
#include "page/Nightloom/audiopicture.h"
#include "page/Nightloom/ledworkthread.h"
#include "page/Nightloom/pageledmusic.h"
#include "page/Nightloom/pageledsystem.h"
#include "page/engine/optiongrouprow.h"
#include "support/deskfixture.h"
#include "usb-hid/hidtransport.h"
#include "virtualdesk/deskscript.h"
#include "virtualdesk/soundpanel.h"

using namespace std::chrono_literals;
using namespace virtualdesk;

namespace {

using Levels = std::vector<std::int32_t>;

Levels highest(int form)
{
    Levels levels;
    for (const int limit : spectrumLimits(form))
        levels.push_back(3 * limit + 1);
    return levels;
}

std::vector<std::int32_t> drawn(AudioBars &bars, AudioTemplate which, const Levels &levels)
{
    bars.setTemplate(which);
    bars.clear();
    bars.setLevels(levels);
    return {bars.frame().begin(), bars.frame().end()};
}

int litCells(std::span<const std::int32_t> frame)
{
    return static_cast<int>(std::count(frame.begin(), frame.end(), 1));
}

SoundSetup playing(Sound kind)
{
    SoundSetup sound;
    sound.sound = kind;
    return sound;
}

/// The music page on a desk whose clock does not wait, with the accessory connected.
class MusicRig
{
public:
    MusicRig()
    {
        matrixForm = kTaperingForm;
        page = std::make_unique<pageLEDMusic>([this] { return connected; }, queue);
        clearHidFlags();
        reopenHid();
        fixture.desk.sound().play(playing(Sound::Tone));
        // The clock does not hold the analyser back: it waits here until the page has taken its heights.
        SoundAnalyzer &analyzer = SoundAnalyzer::instance();
        QObject::connect(
            &analyzer, &SoundAnalyzer::heightsReady, page.get(), [this] { ++told; }, Qt::DirectConnection);
        QObject::connect(&analyzer, &SoundAnalyzer::heightsReady, page.get(), [this](const QList<int> &heights) {
            heard.append(heights);
            ++taken;
            turns.release();
        });
        fixture.desk.sound().setProbe([this, &analyzer](AudioCall call, int) {
            if (call != AudioCall::NextPacketSize)
                return;
            do
                turns.tryAcquire(1, 1);
            while (told > taken + 1 && !analyzer.isInterruptionRequested());
        });
    }
    ~MusicRig()
    {
        page.reset(); // waits for the analyser
        fixture.desk.sound().setProbe({});
        ledWorkThread::shutDown();
        closeHid();
        matrixForm = kTaperingForm;
    }
    Q_DISABLE_COPY_MOVE(MusicRig)

    void press(OptionGroupRow *row, int value) { row->buttonOf(value)->click(); }
    /// What the accessory shows while it is live.
    std::vector<std::int32_t> shown() { return fixture.desk.accessory().state().liveCells; }
    bool capturing() const { return SoundAnalyzer::instance().isCapturing(); }
    /// Switches the music mode on, until it is seen.
    bool play()
    {
        press(page->switchOptions(), 1);
        return QTest::qWaitFor([this] { return litCells(shown()) > 0; });
    }
    std::ptrdiff_t stopReports()
    {
        const auto history = fixture.desk.accessory().history();
        return std::count_if(history.begin(), history.end(),
                             [](const auto &report) { return report.bytes.startsWith(QByteArray("\x01\xE0\x01", 3)); });
    }

    DeskFixture fixture;
    CommandQueue queue;
    std::atomic<int> told = 0;
    std::atomic<int> taken = 0;
    QList<QList<int>> heard;
    QSemaphore turns; // given with what is taken; without any a turn takes a millisecond
    bool connected = true;
    std::unique_ptr<pageLEDMusic> page;
};

} // namespace

class TestAudio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpSharedFonts(); }
    void fillsEveryColumn_data();
    void fillsEveryColumn();
    void templatesDiffer();
    void peaksFall();
    void readsWaveFiles_data();
    void readsWaveFiles();
    void readsAudioScripts();
    void musicReachesMatrix_data();
    void musicReachesMatrix();
    void refusedWithoutAccessory();
    void endsWithStopReport_data();
    void endsWithStopReport();
    void busyModeInterrupts();
    void saysWhyNothingMoves();
    void listensToNewDefaultDevice();
    void panelPlays();
};

void TestAudio::fillsEveryColumn_data()
{
    QTest::addColumn<int>("form");
    QTest::newRow("tapering") << kTaperingForm;
    QTest::newRow("rectangle") << kRectangleForm;
}

void TestAudio::fillsEveryColumn()
{
    QFETCH(int, form);
    const auto bars = makeAudioBars(form);
    int cells = 0;
    for (std::size_t bar = 0; bar < kSpectrumBands; ++bar)
        cells += bars->depth(bar);
    const int width = form == kTaperingForm ? 1 : 2;
    QCOMPARE(litCells(drawn(*bars, AudioTemplate::Bars, highest(form))), cells * width);
    QCOMPARE(litCells(drawn(*bars, AudioTemplate::Bars, Levels(11, 1))), 11 * width); // the lowest height is a dot
    QCOMPARE(litCells(drawn(*bars, AudioTemplate::Bars, Levels(11, 0))), 0);
    // Far too high, negative, too few and too many.
    QCOMPARE(litCells(drawn(*bars, AudioTemplate::Mirrored, Levels(20, INT32_MAX))), cells * width);
    QCOMPARE(litCells(drawn(*bars, AudioTemplate::Hanging, Levels(3, INT32_MIN))), 0);
    bars->reset();
    QCOMPARE(litCells(drawn(*bars, AudioTemplate::Peaks, Levels())), 0);

    // The bars stand side by side: the middle one reaches as far down as the form, and none shares a cell.
    const std::size_t rows = matrixRows(form).size();
    QCOMPARE(bars->depth(5), static_cast<int>(rows));
    for (std::size_t bar = 0; bar < 5; ++bar)
        QVERIFY(form == kRectangleForm ? bars->depth(bar) == 25 : bars->depth(bar) < bars->depth(bar + 1));
    MatrixFrame frame(form);
    frame.setFlat(drawn(*bars, AudioTemplate::Bars, {0, 0, 0, 0, 0, INT32_MAX}));
    for (const MatrixFrame::Row &row : frame.rows())
        QCOMPARE(std::count(row.begin(), row.end(), 1), std::ptrdiff_t{width});
}

void TestAudio::templatesDiffer()
{
    for (const int form : {kTaperingForm, kRectangleForm}) {
        const auto bars = makeAudioBars(form);
        const Levels half(11, 3 * spectrumLimits(form)[0] / 2);
        std::set<std::vector<std::int32_t>> pictures;
        for (const auto which : {AudioTemplate::Bars, AudioTemplate::Mirrored, AudioTemplate::Hanging})
            pictures.insert(drawn(*bars, which, half));
        QCOMPARE(pictures.size(), 3u);
        MatrixFrame frame(form);
        frame.setFlat(drawn(*bars, AudioTemplate::Hanging, half));
        QVERIFY(litCells(frame.rows().front()) > 0);
        frame.setFlat(drawn(*bars, AudioTemplate::Bars, half));
        QCOMPARE(litCells(frame.rows().back()), form == kRectangleForm ? 22 : 1);
    }
    QVERIFY(!makeAudioBars(2));
}

void TestAudio::peaksFall()
{
    const auto bars = makeAudioBars(kRectangleForm);
    const int full = litCells(drawn(*bars, AudioTemplate::Peaks, highest(kRectangleForm)));
    QCOMPARE(full, 11 * 50);
    const std::vector<std::int32_t> first = drawn(*bars, AudioTemplate::Peaks, Levels(11, 1));
    QCOMPARE(litCells(first), 11 * 4); // the bar's dot, and the peak one step below the top
    bars->redraw();                    // nothing new was heard
    QVERIFY(std::equal(first.begin(), first.end(), bars->frame().begin()));
    MatrixFrame frame(kRectangleForm);
    frame.setFlat(first);
    QCOMPARE(litCells(frame.rows()[1]), 22);
    for (int i = 0; i < 23; ++i)
        drawn(*bars, AudioTemplate::Peaks, Levels(11, 1));
    QCOMPARE(litCells(bars->frame()), 11 * 2); // it has come down to the bar
}

void TestAudio::readsWaveFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("frames");
    const auto format = [](char tag, char channels, char bits) {
        return QByteArray("fmt \x10\0\0\0", 8) + tag + '\0' + channels + QByteArray("\0\x80\xBB\0\0\0\0\0\0\0\0", 11) +
               bits + '\0';
    };
    const QByteArray head("RIFF\0\0\0\0WAVE", 12);
    const QByteArray data("data\x08\0\0\0\0\x40\0\xC0\0\x40\0\xC0", 16);
    QTest::newRow("16 bits, two channels") << head + format(1, 2, 16) + data << 2;
    QTest::newRow("floats, one channel, behind a list")
        << head + QByteArray("LIST\x01\0\0\0x\0", 10) + format(3, 1, 32) + data << 2;
    QTest::newRow("floats beyond the scale")
        << head + format(3, 1, 32) + QByteArray("data\x08\0\0\0\0\0\xC0\x7F\0\0\0\xC1", 16) << 2; // no number, and -8
    QTest::newRow("cut off") << (head + format(1, 1, 16) + data).chopped(3) << 2;
    QTest::newRow("24 bits") << head + format(1, 2, 24) + data << -1;
    QTest::newRow("no channel") << head + format(1, 0, 16) + data << -1;
    QTest::newRow("no data") << head + format(1, 1, 16) << -1;
    QTest::newRow("no format") << head + data << -1;
    QTest::newRow("length beyond the end") << head + format(1, 1, 16) + QByteArray("data\xFF\xFF\xFF\xFFxx", 10) << 1;
    QTest::newRow("something else") << QByteArray("hello") << -1;
    QTest::newRow("empty") << QByteArray() << -1;
}

void TestAudio::readsWaveFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, frames);
    QTemporaryDir folder;
    QFile file(folder.filePath("x.wav"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    QString error;
    const auto wave = readWave(file.fileName(), error);
    QCOMPARE(wave.has_value(), frames >= 0);
    QCOMPARE(error.isEmpty(), frames >= 0);
    if (!wave)
        return;
    QCOMPARE(wave->frames(), static_cast<std::size_t>(frames));
    SoundSetup sound = playing(Sound::Wave);
    sound.wave = std::make_shared<const WaveData>(*wave);
    for (const int place : {-3, 0, 1}) // the first one with a clock that was set back
        QVERIFY(std::abs(sound.sample(place, 0, wave->sampleRate)) <= 0.5);
}

void TestAudio::readsAudioScripts()
{
    QString error;
    const auto setup = parseDeskScript(R"({"audio": {"rate": 44100, "channels": 8, "mix": "float", "plays": "tone",
        "frequency": 700, "volume": 5, "packet_frames": 33, "converts_rates": true, "present": false,
        "faults": [{"call": "reset", "result": "0x88890004", "times": "always"}]}})",
                                       error);
    QVERIFY2(setup, qPrintable(error));
    QCOMPARE(setup->sound.sampleRate, 44100);
    QVERIFY(setup->sound.channels == 8 && setup->sound.mix == MixKind::Float && !setup->sound.present);
    QVERIFY(setup->sound.sound.sound == Sound::Tone && setup->sound.packetFrames == 33);
    QCOMPARE(setup->audioFaults.size(), 1u);
    QVERIFY(setup->audioFaults[0].call == AudioCall::Reset && setup->audioFaults[0].times == kForEver);
    QCOMPARE(setup->audioFaults[0].result, platform::kAudioDeviceInvalidated);

    for (const char *script :
         {R"({"audio": []})", R"({"audio": {"rate": 3}})", R"({"audio": {"plays": "jazz"}})",
          R"({"audio": {"plays": "wave", "file": "none.wav"}})", R"({"audio": {"faults": [{"call": "sing"}]}})",
          R"({"audio": {"faults": [{"call": "stop", "result": "bad"}]}})", R"({"audio": {"present": 1}})",
          R"({"audio": {"rat": 48000}})", R"({"audio": {"faults": {}}})", R"({"audio": {"faults": [{}]}})",
          R"({"audio": {"faults": [{"call": "stop", "result": 5}]}})",
          R"({"audio": {"faults": [{"call": "stop", "time": 5}]}})"}) {
        error.clear();
        QVERIFY(!parseDeskScript(script, error));
        QVERIFY(!error.isEmpty());
    }
}

void TestAudio::musicReachesMatrix_data()
{
    fillsEveryColumn_data();
}

void TestAudio::musicReachesMatrix()
{
    QFETCH(int, form);
    MusicRig rig;
    rig.fixture.desk.accessory().setForm(form);
    matrixForm = form;
    settingsInt(kMusicTemplateKey, static_cast<int>(AudioTemplate::Mirrored), true);
    rig.page->updateInterfaceData();
    rig.press(rig.page->switchOptions(), 1);
    QVERIFY(rig.page->isMusicOn());
    QTRY_VERIFY(litCells(rig.shown()) > 0);
    QTRY_COMPARE(rig.page->note(), QString());

    // A tone is the same in every packet but for its phase: what is shown is a picture of heights that were told.
    QTRY_VERIFY([&] {
        const auto bars = makeAudioBars(form);
        const auto shown = rig.shown();
        return std::any_of(rig.heard.begin(), rig.heard.end(), [&](const QList<int> &list) {
            return drawn(*bars, AudioTemplate::Mirrored, {list.begin(), list.end()}) == shown;
        });
    }());
    const auto picture = rig.page->picture()->cells();
    QCOMPARE(static_cast<int>(picture.size()), matrixCells(form));
    QVERIFY(litCells(picture) > 0);

    rig.press(rig.page->templateOptions(), static_cast<int>(AudioTemplate::Hanging));
    QCOMPARE(settingsInt(kMusicTemplateKey, 0, false), static_cast<int>(AudioTemplate::Hanging));
    QTRY_VERIFY([&] {
        MatrixFrame frame(form);
        frame.setFlat(rig.shown());
        return litCells(frame.rows()[0]) == (form == kTaperingForm ? 11 : 22);
    }());
    QCOMPARE(rig.fixture.desk.accessory().protocolFaults(), 0);
}

void TestAudio::refusedWithoutAccessory()
{
    MusicRig rig;
    rig.connected = false;
    rig.press(rig.page->switchOptions(), 1);
    QVERIFY(!rig.page->isMusicOn()); // nothing to show it on
    QVERIFY(rig.page->switchOptions()->buttonOf(0)->isChecked());
}

void TestAudio::endsWithStopReport_data()
{
    QTest::addColumn<std::function<void(MusicRig &)>>("end");
    QTest::addColumn<bool>("staysOn");
    const auto row = [](const char *name, bool staysOn, std::function<void(MusicRig &)> end) {
        QTest::newRow(name) << std::move(end) << staysOn;
    };
    const auto system = [](MusicRig &rig, OptionGroupRow *(pageLEDSystem::*options)() const, int value) {
        pageLEDSystem page([] { return true; }, rig.queue);
        rig.press((page.*options)(), value);
    };
    row("switch", false, [](MusicRig &rig) { rig.press(rig.page->switchOptions(), 0); });
    row("busy mode", true, [](MusicRig &rig) { rig.page->setBusy(true); });
    row("by itself", true, [](MusicRig &) { SoundAnalyzer::instance().stop(); });
    row("the page's end", false, [](MusicRig &rig) { rig.page.reset(); });
    row("lamp", false, [system](MusicRig &rig) { system(rig, &pageLEDSystem::lampOptions, 1); });
    row("clock off", false, [system](MusicRig &rig) { system(rig, &pageLEDSystem::clockOptions, 0); });
}

void TestAudio::endsWithStopReport()
{
    QFETCH(std::function<void(MusicRig &)>, end);
    QFETCH(bool, staysOn);
    MusicRig rig;
    QVERIFY(rig.play());
    end(rig);
    QTRY_VERIFY(!SoundAnalyzer::instance().isRunning());
    QTRY_COMPARE(rig.stopReports(), 1);
    const std::size_t written = rig.fixture.desk.accessory().history().size();
    QTest::qWait(5); // for heights and frames that were under way
    QCOMPARE(rig.fixture.desk.accessory().history().size(), written);
    if (rig.page) {
        QCOMPARE(rig.page->isMusicOn(), staysOn);
        QVERIFY(rig.page->switchOptions()->buttonOf(staysOn ? 1 : 0)->isChecked());
        QVERIFY(rig.page->picture()->heights().isEmpty());
        QVERIFY(staysOn || !rig.page->note().isEmpty());
    }
    rig.page.reset();
    QCOMPARE(rig.stopReports(), 1); // it would fall into whatever has the accessory now
}

void TestAudio::busyModeInterrupts()
{
    MusicRig rig;
    rig.page->setBusy(true);
    rig.page->setBusy(false); // with the mode off nothing begins
    QVERIFY(!SoundAnalyzer::instance().isRunning());
    QVERIFY(rig.play());

    rig.page->setBusy(true);
    const std::size_t written = rig.fixture.desk.accessory().history().size();
    QTRY_VERIFY(!SoundAnalyzer::instance().isRunning());
    QCoreApplication::processEvents();
    QCOMPARE(rig.fixture.desk.accessory().history().size(), written);
    QVERIFY(rig.page->isMusicOn());

    rig.page->setBusy(false);
    rig.page->setBusy(true);
    rig.page->setBusy(false); // while the capture of before still ends
    rig.fixture.desk.accessory().clearHistory();
    QTRY_VERIFY(!rig.fixture.desk.accessory().history().empty());
}

void TestAudio::saysWhyNothingMoves()
{
    MusicRig rig;
    SimulatedEndpoint &endpoint = rig.fixture.desk.sound();
    const QString off = rig.page->note();
    endpoint.setPresent(false);
    rig.press(rig.page->switchOptions(), 1);
    const QString waiting = rig.page->note(); // for the attempt to listen
    QTRY_VERIFY(rig.page->note() != waiting && rig.page->note() != off);
    const QString none = rig.page->note();

    endpoint.play(playing(Sound::Nothing));
    endpoint.setPresent(true);
    rig.fixture.clock.advance(3s); // it is looked for again
    QTRY_VERIFY(rig.capturing());
    rig.fixture.clock.advance(1s);
    QVERIFY(rig.page->note() != none && !rig.page->note().isEmpty());
    endpoint.play(playing(Sound::Tone));
    QTRY_COMPARE(rig.page->note(), QString());
    rig.press(rig.page->switchOptions(), 0);
    QCOMPARE(rig.page->note(), off);
}

void TestAudio::listensToNewDefaultDevice()
{
    MusicRig rig;
    QVERIFY(rig.play());
    rig.fixture.desk.sound().moveDefault([](EndpointSetup &setup) { setup.sampleRate = 96000; });
    const auto passes = [&rig] {
        rig.fixture.clock.advance(1s);
        return rig.page->note();
    };
    QVERIFY(QTest::qWaitFor([&] { return !passes().isEmpty(); })); // and yet nothing fails
    QVERIFY(QTest::qWaitFor([&] { return passes().isEmpty(); }));
    QCOMPARE(rig.stopReports(), 0);
}

void TestAudio::panelPlays()
{
    MusicRig rig;
    SimulatedEndpoint &endpoint = rig.fixture.desk.sound();
    SoundPanel panel(rig.fixture.desk);
    const auto sliders = panel.findChildren<QSlider *>();
    endpoint.change([](EndpointSetup &setup) {
        setup.sampleRate = 22050; // which no box offers, as the tone below
        setup.sound.secondFrequency = 701;
    });
    QCoreApplication::processEvents();
    sliders[0]->setValue(40);
    QCOMPARE(endpoint.setup().sound.frequency, 880.0);
    QCOMPARE(endpoint.setup().sound.secondFrequency, 701.0);
    QCOMPARE(panel.findChildren<QComboBox *>()[1]->currentData().toInt(), 22050);
    endpoint.play(playing(Sound::Noise)); // by whomever
    QTRY_VERIFY(!sliders[0]->isEnabled());
    const auto buttons = panel.findChildren<QPushButton *>();
    buttons[0]->click();
    QVERIFY(!endpoint.setup().present);
    buttons[0]->click();
    buttons[1]->click();
    QVERIFY(endpoint.setup().present && !endpoint.serviceRunning());
}

QTEST_MAIN(TestAudio)
#include "tst_audio.moc"
