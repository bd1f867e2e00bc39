#pragma once

#include <iterator>

#include "ledmatrix/devicememory.h"
#include "page/Nightloom/parts/accessorycheck.h"
#include "page/Nightloom/work/ledthread.h"

class CanvasQuestions;
class Drawings;
class FrameTabs;
class WorkPanel;
struct MatrixForm;

/// The canvas page's long work, files and the upload; and what is kept of the drawings when the program ends.
class CanvasFiles : public QObject
{
    Q_OBJECT
public:
    /// The file that a save writes, whatever the form; the next start shows it again.
    static constexpr char kDataFile[] = "./LEDMatrixData.txt";

    /// Whole frames of a form that the accessory has room for; 0 without one.
    static int framesWithRoom(const MatrixForm *form);

    /// Of what is drawn and shown there; told in the panel, asked by the questions, uploaded by @p send.
    CanvasFiles(Drawings &drawings, FrameTabs &tabs, WorkPanel &panel, CanvasQuestions &questions,
                AccessoryCheck ensureConnected, LEDThread::Send send);
    ~CanvasFiles() override;

    // Each begins work, unless some goes on already or the user names no file.

    void saveDrawing();
    void exportDrawing();
    void import(int frameCells);
    void upload();

    /// The user does not want the work any more; it tells its end as it always does.
    void cancel();

    /// Shows what was saved last.
    void restoreSaved();

    /// Asks what becomes of drawings that are not kept; false when the program is to go on.
    bool mayLeave();

    /// Which one an upload fills.
    const AnimationMemory &memory() const { return *m_memory; }
    void setMemory(const AnimationMemory &memory) { m_memory = &memory; }

    /// The file last saved, exported or imported; empty before.
    QString dataFile() const { return m_dataFile; }

    /// Whether the data file holds what is drawn; who changes that says so.
    bool isSaved() const { return m_saved; }
    void forgetSaved() { m_saved = false; }

Q_SIGNALS:
    /// Work begins with the animation as the user has drawn it: what is being drawn or played ends now.
    void begins();
    /// What is drawn, or whether it is saved, may be another by now.
    void changed();
    void ended();

private:
    bool isBusy() const;
    void beginWork(LEDThread::State state, QString fileName, bool saves);
    void onProgress(int value);
    void endWork(bool complete);
    void importFrames();
    void tellWhatWasTaken(qint64 framesInFile);
    void fail(const QString &error);
    void tellWhatIsCut();
    void tellWhatIsKept();
    bool keepInFile(const MatrixForm &form, const QByteArrayList &digits);

    Drawings &m_drawings;
    FrameTabs &m_tabs;
    WorkPanel &m_panel;
    CanvasQuestions &m_questions;
    AccessoryCheck m_ensureConnected;
    LEDThread m_thread;
    QString m_dataFile;
    QString m_fileBefore;  ///< the data file again when the work does not get done
    int m_importCells = 0; ///< a frame, in the file that is imported
    const AnimationMemory *m_memory = std::begin(kAnimationMemories);
    bool m_saved = false; ///< nothing has been drawn since the last save
    bool m_saves = false; ///< the work that goes on is a save
    bool m_taken = false; ///< what is drawn and the data file are one, by the work that goes on
};
