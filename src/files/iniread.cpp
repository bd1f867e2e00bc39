#include "files/inifile.h"

#include <algorithm>
#include <iterator>

#include <QByteArrayView>
#include <QStringList>

#include "files/inilines.h"
#include "files/initext.h"

namespace {

/// How values of other types begin; they end with a bracket. Texts with a NUL are "@String(...)" and harmless.
constexpr const char *kOtherTypes[] = {"@ByteArray(", "@Variant(", "@DateTime(", "@Rect(",
                                       "@Size(",      "@Point(",   "@Invalid("};
constexpr char kTextType[] = "@String(";

bool isOtherType(const QString &text)
{
    return text.endsWith(QLatin1Char(')')) &&
           std::any_of(std::begin(kOtherTypes), std::end(kOtherTypes),
                       [&text](const char *type) { return text.startsWith(QLatin1String(type)); });
}

/// A text that begins with '@' carries a second one.
QString plainText(const QString &text)
{
    if (text.startsWith(QLatin1String(kTextType)) && text.endsWith(QLatin1Char(')')))
        return text.mid(static_cast<qsizetype>(qstrlen(kTextType))).chopped(1);
    return text.startsWith(QLatin1String("@@")) ? text.mid(1) : text;
}

QVariant valueOf(QByteArrayView bytes, QStringList texts)
{
    if (std::any_of(texts.cbegin(), texts.cend(), isOtherType))
        return bytes.toByteArray();
    for (QString &text : texts)
        text = plainText(text);
    return texts.size() == 1 ? QVariant(texts.first()) : QVariant(texts);
}

/// The group of the keys below a section's line, with a slash; [General] stands for none, [%General] for that name.
QString groupOf(QByteArrayView name)
{
    constexpr QLatin1String kGeneral("general");
    if (QLatin1String(name).compare(kGeneral, Qt::CaseInsensitive) == 0)
        return {};
    const bool escaped =
        name.startsWith('%') && QLatin1String(name.sliced(1)).compare(kGeneral, Qt::CaseInsensitive) == 0;
    return iniKey(escaped ? name.sliced(1) : name) + QLatin1Char('/');
}

} // namespace

QString normalizedKey(const QString &key)
{
    return key.split(QLatin1Char('/'), Qt::SkipEmptyParts).join(QLatin1Char('/'));
}

IniContent parseIni(const QByteArray &bytes)
{
    constexpr char kByteOrderMark[] = "\xef\xbb\xbf";
    IniContent content;
    content.hasForeignLines = bytes.contains('\0');
    IniLines lines(bytes.startsWith(kByteOrderMark) ? QByteArrayView(bytes).sliced(3) : QByteArrayView(bytes));
    QString group;
    qsizetype room = kMostIniParts;
    for (IniLine line; room >= 0 && lines.next(line); --room) {
        const QByteArrayView text = line.text;
        if (text.startsWith('[')) {
            const qsizetype end = text.indexOf(']');
            content.hasForeignLines = content.hasForeignLines || end < 0;
            group = groupOf((end < 0 ? text.sliced(1) : text.sliced(1, end - 1)).trimmed());
        } else if (line.equals > 0) {
            const QString key = normalizedKey(group + iniKey(text.first(line.equals).trimmed()));
            const QByteArrayView value = text.sliced(line.equals + 1);
            const QStringList texts = iniTexts(value, room);
            room -= texts.size() - 1;
            if (key.isEmpty())
                content.hasForeignLines = true;
            else
                content.values.insert(key, valueOf(value, texts));
        } else {
            content.hasForeignLines = true;
        }
    }
    return room >= 0 ? content : IniContent{{}, true};
}
