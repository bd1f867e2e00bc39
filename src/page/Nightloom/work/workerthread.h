#pragma once

#include <QByteArrayList>

#include "page/Nightloom/render/textrenderer.h"
#include "page/Nightloom/work/senderthread.h"

/// Renders one text into frames, off the interface thread.
class WorkerThread : public SenderThread
{
    Q_OBJECT
public:
    /// What the text widget gives every job; nothing depends on it.
    static constexpr std::int32_t kUsualValue = 1000;

    /// Makes the renderer of a text; usable from any thread.
    using GlyphSource = TextRenderer (*)(const MatrixForm *form, const QString &text, TextMotion motion);

    WorkerThread(std::int32_t value, const QString &text, std::int32_t direction, GlyphSource source);
    ~WorkerThread() override;

    /// Begins the job.
    void begin() { startWork(); }

Q_SIGNALS:
    /// The digits of every frame, in order.
    void framesReady(const QByteArrayList &frames);

protected:
    void run() override;

private:
    std::int32_t m_value;
    QString m_text;
    std::int32_t m_direction;
    const GlyphSource m_source;     ///< the text widget's
    const MatrixForm *const m_form; ///< of the matrix when the job began
};
