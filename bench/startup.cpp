// From starting the program's process to its painted main window, with a desk that answers at once.
//
// By X: the window of the right size is mapped and a pixel inside it is no longer black, as any other program sees it.
// It is looked at every 0.2 ms, which itself takes a little of the machine.
// By the probe: the window's first painting is done, which works without a screen as well.

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <optional>
#include <thread>

#include <QByteArray>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <xcb/xcb.h>

extern char **environ;

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kPatience = 10s;
constexpr int kWidth = 1280;
constexpr int kHeight = 800;

/// The program, started in an empty folder of its own and ended with this object.
class Program
{
public:
    /// On a Qt platform; with the descriptor that the probe reports to, or -1 for none.
    Program(const char *platform, int probe)
    {
        const QByteArray folder = m_folder.path().toLocal8Bit();
        qputenv("TMPDIR", folder);
        qputenv("XDG_RUNTIME_DIR", folder);
        qputenv("QUORVEL_DESK", "virtual");
        qputenv("QUORVEL_DESK_LATENCY", "none");
        qputenv("QT_QPA_PLATFORM", platform);
        if (probe >= 0) {
            qputenv("QT_PLUGIN_PATH", QUORVEL_PLUGINS);
            qputenv("QT_QPA_GENERIC_PLUGINS", "quorvelpaintprobe");
            qputenv("QUORVEL_PROBE_FD", QByteArray::number(probe));
        } else {
            qunsetenv("QT_QPA_GENERIC_PLUGINS");
        }
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addchdir_np(&actions, folder.constData());
        for (const int output : {STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&actions, output, "/dev/null", O_WRONLY, 0);
        QByteArray path = QUORVEL_PROGRAM;
        char *arguments[] = {path.data(), nullptr};
        begin = Clock::now();
        m_failed = posix_spawn(&m_process, path.constData(), &actions, nullptr, arguments, environ) != 0;
        posix_spawn_file_actions_destroy(&actions);
        qunsetenv("TMPDIR");
    }

    ~Program()
    {
        if (m_failed)
            return;
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    Q_DISABLE_COPY_MOVE(Program)

    Clock::time_point begin;

private:
    QTemporaryDir m_folder;
    pid_t m_process = 0;
    bool m_failed = false;
};

struct Freed
{
    void operator()(void *pointer) const { free(pointer); }
};
template <typename T> using Reply = std::unique_ptr<T, Freed>;

class Screen
{
public:
    Screen() : m_connection(xcb_connect(nullptr, nullptr))
    {
        if (!isOpen())
            return;
        m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(m_connection);
    }
    ~Screen() { xcb_disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(Screen)

    bool isOpen() const { return xcb_connection_has_error(m_connection) == 0; }

    /// When the main window showed something.
    std::optional<Clock::time_point> waitForPicture()
    {
        const auto end = Clock::now() + kPatience;
        std::optional<xcb_window_t> window;
        while (Clock::now() < end) {
            if (!window)
                window = nextMainWindow();
            if (window && isPainted(*window))
                return Clock::now();
            std::this_thread::sleep_for(200us);
        }
        return std::nullopt;
    }

private:
    std::optional<xcb_window_t> nextMainWindow()
    {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
            if ((event->response_type & 0x7F) != XCB_MAP_NOTIFY)
                continue;
            const xcb_window_t window = reinterpret_cast<xcb_map_notify_event_t *>(event.get())->window;
            const Reply<xcb_get_geometry_reply_t> size{
                xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr)};
            if (size && size->width == kWidth && size->height == kHeight)
                return window;
        }
        return std::nullopt;
    }

    bool isPainted(xcb_window_t window)
    {
        const auto cookie =
            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, kWidth / 2, kHeight / 2, 1, 1, ~0u);
        const Reply<xcb_get_image_reply_t> image{xcb_get_image_reply(m_connection, cookie, nullptr)};
        if (!image || xcb_get_image_data_length(image.get()) < 3)
            return false;
        const std::uint8_t *pixel = xcb_get_image_data(image.get());
        return pixel[0] != 0 || pixel[1] != 0 || pixel[2] != 0;
    }

    xcb_connection_t *m_connection;
    xcb_window_t m_root = 0;
};

void report(benchmark::State &state, const Program &program, std::optional<Clock::time_point> painted)
{
    if (painted)
        state.SetIterationTime(std::chrono::duration<double>(*painted - program.begin).count());
    else
        state.SkipWithError("no painted window");
}

void startByX(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        Screen screen;
        if (!screen.isOpen()) {
            state.SkipWithError("no X server");
            return;
        }
        const Program program("xcb", -1);
        report(state, program, screen.waitForPicture());
    }
}

/// The probe's line from the pipe.
std::optional<Clock::time_point> waitForProbe(int descriptor)
{
    pollfd ready{descriptor, POLLIN, 0};
    char line[32] = {};
    if (poll(&ready, 1, int(std::chrono::milliseconds(kPatience).count())) != 1 ||
        read(descriptor, line, sizeof line - 1) <= 0)
        return std::nullopt;
    return Clock::time_point(std::chrono::nanoseconds(std::atoll(line)));
}

void startByProbe(benchmark::State &state, const char *platform)
{
    for ([[maybe_unused]] auto _ : state) {
        int ends[2];
        if (pipe(ends) != 0) {
            state.SkipWithError("no pipe");
            return;
        }
        fcntl(ends[0], F_SETFD, FD_CLOEXEC);
        {
            const Program program(platform, ends[1]);
            close(ends[1]);
            report(state, program, waitForProbe(ends[0]));
        }
        close(ends[0]);
    }
}

template <typename Benchmark> void often(Benchmark *benchmark)
{
    benchmark->UseManualTime()
        ->Iterations(1)
        ->Repetitions(11)
        ->Unit(benchmark::kMillisecond)
        ->ComputeStatistics("max", [](const std::vector<double> &v) { return *std::max_element(v.begin(), v.end()); })
        ->ReportAggregatesOnly();
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    often(benchmark::RegisterBenchmark("start/x/seen", startByX));
    often(benchmark::RegisterBenchmark("start/x/probe", startByProbe, "xcb"));
    often(benchmark::RegisterBenchmark("start/offscreen/probe", startByProbe, "offscreen"));
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
