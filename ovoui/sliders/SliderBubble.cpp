#include <ovoui/sliders/SliderBubble.h>

#include <ovoui/frame/BufferedPaint.h>
#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/OwnWindow.h>

#include <afxcmn.h>

namespace ovoui::sliders
{

BEGIN_MESSAGE_MAP(SliderBubble, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_NCHITTEST()
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

constexpr int kMargin = 4; // pixels around the text
constexpr int kGap = 2;    // between bubble and thumb

CRect thumbOf(CWnd& slider)
{
    CRect thumb;
    slider.SendMessage(TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(static_cast<RECT*>(&thumb)));
    slider.ClientToScreen(&thumb);
    return thumb;
}

} // namespace

SliderBubble::~SliderBubble()
{
    DestroyWindow();
}

void SliderBubble::show(CWnd& slider, const std::wstring& text)
{
    if (!m_hWnd && !frame::createPopup(*this, AfxRegisterWndClass(0), *slider.GetParent()))
        return;
    m_text = text;
    const CRect thumb = thumbOf(slider);
    const CSize size = sizeOf(text);
    CRect place(CPoint(thumb.CenterPoint().x - size.cx / 2, thumb.top - kGap - size.cy), size);
    EnsureRectVisible(place);
    SetWindowPos(&wndTopMost, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    Invalidate(FALSE);
    UpdateWindow();
}

void SliderBubble::hide()
{
    if (m_hWnd)
        ShowWindow(SW_HIDE);
}

CSize SliderBubble::sizeOf(const std::wstring& text)
{
    CClientDC dc(this);
    CGdiObject* const old = dc.SelectStockObject(DEFAULT_GUI_FONT);
    const CSize size = dc.GetTextExtent(text.c_str(), static_cast<int>(text.size()));
    dc.SelectObject(static_cast<CFont*>(old));
    return size + CSize(2 * kMargin, 2 * kMargin);
}

BOOL SliderBubble::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

LRESULT SliderBubble::OnNcHitTest(CPoint)
{
    return HTTRANSPARENT;
}

void SliderBubble::OnPaint()
{
    BufferedPaint paint(*this);
    CDC& dc = paint.dc();
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_INFOBK));
    dc.Draw3dRect(&client, ::GetSysColor(COLOR_INFOTEXT), ::GetSysColor(COLOR_INFOTEXT));
    CGdiObject* const old = dc.SelectStockObject(DEFAULT_GUI_FONT);
    dc.SetTextColor(::GetSysColor(COLOR_INFOTEXT));
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(m_text.c_str(), &client, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    dc.SelectObject(static_cast<CFont*>(old));
}

} // namespace ovoui::sliders
