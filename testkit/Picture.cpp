#include "Picture.h"

#include <objidl.h>
#include <gdiplus.h>

#include <stdexcept>
#include <utility>

namespace ovo::testkit
{

namespace
{

constexpr CLSID kPngEncoder{0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

COLORREF colourOf(std::uint32_t pixel)
{
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

void paintNow(HWND window)
{
    if (!::IsWindowVisible(window))
        throw std::runtime_error("a window that is not shown has no picture");
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::GdiFlush();
}

} // namespace

Picture::Picture(int width, int height, COLORREF background)
    : m_width(std::max(width, 1))
    , m_height(std::max(height, 1))
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = m_width;
    info.bmiHeader.biHeight = -m_height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    m_dc = ::CreateCompatibleDC(nullptr);
    m_bitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    m_bits = static_cast<std::uint32_t*>(bits);
    m_oldBitmap = ::SelectObject(m_dc, m_bitmap);
    const std::uint32_t pixel = RGB(GetBValue(background), GetGValue(background), GetRValue(background));
    std::fill_n(m_bits, static_cast<size_t>(m_width) * static_cast<size_t>(m_height), pixel);
}

Picture::Picture(Picture&& other) noexcept
    : m_width(other.m_width)
    , m_height(other.m_height)
    , m_dc(std::exchange(other.m_dc, nullptr))
    , m_bitmap(std::exchange(other.m_bitmap, nullptr))
    , m_oldBitmap(other.m_oldBitmap)
    , m_bits(std::exchange(other.m_bits, nullptr))
{
}

Picture::~Picture()
{
    if (!m_dc)
        return;
    ::SelectObject(m_dc, m_oldBitmap);
    ::DeleteDC(m_dc);
    ::DeleteObject(m_bitmap);
}

Picture Picture::ofPart(HWND window, HDC source, CPoint origin, CSize size)
{
    Picture picture{size.cx, size.cy};
    ::BitBlt(picture.m_dc, 0, 0, size.cx, size.cy, source, origin.x, origin.y, SRCCOPY);
    ::ReleaseDC(window, source);
    ::GdiFlush();
    return picture;
}

Picture Picture::ofWindow(HWND window)
{
    paintNow(window);
    CRect rect;
    ::GetWindowRect(window, &rect);
    return ofPart(window, ::GetWindowDC(window), {0, 0}, rect.Size());
}

Picture Picture::ofClient(HWND window)
{
    paintNow(window);
    CRect rect;
    ::GetClientRect(window, &rect);
    return ofPart(window, ::GetDC(window), {0, 0}, rect.Size());
}

Picture Picture::ofScreen()
{
    return ofPart(nullptr, ::GetDC(nullptr), {0, 0},
                  {::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)});
}

COLORREF Picture::at(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return CLR_INVALID;
    ::GdiFlush();
    return colourOf(m_bits[static_cast<ptrdiff_t>(y) * m_width + x]);
}

int Picture::count(COLORREF colour, int tolerance) const
{
    return count(colour, tolerance, CRect{0, 0, m_width, m_height});
}

int Picture::count(COLORREF colour, int tolerance, const CRect& within) const
{
    int found = 0;
    for (int y = within.top; y < within.bottom; ++y)
        for (int x = within.left; x < within.right; ++x)
            found += isNear(at(x, y), colour, tolerance);
    return found;
}

int Picture::differences(const Picture& other, int tolerance) const
{
    if (m_width != other.m_width || m_height != other.m_height)
        return std::max(m_width * m_height, other.m_width * other.m_height);
    int found = 0;
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x)
            found += !isNear(at(x, y), other.at(x, y), tolerance);
    return found;
}

bool Picture::savePng(const std::wstring& path) const
{
    ::GdiFlush();
    Gdiplus::Bitmap bitmap{m_width, m_height, m_width * 4, PixelFormat32bppRGB,
                           reinterpret_cast<BYTE*>(m_bits)};
    return bitmap.Save(path.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

bool isNear(COLORREF one, COLORREF other, int tolerance)
{
    if (one == CLR_INVALID || other == CLR_INVALID)
        return one == other;
    return std::abs(GetRValue(one) - GetRValue(other)) <= tolerance &&
           std::abs(GetGValue(one) - GetGValue(other)) <= tolerance &&
           std::abs(GetBValue(one) - GetBValue(other)) <= tolerance;
}

} // namespace ovo::testkit
