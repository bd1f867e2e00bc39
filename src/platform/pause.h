#pragma once

#include <QDateTime>

#include "platform/clock.h"

namespace platform {

/// When a pause is over that began at @p from: now, where it would have begun later than that, for the user's clock was
/// set back.
inline QDateTime endOf(const QDateTime &from, milliseconds pause, const QDateTime &now)
{
    return from > now ? now : from.addMSecs(pause.count());
}

} // namespace platform
