#pragma once

#include <span>

#include "page/engine/pagetable.h"

/// The sections of the system settings page, in left-bar order.
std::span<const PanelSpec> systemPanels();

inline constexpr char kResetPart[] = "Reset Factory";
