#include "page/Nightloom/canvas/drawings.h"

#include <algorithm>

#include <QFileInfo>

#include "ledmatrix/animationfile.h"
#include "ledmatrix/matrixframe.h"

namespace {

constexpr int kMostFramesSaved = kMaximumFrames + 1; // as many as can be drawn

/// The form whose whole frames a file of this size holds, of several the one that is used; null when it is no size of a
/// saved drawing.
const MatrixForm *formOfSize(qint64 bytes, const MatrixForm *used)
{
    const auto fits = [bytes](const MatrixForm &form) {
        return bytes % form.cells() == 0 && bytes / form.cells() <= kMostFramesSaved;
    };
    if (used && fits(*used))
        return used;
    const auto forms = matrixForms();
    const auto form = std::find_if(forms.begin(), forms.end(), fits);
    return form == forms.end() ? nullptr : &*form;
}

bool isDrawing(const QByteArrayList &frames)
{
    return !frames.isEmpty() && std::all_of(frames.begin(), frames.end(), [](const QByteArray &digits) {
        return digits.count('0') + digits.count('1') == digits.size();
    });
}

} // namespace

void Drawings::use(const MatrixForm *form)
{
    m_form = form;
    auto known = m_all.find(form);
    if (known == m_all.end()) {
        AnimationState first;
        if (form)
            first.frames.push_back(newFrame(first, QBitArray(form->cells())));
        known = m_all.emplace(form, AnimationHistory(std::move(first))).first;
    }
    m_history = &known->second;
}

AnimationFrame Drawings::newFrame(AnimationState &state, QBitArray cells)
{
    return {m_nextId++, state.nextNumber++, std::move(cells)};
}

/// The animation of now, about to be changed at a place.
AnimationState Drawings::stateAt(int place) const
{
    AnimationState state = m_history->state();
    state.place = place;
    return state;
}

void Drawings::add()
{
    AnimationState next = stateAt(static_cast<int>(state().frames.size()));
    next.frames.push_back(newFrame(next, QBitArray(m_form->cells())));
    m_history->push(std::move(next));
}

void Drawings::duplicate(int place)
{
    AnimationState next = stateAt(place + 1);
    AnimationFrame copy = newFrame(next, next.frames[static_cast<std::size_t>(place)].cells);
    next.frames.insert(next.frames.begin() + next.place, std::move(copy));
    m_history->push(std::move(next));
}

void Drawings::remove(int place)
{
    AnimationState next = stateAt(place);
    next.frames.erase(next.frames.begin() + place);
    if (next.frames.empty())
        next.nextNumber = 1;
    m_history->push(std::move(next));
}

bool Drawings::clean(int place)
{
    AnimationState next = stateAt(place);
    QBitArray &cells = next.frames[static_cast<std::size_t>(place)].cells;
    if (cells.count(true) == 0)
        return false; // nothing that could be taken back
    cells.fill(false);
    m_history->push(std::move(next));
    return true;
}

void Drawings::edit(int place, const MatrixFrame &frame)
{
    AnimationState next = stateAt(place);
    next.frames[static_cast<std::size_t>(place)].cells = toBits(frame);
    m_history->push(std::move(next));
}

void Drawings::replace(const QByteArrayList &digits)
{
    m_history->push(stateOf(digits, *m_form));
}

AnimationState Drawings::stateOf(const QByteArrayList &digits, const MatrixForm &form)
{
    AnimationState state;
    for (const QByteArray &each : digits) {
        MatrixFrame cells(form);
        cells.setDigits(each);
        state.frames.push_back(newFrame(state, toBits(cells)));
    }
    return state;
}

bool Drawings::areKept() const
{
    return std::all_of(m_all.begin(), m_all.end(), [](const auto &drawing) { return drawing.second.isKept(); });
}

bool Drawings::keep(const std::function<bool(const MatrixForm &form, const QByteArrayList &digits)> &write)
{
    return std::all_of(m_all.begin(), m_all.end(), [&write](auto &drawing) {
        auto &[form, history] = drawing;
        if (history.isKept())
            return true;
        QByteArrayList digits;
        for (const AnimationFrame &frame : history.state().frames)
            digits.append(toFrame(frame.cells, *form).digits());
        if (!write(*form, digits))
            return false;
        history.keep();
        return true;
    });
}

/// The file is only looked at: one that is something else stays as it is.
Drawings::Restored Drawings::restore(const QString &fileName)
{
    const QFileInfo file(fileName);
    if (!file.exists() || file.size() == 0)
        return Restored::Nothing;
    const MatrixForm *form = formOfSize(file.size(), m_form);
    ReadAnimation saved;
    if (form)
        saved = readAnimation(fileName, form->cells(), kMostFramesSaved);
    if (!isDrawing(saved.frames))
        return Restored::NoDrawing;
    AnimationHistory history(stateOf(saved.frames, *form));
    history.keep();
    m_all.insert_or_assign(form, std::move(history));
    return form == m_form ? Restored::Shown : Restored::InAnotherForm;
}
