#include <ovoui/colour/Magnifier.h>

#include <ovoui/colour/ColourText.h>
#include <ovoui/colour/core/ScreenPick.h>
#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/BufferedPaint.h>
#include <ovoui/frame/OwnWindow.h>
#include <ovoui/frame/Resolution.h>

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

constexpr int kPixels = 15; // across and down; odd, so that one is in the middle
constexpr int kZoom = 8;    // at 96 dots per inch
constexpr int kBorder = 1;
constexpr int kTextMargin = 3;
/// From the point to the window: more than half of the pixels shown, and clear of the pointer.
constexpr int kGap = 24;
static_assert(kGap > kPixels / 2);

/// The whole of the screen's device context.
class ScreenDc
{
public:
    ScreenDc()
        : m_dc(::GetDC(nullptr))
    {
    }
    ~ScreenDc() { ::ReleaseDC(nullptr, m_dc); }
    ScreenDc(const ScreenDc&) = delete;
    ScreenDc& operator=(const ScreenDc&) = delete;

    HDC dc() const { return m_dc; }

private:
    HDC m_dc;
};

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
    const ScreenDc screen;
    const COLORREF colour = ::GetPixel(screen.dc(), point.x, point.y);
    return colour == CLR_INVALID ? 0 : colour;
}

Magnifier::~Magnifier()
{
    DestroyWindow();
}

bool Magnifier::create(CWnd& owner)
{
    if (!frame::createPopup(*this, AfxRegisterWndClass(0), owner))
        return false;
    CClientDC dc(this);
    m_zoom = frame::scaledTo(dc, kZoom);
    CGdiObject* const before = dc.SelectStockObject(DEFAULT_GUI_FONT);
    m_textHeight = dc.GetTextExtent(L"#", 1).cy + 2 * kTextMargin;
    dc.SelectObject(static_cast<CFont*>(before));
    return true;
}

void Magnifier::show(CWnd& owner, CPoint point)
{
    if (!m_hWnd && !create(owner))
        return;
    take(point);
    const int side = kPixels * m_zoom + 2 * kBorder;
    const frame::Box place =
        magnifierPlace(point.x, point.y, side, side + m_textHeight, kGap, screenAround(point));
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
    const ScreenDc screen;
    if (!m_pixels.m_hObject)
        m_pixels.Attach(::CreateCompatibleBitmap(screen.dc(), kPixels, kPixels));
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    CBitmap* const before = memory.SelectObject(&m_pixels);
    memory.PatBlt(0, 0, kPixels, kPixels, BLACKNESS); // what is beside the screen
    constexpr int kHalf = kPixels / 2;
    ::BitBlt(memory, 0, 0, kPixels, kPixels, screen.dc(), point.x - kHalf, point.y - kHalf, SRCCOPY);
    m_colour = memory.GetPixel(kHalf, kHalf);
    memory.SelectObject(before);
}

CRect Magnifier::pixelRect() const
{
    const int side = kPixels * m_zoom;
    return CRect(CPoint(kBorder, kBorder), CSize(side, side));
}

void Magnifier::OnPaint()
{
    BufferedPaint paint(*this);
    CDC& dc = paint.dc();
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_INFOBK));
    ::FrameRect(dc, &client, ::GetSysColorBrush(COLOR_WINDOWFRAME));

    const CRect pixels = pixelRect();
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap* const before = memory.SelectObject(&m_pixels);
    dc.SetStretchBltMode(COLORONCOLOR);
    dc.StretchBlt(pixels.left, pixels.top, pixels.Width(), pixels.Height(), &memory, 0, 0, kPixels, kPixels,
                  SRCCOPY);
    memory.SelectObject(before);

    constexpr int kHalf = kPixels / 2;
    CRect middle(CPoint(pixels.left + kHalf * m_zoom, pixels.top + kHalf * m_zoom), CSize(m_zoom, m_zoom));
    for (const int brush : {WHITE_BRUSH, BLACK_BRUSH}) { // one of them shows on every colour
        middle.InflateRect(1, 1);
        ::FrameRect(dc, &middle, static_cast<HBRUSH>(::GetStockObject(brush)));
    }

    CRect text(client.left + kTextMargin, pixels.bottom, client.right - kTextMargin, client.bottom);
    CRect swatch(text.left, text.top + kTextMargin, text.left + m_textHeight, text.bottom - kTextMargin);
    dc.FillSolidRect(&swatch, m_colour);
    ::FrameRect(dc, &swatch, ::GetSysColorBrush(COLOR_WINDOWFRAME));
    text.left = swatch.right + kTextMargin;
    const std::wstring code = textOfColour(Colour::colorref(m_colour));
    CGdiObject* const font = dc.SelectStockObject(DEFAULT_GUI_FONT);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_INFOTEXT));
    dc.DrawText(code.c_str(), static_cast<int>(code.size()), &text, DT_SINGLELINE | DT_VCENTER);
    dc.SelectObject(static_cast<CFont*>(font));
}

} // namespace ovoui::colour
