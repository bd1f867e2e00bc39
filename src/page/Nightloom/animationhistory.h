#pragma once

#include <vector>

#include <QBitArray>

class MatrixFrame;

/// One frame of an animation, kept as bits in frame order; copies share them.
struct AnimationFrame
{
    int id;     ///< tells the frame from every other that the animation ever had
    int number; ///< what its tab is called
    QBitArray cells;
};

/// A whole animation at one moment.
struct AnimationState
{
    std::vector<AnimationFrame> frames;
    int place = 0;      ///< where the change that led here was made, which may lie behind the last frame
    int nextNumber = 1; ///< of the next frame that is added
};

/// Every state that an animation had, so that each change can be taken back and made again.
class AnimationHistory
{
public:
    /// States that are kept; older ones are forgotten.
    static constexpr std::size_t kDepth = 500;

    explicit AnimationHistory(AnimationState first) : m_states{std::move(first)} {}

    const AnimationState &state() const { return m_states[m_now]; }

    /// A change: what had been taken back before is gone.
    void push(AnimationState state);

    bool canUndo() const { return m_now > 0; }
    bool canRedo() const { return m_now + 1 < m_states.size(); }

    /// Go one state back or on; where there is none nothing happens. The place to show: where the difference lies.
    int undo();
    int redo();

private:
    std::vector<AnimationState> m_states;
    std::size_t m_now = 0;
};

/// The cells of a frame in frame order, and back.
QBitArray toBits(const MatrixFrame &frame);
MatrixFrame toFrame(const QBitArray &cells, int form);
