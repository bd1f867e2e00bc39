#include "PictureAudioCom/spectrumanalysis.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <mutex>

namespace {

// Hz; band i runs from entry i to entry i + 1. 2049 is meant, and so are the two entries that no band uses.
constexpr std::array kBandEdges = {100, 150, 205, 300, 400, 500, 800, 1000, 1600, 2049, 3000, 6400, 12800, 22050};
constexpr int kTopFrequency = kBandEdges.back();
static_assert(kBandEdges.size() > kSpectrumBands);

constexpr double kSilence = 20.0;        // the loudest band of a packet that counts as sound reaches it
constexpr double kSecondsAnalysed = 0.1; // of one channel
constexpr double kStepsPerLimit = 3.0;
constexpr double kLongest = 200'000; // samples; ten times what any sound device offers

/// FFTW executes plans on any number of threads, but makes and destroys them on one at a time.
std::mutex &plannerMutex()
{
    static std::mutex mutex;
    return mutex;
}

} // namespace

void SpectrumAnalysis::DestroyPlan::operator()(fftw_plan plan) const
{
    const std::lock_guard lock(plannerMutex());
    fftw_destroy_plan(plan);
}

bool SpectrumAnalysis::prepare(std::uint32_t sampleRate)
{
    const double length = std::trunc(sampleRate * kSecondsAnalysed);
    if (length < 2 || length > kLongest)
        return false;
    return length <= m_length || grow(static_cast<int>(length));
}

bool SpectrumAnalysis::grow(int length)
{
    const auto samples = static_cast<std::size_t>(length);
    const std::size_t bins = samples / 2 + 1;
    m_length = 0;
    m_plan.reset(); // before the buffers that it works on
    m_input.reset(fftw_alloc_real(2 * samples));
    m_output.reset(fftw_alloc_complex(bins));
    if (!m_input || !m_output)
        return false;
    {
        const std::lock_guard lock(plannerMutex());
        m_plan.reset(fftw_plan_dft_r2c_1d(length, m_input.get(), m_output.get(), FFTW_ESTIMATE));
    }
    if (!m_plan)
        return false;
    m_magnitudes.resize(bins);
    m_length = length;
    clear();
    return true;
}

void SpectrumAnalysis::clear()
{
    if (m_length == 0)
        return;
    std::fill_n(m_input.get(), 2 * static_cast<std::size_t>(m_length), 0.0);
    std::fill(m_magnitudes.begin(), m_magnitudes.end(), 0.0);
}

std::optional<BandSums> SpectrumAnalysis::analyse(std::span<const std::int16_t> samples)
{
    if (m_length == 0)
        return std::nullopt;
    // Each sample is followed by a zero, as in a complex number, and yet the transform reads N real ones: it sees the
    // first N / 2 samples. That is meant, and the bands below are chosen for it. What a short packet does not overwrite
    // stays from the packets before, in the input and in the magnitudes.
    const std::size_t taken = std::min(samples.size(), static_cast<std::size_t>(m_length));
    for (std::size_t i = 0; i < taken; ++i) {
        m_input[2 * i] = samples[i];
        m_input[2 * i + 1] = 0.0;
    }
    fftw_execute(m_plan.get());
    const std::size_t bins = std::min(samples.size() / 2 + 1, m_magnitudes.size());
    for (std::size_t k = 0; k < bins; ++k)
        m_magnitudes[k] = std::sqrt(m_output[k][0] * m_output[k][0] + m_output[k][1] * m_output[k][1]);

    const BandSums sums = sumBands();
    if (*std::max_element(sums.begin(), sums.end()) < kSilence)
        return std::nullopt;
    return sums;
}

BandSums SpectrumAnalysis::sumBands() const
{
    const int bins = static_cast<int>(m_magnitudes.size());
    const int divisor = (bins + 10) / 11;
    BandSums sums{};
    for (std::size_t band = 0; band < sums.size(); ++band) {
        const int low = kBandEdges[band] * bins / kTopFrequency;
        const int high = kBandEdges[band + 1] * bins / kTopFrequency;
        for (int k = low; k < high; ++k)
            sums[band] += m_magnitudes[static_cast<std::size_t>(k)];
        sums[band] /= divisor;
    }
    return sums;
}

BarHeights barHeights(const BandSums &sums, const MatrixForm &form)
{
    BandSums logs{};
    double smallest = std::numeric_limits<double>::infinity();
    double largest = -smallest;
    for (std::size_t band = 0; band < sums.size(); ++band) {
        logs[band] = std::log10(sums[band]);
        if (!std::isfinite(logs[band]))
            continue; // an empty band; beside it all others would be equally loud
        smallest = std::min(smallest, logs[band]);
        largest = std::max(largest, logs[band]);
    }
    BarHeights heights;
    heights.fill(1);
    if (!(largest > smallest)) // all alike: nothing stands out
        return heights;
    for (std::size_t band = 0; band < sums.size(); ++band) {
        if (std::isfinite(logs[band]))
            heights[band] = static_cast<int>(
                (logs[band] - smallest) / (largest - smallest) * form.bars.limits[band] * kStepsPerLimit + 1.0);
    }
    return heights;
}
