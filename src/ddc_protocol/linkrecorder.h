#pragma once

#include <atomic>
#include <mutex>

#include <QDateTime>
#include <QFile>

#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/linkrecord.h"

/// Writes what is asked of the monitors and what they answer into a file, which the simulated desk can replay: a JSON
/// object a line, in the order of the wire. "t" is the time since the beginning in milliseconds, "monitor" the name,
/// serial number and place of the monitor, "op" R or W, "code" the VCP code, "value" what was written, "answered"
/// whether it went well; "current" and "maximum" are what a read told. Safe from any thread.
class LinkRecorder
{
public:
    /// Where it stops by itself, in bytes: some hundred thousand requests.
    static constexpr qint64 kLargest = 32 << 20;

    /// Begins a new file in the working folder, named by the time; false, with error set, when it cannot be written.
    bool start();
    void stop();

    bool isRecording() const { return m_isRecording; }

    /// Of the recording under way or the last one.
    QString fileName() const;
    int requests() const;
    QString error() const; ///< why the last recording stopped by itself or did not begin; else empty

    /// The transport hands every request in.
    void note(const MonitorIdentity &monitor, const LinkRequest &request);

private:
    void fail(const QString &error);
    QString fileError() const;

    std::atomic<bool> m_isRecording = false;
    mutable std::mutex m_mutex; // guards what follows
    QString m_name;
    QFile m_file;
    QDateTime m_begun;
    int m_requests = 0;
    qint64 m_size = 0;
    QString m_error;
};

/// The one recorder.
extern LinkRecorder linkRecorder;

/// A line of a recording, with its line end.
QByteArray recordedLine(const MonitorIdentity &monitor, const LinkRequest &request, qint64 milliseconds);
