#include "ddc_protocol/valuewatch.h"

#include <utility>

#include "ddc_protocol/devicestate.h"

ValueWatch::ValueWatch(QObject *parent) : QObject(parent)
{
    deviceState.setObserver([this](Command command) { note(command); });
}

ValueWatch::~ValueWatch()
{
    deviceState.setObserver({}); // waits for one that is under way
}

void ValueWatch::note(Command command)
{
    const std::lock_guard lock(m_mutex);
    if (m_changed.empty())
        QMetaObject::invokeMethod(this, &ValueWatch::tell, Qt::QueuedConnection);
    m_changed.insert(command);
}

void ValueWatch::tell()
{
    std::set<Command> commands;
    {
        const std::lock_guard lock(m_mutex);
        commands = std::exchange(m_changed, {});
    }
    for (const Command command : commands)
        Q_EMIT changed(command);
}
