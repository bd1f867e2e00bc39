#include "page/Office/papersize.h"

#include <QString>

#include "ddc_protocol/settingsstore.h"

namespace {

const QString kWidthKey = QStringLiteral("Office/PaperWidth");
const QString kHeightKey = QStringLiteral("Office/PaperHeight");
constexpr QSize kA4(210, 297);

} // namespace

QSize storedPaper()
{
    const QSize stored(settingsInt(kWidthKey, 0, false), settingsInt(kHeightKey, 0, false));
    return stored.isEmpty() ? kA4 : stored;
}

bool storePaper(const QSize &millimetres)
{
    return storeSettings({{kWidthKey, millimetres.width()}, {kHeightKey, millimetres.height()}});
}
