#include "virtualdesk/osdfunctions.h"

#include <algorithm>
#include <vector>

#include <QObject>

#include "virtualdesk/menus/menus.h"

namespace virtualdesk {

namespace {

struct CodeRange
{
    int first;
    int last;
};
constexpr CodeRange kCodeRanges[] = {{0x01, 0x0E}, {0x10, 0x10}, {0x12, 0x12}, {0x14, 0x1E}, {0x22, 0x22},
                                     {0x24, 0x24}, {0x26, 0x26}, {0x30, 0x4D}, {0x50, 0x57}, {0x59, 0x6A},
                                     {0x70, 0x8D}, {0x9B, 0xA0}, {0xC0, 0xC8}, {0xCC, 0xCC}, {0xD0, 0xDA},
                                     {0xE0, 0xE1}, {0xE3, 0xF2}, {0xF6, 0xFB}, {0xFD, 0xFD}};

std::vector<std::uint8_t> listCodes()
{
    std::vector<std::uint8_t> codes;
    for (const CodeRange &range : kCodeRanges) {
        for (int code = range.first; code <= range.last; ++code)
            codes.push_back(static_cast<std::uint8_t>(code));
    }
    return codes;
}

std::vector<OsdFunction> listMenus()
{
    std::vector<OsdFunction> all;
    for (const auto menu :
         {menus::picture, menus::game, menus::signal, menus::setup, menus::office, menus::care, menus::light}) {
        const std::span<const OsdFunction> functions = menu();
        all.insert(all.end(), functions.begin(), functions.end());
    }
    return all;
}

} // namespace

std::span<const std::uint8_t> commandCodes()
{
    static const std::vector<std::uint8_t> codes = listCodes();
    return codes;
}

OsdFunction osdFunction(std::uint8_t code)
{
    const std::span<const OsdFunction> menu = osdMenu();
    const auto found = std::ranges::find(menu, code, &OsdFunction::code);
    if (found != menu.end())
        return *found;
    if (code >= 0x16 && code <= 0x1E) // the three user presets, red, green and blue each
        return {code, "", 80, 100, {}};
    if ((code >= 0x59 && code <= 0x5E) || (code >= 0x9B && code <= 0xA0)) // saturation and hue of six colours
        return {code, "", 50, 100, {}};
    return {code, "", 0, 255, {}};
}

std::span<const OsdFunction> osdMenu()
{
    static const std::vector<OsdFunction> menu = listMenus();
    return menu;
}

std::uint16_t neededByMenu()
{
    std::uint16_t bits = 0;
    for (const OsdFunction &function : osdMenu())
        bits |= function.needs;
    return bits;
}

QString osdName(const OsdFunction &function)
{
    return *function.name == '\0' ? QString() : QObject::tr(function.name);
}

QString osdValueText(const OsdFunction &function, std::uint16_t value)
{
    for (const OsdOption &option : function.options) {
        if (option.value == value)
            return QObject::tr(option.name);
    }
    return QString::number(value);
}

std::uint16_t osdStep(const OsdFunction &function, std::uint16_t value, int direction)
{
    if (function.options.empty())
        return static_cast<std::uint16_t>(std::clamp(value + direction, 0, int(function.maximum)));
    const auto isOn = [value](const OsdOption &option) { return option.value == value; };
    const auto on = std::find_if(function.options.begin(), function.options.end(), isOn) - function.options.begin();
    const auto last = static_cast<std::ptrdiff_t>(function.options.size()) - 1;
    return function.options[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(on + direction, 0, last))].value;
}

QString sceneName(int mode)
{
    const int factory = mode % 2 == 0 ? mode - 1 : mode;
    QString name = QObject::tr("Mode %1").arg(mode);
    for (const OsdOption &scene : menus::scenes()) {
        if (scene.value == factory)
            name = QObject::tr(scene.name);
    }
    const QString half = mode % 2 == 0 ? QObject::tr("Custom") : QObject::tr("Default");
    return QObject::tr("%1 · %2").arg(name, half);
}

} // namespace virtualdesk
