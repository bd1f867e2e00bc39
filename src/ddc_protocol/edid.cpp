#include "ddc_protocol/edid.h"

namespace {

constexpr qsizetype kBaseBlockSize = 128;
constexpr qsizetype kDescriptorOffsets[] = {54, 72, 90, 108};
constexpr qsizetype kDescriptorSize = 18;
constexpr qsizetype kNameOffset = 5;
constexpr qsizetype kNameSize = 13;
constexpr char kMonitorNameTag = char(0xFC);

int littleEndianWord(const QByteArray &bytes, qsizetype offset)
{
    return static_cast<quint8>(bytes[offset]) | static_cast<quint8>(bytes[offset + 1]) << 8;
}

QString descriptorName(const QByteArray &edid)
{
    for (const qsizetype offset : kDescriptorOffsets) {
        if (offset + kDescriptorSize - 1 >= edid.size())
            break;
        const bool isName =
            edid[offset] == 0 && edid[offset + 1] == 0 && edid[offset + 2] == 0 && edid[offset + 3] == kMonitorNameTag;
        if (!isName)
            continue;
        const QString name = QString::fromLatin1(edid.constData() + offset + kNameOffset, kNameSize).trimmed();
        if (!name.isEmpty())
            return name;
    }
    return {};
}

// An EDID stores the manufacturer big-endian. It is read little-endian here on purpose: these fallback names are the
// ones users have always seen, and stored choices go by them.
QString fallbackName(const QByteArray &edid)
{
    const int word = littleEndianWord(edid, 8);
    QString letters;
    for (const int shift : {10, 5, 0})
        letters += QChar(((word >> shift) & 0x1F) + 0x40);
    const int product = littleEndianWord(edid, 10);
    return QStringLiteral("%1-%2").arg(letters).arg(product, 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace

QString edidModelName(const QByteArray &edid)
{
    if (edid.size() < kBaseBlockSize)
        return {};
    const QString name = descriptorName(edid);
    return name.isEmpty() ? fallbackName(edid) : name;
}
