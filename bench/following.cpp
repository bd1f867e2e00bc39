// What a long list of followed programs costs: building its page, showing it, memory, and a step of scrolling.

#include <algorithm>
#include <chrono>
#include <vector>

#include <QApplication>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include "benchdesk.h"
#include "following/followlist.h"
#include "page/Following/followrows.h"
#include "page/Following/pagescenariofollowing.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kSteps = 500;

double millisecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

std::vector<FollowEntry> programs(int count)
{
    std::vector<FollowEntry> entries;
    for (int i = 0; i < count; ++i)
        entries.push_back({QStringLiteral("C:/Program Files/Maker %1/program%1.exe").arg(i), i % 12});
    return entries;
}

/// Milliseconds of each painted step, from the first program down.
std::vector<double> scrolled(const QWidget &page)
{
    QScrollBar *bar = page.findChild<FollowRows *>()->verticalScrollBar();
    std::vector<double> times;
    for (int i = 0; i < kSteps && bar->value() < bar->maximum(); ++i) {
        const auto begin = Clock::now();
        bar->setValue(bar->value() + 3 * bar->singleStep()); // as a notch of the wheel
        QCoreApplication::processEvents();
        times.push_back(millisecondsSince(begin));
    }
    std::sort(times.begin(), times.end());
    return times;
}

void followedPrograms(benchmark::State &state)
{
    const BenchDesk desk;
    saveFollowList(programs(static_cast<int>(state.range(0))));
    for ([[maybe_unused]] auto _ : state) {
        const double before = residentMegabytes();
        auto begin = Clock::now();
        pageScenarioFollowing page;
        state.counters["built_ms"] = millisecondsSince(begin);
        begin = Clock::now();
        page.show();
        QCoreApplication::processEvents();
        state.counters["shown_ms"] = millisecondsSince(begin);
        state.counters["MB"] = residentMegabytes() - before;
        const std::vector<double> times = scrolled(page);
        state.counters["step_ms"] = times[times.size() / 2];
        state.counters["longest_step_ms"] = times.back();
        state.counters["scrolled_MB"] = residentMegabytes() - before;
    }
}

BENCHMARK(followedPrograms)
    ->Arg(300)
    ->Arg(1000)
    ->Arg(5000)
    ->ArgName("programs")
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace
