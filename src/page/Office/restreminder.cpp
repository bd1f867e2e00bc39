#include "page/Office/restreminder.h"

#include "platform/desk.h"

using namespace std::chrono_literals;

platform::milliseconds RestReminder::interval(int option)
{
    if (option < 1 || option > 8)
        return 0ms;
    return option == 1 ? 30s : 1h + (option - 2) * 30min;
}

void RestReminder::setOption(int option)
{
    if (option == m_option)
        return;
    m_option = option;
    ++m_round;
    wait();
}

void RestReminder::wait()
{
    const platform::milliseconds duration = interval(m_option);
    if (duration == 0ms)
        return;
    platform::desk().clock().callLater(duration, this, [this, round = m_round] {
        if (round != m_round)
            return;
        Q_EMIT timeIsUp();
        wait();
    });
}
