#include "virtualdesk/requestlog.h"

#include <QDebug>

#include "virtualdesk/virtualdesk.h"

namespace virtualdesk {

RequestLog::RequestLog(VirtualDesk &desk, const QString &fileName) : m_desk(desk), m_file(fileName)
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        qWarning().noquote() << "Cannot write" << fileName;
        return;
    }
    for (std::size_t i = 0; i < m_desk.monitorCount(); ++i) {
        SimulatedMonitor &monitor = m_desk.monitor(i);
        m_listeners.push_back(
            monitor.addListener([this, name = monitor.model().name](const Request &request) { write(name, request); }));
    }
}

RequestLog::~RequestLog()
{
    for (std::size_t i = 0; i < m_listeners.size(); ++i)
        m_desk.monitor(i).removeListener(m_listeners[i]);
}

/// On any thread.
void RequestLog::write(const char *monitor, const Request &request)
{
    const QString line = QStringLiteral("%1 %2 %3 %4 %5 %6\n")
                             .arg(request.time.toString(QStringLiteral("hh:mm:ss.zzz")), QLatin1String(monitor))
                             .arg(QLatin1Char(request.kind == RequestKind::Read ? 'R' : 'W'))
                             .arg(request.code, 2, 16, QLatin1Char('0'))
                             .arg(request.value)
                             .arg(QLatin1String(wordOf(request.outcome))); // never translated: programs read it
    const std::lock_guard lock(m_mutex);
    m_file.write(line.toUtf8());
    m_file.flush();
}

} // namespace virtualdesk
