#include "page/IO/iopictures.h"

#include <span>

#include <QFontInfo>
#include <QPainter>
#include <QPolygonF>
#include <QString>

#include "controls/captions.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/testpicture.h"

namespace iopictures {

namespace {

struct Socket
{
    const char *name;
    double width; ///< in parts of the widest
    int value;    ///< of the option that chooses it
};
constexpr Socket kInputs[] = {{"DP1", 0.8, 1}, {"DP2", 0.8, 2}, {"Type-C", 0.5, 3}, {"HDMI1", 1, 4}, {"HDMI2", 1, 5}};
constexpr Socket kUpstream[] = {{"Type-C", 0.5, 0}, {"Type-B", 0.6, 1}};
constexpr int kByItself = 0; // "Auto": any of them

/// The names stand side by side: all of them are as small as the widest needs.
QFont fontOfNames(const QFont &usual, std::span<const Socket> sockets, double room)
{
    QFont font = usual;
    for (const Socket &socket : sockets)
        font = fitCaption(QLatin1String(socket.name), font, QFontInfo(font).pixelSize(), int(room)).font;
    return font;
}

/// The monitor's back with a row of sockets; the cable of the one that is chosen shines.
void drawSockets(QPainter &painter, const QRectF &screen, std::span<const Socket> sockets, int chosen, bool any)
{
    painter.fillRect(screen, QColor(0xff111715));
    const double cell = screen.width() / double(sockets.size() + 1);
    const double top = screen.center().y() - 14;
    double left = screen.left() + cell / 2;
    const QFont usual = painter.font();
    painter.setFont(fontOfNames(usual, sockets, cell - metrics::kInset));
    for (const Socket &socket : sockets) {
        const bool isOn = any || socket.value == chosen;
        const QColor colour(isOn ? Palette::kMint : Palette::kEdge);
        QRectF hole(0, 0, cell * 0.62 * socket.width, 24);
        hole.moveCenter(QPointF(left + cell / 2, top));
        painter.setPen(QPen(colour, 2, any ? Qt::DashLine : Qt::SolidLine));
        painter.setBrush(QColor(Palette::kGround));
        painter.drawRoundedRect(hole, 5, 5);
        painter.drawText(QRectF(left, top - 52, cell, 24), Qt::AlignCenter, QLatin1String(socket.name));
        if (isOn && !any) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(colour);
            painter.drawRoundedRect(hole.adjusted(4, 4, -4, 4), 3, 3);
            painter.drawRect(QRectF(hole.center().x() - 4, hole.bottom() + 4, 8, screen.bottom() - hole.bottom()));
        }
        left += cell;
    }
    painter.setFont(usual);
}

void paintInput(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    const int chosen = values(Command::InputSignal, kByItself);
    drawSockets(painter, screen, kInputs, chosen, chosen == kByItself);
}

void paintUsb(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawSockets(painter, screen, kUpstream, values(Command::UsbSwitch, -1), false);
}

/// A flash, for power.
void drawFlash(QPainter &painter, const QPointF &middle, double size, const QColor &colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF{middle + QPointF(0.1, -1) * size, middle + QPointF(-0.6, 0.15) * size,
                                  middle + QPointF(-0.05, 0.15) * size, middle + QPointF(-0.1, 1) * size,
                                  middle + QPointF(0.6, -0.15) * size, middle + QPointF(0.05, -0.15) * size});
}

/// A screen far away: dark, or with a picture.
void drawSmallScreen(QPainter &painter, const QRectF &place, bool hasPicture)
{
    painter.setPen(QPen(QColor(hasPicture ? Palette::kMint : Palette::kEdge), 2));
    painter.setBrush(QColor(Palette::kGround));
    painter.drawRoundedRect(place, 4, 4);
    const QRectF inside = place.adjusted(3, 3, -3, -3);
    if (hasPicture)
        painter.drawImage(inside.topLeft(), testPicture(inside.size().toSize(), {}));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Palette::kEdge));
    painter.drawRect(QRectF(place.center().x() - 2, place.bottom() + 1, 4, 7));
    painter.drawRect(QRectF(place.center().x() - 12, place.bottom() + 8, 24, 3));
}

/// The moments after the monitor is switched on, from left to right, and the power that it takes until then.
void paintQuickBoot(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    painter.fillRect(screen, QColor(0xff111715));
    const bool isQuick = values.is(Command::QuickBoot, 1);
    constexpr int kMoments = 5;
    const double cell = screen.width() / (kMoments + 0.5);
    const QRectF first(screen.left() + cell * 0.33, screen.center().y() - cell * 0.42, cell * 0.84, cell * 0.5);
    for (int moment = 0; moment < kMoments; ++moment) {
        const QRectF place = first.translated(moment * cell, 0);
        const bool isOn = moment >= (isQuick ? 1 : 4);
        drawSmallScreen(painter, place, isOn);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(isOn ? Palette::kMint : Palette::kRestingEdge));
        painter.drawEllipse(QPointF(place.center().x(), place.bottom() + 32), 4, 4);
    }
    // Two flashes for what it needs while it is off.
    for (int flash = 0; flash < 2; ++flash)
        drawFlash(painter, QPointF(first.left() + 9 + 24 * flash, first.top() - 28), 13,
                  QColor(flash == 0 || isQuick ? Palette::kMint : Palette::kRestingEdge));
}

/// A device that is charged at the one socket, and a computer whose picture comes through the other.
void paintUsbPower(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    painter.fillRect(screen, QColor(0xff111715));
    const bool hasPower = values.is(Command::UsbPower, 1);
    const bool hasPicture = values.is(Command::DpAltMode, 1);
    const auto part = [&screen](double x, double y, double width, double height) {
        return QRectF(screen.left() + x * screen.width(), screen.top() + y * screen.height(), width * screen.width(),
                      height * screen.height());
    };
    const auto cable = [&](const QRectF &from, const QRectF &to, bool isOn) {
        painter.setPen(QPen(QColor(isOn ? Palette::kMint : Palette::kRestingEdge), 4));
        painter.drawLine(QPointF(from.right(), from.center().y()), QPointF(to.left(), from.center().y()));
    };
    const QRectF monitor = part(0.53, 0.22, 0.38, 0.38);
    const QRectF phone = part(0.16, 0.14, 0.09, 0.26);
    const QRectF computer = part(0.1, 0.46, 0.2, 0.2);
    cable(phone, monitor, hasPower);
    cable(computer, monitor, hasPicture);
    drawSmallScreen(painter, monitor, hasPicture);
    painter.setPen(QPen(QColor(hasPower ? Palette::kMint : Palette::kEdge), 2));
    painter.setBrush(QColor(Palette::kGround));
    painter.drawRoundedRect(phone, 5, 5);
    drawFlash(painter, phone.center(), phone.width() * 0.4, QColor(hasPower ? Palette::kMint : Palette::kRestingEdge));
    painter.setPen(QPen(QColor(Palette::kMint), 2));
    painter.setBrush(QColor(Palette::kGround));
    painter.drawRoundedRect(computer, 3, 3);
    const QRectF inside = computer.adjusted(3, 3, -3, -3);
    painter.drawImage(inside.topLeft(), testPicture(inside.size().toSize(), {}));
    painter.drawLine(computer.bottomLeft() + QPointF(-12, 4), computer.bottomRight() + QPointF(12, 4));
}

/// A player and the monitor at its cable: what one of them is told, the other does too.
void paintCec(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    painter.fillRect(screen, QColor(0xff111715));
    const bool isOn = values.is(Command::Cec, 1);
    const double unit = screen.height() / 16;
    const QPointF middle = screen.center();
    const QRectF player(middle.x() - 12 * unit, middle.y() - 1.2 * unit, 7 * unit, 2.4 * unit);
    const QRectF monitor(middle.x() + 3 * unit, middle.y() - 4 * unit, 10 * unit, 6 * unit);
    const QColor colour(isOn ? Palette::kMint : Palette::kRestingEdge);
    painter.setPen(QPen(colour, 4));
    painter.drawLine(QPointF(player.right(), middle.y()), QPointF(monitor.left(), middle.y()));
    painter.setPen(QPen(colour, 3, Qt::SolidLine, Qt::RoundCap));
    for (const double way : {-1.0, 1.0}) { // it goes both ways
        const QPointF tip(middle.x() - unit + way * 2.2 * unit, middle.y() - 1.6 * unit);
        painter.drawLine(tip, tip + QPointF(-way, -0.8) * unit);
        painter.drawLine(tip, tip + QPointF(-way, 0.8) * unit);
    }
    painter.setPen(QPen(QColor(Palette::kMint), 2));
    painter.setBrush(QColor(Palette::kGround));
    painter.drawRoundedRect(player, 4, 4);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Palette::kSignal));
    painter.drawEllipse(QPointF(player.right() - unit, middle.y()), 4, 4);
    drawSmallScreen(painter, monitor, isOn); // the player was switched on
}

} // namespace

const PanelPicture kInput{paintInput};
const PanelPicture kUsb{paintUsb};
const PanelPicture kUsbPower{paintUsbPower};
const PanelPicture kQuickBoot{paintQuickBoot};
const PanelPicture kCec{paintCec};

} // namespace iopictures
