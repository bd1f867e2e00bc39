#include "virtualdesk/matrixview.h"

#include <algorithm>

#include <QPainter>

#include "virtualdesk/accessoryforms.h"

namespace virtualdesk {

namespace {

constexpr int kRim = 12;
constexpr double kDot = 0.62;          // diameter, of the distance between two cells of a row
constexpr double kDimmestLight = 0.35; // what is lit can be told from what is not
const QColor kGround(0x08, 0x0b, 0x0a);
const QColor kEdge(27, 80, 67);
const QColor kDark(0x1b, 0x23, 0x20);
const QColor kLit(0x9c, 0xff, 0xc8);

} // namespace

MatrixView::MatrixView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MatrixView::show(int form, const std::vector<std::int32_t> &cells, double light)
{
    if (form == m_form && cells == m_cells && light == m_light)
        return;
    m_form = form;
    m_cells = cells;
    m_light = light;
    update();
}

int MatrixView::litCells() const
{
    return m_light > 0 ? static_cast<int>(std::count(m_cells.begin(), m_cells.end(), 1)) : 0;
}

void MatrixView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(kEdge);
    painter.setBrush(kGround);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);

    const auto &rows = matrixRows(m_form);
    if (rows.empty())
        return;
    // The staggered rows lie half as far apart as the cells of a row do.
    const double rowsPerCell = matrixRowPitch(m_form);
    const double wide = matrixColumns(m_form);
    const double high = static_cast<double>(rows.size()) * rowsPerCell;
    const double pitch = std::min((width() - 2 * kRim) / wide, (height() - 2 * kRim) / high);
    const QPointF origin((width() - wide * pitch) / 2, (height() - high * pitch) / 2);

    QColor lit = kLit;
    lit.setAlphaF(static_cast<float>(m_light > 0 ? kDimmestLight + (1 - kDimmestLight) * m_light : 0));
    painter.setPen(Qt::NoPen);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const double left = matrixRowShift(m_form, static_cast<int>(row)) / 2.0;
        const double y = (static_cast<double>(row) + 0.5) * rowsPerCell * pitch;
        for (int column = 0; column < rows[row].cells; ++column) {
            const auto place = static_cast<std::size_t>(rows[row].first + column);
            const QPointF centre = origin + QPointF((left + column + 0.5) * pitch, y);
            const bool on = place < m_cells.size() && m_cells[place] == 1;
            painter.setBrush(kDark);
            painter.drawEllipse(centre, pitch * kDot / 2, pitch * kDot / 2);
            if (on && m_light > 0) {
                painter.setBrush(lit);
                painter.drawEllipse(centre, pitch * kDot / 2, pitch * kDot / 2);
            }
        }
    }
}

} // namespace virtualdesk
