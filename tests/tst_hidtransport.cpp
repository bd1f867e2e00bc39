#include <QPushButton>
#include <QtTest>

#include "ledmatrix/matrixform.h"
#include "support/accessoryfixture.h"
#include "support/datarow.h"
#include "usb-hid/hidtransport.h"
#include "usb-hid/livesender.h"
#include "virtualdesk/accessorypanel.h"
#include "virtualdesk/matrixview.h"

using virtualdesk::kForEver;

/// Finding, opening and closing the accessory, by the program and by hand on the desk's panel.
class TestHidTransport : public AccessoryFixture
{
    Q_OBJECT
private Q_SLOTS:
    void findAndOpen_data();
    void findAndOpen();
    void flagsAreSticky();
    void panelShowsTheAccessory();
};

void TestHidTransport::findAndOpen_data()
{
    columns<bool, bool, bool, QStringList, int>("others", "plugged", "opens", "log", "held"); // held: not released
    const QStringList away = {"HID device  not find"};
    QTest::newRow("there") << true << true << true << QStringList{"HID device find", "HID open OK"} << 1;
    QTest::newRow("alone") << false << true << true << QStringList{"HID device find", "HID open OK"} << 0;
    QTest::newRow("does not open") << true << true << false << QStringList{"HID device find", "HID open Fail "} << 1;
    QTest::newRow("away") << true << false << true << away << 2;
    QTest::newRow("no device at all") << false << false << true << QStringList() << 0;
}

void TestHidTransport::findAndOpen()
{
    QFETCH(bool, others);
    QFETCH(bool, plugged);
    QFETCH(bool, opens);
    QFETCH(QStringList, log);
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
    QCOMPARE(hidFound, plugged);
    QCOMPARE(hidOpened, plugged && opens);
    QCOMPARE(hidHandle != nullptr, plugged && opens);
}

void TestHidTransport::flagsAreSticky()
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
    QVERIFY(!hidHandle);
    connectDevice();
    accessory().removeListener(listener);
    QCOMPARE(told, (QList<int>{0, 1}));
}

void TestHidTransport::panelShowsTheAccessory()
{
    connectDevice();
    virtualdesk::AccessoryPanel panel(m_desk->desk);
    panel.show();
    QCOMPARE(panel.matrix()->litCells(), 0);
    const auto button = [&panel](const char *name) { return panel.findChild<QPushButton *>(QLatin1String(name)); };
    accessory().setForm(1);
    matrixForm = 1;
    sendLiveFrame(std::vector<std::int32_t>(1050, 1));
    QTRY_COMPARE(panel.matrix()->litCells(), 1050);
    QVERIFY(button("form")->isChecked());
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

QTEST_MAIN(TestHidTransport)
#include "tst_hidtransport.moc"
