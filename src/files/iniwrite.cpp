#include "files/inifile.h"

#include <algorithm>
#include <utility>

#include <QStringEncoder>
#include <QStringList>

namespace {

constexpr char16_t kLettersEscaped[] = u"\a\b\f\n\r\t\v\"\\";
constexpr char kEscapeLetters[] = "abfnrtv\"\\"; // in the same order

bool isAsciiLetterOrDigit(QChar c)
{
    return c.unicode() < 0x80 && c.isLetterOrNumber();
}

bool isHexDigit(QChar c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

/// Letters beyond ASCII as %XX or %UXXXX, the slashes of nested groups as backslashes.
QByteArray escapedKey(const QString &key)
{
    QByteArray escaped;
    for (const QChar c : key) {
        if (c == u'/')
            escaped += '\\';
        else if (isAsciiLetterOrDigit(c) || c == u'_' || c == u'-' || c == u'.')
            escaped += c.toLatin1();
        else if (c.unicode() <= 0xff)
            escaped += '%' + QByteArray::number(c.unicode(), 16).toUpper().rightJustified(2, '0');
        else
            escaped += "%U" + QByteArray::number(c.unicode(), 16).toUpper().rightJustified(4, '0');
    }
    return escaped;
}

/// One text between commas, in quotes where a reader would otherwise end it, cut it or take it for a comment.
QByteArray escapedText(const QString &text)
{
    static const QString lettersEscaped = QString::fromUtf16(kLettersEscaped);
    QByteArray escaped;
    QStringEncoder encoder(QStringEncoder::Utf8);
    bool needsQuotes = text.startsWith(u' ') || text.endsWith(u' ');
    bool behindNumber = false; // a digit there would be read as one more of the number
    QString plain;             // not yet encoded
    const auto flush = [&] { escaped += QByteArray(encoder.encode(std::exchange(plain, {}))); };
    for (const QChar c : text) {
        const qsizetype letter = lettersEscaped.indexOf(c);
        const bool asNumber = c.unicode() < 0x20 || (behindNumber && isHexDigit(c));
        needsQuotes = needsQuotes || c == u';' || c == u',' || c == u'=';
        behindNumber = false;
        if (letter < 0 && !asNumber) {
            plain += c;
            continue;
        }
        flush();
        if (letter >= 0) {
            escaped += '\\';
            escaped += kEscapeLetters[letter];
        } else {
            escaped += c.isNull() ? QByteArray("\\0") : "\\x" + QByteArray::number(c.unicode(), 16);
            behindNumber = true;
        }
    }
    flush();
    return needsQuotes ? '"' + escaped + '"' : escaped;
}

QString markedText(const QString &text)
{
    if (text.contains(QChar(0)))
        return QLatin1String("@String(") + text + u')';
    return text.startsWith(u'@') ? u'@' + text : text;
}

QByteArray valueBytes(const QVariant &value)
{
    if (value.typeId() == QMetaType::QByteArray)
        return value.toByteArray();
    const QStringList texts =
        value.typeId() == QMetaType::QStringList ? value.toStringList() : QStringList(value.toString());
    if (texts.isEmpty())
        return "@Invalid()";
    QByteArrayList escaped;
    for (const QString &text : texts)
        escaped.append(escapedText(markedText(text)));
    return escaped.join(", ");
}

QByteArray sectionLine(const QString &group)
{
    if (group.isEmpty())
        return "[General]";
    // Keys without a group have that name, in any case of its letters.
    const bool isGeneral = group.compare(QLatin1String("general"), Qt::CaseInsensitive) == 0;
    return isGeneral ? "[%" + group.toLatin1() + ']' : '[' + escapedKey(group) + ']';
}

} // namespace

QByteArray composeIni(const QMap<QString, QVariant> &values, const QByteArray &lineEnd)
{
    QMap<QString, QMap<QString, QByteArray>> sections;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const qsizetype slash = value.key().indexOf(u'/');
        sections[value.key().left(std::max<qsizetype>(slash, 0))].insert(value.key().mid(slash + 1),
                                                                         valueBytes(value.value()));
    }
    QByteArray bytes;
    for (auto section = sections.cbegin(); section != sections.cend(); ++section) {
        if (!bytes.isEmpty())
            bytes += lineEnd;
        bytes += sectionLine(section.key()) + lineEnd;
        for (auto key = section->cbegin(); key != section->cend(); ++key)
            bytes += escapedKey(key.key()) + '=' + key.value() + lineEnd;
    }
    return bytes;
}
