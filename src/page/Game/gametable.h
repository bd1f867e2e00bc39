#pragma once

#include <span>

#include "page/engine/pagetable.h"

/// The aids that the monitor itself lays over a game, in list order.
std::span<const PanelSpec> gamePanels();
