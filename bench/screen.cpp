// What looking at the screen's colours costs: one look, and ten a second on a thread of their own.

#include <ctime>

#include <QCoreApplication>
#include <QElapsedTimer>

#include <benchmark/benchmark.h>

#include "PictureAudioCom/screensampler.h"
#include "benchdesk.h"

namespace {

const QRect kScreen(0, 0, 1920, 1080);
constexpr int kLooks = 100;

/// A film in bright colours, between two bars.
QImage film()
{
    QImage image(kScreen.size(), QImage::Format_RGB32);
    image.fill(0);
    for (int y = 138; y < 942; ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x / 8, 255 - y / 5, (x + y) & 255));
    }
    return image;
}

double processorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void oneLook(benchmark::State &state)
{
    virtualdesk::SimulatedScreen screen;
    screen.setPicture(film());
    ScreenColours colours;
    for ([[maybe_unused]] auto _ : state)
        colours.look(kScreen, [&screen](std::span<const platform::ScreenPart> parts) { return screen.copy(parts); });
}

/// Ten looks a second for ten seconds: at the film, or at the real screen.
void tenASecond(benchmark::State &state)
{
    BenchDesk desk;
    if (state.range(0) == 0)
        desk.desk.screen().setPicture(film());
    ScreenSampler sampler;
    int looked = 0;
    QObject::connect(&sampler, &ScreenSampler::looked, &sampler, [&looked](bool ok) { looked += ok ? 1 : 0; });
    for ([[maybe_unused]] auto _ : state) {
        const double before = processorSeconds();
        QElapsedTimer timer;
        timer.start();
        for (int look = 0; look < kLooks; ++look) {
            sampler.request(kScreen);
            platform::desk().clock().sleep(std::chrono::milliseconds(100));
            QCoreApplication::processEvents();
        }
        state.counters["core_%"] = (processorSeconds() - before) / (static_cast<double>(timer.elapsed()) / 1000) * 100;
        state.counters["looks"] = looked;
    }
}

BENCHMARK(oneLook)->Repetitions(9)->ReportAggregatesOnly()->Unit(benchmark::kMicrosecond);
BENCHMARK(tenASecond)->ArgName("real")->Arg(0)->Arg(1)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
