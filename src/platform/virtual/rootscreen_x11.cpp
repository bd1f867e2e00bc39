#include "platform/virtual/rootscreen.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <vector>

#include <xcb/randr.h>
#include <xcb/xcb.h>

#include <QByteArray>
#include <QList>

namespace platform {

namespace {

struct Disconnects
{
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnects>;

struct Frees
{
    void operator()(void *reply) const { std::free(reply); }
};
template <class T> using Reply = std::unique_ptr<T, Frees>;

constexpr std::uint32_t kLongestProperty = 1 << 14; // in units of four bytes

/// A property of the root window; empty when it has none.
QByteArray property(xcb_connection_t *x, xcb_window_t root, const char *name)
{
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const Reply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(x, xcb_intern_atom(x, 1, length, name), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return {};
    const auto asked = xcb_get_property(x, 0, root, atom->atom, XCB_GET_PROPERTY_TYPE_ANY, 0, kLongestProperty);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(x, asked, nullptr));
    if (!reply)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(reply.get())), xcb_get_property_value_length(reply.get())};
}

/// The primary monitor, or the first one; the whole root window where monitors are not told of.
QRect primaryMonitor(xcb_connection_t *x, const xcb_screen_t &screen)
{
    const QRect whole(0, 0, screen.width_in_pixels, screen.height_in_pixels);
    const Reply<xcb_randr_get_monitors_reply_t> reply(
        xcb_randr_get_monitors_reply(x, xcb_randr_get_monitors(x, screen.root, 1), nullptr));
    if (!reply)
        return whole;
    std::optional<QRect> first;
    for (auto it = xcb_randr_get_monitors_monitors_iterator(reply.get()); it.rem > 0;
         xcb_randr_monitor_info_next(&it)) {
        const QRect monitor(it.data->x, it.data->y, it.data->width, it.data->height);
        if (it.data->primary)
            return monitor;
        if (!first)
            first = monitor;
    }
    return first.value_or(whole);
}

/// Four numbers a desktop, the first of which counts.
QRect desktopArea(const QByteArray &workArea)
{
    std::uint32_t numbers[4];
    if (workArea.size() < qsizetype(sizeof numbers))
        return {};
    std::memcpy(numbers, workArea.constData(), sizeof numbers);
    return {int(numbers[0]), int(numbers[1]), int(numbers[2]), int(numbers[3])};
}

/// The scale that the toolkit takes from the desktop's settings.
double scaleOf(const QByteArray &resources)
{
    constexpr char kDpi[] = "Xft.dpi:";
    for (const QByteArray &line : resources.split('\n')) {
        const double dpi = line.startsWith(kDpi) ? line.mid(sizeof kDpi - 1).trimmed().toDouble() : 0;
        if (dpi > 0)
            return dpi / 96;
    }
    return 1;
}

/// Null where the desk is shown on no such screen.
Connection connectToRoot()
{
    const QByteArray toolkit = qgetenv("QT_QPA_PLATFORM");
    if (!qEnvironmentVariableIsSet("DISPLAY") || !(toolkit.isEmpty() || toolkit.startsWith("xcb")))
        return {};
    Connection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()))
        return {};
    return connection;
}

const xcb_screen_t &screenOf(xcb_connection_t *x)
{
    return *xcb_setup_roots_iterator(xcb_get_setup(x)).data;
}

} // namespace

struct RootPixels::Way
{
    Connection connection;
};

RootPixels::RootPixels() = default;
RootPixels::~RootPixels() = default;

/// All are asked for before the first is waited for.
bool RootPixels::copy(std::span<const ScreenPart> parts)
{
    if (!m_way)
        m_way = std::make_unique<Way>(connectToRoot());
    xcb_connection_t *x = m_way->connection.get();
    if (x == nullptr)
        return false;
    std::vector<xcb_get_image_cookie_t> asked;
    for (const ScreenPart &part : parts)
        asked.push_back(
            xcb_get_image(x, XCB_IMAGE_FORMAT_Z_PIXMAP, screenOf(x).root, static_cast<std::int16_t>(part.area.x()),
                          static_cast<std::int16_t>(part.area.y()), static_cast<std::uint16_t>(part.area.width()),
                          static_cast<std::uint16_t>(part.area.height()), ~0u));
    bool areCopied = true;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const Reply<xcb_get_image_reply_t> reply(xcb_get_image_reply(x, asked[i], nullptr));
        const auto length = reply ? static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) : 0;
        if (length != 0 && length == parts[i].pixels.size_bytes())
            std::memcpy(parts[i].pixels.data(), xcb_get_image_data(reply.get()), length);
        else // not on the screen, or of fewer colours
            areCopied = false;
    }
    if (xcb_connection_has_error(x))
        m_way.reset();
    return areCopied;
}

std::optional<WorkArea> rootWorkArea()
{
    const Connection connection = connectToRoot();
    xcb_connection_t *x = connection.get();
    if (x == nullptr)
        return std::nullopt;
    const xcb_screen_t &screen = screenOf(x);
    QRect area = primaryMonitor(x, screen);
    const QRect desktop = desktopArea(property(x, screen.root, "_NET_WORKAREA"));
    if (desktop.intersects(area))
        area = area.intersected(desktop);
    return WorkArea{area.size(), scaleOf(property(x, screen.root, "RESOURCE_MANAGER"))};
}

} // namespace platform
