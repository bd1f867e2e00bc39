#include "page/Nightloom/parts/cellstroke.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

CellStroke::CellStroke(MatrixFrame &frame, std::function<void(MatrixCell cell)> changed)
    : m_frame(frame), m_changed(std::move(changed))
{
}

void CellStroke::set(MatrixCell cell, std::int32_t value)
{
    if (m_frame.cell(cell.row, cell.column) == value)
        return;
    m_frame.setCell(cell.row, cell.column, value);
    m_hasChanged = true;
    m_changed(cell);
}

void CellStroke::toggle(MatrixCell cell)
{
    set(cell, (m_frame.cell(cell.row, cell.column) + 1) % 2);
}

void CellStroke::begin(MatrixCell cell, QPoint point)
{
    m_isUnderWay = true;
    m_last = point;
    toggle(cell);
    m_putOut.reset();
    if (m_frame.cell(cell.row, cell.column) == 0)
        m_putOut = cell;
}

void CellStroke::moveTo(QPoint point, const MatrixGeometry &geometry)
{
    const QPoint way = point - m_last;
    const int steps = std::max(std::abs(way.x()), std::abs(way.y()));
    for (int step = 1; step < steps; ++step) {
        const auto cell = geometry.cellAt(m_last + way * step / steps);
        if (cell && cell != m_putOut)
            set(*cell, 1);
    }
    if (const auto cell = geometry.cellAt(point))
        set(*cell, 1);
    m_last = point;
}

bool CellStroke::end()
{
    m_isUnderWay = false;
    return std::exchange(m_hasChanged, false);
}
