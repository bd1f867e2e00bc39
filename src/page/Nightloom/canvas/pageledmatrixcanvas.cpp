#include "page/Nightloom/canvas/pageledmatrixcanvas.h"

#include <utility>

#include <QHBoxLayout>
#include <QPushButton>

#include "ledmatrix/animationfile.h"
#include "page/Nightloom/canvas/canvastools.h"
#include "page/Nightloom/canvas/frametabs.h"
#include "page/Nightloom/parts/matrixeditor.h"
#include "page/engine/labels.h"
#include "page/engine/note.h"
#include "page/engine/pagehead.h"
#include "usb-hid/accessorylink.h"
#include "usb-hid/accessoryupload.h"

pageLEDMatrixCanvas::pageLEDMatrixCanvas(AccessoryCheck ensureConnected, QWidget *parent)
    : LongWorkPage(QStringLiteral("pageLEDMatrixCanvas"), LABEL("Custom Mode"),
                   LABEL("Draw frames cell by cell; the matrix plays them in a loop."), std::move(ensureConnected),
                   parent),
      CanvasQuestions(this), m_tabs(new FrameTabs(this)),
      m_files(
          m_drawings, *m_tabs, *work(), *this, [this] { return this->ensureConnected(); }, &sendAnmateData),
      m_count(makeNote(this))
{
    head()->corner()->addWidget(m_count, 0, Qt::AlignTop);
    layOut(m_tabs);
    connect(&m_files, &CanvasFiles::begins, this, &pageLEDMatrixCanvas::endStrokes);
    connect(&m_files, &CanvasFiles::changed, this, &pageLEDMatrixCanvas::updateButtons);
    connect(&m_files, &CanvasFiles::ended, this, &pageLEDMatrixCanvas::followMatrixForm);
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
    endStrokes(); // the cells, which go last, would end it in a page that is gone
}

void pageLEDMatrixCanvas::buildTools(QVBoxLayout *column, QWidget *tools)
{
    m_tools = new CanvasTools(*this, m_player, texts(), column, tools);
    connect(m_tools, &CanvasTools::modeChosen, this,
            [this](int index) { m_files.setMemory(kAnimationMemories[index]); });
    connect(m_tools, &CanvasTools::cellSizeChosen, m_tabs, &FrameTabs::setCellSize);
    connect(m_tools, &CanvasTools::onionSkinSwitched, m_tabs, &FrameTabs::setOnionSkin);
}

void pageLEDMatrixCanvas::followMatrixForm()
{
    const MatrixForm *form = accessoryLink.form;
    if (!isBusy() && m_drawings.form() != form)
        useForm(form);
}

/// The animation of a form is drawn on, and that of another waits.
void pageLEDMatrixCanvas::useForm(const MatrixForm *form)
{
    endStrokes();
    m_drawings.use(form);
    m_tabs->setForm(form);
    m_tabs->apply(m_drawings.state(), m_drawings.state().place);
    m_tools->useForm(form);
    m_files.forgetSaved(); // the data file is not of this form's making
    updateButtons();
}

void pageLEDMatrixCanvas::updateInterfaceData()
{
    followMatrixForm();
}

void pageLEDMatrixCanvas::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    if (!std::exchange(m_restored, true))
        m_files.restoreSaved();
    followMatrixForm();
}

void pageLEDMatrixCanvas::hideEvent(QHideEvent *event)
{
    QLabel::hideEvent(event);
    m_player.stop(); // nobody sees it
}

void pageLEDMatrixCanvas::updateControlText()
{
    LongWorkPage::updateControlText();
    m_tabs->updateControlText();
    updateButtons();
}

bool pageLEDMatrixCanvas::mayLeave()
{
    endStrokes();
    return m_files.mayLeave();
}

void pageLEDMatrixCanvas::importAnimate()
{
    m_files.import(kImportStep);
}

void pageLEDMatrixCanvas::importAligned()
{
    if (m_drawings.form())
        m_files.import(m_drawings.form()->cells());
}

bool pageLEDMatrixCanvas::sendAnmateData(const LEDJob &job, const std::function<void(int)> &progress)
{
    return uploadAnimation(job.fileName, job.memory->number, progress, job.stop);
}

QPushButton *pageLEDMatrixCanvas::button(const char *label) const
{
    return findChild<QPushButton *>(QLatin1String(label));
}

/// What is being drawn or played ends: every action begins with the animation as the user has drawn it.
void pageLEDMatrixCanvas::endStrokes()
{
    m_player.stop();
    if (MatrixEditor *editor = m_tabs->currentEditor())
        editor->finishStroke();
}

/// Whether there is a frame to change, and nothing that forbids it.
bool pageLEDMatrixCanvas::mayChange()
{
    endStrokes();
    return !isBusy() && m_tabs->count() > 0;
}

bool pageLEDMatrixCanvas::mayAddFrame()
{
    if (!m_drawings.form())
        return false;
    if (frameCounter() <= kMaximumFrames) // one more than the maximum, and meant
        return true;
    warn(QObject::tr("Maximum 192 frames"));
    return false;
}

void pageLEDMatrixCanvas::addFrame()
{
    endStrokes();
    if (isBusy() || !mayAddFrame())
        return;
    m_drawings.add();
    showChange(m_drawings.state().place);
}

void pageLEDMatrixCanvas::duplicateFrame()
{
    if (!mayChange() || !mayAddFrame())
        return;
    m_drawings.duplicate(m_tabs->currentIndex());
    showChange(m_drawings.state().place);
}

void pageLEDMatrixCanvas::deleteFrame()
{
    if (!mayChange())
        return;
    m_drawings.remove(m_tabs->currentIndex());
    showChange(m_drawings.state().place);
}

void pageLEDMatrixCanvas::cleanFrame()
{
    if (mayChange() && m_drawings.clean(m_tabs->currentIndex()))
        showChange(m_drawings.state().place);
}

void pageLEDMatrixCanvas::undo()
{
    endStrokes();
    if (!isBusy() && m_drawings.history().canUndo())
        showChange(m_drawings.history().undo());
}

void pageLEDMatrixCanvas::redo()
{
    endStrokes();
    if (!isBusy() && m_drawings.history().canRedo())
        showChange(m_drawings.history().redo());
}

void pageLEDMatrixCanvas::togglePreview()
{
    if (m_player.isPlaying())
        return m_player.stop();
    endStrokes();
    m_player.play(m_tabs->count(), m_tabs->currentIndex());
}

void pageLEDMatrixCanvas::showChange(int place)
{
    m_tabs->apply(m_drawings.state(), place);
    onChanged();
}

void pageLEDMatrixCanvas::onEdited(int index)
{
    m_drawings.edit(index, m_tabs->editor(index)->frame()); // which shows it already
    onChanged();
}

void pageLEDMatrixCanvas::onChanged()
{
    m_files.forgetSaved(); // what the data file holds is no longer what is drawn
    work()->showNotice({});
    updateButtons();
}

QString pageLEDMatrixCanvas::countText() const
{
    const int frames = m_tabs->count();
    const int room = CanvasFiles::framesWithRoom(m_drawings.form());
    if (frames <= room)
        return QObject::tr("Frames: %1").arg(frames);
    return QObject::tr("Frames: %1, of which the accessory takes %2").arg(frames).arg(room);
}

void pageLEDMatrixCanvas::updateButtons()
{
    m_count->setText(countText());
    m_tools->show({m_tabs->count() > 0, m_drawings.history().canUndo(), m_drawings.history().canRedo(),
                   m_files.isSaved(), m_player.isPlaying()});
}
