// The command line.
#include <afxwin.h>

#include <shellapi.h>

CCommandLineInfo::CCommandLineInfo() = default;

CCommandLineInfo::~CCommandLineInfo() = default;

void CCommandLineInfo::ParseParam(const TCHAR* parameter, BOOL flag, BOOL)
{
    const CString text(parameter);
    if (!flag) {
        if (m_strFileName.IsEmpty())
            m_strFileName = text;
        if (m_nShellCommand == FileNew)
            m_nShellCommand = FileOpen;
    } else if (text == L"p") {
        m_nShellCommand = FilePrint;
    } else if (text == L"pt") {
        m_nShellCommand = FilePrintTo;
    } else if (text.CompareNoCase(L"Embedding") == 0) {
        m_bRunEmbedded = TRUE;
        m_bShowSplash = FALSE;
    } else if (text.CompareNoCase(L"Automation") == 0) {
        m_bRunAutomated = TRUE;
        m_bShowSplash = FALSE;
    }
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
