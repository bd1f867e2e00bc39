#include "virtualdesk/simulatedaccessory.h"

#include <algorithm>

namespace virtualdesk {

namespace {

constexpr int kFailed = -1;

bool takeOne(int &count)
{
    if (count == 0)
        return false;
    if (count > 0)
        --count;
    return true;
}

} // namespace

void *SimulatedAccessory::open()
{
    std::uintptr_t token = 0;
    {
        const std::lock_guard lock(m_mutex);
        if (m_plugged && !takeOne(m_openFailures)) {
            token = m_nextToken += 4;
            m_handles.insert({token, m_plugging});
        }
    }
    m_listeners.tell();
    return reinterpret_cast<void *>(token);
}

void SimulatedAccessory::close(void *handle)
{
    {
        const std::lock_guard lock(m_mutex);
        const auto token = reinterpret_cast<std::uintptr_t>(handle);
        if (std::erase_if(m_handles, [token](const Handle &each) { return each.token == token; }) == 0)
            ++m_handleFaults;
    }
    m_listeners.tell();
}

int SimulatedAccessory::write(void *handle, std::span<const std::uint8_t> report)
{
    AccessoryWrite write;
    write.time = m_clock.now();
    write.bytes = {reinterpret_cast<const char *>(report.data()), static_cast<qsizetype>(report.size())};
    bool pulled = false;
    {
        const std::lock_guard lock(m_mutex);
        pulled = m_writesToUnplug > 0 && --m_writesToUnplug == 0;
    }
    if (pulled)
        setPlugged(false);
    int result = kFailed;
    {
        const std::lock_guard lock(m_mutex);
        result = serve(handle, write);
        m_history.push_back(write);
        if (m_history.size() > kHistorySize)
            m_history.pop_front();
    }
    m_listeners.tell();
    return result;
}

int SimulatedAccessory::serve(void *handle, AccessoryWrite &write)
{
    const auto token = reinterpret_cast<std::uintptr_t>(handle);
    const auto found =
        std::find_if(m_handles.begin(), m_handles.end(), [token](const Handle &each) { return each.token == token; });
    if (found == m_handles.end())
        ++m_handleFaults;
    if (!m_plugged || found == m_handles.end() || found->plugging != m_plugging) {
        write.outcome = AccessoryWrite::Outcome::Unplugged;
        return kFailed;
    }
    if (takeOne(m_refusals)) {
        write.outcome = AccessoryWrite::Outcome::Refused;
        return kFailed;
    }
    const std::span bytes(reinterpret_cast<const std::uint8_t *>(write.bytes.constData()),
                          static_cast<std::size_t>(write.bytes.size()));
    write.fault = m_decoder.take(bytes);
    if (write.fault != nullptr) {
        write.outcome = AccessoryWrite::Outcome::Fault;
        ++m_protocolFaults;
        m_lastFault = write.fault;
    }
    return static_cast<int>(bytes.size()); // the bus carries nonsense as well
}

void SimulatedAccessory::setPlugged(bool plugged)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_plugged == plugged)
            return;
        m_plugged = plugged;
        if (plugged)
            ++m_plugging;
        else
            m_decoder.powerOff();
    }
    m_listeners.tell();
    if (m_plugTold)
        m_plugTold(plugged);
}

bool SimulatedAccessory::isPlugged() const
{
    const std::lock_guard lock(m_mutex);
    return m_plugged;
}

void SimulatedAccessory::setForm(int form)
{
    {
        const std::lock_guard lock(m_mutex);
        m_decoder.powerOff();
        m_decoder.setForm(form);
    }
    m_listeners.tell();
}

int SimulatedAccessory::form() const
{
    const std::lock_guard lock(m_mutex);
    return m_decoder.form();
}

void SimulatedAccessory::refuseWrites(int times)
{
    {
        const std::lock_guard lock(m_mutex);
        m_refusals = times;
    }
    m_listeners.tell();
}

bool SimulatedAccessory::refusesWrites() const
{
    const std::lock_guard lock(m_mutex);
    return m_refusals != 0;
}

void SimulatedAccessory::failOpens(int times)
{
    {
        const std::lock_guard lock(m_mutex);
        m_openFailures = times;
    }
    m_listeners.tell();
}

void SimulatedAccessory::unplugAtWrite(int n)
{
    {
        const std::lock_guard lock(m_mutex);
        m_writesToUnplug = n;
    }
    m_listeners.tell();
}

bool SimulatedAccessory::unplugsAtWrite() const
{
    const std::lock_guard lock(m_mutex);
    return m_writesToUnplug > 0;
}

AccessoryState SimulatedAccessory::state() const
{
    const std::lock_guard lock(m_mutex);
    return m_decoder.state();
}

int SimulatedAccessory::protocolFaults() const
{
    const std::lock_guard lock(m_mutex);
    return m_protocolFaults;
}

const char *SimulatedAccessory::lastFault() const
{
    const std::lock_guard lock(m_mutex);
    return m_lastFault;
}

int SimulatedAccessory::handleFaults() const
{
    const std::lock_guard lock(m_mutex);
    return m_handleFaults;
}

int SimulatedAccessory::handlesOpen() const
{
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(m_handles.size());
}

std::vector<AccessoryWrite> SimulatedAccessory::history() const
{
    const std::lock_guard lock(m_mutex);
    return {m_history.begin(), m_history.end()};
}

void SimulatedAccessory::clearHistory()
{
    const std::lock_guard lock(m_mutex);
    m_history.clear();
}

} // namespace virtualdesk
