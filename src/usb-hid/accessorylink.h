#pragma once

#include <atomic>
#include <optional>

#include "ledmatrix/matrixform.h"
#include "platform/hid.h"

/// The one accessory: what was found of it, the handle to it, and how it is built.
struct AccessoryLink
{
    /// The device that an enumeration saw; stays until somebody clears it. Interface thread only.
    std::optional<platform::HidIds> found;

    /// The device was opened. Interface thread only.
    bool opened = false;

    /// Null while closed. Only reopenHid and closeHid, on the interface thread, write it.
    std::atomic<platform::HidDevice *> handle = nullptr;

    /// The form that is used, which the device does not tell; with null every producer of frames does nothing. Written
    /// on the interface thread only; a sender may read the old one once more.
    std::atomic<const MatrixForm *> form = &matrixForms().front();
};

inline AccessoryLink accessoryLink;
