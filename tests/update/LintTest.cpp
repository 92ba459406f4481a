// The program for publishers of lists, run as they run it.
#include <support/StartProcess.h>

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace
{

struct Outcome
{
    DWORD code = 0;
    std::string output;
};

Outcome run(const std::wstring& arguments)
{
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE reading = nullptr;
    HANDLE writing = nullptr;
    EXPECT_TRUE(::CreatePipe(&reading, &writing, &inherited, 0));
    STARTUPINFOW start{};
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = writing;
    PROCESS_INFORMATION process{};
    EXPECT_TRUE(support::startProcess(L"ovo-update-lint.exe " + arguments, start, process, TRUE));
    ::CloseHandle(writing);
    Outcome outcome;
    char piece[1000];
    for (DWORD got = 0; ::ReadFile(reading, piece, sizeof piece, &got, nullptr) && got > 0;)
        outcome.output.append(piece, got);
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::GetExitCodeProcess(process.hProcess, &outcome.code);
    ::CloseHandle(process.hProcess);
    ::CloseHandle(process.hThread);
    ::CloseHandle(reading);
    std::erase(outcome.output, '\r'); // the C runtime adds them
    return outcome;
}

/// A list in the folder of the test.
class ListFile
{
public:
    explicit ListFile(const std::string& text)
    {
        const HANDLE file = ::CreateFileW(kName, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD written = 0;
        ::WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
        ::CloseHandle(file);
    }
    ~ListFile() { ::DeleteFileW(kName); }
    ListFile(const ListFile&) = delete;
    ListFile& operator=(const ListFile&) = delete;

    static constexpr wchar_t kName[] = L"lint-test.csv";
};

constexpr char kColumns[] =
    "UpdateType,Product,Options,OS,Processor,Version,UpdateVersion,UpdateInfo,UpdateDescription\r\n";

} // namespace

TEST(UpdateLint, SaysNothingAgainstAGoodList)
{
    const ListFile list(std::string(kColumns) +
                        "#update,Board,,,,11.*,12.0,https://example.org/12,Gr\xC3\xBC\xC3\x9F"
                        "e\r\n");
    const Outcome outcome = run(ListFile::kName);
    EXPECT_EQ(outcome.code, 0u);
    EXPECT_EQ(outcome.output, "lint-test.csv: 0 errors, 0 warnings\n");
}

TEST(UpdateLint, NamesTheLineOfEveryMistake)
{
    const ListFile list(std::string(kColumns) +
                        "#update,Board,,Windoof,,11.*,12.0,https://example.org/12,\r\n"
                        "#update,Br\xC3\xBC"
                        "cke,,,,,zw\xC3\xB6lf,https://example.org/12,\r\n"
                        "#note\r\n");
    const Outcome outcome = run(ListFile::kName);
    EXPECT_EQ(outcome.code, 1u);
    EXPECT_TRUE(outcome.output.starts_with("lint-test.csv:2: warning: The system \"Windoof\""))
        << outcome.output;
    EXPECT_NE(outcome.output.find("lint-test.csv:3: error: \"zw\xC3\xB6lf\" is not a version"),
              std::string::npos)
        << outcome.output;
    EXPECT_NE(outcome.output.find("lint-test.csv:4: error: A required field is missing"), std::string::npos);
    EXPECT_TRUE(outcome.output.ends_with("lint-test.csv: 2 errors, 1 warnings\n"));
}

TEST(UpdateLint, NamesTheFirstLineWithLettersOfACodePage)
{
    const ListFile list(std::string(kColumns) + "#update,Board,,,,11,12.0,https://example.org/12,News\r\n"
                                                "#update,Board,,,,10,11.0,https://example.org/11,Gr\xFC\xDF"
                                                "e\r\n"
                                                "#update,Board,,,,9,10.0,https://example.org/10,M\xFC"
                                                "he\r\n");
    const Outcome outcome = run(ListFile::kName);
    EXPECT_EQ(outcome.code, 0u);
    EXPECT_TRUE(outcome.output.starts_with("lint-test.csv:3: warning: The list is neither UTF-8 nor UTF-16"))
        << outcome.output;
    EXPECT_TRUE(outcome.output.ends_with("lint-test.csv: 0 errors, 1 warnings\n")) << outcome.output;
}

TEST(UpdateLint, WithoutAListItSaysHowItIsUsed)
{
    EXPECT_EQ(run(L"").code, 2u);
    EXPECT_NE(run(L"").output.find("usage"), std::string::npos);
    EXPECT_EQ(run(L"a b").code, 2u);
    const Outcome missing = run(L"no-such-list.csv");
    EXPECT_EQ(missing.code, 2u);
    EXPECT_NE(missing.output.find("no-such-list.csv"), std::string::npos);
}
