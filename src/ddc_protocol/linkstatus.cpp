#include "ddc_protocol/linkstatus.h"

#include <atomic>
#include <mutex>
#include <utility>

#include "ddc_protocol/commandtable.h"

namespace {

std::atomic<bool> s_answers = true;
std::mutex s_mutex;
std::function<void()> s_observer;

} // namespace

void noteRequest(std::uint8_t code, bool ok)
{
    if (!ok && code != kVendorCode)
        return;
    if (s_answers.exchange(ok) == ok)
        return;
    const std::lock_guard lock(s_mutex);
    if (s_observer)
        s_observer();
}

bool monitorAnswers()
{
    return s_answers;
}

void setLinkObserver(std::function<void()> observer)
{
    const std::lock_guard lock(s_mutex);
    s_observer = std::move(observer);
    s_answers = true;
}
