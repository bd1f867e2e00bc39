#include "page/Scene/workthread.h"

#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/transport.h"
#include "ddc_protocol/valuechanges.h"
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
    const auto lock = lockTransport(); // nobody's newer mode may come between the look and the request
    const bool isNewest = deviceState.value(Command::SceneMode) == m_mode;
    m_taken = !isNewest || sendWish(Command::SceneMode, m_mode);
}
