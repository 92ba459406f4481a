#include <ovoui/frame/ModalDialog.h>

#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/Lifeline.h>

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
    const Lifeline::Watch watch(*this);
    const UINT helpId = m_nIDHelp;
    const auto error =
        ovoui::frame::errorOf([&] { handled = CWnd::OnWndMsg(message, wParam, lParam, pResult); });
    if (!error)
        return handled;
    const bool alive = watch.alive();
    if (alive && message == WM_PAINT) // or the dialog would be asked to paint again behind the box, and so on
        RedrawWindow(nullptr, nullptr, RDW_VALIDATE | RDW_NOERASE | RDW_NOFRAME | RDW_NOINTERNALPAINT);
    AfxMessageBox(error->c_str(), MB_ICONEXCLAMATION | MB_TASKMODAL, alive ? m_nIDHelp : helpId);
    return TRUE;
}
