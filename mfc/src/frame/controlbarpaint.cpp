// CControlBar: lines and gripper.
#include <afxext.h>

namespace
{

constexpr int kGripperRoom = 8; // what a gripper takes of a bar's length
constexpr int kGripperWidth = 3;
constexpr int kGripperOffset = 2;

int lineWidth(DWORD style)
{
    return (style & CBRS_BORDER_3D) ? 2 : 1;
}

/// How much the lines take at each side. A floating bar has the lines of its window.
CRect linesOf(DWORD style)
{
    if (style & CBRS_FLOATING)
        return CRect(0, 0, 0, 0);
    const int width = lineWidth(style);
    return CRect((style & CBRS_BORDER_LEFT) ? width : 0, (style & CBRS_BORDER_TOP) ? width : 0,
                 (style & CBRS_BORDER_RIGHT) ? width : 0, (style & CBRS_BORDER_BOTTOM) ? width : 0);
}

bool hasGripper(DWORD style)
{
    return (style & (CBRS_GRIPPER | CBRS_FLOATING)) == CBRS_GRIPPER;
}

/// An etched line where there are two pixels, a plain one where there is one.
void drawLine(CDC& dc, CRect line, bool vertical)
{
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const bool etched = (vertical ? line.Width() : line.Height()) > 1;
    dc.FillSolidRect(line, etched ? light : shadow);
    if (!etched)
        return;
    if (vertical)
        line.right = line.left + 1;
    else
        line.bottom = line.top + 1;
    dc.FillSolidRect(line, shadow);
}

} // namespace

void CControlBar::CalcInsideRect(CRect& rect, BOOL horizontal) const
{
    rect.DeflateRect(linesOf(m_dwStyle));
    if (horizontal)
        rect.DeflateRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder);
    else // lying on its side
        rect.DeflateRect(m_cyTopBorder, m_cxLeftBorder, m_cyBottomBorder, m_cxRightBorder);
    if (!hasGripper(m_dwStyle))
        return;
    if (horizontal)
        rect.left += kGripperRoom;
    else
        rect.top += kGripperRoom;
}

void CControlBar::OnPaint()
{
    CPaintDC dc(this);
    DoPaint(&dc);
}

void CControlBar::DoPaint(CDC* dc)
{
    CRect rect;
    GetClientRect(&rect);
    DrawBorders(dc, rect);
    DrawGripper(dc, rect);
}

/// Takes the lines off the rectangle.
void CControlBar::DrawBorders(CDC* dc, CRect& rect)
{
    const CRect lines = linesOf(m_dwStyle);
    drawLine(*dc, CRect(rect.left, rect.top, rect.right, rect.top + lines.top), false);
    drawLine(*dc, CRect(rect.left, rect.bottom - lines.bottom, rect.right, rect.bottom), false);
    rect.DeflateRect(0, lines.top, 0, lines.bottom);
    drawLine(*dc, CRect(rect.left, rect.top, rect.left + lines.left, rect.bottom), true);
    drawLine(*dc, CRect(rect.right - lines.right, rect.top, rect.right, rect.bottom), true);
    rect.DeflateRect(lines.left, 0, lines.right, 0);
}

void CControlBar::DrawGripper(CDC* dc, const CRect& rect)
{
    if (!hasGripper(m_dwStyle))
        return;
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    CRect gripper(rect);
    if (m_dwStyle & CBRS_ORIENT_HORZ) {
        gripper.DeflateRect(kGripperOffset, m_cyTopBorder + 1, 0, m_cyBottomBorder + 1);
        gripper.right = gripper.left + kGripperWidth;
    } else {
        gripper.DeflateRect(m_cyTopBorder + 1, kGripperOffset, m_cyBottomBorder + 1, 0);
        gripper.bottom = gripper.top + kGripperWidth;
    }
    dc->Draw3dRect(gripper, light, shadow);
}

// Lines, gripper and borders around a client area that is all the control's

void CControlBar::calcFrame(NCCALCSIZE_PARAMS& sizes)
{
    CRect client(sizes.rgrc[0]);
    CalcInsideRect(client, (m_dwStyle & CBRS_ORIENT_HORZ) != 0);
    sizes.rgrc[0] = client;
}

void CControlBar::paintFrame()
{
    CWindowDC dc(this);
    CRect window;
    GetWindowRect(&window);
    CRect client;
    GetClientRect(&client);
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(&client), 2);
    client.OffsetRect(-window.TopLeft());
    window.OffsetRect(-window.TopLeft());
    if (GetExStyle() & WS_EX_LAYOUTRTL) // the device context counts from the right
        client = CRect(window.right - client.right, client.top, window.right - client.left, client.bottom);

    dc.ExcludeClipRect(client);
    dc.FillSolidRect(window, ::GetSysColor(COLOR_BTNFACE));
    DrawBorders(&dc, window);
    DrawGripper(&dc, window);
}
