#include "files/inilines.h"

#include <algorithm>

#include "files/initext.h"

static bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool IniLines::next(IniLine &line)
{
    for (;;) {
        while (m_at < m_bytes.size() && isBlank(m_bytes[m_at]))
            ++m_at;
        if (m_at == m_bytes.size())
            return false;
        if (m_bytes[m_at] != ';')
            break;
        while (m_at < m_bytes.size() && !isIniLineEnd(m_bytes[m_at]))
            ++m_at;
    }
    line = take();
    return true;
}

IniLine IniLines::take()
{
    const qsizetype begin = m_at;
    IniLine line;
    bool quoted = false;
    for (; m_at < m_bytes.size(); ++m_at) {
        const char c = m_bytes[m_at];
        if (c == '\\')
            skipEscaped();
        else if (c == '"')
            quoted = !quoted;
        else if (!quoted && (isIniLineEnd(c) || c == ';'))
            break;
        else if (!quoted && c == '=' && line.equals < 0)
            line.equals = m_at - begin;
    }
    m_at = std::min(m_at, m_bytes.size()); // a backslash may be the last byte
    line.text = m_bytes.sliced(begin, m_at - begin);
    return line;
}

/// Stops on the last byte that the backslash hides: a line end may be two.
void IniLines::skipEscaped()
{
    ++m_at;
    if (m_at + 1 < m_bytes.size() && isIniLineEnd(m_bytes[m_at]) && isIniLineEnd(m_bytes[m_at + 1]) &&
        m_bytes[m_at] != m_bytes[m_at + 1])
        ++m_at;
}
