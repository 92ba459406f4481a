#include <testkit/RunningProgram.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;
using namespace std::chrono_literals;

namespace
{

constexpr wchar_t kProgram[] = L"mfc_program_units"; // its main window is a dialog

bool isGone(HWND window)
{
    return !::IsWindow(window);
}

} // namespace

TEST(RunningProgram, ThatDoesNotExistIsAnError)
{
    EXPECT_THROW(RunningProgram(L"no such program"), std::runtime_error);
}

TEST(RunningProgram, WaitsInVainInTheWordsOfTheCondition)
{
    RunningProgram program{kProgram};
    try {
        program.waitFor(
            "the moon to rise", [] { return false; }, 50ms);
        FAIL() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "waited in vain for the moon to rise");
    }
}

TEST(RunningProgram, EndsWithItsObject)
{
    HWND window = nullptr;
    {
        RunningProgram program{kProgram};
        window = program.main();
        EXPECT_FALSE(isGone(window));
    }
    EXPECT_TRUE(isGone(window));
}

TEST(RunningProgram, ThatCrashesHasNotEndedByItself)
{
    RunningProgram program{kProgram};
    DWORD process = 0;
    ::GetWindowThreadProcessId(program.main(), &process);
    const HANDLE handle = ::OpenProcess(PROCESS_TERMINATE, FALSE, process);
    ::TerminateProcess(handle, static_cast<UINT>(EXCEPTION_ACCESS_VIOLATION));
    ::CloseHandle(handle);
    EXPECT_FALSE(program.endsByItself());
}

TEST(RunningProgram, EndsByKeys)
{
    RunningProgram program{kProgram};
    program.closeByKeys();
    EXPECT_TRUE(program.endsByItself());
}
