#include "page/Nightloom/work/ledthread.h"

#include <algorithm>

#include "ledmatrix/animationfile.h"
#include "usb-hid/accessoryupload.h"

LEDThread::LEDThread(Send send) : m_send(send)
{
}

LEDThread::~LEDThread()
{
    wait();
}

void LEDThread::begin(State state, LEDJob job)
{
    wait(); // it has said that it ended, but may not quite have
    m_state = state;
    m_job = std::move(job);
    fail({});
    startWork();
}

QString LEDThread::error() const
{
    const std::lock_guard lock(m_mutex);
    return m_error;
}

void LEDThread::fail(const QString &error)
{
    const std::lock_guard lock(m_mutex);
    m_error = error;
}

void LEDThread::run()
{
    bool complete = true;
    switch (m_state) {
    case Export:
        complete = exportFrames();
        break;
    case Upload:
        complete = upload();
        break;
    case Import:
        Q_EMIT progress(kImportNow);
        break;
    }
    Q_EMIT progress(kProgressEnd);
    Q_EMIT workEnded(complete);
}

/// Of a memory that did not take everything nobody knows what it holds.
bool LEDThread::upload()
{
    const bool complete = m_send(m_job, [this](int value) { Q_EMIT progress(value); });
    if (complete && m_job.form)
        fail(keepUploaded(*m_job.memory, m_job.fileName, *m_job.form));
    else
        forgetUploaded(*m_job.memory);
    return complete;
}

bool LEDThread::exportFrames()
{
    const auto frames = static_cast<double>(m_job.frames.size());
    const int step = std::max(static_cast<int>(frames * 0.1), 1);
    const QString error = writeAnimation(m_job.fileName, m_job.frames, [&](int count) {
        if (count % step == 0)
            Q_EMIT progress(static_cast<int>(count / frames * 100.0));
        return !isInterruptionRequested();
    });
    if (!error.isEmpty() && !isInterruptionRequested()) {
        fail(error);
        Q_EMIT progress(kProgressFailed);
    }
    return error.isEmpty();
}
