// What the tests of the examples share.
#pragma once

#include <testkit/Picture.h>
#include <testkit/RunningProgram.h>

#include <ovocor/TextReader.h>

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <iterator>
#include <string>
#include <vector>

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

/// The file dialog that the program is about to open, once it can be typed into. It is the system's, so it is
/// known by its owner, and ready once the keyboard is in a field of it.
inline HWND openedFileDialog(ovo::testkit::RunningProgram& program)
{
    HWND dialog = nullptr;
    program.waitFor("the file dialog", [&] {
        GUITHREADINFO thread{};
        thread.cbSize = sizeof thread;
        wchar_t focused[16]{};
        dialog = ::GetForegroundWindow();
        return dialog != program.main() && ::GetWindow(dialog, GW_OWNER) == program.main() &&
               ::GetGUIThreadInfo(::GetWindowThreadProcessId(dialog, nullptr), &thread) &&
               ::IsChild(dialog, thread.hwndFocus) &&
               ::GetClassNameW(thread.hwndFocus, focused, static_cast<int>(std::size(focused))) != 0 &&
               ::lstrcmpiW(focused, L"Edit") == 0;
    });
    return dialog;
}

/// Types `path` into the file dialog that the program is about to open, and presses Enter. The program goes
/// on afterwards.
inline void answerFileDialog(ovo::testkit::RunningProgram& program, const std::wstring& path)
{
    const HWND dialog = openedFileDialog(program);
    program.type(path);
    program.key(VK_RETURN);
    program.waitFor("the end of the file dialog", [&] { return !::IsWindow(dialog); });
    program.waitFor("the program to go on", [&] { return ::IsWindowEnabled(program.main()) != FALSE; });
}

/// Whether a file is there in which nobody writes any more.
inline bool isWritten(const std::wstring& path)
{
    const HANDLE file =
        ::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    LARGE_INTEGER size{};
    const bool written = ::GetFileSizeEx(file, &size) && size.QuadPart > 0;
    ::CloseHandle(file);
    return written;
}

/// The lines of a file that the program saves, once they are there.
inline std::vector<std::wstring> savedLines(ovo::testkit::RunningProgram& program, const std::wstring& path)
{
    program.waitFor("the file", [&] { return isWritten(path); });
    std::vector<std::wstring> lines;
    OVO::TextReader reader(path);
    for (std::wstring line; reader.readLine(line);)
        lines.push_back(line);
    return lines;
}

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
