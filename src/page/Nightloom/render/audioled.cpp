#include "page/Nightloom/render/audioled.h"

#include <algorithm>

namespace {

constexpr int kStepsPerLimit = 3; // a height is at most three times its limit and one
constexpr int kFallTime = 25;     // frames in which a peak falls from the top; about a second

} // namespace

AudioBars::AudioBars(const MatrixForm &form) : m_form(form), m_frame(form), m_flat(m_frame.flat())
{
}

void AudioBars::clear()
{
    m_frame.clear();
    std::fill(m_flat.begin(), m_flat.end(), 0);
}

int AudioBars::litSteps(std::size_t bar, std::int32_t height) const
{
    if (height <= 0)
        return 0;
    const int highest = kStepsPerLimit * m_form.bars.limits[bar];
    return 1 + static_cast<int>(std::int64_t{std::min(height - 1, highest)} * (depth(bar) - 1) / highest);
}

void AudioBars::light(std::size_t bar, int step)
{
    const MatrixCell first = m_columns[bar][static_cast<std::size_t>(step)];
    for (int column = first.column; column < first.column + m_form.bars.width; ++column)
        m_frame.setCell(first.row, column, 1);
}

void AudioBars::lightFrom(std::size_t bar, int first, int count)
{
    for (int step = first; step < first + count; ++step)
        light(bar, step);
}

void AudioBars::setLevels(const std::vector<std::int32_t> &levels)
{
    for (std::size_t bar = 0; bar < m_columns.size(); ++bar) {
        m_lit[bar] = bar < levels.size() ? litSteps(bar, levels[bar]) : 0;
        const int fall = std::max(1, depth(bar) / kFallTime);
        m_peaks[bar] = std::max(m_lit[bar], m_peaks[bar] - fall);
    }
    draw();
}

void AudioBars::redraw()
{
    clear();
    draw();
}

void AudioBars::reset()
{
    m_lit = {};
    m_peaks = {};
    clear();
}

void AudioBars::draw()
{
    for (std::size_t bar = 0; bar < m_columns.size(); ++bar) {
        const int lit = m_lit[bar];
        switch (m_template) {
        case AudioTemplate::Bars:
            lightFrom(bar, 0, lit);
            break;
        case AudioTemplate::Peaks:
            lightFrom(bar, 0, lit);
            if (m_peaks[bar] > 0)
                light(bar, m_peaks[bar] - 1);
            break;
        case AudioTemplate::Mirrored:
            lightFrom(bar, (depth(bar) - lit) / 2, lit);
            break;
        case AudioTemplate::Hanging:
            lightFrom(bar, depth(bar) - lit, lit);
            break;
        }
    }
    m_flat = m_frame.flat();
}

AudioLed::AudioLed(const MatrixForm &form) : AudioBars(form)
{
    for (int row = static_cast<int>(form.rows.size()) - 1; row >= 0; --row) {
        const auto &[cells, first, shift] = form.rows[static_cast<std::size_t>(row)];
        for (std::size_t bar = 0; bar < kSpectrumBands; ++bar) {
            // Odd rows lie half a cell beside the even ones: there the bar takes the cell to the right, or, at the
            // form's edge, to the left.
            const int halves = 2 * (form.bars.left + static_cast<int>(bar) * form.bars.pitch) + shift % 2 - shift;
            const int column = halves / 2 == cells ? halves / 2 - shift % 2 : halves / 2;
            if (halves >= 0 && column < cells)
                addStep(bar, row, column);
        }
    }
}

AudioLedRect::AudioLedRect(const MatrixForm &form) : AudioBars(form)
{
    for (int row = static_cast<int>(form.rows.size()) - 1; row >= 0; --row) {
        for (std::size_t bar = 0; bar < kSpectrumBands; ++bar)
            addStep(bar, row, form.bars.left + static_cast<int>(bar) * form.bars.pitch);
    }
}

std::unique_ptr<AudioBars> makeAudioBars(const MatrixForm &form)
{
    switch (form.lattice) {
    case RowLattice::Staggered:
        return std::make_unique<AudioLed>(form);
    case RowLattice::Upright:
        break;
    }
    return std::make_unique<AudioLedRect>(form);
}
