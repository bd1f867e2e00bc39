#include "virtualdesk/simulatedscreen.h"

#include <algorithm>

#include "virtualdesk/faults.h"

namespace virtualdesk {

void SimulatedScreen::setPicture(const QImage &picture)
{
    const std::lock_guard lock(m_mutex);
    m_picture = picture.isNull() ? QImage() : picture.convertToFormat(QImage::Format_RGB32);
}

bool SimulatedScreen::hasPicture() const
{
    const std::lock_guard lock(m_mutex);
    return !m_picture.isNull();
}

void SimulatedScreen::failCopies(int times)
{
    const std::lock_guard lock(m_mutex);
    m_failures = times;
}

int SimulatedScreen::copies() const
{
    const std::lock_guard lock(m_mutex);
    return m_copies;
}

bool SimulatedScreen::mayCopy()
{
    const std::lock_guard lock(m_mutex);
    ++m_copies;
    if (m_failures == 0)
        return true;
    if (m_failures != kForEver)
        --m_failures;
    return false;
}

bool SimulatedScreen::copy(std::span<const platform::ScreenPart> parts) const
{
    const std::lock_guard lock(m_mutex);
    for (const auto &[area, pixels] : parts) {
        if (!m_picture.rect().contains(area))
            return false;
        for (int y = 0; y < area.height(); ++y) {
            const auto *line =
                reinterpret_cast<const std::uint32_t *>(m_picture.constScanLine(area.y() + y)) + area.x();
            std::copy_n(line, area.width(), pixels.begin() + std::ptrdiff_t{y} * area.width());
        }
    }
    return true;
}

} // namespace virtualdesk
