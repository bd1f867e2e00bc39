#include "ddc_protocol/monitoridentity.h"

#include "ddc_protocol/displayenumeration.h"

QString identityText(const MonitorIdentity &identity)
{
    QString text = QStringList{identity.name, identity.serial, identity.place}.join(QLatin1Char(' ')).simplified();
    for (const QLatin1Char slash : {QLatin1Char('/'), QLatin1Char('\\')}) // would part a key
        text.replace(slash, QLatin1Char('|'));
    return text;
}

QString monitorIdentity()
{
    const std::size_t index = currentMonitorIndex;
    return index < monitorList.size() ? identityText(monitorList[index].identity) : QString();
}
