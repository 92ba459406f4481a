#include <ovoui/frame/ModalDialog.h>

#include <ovoui/frame/Exceptions.h>

COVOModalDialog::COVOModalDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : CDialog(nIDTemplate, pParentWnd)
{
}

COVOModalDialog::~COVOModalDialog() = default;

/// The box is shown when the exception is gone: it runs a message loop of its own, whose handlers may raise
/// and catch others, for as long as the user takes to answer.
BOOL COVOModalDialog::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    BOOL handled = TRUE;
    const auto error =
        ovoui::frame::errorOf([&] { handled = CWnd::OnWndMsg(message, wParam, lParam, pResult); });
    if (error)
        AfxMessageBox(error->c_str(), MB_ICONEXCLAMATION | MB_TASKMODAL, m_nIDHelp);
    return handled;
}
