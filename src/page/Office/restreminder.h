#pragma once

#include <QObject>

#include "platform/clock.h"

/// Reminds the user on the desktop to rest the eyes, each time the interval is over.
class RestReminder : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Starts anew with the interval of an option of the monitor's own reminder, 1 to 8; 0 ends it.
    void setOption(int option);

    /// The interval of an option: 30 s, 1 hour, then half an hour more each; 0 for none.
    static platform::milliseconds interval(int option);

Q_SIGNALS:
    void timeIsUp();

private:
    void wait();

    int m_option = 0;
    int m_round = 0; ///< tells the tasks of an older setting from those of the newest
};
