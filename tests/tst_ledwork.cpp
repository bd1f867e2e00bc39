#include <thread>

#include <QPushButton>
#include <QtTest>

#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "page/Nightloom/render/audiovisual.h"
#include "page/Nightloom/system/matrixformsetting.h"
#include "page/Nightloom/system/pageledsystem.h"
#include "page/Nightloom/work/ledframesource.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "page/Nightloom/work/livedisplay.h"
#include "page/engine/optiongrouprow.h"
#include "searchdevicedlg.h"
#include "support/accessoryfixture.h"
#include "support/matrixforms.h"
#include "usb-hid/accessorysettings.h"
#include "usb-hid/hidtransport.h"

using virtualdesk::kForEver;

namespace {

/// A music page that lights as many cells as its first level says.
class Source : public LedFrameSource, public AudioVisual
{
public:
    AudioVisual *audioVisual() override { return hasVisual ? this : nullptr; }
    void frameSent() override { ++sent; }
    void clear() override { m_cells.assign(static_cast<std::size_t>(accessoryLink.form.load()->cells()), 0); }
    void setLevels(const std::vector<std::int32_t> &levels) override
    {
        drawn = levels.empty() ? 0 : levels.front();
        std::fill_n(m_cells.begin(), std::min<std::size_t>(m_cells.size(), static_cast<std::size_t>(drawn)), 1);
    }
    std::span<const std::int32_t> frame() const override { return m_cells; }

    bool hasVisual = true;
    std::atomic<int> sent = 0, drawn = 0;

private:
    std::vector<std::int32_t> m_cells;
};

} // namespace

class TestLedWork : public AccessoryFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void clockStopsWithinOnePass();
    void clockGoesOnInVain();
    void spectrum();
    void noRequestIsLost();
    void textUploadEndsTheClock();
    void shutDownEndsAnUpload();
    void settingsAreSentAndStored();
    void clockGoesOnAfterwards();
    void choicesInVain();
    void lampStopsTheLiveDisplay();
    void formIsChosenAndLoaded();

private:
    QList<int> runClock(int passes);
    void makePage();
    void release(SliderWidget *slider, int value)
    {
        slider->setValue(value);
        slider->onSliderReleased();
        m_queue->drain(); // or the next value would take this one's place
    }
    QList<QByteArray> takeWrites();

    std::unique_ptr<CommandQueue> m_queue;
    std::unique_ptr<LiveDisplay> m_display;
    std::unique_ptr<pageLEDSystem> m_page;
    ledWorkThread *m_worker = nullptr;
    bool m_connected = true;
};

void TestLedWork::init()
{
    AccessoryFixture::init();
    m_worker = ledWorkThread::instance();
    m_display = std::make_unique<LiveDisplay>();
    m_connected = true;
    connectDevice();
}

void TestLedWork::cleanup()
{
    ledWorkThread::shutDown();
    m_worker->setSource(nullptr);
    m_page.reset();
    m_display.reset();
    m_queue.reset();
    AccessoryFixture::cleanup();
}

void TestLedWork::clockStopsWithinOnePass()
{
    m_desk->clock.setNow(QDateTime(QDate(2024, 3, 9), QTime(12, 34)));
    const int listener = accessory().addListener([this] {
        if (accessory().state().liveFrames == 3)
            m_worker->stop();
    });
    m_worker->begin(ledWorkThread::ClockLoop);
    QVERIFY(m_worker->wait(10000));
    accessory().removeListener(listener);
    QCOMPARE(accessory().state().liveFrames, 3);
    QCOMPARE(m_desk->clock.takeWaits(), (QList<int>{500, 500, 500}));
    QCOMPARE(m_worker->minute(), 34);
    QCOMPARE(m_worker->state(), ledWorkThread::Stopped);
    for (int i = 0; i < 200; ++i) { // before it began, or in a pass; these are whole or not at all
        m_worker->begin(ledWorkThread::ClockLoop);
        m_worker->stop();
        QVERIFY(m_worker->wait(10000));
    }
    QCOMPARE(accessory().state().liveFrames, 3 + int(m_desk->clock.takeWaits().size()));
}

/// What the clock loop waits in at least so many passes, until it is stopped.
QList<int> TestLedWork::runClock(int passes)
{
    QList<int> waits;
    const QDeadlineTimer patience(10000);
    m_worker->begin(ledWorkThread::ClockLoop);
    while (waits.size() < passes && !patience.hasExpired())
        waits += m_desk->clock.takeWaits();
    m_worker->stop();
    m_worker->wait(10000);
    return waits;
}

void TestLedWork::clockGoesOnInVain()
{
    useForm(7);
    QVERIFY(runClock(3).size() >= 3); // should the form be set right
    QCOMPARE(accessory().history().size(), 0u);
    useForm(0);
    accessory().refuseWrites(kForEver);
    const QList<int> waits = runClock(240); // two minutes
    QVERIFY(waits.size() >= 240 && waits.count(500) == waits.size());
    QCOMPARE(m_desk->takeLog(), QStringList{"HID write error."});
}

void TestLedWork::spectrum()
{
    QObject receiver;
    QList<int> built; // filled here, not on the worker's thread
    connect(m_worker, &ledWorkThread::frameBuilt, &receiver, [&built](int value) { built.append(value); });
    Source source;
    source.hasVisual = false; // as for a form that is none
    for (LedFrameSource *each : {static_cast<LedFrameSource *>(nullptr), static_cast<LedFrameSource *>(&source)}) {
        m_worker->setSource(each);
        m_worker->begin(ledWorkThread::BuildSpectrum);
        m_worker->begin(ledWorkThread::SendSpectrum);
        QVERIFY(m_worker->wait(10000));
    }
    QCoreApplication::processEvents();
    QVERIFY(built.isEmpty() && source.sent == 0);
    source.hasVisual = true;
    m_worker->setLevels({40, 1, 2});
    m_worker->begin(ledWorkThread::BuildSpectrum);
    QTRY_COMPARE(built, QList<int>{0});
    QCOMPARE(accessory().history().size(), 0u);
    m_worker->begin(ledWorkThread::SendSpectrum);
    QTRY_COMPARE(source.sent.load(), 1);
    const auto cells = accessory().state().liveCells;
    QCOMPARE(int(std::count(cells.begin(), cells.end(), 1)), 40);
    m_worker->setSource(nullptr);
}

void TestLedWork::noRequestIsLost()
{
    Source source;
    m_worker->setSource(&source);
    for (int i = 1; i <= 3000; ++i) {
        m_worker->setLevels({i});
        m_worker->begin(ledWorkThread::BuildSpectrum); // while it works, on its way out, or not at all
        const QDeadlineTimer patience(10000);
        while (i % 3 == 0 && source.drawn != i && !patience.hasExpired())
            std::this_thread::yield();
    }
    QVERIFY(m_worker->wait(10000));
    QCOMPARE(source.drawn.load(), 3000);
}

void TestLedWork::textUploadEndsTheClock()
{
    QVERIFY(writeText(QLatin1String(ledWorkThread::kTextFile), QByteArray(949, '1')));
    QObject receiver;
    QList<int> progress;
    connect(m_worker, &ledWorkThread::progress, &receiver, [&progress](int percent) { progress.append(percent); });
    m_worker->begin(ledWorkThread::ClockLoop);
    QTRY_VERIFY(accessory().state().liveFrames > 0);
    m_worker->begin(ledWorkThread::UploadText);
    m_worker->stop(); // frames only: a page waits for the upload's end
    QVERIFY(m_worker->wait(10000));
    QCoreApplication::processEvents();
    QVERIFY(accessory().state().upload.isComplete());
    QCOMPARE(accessory().state().upload.mode, 0x2F);
    QCOMPARE(progress.value(24), 100); // the device is prepared
    QCOMPARE(progress.value(progress.size() - 1), 100);
}

void TestLedWork::shutDownEndsAnUpload()
{
    QVERIFY(writeText(QLatin1String(ledWorkThread::kTextFile), QByteArray(56 * 13930, '1')));
    QSemaphore begun;
    const int listener = accessory().addListener([this, &begun] {
        if (accessory().state().upload.received == 5)
            begun.release();
    });
    m_worker->begin(ledWorkThread::UploadText);
    QVERIFY(begun.tryAcquire(1, 10000));
    ledWorkThread::shutDown();
    accessory().removeListener(listener);
    QVERIFY(m_worker->isFinished());
    QVERIFY(!accessory().state().upload.isComplete());
}

void TestLedWork::makePage()
{
    m_queue = std::make_unique<CommandQueue>();
    m_page = std::make_unique<pageLEDSystem>([this] { return m_connected; }, *m_display, *m_queue);
    for (const SliderWidget *slider : m_page->findChildren<SliderWidget *>())
        QVERIFY(slider->slider()->minimum() == 0 && slider->slider()->maximum() == kHighestAccessoryValue);
    m_desk->clock.takeWaits();
}

QList<QByteArray> TestLedWork::takeWrites()
{
    QList<QByteArray> writes;
    for (const auto &write : accessory().history())
        writes.append(write.bytes.toHex());
    accessory().clearHistory();
    return writes;
}

/// The monitor is told as well, even what the accessory did not take.
void TestLedWork::settingsAreSentAndStored()
{
    SearchDeviceDlg().searchDevices();
    makePage();
    QCOMPARE(m_page->brightnessSlider()->value(), 10); // as the factory reset leaves it
    m_desk->takeCommands();
    m_page->levelSlider()->setValue(7);
    QCOMPARE(takeWrites(), QList<QByteArray>()); // it is still being dragged
    release(m_page->levelSlider(), 8);
    release(m_page->brightnessSlider(), 3);
    QCOMPARE(m_desk->clock.takeWaits().count(150), 2);
    QCOMPARE(accessory().state().level, 8);
    QCOMPARE(accessory().state().brightness, 3);
    QCOMPARE(takeWrites().size(), 2);
    accessory().refuseWrites(1);
    release(m_page->brightnessSlider(), 4);
    m_connected = false;
    release(m_page->brightnessSlider(), 5);
    QCOMPARE(m_desk->takeCommands(), (QStringList{"W 73=8", "W 72=3", "W 72=4"}));
    QCOMPARE(settingsInt(QLatin1String(kPlaybackLevelKey), 0, false), 8);
    QCOMPARE(settingsInt(QLatin1String(kLedBrightnessKey), 0, false), 4);
    takeWrites();
    makePage();
    QCOMPARE(m_page->levelSlider()->value(), 8);
    m_page->updateInterfaceData();
    QCOMPARE(takeWrites(), QList<QByteArray>()); // filling sends nothing
    m_connected = true;
    m_desk->desk.fileFaults.flush.failAt(1);
    release(m_page->levelSlider(), 3); // only the file does not take it
    QVERIFY(m_page->notice().startsWith(QStringLiteral("config.ini cannot be written:")));
    m_page->updateInterfaceData();
    QCOMPARE(m_page->levelSlider()->value(), accessory().state().level);
    QCOMPARE(accessory().state().level, 3);
    m_desk->desk.fileFaults.flush.failAt(1);
    m_page->formOptions()->buttonOf(1)->click();
    QVERIFY(m_page->notice().startsWith(QStringLiteral("config.ini cannot be written:")));
    QCOMPARE(accessoryLink.form.load(), &kRectangle);
}

/// Whatever comes in between, the clock goes on, and meanwhile no time stays that is no longer true.
void TestLedWork::clockGoesOnAfterwards()
{
    makePage();
    const auto goesOn = [this] {
        const int frames = accessory().state().liveFrames;
        return QTest::qWaitFor([&] { return accessory().state().liveFrames > frames; });
    };
    m_page->clockOptions()->buttonOf(1)->click();
    QVERIFY(goesOn());
    release(m_page->levelSlider(), 9);
    QVERIFY(goesOn());
    for (int i = 0; i < 20; ++i) { // wherever the clock is in its pass
        m_display->setInterrupted(true);
        QVERIFY(!accessory().state().showsLive);
        QVERIFY(m_worker->wait(10000));
        QVERIFY(!accessory().state().showsLive);
        QVERIFY(m_page->clockOptions()->buttonOf(1)->isChecked());
        m_display->setInterrupted(false);
        QVERIFY(goesOn());
    }
    m_display->setInterrupted(true);
    accessory().setForm(1); // only now, or frames of the old form would still come to it
    m_page->formOptions()->buttonOf(1)->click();
    m_display->setInterrupted(false);
    QTRY_COMPARE(int(accessory().state().liveCells.size()), 1050);
    m_display->setInterrupted(true);
    m_page->clockOptions()->buttonOf(0)->click();
    takeWrites();
    m_display->setInterrupted(false);
    QVERIFY(m_worker->wait(10000));
    QCOMPARE(takeWrites(), QList<QByteArray>());
}

void TestLedWork::choicesInVain()
{
    makePage();
    m_connected = false;
    release(m_page->levelSlider(), 9);
    m_page->lampOptions()->buttonOf(1)->click();
    m_page->clockOptions()->buttonOf(1)->click();
    QCOMPARE(takeWrites(), QList<QByteArray>());
    QCOMPARE(m_page->levelSlider()->value(), 5); // as it was
    QVERIFY(!m_page->lampOptions()->buttonOf(1)->isChecked());
    QVERIFY(m_page->clockOptions()->buttonOf(0)->isChecked());
    QVERIFY(!QFile::exists(QLatin1String(kConfigFile)));
    m_connected = true;
    accessory().refuseWrites(kForEver);
    m_page->lampOptions()->buttonOf(1)->click();
    QCOMPARE(m_desk->takeLog(), (QStringList{"HID write error.", "HID write error."}));
}

void TestLedWork::lampStopsTheLiveDisplay()
{
    makePage();
    for (OptionGroupRow *stopping : {m_page->clockOptions(), m_page->lampOptions()}) {
        takeWrites();
        m_page->clockOptions()->buttonOf(1)->click();
        QTRY_VERIFY(accessory().state().showsLive);
        stopping->buttonOf(0)->click();
        QVERIFY(m_worker->wait(10000));
        QVERIFY(stopping->buttonOf(0)->isChecked());
    }
    QList<QByteArray> writes = takeWrites();
    writes.removeIf([](const QByteArray &write) { return write.startsWith("01e000"); });
    QCOMPARE(writes, (QList<QByteArray>{"01e001b089", "01d00400f972"}));
    m_page->lampOptions()->buttonOf(1)->click();
    QCOMPARE(accessory().state().lamp, 1);
}

void TestLedWork::formIsChosenAndLoaded()
{
    makePage();
    m_page->formOptions()->buttonOf(1)->click();
    QCOMPARE(accessoryLink.form.load(), &kRectangle);
    for (const auto &[stored, loaded] : {std::pair{0, 0}, {1, 1}, {99, 0}, {-1, 0}}) {
        settingsInt(QLatin1String(kMatrixFormKey), stored, true);
        loadMatrixForm();
        QCOMPARE(accessoryLink.form.load()->number, loaded);
    }
}

QTEST_MAIN(TestLedWork)
#include "tst_ledwork.moc"
