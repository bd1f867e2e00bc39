#include "page/OledCare/carepictures.h"

#include <algorithm>

#include <QPainter>

#include "controls/palette.h"

namespace carepictures {

namespace {

constexpr QRgb kWall = 0xff1c2f3d;
constexpr QRgb kWindow = 0xffdfe5e2;
constexpr QRgb kWindowText = 0xff9aa8a1;
constexpr QRgb kBar = 0xff3a4b57;
constexpr QRgb kSign = 0xfffff2c4;
constexpr double kBarHeight = 0.08; // of the screen
constexpr double kFilmBar = 0.14;   // above and below a film

/// How much light a function leaves to what it dims, by its level.
double lightLeft(int level)
{
    constexpr double kLight[] = {1, 0.65, 0.4, 0.18};
    return kLight[std::clamp(level, 0, 3)];
}

QColor dimmed(QRgb colour, double light)
{
    return QColor(colour).darker(static_cast<int>(100 / light));
}

/// A place in parts of the screen.
QRectF at(const QRectF &screen, double x, double y, double width, double height)
{
    return {screen.x() + x * screen.width(), screen.y() + y * screen.height(), width * screen.width(),
            height * screen.height()};
}

void drawWindow(QPainter &painter, const QRectF &screen)
{
    painter.fillRect(at(screen, 0.12, 0.14, 0.5, 0.62), QColor(kWindow));
    for (int line = 0; line < 7; ++line)
        painter.fillRect(at(screen, 0.15, 0.22 + 0.07 * line, line % 3 == 2 ? 0.28 : 0.42, 0.02), QColor(kWindowText));
}

void drawTaskbar(QPainter &painter, const QRectF &screen, double light)
{
    painter.fillRect(at(screen, 0, 1 - kBarHeight, 1, kBarHeight), dimmed(kBar, light));
    for (int icon = 0; icon < 6; ++icon)
        painter.fillRect(at(screen, 0.02 + 0.045 * icon, 1 - kBarHeight * 0.75, 0.028, kBarHeight * 0.5),
                         dimmed(icon == 0 ? Palette::kMint : kWindow, light));
}

void drawSign(QPainter &painter, const QRectF &screen, double light)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(dimmed(kSign, light));
    painter.drawEllipse(at(screen, 0.88, 0.07, 0.06, 0.1067));
}

void drawDesktop(QPainter &painter, const QRectF &screen)
{
    painter.fillRect(screen, QColor(kWall));
    drawWindow(painter, screen);
    drawTaskbar(painter, screen, 1);
}

/// The whole picture out of its place, once for each of the places that it goes to.
void paintShift(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    const int places = std::clamp(values(Command::PixelShift, 0), 0, 3);
    drawDesktop(painter, screen);
    painter.setPen(QPen(QColor(Palette::kMint), 1.5, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    for (int place = 1; place <= places; ++place)
        painter.drawRect(at(screen, 0.12, 0.14, 0.5, 0.62).translated(7.0 * place, 5.0 * place));
}

/// The faster it is, the less of a round has passed before the screen is dimmed.
void paintStill(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawDesktop(painter, screen);
    if (!values.is(Command::StillPicture, 1))
        return;
    painter.fillRect(screen, QColor(0, 0, 0, 150));
    const int passed = 360 - 110 * std::clamp(values(Command::DetectionRate, 1), 0, 2);
    const QRectF round(screen.right() - 74, screen.top() + 18, 56, 56);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(Palette::kGroove), 5));
    painter.drawEllipse(round);
    painter.setPen(QPen(QColor(Palette::kMint), 5));
    painter.drawArc(round, 90 * 16, -passed * 16);
}

void paintSign(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawDesktop(painter, screen);
    drawSign(painter, screen, lightLeft(values(Command::StaticIcon, 0)));
}

void paintTaskbar(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawDesktop(painter, screen);
    drawTaskbar(painter, screen, lightLeft(values(Command::Taskbar, 0)));
}

/// A film between black bars: its edges fade the more, the stronger it is.
void paintBoundary(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    painter.fillRect(screen, Qt::black);
    const QRectF film = at(screen, 0, kFilmBar, 1, 1 - 2 * kFilmBar);
    const double fade = 0.12 * std::clamp(values(Command::Boundary, 0), 0, 3);
    const QColor light(kSign);
    QLinearGradient across(film.topLeft(), film.bottomLeft());
    across.setColorAt(0, fade > 0 ? dimmed(kSign, 0.2) : light);
    across.setColorAt(fade, light);
    across.setColorAt(1 - fade, light);
    across.setColorAt(1, fade > 0 ? dimmed(kSign, 0.2) : light);
    painter.fillRect(film, across);
}

/// What a window that was closed leaves behind.
void paintIsp(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    painter.fillRect(screen, QColor(kWall));
    if (!values.is(Command::CareIsp, 1)) {
        painter.setOpacity(0.16);
        drawWindow(painter, screen);
        painter.setOpacity(1);
    }
    drawTaskbar(painter, screen, 1);
}

} // namespace

const PanelPicture kPixelShift{paintShift};
const PanelPicture kStillPicture{paintStill};
const PanelPicture kStaticIcon{paintSign};
const PanelPicture kTaskbar{paintTaskbar};
const PanelPicture kBoundary{paintBoundary};
const PanelPicture kIsp{paintIsp};

} // namespace carepictures
