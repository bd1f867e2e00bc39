#include "page/Nightloom/canvas/pageledmatrixcanvas.h"

#include <utility>

#include <QPushButton>

#include "controls/sliderwidget.h"
#include "ledmatrix/animationfile.h"
#include "page/Nightloom/canvas/frametabs.h"
#include "page/Nightloom/parts/matrixeditor.h"
#include "usb-hid/accessorylink.h"
#include "usb-hid/accessoryupload.h"

namespace {

/// The animation that the page opens with: one dark frame, which the counter counts and which is called 1.
AnimationState firstState(const MatrixForm *form, int &nextId)
{
    AnimationState state;
    if (form)
        state.frames.push_back({nextId++, state.nextNumber++, QBitArray(form->cells())});
    return state;
}

} // namespace

int pageLEDMatrixCanvas::framesWithRoom(const MatrixForm *form)
{
    return form ? static_cast<int>(kAnimationCap / form->cells()) : 0;
}

pageLEDMatrixCanvas::pageLEDMatrixCanvas(AccessoryCheck ensureConnected, QWidget *parent)
    : QLabel(parent), m_ensureConnected(std::move(ensureConnected)), m_thread(*this), m_tabs(new FrameTabs(this)),
      m_count(new QLabel(this)), m_work(new WorkPanel(m_texts, this))
{
    buildForm();
    bindShortcuts();
    connect(&m_thread, &LEDThread::progress, this, &pageLEDMatrixCanvas::onProgress);
    connect(&m_thread, &LEDThread::workEnded, this, &pageLEDMatrixCanvas::endWork);
    connect(m_tabs, &FrameTabs::edited, this, &pageLEDMatrixCanvas::onEdited);
    connect(m_tabs, &FrameTabs::currentChanged, this, [this] { m_player.stop(); });
    connect(&m_player, &FramePlayer::frameDue, m_tabs, &FrameTabs::showInstead);
    connect(&m_player, &FramePlayer::playingChanged, this, [this](bool playing) {
        if (!playing)
            m_tabs->showInstead(-1);
        updateButtons();
    });
    useForm(accessoryLink.form);
}

pageLEDMatrixCanvas::~pageLEDMatrixCanvas()
{
    endStrokes();  // the cells, which go last, would end it in a page that is gone
    stopUploads(); // the window would wait for them
    m_thread.wait();
}

void pageLEDMatrixCanvas::followMatrixForm()
{
    const MatrixForm *form = accessoryLink.form;
    if (!isBusy() && m_form != form)
        useForm(form);
}

/// The animation of a form is drawn on, and that of another waits.
void pageLEDMatrixCanvas::useForm(const MatrixForm *form)
{
    endStrokes();
    m_form = form;
    m_history = &m_histories.try_emplace(m_form, firstState(m_form, m_nextId)).first->second;
    m_aligned->setVisible(m_form && m_form->cells() != kImportStep);
    showAlignedNote();
    m_tabs->setForm(m_form);
    m_tabs->apply(m_history->state(), m_history->state().place);
    m_cellSize->setValue((m_form ? *m_form : matrixForms().front()).cellSize);
    m_saved = false; // the data file is not of this form's making
    updateButtons();
}

void pageLEDMatrixCanvas::showAlignedNote()
{
    m_alignedNote->setText(m_alignedPattern.arg(m_form ? m_form->cells() : 0));
}

void pageLEDMatrixCanvas::updateInterfaceData()
{
    followMatrixForm();
}

void pageLEDMatrixCanvas::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    if (!std::exchange(m_restored, true))
        restoreSaved();
    followMatrixForm();
}

void pageLEDMatrixCanvas::hideEvent(QHideEvent *event)
{
    QLabel::hideEvent(event);
    m_player.stop(); // nobody sees it
}

void pageLEDMatrixCanvas::updateControlText()
{
    m_texts.retranslate();
    m_tabs->updateControlText();
    updateButtons();
}

QPushButton *pageLEDMatrixCanvas::button(const char *label) const
{
    return findChild<QPushButton *>(QLatin1String(label));
}

bool pageLEDMatrixCanvas::mayAddFrame()
{
    if (!m_form)
        return false;
    if (frameCounter() <= kMaximumFrames) // one more than the maximum, and meant
        return true;
    warn(QObject::tr("Maximum 192 frames"));
    return false;
}

AnimationFrame pageLEDMatrixCanvas::newFrame(AnimationState &state)
{
    return {m_nextId++, state.nextNumber++, QBitArray(m_form->cells())};
}

void pageLEDMatrixCanvas::addFrame()
{
    endStrokes();
    if (isBusy() || !mayAddFrame())
        return;
    AnimationState state = m_history->state();
    state.place = static_cast<int>(state.frames.size());
    state.frames.push_back(newFrame(state));
    change(std::move(state));
}

void pageLEDMatrixCanvas::duplicateFrame()
{
    endStrokes();
    if (isBusy() || m_tabs->count() == 0 || !mayAddFrame())
        return;
    AnimationState state = m_history->state();
    const int original = m_tabs->currentIndex();
    AnimationFrame copy = newFrame(state);
    copy.cells = state.frames[static_cast<std::size_t>(original)].cells;
    state.place = original + 1;
    state.frames.insert(state.frames.begin() + state.place, std::move(copy));
    change(std::move(state));
}

void pageLEDMatrixCanvas::deleteFrame()
{
    endStrokes();
    if (isBusy() || m_tabs->count() == 0)
        return;
    AnimationState state = m_history->state();
    state.place = m_tabs->currentIndex();
    state.frames.erase(state.frames.begin() + state.place);
    if (state.frames.empty())
        state.nextNumber = 1;
    change(std::move(state));
}

void pageLEDMatrixCanvas::cleanFrame()
{
    endStrokes();
    if (isBusy() || m_tabs->count() == 0)
        return;
    AnimationState state = m_history->state();
    state.place = m_tabs->currentIndex();
    QBitArray &cells = state.frames[static_cast<std::size_t>(state.place)].cells;
    if (cells.count(true) == 0)
        return; // nothing that could be taken back
    cells.fill(false);
    change(std::move(state));
}

void pageLEDMatrixCanvas::undo()
{
    endStrokes();
    if (isBusy() || !m_history->canUndo())
        return;
    const int place = m_history->undo();
    m_tabs->apply(m_history->state(), place);
    onChanged();
}

void pageLEDMatrixCanvas::redo()
{
    endStrokes();
    if (isBusy() || !m_history->canRedo())
        return;
    const int place = m_history->redo();
    m_tabs->apply(m_history->state(), place);
    onChanged();
}

void pageLEDMatrixCanvas::togglePreview()
{
    if (m_player.isPlaying())
        return m_player.stop();
    endStrokes();
    m_player.play(m_tabs->count(), m_tabs->currentIndex());
}

/// What is being drawn or played ends: every action begins with the animation as the user has drawn it.
void pageLEDMatrixCanvas::endStrokes()
{
    m_player.stop();
    if (MatrixEditor *editor = m_tabs->currentEditor())
        editor->finishStroke();
}

void pageLEDMatrixCanvas::change(AnimationState state)
{
    m_history->push(std::move(state));
    m_tabs->apply(m_history->state(), m_history->state().place);
    onChanged();
}

void pageLEDMatrixCanvas::onEdited(int index)
{
    AnimationState state = m_history->state();
    state.place = index;
    state.frames[static_cast<std::size_t>(index)].cells = toBits(m_tabs->editor(index)->frame());
    m_history->push(std::move(state)); // the editor shows it already
    onChanged();
}

void pageLEDMatrixCanvas::onChanged()
{
    m_saved = false; // what the data file holds is no longer what is drawn
    m_work->showNotice({});
    updateButtons();
}

QString pageLEDMatrixCanvas::countText() const
{
    const int frames = m_tabs->count();
    const int room = framesWithRoom(m_form);
    if (frames <= room)
        return QObject::tr("Frames: %1").arg(frames);
    return QObject::tr("Frames: %1, of which the accessory takes %2").arg(frames).arg(room);
}

void pageLEDMatrixCanvas::updateButtons()
{
    const bool any = m_tabs->count() > 0;
    m_count->setText(countText());
    for (const char *label : {"Duplicate Frame", "Delete Frame", "Clean Frame", "Preview"})
        button(label)->setEnabled(any);
    button("Undo")->setEnabled(m_history->canUndo());
    button("Redo")->setEnabled(m_history->canRedo());
    button("Write Animate")->setEnabled(m_saved);
    button("Preview")->setChecked(m_player.isPlaying());
    m_cellSize->setEnabled(any);
}
