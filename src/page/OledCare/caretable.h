#pragma once

#include <optional>
#include <span>

#include "page/engine/pagetable.h"

/// The panels of the care page, in the order of its list.
std::span<const PanelSpec> carePanels();

/// How many hours of use an option of 0x0B stands for; nothing for none.
std::optional<int> hoursOfInterval(std::optional<int> option);

inline constexpr int kCareByItself = 0; ///< the option of 0x0A: when the monitor goes to standby

inline constexpr char kCarePart[] = "care";
inline constexpr char kDesktopReminder[] = QT_TRANSLATE_NOOP("QObject", "Desktop Reminder");
