// Window classes that the framework registers.
#include "Texts.h"

#include <afxwin.h>

namespace
{

class CProbeWnd : public CWnd
{
public:
    int messages = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        ++messages;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

WNDCLASSW registered(LPCWSTR name)
{
    WNDCLASSW wndClass{};
    EXPECT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), name, &wndClass));
    return wndClass;
}

} // namespace

TEST(WndClasses, HaveWhatWasAskedFor)
{
    const HCURSOR cursor = ::LoadCursorW(nullptr, IDC_CROSS);
    const HICON icon = ::LoadIconW(nullptr, IDI_QUESTION);
    const auto brush = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    const CString name = AfxRegisterWndClass(CS_DBLCLKS | CS_VREDRAW, cursor, brush, icon);
    const WNDCLASSW wndClass = registered(name);
    EXPECT_EQ(wndClass.style, UINT{CS_DBLCLKS | CS_VREDRAW});
    EXPECT_EQ(wndClass.hCursor, cursor);
    EXPECT_EQ(wndClass.hIcon, icon);
    EXPECT_EQ(wndClass.hbrBackground, brush);
}

TEST(WndClasses, HaveTheArrowAndNoBackgroundUnlessToldOtherwise)
{
    const WNDCLASSW wndClass = registered(AfxRegisterWndClass(0));
    EXPECT_EQ(wndClass.style, UINT{CS_DBLCLKS});
    EXPECT_EQ(wndClass.hCursor, ::LoadCursorW(nullptr, IDC_ARROW));
    EXPECT_EQ(wndClass.hIcon, ::LoadIconW(nullptr, IDI_APPLICATION));
    EXPECT_EQ(wndClass.hbrBackground, nullptr);
}

TEST(WndClasses, EqualArgumentsGiveTheSameClassAndOthersAnother)
{
    const HCURSOR cursor = ::LoadCursorW(nullptr, IDC_ARROW);
    const CString plain = AfxRegisterWndClass(CS_DBLCLKS);
    const CString withCursor = AfxRegisterWndClass(CS_DBLCLKS, cursor);
    const CString otherStyle = AfxRegisterWndClass(0, cursor);
    const CString withBrush = AfxRegisterWndClass(0, cursor, reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    const CString withIcon = AfxRegisterWndClass(0, cursor, nullptr, ::LoadIconW(nullptr, IDI_HAND));
    const CString* const names[] = {&plain, &withCursor, &otherStyle, &withBrush, &withIcon};
    for (const CString* one : names)
        EXPECT_EQ(std::count_if(std::begin(names), std::end(names),
                                [&](const CString* other) { return *other == *one; }),
                  1);
    EXPECT_EQ(AfxRegisterWndClass(CS_DBLCLKS), plain);
    EXPECT_EQ(AfxRegisterWndClass(0, cursor), otherStyle);
}

TEST(WndClasses, MakeWindowsThatTheFrameworkHandles)
{
    CProbeWnd window;
    ASSERT_TRUE(
        window.CreateEx(0, AfxRegisterWndClass(0), L"probe", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    EXPECT_GT(window.messages, 0);
    const int before = window.messages;
    window.SendMessage(WM_NULL);
    EXPECT_EQ(window.messages, before + 1);
}

TEST(WndClasses, MakePlainWindowsToo)
{
    const HWND window = ::CreateWindowExW(0, AfxRegisterWndClass(0), L"title", WS_POPUP, 0, 0, 10, 10,
                                          nullptr, nullptr, AfxGetInstanceHandle(), nullptr);
    ASSERT_NE(window, nullptr);
    wchar_t text[16];
    EXPECT_EQ(::GetWindowTextW(window, text, 16), 5);
    {
        CProbeWnd object;
        ASSERT_TRUE(object.SubclassWindow(window));
        object.SendMessage(WM_NULL);
        EXPECT_EQ(object.messages, 1);
        object.UnsubclassWindow();
    }
    ::DestroyWindow(window);
}

TEST(WndClasses, OfANameOfTheirOwnAreRegisteredOnce)
{
    WNDCLASSW wndClass{};
    wndClass.lpfnWndProc = &::DefWindowProcW;
    wndClass.hInstance = AfxGetInstanceHandle();
    wndClass.lpszClassName = L"ovoui test class";
    EXPECT_TRUE(AfxRegisterClass(&wndClass));
    EXPECT_TRUE(AfxRegisterClass(&wndClass)) << "registered already";
    registered(wndClass.lpszClassName);
    ::UnregisterClassW(wndClass.lpszClassName, wndClass.hInstance);
}

TEST(WndClasses, AnImpossibleOneIsRefused)
{
    WNDCLASSW wndClass{};
    wndClass.lpfnWndProc = &::DefWindowProcW;
    wndClass.hInstance = AfxGetInstanceHandle();
    wndClass.lpszClassName = L"ovoui impossible class";
    wndClass.cbWndExtra = -1;
    EXPECT_FALSE(AfxRegisterClass(&wndClass));
    EXPECT_FALSE(::GetClassInfoW(wndClass.hInstance, wndClass.lpszClassName, &wndClass));
}
