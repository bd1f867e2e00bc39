// What listening costs: one packet, the whole analyser, and the time from a sound's start to the accessory.

#include <cstdlib>
#include <ctime>
#include <new>
#include <thread>

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include "PictureAudioCom/soundanalyzer.h"
#include "benchdesk.h"
#include "page/Nightloom/render/audioled.h"
#include "page/Nightloom/work/ledframesource.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "usb-hid/hidtransport.h"

static thread_local std::size_t s_allocations = 0;

void *operator new(std::size_t size)
{
    ++s_allocations;
    if (void *memory = std::malloc(size))
        return memory;
    std::abort();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

using virtualdesk::Sound;
using virtualdesk::SoundSetup;
using Clock = std::chrono::steady_clock;

SoundSetup playing(Sound kind)
{
    SoundSetup sound;
    sound.sound = kind;
    return sound;
}

/// A packet as large as the transform: N = 4800 at 48 kHz, or a tenth of the rate given.
void analysePacket(benchmark::State &state)
{
    const auto rate = static_cast<std::uint32_t>(state.range(0));
    std::vector<std::int16_t> samples;
    for (std::uint32_t i = 0; i < rate / 10; ++i)
        samples.push_back(
            static_cast<std::int16_t>(20000 * playing(Sound::Noise).sample(i, 0, static_cast<int>(rate))));
    SpectrumAnalysis analysis;
    analysis.prepare(rate);
    const std::size_t before = s_allocations;
    for ([[maybe_unused]] auto _ : state) {
        const auto sums = analysis.analyse(samples);
        benchmark::DoNotOptimize(barHeights(*sums, matrixForms().front()));
    }
    state.counters["allocations"] = static_cast<double>(s_allocations - before);
}

void drawFrame(benchmark::State &state)
{
    const auto bars = makeAudioBars(*findMatrixForm(static_cast<int>(state.range(0))));
    const std::vector<std::int32_t> levels(kSpectrumBands, 40);
    for ([[maybe_unused]] auto _ : state) {
        bars->clear();
        bars->setLevels(levels);
    }
}

double processorSeconds(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// The analyser's thread on a stereo device of 48 kHz for ten seconds, log and signals included. The simulated device
/// plays noise on the same thread, so what that costs is counted too, and told apart.
void wholeAnalyser(benchmark::State &state)
{
    BenchDesk desk;
    desk.desk.sound().play(playing(Sound::Noise));
    SoundAnalyzer analyzer;
    double first = 0;
    double last = 0;
    int packets = 0;
    desk.desk.sound().setProbe([&](virtualdesk::AudioCall, int) {
        last = processorSeconds(CLOCK_THREAD_CPUTIME_ID);
        first = first == 0 ? last : first;
    });
    QObject::connect(
        &analyzer, &SoundAnalyzer::heightsReady, &analyzer, [&packets] { ++packets; }, Qt::DirectConnection);
    for ([[maybe_unused]] auto _ : state) {
        const auto begin = Clock::now();
        analyzer.start();
        std::this_thread::sleep_for(std::chrono::seconds(10));
        analyzer.stop();
        analyzer.wait();
        const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
        state.counters["core_%"] = (last - first) / seconds * 100;
        state.counters["packets_per_s"] = packets / seconds;
    }
    // The device's share: the same packets, rendered again.
    const SoundSetup sound = playing(Sound::Noise);
    const double before = processorSeconds(CLOCK_THREAD_CPUTIME_ID);
    for (int i = 0; i < packets; ++i) {
        for (int sample = 0; sample < 960; ++sample)
            benchmark::DoNotOptimize(sound.sample(sample / 2, sample % 2, 48000));
    }
    const double device = processorSeconds(CLOCK_THREAD_CPUTIME_ID) - before;
    state.counters["device_%"] = device / 10 * 100;
}

/// What the music page does, without the page.
class Source : public QObject, public LedFrameSource
{
public:
    AudioVisual *audioVisual() override { return m_bars.get(); }
    void frameSent() override {}

private:
    std::unique_ptr<AudioBars> m_bars = makeAudioBars(matrixForms().front());
};

/// From the moment when a silent device begins to play to the first report that the accessory gets.
void soundToReport(benchmark::State &state)
{
    BenchDesk desk;
    SoundAnalyzer analyzer;
    Source source;
    ledWorkThread *worker = ledWorkThread::instance();
    worker->setSource(&source);
    clearHidFlags();
    reopenHid();
    QObject::connect(&analyzer, &SoundAnalyzer::heightsReady, &source, [worker](const QList<int> &heights) {
        worker->setLevels({heights.begin(), heights.end()});
        worker->begin(ledWorkThread::BuildSpectrum);
    });
    QObject::connect(worker, &ledWorkThread::frameBuilt, &source,
                     [worker] { worker->begin(ledWorkThread::SendSpectrum); });
    analyzer.start();
    double longest = 0;
    int round = 0;
    for ([[maybe_unused]] auto _ : state) {
        desk.desk.sound().play(playing(Sound::Nothing));
        const auto quiet =
            Clock::now() + std::chrono::milliseconds(150 + 7 * (round++ % 11)); // meets the loop anywhere
        while (Clock::now() < quiet)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        desk.desk.accessory().clearHistory();
        const auto begin = Clock::now();
        desk.desk.sound().play(playing(Sound::Tone));
        while (desk.desk.accessory().history().empty())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
        longest = std::max(longest, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["longest_ms"] = longest * 1e3;
    analyzer.stop();
    analyzer.wait();
    worker->setSource(nullptr);
    ledWorkThread::shutDown();
    closeHid();
}

BENCHMARK(analysePacket)->Arg(44100)->Arg(48000)->Arg(96000)->Arg(192000)->Repetitions(9)->ReportAggregatesOnly();
BENCHMARK(drawFrame)->Arg(0)->Arg(1)->Repetitions(9)->ReportAggregatesOnly();
BENCHMARK(wholeAnalyser)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(soundToReport)->Iterations(60)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
