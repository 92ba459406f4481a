// A windowed program as a host writes it. It writes down how it lives into the file that the environment
// variable OVO_HOST_REPORT names, and lives as OVO_HOST_MODE says: "window", "no window" or "refuse".
#include <afxwin.h>
#include <afxole.h>

#include <cstdio>

namespace
{

CString variable(LPCWSTR name)
{
    CString value;
    value.GetEnvironmentVariable(name);
    return value;
}

/// Adds a line, for which the file is opened and closed: the program's end is reported too.
void note(LPCWSTR format, ...)
{
    CString line;
    va_list arguments;
    va_start(arguments, format);
    line.FormatV(format, arguments);
    va_end(arguments);
    if (std::FILE* file = ::_wfopen(variable(L"OVO_HOST_REPORT"), L"ab")) {
        char narrow[1024];
        const int length =
            ::WideCharToMultiByte(CP_UTF8, 0, line + L"\n", -1, narrow, sizeof narrow, nullptr, nullptr);
        std::fwrite(narrow, 1, static_cast<std::size_t>(length - 1), file);
        std::fclose(file);
    }
}

bool oleRuns()
{
    APTTYPE type;
    APTTYPEQUALIFIER qualifier;
    return SUCCEEDED(::CoGetApartmentType(&type, &qualifier));
}

class CHostWnd : public CFrameWnd
{
public:
    ~CHostWnd() override { note(L"~CHostWnd"); }

protected:
    void PostNcDestroy() override
    {
        note(L"PostNcDestroy");
        CFrameWnd::PostNcDestroy();
    }
};

class CHostApp : public CWinApp
{
public:
    ~CHostApp() override { note(L"~CHostApp, OLE %s", oleRuns() ? L"runs" : L"ended"); }

    BOOL InitApplication() override
    {
        note(L"InitApplication");
        return CWinApp::InitApplication();
    }

    BOOL InitInstance() override
    {
        note(L"InitInstance");
        note(L"name %s, program %s, profile %s", m_pszAppName, m_pszExeName, m_pszProfileName);
        note(L"help %s", ::wcsrchr(m_pszHelpFilePath, L'\\') + 1);
        note(L"arguments %s", m_lpCmdLine);
        CCommandLineInfo info;
        ParseCommandLine(info);
        note(L"file %s, command %d", info.m_strFileName.GetString(), static_cast<int>(info.m_nShellCommand));
        if (variable(L"OVO_HOST_MODE") == L"refuse")
            return FALSE;

        AfxOleInit();
        AfxLoadLibrary(L"mfc_core_first.dll"); // which stays to the program's end
        if (variable(L"OVO_HOST_MODE") == L"no window")
            return TRUE;
        auto* const window = new CHostWnd;
        window->Create(nullptr, L"host");
        m_pMainWnd = window;
        window->PostMessage(WM_CLOSE);
        return TRUE;
    }

    int Run() override
    {
        note(L"Run");
        return CWinApp::Run();
    }

    int ExitInstance() override
    {
        note(L"ExitInstance %d, main window %s", CWinApp::ExitInstance(), m_pMainWnd ? L"there" : L"gone");
        return 42;
    }
};

CHostApp theApp;

} // namespace
