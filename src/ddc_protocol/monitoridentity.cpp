#include "ddc_protocol/monitoridentity.h"

#include <QObject>

#include "ddc_protocol/displayenumeration.h"

QString identityText(const MonitorIdentity &identity)
{
    QString text = QStringList{identity.name, identity.serial, identity.place}.join(QLatin1Char(' ')).simplified();
    for (const QLatin1Char slash : {QLatin1Char('/'), QLatin1Char('\\')}) // would part a key
        text.replace(slash, QLatin1Char('|'));
    return text;
}

static const MonitorIdentity *identityInUse()
{
    const std::size_t index = currentMonitorIndex;
    return index < monitorList.size() ? &monitorList[index].identity : nullptr;
}

QString monitorIdentity()
{
    const MonitorIdentity *identity = identityInUse();
    return identity ? identityText(*identity) : QString();
}

QString otherMonitorText()
{
    return QObject::tr("The monitor that this was about is no longer in use. Nothing was sent.");
}

QString monitorName()
{
    const MonitorIdentity *identity = identityInUse();
    return identity && !identity->name.isEmpty() ? identity->name : QObject::tr("This monitor");
}
