/// The slider inside the popup of a slider button.
#pragma once

#include <ovoui/export.h>

#include <afxcmn.h>

/// A slider that puts its popup away on Space and Tab.
class OVOUI_API CPopupSliderCtrl : public CSliderCtrl
{
protected:
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    DECLARE_MESSAGE_MAP()
};
