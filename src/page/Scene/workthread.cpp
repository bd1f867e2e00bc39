#include "page/Scene/workthread.h"

#include "ddc_protocol/transport.h"
#include "searchdevicedlg.h"

WorkThread::WorkThread(SearchDeviceDlg &session, QObject *parent) : JoinedThread(parent), m_session(session)
{
}

void WorkThread::begin(int mode)
{
    m_mode = mode;
    start();
}

void WorkThread::run()
{
    m_session.readSceneModeData(m_mode);
    Korvu_SetCommandVal(writeRow(Command::SceneMode), static_cast<std::uint16_t>(m_mode), kRetryCount);
}
