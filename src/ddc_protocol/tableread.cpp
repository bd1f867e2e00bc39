#include <optional>

#include <QDebug>

#include "ddc_protocol/transport.h"
#include "platform/desk.h"

namespace {

constexpr std::uint8_t kNextChunk = 0xFE;
constexpr std::uint8_t kRepeatChunk = 0xFF;
constexpr int kChunkSize = 4;
constexpr int kStepRetries = 5; // a step is tried once more than this
constexpr platform::milliseconds kPause{250};

/// One table read: its monitor, where its data goes, and the retries that are left to its second step, its third step
/// and its stream.
class TableRead
{
public:
    TableRead(std::optional<platform::PhysicalMonitorHandle> monitor, std::uint8_t *buffer, int retries)
        : m_monitor(monitor), m_buffer(buffer), m_retries(retries)
    {
    }

    int run(std::uint8_t a, std::uint8_t b, std::uint8_t c, int length);

private:
    bool request(std::uint8_t code, Attempt attempt = Attempt::First);
    bool mayRetry(int &retries);
    void storeChunk();
    std::optional<int> open(std::uint8_t a, std::uint8_t b, std::uint8_t c);
    bool stream(int remaining);

    std::optional<platform::PhysicalMonitorHandle> m_monitor;
    std::uint8_t *m_buffer;
    platform::VcpReply m_reply; ///< of the last request
    int m_count = 0;
    const int m_retries;
    int m_secondRetries = m_retries;
    int m_thirdRetries = m_retries;
    int m_streamRetries = m_retries;
};

QString hexByte(std::uint8_t code)
{
    return QString::number(code, 16);
}

bool TableRead::request(std::uint8_t code, Attempt attempt)
{
    m_reply = requestBlockPart(m_monitor, code, attempt);
    return m_reply.answered;
}

bool TableRead::mayRetry(int &retries)
{
    if (retries == 0)
        return false;
    --retries;
    return true;
}

void TableRead::storeChunk()
{
    std::uint8_t *chunk = m_buffer + 2 + m_count;
    chunk[0] = static_cast<std::uint8_t>(m_reply.maximum >> 8);
    chunk[1] = static_cast<std::uint8_t>(m_reply.maximum);
    chunk[2] = static_cast<std::uint8_t>(m_reply.current >> 8);
    chunk[3] = static_cast<std::uint8_t>(m_reply.current);
    m_count += kChunkSize;
}

/// Opens the stream. Nothing when it stands, else the result to fail with.
std::optional<int> TableRead::open(std::uint8_t a, std::uint8_t b, std::uint8_t c)
{
    for (Attempt attempt = Attempt::First;; attempt = Attempt::Again) {
        if (!request(a, attempt))
            qDebug().noquote().nospace() << "ErrorCode 99 " << m_reply.error;
        if (!request(b)) {
            if (!mayRetry(m_secondRetries)) {
                qDebug() << "Fail to retry, errorCode=9922\r";
                return 0;
            }
            qDebug().noquote().nospace() << "Fail to retry, errorCode=22 " << m_reply.error;
        } else if (request(c)) {
            return {};
        } else {
            if (!mayRetry(m_thirdRetries)) {
                qDebug().noquote().nospace() << "Faile to retry errorCode= 99 22 " << hexByte(c) << "\r";
                return -1;
            }
            qDebug().noquote().nospace() << "Fail to retry errorCode= " << hexByte(c) << " " << m_reply.error;
        }
        if (!platform::desk().clock().sleepBeforeRetry(kPause))
            return 0;
    }
}

bool TableRead::stream(int remaining)
{
    std::uint8_t code = kNextChunk;
    while (remaining > 0) {
        if (request(code, code == kRepeatChunk ? Attempt::Again : Attempt::First)) {
            storeChunk();
            remaining -= kChunkSize;
            m_streamRetries = m_retries;
            code = kNextChunk;
            continue;
        }
        if (!mayRetry(m_streamRetries)) {
            qDebug() << "---loop get data error.\r";
            return false;
        }
        if (!platform::desk().clock().sleepBeforeRetry(kPause))
            return false;
        code = kRepeatChunk;
    }
    return true;
}

int TableRead::run(std::uint8_t a, std::uint8_t b, std::uint8_t c, int length)
{
    if (const std::optional<int> failure = open(a, b, c))
        return *failure;
    storeChunk();
    if (!stream(length - kChunkSize))
        return 0;
    request(kNextChunk); // closes the stream, whatever the monitor says
    return m_count;
}

} // namespace

int DDCCIReadTable(std::optional<platform::PhysicalMonitorHandle> monitor, std::uint8_t a, std::uint8_t b,
                   std::uint8_t c, std::uint8_t *buffer, int length)
{
    const auto lock = lockTransport();
    return TableRead(monitor, buffer, kStepRetries).run(a, b, c, length);
}

int readTableOnce(std::optional<platform::PhysicalMonitorHandle> monitor, std::uint8_t a, std::uint8_t b,
                  std::uint8_t c, std::uint8_t *buffer, int length)
{
    const auto lock = lockTransport();
    return TableRead(monitor, buffer, 0).run(a, b, c, length);
}
