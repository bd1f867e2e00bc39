#pragma once

#include <QObject>

/// Tells which program comes to the front, from the system's own events: nothing is asked for in between. At most one
/// lives at a time. Interface thread only.
class ForegroundWatch : public QObject
{
    Q_OBJECT
public:
    explicit ForegroundWatch(QObject *parent = nullptr);
    ~ForegroundWatch() override;

Q_SIGNALS:
    /// A window came to the front, of whatever program; told before its program is.
    void windowInFront(void *window);

    /// A window of this program came to the front; its path with forward slashes, empty when it has 260 characters or
    /// more. Programs that may not be looked at are not told.
    void programInFront(const QString &path);

private:
    static void windowEvent(std::uint32_t event, void *window);

    void *m_hook = nullptr;
};
