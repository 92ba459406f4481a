#include <ovoui/sliders/WheelSlider.h>

#include <ovoui/frame/core/Scaling.h>
#include <ovoui/sliders/core/CylinderDrag.h>
#include <ovoui/sliders/core/SliderPlaces.h>

using namespace ovoui::sliders;

CWheelSlider::CWheelSlider(bool reversed)
    : CAngleSlider(Axis::Horizontal, Turn::Half, reversed)
{
}

BOOL CWheelSlider::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return createNamed(L"WheelSlider", style, rect, parent, id);
}

int CWheelSlider::MaxHeight(CDC* dc)
{
    return usefulLength(dc ? dc->GetDeviceCaps(LOGPIXELSY) : ovoui::frame::kUsualDotsPerInch);
}
