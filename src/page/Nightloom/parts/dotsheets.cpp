#include "page/Nightloom/parts/dotsheets.h"

#include <algorithm>
#include <vector>

#include <QPainter>

#include "controls/palette.h"
#include "ledmatrix/matrixform.h"

namespace {

constexpr qreal kDot = 0.66; // diameter, of the distance between two cells of a row
const QColor kRestingCell = Palette::kUnlit;
const QColor kLitCell = Palette::kMint;

/// From row to row, in cells.
qreal rowPitchOf(const MatrixForm &form)
{
    return form.lattice == RowLattice::Staggered ? 0.5 : 1.0;
}

} // namespace

qreal rowsHigh(const MatrixForm &form)
{
    return static_cast<qreal>(form.rows.size() - 1) * rowPitchOf(form) + 1;
}

std::shared_ptr<const DotSheets> DotSheets::of(const MatrixForm &form, QSize room, qreal ratio)
{
    static std::vector<std::weak_ptr<const DotSheets>> drawn;
    std::erase_if(drawn, [](const auto &sheets) { return sheets.expired(); });
    for (const auto &each : drawn) {
        if (auto sheets = each.lock(); sheets && sheets->fits(form, room, ratio))
            return sheets;
    }
    auto sheets = std::make_shared<const DotSheets>(form, room, ratio);
    drawn.push_back(sheets);
    return sheets;
}

DotSheets::DotSheets(const MatrixForm &form, QSize room, qreal ratio)
    : m_form(form), m_room(room), m_ratio(ratio),
      m_pitch(std::min(room.width() / static_cast<qreal>(form.columns()), room.height() / rowsHigh(form))),
      m_origin((room.width() - form.columns() * m_pitch) / 2, (room.height() - rowsHigh(form) * m_pitch) / 2),
      m_dark(draw(kRestingCell, 0, 1)), m_lit{draw(kLitCell, 0, 2), draw(kLitCell, 1, 2)}
{
}

bool DotSheets::fits(const MatrixForm &form, QSize room, qreal ratio) const
{
    return &m_form == &form && m_room == room && m_ratio == ratio;
}

QRectF DotSheets::dot(int row, int column) const
{
    const qreal x = m_form.rows[static_cast<std::size_t>(row)].shift / 2.0 + column + 0.5;
    const QPointF reach(kDot * m_pitch / 2, kDot * m_pitch / 2);
    const QPointF centre = m_origin + QPointF(x, row * rowPitchOf(m_form) + 0.5) * m_pitch;
    return {centre - reach, centre + reach};
}

QPixmap DotSheets::draw(const QColor &colour, int firstRow, int rowStep) const
{
    QPixmap sheet(m_room * m_ratio);
    sheet.setDevicePixelRatio(m_ratio);
    sheet.fill(Qt::transparent);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    for (int row = firstRow; row < static_cast<int>(m_form.rows.size()); row += rowStep) {
        for (int column = 0; column < m_form.rows[static_cast<std::size_t>(row)].cells; ++column)
            painter.drawEllipse(dot(row, column));
    }
    return sheet;
}

void DotSheets::drawLit(QPainter &painter, int row, int column) const
{
    const QRectF place = dot(row, column);
    const QRect pixels = QRectF(place.topLeft() * m_ratio, place.size() * m_ratio).toAlignedRect();
    painter.drawPixmap(QPointF(pixels.topLeft()) / m_ratio, m_lit[static_cast<std::size_t>(row % 2)], pixels);
}
