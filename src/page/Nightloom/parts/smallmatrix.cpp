#include "page/Nightloom/parts/smallmatrix.h"

#include <algorithm>
#include <utility>

#include <QPainter>

#include "controls/palette.h"

namespace {

constexpr qreal kDot = 0.66; // diameter, of the distance between two cells of a row
const QColor kRestingCell = Palette::kRestingGroove;
const QColor kLitCell = Palette::kMint;

/// From row to row, in cells.
qreal rowPitchOf(const MatrixForm &form)
{
    return form.lattice == RowLattice::Staggered ? 0.5 : 1.0;
}

qreal rowsHigh(const MatrixForm &form)
{
    return static_cast<qreal>(form.rows.size() - 1) * rowPitchOf(form) + 1;
}

/// Where the dots of a form lie in a room, in its middle.
class DotPlaces
{
public:
    DotPlaces(const MatrixForm &form, QSizeF room)
        : m_form(form), m_pitch(std::min(room.width() / form.columns(), room.height() / rowsHigh(form))),
          m_origin((room.width() - form.columns() * m_pitch) / 2, (room.height() - rowsHigh(form) * m_pitch) / 2)
    {
    }

    QRectF dot(int row, int column) const
    {
        const qreal x = m_form.rows[static_cast<std::size_t>(row)].shift / 2.0 + column + 0.5;
        const QPointF reach(kDot * m_pitch / 2, kDot * m_pitch / 2);
        const QPointF centre = m_origin + QPointF(x, row * rowPitchOf(m_form) + 0.5) * m_pitch;
        return {centre - reach, centre + reach};
    }

private:
    const MatrixForm &m_form;
    qreal m_pitch;
    QPointF m_origin;
};

template <typename Visit> void forEachCell(const MatrixForm &form, Visit visit)
{
    for (int row = 0; row < static_cast<int>(form.rows.size()); ++row) {
        for (int column = 0; column < form.rows[static_cast<std::size_t>(row)].cells; ++column)
            visit(row, column);
    }
}

} // namespace

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

/// A round dot is dear, and five animations draw fifty thousand a second: each is drawn once, and then copied. Those of
/// the odd rows reach between those of the even ones, so these have a sheet of their own.
void SmallMatrix::drawSheets()
{
    m_drawnForm = &m_frame->form();
    const DotPlaces places(*m_drawnForm, size());
    for (QPixmap *sheet : {&m_dark, &m_lit[0], &m_lit[1]}) {
        *sheet = QPixmap(size() * devicePixelRatioF());
        sheet->setDevicePixelRatio(devicePixelRatioF());
        sheet->fill(Qt::transparent);
        QPainter painter(sheet);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(sheet == &m_dark ? kRestingCell : kLitCell);
        forEachCell(*m_drawnForm, [&](int row, int column) {
            if (sheet == &m_dark || sheet == &m_lit[static_cast<std::size_t>(row % 2)])
                painter.drawEllipse(places.dot(row, column));
        });
    }
}

/// Out of sight the sheets would only take room.
void SmallMatrix::hideEvent(QHideEvent *)
{
    m_drawnForm = nullptr;
    m_dark = m_lit[0] = m_lit[1] = {};
}

void SmallMatrix::paintEvent(QPaintEvent *)
{
    if (!m_frame)
        return;
    const qreal scale = devicePixelRatioF();
    const MatrixForm &form = m_frame->form();
    if (m_drawnForm != &form || m_dark.size() != size() * scale || m_dark.devicePixelRatio() != scale)
        drawSheets();
    const DotPlaces places(form, size());
    QPainter painter(this);
    painter.drawPixmap(QPointF(), m_dark);
    forEachCell(form, [&](int row, int column) {
        if (m_frame->cell(row, column) != 1)
            return;
        const QRectF dot = places.dot(row, column);
        const QRect pixels = QRectF(dot.topLeft() * scale, dot.size() * scale).toAlignedRect();
        painter.drawPixmap(QPointF(pixels.topLeft()) / scale, m_lit[static_cast<std::size_t>(row % 2)], pixels);
    });
}
