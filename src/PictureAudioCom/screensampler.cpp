#include "PictureAudioCom/screensampler.h"

#include "platform/desk.h"

void ScreenSampler::request(const QRect &screen)
{
    if (isRunning())
        return;
    wait(); // until it is out of the last look altogether
    m_screen = screen;
    start();
}

void ScreenSampler::run()
{
    platform::ScreenCapture &capture = platform::desk().screen();
    const bool ok = m_colours.look(
        m_screen, [&capture](std::span<const platform::ScreenPart> parts) { return capture.copy(parts); });
    tell([this, ok, colours = m_colours.colours().value_or(ZoneColours())] { Q_EMIT looked(ok, colours); });
}
