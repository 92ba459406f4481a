/// Base of the library's modal dialogs.
#pragma once

#include <ovoui/export.h>

#include <afxwin.h>

/// A dialog that shows the errors of its message handlers and stays open, where CDialog lets them unwind
/// through the message loop.
class OVOUI_API COVOModalDialog : public CDialog
{
public:
    /// The template `nIDTemplate`; `pParentWnd` is disabled while the dialog is open, and may be null for the
    /// main window.
    COVOModalDialog(UINT nIDTemplate, CWnd* pParentWnd);
    ~COVOModalDialog() override;

protected:
    /// Dispatches `message` with `wParam` and `lParam` as CWnd does, and puts the answer into `pResult`. An
    /// OvoError or a standard exception out of a handler is shown with AfxMessageBox under the dialog's help
    /// id and counts as handled; any other exception passes on.
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
