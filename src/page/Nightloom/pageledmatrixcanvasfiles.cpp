// The canvas page's long work: files and the upload.

#include <algorithm>

#include <QFileInfo>
#include <QProgressBar>

#include "controls/filequestion.h"
#include "controls/messagebox.h"
#include "ledmatrix/animationfile.h"
#include "ledmatrix/matrixframe.h"
#include "page/Nightloom/frametabs.h"
#include "page/Nightloom/pageledmatrixcanvas.h"
#include "page/Nightloom/toolcolumn.h"
#include "platform/ending.h"
#include "usb-hid/accessoryupload.h"

namespace {

constexpr char kDataFile[] = "./LEDMatrixData.txt";

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
    if (m_busy)
        return;
    const QString fileName = askSaveFile();
    if (fileName.isEmpty())
        return warn(QObject::tr("No file path selected."));
    beginWork(LEDThread::Export, fileName, false);
}

void pageLEDMatrixCanvas::importAnimate()
{
    if (m_busy)
        return;
    const QString fileName = askOpenFile();
    if (fileName.isEmpty())
        return warn(QObject::tr("No file path selected."));
    const QFileInfo file(fileName);
    if (file.exists() && file.size() == 0)
        return warn(QObject::tr("File is null."));
    beginWork(LEDThread::Import, fileName, false);
}

void pageLEDMatrixCanvas::writeAnimate()
{
    if (m_busy || !m_saved || !m_ensureConnected())
        return;
    beginWork(LEDThread::Upload, m_dataFile, false);
}

bool pageLEDMatrixCanvas::sendAnmateData(const LEDJob &job, const std::function<void(int)> &progress) const
{
    return uploadAnimation(job.fileName, job.mode, progress, job.stop);
}

void pageLEDMatrixCanvas::beginWork(LEDThread::State state, const QString &fileName, bool saves)
{
    if (m_busy)
        return;
    endStrokes();
    m_dataFile = fileName;
    m_busy = true;
    m_failed = false;
    m_saves = saves;
    showNotice({});
    showProgress(0);
    m_focusBefore = window()->focusWidget();
    m_tools->setEnabled(false);
    m_tabs->setEnabled(false);
    Q_EMIT busyBegins();
    m_thread.begin(state, {m_tabs->digits(), fileName, m_mode, uploadStop()});
}

void pageLEDMatrixCanvas::onProgress(int value)
{
    if (value == LEDThread::kImportNow)
        return importFrames();
    if (value == kProgressFailed)
        return fail(m_thread.error());
    if (!m_failed) // a failure stays in sight
        showProgress(value);
}

void pageLEDMatrixCanvas::endWork(bool complete)
{
    if (!complete && !m_failed)
        showNotice(QObject::tr("The accessory did not take everything."));
    m_busy = false;
    if (m_saves && !m_failed)
        m_saved = m_tabs->count() > 0;
    m_tools->setEnabled(true);
    m_tabs->setEnabled(true);
    updateButtons();
    giveFocusBack(m_focusBefore);
    Q_EMIT busyEnded();
}

void pageLEDMatrixCanvas::importFrames()
{
    const ReadAnimation animation = readAnimation(m_dataFile);
    if (!animation.error.isEmpty())
        return fail(animation.error);
    AnimationState state;
    for (const QByteArray &digits : animation.frames) {
        AnimationFrame frame = newFrame(state);
        MatrixFrame cells(m_form);
        cells.setDigits(digits);
        frame.cells = toBits(cells);
        state.frames.push_back(std::move(frame));
    }
    const double sum = static_cast<double>(m_tabs->count()) + static_cast<double>(animation.frames.size());
    const int step = std::max(static_cast<int>(0.1 * sum), 1);
    m_history->push(std::move(state));
    m_tabs->apply(m_history->state(), 0, [&](int removed) {
        if (removed % step != 0)
            return;
        showProgress(static_cast<int>(removed / sum * 100.0));
        m_progress->repaint(); // nothing else comes to be painted before the import has ended
    });
    onChanged();
    if (m_tabs->count() == 0)
        showNotice(QObject::tr("The file holds no whole frame."));
}

void pageLEDMatrixCanvas::fail(const QString &error)
{
    const LEDThread::State state = m_thread.state();
    m_failed = true;
    m_saved = m_saved && state == LEDThread::Upload; // else the data file is not what is drawn
    showProgress(kProgressFailed);
    const QString text = state == LEDThread::Export ? QObject::tr("The file cannot be written: %1")
                                                    : QObject::tr("The file cannot be read: %1");
    showNotice(text.arg(error.isEmpty() ? m_dataFile : error));
}

void pageLEDMatrixCanvas::showProgress(int value)
{
    showValue(m_progress, value);
}
