#include "page/Nightloom/parts/matrixeditor.h"

#include <algorithm>

#include <QMouseEvent>
#include <QPainter>

#include "controls/arrowkeys.h"
#include "ledmatrix/animationfile.h"
#include "page/Nightloom/parts/matrixpicture.h"

static constexpr int kCursorMargin = 2; // the cursor stands this far outside its cell

MatrixEditor::MatrixEditor(const MatrixForm &form, QWidget *parent)
    : QLabel(parent), m_geometry(form, form.cellSize), m_frame(form),
      m_stroke(m_frame, [this](MatrixCell cell) { updateCell(cell); })
{
    describeControlsToAssistiveSoftware();
    setFixedSize(m_geometry.size());
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
    updateControlText();
}

void MatrixEditor::setFrame(std::span<const std::int32_t> cells)
{
    const MatrixFrame before = m_frame;
    m_frame.setFlat(cells);
    for (int row = 0; row < static_cast<int>(before.rows().size()); ++row) {
        const auto &old = before.rows()[static_cast<std::size_t>(row)];
        for (int column = 0; column < static_cast<int>(old.size()); ++column) {
            if (old[static_cast<std::size_t>(column)] != m_frame.cell(row, column))
                updateCell({row, column});
        }
    }
    describeCursor();
}

void MatrixEditor::clearFrame()
{
    setFrame({});
}

bool MatrixEditor::appendFrameToFile() const
{
    return appendFrame(m_dataFile, m_frame.digits()).isEmpty();
}

void MatrixEditor::setEditable(bool editable)
{
    if (!editable)
        finishStroke();
    m_editable = editable;
}

void MatrixEditor::setCellSize(int pixels)
{
    m_geometry = MatrixGeometry(m_geometry.form(), pixels);
    setFixedSize(m_geometry.size());
    update();
}

void MatrixEditor::setOnionSkin(const std::optional<MatrixFrame> &behind)
{
    if (m_onionSkin == behind)
        return;
    m_onionSkin = behind;
    update();
}

void MatrixEditor::setShownInstead(const std::optional<MatrixFrame> &shown)
{
    if (m_shownInstead == shown)
        return;
    m_shownInstead = shown;
    update();
}

void MatrixEditor::finishStroke()
{
    if (!m_stroke.end())
        return;
    describeCursor();
    Q_EMIT edited();
}

void MatrixEditor::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore(); // the window may be moved by it
    if (!mayDraw())
        return;
    const QPoint point = event->position().toPoint();
    const auto cell = m_geometry.cellAt(point);
    if (!cell)
        return;
    m_stroke.begin(*cell, point);
    placeCursor(*cell);
}

void MatrixEditor::mouseMoveEvent(QMouseEvent *event)
{
    if (!mayDraw() || !m_stroke.isUnderWay())
        return;
    if (!(event->buttons() & Qt::LeftButton))
        return finishStroke(); // it was released where nobody told
    m_stroke.moveTo(event->position().toPoint(), m_geometry);
}

void MatrixEditor::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        finishStroke();
}

void MatrixEditor::keyPressEvent(QKeyEvent *event)
{
    if (event->modifiers() & ~Qt::KeypadModifier)
        return QLabel::keyPressEvent(event);
    if (const auto step = stepOfArrow(event->key()))
        moveCursor(step->x(), step->y());
    else if (event->key() != Qt::Key_Space)
        QLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        press();
}

void MatrixEditor::press()
{
    if (!mayDraw() || m_stroke.isUnderWay())
        return;
    m_stroke.toggle(m_cursor);
    finishStroke();
}

void MatrixEditor::placeCursor(MatrixCell cell)
{
    if (cell == m_cursor)
        return;
    updateCell(m_cursor);
    m_cursor = cell;
    updateCell(m_cursor);
    describeCursor();
}

void MatrixEditor::moveCursor(int columns, int rows)
{
    placeCursor(m_geometry.neighbour(m_cursor, columns, rows));
    Q_EMIT cursorMoved(m_geometry.cellRect(m_cursor));
}

/// What scrolls brings the cursor's cell into sight when the focus comes, not the middle of the frame.
QVariant MatrixEditor::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return query == Qt::ImCursorRectangle ? m_geometry.cellRect(m_cursor) : QLabel::inputMethodQuery(query);
}

void MatrixEditor::updateControlText()
{
    setAccessibleName(QObject::tr("LED matrix"));
    describeCursor();
}

QString MatrixEditor::valueText() const
{
    const MatrixForm &form = m_geometry.form();
    const auto cells = m_frame.flat();
    return QObject::tr("%1 rows, %2 cells, %3 on")
        .arg(form.rows.size())
        .arg(cells.size())
        .arg(std::count(cells.begin(), cells.end(), 1));
}

void MatrixEditor::describeCursor()
{
    const bool lit = m_frame.cell(m_cursor.row, m_cursor.column) == 1;
    const QString state = lit ? QObject::tr("on") : QObject::tr("off");
    const QString text = QObject::tr("Row %1, cell %2: %3");
    setAccessibleDescription(text.arg(m_cursor.row + 1).arg(m_cursor.column + 1).arg(state));
}

void MatrixEditor::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    updateCell(m_cursor);
}

void MatrixEditor::focusOutEvent(QFocusEvent *event)
{
    QLabel::focusOutEvent(event);
    updateCell(m_cursor);
}

/// The release of a stroke never comes to a widget that is gone by then.
void MatrixEditor::hideEvent(QHideEvent *event)
{
    QLabel::hideEvent(event);
    finishStroke();
}

void MatrixEditor::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        finishStroke();
}

void MatrixEditor::updateCell(MatrixCell cell)
{
    const int margin = cell == m_cursor ? kCursorMargin : 0;
    update(m_geometry.cellRect(cell).adjusted(-margin, -margin, margin, margin));
}

void MatrixEditor::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect area = event->rect() & QRect(QPoint(), m_geometry.size());
    if (m_shownInstead)
        return drawMatrix(painter, m_geometry, area, *m_shownInstead, nullptr);
    drawMatrix(painter, m_geometry, area, m_frame, m_onionSkin ? &*m_onionSkin : nullptr);
    if (hasFocus() && !area.isEmpty())
        drawMatrixCursor(painter, m_geometry, m_cursor);
}

MatrixEditor *createMatrixEditor(const MatrixForm &form, QWidget *parent)
{
    switch (form.lattice) {
    case RowLattice::Staggered:
        return new LEDMatrixWidget(form, parent);
    case RowLattice::Upright:
        break;
    }
    return new LEDMatrixWidgetRect(form, parent);
}
