#pragma once

#include <QThread>

class SearchDeviceDlg;

/// Reads the block of the current scene mode and then sends the mode, off the interface thread: the table read is
/// slow. It touches nothing of the page but the snapshot.
class WorkThread : public QThread
{
    Q_OBJECT
public:
    explicit WorkThread(SearchDeviceDlg &session, QObject *parent = nullptr);

protected:
    void run() override;

private:
    SearchDeviceDlg &m_session;
};
