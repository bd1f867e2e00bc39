#include "page/MultiWindow/windowspicture.h"

#include <algorithm>

#include <QPainter>

#include "controls/dash.h"
#include "controls/palette.h"
#include "page/MultiWindow/insetplan.h"
#include "page/MultiWindow/multiwindowtable.h"

namespace {

constexpr QRgb kGrounds[] = {0xff18232c, 0xff1f3a33}; // what tells the inputs apart

void paintWindows(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    const bool isHalved = values.is(Command::MultiWindow, kPictureByPicture);
    const QRectF first = screen.adjusted(0, 0, isHalved ? -screen.width() / 2 : 0, 0);
    drawWindow(painter, first, 1);
    if (isHalved)
        drawWindow(painter, screen.adjusted(screen.width() / 2, 0, 0, 0), 2);
    if (!values.valueOf(Command::MultiWindow))
        painter.drawText(screen, Qt::AlignHCenter | Qt::AlignBottom, kDash);
    const std::optional<int> place = values.valueOf(Command::InsetPlace);
    const std::optional<int> size = values.valueOf(Command::InsetSize);
    if (!values.is(Command::MultiWindow, kPictureInPicture) || !place || !size)
        return;
    const QRectF small = insetRect({*place, *size}, screen);
    drawWindow(painter, small, 2);
    drawWindowEdge(painter, small, values.isPreview());
}

} // namespace

const PanelPicture kWindowsPicture{paintWindows};

void drawWindow(QPainter &painter, const QRectF &rect, int number)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(kGrounds[number - 1]));
    painter.drawRect(rect);
    QFont font = painter.font();
    font.setPixelSize(std::max(14, static_cast<int>(rect.height() / 4)));
    painter.setFont(font);
    painter.setPen(QColor(number == 1 ? Palette::kHint : Palette::kMint));
    painter.drawText(rect, Qt::AlignCenter, QString::number(number));
}

void drawWindowEdge(QPainter &painter, const QRectF &rect, bool isDashed)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(QColor(isDashed ? Palette::kBright : Palette::kMint), 2, isDashed ? Qt::DashLine : Qt::SolidLine));
    painter.drawRect(rect);
}
