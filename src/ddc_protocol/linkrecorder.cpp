#include "ddc_protocol/linkrecorder.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "files/wholefile.h"
#include "platform/desk.h"

LinkRecorder linkRecorder;

static constexpr char kSuffix[] = ".jsonl";

QByteArray recordedLine(const MonitorIdentity &monitor, const LinkRequest &request, qint64 milliseconds)
{
    QJsonObject line{
        {QStringLiteral("t"), milliseconds},
        {QStringLiteral("monitor"), QJsonArray{monitor.name, monitor.serial, monitor.place}},
        {QStringLiteral("op"), request.isWrite ? QStringLiteral("W") : QStringLiteral("R")},
        {QStringLiteral("code"), request.code},
        {QStringLiteral("answered"), request.reply.answered},
    };
    if (request.isWrite) {
        line.insert(QStringLiteral("value"), static_cast<qint64>(request.value));
    } else if (request.reply.answered) {
        line.insert(QStringLiteral("current"), static_cast<qint64>(request.reply.current));
        line.insert(QStringLiteral("maximum"), static_cast<qint64>(request.reply.maximum));
    }
    return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

bool LinkRecorder::start()
{
    const std::lock_guard lock(m_mutex);
    m_begun = platform::desk().clock().now();
    m_requests = 0;
    m_size = 0;
    m_error.clear();
    const QString name = QStringLiteral("recording-") + m_begun.toString(QStringLiteral("yyyyMMdd-hhmmss"));
    m_name = name + QLatin1String(kSuffix);
    for (int number = 2; QFileInfo::exists(m_name); ++number) // another one of the same second
        m_name = QStringLiteral("%1-%2%3").arg(name).arg(number).arg(QLatin1String(kSuffix));
    m_isRecording = openToAppend(m_file, m_name);
    if (!m_isRecording)
        m_error = fileError();
    return m_isRecording;
}

void LinkRecorder::stop()
{
    const std::lock_guard lock(m_mutex);
    m_isRecording = false;
    m_file.close();
}

QString LinkRecorder::fileName() const
{
    const std::lock_guard lock(m_mutex);
    return m_name;
}

int LinkRecorder::requests() const
{
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

QString LinkRecorder::error() const
{
    const std::lock_guard lock(m_mutex);
    return m_error;
}

QString LinkRecorder::fileError() const
{
    return qt_error_string(static_cast<int>(platform::desk().files().lastError()));
}

void LinkRecorder::fail(const QString &error)
{
    m_isRecording = false;
    m_error = error;
    m_file.close();
}

void LinkRecorder::note(const MonitorIdentity &monitor, const LinkRequest &request)
{
    if (!m_isRecording)
        return;
    const std::lock_guard lock(m_mutex);
    if (!m_isRecording) // stopped meanwhile
        return;
    const QByteArray line = recordedLine(monitor, request, m_begun.msecsTo(request.at));
    m_size += line.size();
    if (m_size > kLargest)
        return fail(QObject::tr("The file has become too large."));
    if (platform::desk().files().write(m_file, line)) {
        ++m_requests;
        return;
    }
    const QString error = fileError();
    m_file.resize(m_size - line.size()); // half a line would spoil the recording
    fail(error);
}
