#pragma once

#include <span>

#include "virtualdesk/osdfunctions.h"

// The menus of the on-screen display, each a table of its own.
namespace virtualdesk::menus {

std::span<const OsdFunction> picture();
std::span<const OsdFunction> game();
std::span<const OsdFunction> signal();
std::span<const OsdFunction> setup();
std::span<const OsdFunction> office();
std::span<const OsdFunction> care();
std::span<const OsdFunction> light();

/// The scene modes by the odd value of each; the next even one is the same mode with the user's own picture.
std::span<const OsdOption> scenes();

} // namespace virtualdesk::menus
