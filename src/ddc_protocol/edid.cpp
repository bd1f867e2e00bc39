#include "ddc_protocol/edid.h"

namespace {

constexpr qsizetype kBaseBlockSize = 128;
constexpr qsizetype kDescriptorOffsets[] = {54, 72, 90, 108};
constexpr qsizetype kDescriptorSize = 18;
constexpr qsizetype kNameOffset = 5;
constexpr qsizetype kNameSize = 13;
constexpr char kMonitorNameTag = char(0xFC);
constexpr char kSerialTag = char(0xFF);
constexpr qsizetype kSerialOffset = 12; // 32 bits, as week and year beside it in the header
constexpr qsizetype kWeekOffset = 16;
constexpr qsizetype kYearOffset = 17;
constexpr int kFirstYear = 1990;
constexpr int kLastWeek = 54;

int byteAt(const QByteArray &bytes, qsizetype offset)
{
    return static_cast<quint8>(bytes[offset]);
}

int littleEndianWord(const QByteArray &bytes, qsizetype offset)
{
    return byteAt(bytes, offset) | byteAt(bytes, offset + 1) << 8;
}

/// The first descriptor of a kind that is not empty.
QString descriptorText(const QByteArray &edid, char tag)
{
    for (const qsizetype offset : kDescriptorOffsets) {
        if (offset + kDescriptorSize - 1 >= edid.size())
            break;
        const bool isText =
            edid[offset] == 0 && edid[offset + 1] == 0 && edid[offset + 2] == 0 && edid[offset + 3] == tag;
        if (!isText)
            continue;
        const QString text = QString::fromLatin1(edid.constData() + offset + kNameOffset, kNameSize).trimmed();
        if (!text.isEmpty())
            return text;
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

QString serialNumber(const QByteArray &edid)
{
    const QString text = descriptorText(edid, kSerialTag);
    if (!text.isEmpty())
        return text;
    const auto number = static_cast<quint32>(littleEndianWord(edid, kSerialOffset)) |
                        static_cast<quint32>(littleEndianWord(edid, kSerialOffset + 2)) << 16;
    return number == 0 ? QString() : QString::number(number);
}

/// Of the first descriptor, when it is a timing: the low eight bits of each number, and four more in a byte behind.
QSize preferredResolution(const QByteArray &edid)
{
    const qsizetype timing = kDescriptorOffsets[0];
    if (littleEndianWord(edid, timing) == 0)
        return {};
    const auto number = [&](qsizetype low) {
        return byteAt(edid, timing + low) | (byteAt(edid, timing + low + 2) >> 4) << 8;
    };
    return {number(2), number(5)};
}

} // namespace

QString edidModelName(const QByteArray &edid)
{
    if (edid.size() < kBaseBlockSize)
        return {};
    const QString name = descriptorText(edid, kMonitorNameTag);
    return name.isEmpty() ? fallbackName(edid) : name;
}

EdidFacts edidFacts(const QByteArray &edid)
{
    EdidFacts facts;
    if (edid.size() < kBaseBlockSize)
        return facts;
    facts.serial = serialNumber(edid);
    facts.year = kFirstYear + byteAt(edid, kYearOffset);
    const int week = byteAt(edid, kWeekOffset);
    facts.week = week <= kLastWeek ? week : 0;
    facts.resolution = preferredResolution(edid);
    return facts;
}
