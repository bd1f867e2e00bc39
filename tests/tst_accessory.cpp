#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "page/Nightloom/animate/memorycard.h"
#include "page/Nightloom/animate/pageledanimate.h"
#include "page/Nightloom/game/pageledgame.h"
#include "page/Nightloom/parts/smallmatrix.h"
#include "page/Nightloom/render/eventpictures.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "page/Nightloom/work/livedisplay.h"
#include "page/engine/optiongrouprow.h"
#include "searchdevicedlg.h"
#include "support/accessoryfixture.h"
#include "support/matrixforms.h"
#include "usb-hid/hidtransport.h"
#include "usb-hid/livesender.h"
#include "virtualdesk/accessoryforms.h"
#include "virtualdesk/accessorypanel.h"
#include "virtualdesk/accessoryscreen.h"

using virtualdesk::kForEver;

namespace {

using Build = std::function<void(AccessoryReport &)>;

QByteArray hex(const AccessoryReport &report)
{
    const auto bytes = report.written();
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size())).toHex();
}

} // namespace

/// The reports, what the accessory makes of wrong ones, finding, opening and closing it, by the program and by hand on
/// the desk's panel, and the pages on which one only chooses.
class TestAccessory : public AccessoryFixture
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void reports_data();
    void reports();
    void deviceRefusesWrongReports();
    void findAndOpen_data();
    void findAndOpen();
    void flagsAreSticky();
    void panelShowsTheAccessory();
    void animationsAreChosen();
    void memoriesPlay();
    void gameEventsAreChosen();
    void eventPicturesFit();

private:
    /// The reports since the last call, without the zeros at their end.
    QStringList takeReports();

    template <typename Page> std::unique_ptr<Page> makePage()
    {
        connectDevice();
        if (!m_queue)
            m_queue = std::make_unique<CommandQueue>();
        const auto check = [this] {
            ++m_checks;
            if (m_onCheck)
                std::exchange(m_onCheck, {})();
            return m_connected;
        };
        std::unique_ptr<Page> page;
        if constexpr (std::is_same_v<Page, pageLEDGame>)
            page = std::make_unique<Page>(m_display, *m_queue);
        else
            page = std::make_unique<Page>(check, m_display, *m_queue);
        page->build();
        page->show();
        return page;
    }

    LiveDisplay m_display;
    std::unique_ptr<CommandQueue> m_queue;
    bool m_connected = true;
    int m_checks = 0;
    std::function<void()> m_onCheck; ///< once, while the user is told
};

void TestAccessory::cleanup()
{
    ledWorkThread::shutDown();
    m_queue.reset();
    m_connected = true;
    AccessoryFixture::cleanup();
}

void TestAccessory::reports_data()
{
    columns<Build, QByteArray>("build", "expected");
    const auto row = [](const char *name, const QByteArray &expected, const Build &build) {
        QTest::newRow(name) << build << expected;
    };
    static constexpr std::int32_t kCells[] = {1, 2}; // 2 is no lit cell
    static constexpr std::uint8_t kChoice[] = {1, 3, 5};
    static constexpr bool kEvents[] = {true, false, true};
    row("upload start", "01c024ab51", [](auto &r) { buildUploadStart(r, 0x24); });
    row("text start", "01c02f6c10", [](auto &r) { buildUploadStart(r, kTextMode); });
    row("upload chunk", "01c0240cb60cb6fe009943",
        [](auto &r) { buildUploadChunk(r, 0x24, 3254, 3254, std::span("1\n", 2)); });
    row("one byte", "01c02400030003fedc5c", [](auto &r) { buildUploadChunk(r, 0x24, 3, 3, std::span("1", 1)); });
    row("live chunk", "01e00000110002ff007052", [](auto &r) { buildLiveChunk(r, 17, 2, kCells); });
    row("live stop", "01e001b089", [](auto &r) { buildLiveStop(r); });
    row("no choice", "01b00bb735", [](auto &r) { buildAnimationChoice(r, {}); });
    row("choice", "01b00b010305cdf6", [](auto &r) { buildAnimationChoice(r, kChoice); });
    row("settings", "01a00a05649d00", [](auto &r) { buildSystemSettings(r, 5, 100); });
    row("lamp off", "01d00400f972", [](auto &r) { buildMatrixLamp(r, false); });
    row("lamp on", "01d0040139b3", [](auto &r) { buildMatrixLamp(r, true); });
    row("game events", "0602fe00fe" + QByteArray(2 * 59, '0'), [](auto &r) { buildGameChoice(r, kEvents); });
    row("game settings", "06010709" + QByteArray(2 * 60, '0'), [](auto &r) { buildGameSettings(r, 7, 9); });
}

void TestAccessory::reports()
{
    const auto [build, expected] = fetch<Build, QByteArray>();
    AccessoryReport report;
    report.bytes.fill(0xEE); // what was in the buffer before must not show
    build(report);
    QCOMPARE(hex(report), expected);
    connectDevice();
    QCOMPARE(writeHid(report), HidWrite::Done);
    m_faultsExpected = accessory().protocolFaults(); // the chunks have no beginning here
}

void TestAccessory::deviceRefusesWrongReports()
{
    connectDevice();
    for (const auto &[report, fault] : {std::pair("", "empty report"),
                                        {"02c024ab51", "unknown report"},
                                        {"01c024ab52", "wrong checksum"},
                                        {"01c02451ab", "wrong checksum"},   // low byte first
                                        {"01c024ab5100", "wrong checksum"}, // padded
                                        {"01c024", "wrong length"},
                                        {"01c02400030003fedc5c", "chunk without upload"},
                                        {"01e0000011000200ffc053", "short chunk"},
                                        {"0602fe", "wrong length"}}) {
        const QByteArray sent = QByteArray::fromHex(report);
        const std::span bytes(reinterpret_cast<const std::uint8_t *>(sent.constData()),
                              static_cast<std::size_t>(sent.size()));
        QCOMPARE(platform::desk().hid().write(accessoryLink.handle, bytes), int(sent.size()));
        QCOMPARE(accessory().history().back().fault, fault);
        ++m_faultsExpected;
        QCOMPARE(accessory().state().uploads, 0);
    }
}

void TestAccessory::findAndOpen_data()
{
    columns<bool, bool, bool, QStringList, int>("others", "plugged", "opens", "log", "held"); // held: not released
    const QStringList away = {"HID device  not find"};
    QTest::newRow("there") << true << true << true << QStringList{"HID device find", "HID open OK"} << 1;
    QTest::newRow("alone") << false << true << true << QStringList{"HID device find", "HID open OK"} << 0;
    QTest::newRow("does not open") << true << true << false << QStringList{"HID device find", "HID open Fail "} << 1;
    QTest::newRow("away") << true << false << true << away << 2;
    QTest::newRow("no device at all") << false << false << true << QStringList() << 0;
}

void TestAccessory::findAndOpen()
{
    const auto [others, plugged, opens, log] = fetch<bool, bool, bool, QStringList>();
    m_desk->desk.hasHidDevices = others;
    accessory().setPlugged(plugged);
    accessory().failOpens(opens ? 0 : kForEver);
    reopenHid();
    QStringList said = m_desk->takeLog();
    if (!said.isEmpty() && said.last().startsWith("HID open OK")) {
        QVERIFY(said.last().size() > qsizetype(strlen("HID open OK ")));
        said.last().truncate(qsizetype(strlen("HID open OK")));
    }
    QCOMPARE(said, log);
    QTEST(m_desk->desk.hidEntriesHeld, "held");
    QCOMPARE(accessoryLink.found.has_value(), plugged);
    QCOMPARE(accessoryLink.opened, plugged && opens);
    QCOMPARE(accessoryLink.handle != nullptr, plugged && opens);
}

void TestAccessory::flagsAreSticky()
{
    QVERIFY(!Fun_hid_open(kAccessoryVendor, kAccessoryProduct)); // not found yet: not even tried
    QVERIFY(m_desk->takeLog().isEmpty());
    connectDevice();
    accessory().setPlugged(false);
    QVERIFY(Fun_hid_find(kAccessoryVendor, kAccessoryProduct));
    QVERIFY(m_desk->takeLog().isEmpty());
    QVERIFY(!Fun_hid_open(kAccessoryVendor, kAccessoryProduct)); // open already
    QCOMPARE(accessory().handlesOpen(), 1);
    accessory().setPlugged(true);
    QList<int> told; // a panel follows it
    const int listener = accessory().addListener([&] { told.append(accessory().handlesOpen()); });
    reopenHid(); // the opened flag is still set: closed and nothing else
    QVERIFY(!accessoryLink.handle);
    connectDevice();
    accessory().removeListener(listener);
    QCOMPARE(told, (QList<int>{0, 1}));
}

void TestAccessory::panelShowsTheAccessory()
{
    connectDevice();
    virtualdesk::AccessoryPanel panel(m_desk->desk);
    panel.show();
    QCOMPARE(panel.matrix()->litCells(), 0);
    const auto button = [&panel](const char *name) { return panel.findChild<QPushButton *>(QLatin1String(name)); };
    accessory().setForm(1);
    useForm(1);
    sendLiveFrame(std::vector<std::int32_t>(1050, 1));
    QTRY_COMPARE(panel.matrix()->litCells(), 1050);
    QVERIFY(button("form")->isChecked());
    for ([[maybe_unused]] const int form : virtualdesk::knownForms())
        button("form")->click();
    QCOMPARE(accessory().form(), 1); // through all of them
    button("unplug")->click();
    QVERIFY(!accessory().isPlugged());
    QTRY_COMPARE(panel.matrix()->litCells(), 0);
    button("unplug")->click();
    connectDevice();
    button("refuse")->click();
    AccessoryReport report;
    buildLiveStop(report);
    QCOMPARE(writeHid(report), HidWrite::Failed);
    button("refuse")->click();
    connectDevice();
    button("pull")->click();
    for (int i = 1; i <= 8; ++i)
        QCOMPARE(writeHid(report), i < 8 ? HidWrite::Done : HidWrite::Failed);
    QTRY_VERIFY(button("unplug")->isChecked());
    QVERIFY(!button("pull")->isChecked());
}

QStringList TestAccessory::takeReports()
{
    static const QRegularExpression kZeros(QStringLiteral("(00)+$"));
    QStringList reports;
    for (const auto &write : accessory().history())
        reports += QString::fromLatin1(write.bytes.toHex()).remove(kZeros);
    accessory().clearHistory();
    return reports;
}

/// The monitor is told as well, even what the accessory did not take.
void TestAccessory::animationsAreChosen()
{
    SearchDeviceDlg().searchDevices();
    auto page = makePage<pageLEDAnimate>();
    const auto chosen = [&page] {
        QList<int> places;
        const auto &buttons = page->memoryOptions()->buttons();
        for (int i = 0; i < static_cast<int>(buttons.size()); ++i) {
            if (buttons[static_cast<std::size_t>(i)]->isChecked())
                places += i;
        }
        return places;
    };
    const auto press = [&](std::size_t place) {
        page->memoryOptions()->buttons()[place]->click();
        m_queue->drain();
    };
    QCOMPARE(chosen(), QList<int>());
    QCOMPARE(page->memoryOptions()->mark(), Mark::Unchosen); // the accessory does not tell
    m_desk->takeCommands();
    for (const std::size_t place : {3u, 0u, 3u, 4u, 4u, 0u})
        press(place);
    QCOMPARE(takeReports(), (QStringList{"01b00b270d37", "01b00b24273c0c", "01b00b240c77", "01b00b2428384c",
                                         "01b00b240c77", "01b00bb735"}));
    QCOMPARE(m_desk->takeCommands(), (QStringList{"W 70=1", "W 67=1", "W 70=0", "W 71=1", "W 71=0", "W 67=0"}));
    QVERIFY(chosen().isEmpty() && page->memoryOptions()->mark() == Mark::None); // none is a choice as well
    press(0);
    accessory().refuseWrites(1);
    press(1);
    m_connected = false;
    press(2);
    QCOMPARE(takeReports(), (QStringList{"01b00b240c77", "01b00b2425fd8d"})); // the second in vain
    QCOMPARE(m_desk->takeCommands(), (QStringList{"W 67=1", "W 68=1"}));
    QCOMPARE(chosen(), (QList<int>{0, 1}));
    page = makePage<pageLEDAnimate>();
    QCOMPARE(chosen(), (QList<int>{0, 1}));
    m_connected = true;
    m_desk->desk.fileFaults.flush.failAt(1);
    press(0);
    QVERIFY(page->notice().startsWith(QStringLiteral("config.ini cannot be written:")));
    QVERIFY(chosen() == QList<int>{1} && takeReports().size() == 1);
}

void TestAccessory::memoriesPlay()
{
    useForm(0);
    const QByteArray lit(949, '1');
    QVERIFY(writeText("sent.txt", lit + QByteArray(949, 'x') + "11")); // the rest is no frame
    QCOMPARE(keepUploaded(kAnimationMemories[1], "sent.txt", kTapering), QString());
    const auto page = makePage<pageLEDAnimate>();
    const auto shown = [&page](std::size_t card) { return page->cards()[card]->picture()->frame()->digits(); };
    const MemoryCard *card = page->cards()[1];
    QCOMPARE(card->note(), QStringLiteral("Frames: 2"));
    QCOMPARE(shown(1), lit);
    m_desk->clock.advance(std::chrono::milliseconds(100));
    QCOMPARE(shown(1), QByteArray(949, '0'));
    page->hide();
    QVERIFY(!card->isPlaying());
    useForm(1);
    page->show();
    QCOMPARE(card->note(), QStringLiteral("Uploaded for another form of the matrix."));
    QVERIFY(page->cards()[3]->note().contains(QStringLiteral("\"Mode4\""))); // nothing was uploaded there
    QVERIFY(!card->isPlaying() && shown(1) == QByteArray(1050, '0'));
}

void TestAccessory::gameEventsAreChosen()
{
    auto page = makePage<pageLEDGame>();
    const auto events = [&page](std::size_t place) { return page->eventOptions()->buttons()[place]; };
    QCOMPARE(page->eventOptions()->mark(), Mark::Unchosen);
    QVERIFY(events(0)->styleSheet().contains("img/option/")); // as every other option
    for (QPushButton *button : {page->findChild<QPushButton *>("Select All"), events(0), events(6),
                                page->findChild<QPushButton *>("Select None"), events(1), events(7)})
        button->click();
    QCOMPARE(takeReports(), (QStringList{"0602fefefefefefefefe", "060200fefefefefefefe", "060200fefefefefe00fe", "0602",
                                         "060200fe", "060200fe0000000000fe"}));
    const auto setInterval = [&page](int seconds) {
        page->intervalField()->setValue(seconds);
        QTest::keyClick(page->intervalField(), Qt::Key_Return);
    };
    setInterval(61);
    page->brightnessSlider()->setValue(4);
    page->brightnessSlider()->setValue(3);
    page->brightnessSlider()->onSliderReleased();
    QCOMPARE(takeReports(), (QStringList{"06013c0a", "06013c03"}));
    closeHid(); // then the choice is kept, and the page says that it was not sent
    setInterval(7);
    events(2)->click();
    QVERIFY(takeReports().isEmpty() && !page->notice().isEmpty());
    page = makePage<pageLEDGame>();
    QVERIFY(page->intervalField()->value() == 7 && page->brightnessSlider()->value() == 3);
    QVERIFY(events(1)->isChecked() && events(2)->isChecked() && events(7)->isChecked() && !events(6)->isChecked());
    QVERIFY(takeReports().isEmpty()); // filling sends nothing
    useForm(1);
    QEvent enter(QEvent::FocusIn);
    QCoreApplication::sendEvent(events(5), &enter);
    QVERIFY(page->picture()->frame() == eventPicture(kRectangle, GameEvent::LowHealth));
}

/// A dot is two cells of the tapering form and four of the rectangle: none is lost on either.
void TestAccessory::eventPicturesFit()
{
    QSet<QByteArray> pictures;
    for (int event = 0; event < kGameEvents; ++event) {
        const QByteArray tapering = eventPicture(kTapering, static_cast<GameEvent>(event)).digits();
        const QByteArray rectangle = eventPicture(kRectangle, static_cast<GameEvent>(event)).digits();
        QCOMPARE(rectangle.count('1'), 2 * tapering.count('1'));
        QVERIFY(tapering.count('1') > 80); // to be seen from afar
        pictures += {tapering, rectangle};
    }
    QCOMPARE(pictures.size(), 2 * kGameEvents);
}

QTEST_MAIN(TestAccessory)
#include "tst_accessory.moc"
