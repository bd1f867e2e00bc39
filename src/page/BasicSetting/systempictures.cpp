#include "page/BasicSetting/systempictures.h"

#include <algorithm>
#include <cmath>

#include <QObject>
#include <QPainter>
#include <QPolygonF>
#include <QRadialGradient>

#include "controls/palette.h"
#include "controls/screenguides.h"
#include "controls/testpicture.h"
#include "page/BasicSetting/systemtable.h"

namespace systempictures {

namespace {

/// The monitor's menu, as large as it is on a screen of this size.
QRectF menuOn(const QRectF &screen, const PictureValues &values)
{
    QRectF menu(0, 0, screen.width() * 0.36, screen.height() * 0.44);
    const QSizeF room = screen.size() - menu.size();
    menu.moveTopLeft(screen.topLeft() + QPointF(room.width() * values(Command::OsdHPosition, 50) / 100,
                                                room.height() * values(Command::OsdVPosition, 50) / 100));
    return menu;
}

// The rows of the menu, as shares of its height.
constexpr double kMenuTop = 0.12;
constexpr double kMenuPitch = 0.17;
constexpr double kMenuRow = 0.07;

void drawMenu(QPainter &painter, const QRectF &menu, double opacity, int rows = 5)
{
    painter.save();
    painter.setOpacity(opacity);
    painter.setPen(QPen(QColor(Palette::kEdge), 1));
    painter.setBrush(QColor(Palette::kGround));
    painter.drawRoundedRect(menu, 6, 6);
    painter.setPen(Qt::NoPen);
    for (int row = 0; row < rows; ++row) {
        painter.setBrush(QColor(row == 1 ? Palette::kMint : Palette::kRestingEdge));
        painter.drawRoundedRect(QRectF(menu.left() + 12, menu.top() + menu.height() * (kMenuTop + kMenuPitch * row),
                                       menu.width() * (0.7 - 0.08 * (row % 3)), menu.height() * kMenuRow),
                                2, 2);
    }
    painter.restore();
}

void paintOsd(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    screenguides::drawDesktop(painter, screen);
    const QRectF menu = menuOn(screen, values);
    drawMenu(painter, menu, 1 - 0.8 * values(Command::OsdTransparency, 0) / 100.0, 4); // the time is the last
    painter.setPen(QColor(Palette::kText));
    painter.drawText(menu.adjusted(0, 0, -10, -6), Qt::AlignRight | Qt::AlignBottom,
                     QObject::tr("%1 s").arg(values(Command::OsdShowTime, 20)));
}

void paintPowerSaving(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen, {.brightness = 0.5 - 0.13 * std::clamp(values(Command::PowerSaving, 0), 0, 2)});
}

void paintPowerLed(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    // The lamp and what is around it, seen from near.
    painter.fillRect(screen, QColor(0xff060807));
    QRectF edge(screen.left(), screen.center().y(), screen.width(), screen.height() / 2);
    painter.fillRect(edge, QColor(0xff1a1f1d));
    const double level = (std::clamp(values(Command::PowerLed, 1), 1, 4) - 1) / 3.0;
    const QPointF lamp(screen.center().x(), edge.center().y());
    QRadialGradient glow(lamp, screen.height() * (0.1 + 0.35 * level));
    glow.setColorAt(0, QColor(0, 255, 113, int(200 * level)));
    glow.setColorAt(1, QColor(0, 255, 113, 0));
    painter.fillRect(screen, glow);
    painter.setPen(QPen(QColor(Palette::kRestingEdge), 1));
    painter.setBrush(level > 0 ? QColor::fromRgbF(0.2F, 1.0F, 0.55F, float(0.4 + 0.6 * level)) : QColor(0xff0c100e));
    painter.drawEllipse(lamp, 9, 9);
}

/// The screen, standing upright when it notices that it is.
void paintGravity(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    painter.fillRect(screen, QColor(0xff0b0f0d));
    QRectF upright(0, 0, screen.height() * 0.5, screen.height() * 0.88);
    upright.moveCenter(screen.center());
    painter.setPen(QPen(QColor(Palette::kEdge), 2));
    painter.setBrush(QColor(0xff18242e));
    painter.drawRoundedRect(upright, 6, 6);
    painter.save();
    painter.translate(upright.center());
    if (values(Command::GravitySensor, 0) == 0)
        painter.rotate(90); // the menu lies on its side
    QRectF menu(0, 0, upright.width() * 0.8, upright.width() * 0.6);
    menu.moveCenter(QPointF());
    drawMenu(painter, menu, 1);
    painter.restore();
}

void paintMenuLock(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    screenguides::drawDesktop(painter, screen);
    const QRectF menu = menuOn(screen, values);
    const bool isLocked = values(Command::MenuLock, 0) != 0;
    drawMenu(painter, menu, isLocked ? 0.45 : 1);
    if (!isLocked)
        return;
    const QPointF middle = menu.center();
    painter.setPen(QPen(QColor(Palette::kMint), 4));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(middle.x() - 12, middle.y() - 28, 24, 30), 0, 180 * 16);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Palette::kMint));
    painter.drawRoundedRect(QRectF(middle.x() - 19, middle.y() - 12, 38, 30), 4, 4);
}

/// The menu speaks: its language's own name stands in it.
void paintLanguage(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    screenguides::drawDesktop(painter, screen);
    QRectF menu(0, 0, screen.width() * 0.5, screen.height() * 0.56);
    menu.moveCenter(screen.center());
    drawMenu(painter, menu, 1);
    const double top = kMenuTop + kMenuRow / 2 + kMenuPitch / 2; // around the second row, up to the gaps beside it
    const QRectF line(menu.left() + 12, menu.top() + menu.height() * top, menu.width() - 24,
                      menu.height() * kMenuPitch);
    painter.fillRect(line, QColor(Palette::kMint));
    painter.setPen(QColor(Palette::kInk));
    painter.drawText(line.adjusted(10, 0, -10, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     QString::fromUtf8(osdLanguageName(values(Command::OsdLanguage, 0))));
}

/// The loudspeaker, with waves as far as it is heard, and a stroke through it while it is not.
void drawSpeaker(QPainter &painter, const QRectF &place, int waves, bool isMute)
{
    const double unit = place.height() / 8;
    const QPointF middle = place.center();
    const QColor colour(isMute ? Palette::kEdge : Palette::kMint);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRect(QRectF(middle.x() - 3.5 * unit, middle.y() - unit, 1.5 * unit, 2 * unit));
    painter.drawPolygon(QPolygonF{middle + QPointF(-2.2, -1) * unit, middle + QPointF(0, -2.6) * unit,
                                  middle + QPointF(0, 2.6) * unit, middle + QPointF(-2.2, 1) * unit});
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, unit * 0.55, Qt::SolidLine, Qt::RoundCap));
    for (int wave = 1; wave <= waves && !isMute; ++wave) {
        const double radius = (0.6 + wave) * unit;
        painter.drawArc(QRectF(middle.x() - radius, middle.y() - radius, 2 * radius, 2 * radius), -45 * 16, 90 * 16);
    }
    if (isMute)
        painter.drawLine(middle + QPointF(-4, 3) * unit, middle + QPointF(2, -3) * unit);
}

/// How much of each tone is heard, from low to high, by the sound's mode.
double toneLevel(int mode, double tone)
{
    const double fromMiddle = std::abs(tone - 0.5) * 2;
    if (mode == 1) // a film has its thunder and its glass
        return 0.45 + 0.5 * fromMiddle * fromMiddle;
    return mode == 2 ? 0.95 - 0.8 * fromMiddle : 0.62; // voices lie in the middle
}

void paintAudio(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    painter.fillRect(screen, QColor(0xff111715));
    const bool isMute = values.is(Command::AudioMute, 1);
    const double volume = values(Command::AudioVolume, 50) / 100.0;
    const double unit = screen.height() / 16;
    drawSpeaker(painter, QRectF(screen.left(), screen.top() + 4 * unit, 9 * unit, 8 * unit),
                static_cast<int>(std::ceil(volume * 3)), isMute);
    constexpr int kTones = 14;
    const double step = (screen.width() - 11 * unit) / kTones;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(isMute ? Palette::kRestingEdge : Palette::kMint));
    for (int tone = 0; tone < kTones; ++tone) {
        const double swing = 0.8 + 0.2 * std::sin(tone * 2.4); // as sound is
        const double level = isMute ? 0 : toneLevel(values(Command::AudioMode, 0), tone / (kTones - 1.0)) * volume;
        const double height = std::max(4.0, 12 * unit * level * swing);
        painter.drawRoundedRect(
            QRectF(screen.left() + 9.5 * unit + step * tone, screen.bottom() - 2 * unit - height, step * 0.6, height),
            2, 2);
    }
}

} // namespace

const PanelPicture kAudio{paintAudio};
const PanelPicture kLanguage{paintLanguage};
const PanelPicture kOsd{paintOsd};
const PanelPicture kPowerSaving{paintPowerSaving};
const PanelPicture kPowerLed{paintPowerLed};
const PanelPicture kGravity{paintGravity};
const PanelPicture kMenuLock{paintMenuLock};

} // namespace systempictures
