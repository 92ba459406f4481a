#include <ovoui/sliders/PopupSliderCtrl.h>

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
    if (key == VK_SPACE || key == VK_TAB)
        GetParent()->ShowWindow(SW_HIDE);
    CSliderCtrl::OnKeyDown(key, repeat, flags);
}
