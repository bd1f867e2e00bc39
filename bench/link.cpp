// What the monitor link costs by itself: on a desk without latency.

#include <chrono>

#include <benchmark/benchmark.h>

#include "benchdesk.h"
#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/edid.h"
#include "ddc_protocol/loghandler.h"
#include "ddc_protocol/transport.h"

namespace {

constexpr std::uint16_t kValue = 50;
constexpr std::uint8_t kVendorCode = 0x99;
constexpr std::uint8_t kBrightnessCode = 0x10;
constexpr int kBatch = 500;

using Seconds = std::chrono::duration<double>;

void command()
{
    benchmark::DoNotOptimize(Korvu_SetCommandVal(writeRow(Command::Brightness), kValue, 10));
}

/// The two requests of that command, straight at the platform.
void bareRequests()
{
    platform::MonitorConfiguration &monitors = platform::desk().monitors();
    benchmark::DoNotOptimize(monitors.setFeature(monitorList[0].handle, kVendorCode, kValue));
    benchmark::DoNotOptimize(monitors.setFeature(monitorList[0].handle, kBrightnessCode, kValue));
}

double batchSeconds(void (*call)())
{
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < kBatch; ++i)
        call();
    return Seconds(std::chrono::steady_clock::now() - begin).count();
}

void commandWithItsRequests(benchmark::State &state)
{
    BenchDesk desk(false);
    findDevices();
    for ([[maybe_unused]] auto _ : state)
        command();
}

void requestsAlone(benchmark::State &state)
{
    BenchDesk desk(false);
    findDevices();
    for ([[maybe_unused]] auto _ : state)
        bareRequests();
}

/// The difference of the two above, in turns, so that a busy moment of the machine meets both.
void commandBeyondItsRequests(benchmark::State &state)
{
    BenchDesk desk(false);
    findDevices();
    double difference = 0;
    for ([[maybe_unused]] auto _ : state)
        difference += batchSeconds(command) - batchSeconds(bareRequests);
    state.counters["beyond_ns"] = difference * 1e9 / kBatch / static_cast<double>(state.iterations());
}

void buildPacket(benchmark::State &state)
{
    std::uint16_t value = 0;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(BuildCommandPacket(writeRow(Command::Brightness), ++value));
        benchmark::ClobberMemory();
    }
}

void edidName(benchmark::State &state)
{
    const QByteArray edid = virtualdesk::buildEdid(virtualdesk::monitorModels().front());
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(edidModelName(edid));
}

void logLine(benchmark::State &state)
{
    BenchDesk desk(false);
    const QMessageLogContext context("src/searchdevicedlg.cpp", 131, "searchDevices", "default");
    const QString text = QStringLiteral("Connet device Count= 2 disp_sle 0");
    for ([[maybe_unused]] auto _ : state)
        logMessageHandler(QtDebugMsg, context, text);
}

void repeat(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Repetitions(9)->ReportAggregatesOnly();
}

BENCHMARK(commandWithItsRequests)->Apply(repeat);
BENCHMARK(requestsAlone)->Apply(repeat);
BENCHMARK(commandBeyondItsRequests)->Iterations(100)->Apply(repeat);
BENCHMARK(buildPacket)->Apply(repeat);
BENCHMARK(edidName)->Apply(repeat);
BENCHMARK(logLine)->Apply(repeat);

} // namespace
