#include "platform/win32/win32screencapture.h"

#include <cstring>
#include <memory>

#include <windows.h>

namespace platform {

namespace {

struct ReleasesScreen
{
    void operator()(HDC context) const { ReleaseDC(nullptr, context); }
};
struct DeletesContext
{
    void operator()(HDC context) const { DeleteDC(context); }
};
struct DeletesObject
{
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
using Screen = std::unique_ptr<std::remove_pointer_t<HDC>, ReleasesScreen>;
using Memory = std::unique_ptr<std::remove_pointer_t<HDC>, DeletesContext>;
using Bitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeletesObject>;

BITMAPINFO describe(const QRect &area)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = area.width();
    info.bmiHeader.biHeight = -area.height(); // from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

} // namespace

bool Win32ScreenCapture::copy(const QRect &area, std::span<std::uint32_t> pixels)
{
    const Screen screen(GetDC(nullptr));
    const Memory memory(screen ? CreateCompatibleDC(screen.get()) : nullptr);
    const BITMAPINFO info = describe(area);
    void *bits = nullptr;
    const Bitmap bitmap(memory ? CreateDIBSection(memory.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0) : nullptr);
    if (!bitmap)
        return false;
    const HGDIOBJ before = SelectObject(memory.get(), bitmap.get());
    const bool isCopied =
        BitBlt(memory.get(), 0, 0, area.width(), area.height(), screen.get(), area.x(), area.y(), SRCCOPY);
    GdiFlush();
    if (isCopied)
        std::memcpy(pixels.data(), bits, pixels.size_bytes());
    SelectObject(memory.get(), before);
    return isCopied;
}

} // namespace platform
