// UpdateData and CDataExchange.
#include <afxwin.h>

#include <detail/threadstate.h>

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate)
    , m_pDlgWnd(dialog)
{
}

HWND CDataExchange::PrepareCtrl(int id)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), id);
    if (!control)
        AfxThrowNotSupportedException();
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int id)
{
    const HWND control = PrepareCtrl(id);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_hWndLastControl) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessageW(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    CDataExchange exchange(this, saveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* refused) { // the user has been told
        refused->Delete();
    } catch (CException* exception) {
        exception->ReportError(MB_ICONEXCLAMATION, AFX_IDP_INTERNAL_FAILURE);
        exception->Delete();
    }
    return FALSE;
}

void AFXAPI DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (control.m_hWnd)
        return;
    const HWND wnd = exchange->PrepareCtrl(id);
    if (!control.SubclassWindow(wnd))
        AfxThrowNotSupportedException(); // the control belongs to another object
}
