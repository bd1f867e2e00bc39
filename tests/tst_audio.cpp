// What the drawings make of heights and of the time, and what the simulated sound reads.

#include <algorithm>
#include <set>

#include <QtTest>

#include "page/Nightloom/render/audioled.h"
#include "page/Nightloom/render/dateled.h"
#include "support/matrixforms.h"
#include "support/sounds.h"
#include "support/textfile.h"

using namespace virtualdesk;

namespace {

using Levels = std::vector<std::int32_t>;

Levels highest(const MatrixForm &form)
{
    Levels levels;
    for (const int limit : form.bars.limits)
        levels.push_back(3 * limit + 1);
    return levels;
}

Levels drawn(AudioBars &bars, AudioTemplate which, const Levels &levels)
{
    bars.setTemplate(which);
    bars.clear();
    bars.setLevels(levels);
    return {bars.frame().begin(), bars.frame().end()};
}

/// What a renderer lit, as its grid of dots: seven lines of 21.
QStringList dots(const ClockRenderer &renderer, const MatrixForm &form)
{
    const bool staggered = form.lattice == RowLattice::Staggered;
    MatrixFrame frame(form);
    frame.setFlat(renderer.frame());
    QStringList lines;
    for (int y = 0; y < 7; ++y) {
        QString line;
        for (int x = 0; x < 21; ++x) {
            const int row = form.clock.top + 2 * y;
            const int shift = form.rows[static_cast<std::size_t>(row)].shift;
            const int column = form.clock.left + (staggered ? x - shift / 2 : 2 * x);
            const auto lit = [&](int down, int right) {
                return frame.contains(row + down, column + right) && frame.cell(row + down, column + right) == 1;
            };
            const bool square = staggered || (lit(0, 1) && lit(1, 0) && lit(1, 1));
            line += QLatin1Char(lit(0, 0) && square ? '#' : '.');
        }
        lines.append(line);
    }
    return lines;
}

} // namespace

class TestAudio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsEveryColumn();
    void peaksFall();
    void clockDigits();
    void readsWaveFiles();
};

void TestAudio::fillsEveryColumn()
{
    for (const MatrixForm &form : matrixForms()) {
        const auto bars = makeAudioBars(form);
        int cells = 0;
        for (std::size_t bar = 0; bar < kSpectrumBands; ++bar)
            cells += bars->depth(bar);
        const int width = form.bars.width;
        QCOMPARE(litCells(drawn(*bars, AudioTemplate::Bars, highest(form))), cells * width);
        QCOMPARE(litCells(drawn(*bars, AudioTemplate::Bars, Levels(11, 1))), 11 * width); // the lowest height is a dot
        QCOMPARE(litCells(drawn(*bars, AudioTemplate::Bars, Levels(11, 0))), 0);
        // Far too high, negative, too few and too many.
        QCOMPARE(litCells(drawn(*bars, AudioTemplate::Hanging, Levels(3, INT32_MIN))), 0);
        QCOMPARE(litCells(drawn(*bars, AudioTemplate::Mirrored, Levels(20, INT32_MAX))), cells * width);
        bars->reset();
        QCOMPARE(litCells(bars->frame()), 0);
        QCOMPARE(litCells(drawn(*bars, AudioTemplate::Peaks, Levels())), 0);

        // The bars stand side by side: the middle one reaches as far down as the form, and none shares a cell.
        const std::size_t rows = form.rows.size();
        const bool upright = form.lattice == RowLattice::Upright;
        QCOMPARE(bars->depth(5), static_cast<int>(rows));
        for (std::size_t bar = 0; bar < 5; ++bar)
            QVERIFY(upright ? bars->depth(bar) == bars->depth(5) : bars->depth(bar) < bars->depth(bar + 1));
        MatrixFrame frame(form);
        frame.setFlat(drawn(*bars, AudioTemplate::Bars, {0, 0, 0, 0, 0, INT32_MAX}));
        for (const MatrixFrame::Row &row : frame.rows())
            QCOMPARE(litCells(row), width);

        const Levels half(11, 3 * form.bars.limits[0] / 2);
        std::set<Levels> pictures;
        for (const auto which : {AudioTemplate::Mirrored, AudioTemplate::Bars, AudioTemplate::Hanging})
            pictures.insert(drawn(*bars, which, half));
        QCOMPARE(pictures.size(), 3u);
        frame.setFlat(bars->frame());
        QVERIFY(litCells(frame.rows().front()) > 0);
        frame.setFlat(drawn(*bars, AudioTemplate::Bars, half));
        QCOMPARE(litCells(frame.rows().back()), upright ? 11 * width : width);
    }
}

void TestAudio::peaksFall()
{
    const auto bars = makeAudioBars(kRectangle);
    const int full = litCells(drawn(*bars, AudioTemplate::Peaks, highest(kRectangle)));
    QCOMPARE(full, 11 * 50);
    const Levels first = drawn(*bars, AudioTemplate::Peaks, Levels(11, 1));
    QCOMPARE(litCells(first), 11 * 4); // the bar's dot, and the peak one step below the top
    bars->redraw();                    // nothing new was heard
    QVERIFY(std::equal(first.begin(), first.end(), bars->frame().begin()));
    MatrixFrame frame(kRectangle);
    frame.setFlat(first);
    QCOMPARE(litCells(frame.rows()[1]), 22);
    for (int i = 0; i < 23; ++i)
        drawn(*bars, AudioTemplate::Peaks, Levels(11, 1));
    QCOMPARE(litCells(bars->frame()), 11 * 2); // it has come down to the bar
}

void TestAudio::clockDigits()
{
    const QStringList expected = {
        ".##...##......#..####", //
        "#..#.#..#....##.....#", //
        "...#....#.#.#.#.....#", //
        "..#...##....#.#....#.", //
        ".#......#.#.####...#.", //
        "#....#..#.....#...#..", //
        "####..##......#...#..", //
    };
    for (const MatrixForm &form : matrixForms()) {
        const auto renderer = makeClockRenderer(form);
        renderer->render(QTime(23, 47, 10));
        QCOMPARE(dots(*renderer, form).join('\n'), expected.join('\n'));
        QCOMPARE(std::count(renderer->frame().begin(), renderer->frame().end(), 1), // and none beside the dots
                 expected.join(QString()).count('#') * (form.lattice == RowLattice::Staggered ? 2 : 4));
        const auto lit = [&renderer](int msec) {
            renderer->render(QTime(11, 11, 59, msec));
            return std::count(renderer->frame().begin(), renderer->frame().end(), 1);
        };
        QCOMPARE(lit(499) - lit(500), form.lattice == RowLattice::Staggered ? 4 : 8); // the colon blinks
        QCOMPARE(lit(0), lit(499));
        QCOMPARE(lit(500), lit(999));
    }
}

void TestAudio::readsWaveFiles()
{
    const auto format = [](char tag, char channels, char bits) {
        return QByteArray("fmt \x10\0\0\0", 8) + tag + '\0' + channels + QByteArray("\0\x80\xBB\0\0\0\0\0\0\0\0", 11) +
               bits + '\0';
    };
    const QByteArray head("RIFF\0\0\0\0WAVE", 12);
    const QByteArray data("data\x08\0\0\0\0\x40\0\xC0\0\x40\0\xC0", 16);
    for (const auto &[bytes, frames] :
         {std::pair(QByteArray(head + format(1, 2, 16) + data), 2),
          {head + QByteArray("LIST\x01\0\0\0x\0", 10) + format(3, 1, 32) + data, 2},
          {head + format(3, 1, 32) + QByteArray("data\x08\0\0\0\0\0\xC0\x7F\0\0\0\xC1", 16), 2}, // no number, and -8
          {QByteArray(head + format(1, 1, 16) + data).chopped(3), 2},
          {head + format(1, 1, 16) + QByteArray("data\xFF\xFF\xFF\xFFxx", 10), 1}, // a length beyond the end
          {head + format(1, 2, 24) + data, -1},
          {head + format(1, 0, 16) + data, -1},
          {head + format(1, 1, 16), -1},
          {head + data, -1},
          {QByteArray(), -1}}) {
        const QTemporaryDir folder;
        const QString fileName = folder.filePath("x.wav");
        QVERIFY(writeText(fileName, bytes));
        QString error;
        const auto wave = readWave(fileName, error);
        QCOMPARE(wave.has_value(), frames >= 0);
        QCOMPARE(error.isEmpty(), frames >= 0);
        if (!wave)
            continue;
        QCOMPARE(wave->frames(), static_cast<std::size_t>(frames));
        SoundSetup sound = playing(Sound::Wave);
        sound.wave = std::make_shared<const WaveData>(*wave);
        for (const int place : {-3, 0, 1}) // the first one with a clock that was set back
            QVERIFY(std::abs(sound.sample(place, 0, wave->sampleRate)) <= 0.5);
    }
}

QTEST_GUILESS_MAIN(TestAudio)
#include "tst_audio.moc"
