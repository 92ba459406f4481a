// COVOFileDialog: its end.
#include "HostDialog.h"
#include "resource.h"

#include <testkit/ImportPatch.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

TEST(FileDialogLife, EndsWithoutHavingBeenShown)
{
    for (const Kind kind : {Kind::Classic, Kind::NewStyle}) {
        HostDialog dialog(kind);
        EXPECT_TRUE(dialog.events.empty());
    }
}

namespace
{

int s_told = 0;

/// Counts what reaches the handlers of the derived class, its end included.
class Told : public COVOFileDialog
{
public:
    Told()
        : COVOFileDialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, FALSE)
    {
    }

protected:
    void OnSize(UINT, int, int) override { ++s_told; }
    void OnEnChange(DWORD) override { ++s_told; }
};

/// Tells its parent of a changed text when it goes.
LRESULT CALLBACK tellAtTheEnd(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DESTROY)
        ::SendMessageW(::GetParent(wnd), WM_COMMAND, MAKEWPARAM(1, EN_CHANGE), reinterpret_cast<LPARAM>(wnd));
    return ::DefWindowProcW(wnd, message, wParam, lParam);
}

} // namespace

TEST(FileDialogLife, TellsNothingToADerivedClassWhileItEnds)
{
    s_told = 0;
    HWND child = nullptr;
    HWND edit = nullptr;
    {
        const Told dialog;
        CWnd& wnd = *dialog.DialogWnd();
        ASSERT_TRUE(
            wnd.CreateEx(0, AfxRegisterWndClass(0), L"Child", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr));
        child = wnd.m_hWnd;
        edit = ::CreateWindowW(L"EDIT", L"", WS_CHILD, 0, 0, 10, 10, child, nullptr, nullptr, nullptr);
        ::SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&tellAtTheEnd));
        s_told = 0;
        ::SendMessageW(child, WM_COMMAND, MAKEWPARAM(1, EN_CHANGE), reinterpret_cast<LPARAM>(edit));
        EXPECT_EQ(s_told, 1); // as long as it lives
    }
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_FALSE(::IsWindow(child));
    EXPECT_EQ(s_told, 1);
}

namespace
{

int s_loads = 0;
bool s_fails = false;

HMODULE WINAPI load(LPCWSTR name)
{
    ++s_loads;
    EXPECT_STREQ(name, L"Shell32.dll");
    if (!s_fails)
        return ::LoadLibraryW(name);
    ::SetLastError(ERROR_BAD_EXE_FORMAT);
    return nullptr;
}

} // namespace

// In a process of its own, since the library keeps the shell for good.
TEST(FileDialogShellDeathTest, IsLoadedOnceAndItsAbsenceIsSilent)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto run = [] {
        const ImportPatch patch(L"ovoui.dll", "LoadLibraryW", reinterpret_cast<void*>(&load));
        HostDialog dialog(Kind::NewStyle);
        s_loads = 0;
        s_fails = true;
        dialog.SetFolder(L"C:\\");
        bool right = s_loads == 1 && ::GetLastError() == ERROR_BAD_EXE_FORMAT;
        s_fails = false;
        dialog.SetFolder(L"C:\\");
        dialog.SetFolder(L"C:\\");
        right = right && s_loads == 2;
        std::fprintf(stderr, right ? "as expected" : "otherwise");
        std::_Exit(1);
    };
    EXPECT_DEATH(run(), "as expected");
}
