#include <QtTest>

#include "ddc_protocol/edid.h"
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

class TestDisplays : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void modelName();
    void projection();
    void labels();
    void unreadableEdidDropsTheDisplay();
    void secondMonitorMakesInternalExternal();
    void handles();
};

void TestDisplays::modelName()
{
    const QByteArray name = "Q27-OLED\n    ";
    QByteArray timing = edidOf({{54, name}});
    timing[54] = 1; // a timing whose bytes happen to look like a name
    for (const auto &[edid, expected] :
         {std::pair(QByteArray(), QString()),
          {edidOf({{54, name}}, 127), {}},
          {edidOf({{108, name}}), "Q27-OLED"}, // the last descriptor
          {edidOf({{54, name}}, 256), "Q27-OLED"},
          {edidOf({{54, QByteArray(13, ' ')}, {90, name}}), "Q27-OLED"},     // an empty one before it
          {edidOf({{54, QByteArray("B\xFCro 27\n     ")}}), "B\u00FCro 27"}, // Latin-1
          {edidOf({}), "ABC-01F3"},
          {timing, "ABC-01F3"}})
        QCOMPARE(edidModelName(edid), expected);
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
        m_desk->desk.displays().setPaths(paths);
        QCOMPARE(int(currentProjectionMode()), each.mode);
        QCOMPARE(int(projectionMode), each.mode == 0 ? 2 : each.mode);
        QCOMPARE(m_desk->takeLog(), each.log);
    }
}

void TestDisplays::labels()
{
    const QRect left(0, 0, 1920, 1080), right(1920, 0, 1920, 1080);
    const QByteArrayList both{"1. Q27-OLED", "2. Q32-MPCS"};
    for (const auto &[secondDisplay, screens, labels] : // the display of the second monitor
         {std::tuple(1, QList{left, right}, both),
          {1, {right, left}, {"2. Q32-MPCS", "1. Q27-OLED"}},     // the toolkit's order
          {1, {left, QRect(5000, 0, 100, 100)}, {"1. Q27-OLED"}}, // a screen on no display
          {0, {left}, both},
          {0, {left, left}, both + both}, // numbers restart for every screen
          {1, {}, {}}}) {
        m_desk->desk.displays().setMonitorDisplay(1, secondDisplay);
        std::vector<platform::Screen> toolkit;
        for (const QRect &geometry : screens)
            toolkit.push_back({QStringLiteral("Screen"), geometry});
        m_desk->desk.displays().setScreens(toolkit);
        const QByteArrayList found = findDevices();
        QCOMPARE(found, labels);
        QCOMPARE(monitorList.size(), static_cast<std::size_t>(found.size()));
    }
}

void TestDisplays::unreadableEdidDropsTheDisplay()
{
    using Edid = std::optional<QByteArray>;
    for (const Edid &edid : {Edid(), Edid(QByteArray()), Edid(QByteArray(71, 'x'))}) {
        m_desk->desk.displays().setRegistryEdid(0, edid);
        QCOMPARE(findDevices(), QByteArrayList{"1. Q32-MPCS"});
        QCOMPARE(m_desk->takeLog().contains(QStringLiteral("EDID read error.")), edid.value_or(QByteArray()).isEmpty());
    }
}

void TestDisplays::secondMonitorMakesInternalExternal()
{
    m_desk->desk.displays().setMonitorDisplay(1, 0);
    using enum ProjectionMode;
    for (const auto &[before, after] : {std::pair(InternalOnly, ExternalOnly), {Extend, Extend}}) {
        projectionMode = before;
        findDevices();
        QCOMPARE(projectionMode, after);
    }
}

/// Handle 0, the first one, is one like any other; a monitor without a handle keeps its place and takes no command.
void TestDisplays::handles()
{
    for (const bool second : {true, false}) {
        m_desk->desk.displays().unfetchableDisplay = second ? std::nullopt : std::optional<std::size_t>(1);
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
    m_desk->desk.displays().setMonitorDisplay(1, 0); // two behind one handle, of which the first is kept
    findDevices();
    findDevices();
    QCOMPARE(m_desk->desk.handles().countOpen(), 2);
    QCOMPARE(m_desk->desk.handles().faults(), 0);
}

QTEST_MAIN(TestDisplays)
#include "tst_displays.moc"
