// What the accessory's reports cost by themselves: with a device that takes every write at once, or without any.

#include <benchmark/benchmark.h>

#include "benchdesk.h"
#include "usb-hid/hidtransport.h"
#include "usb-hid/livesender.h"

namespace {

constexpr std::uint8_t kMode = 0x24;
constexpr std::size_t kAnimationBytes = 192 * 949;

class NullHid final : public platform::Hid
{
public:
    platform::HidEntry *enumerate(std::uint16_t, std::uint16_t) override { return nullptr; }
    platform::HidIds ids(const platform::HidEntry *) override { return {}; }
    platform::HidEntry *next(const platform::HidEntry *) override { return nullptr; }
    void freeEnumeration(platform::HidEntry *) override {}
    platform::HidDevice *open(std::uint16_t, std::uint16_t) override { return nullptr; }
    int setNonblocking(platform::HidDevice *, bool) override { return 0; }
    int write(platform::HidDevice *, std::span<const std::uint8_t> report) override
    {
        benchmark::DoNotOptimize(report.data());
        return static_cast<int>(report.size());
    }
    void close(platform::HidDevice *) override {}
};

class NullHidDesk final : public platform::VirtualPlatform
{
public:
    using VirtualPlatform::VirtualPlatform;
    platform::Hid &hid() override { return m_hid; }

private:
    NullHid m_hid;
};

std::vector<std::int32_t> someFrame()
{
    std::vector<std::int32_t> cells(static_cast<std::size_t>(matrixForms().front().cells()));
    for (std::size_t i = 0; i < cells.size(); ++i)
        cells[i] = i % 3 == 0 ? 1 : 0;
    return cells;
}

void fullAnimation(benchmark::State &state)
{
    std::vector<char> file(kAnimationBytes);
    for (std::size_t i = 0; i < file.size(); ++i)
        file[i] = i % 3 == 0 ? '1' : '0';
    const int total = chunkCount(std::ssize(file));
    AccessoryReport report;
    for ([[maybe_unused]] auto _ : state) {
        for (int index = 1; index <= total; ++index) {
            const auto left = std::span<const char>(file).subspan(static_cast<std::size_t>(index - 1) * kChunkCells);
            buildUploadChunk(report, kMode, total, index, left.first(std::min(left.size(), kChunkCells)));
            benchmark::DoNotOptimize(report.bytes.data());
            benchmark::ClobberMemory();
        }
    }
    state.counters["chunks"] = total;
}

void liveFrameChunks(benchmark::State &state)
{
    const auto cells = someFrame();
    const int total = chunkCount(std::ssize(cells));
    AccessoryReport report;
    for ([[maybe_unused]] auto _ : state) {
        for (int index = 1; index <= total; ++index) {
            const auto left = std::span(cells).subspan(static_cast<std::size_t>(index - 1) * kChunkCells);
            buildLiveChunk(report, total, index, left.first(std::min(left.size(), kChunkCells)));
            benchmark::DoNotOptimize(report.bytes.data());
            benchmark::ClobberMemory();
        }
    }
    state.counters["chunks"] = total;
}

/// The whole way of a live frame down to the writes: length, locks, chunks, latch.
void liveFrameSent(benchmark::State &state)
{
    BenchDesk desk(false);
    NullHidDesk taker(desk.desk, desk.clock);
    platform::installDesk(&taker);
    int device = 0; // only its address is used
    accessoryLink.handle = reinterpret_cast<platform::HidDevice *>(&device);
    accessoryLink.form = &matrixForms().front();
    const auto cells = someFrame();
    for ([[maybe_unused]] auto _ : state)
        sendLiveFrame(cells);
    accessoryLink.handle = nullptr;
}

void repeat(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Repetitions(9)->ReportAggregatesOnly();
}

BENCHMARK(fullAnimation)->Apply(repeat);
BENCHMARK(liveFrameChunks)->Apply(repeat);
BENCHMARK(liveFrameSent)->Apply(repeat);

} // namespace
