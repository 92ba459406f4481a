#include <ovoui/colour/Magnifier.h>

#include <ovoui/colour/ColourCells.h>
#include <ovoui/colour/ColourText.h>
#include <ovoui/colour/core/ScreenPick.h>
#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/BufferedPaint.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/OwnWindow.h>
#include <ovoui/frame/ScreenDc.h>

#include <string>

namespace ovoui::colour
{

BEGIN_MESSAGE_MAP(Magnifier, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

namespace
{

frame::Box screenAround(CPoint point)
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST), &monitor);
    return frame::toBox(monitor.rcMonitor);
}

} // namespace

COLORREF screenColour(CPoint point)
{
    const frame::ScreenDc screen;
    const COLORREF colour = ::GetPixel(screen.get(), point.x, point.y);
    return colour == CLR_INVALID ? 0 : colour;
}

Magnifier::~Magnifier()
{
    ::DestroyWindow(m_hWnd);
}

bool Magnifier::create(CWnd& owner)
{
    if (!frame::createPopup(*this, AfxRegisterWndClass(0), owner))
        return false;
    CClientDC dc(this);
    const frame::SelectedTool font(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    m_layout = layOutMagnifier(dc.GetDeviceCaps(LOGPIXELSX), dc.GetTextExtent(L"#", 1).cy);
    return true;
}

void Magnifier::show(CWnd& owner, CPoint point)
{
    if (!m_hWnd && !create(owner))
        return;
    take(point);
    const frame::Box place = magnifierPlace(point.x, point.y, m_layout.window.width(),
                                            m_layout.window.height(), kMagnifierGap, screenAround(point));
    SetWindowPos(&wndTopMost, place.left, place.top, place.width(), place.height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    Invalidate(FALSE);
    UpdateWindow();
}

void Magnifier::hide()
{
    if (m_hWnd)
        ShowWindow(SW_HIDE);
}

/// Copies the pixels before the window moves, so that it never shows itself.
void Magnifier::take(CPoint point)
{
    const frame::ScreenDc screen;
    if (!m_pixels.m_hObject)
        m_pixels.Attach(::CreateCompatibleBitmap(screen.get(), kMagnified, kMagnified));
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    const frame::SelectedTool pixels(memory, &m_pixels);
    memory.PatBlt(0, 0, kMagnified, kMagnified, BLACKNESS); // what is beside the screen
    const CPoint first(firstMagnified(point.x), firstMagnified(point.y));
    ::BitBlt(memory, 0, 0, kMagnified, kMagnified, screen.get(), first.x, first.y, SRCCOPY);
    m_colour = memory.GetPixel(point.x - first.x, point.y - first.y);
}

void Magnifier::OnPaint()
{
    BufferedPaint paint(*this);
    CDC& dc = paint.dc();
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_INFOBK));
    ::FrameRect(dc, &client, ::GetSysColorBrush(COLOR_WINDOWFRAME));
    paintPixels(dc);
    paintColour(dc);
}

void Magnifier::paintPixels(CDC& dc)
{
    const frame::Box& place = m_layout.pixels;
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    const frame::SelectedTool pixels(memory, &m_pixels);
    dc.SetStretchBltMode(COLORONCOLOR);
    dc.StretchBlt(place.left, place.top, place.width(), place.height(), &memory, 0, 0, kMagnified, kMagnified,
                  SRCCOPY);
    drawCellMark(dc, frame::toRect(m_layout.mark));
}

/// As a swatch, and as the code that a user can type.
void Magnifier::paintColour(CDC& dc) const
{
    const CRect swatch(frame::toRect(m_layout.swatch));
    dc.FillSolidRect(&swatch, m_colour);
    ::FrameRect(dc, &swatch, ::GetSysColorBrush(COLOR_WINDOWFRAME));
    CRect place(frame::toRect(m_layout.code));
    const std::wstring code = textOfColour(Colour::colorref(m_colour));
    const frame::SelectedTool font(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_INFOTEXT));
    dc.DrawText(code.c_str(), static_cast<int>(code.size()), &place, DT_SINGLELINE | DT_VCENTER);
}

} // namespace ovoui::colour
