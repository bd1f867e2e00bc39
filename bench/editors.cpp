// What drawing an animation costs: reading 192 frames until the first is painted, a cell from press to paint, and the
// memory that the most frames take.

#include <chrono>
#include <thread>

#include <QApplication>
#include <QFile>
#include <QMouseEvent>

#include <benchmark/benchmark.h>

#include "benchdesk.h"
#include "page/Nightloom/canvas/frametabs.h"
#include "page/Nightloom/canvas/pageledmatrixcanvas.h"
#include "page/Nightloom/parts/matrixeditor.h"
#include "usb-hid/accessorylink.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kFrames = 192;
constexpr auto kPatience = 5s;

/// The canvas page with its file named.
class NamedCanvas : public pageLEDMatrixCanvas
{
public:
    NamedCanvas() : pageLEDMatrixCanvas([] { return true; })
    {
        resize(1000, 680);
        show();
        settle();
    }

    /// Runs the window until nothing is left to be done for a while.
    static void settle()
    {
        for (const auto end = Clock::now() + 60ms; Clock::now() < end; std::this_thread::sleep_for(1ms))
            QCoreApplication::processEvents();
    }

protected:
    QString askOpenFile() override { return QStringLiteral("frames.csv"); }
};

/// Notes whether the open editor was painted while the page had a number of frames.
class EditorPaintWatch : public QObject
{
public:
    EditorPaintWatch(const NamedCanvas &page, int frames) : m_page(page), m_frames(frames)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const FrameTabs &tabs = *m_page.tabs();
        if (event->type() == QEvent::Paint && tabs.count() == m_frames && object == tabs.currentEditor())
            painted = true;
        return false;
    }

    bool painted = false;

private:
    const NamedCanvas &m_page;
    const int m_frames;
};

double milliseconds(Clock::time_point begin)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

/// From the choice of the file until every frame has its tab and the first is painted; half of the cells are lit.
void importFrames(benchmark::State &state)
{
    const BenchDesk desk;
    accessoryLink.form = findMatrixForm(static_cast<int>(state.range(0)));
    QFile file(QStringLiteral("frames.csv"));
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray("01").repeated(525 * kFrames)) < 0)
        return state.SkipWithError("no file");
    file.close();
    double worst = 0;
    for ([[maybe_unused]] auto _ : state) {
        NamedCanvas page;
        EditorPaintWatch watch(page, kFrames);
        const auto begin = Clock::now();
        page.importAnimate();
        while ((page.isBusy() || !watch.painted) && Clock::now() < begin + kPatience)
            QCoreApplication::processEvents();
        const double time = milliseconds(begin);
        state.SetIterationTime(time / 1000.0);
        worst = std::max(worst, time);
        if (page.isBusy() || !watch.painted)
            state.SkipWithError("the frames did not come");
        NamedCanvas::settle();
    }
    state.counters["worst_ms"] = worst;
    accessoryLink.form = &matrixForms().front();
}

/// From the press on a cell until it is painted, its stroke noted for undoing on release.
void toggleCell(benchmark::State &state)
{
    const BenchDesk desk;
    accessoryLink.form = findMatrixForm(static_cast<int>(state.range(0)));
    NamedCanvas page;
    while (page.frameCounter() <= kFrames)
        page.addFrame();
    NamedCanvas::settle();
    MatrixEditor *editor = page.tabs()->currentEditor();
    double worst = 0;
    int row = 0;
    for ([[maybe_unused]] auto _ : state) {
        row = (row + 1) % 10; // of those that are in sight
        const QPointF point = editor->geometry().cellRect({row, 3}).center();
        EditorPaintWatch watch(page, kFrames + 1);
        const auto begin = Clock::now();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, point, editor->mapToGlobal(point), Qt::LeftButton, Qt::LeftButton, {});
            QApplication::sendEvent(editor, &event);
        }
        while (!watch.painted && Clock::now() < begin + kPatience)
            QCoreApplication::processEvents();
        const double time = milliseconds(begin);
        state.SetIterationTime(time / 1000.0);
        worst = std::max(worst, time);
        if (!watch.painted)
            state.SkipWithError("the cell was not painted");
    }
    state.counters["worst_ms"] = worst;
    accessoryLink.form = &matrixForms().front();
}

/// What 193 frames take beyond the one that the page opens with, each shown once and drawn in, their history included.
void openFrames(benchmark::State &state)
{
    const BenchDesk desk;
    accessoryLink.form = findMatrixForm(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        NamedCanvas page;
        const double before = residentMegabytes();
        while (page.frameCounter() <= kFrames) {
            page.addFrame();
            MatrixEditor *editor = page.tabs()->currentEditor();
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, {});
            QApplication::sendEvent(editor, &press);
            QCoreApplication::processEvents();
        }
        NamedCanvas::settle();
        state.counters["MB"] = residentMegabytes() - before;
        state.counters["frames"] = page.tabs()->count();
    }
    accessoryLink.form = &matrixForms().front();
}

BENCHMARK(importFrames)
    ->Arg(0)
    ->Arg(1)
    ->ArgName("form")
    ->UseManualTime()
    ->Iterations(10)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(toggleCell)->Arg(0)->Arg(1)->ArgName("form")->UseManualTime()->Iterations(200)->Unit(benchmark::kMillisecond);
BENCHMARK(openFrames)->Arg(0)->Arg(1)->ArgName("form")->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
