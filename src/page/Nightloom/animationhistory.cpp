#include "page/Nightloom/animationhistory.h"

#include "ledmatrix/matrixframe.h"

void AnimationHistory::push(AnimationState state)
{
    m_states.resize(m_now + 1);
    m_states.push_back(std::move(state));
    if (m_states.size() > kDepth)
        m_states.erase(m_states.begin());
    m_now = m_states.size() - 1;
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

QBitArray toBits(const MatrixFrame &frame)
{
    const std::vector<std::int32_t> cells = frame.flat();
    QBitArray bits(static_cast<qsizetype>(cells.size()));
    for (std::size_t i = 0; i < cells.size(); ++i)
        bits.setBit(static_cast<qsizetype>(i), cells[i] == 1);
    return bits;
}

MatrixFrame toFrame(const QBitArray &cells, int form)
{
    std::vector<std::int32_t> flat(static_cast<std::size_t>(cells.size()));
    for (std::size_t i = 0; i < flat.size(); ++i)
        flat[i] = cells.testBit(static_cast<qsizetype>(i)) ? 1 : 0;
    MatrixFrame frame(form);
    frame.setFlat(flat);
    return frame;
}
