#include "ledmatrix/matrixframe.h"

#include <algorithm>

MatrixFrame::MatrixFrame(const MatrixForm &form) : m_form(&form)
{
    for (const MatrixRow &row : form.rows)
        m_rows.emplace_back(static_cast<std::size_t>(row.cells), 0);
}

bool MatrixFrame::contains(int row, int column) const
{
    return row >= 0 && static_cast<std::size_t>(row) < m_rows.size() && column >= 0 &&
           static_cast<std::size_t>(column) < m_rows[static_cast<std::size_t>(row)].size();
}

std::int32_t MatrixFrame::cell(int row, int column) const
{
    return m_rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void MatrixFrame::setCell(int row, int column, std::int32_t value)
{
    m_rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = value;
}

void MatrixFrame::clear()
{
    for (Row &row : m_rows)
        std::fill(row.begin(), row.end(), 0);
}

std::vector<std::int32_t> MatrixFrame::flat() const
{
    std::vector<std::int32_t> cells(static_cast<std::size_t>(m_form->cells()));
    const auto layout = m_form->rows;
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        std::copy(m_rows[row].begin(), m_rows[row].end(), cells.begin() + layout[row].first);
    return cells;
}

void MatrixFrame::setFlat(std::span<const std::int32_t> cells)
{
    const auto layout = m_form->rows;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        for (std::size_t column = 0; column < m_rows[row].size(); ++column) {
            const std::size_t place = static_cast<std::size_t>(layout[row].first) + column;
            m_rows[row][column] = place < cells.size() ? cells[place] : 0;
        }
    }
}

QByteArray MatrixFrame::digits() const
{
    QByteArray text;
    for (const std::int32_t cell : flat())
        text.append(cell == 1 ? '1' : '0');
    return text;
}

void MatrixFrame::setDigits(QByteArrayView digits)
{
    std::vector<std::int32_t> cells;
    for (const char digit : digits.first(std::min<qsizetype>(digits.size(), m_form->cells())))
        cells.push_back(digit == '1' ? 1 : 0);
    setFlat(cells);
}
