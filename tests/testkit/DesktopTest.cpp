// What is on the desktop and on the clipboard.
#include <testkit/Clipboard.h>
#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>

#include <afxwin.h>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cstring>
#include <thread>

using namespace ovo::testkit;

namespace
{

/// A popup, hidden until it is shown.
class Popup : public CWnd
{
public:
    explicit Popup(const wchar_t* title)
    {
        CreateEx(0, AfxRegisterWndClass(0), title, WS_POPUP, CRect(50, 50, 150, 100), nullptr, 0);
    }
    ~Popup() override { DestroyWindow(); }
};

void putOnClipboard(const std::wstring& text)
{
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(::GlobalLock(memory), text.c_str(), size);
    ::GlobalUnlock(memory);
    ASSERT_TRUE(::OpenClipboard(nullptr));
    ::EmptyClipboard();
    ::SetClipboardData(CF_UNICODETEXT, memory);
    ::CloseClipboard();
}

} // namespace

TEST(Desktop, FindsTheWindowWithATitleOnlyWhileItIsShown)
{
    Popup popup(L"a window to find");
    EXPECT_EQ(shownWindow(L"a window to find"), nullptr) << "hidden";
    present(popup);
    EXPECT_EQ(shownWindow(L"a window to find"), popup.m_hWnd);
    EXPECT_EQ(shownWindow(L"a window to"), nullptr) << "another title";
    EXPECT_EQ(shownWindow(L"a window to find", L"#32770"), nullptr) << "of another class";
}

TEST(Desktop, LeavesOutWindowsOfOtherThreads)
{
    HWND other = nullptr;
    std::thread([&] {
        other = ::CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"of another thread", WS_POPUP | WS_VISIBLE, 0,
                                  0, 20, 20, nullptr, nullptr, nullptr, nullptr);
        EXPECT_EQ(shownWindow(L"of another thread"), other);
    }).join();
    EXPECT_NE(other, nullptr);
    EXPECT_EQ(shownWindow(L"of another thread"), nullptr);
}

TEST(Desktop, FindsTheDialogThatCanBeAnswered)
{
    EXPECT_EQ(shownDialog(), nullptr);
    const HWND dialog = ::CreateWindowExW(0, L"#32770", L"", WS_POPUP | WS_VISIBLE, 50, 50, 100, 60, nullptr,
                                          nullptr, nullptr, nullptr);
    EXPECT_EQ(shownDialog(), dialog);
    ::EnableWindow(dialog, FALSE);
    EXPECT_EQ(shownDialog(), nullptr) << "another one in front of it has to be answered";
    ::DestroyWindow(dialog);
    EXPECT_EQ(shownMenu(), nullptr);
}

TEST(Desktop, CannotPresentAWindowThatDoesNotExist)
{
    CWnd none;
    EXPECT_NONFATAL_FAILURE(present(none), "does not exist");
}

TEST(Clipboard, GivesTheTextThatIsOnIt)
{
    putOnClipboard(L"Loam, \x4E2D");
    EXPECT_EQ(clipboardText(), L"Loam, \x4E2D");
    emptyClipboard();
    EXPECT_EQ(clipboardText(), L"");
}

TEST(Clipboard, CannotBeEmptiedWhileAnotherHasItOpen)
{
    Popup owner(L"");
    putOnClipboard(L"kept");
    ASSERT_TRUE(::OpenClipboard(owner));
    EXPECT_EQ(clipboardText(), L"") << "nor read";
    EXPECT_FATAL_FAILURE(emptyClipboard(), "has the clipboard open");
    ::CloseClipboard();
    EXPECT_EQ(clipboardText(), L"kept");
    emptyClipboard();
}
