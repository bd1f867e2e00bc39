#pragma once

#include <windows.h>

#include <QRect>

namespace platform {

/// A rectangle of the system's, whose right and lower edges lie outside.
inline QRect rectOf(const RECT &rect)
{
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

} // namespace platform
