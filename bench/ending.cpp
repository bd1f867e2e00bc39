// How long the program takes to end, whatever is under way: from "Exit" to the released name, which a copy that was
// started in its place looks for after a second, and to the last of its threads.

#include <chrono>
#include <fstream>
#include <functional>

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include <benchmark/benchmark.h>

#include "benchdesk.h"
#include "controls/messagebox.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/transport.h"
#include "mainwindow.h"
#include "page/Nightloom/canvas/pageledmatrixcanvas.h"
#include "page/Nightloom/music/pageledmusic.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "page/Scene/pagescenesetting.h"
#include "page/engine/optiongrouprow.h"
#include "platform/ending.h"
#include "searchdevicedlg.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::uint16_t kMovieScene = 9;
constexpr auto kUnderWay = 300ms;

double milliseconds(Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

struct Rig
{
    BenchDesk &desk;
    SearchDeviceDlg &session;
    MainWindow &window;
};

struct Situation
{
    const char *name;
    std::function<void(const Rig &)> begin;
};

void chooseCustom(const Rig &rig)
{
    const auto halves = rig.window.scenePage()->findChildren<QPushButton *>();
    for (QPushButton *half : halves) {
        if (half->text().contains(QStringLiteral("Custom")))
            return half->click();
    }
}

void readAll(const Rig &rig)
{
    reloadEdidType = kFullRead;
    rig.session.searchDevices();
}

const Situation kSituations[] = {
    {"nothing under way", [](const Rig &) {}},
    {"five values in the queue",
     [](const Rig &rig) {
         auto *queue = rig.window.findChild<CommandQueue *>();
         QTimer::singleShot(kUnderWay - 20ms, &rig.window, [queue] {
             for (const Command command :
                  {Command::Brightness, Command::Contrast, Command::Sharpness, Command::Gamma, Command::AudioVolume})
                 queue->post(command, 3);
         });
     }},
    {"scene worker, silent monitor",
     [](const Rig &rig) {
         rig.desk.monitor().goDeaf();
         chooseCustom(rig);
     }},
    {"full read", readAll},
    {"full read, the monitor falls silent",
     [](const Rig &rig) {
         QTimer::singleShot(100ms, &rig.window, [rig] { rig.desk.monitor().goDeaf(); });
         readAll(rig);
     }},
    {"animation upload",
     [](const Rig &rig) {
         auto *page = qobject_cast<pageLEDMatrixCanvas *>(rig.window.page(PageId::LedCanvas)->widget());
         QObject::connect(page, &pageLEDMatrixCanvas::busyEnded, page, &pageLEDMatrixCanvas::writeAnimate);
         page->saveAnimate();
     }},
    {"text upload",
     [](const Rig &) {
         std::ofstream("out_frame.txt") << std::string(949, '1');
         ledWorkThread::instance()->begin(ledWorkThread::UploadText);
     }},
    {"music",
     [](const Rig &rig) {
         virtualdesk::SoundSetup tone;
         tone.sound = virtualdesk::Sound::Tone;
         rig.desk.desk.sound().play(tone);
         qobject_cast<pageLEDMusic *>(rig.window.page(PageId::LedMusic)->widget())
             ->switchOptions()
             ->buttonOf(1)
             ->click();
     }},
    {"clock",
     [](const Rig &rig) {
         rig.window.page(PageId::LedSystem)->widget()->findChild<QPushButton *>("Clock_Open")->click();
     }},
    {"question open", [](const Rig &rig) { askYesNo(QStringLiteral("a"), QStringLiteral("b"), &rig.window); }},
};

void endProgram(benchmark::State &state)
{
    const Situation &situation = kSituations[state.range(0)];
    state.SetLabel(situation.name);
    for ([[maybe_unused]] auto _ : state) {
        BenchDesk desk;
        desk.desk.process().startsPrograms = true; // or it would not really quit
        desk.monitor().setValue(virtualdesk::kSceneCode, kMovieScene);
        SearchDeviceDlg session;
        session.searchDevices();
        desk.monitor().setLatency(virtualdesk::kRealisticRead, virtualdesk::kRealisticWrite);
        auto window = std::make_unique<MainWindow>(session);
        window->show();
        Clock::time_point exit;
        QTimer::singleShot(0, window.get(), [&] { situation.begin({desk, session, *window}); });
        QTimer::singleShot(kUnderWay, window.get(), [&exit] {
            exit = Clock::now();
            platform::endProgram();
        });
        QApplication::exec();
        const auto released = Clock::now(); // main() closes the name next
        window.reset();
        state.counters["released_ms"] = milliseconds(released - exit);
        state.counters["gone_ms"] = milliseconds(Clock::now() - exit);
    }
}

BENCHMARK(endProgram)
    ->DenseRange(0, std::size(kSituations) - 1)
    ->Iterations(1)
    ->Repetitions(5)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
