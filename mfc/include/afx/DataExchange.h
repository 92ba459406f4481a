// CDataExchange: one pass of values between controls and members.
#pragma once

#include <afx/Wnd.h>

/// What DoDataExchange and the DDX_ and DDV_ functions work with.
///
/// A DDX_ function of a program's own calls PrepareCtrl or PrepareEditCtrl for its control, then moves the
/// value in the direction of m_bSaveAndValidate. When it refuses a value, it tells the user why and calls
/// Fail.
class OVOMFC_API CDataExchange
{
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate; ///< from the controls into the members, with validation
    CWnd* m_pDlgWnd;         ///< the window with the controls

    /// The control of this number, which Fail puts the focus on from now on. Throws CNotSupportedException
    /// when there is none.
    HWND PrepareCtrl(int id);
    /// The same for an edit control; Fail selects its text.
    HWND PrepareEditCtrl(int id);
    /// After the user was told: puts the focus on the control that was prepared last and throws
    /// CUserException, which makes UpdateData give FALSE.
    [[noreturn]] void Fail();

    // The framework's own
    HWND m_hWndLastControl = nullptr;
    BOOL m_bEditLastControl = FALSE;
};
