#include <testkit/ImportPatch.h>
#include <testkit/RunningProgram.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

using namespace ovo::testkit;
using namespace std::chrono_literals;

namespace
{

constexpr wchar_t kProgram[] = L"mfc_program_units"; // its main window is a dialog

constexpr wchar_t kWindowless[] = L"ovo program without a window";

bool isGone(HWND window)
{
    return !::IsWindow(window);
}

bool exists(const wchar_t* mutex)
{
    const HANDLE found = ::OpenMutexW(SYNCHRONIZE, FALSE, mutex);
    if (found)
        ::CloseHandle(found);
    return found != nullptr;
}

FARPROC WINAPI noWine(HMODULE module, LPCSTR function)
{
    return std::string(function) == "wine_get_version" ? nullptr : ::GetProcAddress(module, function);
}

int s_pixels = 0; ///< that were looked at

COLORREF WINAPI blackPixel(HDC, int, int)
{
    ++s_pixels;
    return RGB(0, 0, 0);
}

UINT WINAPI hesitantInput(UINT count, LPINPUT inputs, int size)
{
    static const auto send = reinterpret_cast<decltype(&::SendInput)>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "SendInput")));
    const UINT sent = send(count, inputs, size);
    ::Sleep(30);
    return sent;
}

} // namespace

// Run only by the test below.
TEST(DISABLED_Program, WithoutAWindow)
{
    ::CreateMutexW(nullptr, FALSE, kWindowless);
    ::Sleep(INFINITE);
}

TEST(RunningProgram, ThatDoesNotExistIsAnError)
{
    EXPECT_THROW(RunningProgram(L"no such program"), std::runtime_error);
}

TEST(RunningProgram, WaitsInVainInTheWordsOfTheConditionAndTellsWhatIsInFront)
{
    RunningProgram program{kProgram};
    const std::string title = std::filesystem::path(textOf(program.main())).string();
    try {
        program.waitFor(
            "the moon to rise", [] { return false; }, 50ms);
        FAIL() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
        const std::string begin =
            "waited in vain for the moon to rise; \"" + title + "\" is in front, and the keyboard at ";
        EXPECT_TRUE(std::string(error.what()).starts_with(begin)) << error.what();
    }
}

TEST(RunningProgram, FindsWindowsAndControlsByTitleAndClassWhereThereAreAny)
{
    RunningProgram program{kProgram};
    const std::wstring title = textOf(program.main());
    EXPECT_FALSE(title.empty());
    EXPECT_TRUE(program.shows(title));
    EXPECT_EQ(program.window(title), program.main());
    EXPECT_FALSE(program.shows(title + L"?"));
    EXPECT_EQ(program.shown(L"#32770"), program.main());
    EXPECT_EQ(program.shown(L"no such class"), nullptr);
    const HWND button = program.child(program.main(), L"Button");
    EXPECT_EQ(::GetAncestor(button, GA_ROOT), program.main());
    EXPECT_EQ(program.child(program.main(), L"no such class"), nullptr);
    EXPECT_EQ(textOf(program.main(), 0x7FFF), L"") << "there is no such control";
}

TEST(RunningProgram, WaitsInVainForAWindowThatDoesNotCome)
{
    RunningProgram program{kProgram};
    try {
        program.window(L"The moon", 50ms);
        FAIL() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
        EXPECT_TRUE(std::string(error.what()).starts_with("waited in vain for the window \"The moon\"; "))
            << error.what();
    }
}

TEST(RunningProgram, TriesAgainAndGivesUpInTheEnd)
{
    RunningProgram program{kProgram};
    int tries = 0;
    const auto act = [&] { ++tries; };
    program.tryUntil("two tries", act, [&] { return tries == 2; });
    EXPECT_EQ(tries, 2);
    EXPECT_THROW(program.tryUntil(
                     "the sun", act, [] { return false; }, 50ms),
                 std::runtime_error);
    EXPECT_GE(tries, 3) << "not without trying";
}

TEST(RunningProgram, ClicksAndPressesKeysAsAUserDoes)
{
    RunningProgram program{kProgram};
    program.click(program.child(program.main(), L"Button")); // which asks for a number in a dialog
    const HWND dialog = program.window(L"Convert");
    EXPECT_FALSE(::IsWindowEnabled(program.main()));
    EXPECT_FALSE(program.clickNow(program.child(program.main(), L"Button"))) << "behind the dialog";
    EXPECT_TRUE(program.clickNow(program.child(dialog, L"Edit")));
    const HWND number = program.child(dialog, L"Edit");
    program.chord(VK_CONTROL, 'A');
    program.type(L"1x\u00FC");
    program.key(VK_BACK, 2);
    program.waitFor("the typed number", [&] { return textOf(number) == L"1"; });
    program.key(VK_ESCAPE);
    program.waitFor("the end of the dialog", [&] { return !::IsWindow(dialog); });
    program.closeByKeys();
    EXPECT_TRUE(program.endsByItself());
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ovoui test programs"); // where it remembers a number
}

TEST(RunningProgram, DragsFromPointToPoint)
{
    RunningProgram program{kProgram};
    program.click(program.child(program.main(), L"Button"));
    const HWND number = program.child(program.window(L"Convert"), L"Edit");
    program.click(number);
    program.chord(VK_CONTROL, 'A');
    program.type(L"123");
    program.waitFor("the typed number", [&] { return textOf(number) == L"123"; });
    CRect client;
    ::GetClientRect(number, &client);
    const int line = client.CenterPoint().y;
    const auto selected = [number] { return ::SendMessageW(number, EM_GETSEL, 0, 0); };
    ASSERT_EQ(selected(), MAKELONG(3, 3));
    program.drag(number, {{client.right - 2, line}, client.CenterPoint(), {client.left + 1, line}});
    program.waitFor("the dragged selection", [&] { return selected() == MAKELONG(0, 3); });
}

// The display tells the dialog below the pointer, a moment after it has opened, that nothing is held.
TEST(RunningProgram, HoldsTheKeysOfAChordHoweverSlowTheMachineIs)
{
    RunningProgram program{L"mfc_program_finder"};
    CPoint there = rectOf(program.main()).CenterPoint();
    const ImportPatch slow{nullptr, "SendInput", reinterpret_cast<void*>(&hesitantInput)};
    for (int i = 0; i < 5; ++i) {
        ::SetCursorPos(there.x, there.y);
        program.chord(VK_CONTROL, 'F');
        const HWND dialog = program.window(L"Find");
        program.chord(VK_MENU, 'C'); // marks the first button, a check box
        program.waitFor("the mark", [mark = program.child(dialog, L"Button")] {
            return ::SendMessageW(mark, BM_GETCHECK, 0, 0) == BST_CHECKED;
        });
        there = rectOf(dialog).CenterPoint();
        program.key(VK_ESCAPE);
        program.waitFor("the end of the dialog", [dialog] { return !::IsWindow(dialog); });
        ::SetCursorPos(0, 0);
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

TEST(RunningProgram, ThatShowsNoWindowIsAnErrorAndEnds)
{
    EXPECT_THROW(
        RunningProgram(L"test_testkit",
                       L"--gtest_also_run_disabled_tests --gtest_filter=DISABLED_Program.WithoutAWindow"),
        std::runtime_error);
    EXPECT_FALSE(exists(kWindowless));
}

/// There the screen may be black in a window, and is not without one.
TEST(RunningProgram, IsNotLookedForOnTheScreenOfWindows)
{
    {
        const ImportPatch windows{nullptr, "GetProcAddress", reinterpret_cast<void*>(&noWine)};
        const ImportPatch screen{nullptr, "GetPixel", reinterpret_cast<void*>(&blackPixel)};
        s_pixels = 0;
        RunningProgram program{kProgram};
        EXPECT_TRUE(program.shows(textOf(program.main())));
    }
    EXPECT_EQ(s_pixels, 0);
    RunningProgram{kProgram}; // leaves a bare screen to the next test
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
