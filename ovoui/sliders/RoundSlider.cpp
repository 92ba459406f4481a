#include <ovoui/sliders/RoundSlider.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/core/Scaling.h>
#include <ovoui/sliders/core/CylinderDrag.h>
#include <ovoui/sliders/core/SliderPlaces.h>

#include <ovocor/Text.h>

using namespace ovoui::sliders;

CRoundSlider::CRoundSlider(bool reversed)
    : CAngleSlider(Axis::Vertical, Turn::Endless, reversed)
{
}

BOOL CRoundSlider::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return createNamed(L"RoundSlider", style, rect, parent, id);
}

int CRoundSlider::MaxWidth(CDC* dc)
{
    return usefulLength(dc ? dc->GetDeviceCaps(LOGPIXELSX) : ovoui::frame::kUsualDotsPerInch);
}

void CRoundSlider::drawOnCylinder(CDC& dc, const CRect& cylinder, double shown)
{
    const ovoui::frame::SelectedTool font(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    const CString text(stringPrintf(L"%d", printedAngle(shown)).c_str());
    const CSize size = dc.GetTextExtent(text);
    const NumberPlace place = numberPlace(ovoui::frame::toBox(cylinder), size.cx, size.cy);
    const RECT background = ovoui::frame::toRect(place.background);
    dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    dc.SetBkColor(::GetSysColor(COLOR_WINDOW));
    dc.ExtTextOut(place.text.x, place.text.y, ETO_OPAQUE | ETO_CLIPPED, &background, text, nullptr);
}
