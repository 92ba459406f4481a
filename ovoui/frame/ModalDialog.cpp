#include <ovoui/frame/ModalDialog.h>

#include <ovocor/ovocor.h>

#include <exception>
#include <string>

COVOModalDialog::COVOModalDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : CDialog(nIDTemplate, pParentWnd)
{
}

COVOModalDialog::~COVOModalDialog() = default;

/// The box is shown when the exception is gone: it runs a message loop of its own, whose handlers may raise
/// and catch others, for as long as the user takes to answer.
BOOL COVOModalDialog::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    std::wstring text;
    try {
        return CWnd::OnWndMsg(message, wParam, lParam, pResult);
    } catch (const OvoError& error) {
        text = error.wwhat();
    } catch (const std::exception& error) {
        text = getWCS(error.what());
    }
    AfxMessageBox(text.c_str(), MB_ICONEXCLAMATION | MB_TASKMODAL, m_nIDHelp);
    return TRUE;
}
