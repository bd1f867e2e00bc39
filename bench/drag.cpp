// How the window keeps up with a hand that drags Brightness while every request takes 50 ms.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <thread>
#include <vector>

#include <QApplication>
#include <QMouseEvent>

#include <benchmark/benchmark.h>

#include "benchdesk.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/transport.h"
#include "mainwindow.h"
#include "page/Scene/pagescenesetting.h"
#include "searchdevicedlg.h"
#include "virtualdesk/deskwindow.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr platform::milliseconds kRequest{50};
constexpr std::uint16_t kCustomScene = 10;
constexpr std::uint8_t kBrightnessCode = 0x10;
constexpr auto kMovePeriod = 8ms; // a mouse of 125 Hz
constexpr int kMoves = 375;       // 3 s
constexpr int kStep = 3;          // pixels a move, about one value

double milliseconds(Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

/// Notes when the slider is given moves and paintings, on the interface thread.
class Watch : public QObject
{
public:
    explicit Watch(QObject *slider) : m_slider(slider) { qApp->installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (object == m_slider && event->type() == QEvent::MouseMove)
            moves.push_back(Clock::now());
        else if (object == m_slider && event->type() == QEvent::Paint)
            paints.push_back(Clock::now());
        return false;
    }

    std::vector<Clock::time_point> moves;
    std::vector<Clock::time_point> paints;

private:
    QObject *m_slider;
};

double longestGap(const std::vector<Clock::time_point> &times)
{
    Clock::duration longest{};
    for (std::size_t i = 1; i < times.size(); ++i)
        longest = std::max(longest, times[i] - times[i - 1]);
    return milliseconds(longest);
}

/// From a move's being sent to the slider's being given it: the worst and the mean.
std::pair<double, double> delays(const std::vector<Clock::time_point> &sent,
                                 const std::vector<Clock::time_point> &given)
{
    Clock::duration longest{};
    Clock::duration sum{};
    const std::size_t count = std::min(sent.size(), given.size());
    for (std::size_t i = 0; i < count; ++i) {
        longest = std::max(longest, given[i] - sent[i]);
        sum += given[i] - sent[i];
    }
    return {milliseconds(longest), count == 0 ? 0 : milliseconds(sum) / static_cast<double>(count)};
}

void post(QWidget *target, QEvent::Type type, int x)
{
    const QPointF local(x, target->height() / 2.0);
    const bool moves = type == QEvent::MouseMove;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QCoreApplication::postEvent(target, new QMouseEvent(type, local, local, local,
                                                        moves ? Qt::NoButton : Qt::LeftButton, held, Qt::NoModifier));
}

/// The hand: to and fro over the slider, at the mouse's pace whatever the window does. When each move was sent.
std::vector<Clock::time_point> drag(QWidget *slider, int width)
{
    std::vector<Clock::time_point> sent;
    const int left = 20;
    const int span = width - 2 * left;
    auto due = Clock::now();
    post(slider, QEvent::MouseButtonPress, left);
    for (int i = 1; i <= kMoves; ++i) {
        std::this_thread::sleep_until(due += kMovePeriod);
        const int way = i * kStep % (2 * span);
        sent.push_back(Clock::now());
        post(slider, QEvent::MouseMove, left + (way < span ? way : 2 * span - way));
    }
    post(slider, QEvent::MouseButtonRelease, left);
    return sent;
}

std::size_t brightnessWrites(const virtualdesk::SimulatedMonitor &monitor)
{
    const auto history = monitor.history();
    return static_cast<std::size_t>(std::count_if(history.begin(), history.end(), [](const auto &request) {
        return request.kind == virtualdesk::RequestKind::Write && request.code == kBrightnessCode;
    }));
}

void settle(platform::milliseconds duration)
{
    for (const auto end = Clock::now() + duration; Clock::now() < end; std::this_thread::sleep_for(1ms))
        QCoreApplication::processEvents();
}

/// What the window saw of the hand.
void countSeen(benchmark::State &state, const Watch &watch, const std::vector<Clock::time_point> &sent)
{
    const auto [worst, mean] = delays(sent, watch.moves);
    state.counters["longest_move_gap_ms"] = longestGap(watch.moves);
    state.counters["longest_paint_gap_ms"] = longestGap(watch.paints);
    state.counters["worst_move_delay_ms"] = worst;
    state.counters["mean_move_delay_ms"] = mean;
    state.counters["moves"] = static_cast<double>(watch.moves.size());
    state.counters["paints"] = static_cast<double>(watch.paints.size());
}

void dragBrightness(benchmark::State &state)
{
    BenchDesk desk;
    desk.monitor().setValue(virtualdesk::kSceneCode, kCustomScene);
    SearchDeviceDlg session;
    session.searchDevices();
    MainWindow window(session);
    window.show();
    std::unique_ptr<virtualdesk::DeskWindow> deskWindow;
    if (state.range(0) != 0) {
        deskWindow = std::make_unique<virtualdesk::DeskWindow>(desk.desk);
        deskWindow->show();
    }
    settle(500ms);
    desk.monitor().setLatency(kRequest, kRequest);
    NoWheelSlider *slider = window.scenePage()->slider("Brightness")->slider();
    if (!slider->isVisible() || !slider->isEnabled())
        state.SkipWithError("the slider cannot be dragged");

    for ([[maybe_unused]] auto _ : state) {
        desk.monitor().clearHistory();
        state.counters["monitor_had"] = desk.monitor().value(kBrightnessCode);
        Watch watch(slider);
        std::vector<Clock::time_point> sent;
        std::atomic<bool> done = false;
        std::thread hand([&, width = slider->width()] {
            sent = drag(slider, width);
            done = true;
            QMetaObject::invokeMethod(qApp, [] {}); // wakes the loop below
        });
        while (!done)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        hand.join();
        settle(500ms); // what was sent last takes two requests, behind two that may be under way
        countSeen(state, watch, sent);
        state.counters["commands"] = static_cast<double>(brightnessWrites(desk.monitor()));
        state.counters["shown"] = slider->value();
        state.counters["monitor_has"] = desk.monitor().value(kBrightnessCode);
    }
}

BENCHMARK(dragBrightness)
    ->ArgName("desk_window")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(1)
    ->Repetitions(3)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
