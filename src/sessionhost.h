#pragma once

#include "systemnotices.h"

/// What the device session asks of the main window. All calls come on the interface thread.
class SessionHost
{
public:
    virtual ~SessionHost() = default;

    /// Fills every page from the snapshot, then retranslates.
    virtual void refreshPages() = 0;

    /// Asks the pages to read again after a failed command.
    virtual void reconnectPages() = 0;

    /// Brings what is not a page up to date: the monitor's name and state.
    virtual void updateInterface() = 0;

    virtual void hideWindow() = 0;
    virtual void showWindow() = 0;

    /// Whether the program may end: asks the user about what would be lost. To be asked before anything is done that
    /// ends in a restart.
    virtual bool mayLeave() { return true; }

    virtual void deviceArrived() = 0;
    virtual void deviceRemoved() = 0;

    /// The computer woke, its displays changed, somebody is back.
    virtual void systemNoticed(SystemNotice notice) = 0;

    /// Looks for the LED-matrix accessory again; the flags of what was found are cleared.
    virtual void reopenHidDevice() = 0;
};
