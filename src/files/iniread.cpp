#include "files/inifile.h"

#include <algorithm>
#include <utility>

#include <QStringDecoder>
#include <QStringList>

namespace {

/// The letter behind a backslash and what the two stand for.
constexpr std::pair<char, char> kEscapes[] = {{'a', '\a'}, {'b', '\b'},  {'f', '\f'}, {'n', '\n'},
                                              {'r', '\r'}, {'t', '\t'},  {'v', '\v'}, {'"', '"'},
                                              {'?', '?'},  {'\'', '\''}, {'\\', '\\'}};

/// How values of other types begin; they end with a bracket. Texts with a NUL are "@String(...)" and harmless.
constexpr const char *kOtherTypes[] = {"@ByteArray(", "@Variant(", "@DateTime(", "@Rect(",
                                       "@Size(",      "@Point(",   "@Invalid("};
constexpr char kTextType[] = "@String(";

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isLineEnd(char c)
{
    return c == '\r' || c == '\n';
}

int digitOf(char c, int base)
{
    int digit = base;
    if (c >= '0' && c <= '9')
        digit = c - '0';
    else if (c >= 'a' && c <= 'f')
        digit = c - 'a' + 10;
    else if (c >= 'A' && c <= 'F')
        digit = c - 'A' + 10;
    return digit < base ? digit : -1;
}

/// A line in the file's sense: quotes and a backslash hide its end.
struct Line
{
    QByteArrayView text;
    qsizetype equals = -1; ///< the first one outside quotes
};

/// Cuts bytes into lines, leaving out comments and empty lines.
class Lines
{
public:
    explicit Lines(QByteArrayView bytes) : m_bytes(bytes) {}

    bool next(Line &line)
    {
        for (;;) {
            while (m_at < m_bytes.size() && isBlank(m_bytes[m_at]))
                ++m_at;
            if (m_at == m_bytes.size())
                return false;
            if (m_bytes[m_at] != ';')
                break;
            while (m_at < m_bytes.size() && !isLineEnd(m_bytes[m_at]))
                ++m_at;
        }
        line = take();
        return true;
    }

private:
    Line take()
    {
        const qsizetype begin = m_at;
        Line line;
        bool quoted = false;
        for (; m_at < m_bytes.size(); ++m_at) {
            const char c = m_bytes[m_at];
            if (c == '\\')
                skipEscaped();
            else if (c == '"')
                quoted = !quoted;
            else if (!quoted && (isLineEnd(c) || c == ';'))
                break;
            else if (!quoted && c == '=' && line.equals < 0)
                line.equals = m_at - begin;
        }
        m_at = std::min(m_at, m_bytes.size()); // a backslash may be the last byte
        line.text = m_bytes.sliced(begin, m_at - begin);
        return line;
    }

    /// Stops on the last byte that the backslash hides: a line end may be two.
    void skipEscaped()
    {
        ++m_at;
        if (m_at + 1 < m_bytes.size() && isLineEnd(m_bytes[m_at]) && isLineEnd(m_bytes[m_at + 1]) &&
            m_bytes[m_at] != m_bytes[m_at + 1])
            ++m_at;
    }

    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};

/// A key: letters beyond ASCII may stand as they are or as %XX or %UXXXX, a slash as a backslash.
QString unescapedKey(QByteArrayView bytes)
{
    QString key;
    QByteArray plain; // not yet decoded
    const auto flush = [&] { key += QString::fromUtf8(std::exchange(plain, {})); };
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '%' || i + 1 == bytes.size()) {
            plain += bytes[i] == '\\' ? '/' : bytes[i];
            continue;
        }
        const qsizetype digits = bytes[i + 1] == 'U' ? 4 : 2;
        const qsizetype first = digits == 4 ? i + 2 : i + 1;
        bool ok = first + digits <= bytes.size();
        int code = 0;
        for (qsizetype at = first; ok && at < first + digits; ++at) {
            const int digit = digitOf(bytes[at], 16);
            ok = digit >= 0;
            code = code * 16 + digit;
        }
        if (!ok) {
            plain += '%';
            continue;
        }
        flush();
        key += QChar(static_cast<char16_t>(code));
        i = first + digits - 1;
    }
    flush();
    return key;
}

/// Reads a value: texts between commas, in quotes or not.
class Value
{
public:
    explicit Value(QByteArrayView bytes) : m_bytes(bytes) {}

    /// Not much more of them than that.
    QStringList texts(qsizetype most)
    {
        skipBlanks();
        while (m_at < m_bytes.size() && m_texts.size() <= most)
            step();
        endText();
        return m_texts;
    }

private:
    void step()
    {
        const char c = m_bytes[m_at];
        if (c == '\\') {
            ++m_at;
            keepBlanks();
            unescape();
        } else if (c == '"') {
            ++m_at;
            m_quoted = !m_quoted;
            if (!m_quoted)
                skipBlanks();
            keepBlanks();
        } else if (c == ',' && !m_quoted) {
            ++m_at;
            endText();
            skipBlanks();
        } else {
            takePlain();
        }
    }

    /// Bytes that mean themselves.
    void takePlain()
    {
        const qsizetype begin = m_at;
        while (m_at < m_bytes.size()) {
            const char c = m_bytes[m_at];
            if (c == '\\' || c == '"' || (c == ',' && !m_quoted))
                break;
            ++m_at;
        }
        m_text += QString(m_decoder.decode(m_bytes.sliced(begin, m_at - begin)));
        if (m_quoted)
            keepBlanks();
    }

    void unescape()
    {
        if (m_at == m_bytes.size())
            return;
        const char c = m_bytes[m_at];
        for (const auto &[letter, meaning] : kEscapes) {
            if (c == letter) {
                ++m_at;
                return append(meaning);
            }
        }
        if (c == 'x' && m_at + 1 < m_bytes.size() && digitOf(m_bytes[m_at + 1], 16) >= 0) {
            ++m_at;
            append(number(16));
        } else if (digitOf(c, 8) >= 0) {
            append(number(8));
        } else if (isLineEnd(c)) { // the value goes on in the next line
            ++m_at;
            if (m_at < m_bytes.size() && isLineEnd(m_bytes[m_at]) && m_bytes[m_at] != c)
                ++m_at;
        } else {
            ++m_at; // the toolkit knows no such escape and drops it
        }
    }

    char16_t number(int base)
    {
        unsigned value = 0;
        for (int digit = 0; m_at < m_bytes.size() && (digit = digitOf(m_bytes[m_at], base)) >= 0; ++m_at)
            value = value * static_cast<unsigned>(base) + static_cast<unsigned>(digit);
        return static_cast<char16_t>(value);
    }

    void append(char16_t c)
    {
        m_text += QChar(c);
        keepBlanks();
    }

    /// Blanks before the end of a text fall away, unless they are quoted or escaped.
    void keepBlanks() { m_kept = m_text.size(); }

    void endText()
    {
        qsizetype end = m_text.size();
        while (end > m_kept && (m_text[end - 1] == QLatin1Char(' ') || m_text[end - 1] == QLatin1Char('\t')))
            --end;
        m_text.truncate(end);
        m_texts.append(std::exchange(m_text, {}));
        m_kept = 0;
    }

    void skipBlanks()
    {
        while (m_at < m_bytes.size() && (m_bytes[m_at] == ' ' || m_bytes[m_at] == '\t'))
            ++m_at;
    }

    QByteArrayView m_bytes;
    qsizetype m_at = 0;
    bool m_quoted = false;
    QStringDecoder m_decoder{QStringDecoder::Utf8};
    QString m_text;
    qsizetype m_kept = 0;
    QStringList m_texts;
};

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
    return unescapedKey(escaped ? name.sliced(1) : name) + QLatin1Char('/');
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
    Lines lines(bytes.startsWith(kByteOrderMark) ? QByteArrayView(bytes).sliced(3) : QByteArrayView(bytes));
    QString group;
    qsizetype room = kMostIniParts;
    for (Line line; room >= 0 && lines.next(line); --room) {
        const QByteArrayView text = line.text;
        if (text.startsWith('[')) {
            const qsizetype end = text.indexOf(']');
            content.hasForeignLines = content.hasForeignLines || end < 0;
            group = groupOf((end < 0 ? text.sliced(1) : text.sliced(1, end - 1)).trimmed());
        } else if (line.equals > 0) {
            const QString key = normalizedKey(group + unescapedKey(text.first(line.equals).trimmed()));
            const QByteArrayView value = text.sliced(line.equals + 1);
            const QStringList texts = Value(value).texts(room);
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
