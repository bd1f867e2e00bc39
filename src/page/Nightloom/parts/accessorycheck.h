#pragma once

#include <functional>

/// Whether the accessory is there; tells the user when it is not. The window gives it to the pages that need it.
using AccessoryCheck = std::function<bool()>;
