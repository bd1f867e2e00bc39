#include "support/accessoryfixture.h"

#include "usb-hid/hidtransport.h"

void AccessoryFixture::connectDevice()
{
    clearHidFlags();
    reopenHid();
    QVERIFY(accessoryLink.handle);
    m_desk->takeLog();
}

void AccessoryFixture::cleanup()
{
    closeHid();
    const int left = accessory().handlesOpen() + accessory().handleFaults();
    const int faults = accessory().protocolFaults();
    m_desk.reset();
    QCOMPARE(left, 0);
    QCOMPARE(faults, std::exchange(m_faultsExpected, 0));
}
