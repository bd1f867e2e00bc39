#pragma once

#include <functional>
#include <map>

#include <QByteArrayList>

#include "page/Nightloom/canvas/animationhistory.h"

/// The animations that are drawn, one a form: an animation of one cannot be shown in another. What each change leads to
/// stands in the history of the form that is drawn on.
class Drawings
{
public:
    /// From now on this form's animation is drawn on, and the others wait. The first time it is one dark frame; with
    /// null it has none.
    void use(const MatrixForm *form);

    const MatrixForm *form() const { return m_form; }

    AnimationHistory &history() { return *m_history; }
    const AnimationState &state() const { return m_history->state(); }

    // Changes; the place is that of a frame which there is. False when nothing would change.

    void add();
    void duplicate(int place);
    void remove(int place);
    bool clean(int place);
    void edit(int place, const MatrixFrame &frame);

    /// Takes the place of the whole animation.
    void replace(const QByteArrayList &digits);

    /// Whether nothing of any of them is lost with the program.
    bool areKept() const;

    /// Writes those that are not kept; false as soon as one could not be written.
    bool keep(const std::function<bool(const MatrixForm &form, const QByteArrayList &digits)> &write);

    enum class Restored { Nothing, Shown, InAnotherForm, NoDrawing };

    /// Takes what a file holds that was saved when the program ran last, in the form that it was saved with.
    Restored restore(const QString &fileName);

private:
    AnimationState stateOf(const QByteArrayList &digits, const MatrixForm &form);
    AnimationFrame newFrame(AnimationState &state, QBitArray cells);
    AnimationState stateAt(int place) const;

    const MatrixForm *m_form = nullptr;
    int m_nextId = 0;
    std::map<const MatrixForm *, AnimationHistory> m_all;
    AnimationHistory *m_history = nullptr; ///< of the form that is drawn on
};
