#include <ovoui/frame/TipWindow.h>

#include <ovoui/frame/BufferedPaint.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/Resolution.h>

namespace ovoui::frame
{

BEGIN_MESSAGE_MAP(TipWindow, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

TipWindow::TipWindow(CSize margins)
    : m_margins(margins)
{
}

TipWindow::~TipWindow()
{
    ::DestroyWindow(m_hWnd);
}

HGDIOBJ TipWindow::font() const
{
    return m_font ? m_font : ::GetStockObject(DEFAULT_GUI_FONT);
}

CSize TipWindow::marginsOn(const CDC& dc) const
{
    return CSize(scaledTo(dc, m_margins.cx), scaledTo(dc, m_margins.cy));
}

CSize TipWindow::sizeAroundText()
{
    CClientDC dc(this);
    const frame::SelectedTool selected(dc, font());
    CRect text;
    dc.DrawText(m_text.c_str(), static_cast<int>(m_text.size()), &text, DT_CALCRECT | DT_NOPREFIX);
    const CSize margins = marginsOn(dc);
    return text.Size() + margins + margins;
}

void TipWindow::showAt(const CRect& place, const CWnd& below)
{
    SetWindowPos(&below, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    Invalidate(FALSE);
}

void TipWindow::hide()
{
    if (m_hWnd)
        ShowWindow(SW_HIDE);
}

void TipWindow::OnPaint()
{
    BufferedPaint paint(*this);
    CDC& dc = paint.dc();
    CRect rect;
    GetClientRect(&rect);
    dc.FillSolidRect(&rect, ::GetSysColor(COLOR_INFOBK));
    dc.Draw3dRect(&rect, ::GetSysColor(COLOR_INFOTEXT), ::GetSysColor(COLOR_INFOTEXT));
    rect.DeflateRect(marginsOn(dc));
    const frame::SelectedTool selected(dc, font());
    dc.SetTextColor(::GetSysColor(COLOR_INFOTEXT));
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(m_text.c_str(), static_cast<int>(m_text.size()), &rect, DT_NOPREFIX);
}

BOOL TipWindow::OnEraseBkgnd(CDC*)
{
    return TRUE; // OnPaint covers everything
}

LRESULT TipWindow::OnNcHitTest(CPoint)
{
    return HTTRANSPARENT;
}

} // namespace ovoui::frame
