// CDataExchange: one pass of values between controls and members.
#pragma once

#include <afx/Wnd.h>

class OVOMFC_API CDataExchange
{
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate; ///< from the controls into the members
    CWnd* m_pDlgWnd;
    HWND m_hWndLastControl = nullptr; ///< what Fail puts the focus on
    BOOL m_bEditLastControl = FALSE;

    /// The control of this number. Throws CNotSupportedException when there is none.
    HWND PrepareCtrl(int id);
    HWND PrepareEditCtrl(int id);
    /// After the user was told: puts the focus on the control and throws CUserException.
    [[noreturn]] void Fail();
};
