#include "ddc_protocol/monitoridentity.h"

#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/transport.h"

QString monitorIdentity()
{
    const auto lock = lockTransport();
    const std::size_t index = currentMonitorIndex;
    if (index >= monitorList.size())
        return {};
    return QStringLiteral("%1 #%2").arg(monitorList[index].label).arg(index + 1);
}
