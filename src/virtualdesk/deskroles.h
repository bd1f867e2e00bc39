#pragma once

namespace virtualdesk {

/// Tells assistive software what the desk's window, panels and pictures are; the toolkit knows their controls. Further
/// calls do nothing.
void describeDeskToAssistiveSoftware();

} // namespace virtualdesk
