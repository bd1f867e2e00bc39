#include "platform/virtual/virtualscreencapture.h"

#include "virtualdesk/simulatedscreen.h"

namespace platform {

bool VirtualScreenCapture::copy(const QRect &area, std::span<std::uint32_t> pixels)
{
    if (!m_screen.mayCopy())
        return false;
    return m_screen.hasPicture() ? m_screen.copy(area, pixels) : m_root.copy(area, pixels);
}

} // namespace platform
