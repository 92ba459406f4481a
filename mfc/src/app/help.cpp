// CWinApp: help.
#include <afxwin.h>

namespace
{

using HtmlHelpFunction = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);

/// HtmlHelpW, loaded when it is first needed; null where there is none.
HtmlHelpFunction htmlHelp()
{
    static const auto function = [] {
        const HMODULE module = ::LoadLibraryW(L"hhctrl.ocx");
        void* address = module ? reinterpret_cast<void*>(::GetProcAddress(module, "HtmlHelpW")) : nullptr;
        return reinterpret_cast<HtmlHelpFunction>(address);
    }();
    return function;
}

bool exists(LPCTSTR path)
{
    return ::GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

} // namespace

void CWinApp::HtmlHelp(DWORD_PTR data, UINT command)
{
    if (!m_pszHelpFilePath || !exists(m_pszHelpFilePath))
        return;
    const CWaitCursor wait;
    if (const HtmlHelpFunction function = htmlHelp())
        function(AfxGetMainWnd()->GetSafeHwnd(), m_pszHelpFilePath, command, data);
}

void CWinApp::WinHelp(DWORD_PTR data, UINT command)
{
    if (!m_pszHelpFilePath || !exists(m_pszHelpFilePath))
        return;
    const CWaitCursor wait;
    ::WinHelpW(AfxGetMainWnd()->GetSafeHwnd(), m_pszHelpFilePath, command, data);
}

void CWinApp::EnableHtmlHelp()
{
    SetHelpMode(afxHTMLHelp);
}

AFX_HELP_TYPE CWinApp::GetHelpMode() const
{
    return m_eHelpType;
}

void CWinApp::SetHelpMode(AFX_HELP_TYPE type)
{
    m_eHelpType = type;
    // The help file's ending follows the kind of help.
    CString path(m_pszHelpFilePath);
    const int dot = path.ReverseFind(L'.');
    if (dot < 0)
        return;
    path = path.Left(dot) + (type == afxHTMLHelp ? L".CHM" : L".HLP");
    std::free(const_cast<LPTSTR>(m_pszHelpFilePath));
    m_pszHelpFilePath = ::_wcsdup(path);
}
