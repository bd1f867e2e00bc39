// A full read, with its progress dialog, against the time that its requests alone take.

#include <chrono>

#include <benchmark/benchmark.h>

#include "benchdesk.h"
#include "ddc_protocol/transport.h"
#include "searchdevicedlg.h"

namespace {

constexpr platform::milliseconds kRead{40};
constexpr std::uint16_t kCustomScene = 10; // its block is read too
using Seconds = std::chrono::duration<double>;

double percentAbove(double value, double base)
{
    return (value / base - 1) * 100;
}

void fullRead(benchmark::State &state)
{
    BenchDesk desk;
    desk.monitor().setValue(virtualdesk::kSceneCode, kCustomScene);
    SearchDeviceDlg session;
    session.searchDevices(); // learns what the monitor can do, so that the next read asks for everything
    desk.monitor().setLatency(kRead, kRead);
    for ([[maybe_unused]] auto _ : state) {
        desk.monitor().clearHistory();
        desk.clock.takeSlept();
        const auto begin = std::chrono::steady_clock::now();
        const bool ok = session.readDataFromDevice();
        const double seconds = Seconds(std::chrono::steady_clock::now() - begin).count();
        const auto requests = static_cast<double>(desk.monitor().history().size());
        const double bus = requests * Seconds(kRead).count();
        state.SetIterationTime(seconds);
        if (!ok)
            state.SkipWithError("the read failed");
        state.counters["requests"] = requests;
        state.counters["bus_ms"] = bus * 1000;
        state.counters["above_bus_%"] = percentAbove(seconds, bus);
        // The system wakes a sleeper a little late, which the program cannot help.
        state.counters["above_slept_%"] = percentAbove(seconds, desk.clock.takeSlept());
    }
}

BENCHMARK(fullRead)->UseManualTime()->Iterations(1)->Repetitions(5)->Unit(benchmark::kMillisecond);

} // namespace
