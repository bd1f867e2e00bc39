// The spectrum against a plain transform that is written out here, and against heights that were worked out by hand.

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

#include <QtTest>

#include "PictureAudioCom/spectrumanalysis.h"
#include "support/matrixforms.h"
#include "support/sounds.h"

using virtualdesk::Sound;
using Samples = std::vector<std::int16_t>;

namespace {

constexpr int kEdges[] = {100, 150, 205, 300, 400, 500, 800, 1000, 1600, 2049, 3000, 6400};

/// Packets one after the other, by the definition of the transform: N real numbers are read, a zero stands behind each
/// sample, and only the first count / 2 + 1 bins of a packet are new.
class PlainSpectrum
{
public:
    explicit PlainSpectrum(int length)
        : m_length(static_cast<std::size_t>(length)), m_input(2 * m_length), m_magnitudes(m_length / 2 + 1)
    {
        for (std::size_t n = 0; n < m_length; ++n)
            m_circle.push_back(std::polar(1.0, -2 * std::numbers::pi * static_cast<double>(n) / length));
    }

    BandSums analyse(const Samples &samples)
    {
        for (std::size_t i = 0; i < samples.size() && 2 * i < m_input.size(); ++i)
            m_input[2 * i] = samples[i];
        const std::size_t used = 6400 * m_magnitudes.size() / 22050; // no band looks beyond
        for (std::size_t k = 0; k < used && k <= samples.size() / 2; ++k) {
            std::complex<double> sum;
            for (std::size_t n = 0; n < m_length; ++n) {
                if (m_input[n] != 0)
                    sum += m_input[n] * m_circle[k * n % m_length];
            }
            m_magnitudes[k] = std::abs(sum);
        }
        BandSums sums{};
        const int bins = static_cast<int>(m_magnitudes.size());
        for (std::size_t band = 0; band < sums.size(); ++band) {
            for (int k = kEdges[band] * bins / 22050; k < kEdges[band + 1] * bins / 22050; ++k)
                sums[band] += m_magnitudes[static_cast<std::size_t>(k)];
            sums[band] /= (bins + 10) / 11;
        }
        return sums;
    }

private:
    std::size_t m_length;
    std::vector<double> m_input;
    std::vector<double> m_magnitudes;
    std::vector<std::complex<double>> m_circle;
};

bool close(const BandSums &a, const BandSums &b)
{
    return std::equal(a.begin(), a.end(), b.begin(),
                      [](double x, double y) { return std::abs(x - y) <= 1e-6 * (1 + std::abs(y)); });
}

} // namespace

class TestSpectrum : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithPlainTransform();
    void tonesFillTheirBand();
    void impulseGivesKnownHeights();
    void silenceGivesNothing();
    void heightsStayWithinLimits();
    void lengthOnlyGrows();
};

void TestSpectrum::agreesWithPlainTransform()
{
    for (const auto &[kind, rate, channels, frames] : {std::tuple(Sound::Tone, 48000, 1, 4800),
                                                       {Sound::TwoTones, 48000, 2, 480}, // 10 ms
                                                       {Sound::TwoTones, 44100, 8, 441},
                                                       {Sound::Sweep, 48000, 1, 4799},
                                                       {Sound::Noise, 96000, 2, 961},
                                                       {Sound::Noise, 192000, 8, 1920},
                                                       {Sound::Noise, 48000, 2, 2400}, // exactly N
                                                       {Sound::Noise, 48000, 2, 5001}, // more
                                                       {Sound::Noise, 48000, 1, 1}}) {
        const Samples samples = record(playing(kind), rate, channels, frames);
        SpectrumAnalysis analysis;
        QVERIFY(analysis.prepare(static_cast<std::uint32_t>(rate)));
        QCOMPARE(analysis.length(), rate / 10);
        PlainSpectrum plain(rate / 10);

        // The second packet is shorter: what it does not overwrite is heard again.
        for (const Samples &packet : {samples, Samples(samples.begin(), samples.begin() + (frames + 1) / 2)}) {
            const BandSums expected = plain.analyse(packet);
            const auto sums = analysis.analyse(packet);
            QCOMPARE(sums.has_value(), *std::max_element(expected.begin(), expected.end()) >= 20.0);
            if (sums)
                QVERIFY(close(*sums, expected));
        }
    }
}

void TestSpectrum::tonesFillTheirBand()
{
    for (std::size_t band = 0; band < kSpectrumBands; ++band) {
        // The middle bin of the band; one bin of the transform is twice as wide as usual, because of the zeros.
        const int bin = (kEdges[band] * 2401 / 22050 + kEdges[band + 1] * 2401 / 22050) / 2;
        SpectrumAnalysis analysis;
        QVERIFY(analysis.prepare(48000));
        const auto sums = analysis.analyse(record(playing(Sound::Tone, bin * 20.0), 48000, 1, 4800));
        QVERIFY(sums);
        QCOMPARE(std::max_element(sums->begin(), sums->end()) - sums->begin(), static_cast<std::ptrdiff_t>(band));
        for (const MatrixForm &form : matrixForms())
            QCOMPARE(barHeights(*sums, form).at(band), 3 * form.bars.limits[band] + 1);
    }
}

void TestSpectrum::impulseGivesKnownHeights()
{
    // All bins of an impulse are alike, so each band holds as much as it is wide: 6, 6, 10, 11, 11, 33, 21, 66, 49, 103
    // and 370 bins.
    Samples impulse(4800);
    impulse[0] = 1000;
    SpectrumAnalysis analysis;
    QVERIFY(analysis.prepare(48000));
    const auto sums = analysis.analyse(impulse);
    QVERIFY(sums);
    QVERIFY(std::abs(sums->at(10) - 1000.0 * 370 / 219) < 1e-6);
    QCOMPARE(barHeights(*sums, kTapering), (BarHeights{1, 1, 5, 8, 10, 32, 27, 41, 26, 23, 16}));
    QCOMPARE(barHeights(*sums, kRectangle), (BarHeights{1, 1, 10, 12, 12, 32, 23, 44, 39, 52, 76}));
}

void TestSpectrum::silenceGivesNothing()
{
    SpectrumAnalysis analysis;
    Samples impulse(4800);
    impulse[0] = 12;                     // 12 * 370 / 219 is above 20, 11 * 370 / 219 is not
    QVERIFY(!analysis.analyse(impulse)); // not prepared
    QVERIFY(analysis.prepare(48000));
    QVERIFY(!analysis.analyse({}));
    QVERIFY(!analysis.analyse(Samples(960)));
    QVERIFY(analysis.analyse(impulse));
    QVERIFY(analysis.analyse(Samples(100))); // silent itself
    analysis.clear();
    QVERIFY(!analysis.analyse(Samples(100)));
    impulse[0] = 11;
    QVERIFY(!analysis.analyse(impulse));
}

void TestSpectrum::heightsStayWithinLimits()
{
    BandSums alike;
    alike.fill(123.0);
    BandSums extreme = alike;
    extreme[3] = 1e-300;
    extreme[4] = 1e9;
    BandSums empty = alike;
    empty[0] = 0; // of which there is no logarithm
    empty[6] = 246.0;
    BandSums oneOnly{};
    oneOnly[5] = 99;
    for (const MatrixForm &form : matrixForms()) {
        const auto &limits = form.bars.limits;
        BarHeights expected;
        expected.fill(1);
        QCOMPARE(barHeights(alike, form), expected);
        QCOMPARE(barHeights(oneOnly, form), expected);
        expected[6] = 3 * limits[6] + 1;
        QCOMPARE(barHeights(empty, form), expected);
        const BarHeights high = barHeights(extreme, form);
        QCOMPARE(high[3], 1);
        QCOMPARE(high[4], 3 * limits[4] + 1);
        for (std::size_t band = 0; band < high.size(); ++band)
            QVERIFY(high[band] >= 1 && high[band] <= 3 * limits[band] + 1);
    }
}

void TestSpectrum::lengthOnlyGrows()
{
    SpectrumAnalysis analysis;
    for (const std::uint32_t none : {0u, 19u, 4'000'000'000u})
        QVERIFY(!analysis.prepare(none));
    QCOMPARE(analysis.length(), 0);
    QVERIFY(analysis.prepare(44100));
    QCOMPARE(analysis.length(), 4410);
    QVERIFY(analysis.prepare(192000));
    QVERIFY(analysis.prepare(44100));
    QCOMPARE(analysis.length(), 19200);
    QVERIFY(!analysis.prepare(0));

    const Samples packet = record(playing(Sound::Noise), 44100, 2, 9000);
    QVERIFY(close(*analysis.analyse(packet), PlainSpectrum(19200).analyse(packet)));
}

QTEST_GUILESS_MAIN(TestSpectrum)
#include "tst_spectrum.moc"
