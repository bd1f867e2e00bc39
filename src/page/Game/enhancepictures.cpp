#include "page/Game/enhancepictures.h"

#include <algorithm>

#include <QImage>
#include <QPainter>

#include "controls/testpicture.h"

namespace enhancepictures {

namespace {

void paintHdr(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    static constexpr PictureLook kLooks[] = {{},
                                             {.contrast = 0.65, .saturation = 0.55},
                                             {.contrast = 0.7, .saturation = 0.65, .shadows = 0.5},
                                             {.brightness = 0.45, .contrast = 0.75, .saturation = 0.6}};
    drawTestPicture(painter, screen, kLooks[std::clamp(values(Command::Hdr, 0), 0, 3)]);
}

void paintColor(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen, {.saturation = 0.5 + values(Command::ColorEnhance, 0) / 20.0});
}

void paintContrast(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen, {.contrast = 0.5 + values(Command::ContrastEnhance, 0) / 12.0});
}

void paintShadows(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    const double level = values(Command::BlackLevel, 50) / 100.0;
    drawTestPicture(painter, screen,
                    {.shadows = std::max(0.0, level * 2 - 1), .gamma = 2.2 + std::max(0.0, 1 - level * 2)});
}

/// Enlarged as from a smaller picture, and drawn the sharper the higher the level.
void paintResolution(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    const int level = std::clamp(values(Command::SuperResolution, 0), 0, 5);
    const QSize small = screen.size().toSize() / (7 - level);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QImage picture = testPicture(screen.size().toSize(), {});
    painter.drawImage(screen, picture.scaled(small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

/// A picture that comes while the one before is still drawn is torn.
void paintSync(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    const QImage picture = testPicture(screen.size().toSize(), {});
    const bool isOn = values(Command::AdaptiveSync, 0) != 0;
    for (int part = 0; part < 3; ++part) {
        QRectF strip(screen.left(), screen.top() + screen.height() * part / 3, screen.width(), screen.height() / 3);
        painter.save();
        painter.setClipRect(strip, Qt::IntersectClip);
        painter.drawImage(screen.topLeft() + QPointF(isOn ? 0 : (part - 1) * screen.width() * 0.04, 0), picture);
        painter.restore();
    }
}

} // namespace

const PanelPicture kHdr{paintHdr};
const PanelPicture kColor{paintColor};
const PanelPicture kContrast{paintContrast};
const PanelPicture kShadows{paintShadows};
const PanelPicture kResolution{paintResolution};
const PanelPicture kSync{paintSync};

} // namespace enhancepictures
