// CWinApp: the program's life and resources.
#include <afxadv.h>
#include <afxwin.h>

#include <detail/modulestate.h>
#include <detail/threadstate.h>
#include <detail/waitcursor.h>

#include <cstdlib>
#include <string>

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
    ON_UPDATE_COMMAND_UI(ID_FILE_MRU_FILE1, &CWinApp::OnUpdateRecentFileMenu)
    ON_COMMAND_EX_RANGE(ID_FILE_MRU_FILE1, ID_FILE_MRU_FILE16, &CWinApp::OnOpenRecentFile)
END_MESSAGE_MAP()

namespace
{

/// The program's file name without folder and ending.
std::wstring programName()
{
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring name(path);
    const std::size_t folder = name.find_last_of(L"\\/");
    name.erase(0, folder == std::wstring::npos ? 0 : folder + 1);
    return name.substr(0, name.rfind(L'.'));
}

std::wstring pathBesideProgram(const wchar_t* ending)
{
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring full(path);
    return full.substr(0, full.rfind(L'.')) + ending;
}

void setDefault(LPCTSTR& field, const std::wstring& value)
{
    if (!field)
        field = ::_wcsdup(value.c_str());
}

} // namespace

CWinApp::CWinApp(LPCTSTR name)
    : m_pszAppName(name ? ::_wcsdup(name) : nullptr)
{
    AfxGetModuleState()->app = this;
    afxdetail::threadState().currentThread = this;
    m_hInstance = AfxGetInstanceHandle();

    const std::wstring program = programName();
    setDefault(m_pszExeName, program);
    if (!m_pszAppName) {
        CString title;
        setDefault(m_pszAppName, title.LoadString(AFX_IDS_APP_TITLE) ? title.GetString() : program.c_str());
    }
    setDefault(m_pszHelpFilePath, pathBesideProgram(L".HLP"));
    setDefault(m_pszProfileName, program + L".INI");
}

CWinApp::~CWinApp()
{
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    if (state->app == this)
        state->app = nullptr;
    delete m_pRecentFileList;
    for (LPCTSTR text : {m_pszAppName, m_pszExeName, m_pszHelpFilePath, m_pszProfileName, m_pszRegistryKey})
        std::free(const_cast<LPTSTR>(text));
}

BOOL CWinApp::InitApplication()
{
    return TRUE;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::ExitInstance()
{
    SaveStdProfileSettings();
    return CWinThread::ExitInstance();
}

int CWinApp::Run()
{
    if (!m_pMainWnd) // nothing to wait for
        AfxPostQuitMessage(0);
    return CWinThread::Run();
}

BOOL CWinApp::OnIdle(LONG count)
{
    return CWinThread::OnIdle(count);
}

LRESULT CWinApp::ProcessWndProcException(CException* exception, const MSG* message)
{
    return CWinThread::ProcessWndProcException(exception, message);
}

BOOL CWinApp::SaveAllModified()
{
    return TRUE;
}

void CWinApp::HideApplication()
{
    if (!m_pMainWnd)
        return;
    m_pMainWnd->ShowOwnedPopups(FALSE);
    m_pMainWnd->ShowWindow(SW_HIDE);
}

void CWinApp::OnAppExit()
{
    if (m_pMainWnd)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR name) const
{
    return ::LoadCursorW(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
}

HCURSOR CWinApp::LoadCursor(UINT id) const
{
    return LoadCursor(MAKEINTRESOURCEW(id));
}

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR name) const
{
    return ::LoadCursorW(nullptr, name);
}

HCURSOR CWinApp::LoadOEMCursor(UINT id) const
{
    return LoadStandardCursor(MAKEINTRESOURCEW(id));
}

HICON CWinApp::LoadIcon(LPCTSTR name) const
{
    return ::LoadIconW(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
}

HICON CWinApp::LoadIcon(UINT id) const
{
    return LoadIcon(MAKEINTRESOURCEW(id));
}

HICON CWinApp::LoadStandardIcon(LPCTSTR name) const
{
    return ::LoadIconW(nullptr, name);
}

HICON CWinApp::LoadOEMIcon(UINT id) const
{
    return LoadStandardIcon(MAKEINTRESOURCEW(id));
}

void CWinApp::DoWaitCursor(int code)
{
    afxdetail::countWaitCursor(code);
}
