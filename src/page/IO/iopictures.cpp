#include "page/IO/iopictures.h"

#include <span>

#include <QPainter>
#include <QString>

#include "controls/palette.h"

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

/// The monitor's back with a row of sockets; the cable of the one that is chosen shines.
void drawSockets(QPainter &painter, const QRectF &screen, std::span<const Socket> sockets, int chosen, bool any)
{
    painter.fillRect(screen, QColor(0xff111715));
    const double cell = screen.width() / double(sockets.size() + 1);
    const double top = screen.center().y() - 14;
    double left = screen.left() + cell / 2;
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

} // namespace

const PanelPicture kInput{paintInput};
const PanelPicture kUsb{paintUsb};

} // namespace iopictures
