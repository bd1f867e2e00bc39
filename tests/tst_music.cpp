// From what plays to what the matrix shows: the music page with all behind it.

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
#include "support/datarow.h"
#include "support/deskfixture.h"
#include "support/sounds.h"
#include "usb-hid/hidtransport.h"
#include "virtualdesk/soundpanel.h"

using namespace std::chrono_literals;
using namespace virtualdesk;

namespace {

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

class TestMusic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpSharedFonts(); }
    void reachesMatrix_data();
    void reachesMatrix();
    void endsWithStopReport_data();
    void endsWithStopReport();
    void busyModeInterrupts();
    void saysWhyNothingMoves();
    void listensToNewDefaultDevice();
    void panelPlays();
};

void TestMusic::reachesMatrix_data()
{
    columns<int>("form");
    row("tapering", kTaperingForm);
    row("rectangle", kRectangleForm);
}

void TestMusic::reachesMatrix()
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
        bars->setTemplate(AudioTemplate::Mirrored);
        const auto shown = rig.shown();
        return std::any_of(rig.heard.begin(), rig.heard.end(), [&](const QList<int> &list) {
            bars->clear();
            bars->setLevels({list.begin(), list.end()});
            return std::equal(shown.begin(), shown.end(), bars->frame().begin(), bars->frame().end());
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

void TestMusic::endsWithStopReport_data()
{
    using End = std::function<void(MusicRig &)>;
    columns<bool, End>("staysOn", "end");
    const auto system = [](MusicRig &rig, OptionGroupRow *(pageLEDSystem::*options)() const, int value) {
        pageLEDSystem page([] { return true; }, rig.queue);
        rig.press((page.*options)(), value);
    };
    row("switch", false, End([](MusicRig &rig) { rig.press(rig.page->switchOptions(), 0); }));
    row("busy mode", true, End([](MusicRig &rig) { rig.page->setBusy(true); }));
    row("by itself", true, End([](MusicRig &) { SoundAnalyzer::instance().stop(); }));
    row("the page's end", false, End([](MusicRig &rig) { rig.page.reset(); }));
    row("lamp", false, End([system](MusicRig &rig) { system(rig, &pageLEDSystem::lampOptions, 1); }));
    row("clock off", false, End([system](MusicRig &rig) { system(rig, &pageLEDSystem::clockOptions, 0); }));
}

void TestMusic::endsWithStopReport()
{
    QFETCH(std::function<void(MusicRig &)>, end);
    QFETCH(bool, staysOn);
    MusicRig rig;
    QVERIFY(rig.play());
    end(rig);
    QTRY_VERIFY(!SoundAnalyzer::instance().isRunning());
    QTRY_COMPARE(rig.stopReports(), 1);
    const std::size_t written = rig.fixture.desk.accessory().history().size();
    QVERIFY(ledWorkThread::instance()->wait(10000)); // heights and frames may be under way
    QCoreApplication::processEvents();
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

void TestMusic::busyModeInterrupts()
{
    MusicRig rig;
    rig.connected = false;
    rig.press(rig.page->switchOptions(), 1);
    QVERIFY(!rig.page->isMusicOn()); // nothing to show it on
    QVERIFY(rig.page->switchOptions()->buttonOf(0)->isChecked());
    rig.connected = true;
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

void TestMusic::saysWhyNothingMoves()
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

void TestMusic::listensToNewDefaultDevice()
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

void TestMusic::panelPlays()
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

QTEST_MAIN(TestMusic)
#include "tst_music.moc"
