#pragma once

#include <optional>

#include <QLabel>

#include "controls/accessiblecontrol.h"
#include "ledmatrix/matrixframe.h"
#include "ledmatrix/matrixgeometry.h"
#include "page/Nightloom/parts/cellstroke.h"

/// Draws a frame of the LED matrix and lets the user draw in it: a press toggles a cell, dragging lights every cell on
/// the pointer's way. The keyboard moves a cursor from cell to cell with the arrows and toggles with Space.
class MatrixEditor : public QLabel, public Pressable
{
    Q_OBJECT
public:
    explicit MatrixEditor(const MatrixForm &form, QWidget *parent = nullptr);

    /// The frame as it is drawn in.
    const MatrixFrame &frame() const { return m_frame; }

    /// Takes a flat frame. Repaints what differs; tells nobody.
    void setFrame(std::span<const std::int32_t> cells);
    void clearFrame();

    /// The file that appendFrameToFile() writes to.
    void setDataFile(const QString &fileName) { m_dataFile = fileName; }

    /// Adds the frame to the end of the data file, which is made when there is none. False when it cannot be written.
    bool appendFrameToFile() const;

    void setEditable(bool editable);

    /// Width and height of a cell in pixels.
    int cellSize() const { return m_geometry.cellSize(); }
    void setCellSize(int pixels);
    const MatrixGeometry &geometry() const { return m_geometry; }

    MatrixCell cursorCell() const { return m_cursor; }

    /// Lets another frame shine faintly behind this one, or none.
    void setOnionSkin(const std::optional<MatrixFrame> &behind);

    /// Shows another frame instead of this one; nothing can be drawn until it is taken away. No stroke is under way.
    void setShownInstead(const std::optional<MatrixFrame> &shown);

    /// Ends a stroke that is being drawn as if the button were released.
    void finishStroke();

    /// Speaks of the cursor's cell in the language of now.
    void updateControlText();

    QAccessible::Role accessibleRole() const override { return QAccessible::Canvas; }
    /// How big it is, and how much of it is on.
    QString valueText() const override;
    /// Toggles the cursor's cell.
    void press() override;

Q_SIGNALS:
    /// A stroke or a key has changed the frame.
    void edited();
    /// A key took the cursor to this cell, which wants to be seen. A press does not tell: what scrolls would take the
    /// drawing away under the pen.
    void cursorMoved(const QRect &cell);

protected:
    QSize sizeHint() const override { return m_geometry.size(); }
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    bool mayDraw() const { return m_editable && !m_shownInstead; }
    void placeCursor(MatrixCell cell);
    void moveCursor(int columns, int rows);
    void describeCursor();
    void updateCell(MatrixCell cell);

    MatrixGeometry m_geometry;
    MatrixFrame m_frame;
    std::optional<MatrixFrame> m_onionSkin;
    std::optional<MatrixFrame> m_shownInstead;
    MatrixCell m_cursor{0, 0};
    QString m_dataFile;
    bool m_editable = true;
    CellStroke m_stroke;
};

/// The editor of staggered rows.
class LEDMatrixWidget : public MatrixEditor
{
    Q_OBJECT
public:
    using MatrixEditor::MatrixEditor;
};

/// The editor of upright rows.
class LEDMatrixWidgetRect : public MatrixEditor
{
    Q_OBJECT
public:
    using MatrixEditor::MatrixEditor;
};

/// The editor of a form.
MatrixEditor *createMatrixEditor(const MatrixForm &form, QWidget *parent);
