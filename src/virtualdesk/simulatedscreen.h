#pragma once

#include <mutex>
#include <span>

#include <QImage>

#include "platform/screencapture.h"

namespace virtualdesk {

/// What the desk's screens show, as a picture that lies over the whole desktop from its upper left corner. Safe from
/// any thread.
class SimulatedScreen
{
public:
    /// A null picture takes it away: then the real screen is looked at, where there is one.
    void setPicture(const QImage &picture);
    bool hasPicture() const;

    /// So many copies fail, or kForEver.
    void failCopies(int times);

    /// How many were asked for, failed ones as well.
    int copies() const;

    /// Counts a copy; false for one that is to fail.
    bool mayCopy();

    /// The picture's pixels of some parts; false when one of them is not all on it.
    bool copy(std::span<const platform::ScreenPart> parts) const;

private:
    mutable std::mutex m_mutex; // guards all
    QImage m_picture;
    int m_failures = 0;
    int m_copies = 0;
};

} // namespace virtualdesk
