#include "PictureAudioCom/soundcolours.h"

#include <algorithm>

#include <QColor>

namespace {

constexpr double kLastHue = 280.0 / 360; // violet: beyond it the hues come back to red
constexpr double kDarkestShare = 0.2;

/// The colour of some bars: their middle tone, as bright as they are full.
QRgb colourOf(const QList<int> &heights, qsizetype first, qsizetype last, int highest)
{
    double sum = 0, moment = 0;
    for (qsizetype i = first; i < last; ++i) {
        const double share = std::max(0, heights[i] - 1) / static_cast<double>(highest);
        sum += share;
        moment += share * static_cast<double>(i);
    }
    if (sum <= 0)
        return qRgb(0, 0, 0);
    const double tone = moment / sum / static_cast<double>(std::max<qsizetype>(heights.size() - 1, 1));
    const double fill = sum / static_cast<double>(last - first);
    return QColor::fromHsvF(static_cast<float>(tone * kLastHue), 1.0f,
                            static_cast<float>(kDarkestShare + (1 - kDarkestShare) * fill))
        .rgb();
}

} // namespace

ZoneColours soundColours(const QList<int> &heights)
{
    const int highest = heights.isEmpty() ? 0 : *std::ranges::max_element(heights) - 1; // a bar of nothing has 1
    if (highest <= 0)
        return {};
    const qsizetype middle = heights.size() / 2;
    return {colourOf(heights, 0, middle, highest), colourOf(heights, middle, heights.size(), highest),
            colourOf(heights, 0, heights.size(), highest)};
}
