#include "controls/screenguides.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QFont>
#include <QFontMetrics>
#include <QObject>
#include <QPainter>
#include <QRectF>

namespace screenguides {

namespace {

constexpr double kScreenHeight = 340; // mm
constexpr double kGolden = 0.618;
constexpr int kMarks = 40; // of a ruler, a long one each five
constexpr QRgb kWall = 0xff18242e;
constexpr QRgb kWindow = 0xffe8ebe8;
constexpr QRgb kWriting = 0xffb9bfbb;
constexpr QRgb kSymbol = 0xff2a3a46;

constexpr int kLabelPixels = 13;
constexpr int kLabelHeight = 20;

void drawCentred(QPainter &painter, const QRectF &screen, QRectF rect)
{
    rect.moveCenter(screen.center());
    painter.drawRect(rect);
}

} // namespace

void drawDesktop(QPainter &painter, const QRectF &screen)
{
    painter.fillRect(screen, QColor(kWall));
    const double unit = screen.height() / 16;
    for (int row = 0; row < 5; ++row)
        painter.fillRect(QRectF(screen.left() + unit, screen.top() + unit * (1 + 1.2 * row),
                                unit * (5 - 0.4 * (row % 3)), unit * 0.45),
                         QColor(kSymbol));
    QRectF page(0, 0, screen.height() * 0.58, screen.height() * 0.82);
    page.moveCenter(screen.center());
    painter.fillRect(page, QColor(kWindow));
    for (int line = 0; line < 13; ++line) {
        const double width = page.width() * (0.84 - 0.11 * ((line * 5) % 4));
        painter.fillRect(QRectF(page.left() + page.width() * 0.08, page.top() + page.height() * (0.07 + 0.068 * line),
                                width, unit * 0.22),
                         QColor(kWriting));
    }
}

/// On a plate below a thing; in its lower edge where the screen ends.
void drawLabel(QPainter &painter, const QRectF &screen, const QRectF &thing, const QString &text)
{
    QFont font = painter.font();
    font.setPixelSize(kLabelPixels);
    QRectF plate(0, 0, QFontMetrics(font).horizontalAdvance(text) + 16, kLabelHeight);
    plate.moveCenter(QPointF(thing.center().x(), 0));
    plate.moveTop(std::min(thing.bottom(), screen.bottom() - kLabelHeight));
    painter.save();
    const QPen pen = painter.pen();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 170));
    painter.drawRoundedRect(plate.adjusted(0, 1, 0, -1), 4, 4);
    painter.setFont(font);
    painter.setPen(pen.color());
    painter.drawText(plate, Qt::AlignCenter, text);
    painter.restore();
}

void drawSheet(QPainter &painter, const QRectF &screen, const QSize &millimetres)
{
    QRectF sheet(QPointF(), QSizeF(millimetres) * (screen.height() / kScreenHeight));
    sheet.moveCenter(screen.center());
    painter.drawRect(sheet);
    drawLabel(painter, screen, sheet, QObject::tr("%1 × %2 mm").arg(millimetres.width()).arg(millimetres.height()));
}

void drawGrid(QPainter &painter, const QRectF &screen, int columns, int rows)
{
    for (int column = 1; column < columns; ++column) {
        const double x = screen.left() + screen.width() * column / columns;
        painter.drawLine(QPointF(x, screen.top()), QPointF(x, screen.bottom()));
    }
    for (int row = 1; row < rows; ++row) {
        const double y = screen.top() + screen.height() * row / rows;
        painter.drawLine(QPointF(screen.left(), y), QPointF(screen.right(), y));
    }
}

void drawRuler(QPainter &painter, const QRectF &screen)
{
    for (int mark = 1; mark < kMarks; ++mark) {
        const double length = mark % 5 == 0 ? 14 : 7;
        const double x = screen.left() + screen.width() * mark / kMarks;
        painter.drawLine(QPointF(x, screen.top()), QPointF(x, screen.top() + length));
        const double y = screen.top() + screen.width() * mark / kMarks;
        if (y < screen.bottom())
            painter.drawLine(QPointF(screen.left(), y), QPointF(screen.left() + length, y));
    }
}

void drawAngleRuler(QPainter &painter, const QRectF &screen)
{
    const double radius = screen.height() * 0.4;
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(screen.center(), radius, radius);
    for (int degrees = 0; degrees < 360; degrees += 10) {
        const double angle = degrees * std::numbers::pi / 180;
        const QPointF direction(std::cos(angle), -std::sin(angle));
        const double inner = degrees % 90 == 0 ? 0 : degrees % 30 == 0 ? radius - 16 : radius - 8;
        painter.drawLine(screen.center() + direction * inner, screen.center() + direction * radius);
    }
}

void drawAlignmentAid(QPainter &painter, const QRectF &screen)
{
    drawGrid(painter, screen, 2, 2);
    for (const double part : {0.12, 0.24}) {
        QRectF box(0, 0, screen.height() * part * 2, screen.height() * part);
        drawCentred(painter, screen, box);
    }
}

void drawTriangle(QPainter &painter, const QRectF &screen)
{
    painter.drawLine(screen.bottomLeft(), screen.topRight());
    painter.drawLine(screen.topLeft(), screen.center());
    painter.drawLine(screen.bottomRight(), screen.center());
}

void drawFrame(QPainter &painter, const QRectF &screen)
{
    drawCentred(painter, screen, QRectF(0, 0, screen.width() * 0.8, screen.height() * 0.8));
}

void drawGoldenSection(QPainter &painter, const QRectF &screen)
{
    for (const double part : {1 - kGolden, kGolden}) {
        const QPointF at(screen.left() + screen.width() * part, screen.top() + screen.height() * part);
        painter.drawLine(QPointF(at.x(), screen.top()), QPointF(at.x(), screen.bottom()));
        painter.drawLine(QPointF(screen.left(), at.y()), QPointF(screen.right(), at.y()));
    }
}

void drawRound(QPainter &painter, const QRectF &screen)
{
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(screen.center(), screen.height() * 0.4, screen.height() * 0.4);
}

} // namespace screenguides
