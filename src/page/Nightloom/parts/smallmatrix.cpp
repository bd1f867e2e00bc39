#include "page/Nightloom/parts/smallmatrix.h"

#include <algorithm>
#include <utility>

#include <QPainter>

#include "page/Nightloom/parts/dotsheets.h"

SmallMatrix::SmallMatrix(QWidget *parent) : QWidget(parent)
{
    describeControlsToAssistiveSoftware();
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int SmallMatrix::heightForWidth(int width) const
{
    return m_frame ? qRound(width * rowsHigh(m_frame->form()) / m_frame->form().columns()) : 0;
}

void SmallMatrix::showFrame(std::optional<MatrixFrame> frame)
{
    if (m_frame == frame)
        return;
    const bool isSameForm = m_frame && frame && &m_frame->form() == &frame->form();
    m_frame = std::move(frame);
    if (!isSameForm)
        updateGeometry();
    update();
}

QString SmallMatrix::valueText() const
{
    const std::vector<std::int32_t> cells = m_frame ? m_frame->flat() : std::vector<std::int32_t>();
    return QObject::tr("%1 rows, %2 cells, %3 on")
        .arg(m_frame ? m_frame->rows().size() : 0)
        .arg(cells.size())
        .arg(std::count(cells.begin(), cells.end(), 1));
}

/// Out of sight the sheets would only take room.
void SmallMatrix::hideEvent(QHideEvent *)
{
    m_sheets = nullptr;
}

void SmallMatrix::paintEvent(QPaintEvent *)
{
    if (!m_frame)
        return;
    const MatrixForm &form = m_frame->form();
    if (!m_sheets || !m_sheets->fits(form, size(), devicePixelRatioF()))
        m_sheets = DotSheets::of(form, size(), devicePixelRatioF());
    QPainter painter(this);
    painter.drawPixmap(QPointF(), m_sheets->dark());
    for (int row = 0; row < static_cast<int>(form.rows.size()); ++row) {
        for (int column = 0; column < form.rows[static_cast<std::size_t>(row)].cells; ++column) {
            if (m_frame->cell(row, column) == 1)
                m_sheets->drawLit(painter, row, column);
        }
    }
}
