#pragma once

#include <QObject>
#include <QString>

class BoundTexts;
class FramePlayer;
class QLabel;
class QPushButton;
class QVBoxLayout;
class QWidget;
class SliderWidget;
class pageLEDMatrixCanvas;
struct MatrixForm;

/// The column of tools at the canvas page's side.
class CanvasTools : public QObject
{
    Q_OBJECT
public:
    /// Fills the column, whose parent is @p tools and owns this. The buttons press the page's slots.
    CanvasTools(pageLEDMatrixCanvas &page, FramePlayer &player, BoundTexts &texts, QVBoxLayout *column, QWidget *tools);

    /// Offers what the form needs.
    void useForm(const MatrixForm *form);

    /// What can be done with the animation that is drawn.
    struct Possible
    {
        bool any; ///< there are frames
        bool undo;
        bool redo;
        bool write;
        bool plays;
    };
    void show(const Possible &possible);

Q_SIGNALS:
    void modeChosen(int index);
    void cellSizeChosen(int pixels);
    void onionSkinSwitched(bool on);

private:
    QWidget *buildModeBox();
    QWidget *buildAlignedImport(const pageLEDMatrixCanvas &page);
    void buildViewTools(const pageLEDMatrixCanvas &page, FramePlayer &player, QVBoxLayout *column);
    QPushButton *button(const char *label) const;
    void showAlignedNote();

    BoundTexts &m_texts;
    QWidget *m_tools;
    QWidget *m_aligned = nullptr; ///< what only forms need whose frames are no steps of an import
    QLabel *m_alignedNote = nullptr;
    QString m_alignedPattern; ///< for the cells of a frame
    SliderWidget *m_cellSize = nullptr;
    const MatrixForm *m_form = nullptr;
};
