#include <thread>

#include <QTest>

#include "support/manualclock.h"
#include "support/vendorpairs.h"
#include "virtualdesk/desksetup.h"
#include "virtualdesk/simulatedmonitor.h"

using namespace virtualdesk;

namespace {

using Steps = QList<QPair<int, int>>; // code, and the value written or -1 for a read

} // namespace

class TestSimulatedMonitor : public QObject
{
    Q_OBJECT

private:
    ManualClock m_clock;

private Q_SLOTS:
    void refusesWhatWasNotAnnounced_data();
    void refusesWhatWasNotAnnounced();
    void countsMixedUpRequests();
    void limitsValues();
    void keepsABlockPerMode();
    void faultsStrikeAndEnd();
    void spendsItsLatency();
};

void TestSimulatedMonitor::refusesWhatWasNotAnnounced_data()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<bool>("accepted"); // the last step
    QTest::addColumn<int>("faults");
    QTest::newRow("write pair") << Steps{{0x99, 70}, {0x10, 70}} << true << 0;
    QTest::newRow("write alone") << Steps{{0x10, 70}} << false << 1;
    QTest::newRow("announcement serves once") << Steps{{0x99, 70}, {0x10, 70}, {0x10, 70}} << false << 1;
    QTest::newRow("other value") << Steps{{0x99, 70}, {0x10, 71}} << false << 1;
    QTest::newRow("read announced, written") << Steps{{0x99, -1}, {0x10, 0}} << false << 1;
    QTest::newRow("code outside the table") << Steps{{0x99, -1}, {0x11, -1}} << false << 0;
    QTest::newRow("pair broken by another") << Steps{{0x99, 5}, {0x99, 70}, {0x10, 70}} << true << 1;
    QTest::newRow("stray continuation") << Steps{{0xFE, -1}} << false << 1;
    QTest::newRow("odd selector") << Steps{{0x99, -1}, {0x22, -1}, {0x03, -1}} << false << 1;
    QTest::newRow("selector that is a command code too") << Steps{{0x99, -1}, {0x22, -1}, {0x10, -1}} << true << 0;
    QTest::newRow("selector cannot be written") << Steps{{0x99, -1}, {0x22, -1}, {0x10, 16}} << false << 1;
}

void TestSimulatedMonitor::refusesWhatWasNotAnnounced()
{
    QFETCH(Steps, steps);
    QFETCH(bool, accepted);
    QFETCH(int, faults);
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    Reply last;
    for (const auto &[code, value] : steps) {
        const auto byte = static_cast<std::uint8_t>(code);
        last = value < 0 ? monitor.read(byte) : monitor.write(byte, static_cast<std::uint32_t>(value));
    }
    QCOMPARE(last.ok(), accepted);
    QCOMPARE(monitor.protocolFaults().total(), faults);
    QCOMPARE(monitor.history().size(), static_cast<std::size_t>(steps.size()));
    QCOMPARE(monitor.history().back().ok(), accepted);
}

void TestSimulatedMonitor::countsMixedUpRequests()
{
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    monitor.read(0x99);
    std::thread([&monitor] { monitor.read(0x10); }).join();
    QCOMPARE(monitor.protocolFaults().interleaved, 1);
    // A whole pair from another thread is nothing to complain of.
    std::thread([&monitor] { readPair(monitor, 0x10); }).join();
    QCOMPARE(monitor.protocolFaults().total(), 1);
}

void TestSimulatedMonitor::limitsValues()
{
    SimulatedMonitor monitor(*findModel("Q32-MPCS"), m_clock);
    QVERIFY(writePair(monitor, 0x10, 250)); // the wire tells nothing about the value
    QCOMPARE(readPair(monitor, 0x10).current, 100u);
    QVERIFY(writePair(monitor, 0x14, 11));
    QVERIFY(readPair(monitor, 0x14).current <= 10u);
    QVERIFY(writePair(monitor, 0xED, 1));
    QCOMPARE(readPair(monitor, 0xED).current, 0x60u);
    QVERIFY(writePair(monitor, 0x22, 24)); // a scene that this model lacks
    QCOMPARE(readPair(monitor, 0x22).current, 2u);
    QCOMPARE(monitor.protocolFaults().badValues, 4);
    const Reply office = readPair(monitor, 0xEF);
    QVERIFY(office.maximum > office.current); // a panel is wider than high
}

void TestSimulatedMonitor::keepsABlockPerMode()
{
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    QVERIFY(writePair(monitor, 0x22, 2));
    QVERIFY(writePair(monitor, 0x10, 31));
    QVERIFY(writePair(monitor, 0x9B, 77)); // red hue, byte 16
    QVERIFY(writePair(monitor, 0x22, 10));
    QVERIFY(writePair(monitor, 0x10, 32));
    QCOMPARE(monitor.block(2).at(0), char(31));
    QCOMPARE(monitor.block(2).at(16), char(77));
    QCOMPARE(monitor.block(10).at(0), char(32));

    // A factory mode shows its own picture and forgets what is changed in it.
    const auto factory = monitor.block(9).at(0);
    QVERIFY(writePair(monitor, 0x22, 9));
    QCOMPARE(readPair(monitor, 0x10).current, static_cast<std::uint32_t>(factory));
    QVERIFY(writePair(monitor, 0x10, 3));
    QVERIFY(writePair(monitor, 0x22, 10));
    QCOMPARE(readPair(monitor, 0x10).current, 32u);
    QVERIFY(writePair(monitor, 0x22, 9));
    QCOMPARE(readPair(monitor, 0x10).current, static_cast<std::uint32_t>(factory));

    QVERIFY(writePair(monitor, 0xC7, 0));
    QCOMPARE(readPair(monitor, 0x22).current, 1u);
    QVERIFY(monitor.block(10).at(0) != char(32));
}

void TestSimulatedMonitor::faultsStrikeAndEnd()
{
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    monitor.refuse(0x10, 2);
    QVERIFY(!writePair(monitor, 0x10, 20));
    QVERIFY(!readPair(monitor, 0x10).ok());
    QVERIFY(writePair(monitor, 0x10, 20));
    QCOMPARE(monitor.value(0x10), std::uint16_t(20));

    monitor.loseReplies(); // strikes the command's reply, not that of the announcement
    QVERIFY(monitor.read(0x99).ok());
    QCOMPARE(monitor.read(0x10).error, kErrorReceiving);
    QCOMPARE(readPair(monitor, 0x10).current, 20u);

    monitor.garbleReplies();
    const Reply garbled = readPair(monitor, 0x10);
    QVERIFY(garbled.ok());
    QVERIFY(garbled.current != 20u);

    monitor.refuseWrites(kForEver);
    QVERIFY(!monitor.write(0x99, 1).ok());
    QVERIFY(readPair(monitor, 0x10).ok());
    monitor.recover();

    monitor.read(0x99);
    monitor.goDeaf(1);
    QVERIFY(!monitor.read(0x10).ok());
    QVERIFY(!monitor.read(0x10).ok()); // it woke up, but has forgotten the announcement
    QCOMPARE(monitor.history().back().outcome, Outcome::Unexpected);
    QCOMPARE(readPair(monitor, 0x10).current, 20u);

    monitor.setPlugged(false);
    QCOMPARE(readPair(monitor, 0x10).error, kErrorNoSuchDevice);
}

void TestSimulatedMonitor::spendsItsLatency()
{
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    monitor.setLatency(kRealisticRead, kRealisticWrite);
    const QDateTime before = m_clock.now();
    writePair(monitor, 0x10, 1);
    readPair(monitor, 0x10);
    QCOMPARE(before.msecsTo(m_clock.now()), (2 * kRealisticRead + 2 * kRealisticWrite).count());
}

QTEST_MAIN(TestSimulatedMonitor)
#include "tst_simulatedmonitor.moc"
