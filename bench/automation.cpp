// How soon a hot key and a change of the foreground reach the monitor, in the whole window.

#include <algorithm>
#include <chrono>
#include <mutex>
#include <optional>
#include <vector>

#include <QApplication>

#include <benchmark/benchmark.h>

#include "benchdesk.h"
#include "following/followlist.h"
#include "mainwindow.h"
#include "platform/nativemessage.h"
#include "searchdevicedlg.h"
#include "shortcut/shortcutlist.h"

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr int kBrightness = 12;
constexpr int kPresses = 40;
constexpr double kDeliberateWait = 150; // ms, before a scene is switched

/// The program as it stands, with one hot key and one program to follow.
struct Program
{
    BenchDesk desk;
    std::optional<SearchDeviceDlg> session;
    std::optional<MainWindow> window;
    std::mutex mutex; // requests come from any thread
    std::optional<Clock::time_point> firstRequest;
    int listener;

    Program()
    {
        saveShortcuts({true, {{kBrightness, true, QStringLiteral("Ctrl+B"), QStringLiteral("Alt+B")}}});
        saveFollowList({{QStringLiteral("D:/Games/Night Race/NightRace.exe"), 6}});
        session.emplace();
        session->searchDevices();
        window.emplace(*session);
        window->show();
        listener = desk.monitor().addListener([this](const virtualdesk::Request &) {
            const std::lock_guard lock(mutex);
            if (!firstRequest)
                firstRequest = Clock::now();
        });
        settle(1000ms);
    }

    ~Program() { desk.monitor().removeListener(listener); }

    static void settle(Clock::duration duration)
    {
        for (const auto end = Clock::now() + duration; Clock::now() < end;)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }

    /// Milliseconds from an action's beginning to the first request that it leads to; nothing when it led to none.
    template <class Action> std::optional<double> untilRequest(Action action)
    {
        firstRequest.reset();
        const auto begin = Clock::now();
        action();
        if (!firstRequest)
            return {};
        return std::chrono::duration<double, std::milli>(*firstRequest - begin).count();
    }
};

void report(benchmark::State &state, std::vector<double> times)
{
    if (times.size() < kPresses)
        return state.SkipWithError("not every one led to a request");
    std::sort(times.begin(), times.end());
    state.counters["median_ms"] = times[times.size() / 2];
    state.counters["longest_ms"] = times.back();
}

void hotKey(benchmark::State &state)
{
    Program program;
    for ([[maybe_unused]] auto _ : state) {
        std::vector<double> times;
        for (int i = 0; i < kPresses; ++i) {
            const auto time = program.untilRequest([&program, i] {
                program.desk.desk.pressKey(i % 2 == 0 ? platform::kModifierControl : platform::kModifierAlt, 'B');
            });
            if (time)
                times.push_back(*time);
            Program::settle(250ms); // keys rest for 200 ms
        }
        report(state, times);
    }
}

void foreground(benchmark::State &state)
{
    Program program;
    constexpr std::size_t kListed = 1;
    constexpr std::size_t kOther = 0;
    for ([[maybe_unused]] auto _ : state) {
        std::vector<double> times;
        for (int i = 0; i < kPresses; ++i) {
            const auto time = program.untilRequest(
                [&program, i] { program.desk.desk.applications().bringToFront(i % 2 == 0 ? kListed : kOther); });
            if (time)
                times.push_back(*time - kDeliberateWait);
            Program::settle(350ms); // a match holds for 300 ms
        }
        report(state, times);
    }
}

BENCHMARK(hotKey)->Iterations(1)->Repetitions(3)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(foreground)->Iterations(1)->Repetitions(3)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
