#include "ColourSample.h"

#include "Resolution.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(ColourSample, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

bool ColourSample::create(CWnd& parent)
{
    const LPCTSTR windowClass =
        AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW));
    return CreateEx(WS_EX_CLIENTEDGE, windowClass, L"", WS_CHILD | WS_VISIBLE, CRect(), &parent, 1) != FALSE;
}

void ColourSample::show(const Colour& colour)
{
    m_colour = colour;
    if (m_hWnd)
        Invalidate(FALSE);
}

COLORREF ColourSample::over(COLORREF ground) const
{
    const Colour behind = Colour::colorref(ground);
    const double part = m_colour.a() < 0 ? 1 : m_colour.a();
    const auto mix = [part](double own, double other) { return own * part + other * (1 - part); };
    return Colour::rgb(mix(m_colour.r(), behind.r()), mix(m_colour.g(), behind.g()),
                       mix(m_colour.b(), behind.b()))
        .colorref();
}

void ColourSample::OnPaint()
{
    CPaintDC dc(this);
    CRect room;
    GetClientRect(&room);
    const int middle = room.CenterPoint().y;
    draw(dc, CRect(room.left, room.top, room.right, middle), RGB(255, 255, 255));
    draw(dc, CRect(room.left, middle, room.right, room.bottom), RGB(0, 0, 0));
}

void ColourSample::draw(CDC& dc, const CRect& part, COLORREF ground) const
{
    dc.FillSolidRect(&part, ground);
    const COLORREF colour = over(ground);
    const int side = std::min(part.Width() / 2, part.Height()) * 3 / 4;
    const CPoint centre(part.left + part.Width() / 4, part.CenterPoint().y);
    const CRect leaf(centre.x - side / 2, centre.y - side / 2, centre.x + side / 2, centre.y + side / 2);

    CBrush fill(colour);
    CBrush* const brushBefore = dc.SelectObject(&fill);
    dc.SelectStockObject(NULL_PEN);
    // Two corners round, two pointed. Without a pen, a round shape ends a pixel early.
    dc.RoundRect(leaf.left, leaf.top, leaf.right + 1, leaf.bottom + 1, side, side);
    dc.FillSolidRect(leaf.left, centre.y, centre.x - leaf.left, leaf.bottom - centre.y, colour);
    dc.FillSolidRect(centre.x, leaf.top, leaf.right - centre.x, centre.y - leaf.top, colour);
    dc.SelectObject(brushBefore);

    CFont font;
    LOGFONTW facts{};
    GetParent()->GetFont()->GetLogFont(&facts);
    facts.lfHeight = -scaled(m_hWnd, 20);
    font.CreateFontIndirect(&facts);
    CFont* const fontBefore = dc.SelectObject(&font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(colour);
    CRect text(part.CenterPoint().x, part.top, part.right, part.bottom);
    dc.DrawText(L"Copper beech", -1, &text, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    dc.SelectObject(fontBefore);
}
