#include <QtTest>

#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/edid.h"
#include "ddc_protocol/transport.h"
#include "support/datarow.h"
#include "support/deskfixture.h"

namespace {

QByteArray edidOf(const QList<QPair<int, QByteArray>> &descriptors, int size = 128)
{
    QByteArray edid(size, '\0');
    if (size >= 12) {
        edid[8] = 0x43; // read little-endian this word is 0x0443: A, B, C
        edid[9] = 0x04;
        edid[10] = char(0xF3);
        edid[11] = 0x01;
    }
    for (const auto &[offset, name] : descriptors)
        edid.replace(offset, 5 + name.size(), QByteArray::fromHex("000000fc00") + name);
    return edid;
}

} // namespace

class TestDisplays : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_desk = std::make_unique<DeskFixture>(); }
    void cleanup() { m_desk.reset(); }
    void modelName_data();
    void modelName();
    void randomBytesNeverCrash();
    void projection();
    void labels_data();
    void labels();
    void unreadableEdidDropsTheDisplay();
    void secondMonitorMakesInternalExternal();
    void handles();

private:
    std::unique_ptr<DeskFixture> m_desk;
};

void TestDisplays::modelName_data()
{
    columns<QByteArray, QString>("edid", "name");
    const QByteArray name = "Q27-OLED\n    ";
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("127 bytes") << edidOf({{54, name}}, 127) << QString();
    QTest::newRow("last descriptor") << edidOf({{108, name}}) << "Q27-OLED";
    QTest::newRow("256 bytes") << edidOf({{54, name}}, 256) << "Q27-OLED";
    QTest::newRow("an empty one before") << edidOf({{54, QByteArray(13, ' ')}, {90, name}}) << "Q27-OLED";
    QTest::newRow("Latin-1") << edidOf({{54, QByteArray("B\xFCro 27\n     ")}}) << QStringLiteral("B\u00FCro 27");
    QTest::newRow("no descriptor") << edidOf({}) << "ABC-01F3";
    QByteArray timing = edidOf({{54, name}});
    timing[54] = 1; // a timing whose bytes happen to look like a name
    QTest::newRow("timing, not a name") << timing << "ABC-01F3";
}

void TestDisplays::modelName()
{
    QFETCH(QByteArray, edid);
    QTEST(edidModelName(edid), "name");
}

void TestDisplays::randomBytesNeverCrash()
{
    QRandomGenerator random(20240309);
    for (int size = 0; size < 400; ++size) {
        QByteArray bytes(size, '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(random.generate());
        QCOMPARE(edidModelName(bytes).isNull(), size < 128);
    }
}

void TestDisplays::projection()
{
    struct Case
    {
        QList<int> sources;
        int mode;
        QStringList log;
    };
    for (const Case &each : {Case{{0}, 1, {"InternalOnly"}}, Case{{0, 0}, 3, {"Clone"}}, Case{{0, 1}, 4, {}},
                             Case{{0, 0, 0}, 4, {}}, Case{{}, 0, {}}}) { // the last one is a call that failed
        projectionMode = ProjectionMode::ExternalOnly;
        std::vector<platform::DisplayPath> paths;
        for (const int source : each.sources)
            paths.push_back({7, static_cast<std::uint32_t>(source)});
        m_desk->desk.setPaths(paths);
        QCOMPARE(int(currentProjectionMode()), each.mode);
        QCOMPARE(int(projectionMode), each.mode == 0 ? 2 : each.mode);
        QCOMPARE(m_desk->takeLog(), each.log);
    }
}

void TestDisplays::labels_data()
{
    QTest::addColumn<int>("secondDisplay"); // of the second monitor
    columns<QList<QRect>, QByteArrayList>("screens", "labels");
    const QRect left(0, 0, 1920, 1080);
    const QRect right(1920, 0, 1920, 1080);
    QTest::newRow("side by side") << 1 << QList{left, right} << QByteArrayList{"1. Q27-OLED", "2. Q32-MPCS"};
    QTest::newRow("toolkit's order") << 1 << QList{right, left} << QByteArrayList{"2. Q32-MPCS", "1. Q27-OLED"};
    QTest::newRow("a screen on no display")
        << 1 << QList{left, QRect(5000, 0, 100, 100)} << QByteArrayList{"1. Q27-OLED"};
    QTest::newRow("two on one display") << 0 << QList{left} << QByteArrayList{"1. Q27-OLED", "2. Q32-MPCS"};
    QTest::newRow("numbers restart for every screen")
        << 0 << QList{left, left} << QByteArrayList{"1. Q27-OLED", "2. Q32-MPCS", "1. Q27-OLED", "2. Q32-MPCS"};
    QTest::newRow("no screen") << 1 << QList<QRect>() << QByteArrayList();
}

void TestDisplays::labels()
{
    QFETCH(int, secondDisplay);
    QFETCH(QList<QRect>, screens);
    m_desk->desk.setMonitorDisplay(1, secondDisplay);
    std::vector<platform::Screen> toolkit;
    for (const QRect &geometry : screens)
        toolkit.push_back({QStringLiteral("Screen"), geometry});
    m_desk->desk.setScreens(toolkit);
    const QByteArrayList found = findDevices();
    QTEST(found, "labels");
    QCOMPARE(monitorList.size(), static_cast<std::size_t>(found.size()));
}

void TestDisplays::unreadableEdidDropsTheDisplay()
{
    using Edid = std::optional<QByteArray>;
    for (const Edid &edid : {Edid(), Edid(QByteArray()), Edid(QByteArray(71, 'x'))}) {
        m_desk->desk.setRegistryEdid(0, edid);
        QCOMPARE(findDevices(), QByteArrayList{"1. Q32-MPCS"});
        QCOMPARE(m_desk->takeLog().contains(QStringLiteral("EDID read error.")), edid.value_or(QByteArray()).isEmpty());
    }
}

void TestDisplays::secondMonitorMakesInternalExternal()
{
    m_desk->desk.setMonitorDisplay(1, 0);
    projectionMode = ProjectionMode::InternalOnly;
    findDevices();
    QCOMPARE(projectionMode, ProjectionMode::ExternalOnly);
    projectionMode = ProjectionMode::Extend;
    findDevices();
    QCOMPARE(projectionMode, ProjectionMode::Extend);
}

/// Handle 0, the first one, is one like any other; a monitor without a handle keeps its place and takes no command.
void TestDisplays::handles()
{
    for (const bool second : {true, false}) {
        m_desk->desk.unfetchableDisplay = second ? std::nullopt : std::optional<std::size_t>(1);
        QCOMPARE(findDevices().size(), 2);
        QCOMPARE(monitorList[0].handle == nullptr, second);
        for (const std::uint8_t index : {0, 1}) {
            currentMonitorIndex = index;
            const bool there = index == 0 || second;
            QCOMPARE(SetVcpValue(0x99, 5), there);
            QCOMPARE(GetVcpValue(0x99) == 0xFFFFFFFF, !there);
            QCOMPARE(m_desk->takeRequests(index), there ? (QStringList{"W 99=5", "R 99"}) : QStringList());
        }
        QCOMPARE(m_desk->takeRequests(0), QStringList());
    }
    m_desk->desk.setMonitorDisplay(1, 0); // two physical monitors behind one handle, of which the first is kept
    findDevices();
    findDevices();
    QCOMPARE(m_desk->desk.handlesOpen(), 2);
    QCOMPARE(m_desk->desk.handleFaults(), 0);
}

QTEST_MAIN(TestDisplays)
#include "tst_displays.moc"
