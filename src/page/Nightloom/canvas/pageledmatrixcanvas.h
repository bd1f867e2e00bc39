#pragma once

#include "page/Nightloom/canvas/canvasfiles.h"
#include "page/Nightloom/canvas/canvasquestions.h"
#include "page/Nightloom/canvas/drawings.h"
#include "page/Nightloom/parts/frameplayer.h"
#include "page/Nightloom/parts/longworkpage.h"

class CanvasTools;
class FrameTabs;
class QPushButton;

/// The page on which the user draws an animation for the accessory frame by frame, keeps it in files and uploads it.
class pageLEDMatrixCanvas : public LongWorkPage, public CanvasQuestions
{
    Q_OBJECT
public:
    static constexpr const char *kDataFile = CanvasFiles::kDataFile;

    explicit pageLEDMatrixCanvas(AccessoryCheck ensureConnected, QWidget *parent = nullptr);
    ~pageLEDMatrixCanvas() override;

    void updateInterfaceData() override;
    void updateControlText() override;
    bool mayLeave() override;

    FrameTabs *tabs() const { return m_tabs; }
    QPushButton *button(const char *label) const;

    /// Counts the frames. It is compared before a frame is added, so one frame more than the maximum finds room.
    int frameCounter() const { return static_cast<int>(m_drawings.state().frames.size()); }
    QString dataFile() const { return m_files.dataFile(); }

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
    void saveAnimate() { m_files.saveDrawing(); }
    void writeAnimate() { m_files.upload(); }
    void exportAnimate() { m_files.exportDrawing(); }
    void importAnimate();
    /// As importAnimate(), but frame by frame of the form that is shown.
    void importAligned();
    void togglePreview();

protected:
    void buildTools(QVBoxLayout *column, QWidget *tools) override;
    void cancelWork() override { m_files.cancel(); }
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
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

    Drawings m_drawings;
    FramePlayer m_player;
    FrameTabs *m_tabs;
    CanvasFiles m_files;
    CanvasTools *m_tools = nullptr;
    QLabel *m_count;
    bool m_restored = false;
};
