// How an object gets its window, and what is left when it does not.
#include "Windows.h"

#include <testkit/WindowCounter.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;
using namespace wndtest;

namespace
{

struct Oak : std::runtime_error
{
    Oak()
        : std::runtime_error("oak")
    {
    }
};

/// Logs every message, with the class name that the window had then.
class Watching : public Hidden<>
{
public:
    std::vector<UINT> messages;
    std::vector<bool> attached; // at each of them

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        messages.push_back(message);
        attached.push_back(m_hWnd && FromHandlePermanent(m_hWnd) == this);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class Ended : public Hidden<>
{
public:
    int ended = 0;

protected:
    void PostNcDestroy() override { ++ended; }
};

} // namespace

TEST(Creation, TheFirstMessageFindsTheObjectAttached)
{
    Watching wnd;
    ASSERT_TRUE(wnd.create(WS_OVERLAPPEDWINDOW));
    ASSERT_FALSE(wnd.messages.empty());
    EXPECT_EQ(wnd.messages.front(), static_cast<UINT>(WM_GETMINMAXINFO));
    EXPECT_EQ(std::count(wnd.attached.begin(), wnd.attached.end(), false), 0);
}

TEST(Creation, PreCreateWindowMayChangeEverything)
{
    class Changed : public Hidden<>
    {
    protected:
        BOOL PreCreateWindow(CREATESTRUCT& cs) override
        {
            cs.style |= WS_CAPTION;
            cs.dwExStyle |= WS_EX_TOOLWINDOW;
            cs.lpszName = L"changed";
            cs.x = 77;
            cs.cx = 133;
            return CWnd::PreCreateWindow(cs);
        }
    } wnd;
    ASSERT_TRUE(wnd.create());
    CString title;
    wnd.GetWindowText(title);
    CRect place;
    wnd.GetWindowRect(&place);
    EXPECT_STREQ(title, L"changed");
    EXPECT_EQ(place.left, 77);
    EXPECT_EQ(place.Width(), 133);
    EXPECT_EQ(wnd.GetStyle() & WS_CAPTION, static_cast<DWORD>(WS_CAPTION));
    EXPECT_EQ(wnd.GetExStyle() & WS_EX_TOOLWINDOW, static_cast<DWORD>(WS_EX_TOOLWINDOW));
}

TEST(Creation, PreCreateWindowMayForbidIt)
{
    class Forbidden : public Ended
    {
    protected:
        BOOL PreCreateWindow(CREATESTRUCT&) override { return FALSE; }
    } wnd;
    const WindowCounter windows;
    EXPECT_FALSE(wnd.create());
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(wnd.ended, 1);
    EXPECT_EQ(windows.grown(), 0);
}

TEST(Creation, WithoutAClassNameTheWindowGetsOne)
{
    Hidden<> wnd;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_NE(::GetClassLongPtrW(wnd, GCLP_HCURSOR), 0u);
    EXPECT_TRUE(::GetClassLongPtrW(wnd, GCL_STYLE) & CS_DBLCLKS);
}

TEST(Creation, RefusedAtTheVeryFirstStepLeavesNothing)
{
    class Refusing : public Ended
    {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_NCCREATE ? FALSE : CWnd::WindowProc(message, wParam, lParam);
        }
    } wnd;
    const WindowCounter windows;
    EXPECT_FALSE(wnd.create());
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(wnd.ended, 1);
    EXPECT_EQ(windows.grown(), 0);
}

TEST(Creation, AChildMadeWhileItsParentIsMadeHasItsOwnObject)
{
    class Parent : public Hidden<>
    {
    public:
        Watching child;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            EXPECT_EQ(FromHandlePermanent(m_hWnd), this) << "message " << message;
            if (message == WM_CREATE) {
                EXPECT_TRUE(child.createChild(*this, 5));
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } parent;
    ASSERT_TRUE(parent.create());
    EXPECT_EQ(parent.GetDlgItem(5), &parent.child);
    EXPECT_EQ(CWnd::FromHandle(parent.m_hWnd), &parent);
}

TEST(Creation, AFailedChildDoesNotDisturbItsParentsCreation)
{
    class Parent : public Hidden<>
    {
    public:
        Ended child;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_CREATE) {
                EXPECT_FALSE(child.CreateEx(0, L"no such class", L"", WS_CHILD, CRect(0, 0, 9, 9), this, 5));
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } parent;
    ASSERT_TRUE(parent.create());
    EXPECT_EQ(parent.child.ended, 1);
    // The window that is created next has no object.
    const PlainWindow plain;
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_EQ(parent.child.m_hWnd, nullptr);
}

TEST(Creation, TheInnerWindowsOfAComboBoxAreNotTakenForIt)
{
    Hidden<> parent;
    parent.create();
    Hidden<CComboBox> box;
    ASSERT_TRUE(box.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 90, 100), &parent, 9));
    wchar_t name[32]{};
    ::GetClassNameW(box, name, 32);
    EXPECT_STREQ(name, L"ComboBox");
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetComboBoxInfo(box, &info));
    EXPECT_EQ(CWnd::FromHandlePermanent(info.hwndItem), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(info.hwndList), nullptr);
}

TEST(Creation, AnInputMethodsWindowThatComesInBetweenIsLeftAlone)
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &::DefWindowProcW;
    windowClass.hInstance = ::GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"IME";
    const bool ours = ::RegisterClassW(&windowClass) != 0; // it may be there already, from the system

    Hidden<> wnd;
    AfxHookWindowCreate(&wnd);
    const HWND side = ::CreateWindowExW(0, L"IME", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    const HWND wanted =
        ::CreateWindowExW(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(wnd.m_hWnd, wanted);
    EXPECT_FALSE(AfxUnhookWindowCreate());
    ASSERT_NE(side, nullptr);
    ::DestroyWindow(side);
    if (ours)
        ::UnregisterClassW(L"IME", windowClass.hInstance);
}

TEST(Creation, OnlyTheNextWindowIsTaken)
{
    Hidden<> wnd;
    AfxHookWindowCreate(&wnd);
    const auto make = [] {
        return ::CreateWindowExW(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr,
                                 nullptr);
    };
    const HWND first = make();
    const HWND second = make();
    EXPECT_FALSE(AfxUnhookWindowCreate());
    EXPECT_EQ(wnd.m_hWnd, first);
    EXPECT_EQ(CWnd::FromHandlePermanent(second), nullptr);
    ::DestroyWindow(second);
}

TEST(Creation, AnExceptionOnTheWayLeavesNoWindow)
{
    // The system lets the creation go on after most of these.
    for (const UINT message : {WM_NCCREATE, WM_NCCALCSIZE, WM_CREATE, WM_SIZE, WM_SHOWWINDOW}) {
        class Throwing : public Ended
        {
        public:
            UINT from = 0;

        protected:
            LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
            {
                if (message == std::exchange(from, message == from ? 0 : from))
                    throw Oak();
                return CWnd::WindowProc(message, wParam, lParam);
            }
        } wnd;
        const WindowCounter windows;
        wnd.from = message;
        EXPECT_THROW(wnd.create(WS_OVERLAPPEDWINDOW | WS_VISIBLE), Oak) << message;
        EXPECT_EQ(wnd.m_hWnd, nullptr) << message;
        EXPECT_EQ(wnd.ended, 1) << message;
        EXPECT_EQ(windows.grown(), 0) << message;
    }
}

TEST(Creation, AnExceptionOutOfPreSubclassWindowLeavesNoWindow)
{
    class Throwing : public Ended
    {
    protected:
        void PreSubclassWindow() override { throw Oak(); }
    } wnd;
    const WindowCounter windows;
    EXPECT_THROW(wnd.create(), Oak);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(wnd.ended, 1);
    EXPECT_EQ(windows.grown(), 0);
}

TEST(Creation, AThousandWindowsLeaveNothingBehind)
{
    const WindowCounter windows;
    for (int i = 0; i < 1000; ++i) {
        Hidden<> wnd;
        ASSERT_TRUE(wnd.create());
    }
    EXPECT_EQ(windows.grown(), 0);
}
