#include <ovoui/sliders/PopupSliderCtrl.h>

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
    if (ovoui::sliders::hidesPopup(key))
        GetParent()->ShowWindow(SW_HIDE);
    CSliderCtrl::OnKeyDown(key, repeat, flags);
}
