#include "controls/palette.h"

#include <algorithm>
#include <iterator>

namespace Palette {
namespace {

struct Named
{
    QStringView name;
    QRgb colour;
};

constexpr Named kNames[] = {
    {u"ground", kGround},
    {u"well", kWell},
    {u"box", kBox},
    {u"card", kCard},
    {u"row", kRow},
    {u"floating", kFloating},
    {u"panelEnd", kPanelEnd},
    {u"panel", kPanel},
    {u"tip", kTip},
    {u"field", kField},
    {u"lit", kLit},
    {u"selected", kSelected},
    {u"progress", kProgress},
    {u"hairline", kHairline},
    {u"rim", kRim},
    {u"edge", kEdge},
    {u"hoveredEdge", kHoveredEdge},
    {u"track", kTrack},
    {u"restingEdge", kRestingEdge},
    {u"groove", kGroove},
    {u"restingGroove", kRestingGroove},
    {u"restingMark", kRestingMark},
    {u"restingPlate", kRestingPlate},
    {u"unlit", kUnlit},
    {u"scroll", kScroll},
    {u"hoveredScroll", kHoveredScroll},
    {u"mint", kMint},
    {u"bright", kBright},
    {u"deep", kDeep},
    {u"checked", kChecked},
    {u"signal", kSignal},
    {u"error", kError},
    {u"text", kText},
    {u"soft", kSoft},
    {u"dim", kDim},
    {u"hint", kHint},
    {u"disabled", kDisabled},
    {u"ink", kInk},
};

} // namespace

QColor translucent(QRgb colour, int alpha)
{
    QColor mixed(colour);
    mixed.setAlpha(alpha);
    return mixed;
}

QString styled(QStringView sheet)
{
    QString text;
    text.reserve(sheet.size() + sheet.size() / 8);
    for (qsizetype at = 0; at < sheet.size();) {
        if (sheet[at] != u'@') {
            text += sheet[at++];
            continue;
        }
        qsizetype end = at + 1;
        while (end < sheet.size() && sheet[end].isLetter())
            ++end;
        const QStringView name = sheet.sliced(at + 1, end - at - 1);
        const auto *found = std::find_if(std::begin(kNames), std::end(kNames),
                                         [name](const Named &colour) { return colour.name == name; });
        text += found == std::end(kNames) ? sheet.sliced(at, end - at).toString() : QColor(found->colour).name();
        at = end;
    }
    return text;
}

} // namespace Palette
