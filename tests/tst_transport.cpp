#include <thread>

#include <QSignalSpy>
#include <QtTest>

#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/transport.h"
#include "support/datarow.h"
#include "support/deskfixture.h"

using virtualdesk::kForEver;

namespace {

constexpr auto kBrightnessWrite = COMMAND_set_Type{28};
constexpr auto kBrightnessRead = COMMAND_set_Type{29};
constexpr auto kSceneRead = COMMAND_set_Type{55};
constexpr auto kIrregularRead = COMMAND_set_Type{171};

QStringList repeated(const QStringList &requests, int times)
{
    QStringList all;
    for (int i = 0; i < times; ++i)
        all += requests;
    return all;
}

} // namespace

class TestTransport : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void tableRows();
    void packet();
    void writeRetries_data();
    void writeRetries();
    void writeFailureAsksForReconnect();
    void suspensionSendsNothing();
    void readRetries_data();
    void readRetries();
    void readsWithoutMonitor();
    void currentAndMaximum();
    void indexBeyondTheListFails();
    void tableRead_data();
    void tableRead();
    void tableReadLengths_data();
    void tableReadLengths();
    void twoThreadsNeverInterleave();
    void queueKeepsTheNewestValue();

private:
    std::unique_ptr<DeskFixture> m_desk;
    int m_reconnects = 0;
};

void TestTransport::init()
{
    m_desk = std::make_unique<DeskFixture>();
    findDevices();
    m_desk->takeLog();
    m_reconnects = 0;
    setReconnectHandler([this] { ++m_reconnects; });
}

void TestTransport::cleanup()
{
    setReconnectHandler({});
    QCOMPARE(m_desk->monitor().protocolFaults().interleaved, 0);
    m_desk.reset();
}

void TestTransport::tableRows()
{
    constexpr int kAnchors[][2] = {{0, 0x01},   {28, 0x10},  {54, 0x22},  {60, 0x30},  {120, 0x50}, {136, 0x59},
                                   {170, 0x6A}, {172, 0x70}, {232, 0x9B}, {244, 0xC0}, {262, 0xCC}, {264, 0xD0},
                                   {286, 0xE0}, {290, 0xE3}, {322, 0xF6}, {334, 0xFD}};
    for (const auto &[row, code] : kAnchors) {
        QCOMPARE(int(commandTable[static_cast<std::size_t>(row)][5]), code);
        QCOMPARE(static_cast<int>(writeRow(Command(code))), row);
        QCOMPARE(static_cast<int>(readRow(Command(code))), row + 1);
    }
    for (std::size_t row = 0; row + 1 < commandTable.size(); row += 2) {
        QCOMPARE(commandTable[row][5], commandTable[row + 1][5]);
        QCOMPARE(int(commandTable[row][4]), 3);
        QCOMPARE(int(commandTable[row + 1][4]), row == 170 ? 3 : 1); // the one irregular row
    }
    Korvu_GetCommandVal(kIrregularRead, 10); // reads its code all the same
    QCOMPARE(m_desk->takeRequests(), (QStringList{"R 99", "R 6a"}));
}

void TestTransport::packet()
{
    QCOMPARE(BuildCommandPacket(kBrightnessWrite, 0x1234), 9);
    const std::array<std::uint8_t, 9> expected = {
        0x6E, 0x51, 0x84, 0x99, 0x03, 0x10, 0x12, 0x34, 0x6E ^ 0x51 ^ 0x84 ^ 0x99 ^ 0x03 ^ 0x10 ^ 0x12 ^ 0x34};
    QCOMPARE(commandPacket, expected);
}

void TestTransport::writeRetries_data()
{
    columns<int, int, bool, QStringList, QStringList>("code", "times", "ok", "requests", "log");
    const QString code = QStringLiteral("Fail to retry errorCode: 03 10");
    const QString vendor = QStringLiteral("Fail to retry errorCode: 03 99");
    const QString gaveUp = QStringLiteral("Write faile, errorCode: 03 9910\r");
    QTest::newRow("at once") << 0x10 << 0 << true << QStringList{"W 99=62", "W 10=62"} << QStringList{};
    QTest::newRow("code refused once") << 0x10 << 1 << true << QStringList{"W 99=62", "W 10=62!", "W 99=62", "W 10=62"}
                                       << QStringList{code};
    QTest::newRow("code refused twice") << 0x10 << 2 << false
                                        << QStringList{"W 99=62", "W 10=62!", "W 99=62", "W 10=62!"}
                                        << QStringList{code, code, gaveUp};
    QTest::newRow("announcement refused twice")
        << 0x99 << 2 << false << QStringList{"W 99=62!", "W 99=62!"} << QStringList{vendor, vendor, gaveUp};
}

void TestTransport::writeRetries()
{
    QFETCH(int, code);
    QFETCH(int, times);
    QFETCH(bool, ok);
    QFETCH(QStringList, requests);
    QFETCH(QStringList, log);
    if (times > 0)
        m_desk->monitor().refuse(static_cast<std::uint8_t>(code), times);
    QCOMPARE(Korvu_SetCommandVal(kBrightnessWrite, 62, 10), ok);
    QCOMPARE(m_desk->takeRequests(), requests);
    QCOMPARE(m_desk->takeLog(), log);
    QCOMPARE(m_desk->clock.takeWaits(), QList<int>(times, 100));
    QCOMPARE(m_reconnects, ok ? 0 : 1);
}

void TestTransport::writeFailureAsksForReconnect()
{
    reloadEdidType = kIdle;
    m_desk->monitor().goDeaf();
    bool lockIsFree = false;
    setReconnectHandler([&lockIsFree] {
        std::thread other([&lockIsFree] { lockIsFree = lockTransport().owns_lock(); });
        other.join(); // would hang if the write still held the lock
    });
    QVERIFY(!Korvu_SetCommandVal(kBrightnessWrite, 1, 10));
    QVERIFY(lockIsFree);
    QCOMPARE(reloadEdidType.load(), int(kReconnect));
}

void TestTransport::suspensionSendsNothing()
{
    commandsSuspended = true;
    m_desk->monitor().goDeaf();
    QVERIFY(!Korvu_SetCommandVal(kBrightnessWrite, 1, 10));
    QCOMPARE(m_desk->takeRequests(), QStringList());
    QCOMPARE(m_reconnects, 0);
}

void TestTransport::readRetries_data()
{
    columns<int, int, bool>("failures", "value", "quiet");
    row("at once", 0, 62, false);
    row("after four", 4, 62, false);
    row("never", 5, -1, false);
    row("never, quietly", 5, -1, true);
}

void TestTransport::readRetries()
{
    QFETCH(int, failures);
    QFETCH(int, value);
    QFETCH(bool, quiet);
    m_desk->monitor().setValue(0x10, 62);
    if (failures > 0)
        m_desk->monitor().refuse(0x10, failures);
    QCOMPARE((quiet ? Korvu_GetCommandValQuiet : Korvu_GetCommandVal)(kBrightnessRead, 10), value);
    QStringList requests = repeated({"R 99", "R 10!"}, failures);
    if (value != -1)
        requests += {"R 99", "R 10"};
    QCOMPARE(m_desk->takeRequests(), requests);
    QCOMPARE(m_desk->takeLog(), repeated({"Faile to retry errorCode: 01 99 10"}, quiet ? 0 : failures));
    QCOMPARE(m_desk->clock.takeWaits(), QList<int>(failures, 250));
}

void TestTransport::readsWithoutMonitor()
{
    m_desk->desk.unplug(0);
    m_desk->desk.unplug(1);
    findDevices();
    std::uint32_t current = 0;
    std::uint32_t maximum = 0;
    QCOMPARE(Korvu_GetCommandVal(kBrightnessRead, 10), 0); // not -1: callers take it as a value
    QVERIFY(!Korvu_GetCommandValMax(kBrightnessRead, current, maximum));
    QVERIFY(!Korvu_ReadCommandTable(kSceneRead, 2, 40));
    QVERIFY(!SetVcpValue(0x10, 1));
    QCOMPARE(m_desk->clock.takeWaits(), QList<int>());
    QVERIFY(!Korvu_SetCommandVal(kBrightnessWrite, 1, 10));
}

void TestTransport::currentAndMaximum()
{
    std::uint32_t current = 7;
    std::uint32_t maximum = 7;
    m_desk->monitor().setValue(0x10, 30);
    QVERIFY(Korvu_GetCommandValMax(kBrightnessRead, current, maximum));
    QCOMPARE(current, 30u);
    QCOMPARE(maximum, 100u);
    m_desk->monitor().refuse(0x10);
    QVERIFY(Korvu_GetCommandValMax(kBrightnessRead, current, maximum)); // true whatever the monitor said
    QCOMPARE(current, 0u);
    QCOMPARE(maximum, 0u);
    QCOMPARE(m_desk->takeRequests(), (QStringList{"R 99", "R 10", "R 99", "R 10!"}));
}

void TestTransport::indexBeyondTheListFails()
{
    currentMonitorIndex = 200;
    QCOMPARE(Korvu_GetCommandVal(kBrightnessRead, 10), -1);
    QVERIFY(!Korvu_SetCommandVal(kBrightnessWrite, 1, 10));
    QVERIFY(Korvu_ReadCommandTable(kSceneRead, 2, 40));
    QCOMPARE(int(tableReadLength), 0);
    QVERIFY(m_desk->takeLog().contains(QStringLiteral("Monitor index 200 is beyond the 2 found")));
    QCOMPARE(m_desk->desk.handleFaults(), 0);
}

void TestTransport::tableRead_data()
{
    columns<int, int>("code", "times");
    QTest::addColumn<int>("result"); // as tableReadLength shows it
    columns<QStringList, QString, int>("opening", "lastLine", "waits");
    QTest::newRow("clean") << 0 << 0 << 40 << QStringList{"R 99", "R 22", "R 0c"} << QString() << 0;
    QTest::newRow("second step once") << 0x22 << 1 << 40 << QStringList{"R 99", "R 22!", "R 99", "R 22", "R 0c"}
                                      << QStringLiteral("Fail to retry, errorCode=22 3223725444")
                                      << 1; // what the system calls it
    QTest::newRow("second step for ever") << 0x22 << kForEver << 0 << repeated({"R 99", "R 22!"}, 6)
                                          << QStringLiteral("Fail to retry, errorCode=9922\r") << 5;
    QTest::newRow("third step for ever") << 0x0C << kForEver << 255 << repeated({"R 99", "R 22", "R 0c!"}, 6)
                                         << QStringLiteral("Faile to retry errorCode= 99 22 c\r") << 5;
}

void TestTransport::tableRead()
{
    QFETCH(int, code);
    QFETCH(int, times);
    QFETCH(int, result);
    QFETCH(QStringList, opening);
    QFETCH(QString, lastLine);
    QFETCH(int, waits);
    if (times != 0)
        m_desk->monitor().refuse(static_cast<std::uint8_t>(code), times);
    const QByteArray block = m_desk->monitor().block(12);
    const std::uint8_t *data = Korvu_ReadCommandTable(kSceneRead, 12, 40);
    QCOMPARE(int(tableReadLength), result);
    const QStringList requests = m_desk->takeRequests();
    QCOMPARE(requests.first(opening.size()), opening);
    if (result == 40) {
        QCOMPARE(requests.mid(opening.size()), repeated({"R fe"}, 10)); // nine chunks more, and the closing request
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(data), 40), block);
    }
    const QStringList log = m_desk->takeLog();
    QVERIFY2(lastLine.isEmpty() ? log.isEmpty() : log.last().startsWith(lastLine), qPrintable(log.join('|')));
    QCOMPARE(m_desk->clock.takeWaits(), QList<int>(waits, 250));
}

void TestTransport::tableReadLengths_data()
{
    columns<int, int, int, int, QStringList>("mode", "length", "drops", "result", "stream");
    QTest::newRow("0 gives one chunk") << 12 << 0 << 0 << 4 << QStringList{"R fe"};
    QTest::newRow("5 is rounded up") << 12 << 5 << 0 << 8 << QStringList{"R fe", "R fe"};
    QTest::newRow("mode of brightness's code") << 16 << 40 << 0 << 40 << QStringList(10, "R fe");
    QTest::newRow("mode of the scene's code") << 34 << 40 << 0 << 40 << QStringList(10, "R fe");
    QTest::newRow("a dropped chunk is repeated") << 12 << 12 << 1 << 12 << QStringList{"R fe!", "R ff", "R fe", "R fe"};
    QTest::newRow("five drops") << 12 << 8 << 5 << 8
                                << QStringList{"R fe!", "R ff!", "R ff!", "R ff!", "R ff!", "R ff", "R fe"};
    QTest::newRow("lost for good") << 12 << 8 << 6 << 0
                                   << QStringList{"R fe!", "R ff!", "R ff!", "R ff!", "R ff!", "R ff!"};
}

void TestTransport::tableReadLengths()
{
    QFETCH(int, mode);
    QFETCH(int, length);
    QFETCH(int, drops);
    QFETCH(int, result);
    QFETCH(QStringList, stream);
    m_desk->monitor().dropChunks(drops);
    const QByteArray block = m_desk->monitor().block(mode);
    const std::uint8_t *data =
        Korvu_ReadCommandTable(kSceneRead, static_cast<std::uint8_t>(mode), static_cast<std::uint16_t>(length));
    QCOMPARE(int(tableReadLength), result);
    QCOMPARE(m_desk->takeRequests().mid(3), stream);
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(data), result), block.first(result));
    QCOMPARE(m_desk->monitor().protocolFaults().total(), 0);
    if (result == 0)
        QCOMPARE(m_desk->takeLog().last(), QStringLiteral("---loop get data error.\r"));
}

void TestTransport::twoThreadsNeverInterleave()
{
    std::thread reader([] {
        for (int i = 0; i < 200; ++i)
            Korvu_ReadCommandTable(kSceneRead, 12, 40);
    });
    for (int i = 0; i < 2000; ++i)
        Korvu_SetCommandVal(kBrightnessWrite, static_cast<std::uint16_t>(i % 100), 10);
    reader.join();
    QCOMPARE(m_desk->monitor().protocolFaults().total(), 0);
}

void TestTransport::queueKeepsTheNewestValue()
{
    CommandQueue queue;
    QSignalSpy sent(&queue, &CommandQueue::sent);
    {
        const auto busy = lockTransport(); // the monitor is at work on something else
        for (int value = 1; value <= 60; ++value)
            queue.post(Command::Brightness, value);
        queue.post(Command::Contrast, 7);
    }
    queue.drain();
    QCOMPARE(int(m_desk->monitor().value(0x10)), 60);
    QCOMPARE(int(m_desk->monitor().value(0x12)), 7);
    QVERIFY(sent.count() <= 3); // at most the first value was on its way already
}

QTEST_MAIN(TestTransport)
#include "tst_transport.moc"
