#pragma once

#include "platform/joinedthread.h"

class SearchDeviceDlg;

/// Reads the block of a scene mode and then sends the mode, off the interface thread: the table read is slow. A mode
/// that a hot key or a followed program has replaced meanwhile is not sent. It touches nothing of the page but the
/// snapshot.
class WorkThread : public JoinedThread
{
    Q_OBJECT
public:
    explicit WorkThread(SearchDeviceDlg &session, QObject *parent = nullptr);

    /// Starts the work for a scene mode; the work before has finished.
    void begin(int mode);

    /// The mode of the last work.
    int mode() const { return m_mode; }

    /// Whether the monitor took it; one that a newer mode made needless counts as taken. Once it
    /// has finished.
    bool isTaken() const { return m_taken; }

protected:
    void run() override;

private:
    SearchDeviceDlg &m_session;
    int m_mode = 0;
    bool m_taken = true;
};
