// Everything that can go wrong with a monitor, a row each: scripts, the panel's buttons and the monitor read it here.

#include <algorithm>

#include "virtualdesk/faults.h"
#include "virtualdesk/marked.h"
#include "virtualdesk/simulatedmonitor.h"
#include "virtualdesk/virtualdesk.h"

namespace virtualdesk {

namespace {

using enum WireFault::Moment;

constexpr std::uint32_t kGarble = 0x55; // what a garbled reply has flipped

// Which requests a fault strikes. The announcement of a command on 0x99 is a request like any other, and counts.

bool any(const Request &, bool)
{
    return true;
}

bool isWrite(const Request &request, bool)
{
    return request.kind == RequestKind::Write;
}

bool carriesAnswer(const Request &request, bool)
{
    return request.code != kVendorCode;
}

bool isChunk(const Request &, bool inStream)
{
    return inStream;
}

// What becomes of them.

void refuse(Request &request, Reply &reply)
{
    request.outcome = Outcome::Refused;
    reply = {kErrorNotSupported};
}

void lose(Request &request, Reply &reply)
{
    request.outcome = Outcome::Lost;
    reply = {kErrorReceiving};
}

void garble(Request &request, Reply &reply)
{
    request.outcome = Outcome::Garbled;
    reply.current ^= kGarble;
    reply.maximum ^= kGarble;
}

// What happens to the monitor or to the desk.

void delay(VirtualDesk &desk, std::size_t monitor, const MonitorEvent &event)
{
    desk.monitor(monitor).setDelay(event.wait);
}

void unplug(VirtualDesk &desk, std::size_t monitor, const MonitorEvent &event)
{
    event.times != 0 ? desk.unplug(monitor) : desk.plug(monitor);
}

void plug(VirtualDesk &desk, std::size_t monitor, const MonitorEvent &)
{
    desk.plug(monitor);
}

void sleep(VirtualDesk &desk, std::size_t, const MonitorEvent &event)
{
    event.times != 0 ? desk.sleep() : desk.wake();
}

void wake(VirtualDesk &desk, std::size_t, const MonitorEvent &)
{
    desk.wake();
}

void setLatency(VirtualDesk &desk, std::size_t monitor, const MonitorEvent &event)
{
    desk.monitor(monitor).setLatency(event.read, event.write);
}

void recover(VirtualDesk &desk, std::size_t monitor, const MonitorEvent &)
{
    desk.monitor(monitor).recover();
}

bool isSlow(const SimulatedMonitor &monitor)
{
    return monitor.isSlow();
}

bool isUnplugged(const SimulatedMonitor &monitor)
{
    return !monitor.isPlugged();
}

bool isAsleep(const SimulatedMonitor &monitor)
{
    return monitor.isAsleep();
}

// Word, what it does, how often unless told, whether it is for a code; and the button with what its press asks for.
constexpr MonitorFault kFaults[] = {
    {"refuse_writes",
     WireFault{Taking, isWrite, refuse},
     1,
     FaultCode::None,
     {NAME("Refuse writes"), NAME("The monitor takes no value until the button is released"), kForEver}},
    {"refuse", WireFault{Taking, any, refuse}, 1, FaultCode::Needed},
    // 0xFF then brings the four bytes that got lost.
    {"drop_chunks",
     WireFault{Answering, isChunk, lose},
     1,
     FaultCode::None,
     {NAME("Drop a chunk"), NAME("Four bytes of the next scene-mode block get lost")}},
    {"lose_replies",
     WireFault{Answering, carriesAnswer, lose},
     1,
     FaultCode::Possible,
     {NAME("Lose a reply"), NAME("The answer to the next read never arrives")}},
    {"garble", WireFault{Answering, carriesAnswer, garble}, 1, FaultCode::Possible},
    {"deaf",
     WireFault{Hearing, any, stayUnheard},
     kForEver,
     FaultCode::None,
     {NAME("Go deaf"), NAME("The monitor answers nothing until the button is released"), kForEver}},
    {"delay",
     DeskEvent{delay, isSlow},
     1,
     FaultCode::None,
     {NAME("Slow"), NAME("Every request takes 400 ms longer"), 1, std::chrono::milliseconds(400)}},
    {"unplug",
     DeskEvent{unplug, isUnplugged},
     1,
     FaultCode::None,
     {NAME("Unplug"), NAME("The cable is pulled out until the button is released")}},
    {"plug", DeskEvent{plug}},
    {"sleep",
     DeskEvent{sleep, isAsleep},
     1,
     FaultCode::None,
     {NAME("Sleep"), NAME("The computer and its monitors sleep until the button is released")}},
    {"wake", DeskEvent{wake}},
    {"latency", DeskEvent{setLatency}},
    {"recover", DeskEvent{recover}}, // ends every fault of the wire
};

} // namespace

std::span<const MonitorFault> monitorFaults()
{
    return kFaults;
}

const MonitorFault *findFault(const QString &word)
{
    const auto found = std::find_if(std::begin(kFaults), std::end(kFaults),
                                    [&word](const MonitorFault &fault) { return word == QLatin1String(fault.word); });
    return found == std::end(kFaults) ? nullptr : found;
}

void stayUnheard(Request &request, Reply &reply)
{
    request.outcome = Outcome::Deaf;
    reply = {request.kind == RequestKind::Read ? kErrorReceiving : kErrorTransmitting};
}

} // namespace virtualdesk
