#pragma once

#include <optional>

#include <QObject>
#include <QString>

class CommandQueue;
class InterfaceModes;
class SearchDeviceDlg;

/// The few questions that the window itself puts to the monitor: after a reconnection, after an unplugging, and for the
/// scene block of a mode that came on unasked. Interface thread only.
class MonitorChecks : public QObject
{
    Q_OBJECT
public:
    MonitorChecks(SearchDeviceDlg &session, CommandQueue &queue, const InterfaceModes &modes, QObject *parent);

    /// After a reconnection: the mode, by one request, for a monitor that is silent must not hold up the window. Where
    /// another monitor was found nothing that was told holds, and what it can do is asked for as well.
    void askAfterReconnection();

    /// The block of a custom half that is on and was not read yet, asked for in the background; one that cannot be read
    /// is left until the mode changes, or with anew until the monitor was found again.
    void readMissingBlock(bool anew = false);

    /// Something was unplugged: whether the monitor still answers is asked a little later.
    void deviceRemoved();

Q_SIGNALS:
    /// It was asked after an unplugging.
    void checked();

private:
    SearchDeviceDlg &m_session;
    CommandQueue &m_queue;
    const InterfaceModes &m_modes;
    QString m_shownMonitor;             ///< the identity of the monitor that the pages' values belong to
    std::optional<int> m_blockAskedFor; ///< the mode whose block was asked for last
    bool m_checkWaits = false;
};
