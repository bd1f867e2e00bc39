#include <cmath>

#include "PictureAudioCom/screencolours.h"
#include "PictureAudioCom/screensampler.h"
#include "PictureAudioCom/soundanalyzer.h"
#include "PictureAudioCom/soundcolours.h"
#include "page/Emberline/rhythmlight.h"
#include "support/truthfixture.h"

using namespace std::chrono_literals;
using virtualdesk::AudioCall;
using virtualdesk::kForEver;

namespace {

/// Light and Lab as the standards write them, once more and by themselves.
struct Light
{
    double r = 0, g = 0, b = 0;

    static double of(int step)
    {
        const double v = step / 255.0;
        return v < 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    }
    void add(QRgb p, double share)
    {
        r += of(qRed(p)) * share;
        g += of(qGreen(p)) * share;
        b += of(qBlue(p)) * share;
    }
    std::array<double, 3> lab() const
    {
        const auto f = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16 / 116.0; };
        const double x = f((0.4124 * r + 0.3576 * g + 0.1805 * b) / 0.9505),
                     y = f(0.2126 * r + 0.7152 * g + 0.0722 * b), z = f((0.0193 * r + 0.1192 * g + 0.9505 * b) / 1.089);
        return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
    }
    double deltaE(QRgb other) const
    {
        Light light;
        light.add(other, 1);
        const auto a = lab(), c = light.lab();
        return std::sqrt(std::pow(a[0] - c[0], 2) + std::pow(a[1] - c[1], 2) + std::pow(a[2] - c[2], 2));
    }
};

/// All hues from left to right in stripes of a pixel, bright and dark, which only light averages as the eye does; bars
/// of almost black noise around it, in which there are bright specks.
QImage film(const QSize &size, const QRect &picture)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y,
                           picture.contains(x, y)
                               ? QColor::fromHsv(300 * x / size.width(), 190, (x + y) % 2 ? 250 : 40).rgb()
                               : qRgb((x * 7 + y) % 23, (x + y * 5) % 23, 20));
    }
    for (const QPoint speck : {QPoint(1, 30), QPoint(size.width() - 2, size.height() - 40), QPoint(60, 2)}) {
        if (!picture.contains(speck))
            image.setPixel(speck, qRgb(255, 255, 255));
    }
    return image;
}

/// The mean light of what lies within a hundredth of the picture's edge, of its left and right half and of both.
std::array<Light, 3> edgesOf(const QImage &image, const QRect &picture)
{
    const int near = picture.height() / 100;
    const QRect inner = picture.adjusted(near, near, -near, -near);
    std::array<Light, 3> sums;
    std::array<int, 3> counts{};
    for (int y = picture.top(); y <= picture.bottom(); ++y) {
        for (int x = picture.left(); x <= picture.right(); ++x) {
            const std::size_t half = x < picture.center().x() ? 0 : 1;
            for (const std::size_t zone : {half, std::size_t(2)}) {
                if (!inner.contains(x, y)) {
                    sums[zone].add(image.pixel(x, y), 1);
                    ++counts[zone];
                }
            }
        }
    }
    for (std::size_t zone = 0; zone < 3; ++zone)
        sums[zone] = {sums[zone].r / counts[zone], sums[zone].g / counts[zone], sums[zone].b / counts[zone]};
    return sums;
}

} // namespace

/// The colours of screens and sounds, and what of them reaches the lamps.
class TestRhythm : public TruthFixture
{
    Q_OBJECT
    virtualdesk::SimulatedScreen &screen() { return m_desk->desk.screen(); }

    void showHalves(QRgb left, QRgb right)
    {
        QImage image(4000, 2000, QImage::Format_RGB32); // as large as any desktop of the test
        image.fill(left);
        const QRect bounds = monitorList.front().bounds;
        QPainter(&image).fillRect(bounds.adjusted(bounds.width() / 2, 0, 0, 0), QColor(right));
        screen().setPicture(image);
    }

    /// Until what is shown now has been looked at, and what came of it has been done.
    void look()
    {
        for (int round = 0; round < 2; ++round) {
            const int before = screen().copies();
            QTRY_VERIFY((m_desk->clock.advance(100ms), screen().copies() > before));
        }
        settle();
    }

    /// The writes of the last second.
    QStringList nextWrites(std::chrono::milliseconds time = 1000ms)
    {
        pass(time);
        return m_desk->takeCommands().filter("W");
    }

    void tell(std::uint64_t sessionEvent)
    {
        m_desk->desk.registrations().tellSystem(platform::kMessageSessionChange, sessionEvent);
    }

    void startIn(int mode, int source, QRgb left, QRgb right, bool canHear = false)
    {
        start(10, 0, [=, this] {
            for (const auto &[code, value] :
                 {std::pair(0x75, mode), {0x83, source}, {0x84, 4}, {0x86, 1}, {0x88, 1}, {0x89, 1}})
                m_desk->monitor().setValue(static_cast<std::uint8_t>(code), static_cast<std::uint16_t>(value));
            if (!canHear)
                m_desk->desk.sound().fail({AudioCall::CreateEnumerator, platform::kAudioFailed, kForEver});
            m_desk->desk.sound().setProbe([](AudioCall call, int) {
                QSemaphore none; // a capture waits here for its end: the clock would not hold it back
                while (call == AudioCall::NextPacketSize && !SoundAnalyzer::instance().isInterruptionRequested())
                    none.tryAcquire(1, 1);
            });
            showHalves(left, right);
        });
        QCOMPARE(screen().copies(), 0); // nobody knows the mode yet
    }

private Q_SLOTS:
    void edges_data()
    {
        columns<QSize, QRect>("size", "picture");
        row("whole screen", QSize(1920, 1080), QRect(0, 0, 1920, 1080));
        row("wide film", QSize(1920, 1080), QRect(0, 138, 1920, 804));
        row("old film", QSize(1920, 1080), QRect(240, 0, 1440, 1080));
        row("small window", QSize(1920, 1080), QRect(240, 138, 1440, 804));
        row("one bar", QSize(1920, 1080), QRect(0, 0, 1920, 960));
        row("two bars of a corner", QSize(1280, 800), QRect(300, 90, 980, 710));
        row("upright", QSize(1080, 1920), QRect(0, 656, 1080, 608));
        row("three bars", QSize(1280, 720), QRect(200, 92, 1080, 536));
        row("three bars upright", QSize(720, 1280), QRect(92, 0, 536, 1080));
    }

    void edges()
    {
        const auto [size, picture] = fetch<QSize, QRect>();
        const QImage image = film(size, picture);
        screenOnly.setPicture(image);
        ScreenColours colours;
        std::size_t pixels = 0;
        const auto copy = [&](std::span<const platform::ScreenPart> parts) {
            for (const platform::ScreenPart &part : parts)
                pixels += part.pixels.size();
            return screenOnly.copy(parts);
        };
        QVERIFY(colours.look(image.rect(), copy));
        const std::array<Light, 3> expected = edgesOf(image, picture);
        const ZoneColours found = *colours.colours();
        for (const auto &[zone, color] : {std::pair(0, found.left), {1, found.right}, {2, found.global}}) {
            const double apart = expected[std::size_t(zone)].deltaE(color);
            QVERIFY2(apart < 2, qPrintable(QStringLiteral("zone %1: %2").arg(zone).arg(apart)));
        }
        QVERIFY(pixels < std::size_t(size.width() * size.height() / 10)); // strips only
        screenOnly.setPicture(film(size, QRect()));                       // what is dark is no bar
        QVERIFY(colours.look(image.rect(), copy));
        QVERIFY(qGray(colours.colours()->global) < 24);
        QVERIFY(!colours.look(image.rect().translated(1, 0), copy)); // a copy fails: held
        QVERIFY(colours.colours());
    }

    void sounds()
    {
        const ZoneColours bass = soundColours({30, 30, 1, 1, 1, 1, 1, 1, 1, 1, 1});
        QVERIFY(qRed(bass.left) > 90 && qBlue(bass.left) == 0 && bass.right == qRgb(0, 0, 0));
        const ZoneColours treble = soundColours({1, 1, 1, 1, 1, 1, 1, 1, 1, 30, 30});
        QVERIFY(qBlue(treble.right) > 90 && qGreen(treble.right) == 0 && treble.left == qRgb(0, 0, 0));
        QVERIFY(qGray(soundColours(QList<int>(11, 30)).global) > qGray(bass.global));
        QVERIFY(soundColours({}) == ZoneColours() && soundColours(QList<int>(11, 1)) == ZoneColours());
    }

    /// By the wire: one write a second at most, none that nobody would see, nothing while nothing is to be followed.
    void screenOnTheWire()
    {
        startIn(3, 1, qRgb(255, 0, 0), qRgb(255, 0, 0));
        pass(2s);
        look();
        QCOMPARE(m_desk->takeCommands().filter("W"), QStringList{"W 86=63488"}); // 31 of 31 red
        showHalves(qRgb(248, 6, 4), qRgb(248, 6, 4));                            // other bits of the tone
        look();
        QCOMPARE(nextWrites(3s), QStringList()); // nobody sees that
        const QDateTime begin = m_desk->clock.now();
        for (int change = 0; change < 12; ++change) {
            showHalves(QColor::fromHsv(change * 30, 255, 255).rgb(), QColor::fromHsv(change * 30, 255, 255).rgb());
            look();
        }
        const QStringList sent = m_desk->takeCommands().filter("W");
        QVERIFY(!sent.isEmpty() && sent.size() <= begin.secsTo(m_desk->clock.now()) + 1);
        screen().failCopies(kForEver);
        showHalves(qRgb(0, 255, 0), qRgb(0, 255, 0));
        pass(2s); // what still waited
        m_desk->takeCommands();
        const auto *light = m_window->findChild<RhythmLight *>();
        QTRY_COMPARE(int(light->state()), int(RhythmLight::State::Holds));
        QCOMPARE(nextWrites(3s), QStringList());
        screen().failCopies(0);
        look();
        QCOMPARE(nextWrites(2s), QStringList{"W 86=2016"}); // 63 of 63 green
        QCOMPARE(int(light->state()), int(RhythmLight::State::Follows));
        openPage(5, "Emberline");
        QVERIFY(storeSetting("Care/AutomaticWrites", 0));
        showHalves(qRgb(0, 0, 255), qRgb(0, 0, 255));
        look(); // it waits for tomorrow now
        m_desk->takeCommands();
        m_window->findChild<QPushButton *>("Light Mode_Normal")->click();
        QTRY_COMPARE(int(light->state()), int(RhythmLight::State::Off));
        QVERIFY(storeSetting("Care/AutomaticWrites", -1));
        QCOMPARE(nextWrites(2min), QStringList{"W 75=1"}); // what waited is not wanted any more
        pass(250ms);                                       // a look that was under way
        const int copies = screen().copies();
        pass(5s);
        QCOMPARE(screen().copies(), copies);
    }

    /// Both zones, dark at once when the session is locked, and lit again; a silent monitor has nothing looked at.
    void lockedIsDark()
    {
        startIn(4, 1, qRgb(0, 255, 0), qRgb(0, 0, 255));
        pass(2s);
        look();
        QStringList sent = m_desk->takeCommands().filter("W") + nextWrites(2s);
        QCOMPARE(sent, (QStringList{"W 88=2016", "W 89=31"}));
        showHalves(qRgb(255, 255, 255), qRgb(255, 255, 255));
        look(); // one waits for its second now
        m_desk->takeCommands();
        tell(7);
        settle();
        QCOMPARE(int(m_desk->monitor().value(0x88)), 0); // and no time has passed
        QCOMPARE(int(m_desk->monitor().value(0x89)), 0);
        const auto *light = m_window->findChild<RhythmLight *>();
        QTRY_VERIFY(light->findChild<ScreenSampler *>()->isFinished()); // a look that was under way
        pass(250ms);
        m_desk->takeCommands();
        const int copies = screen().copies();
        QCOMPARE(nextWrites(5s), QStringList());
        QCOMPARE(screen().copies(), copies);
        tell(8);
        look();
        QCOMPARE(m_desk->takeCommands().filter("W") + nextWrites(2s), (QStringList{"W 88=65535", "W 89=65535"}));
        m_desk->monitor().setPlugged(false);
        showHalves(qRgb(255, 0, 0), qRgb(255, 0, 0)); // nobody knows of its silence before it is asked something
        QTRY_VERIFY((m_desk->clock.advance(100ms), light->state() == RhythmLight::State::Off));
        settle();
        const int before = screen().copies();
        pass(3s);
        QVERIFY(screen().copies() <= before + 1);
    }

    /// Before anything is known, what is refused, what comes back and when the day is used up; and lit again.
    void lockedIsDarkInAnyCase()
    {
        using Tones = std::pair<int, int>;
        const Tones dark(0, 0), lit(2016, 31);
        startIn(4, 1, qRgb(0, 255, 0), qRgb(0, 0, 255));
        virtualdesk::SimulatedMonitor &monitor = m_desk->monitor();
        const auto tones = [&monitor] { return Tones(monitor.value(0x88), monitor.value(0x89)); };
        const auto follow = [this, &tones](const Tones &expected) {
            QTRY_COMPARE_WITH_TIMEOUT((pass(250ms), tones()), expected, 20'000);
        };
        tell(7);
        pass(1s);
        QCOMPARE(tones(), dark);
        tell(8);
        follow(lit);
        monitor.refuse(0x88, 8);
        tell(7);
        pass(5s);
        QCOMPARE(tones(), dark);
        QVERIFY(storeSetting("Care/AutomaticWrites", 0));
        tell(8);
        follow(lit);
        showHalves(qRgb(255, 0, 0), qRgb(0, 0, 255));
        look();
        QCOMPARE(tones(), lit);
        QCOMPARE(int(m_window->findChild<RhythmLight *>()->state()), int(RhythmLight::State::UsedUp));
        QVERIFY(storeSetting("Care/AutomaticWrites", -1));
        pass(1min);
        follow({0xF800, 31});
        monitor.setPlugged(false);
        tell(7);
        pass(3s);
        m_desk->desk.plug(0);
        pass(5s);
        QCOMPARE(tones(), dark);
        tell(8);
        follow({0xF800, 31});
        monitor.loseReplies(1, 0x88); // and nothing else is to be seen
        showHalves(qRgb(255, 255, 255), qRgb(0, 0, 255));
        follow({0xFFFF, 31});
    }

    void soundOnTheWire()
    {
        startIn(3, 0, 0, 0);
        pass(2s);
        QTRY_VERIFY(!SoundAnalyzer::instance().isRunning());
        m_desk->takeCommands();
        Q_EMIT SoundAnalyzer::instance().heightsReady({30, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1});
        settle();
        const int tone = m_desk->monitor().value(0x86);
        QVERIFY(tone >> 11 > 5 && (tone & 0x7FF) == 0); // red alone
        QCOMPARE(screen().copies(), 0);
    }

    /// Nothing plays: it is listened anew, but not while somebody else listens, whose capture that would end.
    void silenceIsHeardTogether()
    {
        startIn(3, 0, 0, 0, true);
        const auto &analyzer = SoundAnalyzer::instance();
        pass(2s);
        QTRY_VERIFY(analyzer.isCapturing());
        pass(3s);
        QTRY_VERIFY(!analyzer.isRunning());
        SoundUse music;
        music.begin();
        pass(3s);
        QTRY_VERIFY(analyzer.isCapturing());
        QSignalSpy ends(&analyzer, &SoundAnalyzer::ended);
        pass(9s);
        QVERIFY(analyzer.isCapturing() && ends.isEmpty());
    }

    /// What is sent differs from what the lamps show, not from what they were only to show.
    void whatWaitsMayBeOutOfDate()
    {
        startIn(3, 0, 0, 0);
        pass(2s);
        QTRY_VERIFY(!SoundAnalyzer::instance().isRunning());
        m_desk->takeCommands();
        const auto hear = [this](int low, int next, int high) {
            Q_EMIT SoundAnalyzer::instance().heightsReady({low, next, 1, 1, 1, 1, 1, 1, 1, 1, high});
            settle();
            return m_desk->takeCommands().filter("W").size();
        };
        QCOMPARE(hear(30, 1, 1), 1);
        const int tone = m_desk->monitor().value(0x86);
        QCOMPARE(hear(1, 1, 30), 0); // it waits for its second
        QCOMPARE(hear(30, 5, 1), 0); // almost what it was: another tone, but nobody sees that
        QCOMPARE(nextWrites(5s), QStringList());
        QCOMPARE(int(m_desk->monitor().value(0x86)), tone);
        QCOMPARE(hear(1, 1, 30), 1);
    }

private:
    virtualdesk::SimulatedScreen screenOnly;
};

QTEST_MAIN(TestRhythm)
#include "tst_rhythm.moc"
