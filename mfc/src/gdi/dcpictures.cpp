// CDC: bitmaps and pixels.
#include <afxwin.h>

#include <detail/handleof.h>

using afxdetail::handleOf;

BOOL CDC::PatBlt(int x, int y, int width, int height, DWORD rop)
{
    return ::PatBlt(m_hDC, x, y, width, height, rop);
}

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, DWORD rop)
{
    return ::BitBlt(m_hDC, x, y, width, height, handleOf(source), xSrc, ySrc, rop);
}

BOOL CDC::StretchBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, int srcWidth,
                     int srcHeight, DWORD rop)
{
    return ::StretchBlt(m_hDC, x, y, width, height, handleOf(source), xSrc, ySrc, srcWidth, srcHeight, rop);
}

BOOL CDC::MaskBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, CBitmap& mask,
                  int xMask, int yMask, DWORD rop)
{
    return ::MaskBlt(m_hDC, x, y, width, height, handleOf(source), xSrc, ySrc, mask, xMask, yMask, rop);
}

BOOL CDC::PlgBlt(LPPOINT corners, CDC* source, int xSrc, int ySrc, int width, int height, CBitmap& mask,
                 int xMask, int yMask)
{
    return ::PlgBlt(m_hDC, corners, handleOf(source), xSrc, ySrc, width, height, mask, xMask, yMask);
}

BOOL CDC::TransparentBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, int srcWidth,
                         int srcHeight, UINT transparentColour)
{
    return ::GdiTransparentBlt(m_hDC, x, y, width, height, handleOf(source), xSrc, ySrc, srcWidth, srcHeight,
                               transparentColour);
}

BOOL CDC::AlphaBlend(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, int srcWidth,
                     int srcHeight, BLENDFUNCTION blend)
{
    return ::GdiAlphaBlend(m_hDC, x, y, width, height, handleOf(source), xSrc, ySrc, srcWidth, srcHeight,
                           blend);
}

BOOL CDC::GradientFill(TRIVERTEX* vertices, ULONG vertexCount, void* mesh, ULONG meshCount, DWORD mode)
{
    return ::GdiGradientFill(m_hDC, vertices, vertexCount, mesh, meshCount, mode);
}

COLORREF CDC::GetPixel(int x, int y) const
{
    return ::GetPixel(m_hDC, x, y);
}

COLORREF CDC::GetPixel(POINT point) const
{
    return GetPixel(point.x, point.y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF colour)
{
    return ::SetPixel(m_hDC, x, y, colour);
}

COLORREF CDC::SetPixel(POINT point, COLORREF colour)
{
    return SetPixel(point.x, point.y, colour);
}

BOOL CDC::SetPixelV(int x, int y, COLORREF colour)
{
    return ::SetPixelV(m_hDC, x, y, colour);
}

BOOL CDC::SetPixelV(POINT point, COLORREF colour)
{
    return SetPixelV(point.x, point.y, colour);
}

BOOL CDC::FloodFill(int x, int y, COLORREF colour)
{
    return ::FloodFill(m_hDC, x, y, colour);
}

BOOL CDC::ExtFloodFill(int x, int y, COLORREF colour, UINT fillType)
{
    return ::ExtFloodFill(m_hDC, x, y, colour, fillType);
}

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect)
{
    return ::ScrollDC(m_hDC, dx, dy, scroll, clip, handleOf(update), updateRect);
}
