#pragma once

#include <mutex>
#include <vector>

#include <QFile>

#include "virtualdesk/request.h"

namespace virtualdesk {

class VirtualDesk;

/// Writes every request to every monitor of a desk into a file, a line each, at once: what really reached them, for
/// whoever watches the program from outside. Fields: time, monitor, R or W, code, value, what became of it.
class RequestLog
{
public:
    /// Appends to the file. The desk outlives the log. Without a writable file it does nothing but warn.
    RequestLog(VirtualDesk &desk, const QString &fileName);
    ~RequestLog();

private:
    void write(const char *monitor, const Request &request);

    VirtualDesk &m_desk;
    std::mutex m_mutex; // requests come from any thread
    QFile m_file;
    std::vector<int> m_listeners; // by monitor
};

} // namespace virtualdesk
