#pragma once

#include <mutex>
#include <set>

#include <QObject>

#include "ddc_protocol/command.h"

/// Hears of every change in the snapshot, whatever thread made it, and tells it on its own thread; several changes of
/// one value in a row are told once. There is at most one.
class ValueWatch : public QObject
{
    Q_OBJECT
public:
    explicit ValueWatch(QObject *parent = nullptr);
    ~ValueWatch() override;

Q_SIGNALS:
    /// A value, or what is known about it, is another one now.
    void changed(Command command);

private:
    void note(Command command);
    void tell();

    std::mutex m_mutex;
    std::set<Command> m_changed; ///< and not told yet; guarded by the mutex
};
