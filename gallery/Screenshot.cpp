#include "Screenshot.h"

#include <algorithm>
#include <memory>

// GDI+ uses min and max as the standard library has them.
using std::max;
using std::min;
#include <objidl.h>
#include <gdiplus.h>

namespace
{

/// The encoder that Windows brings for PNG files.
constexpr CLSID kPngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

struct DeleteBitmap
{
    void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
};
using UniqueBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteBitmap>;

UniqueBitmap copyOfScreen(const RECT& rect)
{
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    const HDC screen = ::GetDC(nullptr);
    UniqueBitmap bitmap(::CreateCompatibleBitmap(screen, width, height));
    const HDC memory = ::CreateCompatibleDC(screen);
    const HGDIOBJ previous = ::SelectObject(memory, bitmap.get());
    ::BitBlt(memory, 0, 0, width, height, screen, rect.left, rect.top, SRCCOPY);
    ::SelectObject(memory, previous);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return bitmap;
}

RECT placeOf(HWND window)
{
    RECT rect{};
    ::GetWindowRect(window, &rect);
    return rect;
}

RECT placeWithOwned(HWND dialog)
{
    struct Place
    {
        HWND owner;
        RECT rect;
    } all{dialog, placeOf(dialog)};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& place = *reinterpret_cast<Place*>(parameter);
            const RECT rect = placeOf(window);
            if (::GetWindow(window, GW_OWNER) == place.owner && ::IsWindowVisible(window))
                ::UnionRect(&place.rect, &place.rect, &rect);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&all));
    return all.rect;
}

RECT screen()
{
    const int left = ::GetSystemMetrics(SM_XVIRTUALSCREEN);
    const int top = ::GetSystemMetrics(SM_YVIRTUALSCREEN);
    return {left, top, left + ::GetSystemMetrics(SM_CXVIRTUALSCREEN),
            top + ::GetSystemMetrics(SM_CYVIRTUALSCREEN)};
}

/// Leaves out what is beyond the screen: nothing is to be seen there.
bool save(const RECT& place, const std::wstring& path)
{
    const RECT all = screen();
    RECT seen{};
    if (!::IntersectRect(&seen, &place, &all))
        return false;
    const UniqueBitmap bitmap = copyOfScreen(seen);
    Gdiplus::Bitmap image(bitmap.get(), nullptr);
    return image.Save(path.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

void finishPainting(HWND window)
{
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::GdiFlush();
}

} // namespace

bool saveScreenshot(HWND window, const std::wstring& path)
{
    finishPainting(window);
    return save(placeOf(window), path);
}

bool saveScreenshotOfDialog(HWND dialog, const std::wstring& path)
{
    finishPainting(dialog);
    return save(placeWithOwned(dialog), path);
}
