#include "splitter/splitlayout.h"

#include <algorithm>
#include <array>
#include <tuple>

#include <QCoreApplication>

namespace {

constexpr int kHalf = kWholeSide / 2;
constexpr int kThird = kWholeSide / 3;

std::array<SplitLayout, 4> makeFixed()
{
    const auto column = [](int left, int right) { return Zone{left, 0, right, kWholeSide}; };
    const auto named = [](const char *name, std::vector<Zone> zones) {
        return SplitLayout{QString::fromLatin1(name), std::move(zones)};
    };
    return {
        named(QT_TRANSLATE_NOOP("QObject", "Halves"), {column(0, kHalf), column(kHalf, kWholeSide)}),
        named(QT_TRANSLATE_NOOP("QObject", "Thirds"),
              {column(0, kThird), column(kThird, 2 * kThird), column(2 * kThird, kWholeSide)}),
        named(QT_TRANSLATE_NOOP("QObject", "Quarters"), {{0, 0, kHalf, kHalf},
                                                         {kHalf, 0, kWholeSide, kHalf},
                                                         {0, kHalf, kHalf, kWholeSide},
                                                         {kHalf, kHalf, kWholeSide, kWholeSide}}),
        named(QT_TRANSLATE_NOOP("QObject", "Main and side"), {column(0, 2 * kThird), column(2 * kThird, kWholeSide)})};
}

bool isZone(const Zone &zone)
{
    const auto isSide = [](int begin, int end) { return begin >= 0 && end <= kWholeSide && begin <= end - kLeastSide; };
    return isSide(zone.left, zone.right) && isSide(zone.top, zone.bottom);
}

bool overlap(const Zone &a, const Zone &b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

} // namespace

std::span<const SplitLayout> fixedLayouts()
{
    static const std::array<SplitLayout, 4> layouts = makeFixed();
    return layouts;
}

QString shownName(const SplitLayout &layout)
{
    return layout.isOwn ? layout.name : QCoreApplication::translate("QObject", layout.name.toLatin1().constData());
}

bool coversScreen(std::span<const Zone> zones)
{
    if (zones.empty() || zones.size() > kMostZones || !std::all_of(zones.begin(), zones.end(), isZone))
        return false;
    qint64 area = 0;
    for (auto zone = zones.begin(); zone != zones.end(); ++zone) {
        if (std::any_of(std::next(zone), zones.end(), [zone](const Zone &other) { return overlap(*zone, other); }))
            return false;
        area += qint64(zone->right - zone->left) * (zone->bottom - zone->top);
    }
    return area == qint64(kWholeSide) * kWholeSide;
}

void putInOrder(std::vector<Zone> &zones)
{
    std::sort(zones.begin(), zones.end(),
              [](const Zone &a, const Zone &b) { return std::tie(a.top, a.left) < std::tie(b.top, b.left); });
}
