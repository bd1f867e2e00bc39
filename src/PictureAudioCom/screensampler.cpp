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
    const bool ok = m_colours.look(m_screen, [&capture](const QRect &area, std::span<std::uint32_t> pixels) {
        return capture.copy(area, pixels);
    });
    tell([this, ok, colours = m_colours.colours().value_or(ZoneColours())] { Q_EMIT looked(ok, colours); });
}
