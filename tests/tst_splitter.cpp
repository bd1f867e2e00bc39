#include <QtTest>

#include "splitter/layoutedit.h"
#include "splitter/windowsplitter.h"
#include "splitter/zoneplaces.h"
#include "support/deskfixture.h"

namespace {

using Kind = SplitRequest::Kind;
using virtualdesk::Application;
using virtualdesk::ApplicationWindow;
using Shape = ApplicationWindow::Shape;

const QRect kWork(0, 0, 1366, 720); // a screen of 1366 x 768 without its taskbar
const Zones kCorner{{0, 0, 2520, 5040}, {2520, 0, 5040, 2520}, {2520, 2520, 5040, 5040}};

/// How often each pixel of an area is covered: the least and the most.
std::pair<int, int> cover(const std::vector<QRect> &rects, const QRect &area)
{
    std::pair<int, int> found(1000, 0);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const auto count = static_cast<int>(
                std::count_if(rects.begin(), rects.end(), [x, y](const QRect &rect) { return rect.contains(x, y); }));
            found = {std::min(found.first, count), std::max(found.second, count)};
        }
    }
    return found;
}

} // namespace

class TestSplitter : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void zonesMeet_data();
    void zonesMeet();
    void layoutsOfTheUser();
    void damagedTextIsLeftOut();
    void presses_data();
    void presses();
    void movedByHandMeanwhile();
    void oldPlaceIsGone();
    void refusals_data();
    void refusals();
    void whoIsMeant();
    void resolutionThereAndBack();
    void manyWindows();

private:
    /// Puts one program's window on a screen of 1366 x 768, in front.
    void open(const ApplicationWindow &window);
    QString press(const SplitRequest &request);

    WindowSplitter m_splitter;
};

void TestSplitter::open(const ApplicationWindow &window)
{
    m_desk->desk.displays().setDisplays({{QStringLiteral("\\\\.\\DISPLAY1"), QRect(0, 0, 1366, 768)}});
    m_desk->desk.applications().setList({{QStringLiteral("C:\\Notes\\notes.exe"), false, true, window}});
    m_desk->desk.applications().bringToFront(0);
}

/// Where the window then is, what can be seen of it.
QString TestSplitter::press(const SplitRequest &request)
{
    const platform::WindowHandle window = m_splitter.windowMeant();
    const SplitResult result = m_splitter.arrange(window, request);
    const QRect seen = m_desk->desk.windows().visibleRect(window).value_or(QRect());
    const bool maximised = m_desk->desk.windows().style(window) & platform::kStyleMaximised;
    return QStringLiteral("%1,%2 %3x%4%5%6")
        .arg(seen.x())
        .arg(seen.y())
        .arg(seen.width())
        .arg(seen.height())
        .arg(maximised ? " max" : "", result.refusal != SplitRefusal::None ? " refused"
                                      : result.keptSize                    ? " own"
                                                                           : "");
}

void TestSplitter::zonesMeet_data()
{
    columns<QRect>("work area");
    row("1366x728", QRect(0, 40, 1366, 728));
    row("2561x1399", QRect(-2561, -7, 2561, 1399));
    row("odd and small", QRect(1, 1, 641, 479));
}

/// Every pixel belongs to one zone, in every layout; and what is beside a frame that cannot be seen as well.
void TestSplitter::zonesMeet()
{
    const auto [area] = fetch<QRect>();
    std::vector<Zones> layouts{kCorner, {{0, 0, 720, 5040}, {720, 0, 5040, 504}, {720, 504, 5040, 5040}}};
    for (const SplitLayout &layout : fixedLayouts())
        layouts.push_back(layout.zones);
    for (const Zones &zones : layouts) {
        QVERIFY(coversScreen(zones));
        QCOMPARE(cover(zoneRects(zones, area), area.adjusted(0, 0, 0, -1)), std::pair(1, 1));
        for (const QRect &rect : zoneRects(zones, area))
            QVERIFY(area.contains(rect) || rect.isEmpty());
    }
    QCOMPARE(zoneRects(fixedLayouts()[1].zones, QRect(0, 0, 1366, 10))[1], QRect(455, 0, 456, 10)); // 1366/3 = 455.3
}

/// Each change covers the screen, or is none.
void TestSplitter::layoutsOfTheUser()
{
    const auto text = [](const std::optional<Zones> &zones) {
        return zones ? layoutsText({{QStringLiteral("x"), *zones, true}}).mid(2) : QStringLiteral("-");
    };
    const Zones halves = fixedLayouts()[0].zones;
    const Zones quarters = fixedLayouts()[2].zones;
    const Zones wheel{{0, 0, 3360, 1680},
                      {3360, 0, 5040, 3360},
                      {0, 1680, 1680, 5040}, // no zone can go
                      {1680, 1680, 3360, 3360},
                      {1680, 3360, 5040, 5040}};
    QVERIFY(coversScreen(wheel));
    for (const auto &[zones, expected] : std::initializer_list<std::pair<std::optional<Zones>, const char *>>{
             {cutZone(halves, 1, Cut::Across, 1680), "0-0-2520-5040+2520-0-5040-1680+2520-1680-5040-5040"},
             {cutZone(halves, 0, Cut::Upright, 100), "-"}, // too small
             {cutZone(halves, 2, Cut::Upright, 2520), "-"},
             {joinZone(kCorner, 2), "0-0-2520-5040+2520-0-5040-5040"},
             {joinZone(quarters, 0), "0-0-5040-2520+0-2520-2520-5040+2520-2520-5040-5040"}, // not to all at that line
             {joinZone(kCorner, 0), "0-0-5040-2520+0-2520-5040-5040"},
             {joinZone(wheel, 3), "-"},
             {joinZone({Zone()}, 0), "-"},
             {moveEdge(kCorner, {Cut::Upright, 2520, 10}, 1000), "0-0-1000-5040+1000-0-5040-2520+1000-2520-5040-5040"},
             {moveEdge(kCorner, {Cut::Across, 2520, 3000}, 9000), "0-0-2520-5040+2520-0-5040-4536+2520-4536-5040-5040"},
             {moveEdge(quarters, {Cut::Upright, 2520, 0}, 0),
              "0-0-504-2520+504-0-5040-2520+0-2520-2520-5040+2520-2520-5040-5040"},
             {moveEdge(kCorner, {Cut::Upright, 2520, 10}, 2520), "-"}})
        QCOMPARE(text(zones), QLatin1String(expected));
    QCOMPARE(edgeNear(kCorner, {2500, 4000}, 50)->at, 2520);
    QVERIFY(!edgeNear(kCorner, {1000, 2520}, 50)); // no edge runs there
    QVERIFY(!edgeNear(kCorner, {10, 10}, 50));     // the screen's own
    QCOMPARE(zoneAt(kCorner, {2520, 2519}), std::size_t(1));
    Zones most{Zone()};
    while (const auto more = cutZone(most, 0, most.size() % 2 ? Cut::Upright : Cut::Across,
                                     (most[0].left + (most.size() % 2 ? most[0].right : most[0].bottom)) / 2))
        most = *more;
    QVERIFY(most.size() <= kMostZones);
}

void TestSplitter::damagedTextIsLeftOut()
{
    const QString good = QStringLiteral("Two%20rows:0-0-5040-2520+0-2520-5040-5040");
    const QString bad[] = {QStringLiteral("gap:0-0-5040-2520+0-2530-5040-5040"),
                           QStringLiteral("over:0-0-5040-2530+0-2520-5040-5040"),
                           QStringLiteral("thin:0-0-5040-1+0-1-5040-5040"),
                           QStringLiteral("backwards:0-5040-5040-0"),
                           QStringLiteral("nan:0-0-x-2520+0-2520-5040-5040"),
                           QStringLiteral(":0-0-5040-5040"),
                           QStringLiteral("0-0-5040-5040"),
                           QStringLiteral("big:0-0-99999999999-5040"),
                           QStringLiteral("minus:-5-0-5040-5040"),
                           QString(40, QLatin1Char('n')) + QStringLiteral(":0-0-5040-5040"),
                           QString(100'000, QLatin1Char('+'))};
    for (const QString &text : bad) {
        const auto read = layoutsFromText(good + QLatin1Char(' ') + text + QLatin1Char(' ') + good);
        QCOMPARE(layoutsText(read), good);
    }
    QStringList many;
    for (int i = 0; i < 100; ++i)
        many.append(QStringLiteral("n%1:0-0-5040-5040").arg(i));
    QCOMPARE(layoutsFromText(many.join(QLatin1Char(' '))).size(), kMostOwnLayouts);
}

void TestSplitter::presses_data()
{
    columns<ApplicationWindow, QList<int>, QStringList>("window", "zones", "places"); // -1 next, -2 previous, -3 back
    const ApplicationWindow plain{{100, 90, 500, 400}};
    const ApplicationWindow framed{{92, 90, 516, 408}, 8};
    ApplicationWindow maximised = framed;
    maximised.shape = Shape::Maximised;
    ApplicationWindow large = plain;
    large.least = QSize(800, 300);
    const QStringList halves{QStringLiteral("0,0 683x720"), QStringLiteral("683,0 683x720")};
    const QString before = QStringLiteral("100,90 500x400");
    const QString filled = QStringLiteral("0,0 1366x720 max");
    row("a zone, and back", plain, QList<int>{0, 0}, QStringList{halves[0], before});
    row("visible edges meet", framed, QList<int>{0, 1, 1}, QStringList{halves[0], halves[1], before});
    row("round and round", framed, QList<int>{-1, -1, -1, -2, -3},
        QStringList{halves[0], halves[1], halves[0], halves[1], before});
    row("backwards first", plain, QList<int>{-2, -3, -3}, QStringList{halves[1], before, before + " refused"});
    row("maximised", maximised, QList<int>{1, 1, -1}, QStringList{halves[1], filled, halves[0]});
    row("no such zone", plain, QList<int>{7}, QStringList{before + " refused"});
    row("a size of its own", large, QList<int>{1, -1, 0},
        QStringList{QStringLiteral("566,0 800x720 own"), QStringLiteral("0,0 800x720 own"),
                    before.left(7) + "800x400"});
    row("the old place is a maximised one's normal one", maximised, QList<int>{0, 9},
        QStringList{halves[0], halves[0] + " refused"});
}

void TestSplitter::presses()
{
    const auto [window, zones, places] = fetch<ApplicationWindow, QList<int>, QStringList>();
    open(window);
    QStringList found;
    for (const int zone : zones) {
        const Kind kinds[] = {Kind::Restore, Kind::Previous, Kind::Next};
        found.append(press(zone < 0 ? SplitRequest{kinds[zone + 3]} : SplitRequest{Kind::Zone, zone}));
    }
    QCOMPARE(found, places);
}

/// What the user did last is the old place.
void TestSplitter::movedByHandMeanwhile()
{
    open({{100, 90, 500, 400}});
    void *window = m_splitter.windowMeant();
    press({Kind::Zone, 0});
    m_desk->desk.windows().move(window, {30, 30, 300, 300});
    QCOMPARE(press({Kind::Zone, 0}), QStringLiteral("0,0 683x720"));
    QCOMPARE(press({Kind::Zone, 0}), QStringLiteral("30,30 300x300"));
    press({Kind::Zone, 0});
    m_desk->desk.windows().show(window, Shape::Maximised); // by hand, over a zone
    QCOMPARE(press({Kind::Zone, 0}), QStringLiteral("0,0 683x720"));
    QCOMPARE(press({Kind::Zone, 0}), QStringLiteral("0,0 1366x720 max"));
}

void TestSplitter::refusals_data()
{
    columns<ApplicationWindow, int>("window", "why");
    const ApplicationWindow plain{{100, 90, 500, 400}};
    const auto changed = [&plain](auto member, auto value) {
        ApplicationWindow window = plain;
        window.*member = value;
        return window;
    };
    row("rights", changed(&ApplicationWindow::hasMoreRights, true), int(SplitRefusal::MoreRights));
    row("size", changed(&ApplicationWindow::isSizable, false), int(SplitRefusal::FixedSize));
    row("silent", changed(&ApplicationWindow::isHung, true), int(SplitRefusal::Hung));
    row("hidden", changed(&ApplicationWindow::shape, Shape::Hidden), int(SplitRefusal::NoWindow));
    row("minimised", changed(&ApplicationWindow::shape, Shape::Minimised), int(SplitRefusal::Minimised));
    row("full screen", changed(&ApplicationWindow::shape, Shape::FullScreen), int(SplitRefusal::FullScreen));
    ApplicationWindow maximised = changed(&ApplicationWindow::shape, Shape::Maximised);
    maximised.hasMoreRights = true;
    row("maximised, with rights", maximised, int(SplitRefusal::MoreRights));
}

/// A window comes back from a screen that is gone to one that is there.
void TestSplitter::oldPlaceIsGone()
{
    open({{100, 90, 500, 400}});
    const virtualdesk::DisplaySetup first{QStringLiteral("\\\\.\\DISPLAY1"), QRect(0, 0, 1366, 768)};
    m_desk->desk.displays().setDisplays({first, {QStringLiteral("\\\\.\\DISPLAY2"), QRect(1366, 0, 1800, 600)}});
    m_desk->desk.windows().move(m_splitter.windowMeant(), {1500, 20, 1500, 500});
    press({Kind::Zone, 0});
    m_desk->desk.displays().setDisplays({first});
    QCOMPARE(press({Kind::Restore}), QStringLiteral("0,20 1366x500"));
}

/// It stays where it is, and what is said is why.
void TestSplitter::refusals()
{
    const auto [window, why] = fetch<ApplicationWindow, int>();
    open(window);
    const auto before = m_desk->desk.windows().rect(m_splitter.windowMeant());
    QCOMPARE(int(m_splitter.arrange(m_splitter.windowMeant(), {Kind::Next}).refusal), why);
    QCOMPARE(m_desk->desk.windows().rect(m_splitter.windowMeant()), before);
    QCOMPARE(m_splitter.arrange(nullptr, {Kind::Next}).refusal, SplitRefusal::NoWindow);
}

void TestSplitter::whoIsMeant()
{
    QVERIFY(!m_splitter.windowMeant());
    auto &applications = m_desk->desk.applications();
    for (const std::size_t front : {0, 2}) {
        applications.bringToFront(front);
        QCOMPARE(m_splitter.windowMeant(), virtualdesk::Applications::windowOf(front));
    }
    m_splitter.noteInFront(virtualdesk::Applications::windowOf(1));
    for (const char16_t *shell : {u"Shell_TrayWnd", u"TopLevelWindowForOverflowXamlIsland"}) { // on the way to the icon
        applications.ofWindow(virtualdesk::Applications::windowOf(0))->window.className = QString::fromUtf16(shell);
        applications.bringToFront(0);
        m_splitter.noteInFront(virtualdesk::Applications::windowOf(0));
        QCOMPARE(m_splitter.windowMeant(), virtualdesk::Applications::windowOf(1));
    }
    applications.leaveFront(); // this program came
    QCOMPARE(m_splitter.windowMeant(), virtualdesk::Applications::windowOf(1));
    applications.ofWindow(virtualdesk::Applications::windowOf(1))->window.shape = Shape::Hidden; // closed to its icon
    QVERIFY(!m_splitter.windowMeant());
    applications.setList({});
    QVERIFY(!m_splitter.windowMeant()); // its window is gone
    QCOMPARE(m_splitter.arrange(virtualdesk::Applications::windowOf(1), {Kind::Next}).refusal, SplitRefusal::NoWindow);
}

/// Layouts belong to a monitor at one resolution; another one begins with what every screen has.
void TestSplitter::resolutionThereAndBack()
{
    open({{100, 90, 500, 400}});
    const ScreenLayouts mine{{{QStringLiteral("Zwei/Drittel, =1"), kCorner, true}},
                             {QStringLiteral("Zwei/Drittel, =1"), kCorner, true}};
    m_desk->desk.fileFaults.replace.failAt(2); // they and the chosen one are stored at once
    QVERIFY(storeLayouts(splitScreens().front().key(), mine));
    m_desk->desk.fileFaults.replace.failAt(0);
    QCOMPARE(press({Kind::Zone, 2}), QStringLiteral("683,360 683x360"));
    const auto resize = [this](int width, int height) {
        m_desk->desk.displays().setDisplays({{QStringLiteral("\\\\.\\DISPLAY1"), QRect(0, 0, width, height)}});
    };
    resize(800, 600);
    QCOMPARE(loadLayouts(splitScreens().front().key()), ScreenLayouts());
    QVERIFY(storeLayouts(splitScreens().front().key(), {{}, fixedLayouts()[3]}));
    resize(1366, 768);
    QCOMPARE(splitScreens().front().name, QStringLiteral("Q27-OLED"));
    QCOMPARE(loadLayouts(splitScreens().front().key()), mine);
    m_desk->desk.unplug(0);
    m_desk->desk.displays().setMonitorDisplay(1, 0);
    QCOMPARE(loadLayouts(splitScreens().front().key()), ScreenLayouts()); // another monitor at the same place
}

/// Old places are kept of the last windows only.
void TestSplitter::manyWindows()
{
    PlaceMemory memory;
    for (std::uintptr_t i = 1; i <= 1000; ++i)
        memory.remember({{reinterpret_cast<void *>(i), 7}, {}, false, {}, {}});
    const auto knows = [&memory](std::uintptr_t handle, std::uint32_t process) {
        return memory.find({reinterpret_cast<void *>(handle), process}) != nullptr;
    };
    QVERIFY(knows(1000, 7) && knows(937, 7) && !knows(936, 7) && !knows(1000, 8));
}

QTEST_GUILESS_MAIN(TestSplitter)
#include "tst_splitter.moc"
