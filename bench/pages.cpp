// How long it takes from the press that opens a settings page, or one of its panels, until it is painted.

#include <algorithm>
#include <chrono>
#include <ctime>
#include <thread>

#include <QApplication>

#include <benchmark/benchmark.h>

#include "benchdesk.h"
#include "controls/lefttabbutton.h"
#include "leftbar.h"
#include "mainwindow.h"
#include "page/Scene/pagescenesetting.h"
#include "page/engine/panelpage.h"
#include "searchdevicedlg.h"
#include "toptab.h"
#include "toptabframe.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::uint16_t kCustomScene = 10;
constexpr std::size_t kTabWithoutSettings = 1; // where each tab's way begins: none of its modes is on
constexpr auto kPatience = 2s;

/// Runs the window until nothing is left to be done for a while: answers have come and have been shown.
void settle()
{
    for (const auto end = Clock::now() + 40ms; Clock::now() < end; std::this_thread::sleep_for(1ms))
        QCoreApplication::processEvents();
}

/// Notes whether a page, or a part of it, was painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(const QWidget *page) : m_page(page) { qApp->installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && object->isWidgetType()) {
            const auto *widget = static_cast<QWidget *>(object);
            painted = painted || widget == m_page || m_page->isAncestorOf(widget);
        }
        return false;
    }

    bool painted = false;

private:
    const QWidget *m_page;
};

/// The slowest opening and how many there were.
struct Openings
{
    double worst = 0;          // ms
    double worstProcessor = 0; // ms of processor time, which other programs do not lengthen much
    std::string slowest;
    int count = 0;

    void add(double milliseconds, double processor, const std::string &name)
    {
        ++count;
        worstProcessor = std::max(worstProcessor, processor);
        if (milliseconds > worst) {
            worst = milliseconds;
            slowest = name;
        }
    }
};

/// A hand that opens what there is, tab by tab, entry by entry, panel by panel.
class Tour
{
public:
    explicit Tour(MainWindow &window) : m_window(window), m_sceneTab(window.tabs()->current()) {}

    /// Opens everything once. Each press comes when the window has nothing else to do.
    Openings openAll()
    {
        m_openings = {};
        for (int family = 0; family < kFamilies; ++family) {
            if (family == m_sceneTab || family >= kSceneFamilies)
                openFamily(family);
        }
        return m_openings;
    }

    /// What did not open; empty when everything did.
    const std::string &failure() const { return m_failure; }

    void leave()
    {
        m_window.tabs()->tabs()[kTabWithoutSettings]->press();
        settle();
    }

private:
    void openFamily(int family)
    {
        leave();
        TopTab *tab = m_window.tabs()->tabs()[static_cast<std::size_t>(family)];
        const LeftBar *bar = m_window.leftBar(family);
        const std::string name = navigationFamilies()[static_cast<std::size_t>(family)].label;
        if (SettingsPage *page = pageOf(bar, bar->current()))
            open(*tab, *page, name);
        tab->press();
        settle();
        if (family < kSceneFamilies)
            return; // these entries change the monitor's mode; its page is the one that the tab has opened
        for (int i = 0; i < static_cast<int>(bar->entries().size()); ++i)
            openEntry(bar, i, name);
    }

    void openEntry(const LeftBar *bar, int index, const std::string &family)
    {
        const auto place = static_cast<std::size_t>(index);
        const std::string name = family + ", " + bar->entries()[place].label;
        SettingsPage *page = pageOf(bar, index);
        if (page && bar->current() != index)
            open(*bar->buttons()[place], *page, name);
        bar->buttons()[place]->press();
        settle();
        const auto *panels = qobject_cast<PanelPage *>(page);
        if (!panels)
            return;
        for (LeftTabButton *entry : panels->entries()) {
            if (entry->isHidden())
                continue; // there is nothing behind it on this computer
            const std::string panel = name + ", " + entry->objectName().toStdString();
            if (!entry->isChecked())
                open(*entry, *page, panel);
            if (!entry->isChecked())
                m_failure = panel;
        }
    }

    SettingsPage *pageOf(const LeftBar *bar, int index) const
    {
        return index < 0 ? nullptr : m_window.settingsPage(bar->entries()[static_cast<std::size_t>(index)].page);
    }

    void open(Pressable &button, const SettingsPage &page, const std::string &name)
    {
        PaintWatch watch(&page);
        const auto begin = Clock::now();
        const std::clock_t processorBegin = std::clock();
        button.press();
        while (!watch.painted && Clock::now() < begin + kPatience)
            QCoreApplication::processEvents();
        const double milliseconds = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
        const double processor = 1000.0 * static_cast<double>(std::clock() - processorBegin) / CLOCKS_PER_SEC;
        if (!watch.painted || !page.isVisible())
            m_failure = name;
        m_openings.add(milliseconds, processor, name);
        settle();
    }

    MainWindow &m_window;
    int m_sceneTab;
    Openings m_openings;
    std::string m_failure;
};

void openPages(benchmark::State &state)
{
    BenchDesk desk;
    desk.monitor().setValue(virtualdesk::kSceneCode, kCustomScene);
    SearchDeviceDlg session;
    session.searchDevices();
    for ([[maybe_unused]] auto _ : state) {
        MainWindow window(session);
        Tour tour(window);
        tour.leave(); // or showing the window would open the scene page
        window.show();
        settle();
        const Openings first = tour.openAll();
        const Openings again = tour.openAll();
        if (!tour.failure().empty())
            state.SkipWithError((tour.failure() + " did not open").c_str());
        state.counters["first_ms"] = first.worst;
        state.counters["first_openings"] = first.count;
        state.counters["first_processor_ms"] = first.worstProcessor;
        state.counters["again_processor_ms"] = again.worstProcessor;
        state.counters["again_ms"] = again.worst;
        state.counters["again_openings"] = again.count;
        state.SetLabel(first.slowest + "; " + again.slowest);
    }
}

BENCHMARK(openPages)->Iterations(1)->Repetitions(5)->Unit(benchmark::kMillisecond);

} // namespace
