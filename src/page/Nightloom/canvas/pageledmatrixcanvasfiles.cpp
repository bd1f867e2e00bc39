// The canvas page's long work: files and the upload; and what is kept of the drawings when the program ends.

#include <algorithm>
#include <utility>

#include <QFileInfo>

#include "controls/filequestion.h"
#include "controls/messagebox.h"
#include "ledmatrix/animationfile.h"
#include "ledmatrix/matrixform.h"
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
    if (m_drawings.form())
        import(m_drawings.form()->cells());
}

void pageLEDMatrixCanvas::import(int frameCells)
{
    if (isBusy() || !m_drawings.form())
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
    if (isBusy() || !m_saved || !ensureConnected())
        return;
    beginWork(LEDThread::Upload, m_dataFile, false);
    tellWhatIsCut();
}

/// The device has room for so many bytes, which are fewer frames of a bigger form.
void pageLEDMatrixCanvas::tellWhatIsCut()
{
    const MatrixForm *form = m_drawings.form();
    const qint64 frames = form ? QFileInfo(m_dataFile).size() / form->cells() : 0;
    if (frames > framesWithRoom(form))
        work()->showNotice(
            QObject::tr("The accessory takes %1 of the %2 frames.").arg(framesWithRoom(form)).arg(frames));
}

bool pageLEDMatrixCanvas::sendAnmateData(const LEDJob &job, const std::function<void(int)> &progress)
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
    work()->begin(stepsOf(state, m_dataFile));
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
    work()->showProgress(value);
}

void pageLEDMatrixCanvas::endWork(bool complete)
{
    const bool uploads = m_thread.state() == LEDThread::Upload;
    if (m_thread.state() == LEDThread::Export && complete) {
        m_drawings.history().keep();
        m_taken = true;
    }
    if (m_taken && m_saves)
        m_saved = m_tabs->count() > 0;
    if (!uploads && !m_taken) {
        m_dataFile = m_fileBefore; // the file that is named has nothing to do with what is drawn
        tellCancelled();
    }
    updateButtons();
    if (uploads)
        endUpload(complete);
    else
        work()->end(m_taken);
    followMatrixForm();
}

/// Neither sets the mark of what is saved nor takes it away: what is written then is the imported file.
void pageLEDMatrixCanvas::importFrames()
{
    if (work()->isCancelled())
        return;
    const ReadAnimation animation = readAnimation(m_dataFile, m_importCells);
    if (!animation.error.isEmpty())
        return fail(animation.error);
    const double sum = static_cast<double>(m_tabs->count()) + static_cast<double>(animation.frames.size());
    const int step = std::max(static_cast<int>(0.1 * sum), 1);
    m_drawings.replace(animation.frames);
    m_tabs->apply(m_drawings.state(), 0, [&](int removed) {
        if (removed % step != 0)
            return;
        work()->showProgress(static_cast<int>(removed / sum * 100.0));
        work()->repaint(); // nothing else comes to be painted before the import has ended
    });
    m_drawings.history().keep();
    m_taken = true;
    tellWhatWasTaken(animation.framesInFile);
}

void pageLEDMatrixCanvas::tellWhatWasTaken(qint64 framesInFile)
{
    const int taken = m_tabs->count();
    if (taken == 0)
        work()->showNotice(QObject::tr("The file holds no whole frame."));
    else if (framesInFile > taken)
        work()->showNotice(
            QObject::tr("The file holds %1 frames; the first %2 were taken.").arg(framesInFile).arg(taken));
}

void pageLEDMatrixCanvas::fail(const QString &error)
{
    const QString text = m_thread.state() == LEDThread::Export ? QObject::tr("The file cannot be written: %1")
                                                               : QObject::tr("The file cannot be read: %1");
    work()->fail(text.arg(error.isEmpty() ? m_dataFile : error));
}

void pageLEDMatrixCanvas::restoreSaved()
{
    switch (m_drawings.restore(QLatin1String(kDataFile))) {
    case Drawings::Restored::Nothing:
    case Drawings::Restored::InAnotherForm:
        break;
    case Drawings::Restored::Shown:
        m_tabs->apply(m_drawings.state(), 0);
        updateButtons();
        break;
    case Drawings::Restored::NoDrawing:
        work()->showNotice(
            QObject::tr("%1 holds no saved drawing. It stays as it is until you save.").arg(QLatin1String(kDataFile)));
    }
}

bool pageLEDMatrixCanvas::mayLeave()
{
    endStrokes();
    if (m_drawings.areKept())
        return true;
    switch (askLeaving()) {
    case Leaving::Save:
        return m_drawings.keep(
            [this](const MatrixForm &form, const QByteArrayList &digits) { return keepInFile(form, digits); });
    case Leaving::DoNotSave:
        return true;
    case Leaving::Stay:
        break;
    }
    return false;
}

/// The form that is used has the data file; a drawing of another form would take its place there, and so gets a file
/// that the user names. At once, for the program ends. False when it could not be kept, of which the user was told.
bool pageLEDMatrixCanvas::keepInFile(const MatrixForm &form, const QByteArrayList &digits)
{
    const QString fileName = &form == m_drawings.form() ? QLatin1String(kDataFile) : askSaveFile();
    if (fileName.isEmpty())
        return false;
    const QString error = writeAnimation(fileName, digits, [](int) { return true; });
    if (!error.isEmpty())
        warn(QObject::tr("The file cannot be written: %1").arg(error));
    return error.isEmpty();
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
