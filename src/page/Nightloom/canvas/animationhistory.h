#pragma once

#include <cstddef>
#include <deque>
#include <vector>

#include <QBitArray>

class MatrixFrame;
struct MatrixForm;

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
    /// What the states may take together; the oldest ones beyond that are forgotten. A change of one cell takes about
    /// 6 KB in the longest animation, less than 1 KB in a short one.
    static constexpr std::size_t kMaximumBytes = 64 * 1024 * 1024;

    explicit AnimationHistory(AnimationState first) { append(std::move(first)); }

    const AnimationState &state() const { return m_steps[m_now].state; }

    /// A change: what had been taken back before is gone.
    void push(AnimationState state);

    bool canUndo() const { return m_now > 0; }
    bool canRedo() const { return m_now + 1 < m_steps.size(); }

    /// Go one state back or on; where there is none nothing happens. The place to show: where the difference lies.
    int undo();
    int redo();

    /// The animation of now is in a file.
    void keep() { m_kept = state().frames; }

    /// Whether nothing of now is lost with the program: a file holds it, or no cell of it is lit.
    bool isKept() const;

private:
    struct Step
    {
        AnimationState state;
        std::size_t bytes; ///< that it does not share with the state before
    };

    void append(AnimationState state);

    std::deque<Step> m_steps;
    std::size_t m_bytes = 0; ///< of all steps
    std::size_t m_now = 0;
    std::vector<AnimationFrame> m_kept;
};

/// The cells of a frame in frame order, and back.
QBitArray toBits(const MatrixFrame &frame);
MatrixFrame toFrame(const QBitArray &cells, const MatrixForm &form);
