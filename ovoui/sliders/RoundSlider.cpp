#include <ovoui/sliders/RoundSlider.h>

#include <ovoui/sliders/core/CylinderDrag.h>

#include <ovocor/Text.h>

namespace
{

constexpr int kInches = 3;
constexpr int kUsualWidth = 288;

} // namespace

CRoundSlider::CRoundSlider(bool reversed)
    : CAngleSlider(Axis::Vertical, ovoui::sliders::Turn::Endless, reversed)
{
}

BOOL CRoundSlider::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return createNamed(L"RoundSlider", style, rect, parent, id);
}

int CRoundSlider::MaxWidth(CDC* dc)
{
    return dc ? kInches * dc->GetDeviceCaps(LOGPIXELSX) : kUsualWidth;
}

void CRoundSlider::drawOnCylinder(CDC& dc, const CRect& cylinder, double shown)
{
    CGdiObject* const old = dc.SelectStockObject(DEFAULT_GUI_FONT);
    const CString text(stringPrintf(L"%d", ovoui::sliders::printedAngle(shown)).c_str());
    const CSize size = dc.GetTextExtent(text);
    const CPoint corner((cylinder.Width() - size.cx) / 2 + cylinder.left - 1,
                        (cylinder.Height() - size.cy) / 2 + cylinder.top);
    CRect box(corner, CSize(size.cx + 2, size.cy));
    box.IntersectRect(box, cylinder);
    dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    dc.SetBkColor(::GetSysColor(COLOR_WINDOW));
    dc.ExtTextOut(corner.x + 1, corner.y, ETO_OPAQUE | ETO_CLIPPED, &box, text, nullptr);
    dc.SelectObject(static_cast<CFont*>(old));
}
