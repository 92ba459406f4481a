/// Base of the library's modal dialogs.
#pragma once

#include <ovoui/export.h>

#include <afxwin.h>

/// A dialog that shows the errors of its message handlers and stays open, where CDialog lets them unwind
/// through the message loop.
class OVOUI_API COVOModalDialog : public CDialog
{
public:
    COVOModalDialog(UINT nIDTemplate, CWnd* pParentWnd);
    ~COVOModalDialog() override;

protected:
    /// Dispatches as CWnd does. An OvoError or a standard exception out of a handler is shown with
    /// AfxMessageBox under the dialog's help id and counts as handled; any other exception passes on.
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
