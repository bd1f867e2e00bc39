#include "files/initext.h"

#include <utility>

#include <QStringDecoder>

namespace {

/// The letter behind a backslash and what the two stand for.
constexpr std::pair<char, char> kEscapes[] = {{'a', '\a'}, {'b', '\b'},  {'f', '\f'}, {'n', '\n'},
                                              {'r', '\r'}, {'t', '\t'},  {'v', '\v'}, {'"', '"'},
                                              {'?', '?'},  {'\'', '\''}, {'\\', '\\'}};

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
        } else if (isIniLineEnd(c)) { // the value goes on in the next line
            ++m_at;
            if (m_at < m_bytes.size() && isIniLineEnd(m_bytes[m_at]) && m_bytes[m_at] != c)
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

} // namespace

QString iniKey(QByteArrayView bytes)
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

QStringList iniTexts(QByteArrayView bytes, qsizetype most)
{
    return Value(bytes).texts(most);
}
