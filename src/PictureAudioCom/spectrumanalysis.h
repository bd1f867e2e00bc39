#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include <fftw3.h>

#include "ledmatrix/matrixform.h"

using BandSums = std::array<double, kSpectrumBands>;
using BarHeights = std::array<int, kSpectrumBands>;

/// Turns band sums into the bars of a form: logarithmic between the quietest band and the loudest, 1 to 3 * limit + 1.
/// A band that holds nothing at all has the height 1 and is not the quietest one.
BarHeights barHeights(const BandSums &sums, const MatrixForm &form);

/// Samples in, eleven band sums or silence out. Knows no device and no thread; one object serves one thread at a time,
/// several objects may live beside each other.
class SpectrumAnalysis
{
public:
    /// Makes the transform fit for a sample rate in Hz: its length N is a tenth of it. A length that is not larger than
    /// the one before keeps plan and buffers, and the length. False for a rate that no transform can be made for.
    bool prepare(std::uint32_t sampleRate);

    /// Forgets the samples and magnitudes of earlier packets.
    void clear();

    /// Analyses a packet of interleaved samples. Nothing when it is silent, or when prepare never succeeded. Allocates
    /// nothing.
    std::optional<BandSums> analyse(std::span<const std::int16_t> samples);

    /// N, in samples; 0 before the first prepare.
    int length() const { return m_length; }

private:
    struct Free
    {
        void operator()(void *memory) const { fftw_free(memory); }
    };
    struct DestroyPlan
    {
        void operator()(fftw_plan plan) const;
    };
    using Plan = std::unique_ptr<std::remove_pointer_t<fftw_plan>, DestroyPlan>;

    bool grow(int length);
    BandSums sumBands() const;

    int m_length = 0;
    std::unique_ptr<double[], Free> m_input;        // 2 * N
    std::unique_ptr<fftw_complex[], Free> m_output; // N / 2 + 1
    Plan m_plan;
    std::vector<double> m_magnitudes; // N / 2 + 1
};
