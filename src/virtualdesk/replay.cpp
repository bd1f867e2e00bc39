#include "virtualdesk/replay.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QByteArrayList>
#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>

namespace virtualdesk {

namespace {

constexpr std::ptrdiff_t kLookAhead = 64; // requests
constexpr qsizetype kMostDepartures = 20;
constexpr int kLargestCode = 255;

bool isSame(const Request &recorded, const Request &asked)
{
    return recorded.kind == asked.kind && recorded.code == asked.code &&
           (asked.kind == RequestKind::Read || recorded.value == asked.value);
}

QString describe(const Request &request)
{
    const QString code = QString::number(request.code, 16).rightJustified(2, QLatin1Char('0'));
    return request.kind == RequestKind::Read ? QStringLiteral("R %1").arg(code)
                                             : QStringLiteral("W %1=%2").arg(code).arg(request.value);
}

/// Nothing for what is no number that fits on the wire.
std::optional<std::uint32_t> numberOf(const QJsonObject &line, const char *key)
{
    const qint64 number = line.value(QLatin1String(key)).toInteger(-1);
    return number >= 0 && number <= std::numeric_limits<std::uint32_t>::max()
               ? std::optional(static_cast<std::uint32_t>(number))
               : std::nullopt;
}

std::optional<Replay::Line> parseLine(const QJsonObject &object, int number)
{
    const QString kind = object.value(QLatin1String("op")).toString();
    const int code = object.value(QLatin1String("code")).toInt(-1);
    const bool isRead = kind == QLatin1String("R");
    const bool isKnown = isRead || kind == QLatin1String("W");
    const QJsonValue answered = object.value(QLatin1String("answered"));
    const auto value = numberOf(object, isRead ? "current" : "value");
    const auto maximum = numberOf(object, "maximum");
    const bool isTold = isRead ? !answered.toBool() || (value && maximum) : value.has_value();
    if (!isKnown || code < 0 || code > kLargestCode || !answered.isBool() || !isTold)
        return {};
    Replay::Line line;
    line.number = number;
    line.request.kind = isRead ? RequestKind::Read : RequestKind::Write;
    line.request.code = static_cast<std::uint8_t>(code);
    line.request.value = value.value_or(0);
    line.request.maximum = maximum.value_or(0);
    line.answered = answered.toBool();
    return line;
}

} // namespace

Reply Replay::answer(Request &request)
{
    const auto next = m_lines.begin() + static_cast<std::ptrdiff_t>(m_next);
    const auto end = next + std::min(kLookAhead, m_lines.end() - next);
    const auto found = std::find_if(next, end, [&request](const Line &line) { return isSame(line.request, request); });
    if (found != next || found == end)
        depart(request);
    if (found == end) {
        request.outcome = Outcome::Unexpected;
        return {kErrorNotSupported};
    }
    m_next = static_cast<std::size_t>(found - m_lines.begin()) + 1;
    const bool isRead = request.kind == RequestKind::Read;
    if (!found->answered) {
        request.outcome = isRead ? Outcome::Lost : Outcome::Refused;
        return {isRead ? kErrorReceiving : kErrorTransmitting};
    }
    if (!isRead)
        return {};
    request.value = found->request.value;
    request.maximum = found->request.maximum;
    return {0, request.value, request.maximum};
}

void Replay::depart(const Request &request)
{
    if (m_departures.size() >= kMostDepartures)
        return;
    const bool isOver = m_next == m_lines.size();
    m_departures += isOver ? QStringLiteral("%1 was asked behind the end of the recording").arg(describe(request))
                           : QStringLiteral("line %1 of the recording asks %2, but %3 was asked")
                                 .arg(m_lines[m_next].number)
                                 .arg(describe(m_lines[m_next].request), describe(request));
    qWarning().noquote() << m_departures.last();
}

std::optional<Replay> parseRecording(const QByteArray &bytes, int monitor, QString &error)
{
    std::vector<QJsonValue> monitors;
    std::vector<Replay::Line> lines;
    const QByteArrayList texts = bytes.split('\n'); // the last one is behind the last line's end
    for (int number = 1; number <= texts.size(); ++number) {
        const QByteArray &text = texts[number - 1];
        if (text.trimmed().isEmpty())
            continue;
        const QJsonObject object = QJsonDocument::fromJson(text).object();
        const std::optional<Replay::Line> line = parseLine(object, number);
        if (!line && number == texts.size()) {
            qWarning("the recording is cut off within line %d", number);
            break;
        }
        if (!line) {
            error = QStringLiteral("line %1 is no recorded request").arg(number);
            return {};
        }
        const QJsonValue name = object.value(QLatin1String("monitor"));
        const auto known = std::find(monitors.begin(), monitors.end(), name);
        const auto place = known - monitors.begin();
        if (known == monitors.end())
            monitors.push_back(name);
        if (place == monitor)
            lines.push_back(*line);
    }
    if (lines.empty()) {
        error = QStringLiteral("the recording has %1 monitors").arg(monitors.size());
        return {};
    }
    return Replay(std::move(lines));
}

} // namespace virtualdesk
