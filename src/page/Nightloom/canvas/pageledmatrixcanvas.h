#pragma once

#include <functional>

#include "page/Nightloom/canvas/drawings.h"
#include "page/Nightloom/parts/frameplayer.h"
#include "page/Nightloom/parts/longworkpage.h"
#include "page/Nightloom/work/ledthread.h"

class CanvasTools;
class FrameTabs;
class QPushButton;

/// The page on which the user draws an animation for the accessory frame by frame, keeps it in files and uploads it.
class pageLEDMatrixCanvas : public LongWorkPage
{
    Q_OBJECT
public:
    /// Byte of "Mode1"; the modes follow one another.
    static constexpr std::uint8_t kFirstMode = 0x24;
    static constexpr int kModes = 5;

    /// The file that a save writes, whatever the form; the next start shows it again.
    static constexpr char kDataFile[] = "./LEDMatrixData.txt";

    /// Whole frames of a form that the accessory has room for; 0 without one.
    static int framesWithRoom(const MatrixForm *form);

    explicit pageLEDMatrixCanvas(AccessoryCheck ensureConnected, QWidget *parent = nullptr);
    ~pageLEDMatrixCanvas() override;

    void updateInterfaceData() override;
    void updateControlText() override;
    bool mayLeave() override;

    FrameTabs *tabs() const { return m_tabs; }
    QPushButton *button(const char *label) const;

    /// Counts the frames. It is compared before a frame is added, so one frame more than the maximum finds room.
    int frameCounter() const { return static_cast<int>(m_drawings.state().frames.size()); }
    std::uint8_t modeByte() const { return m_mode; }
    /// The file last saved, exported or imported; empty before.
    QString dataFile() const { return m_dataFile; }

    /// Uploads the job's file; whether the accessory took it whole. For LEDThread, which runs it: touches nothing of
    /// the page.
    static bool sendAnmateData(const LEDJob &job, const std::function<void(int)> &progress);

public Q_SLOTS:
    void addFrame();
    void duplicateFrame();
    void deleteFrame();
    void cleanFrame();
    void undo();
    void redo();
    void saveAnimate();
    void writeAnimate();
    void exportAnimate();
    void importAnimate();
    /// As importAnimate(), but frame by frame of the form that is shown.
    void importAligned();
    void togglePreview();

protected:
    /// Ask for a file; empty when the user names none.
    virtual QString askSaveFile();
    virtual QString askOpenFile();

    /// A warning box with "OK".
    virtual void warn(const QString &text);

    /// What becomes of frames that no file holds when the program ends.
    enum class Leaving { Save, DoNotSave, Stay };
    virtual Leaving askLeaving();

    void buildTools(QVBoxLayout *column, QWidget *tools) override;
    void cancelWork() override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void bindShortcuts();
    void followMatrixForm();
    void useForm(const MatrixForm *form);
    bool mayChange();
    bool mayAddFrame();
    void endStrokes();
    void showChange(int place);
    void onEdited(int index);
    void onChanged();
    QString countText() const;
    void updateButtons();

    void beginWork(LEDThread::State state, QString fileName, bool saves);
    void onProgress(int value);
    void endWork(bool complete);
    void import(int frameCells);
    void importFrames();
    void tellWhatWasTaken(qint64 framesInFile);
    void fail(const QString &error);
    void tellWhatIsCut();
    void restoreSaved();
    bool keepInFile(const MatrixForm &form, const QByteArrayList &digits);

    Drawings m_drawings;
    FramePlayer m_player;
    LEDThread m_thread;
    FrameTabs *m_tabs;
    CanvasTools *m_tools = nullptr;
    QLabel *m_count;
    QString m_dataFile;
    QString m_fileBefore;  ///< the data file again when the work does not get done
    int m_importCells = 0; ///< a frame, in the file that is imported
    std::uint8_t m_mode = kFirstMode;
    bool m_saved = false; ///< nothing has been drawn since the last save
    bool m_saves = false; ///< the work that goes on is a save
    bool m_taken = false; ///< what is drawn and the data file are one, by the work that goes on
    bool m_restored = false;
};
