// The canvas page's long work: files and the upload.

#include <algorithm>
#include <utility>

#include <QFileInfo>

#include "controls/filequestion.h"
#include "controls/messagebox.h"
#include "ledmatrix/animationfile.h"
#include "ledmatrix/matrixframe.h"
#include "page/Nightloom/canvas/frametabs.h"
#include "page/Nightloom/canvas/pageledmatrixcanvas.h"
#include "page/engine/labels.h"
#include "platform/ending.h"
#include "usb-hid/accessoryupload.h"

namespace {

/// The parts of a state's work.
std::vector<WorkStep> stepsOf(LEDThread::State state, const QString &fileName)
{
    if (state != LEDThread::Upload)
        return {{"", 0, kProgressEnd, platform::milliseconds(0)}};
    const qint64 bytes = std::min(QFileInfo(fileName).size(), kAnimationCap);
    return {{LABEL("Erase"), 0, kAnimationPrepared, kAnimationWaits},
            {LABEL("Write Data"), kAnimationPrepared, kAnimationWritten, expectedWriteTime(bytes)}};
}

QString fileFilter()
{
    return QObject::tr("CSV file (*.csv);");
}

} // namespace

QString pageLEDMatrixCanvas::askSaveFile()
{
    return askForNewFile(window(), QObject::tr("Save File"), QString(), fileFilter(), QStringLiteral("csv"));
}

QString pageLEDMatrixCanvas::askOpenFile()
{
    return askForFile(window(), QObject::tr("Select File"), QString(), fileFilter());
}

void pageLEDMatrixCanvas::warn(const QString &text)
{
    if (platform::programEnds()) // it closed the question for the file
        return;
    const QString title = QObject::tr("Warning");
    showMessage(QMessageBox::Warning, title, text, QObject::tr("OK"), QMessageBox::YesRole, window());
}

void pageLEDMatrixCanvas::saveAnimate()
{
    beginWork(LEDThread::Export, QLatin1String(kDataFile), true);
}

void pageLEDMatrixCanvas::exportAnimate()
{
    if (isBusy())
        return;
    const QString fileName = askSaveFile();
    if (fileName.isEmpty())
        return warn(QObject::tr("No file path selected."));
    beginWork(LEDThread::Export, fileName, false);
}

void pageLEDMatrixCanvas::importAnimate()
{
    import(kImportStep);
}

void pageLEDMatrixCanvas::importAligned()
{
    if (m_form)
        import(m_form->cells());
}

void pageLEDMatrixCanvas::import(int frameCells)
{
    if (isBusy())
        return;
    const QString fileName = askOpenFile();
    if (fileName.isEmpty())
        return warn(QObject::tr("No file path selected."));
    const QFileInfo file(fileName);
    if (file.exists() && file.size() == 0)
        return warn(QObject::tr("File is null."));
    m_importCells = frameCells;
    beginWork(LEDThread::Import, fileName, false);
}

void pageLEDMatrixCanvas::writeAnimate()
{
    if (isBusy() || !m_saved || !m_ensureConnected())
        return;
    beginWork(LEDThread::Upload, m_dataFile, false);
    tellWhatIsCut();
}

/// The device has room for so many bytes, which are fewer frames of the bigger form.
void pageLEDMatrixCanvas::tellWhatIsCut()
{
    const qint64 frames = m_form ? QFileInfo(m_dataFile).size() / m_form->cells() : 0;
    if (frames > framesWithRoom(m_form))
        m_work->showNotice(
            QObject::tr("The accessory takes %1 of the %2 frames.").arg(framesWithRoom(m_form)).arg(frames));
}

bool pageLEDMatrixCanvas::sendAnmateData(const LEDJob &job, const std::function<void(int)> &progress) const
{
    return uploadAnimation(job.fileName, job.mode, progress, job.stop);
}

void pageLEDMatrixCanvas::beginWork(LEDThread::State state, QString fileName, bool saves)
{
    if (isBusy())
        return;
    endStrokes();
    m_fileBefore = std::exchange(m_dataFile, std::move(fileName));
    m_saves = saves;
    m_taken = false;
    m_work->begin(stepsOf(state, m_dataFile));
    m_thread.begin(state, {m_tabs->digits(), m_dataFile, m_mode, uploadStop()});
}

/// The thread tells when it has ended; an import that has not begun yet does not begin any more.
void pageLEDMatrixCanvas::cancelWork()
{
    m_thread.requestInterruption();
    if (m_thread.state() == LEDThread::Upload)
        stopUploads();
}

void pageLEDMatrixCanvas::onProgress(int value)
{
    if (value == LEDThread::kImportNow)
        return importFrames();
    if (value == kProgressFailed)
        return fail(m_thread.error());
    m_work->showProgress(value);
}

void pageLEDMatrixCanvas::endWork(bool complete)
{
    if (m_thread.state() == LEDThread::Export && complete) {
        m_history->keep();
        m_taken = true;
    }
    if (m_taken && m_saves)
        m_saved = m_tabs->count() > 0;
    tellOutcome(complete);
    updateButtons();
    m_work->end(m_thread.state() == LEDThread::Upload ? complete : m_taken);
    followMatrixForm();
}

void pageLEDMatrixCanvas::tellOutcome(bool complete)
{
    const bool uploads = m_thread.state() == LEDThread::Upload;
    if (!uploads && !m_taken)
        m_dataFile = m_fileBefore; // the file that is named has nothing to do with what is drawn
    if (m_work->hasFailed())
        return;
    if (uploads && !complete)
        m_work->showNotice(QObject::tr("The accessory did not take everything."));
    else if (!uploads && !m_taken)
        m_work->showNotice(QObject::tr("Cancelled. Nothing was changed."));
}

/// Neither sets the mark of what is saved nor takes it away: what is written then is the imported file.
void pageLEDMatrixCanvas::importFrames()
{
    if (m_work->isCancelled())
        return;
    const ReadAnimation animation = readAnimation(m_dataFile, m_importCells);
    if (!animation.error.isEmpty())
        return fail(animation.error);
    AnimationState state = stateOf(animation.frames, *m_form);
    const double sum = static_cast<double>(m_tabs->count()) + static_cast<double>(animation.frames.size());
    const int step = std::max(static_cast<int>(0.1 * sum), 1);
    m_history->push(std::move(state));
    m_tabs->apply(m_history->state(), 0, [&](int removed) {
        if (removed % step != 0)
            return;
        m_work->showProgress(static_cast<int>(removed / sum * 100.0));
        m_work->repaint(); // nothing else comes to be painted before the import has ended
    });
    m_history->keep();
    m_taken = true;
    if (m_tabs->count() == 0)
        m_work->showNotice(QObject::tr("The file holds no whole frame."));
    else if (animation.framesInFile > m_tabs->count())
        m_work->showNotice(QObject::tr("The file holds %1 frames; the first %2 were taken.")
                               .arg(animation.framesInFile)
                               .arg(m_tabs->count()));
}

void pageLEDMatrixCanvas::fail(const QString &error)
{
    const QString text = m_thread.state() == LEDThread::Export ? QObject::tr("The file cannot be written: %1")
                                                               : QObject::tr("The file cannot be read: %1");
    m_work->fail(text.arg(error.isEmpty() ? m_dataFile : error));
}
