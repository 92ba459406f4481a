#include <ovoui/sliders/PopupSliderCtrl.h>

#include <ovoui/frame/Lifeline.h>
#include <ovoui/sliders/core/PopupRules.h>

BEGIN_MESSAGE_MAP(CPopupSliderCtrl, CSliderCtrl)
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

UINT CPopupSliderCtrl::OnGetDlgCode()
{
    return CSliderCtrl::OnGetDlgCode() | DLGC_WANTTAB;
}

void CPopupSliderCtrl::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    // Another window is activated then, and the host may destroy the popup when it hears of that.
    const Lifeline::Watch watch(*this);
    if (ovoui::sliders::hidesPopup(key))
        GetParent()->ShowWindow(SW_HIDE);
    if (watch.alive())
        CSliderCtrl::OnKeyDown(key, repeat, flags);
}
