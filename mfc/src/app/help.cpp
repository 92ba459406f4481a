// CWinApp: help.
#include <afxpriv.h>

#include <detail/help.h>

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

// What the user asks for

void CWinApp::OnHelp()
{
    const afxdetail::OpenMessageBox* box = afxdetail::OpenMessageBox::current();
    if (box && afxdetail::showHelp(box->helpId() ? HID_BASE_PROMPT + box->helpId() : 0))
        return;
    const CWnd* main = AfxGetMainWnd();
    HWND wnd = ::GetActiveWindow();
    if (!wnd)
        wnd = main->GetSafeHwnd();
    for (; wnd; wnd = ::GetParent(wnd))
        if (CWnd::FromHandle(wnd)->SendMessage(WM_COMMANDHELP))
            return;
    if ((main = AfxGetMainWnd()))
        main->SendMessage(WM_COMMAND, ID_DEFAULT_HELP);
}

void CWinApp::OnHelpFinder()
{
    if (m_eHelpType == afxHTMLHelp)
        HtmlHelp(0, HH_DISPLAY_TOPIC);
    else
        WinHelp(0, HELP_FINDER);
}

void CWinApp::OnHelpIndex()
{
    if (m_eHelpType == afxHTMLHelp)
        HtmlHelp(0, HH_DISPLAY_INDEX);
    else
        WinHelp(0, HELP_INDEX);
}

void CWinApp::OnHelpUsing()
{
    if (m_eHelpType == afxHTMLHelp)
        HtmlHelp(0, HH_DISPLAY_TOPIC); // this kind of help has no help on help
    else
        WinHelp(0, HELP_HELPONHELP);
}

void CWnd::OnHelp()
{
    if (CWinApp* app = AfxGetApp())
        app->OnHelp();
}

void CWnd::OnHelpFinder()
{
    if (CWinApp* app = AfxGetApp())
        app->OnHelpFinder();
}

void CWnd::OnHelpIndex()
{
    if (CWinApp* app = AfxGetApp())
        app->OnHelpIndex();
}

void CWnd::OnHelpUsing()
{
    if (CWinApp* app = AfxGetApp())
        app->OnHelpUsing();
}

namespace afxdetail
{

BOOL showHelp(DWORD_PTR context)
{
    CWinApp* app = AfxGetApp();
    if (context == 0 || !app)
        return FALSE;
    if (app->GetHelpMode() == afxHTMLHelp)
        app->HtmlHelp(context, HH_HELP_CONTEXT);
    else
        app->WinHelp(context, HELP_CONTEXT);
    return TRUE;
}

bool programHasHelp()
{
    CWnd* main = AfxGetMainWnd();
    AFX_CMDHANDLERINFO handler{};
    return main && main->OnCmdMsg(ID_HELP, CN_COMMAND, nullptr, &handler);
}

BOOL askForHelp()
{
    if (!programHasHelp())
        return FALSE;
    AfxGetMainWnd()->SendMessage(WM_COMMAND, ID_HELP);
    return TRUE;
}

bool isHelpKey(const MSG& message)
{
    constexpr LPARAM kRepeated = 0x40000000;
    return message.message == WM_KEYDOWN && message.wParam == VK_F1 && !(message.lParam & kRepeated) &&
           ::GetKeyState(VK_SHIFT) >= 0 && ::GetKeyState(VK_CONTROL) >= 0 && ::GetKeyState(VK_MENU) >= 0;
}

} // namespace afxdetail
