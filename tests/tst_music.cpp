// From what plays to what the matrix shows: the music page with all behind it.

#include <thread>

#include <QtTest>
#include <QtWidgets>

#include "PictureAudioCom/soundanalyzer.h"
#include "controls/sharedfonts.h"
#include "ddc_protocol/commandqueue.h"
#include "page/Nightloom/music/audiopicture.h"
#include "page/Nightloom/music/pageledmusic.h"
#include "page/Nightloom/system/pageledsystem.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "page/Nightloom/work/livedisplay.h"
#include "page/engine/optiongrouprow.h"
#include "support/deskfixture.h"
#include "support/matrixforms.h"
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
        useForm(0);
        page = std::make_unique<pageLEDMusic>([this] { return connected; }, display, queue);
        clearHidFlags();
        reopenHid();
        fixture.desk.sound().play(playing(Sound::Tone));
        // The clock does not hold the analyser back: it waits here until the page has taken its heights.
        SoundAnalyzer &analyzer = SoundAnalyzer::instance();
        QObject::connect(&analyzer, &SoundAnalyzer::heightsReady, page.get(), [this](const QList<int> &heights) {
            heard.append(heights);
            ++taken;
            turns.release();
        });
        fixture.desk.sound().setProbe([this, &analyzer](AudioCall call, int) {
            if (call == AudioCall::ReleaseBuffer) // behind the heights
                ++told;
            if (call != AudioCall::NextPacketSize)
                return;
            ++turn;
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
        QCoreApplication::processEvents(); // what the two threads still tell is not the next page's
        closeHid();
        useForm(0);
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
        return becomes([this] { return litCells(shown()) > 0; });
    }
    /// Waits for something while there is anything left that could bring it about, and the sound has not gone on for
    /// long without it.
    bool becomes(const std::function<bool()> &condition)
    {
        const int lastTurn = turn + 300;
        const QDeadlineTimer aSecond(1000);
        for (bool works = true; !condition(); works = worksOn()) {
            if (!works || (turn > lastTurn && aSecond.hasExpired()))
                return false;
            QCoreApplication::processEvents();
            std::this_thread::yield();
        }
        return true;
    }
    /// Whether a thread may still tell something; what it told last is taken.
    bool worksOn()
    {
        if (SoundAnalyzer::instance().isRunning() || ledWorkThread::instance()->isRunning())
            return true;
        SoundAnalyzer::instance().wait(); // one that no longer runs may still be about to tell so
        ledWorkThread::instance()->wait();
        QCoreApplication::processEvents();
        return SoundAnalyzer::instance().isRunning() || ledWorkThread::instance()->isRunning();
    }
    std::ptrdiff_t stopReports()
    {
        const auto history = fixture.desk.accessory().history();
        return std::count_if(history.begin(), history.end(),
                             [](const auto &report) { return report.bytes.startsWith(QByteArray("\x01\xE0\x01", 3)); });
    }

    DeskFixture fixture;
    CommandQueue queue;
    LiveDisplay display;
    std::atomic<int> turn = 0; // of the analyser
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
    void reachesMatrix();
    void endsWithStopReport_data();
    void endsWithStopReport();
    void busyModeInterrupts();
    void saysWhyNothingMoves();
    void listensToNewDefaultDevice();
    void panelPlays();
};

void TestMusic::reachesMatrix()
{
    for (const MatrixForm &form : matrixForms()) {
        MusicRig rig;
        rig.fixture.desk.accessory().setForm(form.number);
        accessoryLink.form = &form;
        rig.page->updateInterfaceData();
        QVERIFY(rig.page->templateOptions()->buttonOf(static_cast<int>(AudioTemplate::Bars))->isChecked());
        QCOMPARE(settingsInt(kMusicTemplateKey, static_cast<int>(AudioTemplate::Mirrored), true), 0);
        rig.page->updateInterfaceData();
        rig.press(rig.page->switchOptions(), 1);
        QVERIFY(rig.page->isMusicOn());
        QVERIFY(rig.becomes([&] { return litCells(rig.shown()) > 0; }));
        QVERIFY(rig.becomes([&] { return rig.page->note() == QString(); }));

        // A tone is the same in every packet but for its phase: what is shown is a picture of heights that were told.
        QVERIFY(rig.becomes([&] {
            const auto bars = makeAudioBars(form);
            bars->setTemplate(AudioTemplate::Mirrored);
            const auto shown = rig.shown();
            return std::any_of(rig.heard.begin(), rig.heard.end(), [&](const QList<int> &list) {
                bars->clear();
                bars->setLevels({list.begin(), list.end()});
                return std::equal(shown.begin(), shown.end(), bars->frame().begin(), bars->frame().end());
            });
        }));
        const auto picture = rig.page->picture()->cells();
        QCOMPARE(static_cast<int>(picture.size()), form.cells());
        QVERIFY(litCells(picture) > 0);

        rig.fixture.desk.fileFaults.replace.failAt(1);
        rig.press(rig.page->templateOptions(), static_cast<int>(AudioTemplate::Hanging));
        QVERIFY(rig.page->notice().contains("config.ini"));
        rig.press(rig.page->templateOptions(), static_cast<int>(AudioTemplate::Hanging));
        QCOMPARE(settingsInt(kMusicTemplateKey, 0, false), static_cast<int>(AudioTemplate::Hanging));
        QVERIFY(rig.becomes([&] {
            MatrixFrame frame(form);
            frame.setFlat(rig.shown());
            return litCells(frame.rows()[0]) == 11 * form.bars.width;
        }));
        QCOMPARE(rig.fixture.desk.accessory().protocolFaults(), 0);
    }
}

void TestMusic::endsWithStopReport_data()
{
    using End = std::function<void(MusicRig &)>;
    columns<bool, End>("staysOn", "end");
    const auto system = [](MusicRig &rig, OptionGroupRow *(pageLEDSystem::*options)() const, int value) {
        pageLEDSystem page([] { return true; }, rig.display, rig.queue);
        rig.press((page.*options)(), value);
    };
    row("switch", false, End([](MusicRig &rig) { rig.press(rig.page->switchOptions(), 0); }));
    row("busy mode", true, End([](MusicRig &rig) { rig.display.setInterrupted(true); }));
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
    QVERIFY(rig.becomes([&] { return !SoundAnalyzer::instance().isRunning(); }));
    QVERIFY(rig.becomes([&] { return rig.stopReports() == 1; }));
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
    rig.display.setInterrupted(true);
    rig.display.setInterrupted(false); // with the mode off nothing begins
    QVERIFY(!SoundAnalyzer::instance().isRunning());
    QVERIFY(rig.play());

    rig.display.setInterrupted(true);
    const std::size_t written = rig.fixture.desk.accessory().history().size();
    QVERIFY(rig.becomes([&] { return !SoundAnalyzer::instance().isRunning(); }));
    QCoreApplication::processEvents();
    QCOMPARE(rig.fixture.desk.accessory().history().size(), written);
    QVERIFY(rig.page->isMusicOn());

    rig.display.setInterrupted(false);
    rig.display.setInterrupted(true);
    rig.display.setInterrupted(false); // while the capture of before still ends
    rig.fixture.desk.accessory().clearHistory();
    QVERIFY(rig.becomes([&] { return !rig.fixture.desk.accessory().history().empty(); }));
}

void TestMusic::saysWhyNothingMoves()
{
    MusicRig rig;
    SimulatedEndpoint &endpoint = rig.fixture.desk.sound();
    const QString off = rig.page->note();
    endpoint.setPresent(false);
    rig.press(rig.page->switchOptions(), 1);
    const QString waiting = QStringLiteral("Listening…"); // the attempt to listen may be over already
    QVERIFY(rig.becomes([&] { return rig.page->note() != waiting && rig.page->note() != off; }));
    const QString none = rig.page->note();

    endpoint.play(playing(Sound::Nothing));
    endpoint.setPresent(true);
    rig.fixture.clock.advance(3s); // it is looked for again
    QVERIFY(rig.becomes([&] { return rig.capturing(); }));
    rig.fixture.clock.advance(1s);
    QVERIFY(rig.page->note() != none && !rig.page->note().isEmpty());
    endpoint.play(playing(Sound::Tone));
    QVERIFY(rig.becomes([&] { return rig.page->note() == QString(); }));
    rig.press(rig.page->switchOptions(), 0);
    QCOMPARE(rig.page->note(), off);
}

void TestMusic::listensToNewDefaultDevice()
{
    MusicRig rig;
    QVERIFY(rig.play());
    rig.fixture.desk.sound().moveDefault([](EndpointSetup &setup) { setup.sampleRate = 96000; });
    auto passes = [&rig, turn = 0]() mutable {
        if (rig.turn > turn + 3) // it has listened meanwhile
            turn = (rig.fixture.clock.advance(1s), rig.turn.load());
        return rig.page->note();
    };
    QVERIFY(rig.becomes([&] { return !passes().isEmpty(); })); // and yet nothing fails
    QVERIFY(rig.becomes([&] { return passes().isEmpty(); }));
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
    QVERIFY(rig.becomes([&] { return !sliders[0]->isEnabled(); }));
    const auto buttons = panel.findChildren<QPushButton *>();
    buttons[0]->click();
    QVERIFY(!endpoint.setup().present);
    buttons[0]->click();
    buttons[1]->click();
    QVERIFY(endpoint.setup().present && !endpoint.serviceRunning());

    const QString bad = QDir(rig.fixture.folder()).filePath("bad.wav");
    QVERIFY(writeText(bad, "no sound"));
    QTimer::singleShot(0, &panel, [&bad] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        dialog->selectFile(bad);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    Q_EMIT panel.findChild<QComboBox *>()->activated(static_cast<int>(Sound::Wave));
    QVERIFY(panel.findChild<QLabel *>("state")->text().contains("WAV")); // why it does not play
    QCOMPARE(endpoint.setup().sound.sound, Sound::Noise);
}

QTEST_MAIN(TestMusic)
#include "tst_music.moc"
