#pragma once

#include "support/deskfixture.h"

/// A desk with the accessory plugged and not opened yet; the suites about it derive from this.
class AccessoryFixture : public DeskSuite
{
    Q_OBJECT
protected:
    virtualdesk::SimulatedAccessory &accessory() { return m_desk->desk.accessory(); }

    /// Opens the accessory as if it had just arrived.
    void connectDevice();

    int m_faultsExpected = 0; ///< writes that the accessory could not understand

protected Q_SLOTS:
    /// Fails when a handle was left open or used after it was closed, or a write was not understood.
    void cleanup();
};
