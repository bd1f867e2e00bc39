#include "platform/win32/win32screencapture.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <type_traits>

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

bool copyPart(HDC screen, HDC memory, const ScreenPart &part)
{
    const QRect &area = part.area;
    const BITMAPINFO info = describe(area);
    void *bits = nullptr;
    const Bitmap bitmap(CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap)
        return false;
    const HGDIOBJ before = SelectObject(memory, bitmap.get());
    const bool isCopied = BitBlt(memory, 0, 0, area.width(), area.height(), screen, area.x(), area.y(), SRCCOPY);
    GdiFlush();
    if (isCopied)
        std::memcpy(part.pixels.data(), bits, part.pixels.size_bytes());
    SelectObject(memory, before);
    return isCopied;
}

} // namespace

bool Win32ScreenCapture::copy(std::span<const ScreenPart> parts)
{
    const Screen screen(GetDC(nullptr));
    const Memory memory(screen ? CreateCompatibleDC(screen.get()) : nullptr);
    return memory && std::all_of(parts.begin(), parts.end(),
                                 [&](const ScreenPart &part) { return copyPart(screen.get(), memory.get(), part); });
}

} // namespace platform
