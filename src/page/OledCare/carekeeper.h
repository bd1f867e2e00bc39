#pragma once

#include <QObject>

#include "page/OledCare/carehistory.h"
#include "page/OledCare/careplan.h"
#include "platform/foreground.h"

class CommandQueue;

/// Keeps count of the panel of the monitor in use, also while its page is out of sight, and does what the plan says:
/// asks the monitor, and wants the user to be reminded. Does nothing for a monitor without such a panel. Interface
/// thread.
class CareKeeper : public QObject
{
    Q_OBJECT
public:
    explicit CareKeeper(CommandQueue &queue, QObject *parent = nullptr);
    ~CareKeeper() override; ///< stores what was counted

    const CareHistory &history() const { return m_history; }

    /// What is known now.
    CareFacts facts() const;

    /// Asks the monitor, in the background, whether care is due or running.
    void ask();

    /// Care has just been begun: how it goes on is asked for.
    void begun();

    /// No reminder for a while.
    void putOff();

    bool reminds() const { return m_reminds; }
    /// False when it could not be stored; it holds until the program ends then.
    [[nodiscard]] bool setReminds(bool reminds);

Q_SIGNALS:
    /// Something that the page shows is another one now.
    void changed();

    /// The moment is good; or it is no longer, or care has begun.
    void reminderWanted();
    void reminderGone();

private:
    void look();
    void count(const QDateTime &now);
    void noteTold(const QDateTime &now);
    void chooseMonitor();
    void remind(const QDateTime &now);
    void endReminder();
    void store();

    CommandQueue &m_queue;
    QString m_monitor; ///< whose history it is; empty for none
    CareHistory m_history;
    qint64 m_stored = 0; ///< what the file has of its use
    QDateTime m_counted; ///< up to when its use is counted
    std::optional<QDateTime> m_asked;
    std::optional<QDateTime> m_shown; ///< the reminder
    platform::WindowHandle m_front = nullptr;
    bool m_reminds;
    unsigned m_looks = 0;
};
