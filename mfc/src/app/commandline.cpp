// The command line.
#include <afxwin.h>

#include <shellapi.h>

CCommandLineInfo::CCommandLineInfo() = default;

CCommandLineInfo::~CCommandLineInfo() = default;

void CCommandLineInfo::ParseParam(const TCHAR* parameter, BOOL flag, BOOL)
{
    if (flag)
        parseFlag(parameter);
    else
        parseName(parameter);
    // A user who opens a file has not asked for the program itself.
    if (m_nShellCommand != FileNew || m_bRunEmbedded || m_bRunAutomated)
        m_bShowSplash = FALSE;
}

void CCommandLineInfo::ParseParam(const char* parameter, BOOL flag, BOOL last)
{
    const CString wide(parameter);
    ParseParam(wide.GetString(), flag, last);
}

void CCommandLineInfo::parseFlag(const CString& flag)
{
    const auto is = [&](LPCTSTR word) { return flag.CompareNoCase(word) == 0; };
    if (is(L"p"))
        m_nShellCommand = FilePrint;
    else if (is(L"pt"))
        m_nShellCommand = FilePrintTo;
    else if (is(L"dde"))
        m_nShellCommand = FileDDE;
    else if (is(L"Register") || is(L"Regserver"))
        m_nShellCommand = AppRegister;
    else if (is(L"Unregister") || is(L"Unregserver"))
        m_nShellCommand = AppUnregister;
    else if (is(L"Embedding"))
        m_bRunEmbedded = TRUE;
    else if (is(L"Automation"))
        m_bRunAutomated = TRUE;
}

void CCommandLineInfo::parseName(const CString& name)
{
    if (m_nShellCommand == FileNew)
        m_nShellCommand = FileOpen;
    if (m_strFileName.IsEmpty())
        m_strFileName = name;
    else if (m_nShellCommand != FilePrintTo)
        return;
    else if (m_strPrinterName.IsEmpty())
        m_strPrinterName = name;
    else if (m_strDriverName.IsEmpty())
        m_strDriverName = name;
    else if (m_strPortName.IsEmpty())
        m_strPortName = name;
}

void CWinApp::ParseCommandLine(CCommandLineInfo& info)
{
    int count = 0;
    LPWSTR* const arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    for (int i = 1; i < count; ++i) {
        const bool flag = arguments[i][0] == L'-' || arguments[i][0] == L'/';
        info.ParseParam(arguments[i] + (flag ? 1 : 0), flag, i + 1 == count);
    }
    ::LocalFree(arguments);
}
