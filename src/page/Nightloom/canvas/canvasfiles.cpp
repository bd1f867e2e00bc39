#include "page/Nightloom/canvas/canvasfiles.h"

#include <algorithm>
#include <utility>

#include <QFileInfo>

#include "ledmatrix/animationfile.h"
#include "ledmatrix/matrixform.h"
#include "page/Nightloom/canvas/canvasquestions.h"
#include "page/Nightloom/canvas/drawings.h"
#include "page/Nightloom/canvas/frametabs.h"
#include "page/Nightloom/parts/workpanel.h"
#include "page/engine/labels.h"
#include "usb-hid/accessorylink.h"
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

} // namespace

int CanvasFiles::framesWithRoom(const MatrixForm *form)
{
    return form ? static_cast<int>(kAnimationCap / form->cells()) : 0;
}

CanvasFiles::CanvasFiles(Drawings &drawings, FrameTabs &tabs, WorkPanel &panel, CanvasQuestions &questions,
                         AccessoryCheck ensureConnected, LEDThread::Send send)
    : m_drawings(drawings), m_tabs(tabs), m_panel(panel), m_questions(questions),
      m_ensureConnected(std::move(ensureConnected)), m_thread(send)
{
    connect(&m_thread, &LEDThread::progress, this, &CanvasFiles::onProgress);
    connect(&m_thread, &LEDThread::workEnded, this, &CanvasFiles::endWork);
}

CanvasFiles::~CanvasFiles()
{
    stopUploads(); // the window would wait for them
    m_thread.wait();
}

bool CanvasFiles::isBusy() const
{
    return m_panel.isBusy();
}

void CanvasFiles::saveDrawing()
{
    beginWork(LEDThread::Export, QLatin1String(kDataFile), true);
}

void CanvasFiles::exportDrawing()
{
    if (isBusy())
        return;
    const QString fileName = m_questions.askSaveFile();
    if (fileName.isEmpty())
        return m_questions.warn(QObject::tr("No file path selected."));
    beginWork(LEDThread::Export, fileName, false);
}

void CanvasFiles::import(int frameCells)
{
    if (isBusy() || !m_drawings.form())
        return;
    const QString fileName = m_questions.askOpenFile();
    if (fileName.isEmpty())
        return m_questions.warn(QObject::tr("No file path selected."));
    const QFileInfo file(fileName);
    if (file.exists() && file.size() == 0)
        return m_questions.warn(QObject::tr("File is null."));
    m_importCells = frameCells;
    beginWork(LEDThread::Import, fileName, false);
}

void CanvasFiles::upload()
{
    if (isBusy() || !m_saved || !m_ensureConnected())
        return;
    beginWork(LEDThread::Upload, m_dataFile, false);
    tellWhatIsCut();
}

/// The device has room for so many bytes, which are fewer frames of a bigger form.
void CanvasFiles::tellWhatIsCut()
{
    const MatrixForm *form = m_drawings.form();
    const qint64 frames = form ? QFileInfo(m_dataFile).size() / form->cells() : 0;
    if (frames > framesWithRoom(form))
        m_panel.showNotice(
            QObject::tr("The accessory takes %1 of the %2 frames.").arg(framesWithRoom(form)).arg(frames));
}

void CanvasFiles::tellWhatIsKept()
{
    if (const QString error = m_thread.error(); !error.isEmpty())
        m_panel.showNotice(QObject::tr("The accessory has it, but Animate Mode cannot show it: %1").arg(error));
}

void CanvasFiles::beginWork(LEDThread::State state, QString fileName, bool saves)
{
    if (isBusy())
        return;
    Q_EMIT begins();
    m_fileBefore = std::exchange(m_dataFile, std::move(fileName));
    m_saves = saves;
    m_taken = false;
    m_panel.begin(stepsOf(state, m_dataFile));
    m_thread.begin(state, {m_tabs.digits(), m_dataFile, m_memory, m_drawings.form(), uploadStop()});
}

/// The thread tells when it has ended; an import that has not begun yet does not begin any more.
void CanvasFiles::cancel()
{
    m_thread.requestInterruption();
    if (m_thread.state() == LEDThread::Upload)
        stopUploads();
}

void CanvasFiles::onProgress(int value)
{
    if (value == LEDThread::kImportNow)
        return importFrames();
    if (value == kProgressFailed)
        return fail(m_thread.error());
    m_panel.showProgress(value);
}

void CanvasFiles::endWork(bool complete)
{
    const bool uploads = m_thread.state() == LEDThread::Upload;
    if (m_thread.state() == LEDThread::Export && complete) {
        m_drawings.history().keep();
        m_taken = true;
    }
    if (m_taken && m_saves)
        m_saved = m_tabs.count() > 0;
    if (!uploads && !m_taken) {
        m_dataFile = m_fileBefore; // the file that is named has nothing to do with what is drawn
        m_panel.tellCancelled();
    }
    Q_EMIT changed();
    if (uploads) {
        m_panel.endUpload(complete);
        tellWhatIsKept();
    } else {
        m_panel.end(m_taken);
    }
    Q_EMIT ended();
}

/// Neither sets the mark of what is saved nor takes it away: what is written then is the imported file.
void CanvasFiles::importFrames()
{
    if (m_panel.isCancelled())
        return;
    const ReadAnimation animation = readAnimation(m_dataFile, m_importCells);
    if (!animation.error.isEmpty())
        return fail(animation.error);
    const double sum = static_cast<double>(m_tabs.count()) + static_cast<double>(animation.frames.size());
    const int step = std::max(static_cast<int>(0.1 * sum), 1);
    m_drawings.replace(animation.frames);
    m_tabs.apply(m_drawings.state(), 0, [&](int removed) {
        if (removed % step != 0)
            return;
        m_panel.showProgress(static_cast<int>(removed / sum * 100.0));
        m_panel.repaint(); // nothing else comes to be painted before the import has ended
    });
    m_drawings.history().keep();
    m_taken = true;
    tellWhatWasTaken(animation.framesInFile);
}

void CanvasFiles::tellWhatWasTaken(qint64 framesInFile)
{
    const int taken = m_tabs.count();
    if (taken == 0)
        m_panel.showNotice(QObject::tr("The file holds no whole frame."));
    else if (framesInFile > taken)
        m_panel.showNotice(
            QObject::tr("The file holds %1 frames; the first %2 were taken.").arg(framesInFile).arg(taken));
}

void CanvasFiles::fail(const QString &error)
{
    const QString text = m_thread.state() == LEDThread::Export ? QObject::tr("The file cannot be written: %1")
                                                               : QObject::tr("The file cannot be read: %1");
    m_panel.fail(text.arg(error.isEmpty() ? m_dataFile : error));
}

void CanvasFiles::restoreSaved()
{
    switch (m_drawings.restore(QLatin1String(kDataFile))) {
    case Drawings::Restored::Nothing:
    case Drawings::Restored::InAnotherForm:
        break;
    case Drawings::Restored::Shown:
        m_tabs.apply(m_drawings.state(), 0);
        Q_EMIT changed();
        break;
    case Drawings::Restored::NoDrawing:
        m_panel.showNotice(
            QObject::tr("%1 holds no saved drawing. It stays as it is until you save.").arg(QLatin1String(kDataFile)));
    }
}

bool CanvasFiles::mayLeave()
{
    if (m_drawings.areKept())
        return true;
    switch (m_questions.askLeaving()) {
    case CanvasQuestions::Leaving::Save:
        return m_drawings.keep(
            [this](const MatrixForm &form, const QByteArrayList &digits) { return keepInFile(form, digits); });
    case CanvasQuestions::Leaving::DoNotSave:
        return true;
    case CanvasQuestions::Leaving::Stay:
        break;
    }
    return false;
}

/// The form that is used has the data file; a drawing of another form would take its place there, and so gets a file
/// that the user names. At once, for the program ends. False when it could not be kept, of which the user was told.
bool CanvasFiles::keepInFile(const MatrixForm &form, const QByteArrayList &digits)
{
    const QString fileName = &form == m_drawings.form() ? QLatin1String(kDataFile) : m_questions.askSaveFile();
    if (fileName.isEmpty())
        return false;
    const QString error = writeAnimation(fileName, digits, [](int) { return true; });
    if (!error.isEmpty())
        m_questions.warn(QObject::tr("The file cannot be written: %1").arg(error));
    return error.isEmpty();
}
