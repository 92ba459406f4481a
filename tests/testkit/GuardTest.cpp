// What happens to tests that hang or leave windows behind: tried in this program started once more.
#include <support/StartProcess.h>
#include <testkit/Desktop.h>
#include <testkit/ImportPatch.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>
#include <testkit/Snapshot.h>
#include <testkit/Watchdog.h>

#include <gmock/gmock.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

using namespace ovo::testkit;
using ::testing::HasSubstr;
using ::testing::Not;

namespace
{

constexpr wchar_t kLimit[] = L"5"; // seconds for a test
constexpr DWORD kSlowStep = 1600;  // milliseconds: four of them take longer, and none is near it

struct Outcome
{
    DWORD exitCode = 0;
    std::string output;
};

std::filesystem::path ownProgram()
{
    std::array<wchar_t, MAX_PATH> path{};
    ::GetModuleFileNameW(nullptr, path.data(), MAX_PATH);
    return path.data();
}

std::string contents(const std::filesystem::path& path)
{
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

std::filesystem::path failureFile(const char* name)
{
    return ownProgram().parent_path().parent_path() / "failures" / name;
}

/// Runs one disabled test of this program in a process of its own, for `limit` seconds at most where the test
/// is about that; a busy machine takes seconds for what is none of it.
Outcome runAlone(const std::wstring& test, const wchar_t* limit = nullptr)
{
    SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    ::CreatePipe(&readEnd, &writeEnd, &inherit, 0);
    ::SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);

    STARTUPINFOW startup{};
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = writeEnd;
    startup.hStdError = writeEnd;
    const std::wstring command =
        L"\"" + ownProgram().wstring() + L"\" --gtest_also_run_disabled_tests --gtest_filter=" + test;
    PROCESS_INFORMATION process{};
    ::SetEnvironmentVariableW(L"OVO_TEST_LIMIT", limit);
    const bool started = support::startProcess(command, startup, process, TRUE);
    ::SetEnvironmentVariableW(L"OVO_TEST_LIMIT", nullptr);
    ::CloseHandle(writeEnd);

    Outcome outcome;
    std::array<char, 4096> buffer{};
    for (DWORD got = 0; ::ReadFile(readEnd, buffer.data(), buffer.size(), &got, nullptr) && got;)
        outcome.output.append(buffer.data(), got);
    ::CloseHandle(readEnd);
    EXPECT_TRUE(started);
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::GetExitCodeProcess(process.hProcess, &outcome.exitCode);
    ::CloseHandle(process.hProcess);
    ::CloseHandle(process.hThread);
    return outcome;
}

} // namespace

// The tests that go wrong; run only by those below.

namespace
{

/// A function that never ends, with its place in this program.
[[noreturn]] __attribute__((noinline)) void hang()
{
    std::printf("hang at 0x%llx\n", static_cast<unsigned long long>(
                                        reinterpret_cast<std::uintptr_t>(&hang) -
                                        reinterpret_cast<std::uintptr_t>(::GetModuleHandleW(nullptr))));
    std::fflush(stdout);
    for (;;)
        ::Sleep(INFINITE);
}

/// Whether one of the calls is in the function that says where it begins.
bool namesHang(const std::string& output)
{
    constexpr unsigned long long kLongest = 256; // bytes
    const auto begin = output.find("hang at 0x");
    if (begin == std::string::npos)
        return false;
    const unsigned long long hangs = std::stoull(output.substr(begin + 8), nullptr, 16);
    const std::string own = "test_testkit.exe+";
    for (size_t at = output.find(own); at != std::string::npos; at = output.find(own, at + 1)) {
        const unsigned long long call = std::stoull(output.substr(at + own.size()), nullptr, 16);
        if (call > hangs && call < hangs + kLongest)
            return true;
    }
    return false;
}

} // namespace

TEST(DISABLED_Wrong, Hangs)
{
    Watchdog::tellWhenHung([] { return std::string("it has done nothing yet"); });
    RecordingParent parent{{200, 100}, L"The window of the hanging test"};
    present(parent);
    hang();
}

// Slower than the limit for a test, but never long at one step.
TEST(DISABLED_Wrong, GoesOnSlowly)
{
    Robot robot;
    const auto slowly = [] { ::Sleep(kSlowStep); };
    robot.then(slowly).then(slowly).then(slowly).then(slowly);
}

TEST(DISABLED_Wrong, LeavesAWindow)
{
    auto* forgotten = new RecordingParent{{200, 100}, L"Forgotten"};
    present(*forgotten);
}

TEST(DISABLED_Wrong, LeavesAMessageThatIsAnsweredByAnException)
{
    class Throwing : public RecordingParent
    {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP)
                throw std::runtime_error("too late");
            return RecordingParent::WindowProc(message, wParam, lParam);
        }
    };
    (new Throwing)->PostMessage(WM_APP);
}

TEST(DISABLED_Wrong, LeavesNothing)
{
    RecordingParent parent;
    present(parent);
}

TEST(DISABLED_Wrong, PatchesWhatIsNotImported)
{
    const ImportPatch patch(L"ovomfc.dll", "NoSuchFunction", nullptr);
}

TEST(DISABLED_Wrong, PatchesAModuleThatIsNotLoaded)
{
    const ImportPatch patch(L"no such module.dll", "LoadCursorW", nullptr);
}

TEST(Watchdog, EndsAProgramThatHangsWithAPictureOfWhatItWasAt)
{
    std::filesystem::remove(failureFile("DISABLED_Wrong.Hangs.txt"));
    std::filesystem::remove(failureFile("DISABLED_Wrong.Hangs.png"));

    const Outcome outcome = runAlone(L"DISABLED_Wrong.Hangs", kLimit);

    EXPECT_EQ(outcome.exitCode, 3U);
    EXPECT_THAT(outcome.output, HasSubstr("watchdog"));
    EXPECT_THAT(outcome.output, HasSubstr("it has done nothing yet"));
    EXPECT_TRUE(namesHang(outcome.output)) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("The window of the hanging test"));
    EXPECT_THAT(contents(failureFile("DISABLED_Wrong.Hangs.txt")),
                HasSubstr("The window of the hanging test"));
    EXPECT_THAT(contents(failureFile("DISABLED_Wrong.Hangs.png")), HasSubstr("PNG"));
}

TEST(Watchdog, LetsATestGoOnWhoseStoryGetsOn)
{
    const Outcome outcome = runAlone(L"DISABLED_Wrong.GoesOnSlowly", kLimit);

    EXPECT_EQ(outcome.exitCode, 0U) << outcome.output;
}

TEST(TestGuard, FailsATestThatLeavesAWindowOpen)
{
    const Outcome outcome = runAlone(L"DISABLED_Wrong.LeavesAWindow");

    EXPECT_NE(outcome.exitCode, 0U);
    EXPECT_THAT(outcome.output, HasSubstr("left a window open"));
    EXPECT_THAT(outcome.output, HasSubstr("Forgotten"));
}

TEST(TestGuard, LetsATestPassThatCleansUp)
{
    const Outcome outcome = runAlone(L"DISABLED_Wrong.LeavesNothing");

    EXPECT_EQ(outcome.exitCode, 0U) << outcome.output;
    EXPECT_THAT(outcome.output, Not(HasSubstr("left a window open")));
}

TEST(TestGuard, FailsATestThatLeavesAnExceptionAndRunsTheOthers)
{
    const Outcome outcome =
        runAlone(L"DISABLED_Wrong.LeavesAMessageThatIsAnsweredByAnException:DISABLED_Wrong.LeavesNothing");

    EXPECT_NE(outcome.exitCode, 0U);
    EXPECT_THAT(outcome.output, HasSubstr("too late"));
    EXPECT_THAT(outcome.output, HasSubstr("[  FAILED  ] DISABLED_Wrong.LeavesAMessage"));
    EXPECT_THAT(outcome.output, HasSubstr("[       OK ] DISABLED_Wrong.LeavesNothing"));
}

TEST(ImportPatch, EndsAProgramThatPatchesWhatIsNotImported)
{
    const Outcome outcome = runAlone(L"DISABLED_Wrong.PatchesWhatIsNotImported");

    EXPECT_NE(outcome.exitCode, 0U);
    EXPECT_THAT(outcome.output, HasSubstr("no import of NoSuchFunction"));
}

TEST(ImportPatch, EndsAProgramThatPatchesAModuleThatIsNotLoaded)
{
    const Outcome outcome = runAlone(L"DISABLED_Wrong.PatchesAModuleThatIsNotLoaded");

    EXPECT_NE(outcome.exitCode, 0U);
    EXPECT_THAT(outcome.output, HasSubstr("no import of LoadCursorW to patch in no such module.dll"));
}

TEST(Snapshot, DescribesWindowsWithTheirChildrenAndState)
{
    RecordingParent parent{{200, 100}, L"Described"};
    CButton button;
    button.Create(L"Off", WS_CHILD | WS_VISIBLE | WS_DISABLED, CRect(10, 10, 90, 34), &parent, 31);
    present(parent);

    const std::string text = describeWindows();

    EXPECT_THAT(text, HasSubstr("\"Described\""));
    EXPECT_THAT(text, HasSubstr("Button \"Off\" id 31"));
    EXPECT_THAT(text, HasSubstr("80x24 disabled"));
}
