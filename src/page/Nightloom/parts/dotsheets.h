#pragma once

#include <array>
#include <memory>

#include <QPixmap>
#include <QRectF>

class QPainter;
struct MatrixForm;

/// How high a form is in the distances between two cells of a row.
qreal rowsHigh(const MatrixForm &form);

/// Pictures of all dots of a form, in the middle of a room. A round dot is dear, and five animations draw fifty
/// thousand a second: each is drawn once for all matrices of that size, and then copied.
class DotSheets
{
public:
    /// Those of a room in points, on a screen of that ratio. They go with the last matrix that holds them.
    static std::shared_ptr<const DotSheets> of(const MatrixForm &form, QSize room, qreal ratio);

    DotSheets(const MatrixForm &form, QSize room, qreal ratio);

    bool fits(const MatrixForm &form, QSize room, qreal ratio) const;

    /// The matrix while nothing is on.
    const QPixmap &dark() const { return m_dark; }
    /// Draws one cell that is on.
    void drawLit(QPainter &painter, int row, int column) const;

private:
    QRectF dot(int row, int column) const;
    QPixmap draw(const QColor &colour, int firstRow, int rowStep) const;

    const MatrixForm &m_form;
    const QSize m_room;
    const qreal m_ratio;
    const qreal m_pitch; ///< points from cell to cell of a row
    const QPointF m_origin;
    QPixmap m_dark;
    std::array<QPixmap, 2> m_lit; ///< of the even rows, and of the odd ones, which may reach between them
};
