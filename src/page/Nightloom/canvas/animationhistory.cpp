#include "page/Nightloom/canvas/animationhistory.h"

#include <algorithm>

#include "ledmatrix/matrixframe.h"

/// The memory that a state takes beyond the one before it. Frames that have moved count as new, which is enough.
static std::size_t bytesOf(const AnimationState &state, const AnimationState *before)
{
    constexpr std::size_t kOverhead = 32; // of an array in the heap
    std::size_t bytes = sizeof(AnimationState) + state.frames.size() * sizeof(AnimationFrame);
    for (std::size_t i = 0; i < state.frames.size(); ++i) {
        const QBitArray &cells = state.frames[i].cells;
        const bool shared = before && i < before->frames.size() && cells.bits() == before->frames[i].cells.bits();
        if (!shared)
            bytes += static_cast<std::size_t>(cells.size()) / 8 + kOverhead;
    }
    return bytes;
}

void AnimationHistory::append(AnimationState state)
{
    const std::size_t bytes = bytesOf(state, m_steps.empty() ? nullptr : &m_steps.back().state);
    m_steps.push_back({std::move(state), bytes});
    m_bytes += bytes;
}

void AnimationHistory::push(AnimationState state)
{
    for (; canRedo(); m_steps.pop_back())
        m_bytes -= m_steps.back().bytes;
    append(std::move(state));
    for (; m_bytes > kMaximumBytes && m_steps.size() > 1; m_steps.pop_front())
        m_bytes -= m_steps.front().bytes;
    m_now = m_steps.size() - 1;
}

int AnimationHistory::undo()
{
    const int place = state().place;
    if (canUndo())
        --m_now;
    return place;
}

int AnimationHistory::redo()
{
    if (canRedo())
        ++m_now;
    return state().place;
}

bool AnimationHistory::isKept() const
{
    const std::vector<AnimationFrame> &now = state().frames;
    const auto isDark = [](const AnimationFrame &frame) { return frame.cells.count(true) == 0; };
    const auto sameCells = [](const AnimationFrame &a, const AnimationFrame &b) { return a.cells == b.cells; };
    return std::all_of(now.begin(), now.end(), isDark) ||
           std::equal(now.begin(), now.end(), m_kept.begin(), m_kept.end(), sameCells);
}

QBitArray toBits(const MatrixFrame &frame)
{
    const std::vector<std::int32_t> cells = frame.flat();
    QBitArray bits(static_cast<qsizetype>(cells.size()));
    for (std::size_t i = 0; i < cells.size(); ++i)
        bits.setBit(static_cast<qsizetype>(i), cells[i] == 1);
    return bits;
}

MatrixFrame toFrame(const QBitArray &cells, const MatrixForm &form)
{
    std::vector<std::int32_t> flat(static_cast<std::size_t>(cells.size()));
    for (std::size_t i = 0; i < flat.size(); ++i)
        flat[i] = cells.testBit(static_cast<qsizetype>(i)) ? 1 : 0;
    MatrixFrame frame(form);
    frame.setFlat(flat);
    return frame;
}
