// What the tests of the examples share.
#pragma once

#include <testkit/Picture.h>
#include <testkit/RunningProgram.h>

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

/// An example that runs, without settings of earlier runs.
class Example : public ::testing::Test
{
protected:
    Example() { forget(); }
    ~Example() override { forget(); }

    static void forget() { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ovoui examples"); }

    static int ask(HWND window, UINT message, WPARAM wParam = 0)
    {
        return static_cast<int>(::SendMessageW(window, message, wParam, 0));
    }
};

/// What the screen shows of a window.
inline ovo::testkit::Picture seen(HWND window)
{
    using namespace ovo::testkit;
    const CRect place = rectOf(window);
    const Picture screen = Picture::ofScreen();
    Picture picture{place.Width(), place.Height()};
    ::BitBlt(picture.dc(), 0, 0, place.Width(), place.Height(), screen.dc(), place.left, place.top, SRCCOPY);
    return picture;
}

/// Writes that as a file when the environment variable OVO_PICTURES names a folder: for the documentation.
inline void shoot(HWND window, const std::wstring& name)
{
    const wchar_t* const folder = ::_wgetenv(L"OVO_PICTURES");
    if (folder) {
        ::Sleep(500); // until the display shows what was painted; tests do not wait like this
        EXPECT_TRUE(seen(window).savePng(std::wstring(folder) + L"\\" + name + L".png"));
    }
}
