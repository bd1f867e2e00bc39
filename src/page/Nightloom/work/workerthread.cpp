#include "page/Nightloom/work/workerthread.h"

#include "usb-hid/accessorylink.h"

WorkerThread::WorkerThread(std::int32_t value, const QString &text, std::int32_t direction, GlyphSource source)
    : m_value(value), m_text(text), m_direction(direction), m_source(source), m_form(accessoryLink.form)
{
}

WorkerThread::~WorkerThread()
{
    requestInterruption();
    wait();
}

void WorkerThread::run()
{
    if (m_text.isEmpty())
        return;
    const TextRenderer renderer = m_source(m_form, m_text, static_cast<TextMotion>(m_direction));
    QByteArrayList frames;
    const int total = renderer.frameCount();
    for (int i = 1; i <= total; ++i) {
        if (isInterruptionRequested())
            return;
        frames.append(renderer.frame(i - 1).digits());
        report(i * 100 / total);
    }
    tell([this, frames] { Q_EMIT framesReady(frames); });
}
