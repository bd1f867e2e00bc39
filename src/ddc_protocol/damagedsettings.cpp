#include "ddc_protocol/damagedsettings.h"

#include <QDebug>
#include <QFileInfo>

#include "files/wholefile.h"
#include "platform/desk.h"

namespace {

constexpr int kMostKept = 9;

QString copyName(const QString &fileName, int number)
{
    const QString name = fileName + QLatin1String(".bad");
    return number == 1 ? name : name + QString::number(number);
}

bool holds(const QString &fileName, const WholeFile &file)
{
    const WholeFile kept = readWhole(fileName, file.bytes.size());
    return !file.more && kept.exists && kept.error.isEmpty() && !kept.more && kept.bytes == file.bytes;
}

bool isTaken(const QString &fileName)
{
    return QFileInfo::exists(fileName) || platform::desk().files().isLink(fileName);
}

} // namespace

bool keepDamaged(const QString &fileName, const WholeFile &damaged)
{
    int number = 1;
    for (; number <= kMostKept && isTaken(copyName(fileName, number)); ++number) {
        if (holds(copyName(fileName, number), damaged))
            return true;
    }
    const QString copy = copyName(fileName, std::min(number, kMostKept));
    const bool kept =
        damaged.more ? platform::desk().files().replace(fileName, copy) : writeWhole(copy, damaged.bytes).isEmpty();
    if (kept)
        qWarning().noquote() << fileName << "is damaged; what it held is kept in" << copy;
    return kept;
}
