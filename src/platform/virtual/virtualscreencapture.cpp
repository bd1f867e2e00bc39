#include "platform/virtual/virtualscreencapture.h"

#include "virtualdesk/simulatedscreen.h"

namespace platform {

bool VirtualScreenCapture::copy(std::span<const ScreenPart> parts)
{
    if (!m_screen.mayCopy())
        return false;
    return m_screen.hasPicture() ? m_screen.copy(parts) : m_root.copy(parts);
}

} // namespace platform
