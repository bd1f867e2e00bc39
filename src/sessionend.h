#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

/// Hears that the user logs off or the computer shuts down, which the program never refuses. The messages do not reach
/// the toolkit: it would close the window, which goes to the tray instead and so would be taken for a refusal.
class SessionEnd : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT
public:
    explicit SessionEnd(QObject *parent);
    ~SessionEnd() override;

Q_SIGNALS:
    /// It is decided; told once. When the slots return the process may be gone.
    void ends();

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

    bool m_told = false;
};
