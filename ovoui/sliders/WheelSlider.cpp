#include <ovoui/sliders/WheelSlider.h>

#include <ovoui/sliders/core/CylinderDrag.h>

namespace
{

constexpr int kInches = 3;
constexpr int kUsualHeight = 288;

} // namespace

CWheelSlider::CWheelSlider(bool reversed)
    : CAngleSlider(Axis::Horizontal, ovoui::sliders::Turn::Half, reversed)
{
}

BOOL CWheelSlider::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return createNamed(L"WheelSlider", style, rect, parent, id);
}

int CWheelSlider::MaxHeight(CDC* dc)
{
    return dc ? kInches * dc->GetDeviceCaps(LOGPIXELSY) : kUsualHeight;
}
