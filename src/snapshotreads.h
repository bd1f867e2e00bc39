#pragma once

#include <span>

#include "ddc_protocol/command.h"

/// One single read of the start-up snapshot.
struct SnapshotRead
{
    Command command;
    bool logged;           ///< a failed attempt is logged
    bool isSwitch = false; ///< kept as 0 or 1
};

/// The groups of reads in the order that the monitor is asked; what stands between them is the session's.
std::span<const SnapshotRead> audioReads();
std::span<const SnapshotRead> careReads(); ///< only for OLED panels
std::span<const SnapshotRead> modelReads();
std::span<const SnapshotRead> officeReads();
