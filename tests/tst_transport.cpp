#include <thread>

#include <QtTest>

#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/commandtable.h"
#include "support/deskfixture.h"

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

class TestTransport : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void tableRows();
    void packet();
    void writeRetries();
    void writeFailureAsksForReconnect();
    void readRetries();
    void readsWithoutMonitor();
    void currentAndMaximum();
    void indexBeyondTheListFails();
    void tableRead();
    void tableReadLengths();
    void twoThreadsNeverInterleave();
    void queueKeepsTheNewestValue();

private:
    int m_reconnects = 0;
};

void TestTransport::init()
{
    DeskSuite::init();
    findDevices();
    m_desk->takeLog();
    m_reconnects = 0;
    setReconnectHandler([this] { ++m_reconnects; });
}

void TestTransport::cleanup()
{
    setReconnectHandler({});
    QCOMPARE(m_desk->monitor().protocolFaults().interleaved, 0);
    DeskSuite::cleanup();
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

void TestTransport::writeRetries()
{
    const QString code = QStringLiteral("Fail to retry errorCode: 03 10");
    const QString vendor = QStringLiteral("Fail to retry errorCode: 03 99");
    const QString gaveUp = QStringLiteral("Write faile, errorCode: 03 9910\r");
    struct Write
    {
        int code, times;
        bool ok;
        QStringList requests, log;
    };
    for (const Write &each : {Write{0x10, 0, true, {"W 99=62", "W 10=62"}, {}},
                              Write{0x10, 1, true, {"W 99=62", "W 10=62!", "W 99=62", "W 10=62"}, {code}},
                              Write{0x10, 2, false, repeated({"W 99=62", "W 10=62!"}, 2), {code, code, gaveUp}},
                              Write{0x99, 2, false, {"W 99=62!", "W 99=62!"}, {vendor, vendor, gaveUp}}}) {
        m_reconnects = 0;
        m_desk->monitor().refuse(static_cast<std::uint8_t>(each.code), each.times);
        QCOMPARE(Korvu_SetCommandVal(kBrightnessWrite, 62, 10), each.ok);
        QCOMPARE(m_desk->takeRequests(), each.requests);
        QCOMPARE(m_desk->takeLog(), each.log);
        QCOMPARE(m_desk->clock.takeWaits(), QList<int>(each.times, 100));
        QCOMPARE(m_reconnects, each.ok ? 0 : 1);
    }
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
    commandsSuspended = true; // nothing is sent then, nor asked for
    setReconnectHandler([this] { ++m_reconnects; });
    m_desk->takeRequests();
    QVERIFY(!Korvu_SetCommandVal(kBrightnessWrite, 1, 10));
    QCOMPARE(m_desk->takeRequests(), QStringList());
    QCOMPARE(m_reconnects, 0);
}

void TestTransport::readRetries()
{
    m_desk->monitor().setValue(0x10, 62);
    for (const auto &[failures, value, quiet] :
         {std::tuple(0, 62, false), {4, 62, false}, {5, -1, false}, {5, -1, true}}) {
        m_desk->monitor().refuse(0x10, failures);
        QCOMPARE((quiet ? Korvu_GetCommandValQuiet : Korvu_GetCommandVal)(kBrightnessRead, 10), value);
        QStringList requests = repeated({"R 99", "R 10!"}, failures);
        if (value != -1)
            requests += {"R 99", "R 10"};
        QCOMPARE(m_desk->takeRequests(), requests);
        QCOMPARE(m_desk->takeLog(), repeated({"Faile to retry errorCode: 01 99 10"}, quiet ? 0 : failures));
        QCOMPARE(m_desk->clock.takeWaits(), QList<int>(failures, 250));
    }
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
    m_desk->monitor().refuse(0x10);
    QVERIFY(!readCommandOnce(kBrightnessRead)); // once, but announced as any other
    QCOMPARE(readCommandOnce(kBrightnessRead), std::optional(30));
    QCOMPARE(m_desk->takeRequests(), (QStringList{"R 99", "R 10!", "R 99", "R 10"}));
    QCOMPARE(m_desk->clock.takeWaits(), QList<int>());
}

void TestTransport::indexBeyondTheListFails()
{
    currentMonitorIndex = 200;
    QCOMPARE(Korvu_GetCommandVal(kBrightnessRead, 10), -1);
    QVERIFY(!Korvu_SetCommandVal(kBrightnessWrite, 1, 10));
    QVERIFY(Korvu_ReadCommandTable(kSceneRead, 2, 40));
    QCOMPARE(int(tableReadLength), 0);
    QVERIFY(m_desk->takeLog().contains(QStringLiteral("Monitor index 200 is beyond the 2 found")));
    QCOMPARE(m_desk->desk.handles().faults(), 0);
}

void TestTransport::tableRead()
{
    struct Read
    {
        int code, times, result; // as tableReadLength shows it
        QStringList opening;
        QString lastLine;
        int waits;
    };
    for (const Read &each :
         {Read{0x22, 0, 40, {"R 99", "R 22", "R 0c"}, {}, 0},
          Read{0x22, 1, 40, {"R 99", "R 22!", "R 99", "R 22", "R 0c"}, "Fail to retry, errorCode=22 3223725444", 1},
          Read{0x22, 6, 0, repeated({"R 99", "R 22!"}, 6), "Fail to retry, errorCode=9922\r", 5},
          Read{0x0C, 6, 255, repeated({"R 99", "R 22", "R 0c!"}, 6), "Faile to retry errorCode= 99 22 c\r", 5}}) {
        m_desk->monitor().refuse(static_cast<std::uint8_t>(each.code), each.times);
        const std::uint8_t *data = Korvu_ReadCommandTable(kSceneRead, 12, 40);
        QCOMPARE(int(tableReadLength), each.result);
        // A read that succeeds goes on with nine chunks more, and the closing request.
        QCOMPARE(m_desk->takeRequests(), each.opening + repeated({"R fe"}, each.result == 40 ? 10 : 0));
        if (each.result == 40)
            QCOMPARE(QByteArray(reinterpret_cast<const char *>(data), 40), m_desk->monitor().block(12));
        QCOMPARE(m_desk->takeLog().value(each.waits - (each.result == 40)), each.lastLine);
        QCOMPARE(m_desk->clock.takeWaits(), QList<int>(each.waits, 250));
    }
}

void TestTransport::tableReadLengths()
{
    struct Read
    {
        int mode, length, drops, result;
        QStringList stream;
    };
    const QStringList lost = {"R fe!", "R ff!", "R ff!", "R ff!", "R ff!"};
    for (const Read &each :
         {Read{12, 0, 0, 4, {"R fe"}}, Read{12, 5, 0, 8, {"R fe", "R fe"}},
          // modes of the brightness's and the scene's code
          Read{16, 40, 0, 40, repeated({"R fe"}, 10)}, Read{34, 40, 0, 40, repeated({"R fe"}, 10)},
          Read{12, 12, 1, 12, {"R fe!", "R ff", "R fe", "R fe"}}, Read{12, 8, 5, 8, lost + QStringList{"R ff", "R fe"}},
          Read{12, 8, 6, 0, lost + QStringList{"R ff!"}}}) {
        m_desk->monitor().dropChunks(each.drops);
        const QByteArray block = m_desk->monitor().block(each.mode);
        const std::uint8_t *data = Korvu_ReadCommandTable(kSceneRead, static_cast<std::uint8_t>(each.mode),
                                                          static_cast<std::uint16_t>(each.length));
        QCOMPARE(int(tableReadLength), each.result);
        QCOMPARE(m_desk->takeRequests().mid(3), each.stream);
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(data), each.result), block.first(each.result));
    }
    QCOMPARE(m_desk->takeLog(), QStringList("---loop get data error.\r")); // of the last one
    QCOMPARE(m_desk->monitor().protocolFaults().total(), 0);
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
    QSignalSpy asked(&queue, &CommandQueue::asked);
    {
        const auto busy = lockTransport(); // the monitor is at work on something else
        for (int value = 1; value <= 60; ++value)
            queue.post(Command::Brightness, value);
        queue.post(Command::Contrast, 7);
        queue.ask(Command::Gamma);
        queue.dropQuestions();
    }
    queue.drain();
    QCOMPARE(asked.count(), 1); // whoever asked is told all the same
    QCOMPARE(int(m_desk->monitor().value(0x10)), 60);
    QCOMPARE(int(m_desk->monitor().value(0x12)), 7);
    QVERIFY(sent.count() <= 3); // at most the first value was on its way already
}

QTEST_MAIN(TestTransport)
#include "tst_transport.moc"
