#pragma once

#include <span>

#include "page/engine/pagetable.h"

/// The groups of the office page; the window's left bar chooses among them.
std::span<const PanelSpec> officePanels();

inline constexpr char kPaperSizePart[] = "Custom Size";
inline constexpr int kCustomPaper = 4; ///< the option of 0xEC that the two size fields belong to
