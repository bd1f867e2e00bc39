#pragma once

#include <cstdint>
#include <span>

#include <QString>

namespace virtualdesk {

/// One choice of an OSD function: the value on the wire and what the OSD calls it.
struct OsdOption
{
    std::uint16_t value;
    const char *name;
};

/// One OSD function as the monitor's own firmware knows it.
struct OsdFunction
{
    std::uint8_t code;                  ///< VCP code
    const char *name;                   ///< empty for a code without a menu entry
    std::uint16_t factory;              ///< value after a factory reset
    std::uint16_t maximum;              ///< highest value; what the reply reports as maximum
    std::span<const OsdOption> options; ///< the only values taken; empty for a plain number 0..maximum
    std::uint16_t needs = 0;            ///< the bit of the capability word that only its models have
    std::uint8_t shows = 0;             ///< code of the switch that comes on with a value over the link; 0 for none
};

/// The 168 command codes of the monitor, rising.
std::span<const std::uint8_t> commandCodes();

/// The function behind a command code; a nameless one, of plain numbers, when the OSD has no entry for it.
OsdFunction osdFunction(std::uint8_t code);

/// The functions with a menu entry, in the order of the OSD.
std::span<const OsdFunction> osdMenu();

/// The bits of all that functions with a menu entry need.
std::uint16_t neededByMenu();

/// The function's name in the interface language.
QString osdName(const OsdFunction &function);

/// What the OSD shows for a value: the option's name in the interface language, or the number.
QString osdValueText(const OsdFunction &function, std::uint16_t value);

/// What a press on the monitor's own button makes of a value: the next option or number, up or down (1 or -1), and the
/// same at the end.
std::uint16_t osdStep(const OsdFunction &function, std::uint16_t value, int direction);

/// The name of a scene mode, 1..90, in the interface language, with "Default" or "Custom".
QString sceneName(int mode);

} // namespace virtualdesk
