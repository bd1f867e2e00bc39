#pragma once

#include <QByteArrayList>

#include "platform/joinedthread.h"

class TextWidget;
struct MatrixForm;

/// Renders one text into frames, off the interface thread.
class WorkerThread : public JoinedThread
{
    Q_OBJECT
public:
    /// What the text widget gives every job; nothing depends on it.
    static constexpr std::int32_t kUsualValue = 1000;

    WorkerThread(std::int32_t value, const QString &text, std::int32_t direction, const TextWidget &widget);
    ~WorkerThread() override;

Q_SIGNALS:
    /// The digits of every frame, in order.
    void framesReady(const QByteArrayList &frames);
    void progress(int percent);

protected:
    void run() override;

private:
    std::int32_t m_value;
    QString m_text;
    std::int32_t m_direction;
    const TextWidget &m_widget; ///< holds the glyph source
    const MatrixForm *m_form;   ///< of the matrix when the job began
};
