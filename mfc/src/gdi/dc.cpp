// CDC: handles, tools, and drawing that is more than one call.
#include <afxwin.h>

#include <detail/handlemap.h>

IMPLEMENT_DYNCREATE(CDC, CObject)

namespace
{

struct DcTraits
{
    using Object = CDC;
    using Handle = HDC;
    static std::unique_ptr<CDC> make(HDC handle)
    {
        auto dc = std::make_unique<CDC>();
        dc->m_hDC = dc->m_hAttribDC = handle;
        return dc;
    }
    static void forget(CDC& dc) { dc.m_hDC = dc.m_hAttribDC = nullptr; }
};

afxdetail::HandleMap<DcTraits>& dcMap()
{
    return afxdetail::handleMap<DcTraits>();
}

template <class Tool>
HGDIOBJ handleOf(const Tool* tool)
{
    return tool->GetSafeHandle();
}

HWND handleOfWnd(const CWnd* wnd)
{
    return wnd->GetSafeHwnd();
}

} // namespace

CDC::CDC() = default;

CDC::~CDC()
{
    if (m_hDC)
        ::DeleteDC(Detach());
}

CDC* PASCAL CDC::FromHandle(HDC dc)
{
    return dcMap().fromHandle(dc);
}

void PASCAL CDC::DeleteTempMap()
{
    dcMap().deleteTemporary();
}

BOOL CDC::Attach(HDC dc)
{
    ASSERT(!m_hDC);
    if (!dc || m_hDC)
        return FALSE;
    m_hDC = dc;
    dcMap().setPermanent(dc, this);
    SetAttribDC(dc);
    return TRUE;
}

HDC CDC::Detach()
{
    const HDC dc = m_hDC;
    if (dc)
        dcMap().removePermanent(dc);
    m_hDC = nullptr;
    ReleaseAttribDC();
    return dc;
}

void CDC::SetAttribDC(HDC dc)
{
    m_hAttribDC = dc;
}

void CDC::SetOutputDC(HDC dc)
{
    m_hDC = dc;
}

void CDC::ReleaseAttribDC()
{
    m_hAttribDC = nullptr;
}

void CDC::ReleaseOutputDC()
{
    m_hDC = nullptr;
}

BOOL CDC::CreateDC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData)
{
    return Attach(::CreateDCW(driver, device, output, static_cast<const DEVMODEW*>(initData)));
}

BOOL CDC::CreateIC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData)
{
    return Attach(::CreateICW(driver, device, output, static_cast<const DEVMODEW*>(initData)));
}

BOOL CDC::CreateCompatibleDC(CDC* dc)
{
    return Attach(::CreateCompatibleDC(dc->GetSafeHdc()));
}

BOOL CDC::DeleteDC()
{
    return m_hDC && ::DeleteDC(Detach());
}

HDC CDC::GetSafeHdc() const
{
    return this ? m_hDC : nullptr;
}

CDC::operator HDC() const
{
    return GetSafeHdc();
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

BOOL CDC::IsPrinting() const
{
    return ::GetDeviceCaps(m_hAttribDC, TECHNOLOGY) == DT_RASPRINTER;
}

int CDC::SaveDC()
{
    const int saved = m_hAttribDC ? ::SaveDC(m_hAttribDC) : 0;
    return m_hDC && m_hDC != m_hAttribDC ? ::SaveDC(m_hDC) : saved;
}

BOOL CDC::RestoreDC(int saved)
{
    BOOL restored = TRUE;
    if (m_hDC && m_hDC != m_hAttribDC)
        restored = ::RestoreDC(m_hDC, saved);
    if (m_hAttribDC)
        restored = ::RestoreDC(m_hAttribDC, saved) && restored;
    return restored;
}

// Tools

CGdiObject* CDC::SelectStockObject(int index)
{
    const HGDIOBJ stock = ::GetStockObject(index);
    HGDIOBJ before = nullptr;
    if (m_hDC && m_hDC != m_hAttribDC)
        before = ::SelectObject(m_hDC, stock);
    if (m_hAttribDC)
        before = ::SelectObject(m_hAttribDC, stock);
    return CGdiObject::FromHandle(before);
}

CPen* CDC::SelectObject(CPen* pen)
{
    return static_cast<CPen*>(CGdiObject::FromHandle(::SelectObject(m_hDC, handleOf(pen))));
}

CBrush* CDC::SelectObject(CBrush* brush)
{
    return static_cast<CBrush*>(CGdiObject::FromHandle(::SelectObject(m_hDC, handleOf(brush))));
}

CFont* CDC::SelectObject(CFont* font)
{
    HGDIOBJ before = nullptr;
    if (m_hDC && m_hDC != m_hAttribDC)
        before = ::SelectObject(m_hDC, handleOf(font));
    if (m_hAttribDC)
        before = ::SelectObject(m_hAttribDC, handleOf(font));
    return static_cast<CFont*>(CGdiObject::FromHandle(before));
}

CBitmap* CDC::SelectObject(CBitmap* bitmap)
{
    return static_cast<CBitmap*>(CGdiObject::FromHandle(::SelectObject(m_hDC, handleOf(bitmap))));
}

int CDC::SelectObject(CRgn* region)
{
    return SelectClipRgn(region);
}

CGdiObject* CDC::SelectObject(CGdiObject* object)
{
    return CGdiObject::FromHandle(::SelectObject(m_hDC, handleOf(object)));
}

CPalette* CDC::SelectPalette(CPalette* palette, BOOL forceBackground)
{
    return CPalette::FromHandle(::SelectPalette(m_hDC, static_cast<HPALETTE>(handleOf(palette)), forceBackground));
}

void CDC::UpdateColors()
{
    ::UpdateColors(m_hDC);
}

CPen* CDC::GetCurrentPen() const
{
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CPalette* CDC::GetCurrentPalette() const
{
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hAttribDC, OBJ_PAL)));
}

CFont* CDC::GetCurrentFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP)));
}

CPoint CDC::GetBrushOrg() const
{
    CPoint origin;
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    CPoint before;
    ::SetBrushOrgEx(m_hDC, x, y, &before);
    return before;
}

CPoint CDC::SetBrushOrg(POINT point)
{
    return SetBrushOrg(point.x, point.y);
}

// Units

void CDC::DPtoLP(LPPOINT points, int count) const
{
    ::DPtoLP(m_hAttribDC, points, count);
}

void CDC::DPtoLP(LPRECT rect) const
{
    ::DPtoLP(m_hAttribDC, reinterpret_cast<POINT*>(rect), 2);
}

void CDC::LPtoDP(LPPOINT points, int count) const
{
    ::LPtoDP(m_hAttribDC, points, count);
}

void CDC::LPtoDP(LPRECT rect) const
{
    ::LPtoDP(m_hAttribDC, reinterpret_cast<POINT*>(rect), 2);
}

void CDC::DPtoLP(LPSIZE size) const
{
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    size->cx = std::abs(::MulDiv(size->cx, window.cx, viewport.cx));
    size->cy = std::abs(::MulDiv(size->cy, window.cy, viewport.cy));
}

void CDC::LPtoDP(LPSIZE size) const
{
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    size->cx = std::abs(::MulDiv(size->cx, viewport.cx, window.cx));
    size->cy = std::abs(::MulDiv(size->cy, viewport.cy, window.cy));
}

BOOL CDC::SetWorldTransform(const XFORM& transform)
{
    return ::SetWorldTransform(m_hDC, &transform);
}

BOOL CDC::ModifyWorldTransform(const XFORM& transform, DWORD mode)
{
    return ::ModifyWorldTransform(m_hDC, &transform, mode);
}

BOOL CDC::GetWorldTransform(XFORM& transform) const
{
    return ::GetWorldTransform(m_hAttribDC, &transform);
}

// Clipping

int CDC::SelectClipRgn(CRgn* region)
{
    const HRGN handle = static_cast<HRGN>(handleOf(region));
    int kind = ERROR;
    if (m_hDC && m_hDC != m_hAttribDC)
        kind = ::SelectClipRgn(m_hDC, handle);
    if (m_hAttribDC)
        kind = ::SelectClipRgn(m_hAttribDC, handle);
    return kind;
}

int CDC::SelectClipRgn(CRgn* region, int mode)
{
    return ::ExtSelectClipRgn(m_hDC, static_cast<HRGN>(handleOf(region)), mode);
}

int CDC::ExcludeUpdateRgn(CWnd* window)
{
    return ::ExcludeUpdateRgn(m_hDC, handleOfWnd(window));
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return ::ExcludeClipRect(m_hDC, x1, y1, x2, y2);
}

int CDC::ExcludeClipRect(LPCRECT rect)
{
    return ExcludeClipRect(rect->left, rect->top, rect->right, rect->bottom);
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return ::IntersectClipRect(m_hDC, x1, y1, x2, y2);
}

int CDC::IntersectClipRect(LPCRECT rect)
{
    return IntersectClipRect(rect->left, rect->top, rect->right, rect->bottom);
}

int CDC::OffsetClipRgn(int x, int y)
{
    return ::OffsetClipRgn(m_hDC, x, y);
}

int CDC::OffsetClipRgn(SIZE size)
{
    return ::OffsetClipRgn(m_hDC, size.cx, size.cy);
}

BOOL CDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hDC, x, y);
}

BOOL CDC::PtVisible(POINT point) const
{
    return PtVisible(point.x, point.y);
}

BOOL CDC::RectVisible(LPCRECT rect) const
{
    return ::RectVisible(m_hDC, rect);
}

// Lines and shapes

CPoint CDC::GetCurrentPosition() const
{
    CPoint point;
    ::GetCurrentPositionEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint before;
    if (m_hDC && m_hDC != m_hAttribDC)
        ::MoveToEx(m_hDC, x, y, &before);
    if (m_hAttribDC)
        ::MoveToEx(m_hAttribDC, x, y, &before);
    return before;
}

CPoint CDC::MoveTo(POINT point)
{
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y)
{
    if (m_hAttribDC && m_hDC != m_hAttribDC)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::LineTo(POINT point)
{
    return LineTo(point.x, point.y);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT rect, POINT start, POINT end)
{
    return Arc(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::ArcTo(LPCRECT rect, POINT start, POINT end)
{
    return ArcTo(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT rect)
{
    return Rectangle(rect->left, rect->top, rect->right, rect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT rect, POINT corner)
{
    return RoundRect(rect->left, rect->top, rect->right, rect->bottom, corner.x, corner.y);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT rect)
{
    return Ellipse(rect->left, rect->top, rect->right, rect->bottom);
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(LPCRECT rect, POINT start, POINT end)
{
    return Chord(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT rect, POINT start, POINT end)
{
    return Pie(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

void CDC::FillRect(LPCRECT rect, CBrush* brush)
{
    ::FillRect(m_hDC, rect, static_cast<HBRUSH>(handleOf(brush)));
}

void CDC::FrameRect(LPCRECT rect, CBrush* brush)
{
    ::FrameRect(m_hDC, rect, static_cast<HBRUSH>(handleOf(brush)));
}

void CDC::FillSolidRect(LPCRECT rect, COLORREF colour)
{
    ::SetBkColor(m_hDC, colour);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF colour)
{
    const RECT rect{x, y, x + cx, y + cy};
    FillSolidRect(&rect, colour);
}

void CDC::Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight)
{
    Draw3dRect(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, topLeft, bottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, topLeft);
    FillSolidRect(x, y, 1, cy - 1, topLeft);
    FillSolidRect(x + cx, y, -1, cy, bottomRight);
    FillSolidRect(x, y + cy, cx, -1, bottomRight);
}

BOOL CDC::DrawIcon(int x, int y, HICON icon)
{
    return ::DrawIcon(m_hDC, x, y, icon);
}

BOOL CDC::DrawIcon(POINT point, HICON icon)
{
    return ::DrawIcon(m_hDC, point.x, point.y, icon);
}

BOOL CDC::FillRgn(CRgn* region, CBrush* brush)
{
    return ::FillRgn(m_hDC, *region, *brush);
}

BOOL CDC::FrameRgn(CRgn* region, CBrush* brush, int width, int height)
{
    return ::FrameRgn(m_hDC, *region, *brush, width, height);
}

BOOL CDC::InvertRgn(CRgn* region)
{
    return ::InvertRgn(m_hDC, *region);
}

BOOL CDC::PaintRgn(CRgn* region)
{
    return ::PaintRgn(m_hDC, *region);
}

// Pictures

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, DWORD rop)
{
    return ::BitBlt(m_hDC, x, y, width, height, source->GetSafeHdc(), xSrc, ySrc, rop);
}

BOOL CDC::StretchBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, int srcWidth,
                     int srcHeight, DWORD rop)
{
    return ::StretchBlt(m_hDC, x, y, width, height, source->GetSafeHdc(), xSrc, ySrc, srcWidth, srcHeight, rop);
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

// Text

BOOL CDC::TextOut(int x, int y, LPCTSTR text, int count)
{
    return ::TextOutW(m_hDC, x, y, text, count);
}

BOOL CDC::TextOut(int x, int y, const CString& text)
{
    return TextOut(x, y, text, text.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count, LPINT widths)
{
    return ::ExtTextOutW(m_hDC, x, y, options, rect, text, count, widths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, LPINT widths)
{
    return ExtTextOut(x, y, options, rect, text, static_cast<UINT>(text.GetLength()), widths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR text, int count, int tabCount, LPINT tabStops, int tabOrigin)
{
    return CSize(static_cast<DWORD>(::TabbedTextOutW(m_hDC, x, y, text, count, tabCount, tabStops, tabOrigin)));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& text, int tabCount, LPINT tabStops, int tabOrigin)
{
    return TabbedTextOut(x, y, text, text.GetLength(), tabCount, tabStops, tabOrigin);
}

int CDC::DrawText(LPCTSTR text, int count, LPRECT rect, UINT format)
{
    return ::DrawTextW(m_hDC, text, count, rect, format);
}

int CDC::DrawText(const CString& text, LPRECT rect, UINT format)
{
    return DrawText(text, text.GetLength(), rect, format);
}

int CDC::DrawTextEx(LPTSTR text, int count, LPRECT rect, UINT format, LPDRAWTEXTPARAMS params)
{
    return ::DrawTextExW(m_hDC, text, count, rect, format, params);
}

int CDC::DrawTextEx(const CString& text, LPRECT rect, UINT format, LPDRAWTEXTPARAMS params)
{
    CString copy(text); // the system may shorten it in place
    return DrawTextEx(copy.GetBuffer(), text.GetLength(), rect, format, params);
}

CSize CDC::GetTextExtent(LPCTSTR text, int count) const
{
    CSize size;
    ::GetTextExtentPoint32W(m_hAttribDC, text, count, &size);
    return size;
}

CSize CDC::GetTextExtent(const CString& text) const
{
    return GetTextExtent(text, text.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCTSTR text, int count) const
{
    CSize size;
    ::GetTextExtentPoint32W(m_hDC, text, count, &size);
    return size;
}

CSize CDC::GetOutputTextExtent(const CString& text) const
{
    return GetOutputTextExtent(text, text.GetLength());
}

int CDC::GetTextFace(int count, LPTSTR name) const
{
    return ::GetTextFaceW(m_hAttribDC, count, name);
}

int CDC::GetTextFace(CString& name) const
{
    const int size = ::GetTextFaceW(m_hAttribDC, 0, nullptr);
    ::GetTextFaceW(m_hAttribDC, size, name.GetBuffer(size));
    name.ReleaseBuffer();
    return size;
}

BOOL CDC::GetTextMetrics(LPTEXTMETRIC metrics) const
{
    return ::GetTextMetricsW(m_hAttribDC, metrics);
}

BOOL CDC::GetOutputTextMetrics(LPTEXTMETRIC metrics) const
{
    return ::GetTextMetricsW(m_hDC, metrics);
}

BOOL CDC::GrayString(CBrush* brush, BOOL(CALLBACK* output)(HDC, LPARAM, int), LPARAM data, int count, int x, int y,
                     int width, int height)
{
    return ::GrayStringW(m_hDC, static_cast<HBRUSH>(handleOf(brush)), output, data, count, x, y, width, height);
}

int CDC::Escape(int escape, int count, LPCSTR inData, LPVOID outData)
{
    return ::Escape(m_hDC, escape, count, inData, outData);
}
