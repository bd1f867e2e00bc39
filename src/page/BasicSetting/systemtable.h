#pragma once

#include <span>

#include "page/engine/pagetable.h"

/// The sections of the system settings page, in left-bar order.
std::span<const PanelSpec> systemPanels();

/// What a language of the monitor's own menu is called there; empty for a value that none has.
const char *osdLanguageName(int value);

inline constexpr char kResetPart[] = "Reset Factory";
