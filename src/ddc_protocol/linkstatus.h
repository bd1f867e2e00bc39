#pragma once

#include <cstdint>
#include <functional>

// Whether the monitor that commands go to answers: what the last requests came to. Safe from any thread.

/// Every request of the transport is noted here. A monitor may refuse a single code; one that does not even answer on
/// the vendor code, which opens every command, is silent.
void noteRequest(std::uint8_t code, bool ok);

/// True until a request says otherwise.
bool monitorAnswers();

/// Who hears that the monitor fell silent or answers again, on the thread of the request; empty for nobody.
void setLinkObserver(std::function<void()> observer);
