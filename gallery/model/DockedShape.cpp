#include "DockedShape.h"

BEGIN_MESSAGE_MAP(DockedShape, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

bool DockedShape::create(CWnd& parent)
{
    const LPCTSTR cls = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW),
                                            reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return CreateEx(WS_EX_CLIENTEDGE, cls, L"", WS_CHILD | WS_VISIBLE, CRect(), &parent,
                    AFX_IDW_PANE_FIRST) != FALSE;
}

void DockedShape::setSize(int percent)
{
    m_percent = percent;
    Invalidate();
}

void DockedShape::setText(const std::wstring& text)
{
    m_text = text;
    Invalidate();
}

void DockedShape::setFilled(bool filled)
{
    m_filled = filled;
    Invalidate();
}

void DockedShape::OnPaint()
{
    CPaintDC dc(this);
    CRect room;
    GetClientRect(&room);
    const int side = std::min(room.Width(), room.Height()) * m_percent / 100;
    const CRect shape(CPoint(room.CenterPoint().x - side * 3 / 4, room.CenterPoint().y - side / 2),
                      CSize(side * 3 / 2, side));
    CBrush fill(::GetSysColor(COLOR_BTNFACE));
    CBrush* const old =
        m_filled ? dc.SelectObject(&fill) : static_cast<CBrush*>(dc.SelectStockObject(NULL_BRUSH));
    const COLORREF ink = ::GetSysColor(m_filled ? COLOR_BTNTEXT : COLOR_WINDOWTEXT);
    CPen outline(PS_SOLID, 1, ::GetSysColor(COLOR_WINDOWTEXT));
    CPen* const oldPen = dc.SelectObject(&outline);
    dc.Ellipse(&shape);
    dc.SelectObject(oldPen);
    dc.SelectObject(old);
    CFont* const font = dc.SelectObject(GetParent()->GetParent()->GetFont());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(ink);
    CRect text(shape);
    dc.DrawText(m_text.c_str(), -1, &text, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS);
    dc.SelectObject(font);
}
