#pragma once

#include <optional>

#include <QByteArray>
#include <QSize>

#include "platform/displays.h"

/// How large the window is at 100 %, as its picture is.
inline constexpr QSize kWindowSize{1280, 800};

/// The factor by which the whole program is drawn so that a window of @p window points fits the work area: 1 where it
/// does as it is. Never so small that a point becomes less than a pixel: the toolkit draws it as large as one then, and
/// cuts off what lies beyond the smaller place that it has for it.
double scaleToFit(const platform::WorkArea &area, const QSize &window);

/// How much of the window the work area has room for, in points of @p ratio pixels, where even that does not fit.
QSize roomFor(const platform::WorkArea &area, double ratio);

/// Has the toolkit draw this process smaller where the screen is too small for the window. The toolkit reads the factor
/// from the environment while the application object is made; made before it and taken back behind it, the factor
/// reaches no program that is started from here, nor the copy that a restart starts.
class WindowScale
{
public:
    explicit WindowScale(const std::optional<platform::WorkArea> &area);

    /// The environment as it was.
    void takeBack();

private:
    std::optional<QByteArray> m_before;
    bool m_isSet = false;
};
