#include <ovoui/frame/ModalDialog.h>

#include <ovocor/ovocor.h>

#include <exception>

COVOModalDialog::COVOModalDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : CDialog(nIDTemplate, pParentWnd)
{
}

COVOModalDialog::~COVOModalDialog() = default;

BOOL COVOModalDialog::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    constexpr UINT kStyle = MB_ICONEXCLAMATION | MB_TASKMODAL;
    try {
        return CWnd::OnWndMsg(message, wParam, lParam, pResult);
    } catch (const OvoError& error) {
        AfxMessageBox(error.wwhat(), kStyle, m_nIDHelp);
    } catch (const std::exception& error) {
        AfxMessageBox(getWCS(error.what()).c_str(), kStyle, m_nIDHelp);
    }
    return TRUE;
}
