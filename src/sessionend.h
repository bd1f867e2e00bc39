#pragma once

#include <functional>

#include <QAbstractNativeEventFilter>
#include <QObject>

class CommandQueue;

/// Hears that the user logs off or the computer shuts down, which the program never refuses, and ends it: as soon as
/// the message has been answered the process may be gone, so that it cannot wait for the ordinary end. The messages do
/// not reach the toolkit: it would close the window, which goes to the tray instead and so would be taken for a
/// refusal.
class SessionEnd : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT
public:
    /// What the queue still has to send is sent before, as long as there is time. The queue outlives it.
    /// @param stopAccessory  ends what goes on with the accessory
    SessionEnd(CommandQueue &queue, std::function<void()> stopAccessory, QObject *parent);
    ~SessionEnd() override;

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

    void end();

    CommandQueue &m_queue;
    std::function<void()> m_stopAccessory;
    bool m_hasEnded = false;
};
