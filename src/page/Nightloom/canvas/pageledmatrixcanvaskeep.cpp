// What is kept of the canvas page's drawings from one start of the program to the next.

#include <algorithm>

#include <QFileInfo>

#include "controls/messagebox.h"
#include "ledmatrix/animationfile.h"
#include "ledmatrix/matrixframe.h"
#include "page/Nightloom/canvas/frametabs.h"
#include "page/Nightloom/canvas/pageledmatrixcanvas.h"

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

AnimationState pageLEDMatrixCanvas::stateOf(const QByteArrayList &frames, const MatrixForm &form)
{
    AnimationState state;
    for (const QByteArray &digits : frames) {
        MatrixFrame cells(form);
        cells.setDigits(digits);
        state.frames.push_back({m_nextId++, state.nextNumber++, toBits(cells)});
    }
    return state;
}

/// Shows what was saved when the program ran last, in the form that it was saved with. It is only looked at: a file
/// that is something else stays as it is until the user saves.
void pageLEDMatrixCanvas::restoreSaved()
{
    const QFileInfo file{QLatin1String(kDataFile)};
    if (!file.exists() || file.size() == 0)
        return;
    const MatrixForm *form = formOfSize(file.size(), m_form);
    ReadAnimation saved;
    if (form)
        saved = readAnimation(QLatin1String(kDataFile), form->cells(), kMostFramesSaved);
    if (!isDrawing(saved.frames)) {
        const QString text = QObject::tr("%1 holds no saved drawing. It stays as it is until you save.");
        return m_work->showNotice(text.arg(QLatin1String(kDataFile)));
    }
    AnimationHistory history(stateOf(saved.frames, *form));
    history.keep();
    m_histories.insert_or_assign(form, std::move(history));
    if (form != m_form)
        return;
    m_tabs->apply(m_history->state(), 0);
    updateButtons();
}

bool pageLEDMatrixCanvas::mayLeave()
{
    endStrokes();
    const bool allKept = std::all_of(m_histories.begin(), m_histories.end(),
                                     [](const auto &drawing) { return drawing.second.isKept(); });
    if (allKept)
        return true;
    switch (askLeaving()) {
    case Leaving::Save:
        return keepUnsaved();
    case Leaving::DoNotSave:
        return true;
    case Leaving::Stay:
        break;
    }
    return false;
}

/// False when a drawing could not be kept, of which the user has been told.
bool pageLEDMatrixCanvas::keepUnsaved()
{
    return std::all_of(m_histories.begin(), m_histories.end(), [this](auto &drawing) {
        return drawing.second.isKept() || keepInFile(drawing.first, drawing.second);
    });
}

/// The form that is used has the data file; a drawing of another form would take its place there, and so gets a file
/// that the user names. At once, for the program ends.
bool pageLEDMatrixCanvas::keepInFile(const MatrixForm *form, AnimationHistory &history)
{
    const QString fileName = form == m_form ? QLatin1String(kDataFile) : askSaveFile();
    if (fileName.isEmpty())
        return false;
    QByteArrayList frames;
    for (const AnimationFrame &frame : history.state().frames)
        frames.append(toFrame(frame.cells, *form).digits());
    const QString error = writeAnimation(fileName, frames, [](int) { return true; });
    if (!error.isEmpty()) {
        warn(QObject::tr("The file cannot be written: %1").arg(error));
        return false;
    }
    history.keep();
    return true;
}

pageLEDMatrixCanvas::Leaving pageLEDMatrixCanvas::askLeaving()
{
    const bool seen = window()->isVisible() && !window()->isMinimized(); // a box would go to the tray with it
    const int answer =
        askOneOf(QObject::tr("Custom Mode"), QObject::tr("The drawn frames are not saved. Save them now?"),
                 {QObject::tr("Save"), QObject::tr("Do not save"), QObject::tr("Cancel")}, seen ? window() : nullptr);
    constexpr Leaving kAnswers[] = {Leaving::Save, Leaving::DoNotSave, Leaving::Stay};
    return kAnswers[answer];
}
