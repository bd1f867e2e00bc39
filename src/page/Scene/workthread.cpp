#include "page/Scene/workthread.h"

#include "ddc_protocol/transport.h"
#include "searchdevicedlg.h"

WorkThread::WorkThread(SearchDeviceDlg &session, QObject *parent) : QThread(parent), m_session(session)
{
}

void WorkThread::run()
{
    const int mode = deviceState.value(Command::SceneMode);
    m_session.readSceneModeData(mode);
    Korvu_SetCommandVal(writeRow(Command::SceneMode), static_cast<std::uint16_t>(mode), 10);
}
