#include <ovoui/sliders/SliderBubble.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/OwnWindow.h>
#include <ovoui/sliders/core/SliderPlaces.h>

#include <afxcmn.h>

namespace ovoui::sliders
{
namespace
{

constexpr int kMargin = 4; // pixels around the text, at the usual resolution

CRect thumbOf(CWnd& slider)
{
    CRect thumb;
    slider.SendMessage(TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(static_cast<RECT*>(&thumb)));
    slider.ClientToScreen(&thumb);
    return thumb;
}

} // namespace

SliderBubble::SliderBubble()
    : TipWindow(CSize(kMargin, kMargin))
{
}

void SliderBubble::show(CWnd& slider, const std::wstring& text)
{
    if (!m_hWnd && !frame::createPopup(*this, AfxRegisterWndClass(0), *slider.GetParent()))
        return;
    setText(text);
    const CSize size = sizeAroundText();
    RECT place = frame::toRect(bubblePlace(frame::toBox(thumbOf(slider)), size.cx, size.cy));
    EnsureRectVisible(place);
    showAt(place, wndTopMost);
    UpdateWindow();
}

} // namespace ovoui::sliders
