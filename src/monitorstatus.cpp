#include "monitorstatus.h"

#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/linkstatus.h"
#include "searchdevicedlg.h"

MonitorStatus monitorStatus(const SearchDeviceDlg &session)
{
    const QByteArray label = session.labels().value(currentMonitorIndex.load());
    const QString state = label.isEmpty()    ? QObject::tr("no monitor")
                          : monitorAnswers() ? QObject::tr("connected")
                                             : QObject::tr("no answer");
    return {QString::fromUtf8(label), state, !label.isEmpty() && monitorAnswers()};
}
