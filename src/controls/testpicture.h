#pragma once

#include <QImage>
#include <QSize>

class QPainter;
class QRectF;

/// How a picture is shown by a monitor, for a drawing that makes settings understood: not calibrated, but in the right
/// direction and strong enough to be seen.
struct PictureLook
{
    double brightness = 0.5; ///< 0 to 1, as all without a unit
    double contrast = 0.5;
    double saturation = 0.5;
    double shadows = 0;   ///< how far dark parts are lifted
    double gamma = 2.2;   ///< of the display; 2.2 shows the picture as it is
    double kelvin = 6500; ///< white point
    double day = 1;       ///< 0 for a scene at night
    double red = 1;       ///< how much of each colour white has, beside the white point
    double green = 1;
    double blue = 1;
};

/// A landscape with dark and bright parts and full colours, as such a monitor shows it.
QImage testPicture(const QSize &size, const PictureLook &look);

/// The same over the whole screen of a drawn monitor.
void drawTestPicture(QPainter &painter, const QRectF &screen, const PictureLook &look = {});
