#include "page/Nightloom/parts/matrixpicture.h"

#include <QPainter>

#include "controls/palette.h"

namespace {

const QColor kDark = Palette::kUnlit;
const QColor kLit = Palette::kMint;
const QColor kBehind = Palette::kChecked;
const QColor kCursor = Palette::kText;

} // namespace

void drawMatrix(QPainter &painter, const MatrixGeometry &geometry, const QRect &area, const MatrixFrame &frame,
                const MatrixFrame *behind)
{
    if (area.isEmpty())
        return;
    const int size = geometry.cellSize();
    const qreal gap = size / 10.0;
    const qreal radius = size / 4.0;
    painter.setPen(Qt::NoPen);
    for (int row = area.top() / size; row <= area.bottom() / size; ++row) {
        const auto &cells = frame.rows()[static_cast<std::size_t>(row)];
        for (int column = 0; column < static_cast<int>(cells.size()); ++column) {
            const QRect rect = geometry.cellRect({row, column});
            if (!rect.intersects(area))
                continue;
            const bool isLit = cells[static_cast<std::size_t>(column)] == 1;
            const bool shinesThrough = behind && behind->cell(row, column) == 1;
            painter.setBrush(isLit ? kLit : shinesThrough ? kBehind : kDark);
            painter.drawRoundedRect(QRectF(rect).adjusted(gap, gap, -gap, -gap), radius, radius);
        }
    }
}

void drawMatrixCursor(QPainter &painter, const MatrixGeometry &geometry, MatrixCell cell)
{
    const qreal radius = geometry.cellSize() / 3.0;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kCursor, 1.5));
    painter.drawRoundedRect(QRectF(geometry.cellRect(cell)).adjusted(0.25, 0.25, -0.25, -0.25), radius, radius);
}
