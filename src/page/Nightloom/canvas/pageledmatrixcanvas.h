#pragma once

#include <functional>
#include <map>

#include <QLabel>

#include "page/Nightloom/canvas/animationhistory.h"
#include "page/Nightloom/parts/accessorycheck.h"
#include "page/Nightloom/parts/frameplayer.h"
#include "page/Nightloom/parts/workpanel.h"
#include "page/Nightloom/work/ledthread.h"
#include "page/engine/boundtexts.h"
#include "page/engine/page.h"

class FrameTabs;
class QComboBox;
class QPushButton;
class QVBoxLayout;
class SliderWidget;

/// The page on which the user draws an animation for the accessory frame by frame, keeps it in files and uploads it.
class pageLEDMatrixCanvas : public QLabel, public Page
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
    QWidget *widget() override { return this; }

    FrameTabs *tabs() const { return m_tabs; }
    QPushButton *button(const char *label) const;
    WorkPanel *work() const { return m_work; }

    /// Counts the frames. It is compared before a frame is added, so one frame more than the maximum finds room.
    int frameCounter() const { return static_cast<int>(m_history->state().frames.size()); }
    std::uint8_t modeByte() const { return m_mode; }
    /// The file last saved, exported or imported; empty before.
    QString dataFile() const { return m_dataFile; }
    bool isBusy() const { return m_work->isBusy(); }

    /// Uploads the job's file; whether the accessory took it whole. For LEDThread, which runs it: touches nothing of
    /// the page.
    bool sendAnmateData(const LEDJob &job, const std::function<void(int)> &progress) const;

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

Q_SIGNALS:
    /// Long work begins and ends; the window keeps everything else from the accessory meanwhile.
    void busyBegins();
    void busyEnded();

protected:
    /// Ask for a file; empty when the user names none.
    virtual QString askSaveFile();
    virtual QString askOpenFile();

    /// A warning box with "OK".
    virtual void warn(const QString &text);

    /// What becomes of frames that no file holds when the program ends.
    enum class Leaving { Save, DoNotSave, Stay };
    virtual Leaving askLeaving();

    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void buildForm();
    QWidget *buildTools();
    void buildFrameTools(QVBoxLayout *column);
    void buildViewTools(QVBoxLayout *column);
    void buildFileTools(QVBoxLayout *column);
    QWidget *buildModeBox();
    QWidget *buildAlignedImport();
    void bindShortcuts();

    void followMatrixForm();
    void useForm(const MatrixForm *form);
    void showAlignedNote();
    void endStrokes();
    bool mayAddFrame();
    AnimationFrame newFrame(AnimationState &state);
    void change(AnimationState state);
    void onEdited(int index);
    void onChanged();
    QString countText() const;
    void updateButtons();

    void beginWork(LEDThread::State state, QString fileName, bool saves);
    void cancelWork();
    void onProgress(int value);
    void endWork(bool complete);
    void tellOutcome(bool complete);
    void import(int frameCells);
    void importFrames();
    void fail(const QString &error);
    void tellWhatIsCut();

    AnimationState stateOf(const QByteArrayList &frames, const MatrixForm &form);
    void restoreSaved();
    bool keepUnsaved();
    bool keepInFile(const MatrixForm *form, AnimationHistory &history);

    AccessoryCheck m_ensureConnected;
    BoundTexts m_texts;
    const MatrixForm *m_form = nullptr;
    int m_nextId = 0;
    std::map<const MatrixForm *, AnimationHistory> m_histories; ///< an animation of one cannot be shown in another
    AnimationHistory *m_history = nullptr;                      ///< of the form that is shown
    FramePlayer m_player;
    LEDThread m_thread;
    FrameTabs *m_tabs;
    QWidget *m_tools = nullptr;
    QWidget *m_aligned = nullptr; ///< what only forms need whose frames are no steps of an import
    QLabel *m_alignedNote = nullptr;
    QString m_alignedPattern; ///< for the cells of a frame
    QLabel *m_count;
    WorkPanel *m_work;
    QComboBox *m_modes = nullptr;
    SliderWidget *m_cellSize = nullptr;
    QString m_dataFile;
    QString m_fileBefore;  ///< the data file again when the work does not get done
    int m_importCells = 0; ///< a frame, in the file that is imported
    std::uint8_t m_mode = kFirstMode;
    bool m_saved = false; ///< nothing has been drawn since the last save
    bool m_saves = false; ///< the work that goes on is a save
    bool m_taken = false; ///< what is drawn and the data file are one, by the work that goes on
    bool m_restored = false;
};
