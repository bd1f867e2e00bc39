#pragma once

#include <span>

#include "page/engine/pagetable.h"

/// The sections of the I/O page, in list order.
std::span<const PanelSpec> ioPanels();

inline constexpr char kPreviewPart[] = "Preview";
inline constexpr char kInputNowPart[] = "InputNow";
