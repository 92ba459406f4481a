// CCommandLineInfo.
#include "Texts.h"

#include <afxwin.h>

namespace
{

using Command = decltype(CCommandLineInfo::m_nShellCommand);

struct Row
{
    std::vector<LPCWSTR> arguments;
    Command command;
    LPCWSTR file;
    BOOL splash;
};

/// Feeds arguments as the program does.
void parse(CCommandLineInfo& info, const std::vector<LPCWSTR>& arguments)
{
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool flag = arguments[i][0] == L'/' || arguments[i][0] == L'-';
        info.ParseParam(arguments[i] + (flag ? 1 : 0), flag, i + 1 == arguments.size());
    }
}

class CRecordingInfo : public CCommandLineInfo
{
public:
    CString seen;

    using CCommandLineInfo::ParseParam;
    void ParseParam(const TCHAR* parameter, BOOL flag, BOOL last) override
    {
        seen.AppendFormat(L"%s%s%s ", flag ? L"/" : L"", parameter, last ? L"." : L"");
    }
};

} // namespace

TEST(CommandLine, AsksForAShellCommand)
{
    const Row rows[] = {
        {{}, Command::FileNew, L"", TRUE},
        {{L"a.txt"}, Command::FileOpen, L"a.txt", FALSE},
        {{L"a.txt", L"b.txt"}, Command::FileOpen, L"a.txt", FALSE},
        {{L"/p", L"a.txt"}, Command::FilePrint, L"a.txt", FALSE},
        {{L"a.txt", L"-p"}, Command::FilePrint, L"a.txt", FALSE},
        {{L"/pt", L"a.txt"}, Command::FilePrintTo, L"a.txt", FALSE},
        {{L"/dde"}, Command::FileDDE, L"", FALSE},
        {{L"/Register"}, Command::AppRegister, L"", FALSE},
        {{L"/regserver"}, Command::AppRegister, L"", FALSE},
        {{L"-Unregister"}, Command::AppUnregister, L"", FALSE},
        {{L"/unregserver"}, Command::AppUnregister, L"", FALSE},
        {{L"/unknown"}, Command::FileNew, L"", TRUE},
    };
    for (const Row& row : rows) {
        CCommandLineInfo info;
        parse(info, row.arguments);
        const LPCWSTR first = row.arguments.empty() ? L"" : row.arguments[0];
        EXPECT_EQ(info.m_nShellCommand, row.command) << CString(first);
        EXPECT_EQ(info.m_strFileName, row.file) << CString(first);
        EXPECT_EQ(info.m_bShowSplash, row.splash) << CString(first);
        EXPECT_FALSE(info.m_bRunEmbedded);
        EXPECT_FALSE(info.m_bRunAutomated);
    }
}

TEST(CommandLine, PrintingToAPrinterNamesIt)
{
    CCommandLineInfo info;
    parse(info, {L"/pt", L"a.txt", L"printer", L"driver", L"port", L"more"});
    EXPECT_EQ(info.m_strFileName, L"a.txt");
    EXPECT_EQ(info.m_strPrinterName, L"printer");
    EXPECT_EQ(info.m_strDriverName, L"driver");
    EXPECT_EQ(info.m_strPortName, L"port");

    CCommandLineInfo plain;
    parse(plain, {L"a.txt", L"printer", L"driver", L"port"});
    EXPECT_EQ(plain.m_strPrinterName + plain.m_strDriverName + plain.m_strPortName, L"");
}

TEST(CommandLine, TellsWhenAnotherProgramStartedThisOne)
{
    CCommandLineInfo embedded;
    parse(embedded, {L"-Embedding"});
    EXPECT_TRUE(embedded.m_bRunEmbedded);
    EXPECT_FALSE(embedded.m_bShowSplash);
    CCommandLineInfo automated;
    parse(automated, {L"/automation"});
    EXPECT_TRUE(automated.m_bRunAutomated);
    EXPECT_FALSE(automated.m_bShowSplash);
}

TEST(CommandLine, NarrowArgumentsCountAsWell)
{
    CCommandLineInfo info;
    info.ParseParam("a.txt", FALSE, TRUE);
    EXPECT_EQ(info.m_strFileName, L"a.txt");
}

TEST(CommandLine, OfTheProgramIsHandedOutOneByOne)
{
    int count = 0;
    LPWSTR* const arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    CString expected;
    for (int i = 1; i < count; ++i) {
        const bool flag = arguments[i][0] == L'-' || arguments[i][0] == L'/';
        expected.AppendFormat(L"%s%s%s ", flag ? L"/" : L"", arguments[i] + flag,
                              i + 1 == count ? L"." : L"");
    }
    ::LocalFree(arguments);

    CRecordingInfo info;
    AfxGetApp()->ParseCommandLine(info);
    EXPECT_EQ(info.seen, expected);
}
