#include "Snapshot.h"
#include "Picture.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>

namespace ovo::testkit
{

namespace
{

std::string utf8(std::wstring_view text)
{
    const int length = static_cast<int>(text.size());
    std::string result(static_cast<size_t>(::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0,
                                                                 nullptr, nullptr)),
                       '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), static_cast<int>(result.size()),
                          nullptr, nullptr);
    return result;
}

void describe(std::ostream& out, HWND window, int depth)
{
    wchar_t name[64] = L"";
    ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
    // Unlike GetWindowText this sends no message, which a stuck window would not answer.
    wchar_t text[128] = L"";
    ::InternalGetWindowText(window, text, static_cast<int>(std::size(text)));
    CRect rect;
    ::GetWindowRect(window, &rect);
    out << std::string(static_cast<size_t>(depth) * 2, ' ') << window << ' ' << utf8(name) << " \""
        << utf8(text) << "\" id " << ::GetDlgCtrlID(window) << " at " << rect.left << ',' << rect.top << ' '
        << rect.Width() << 'x' << rect.Height() << (::IsWindowVisible(window) ? "" : " hidden")
        << (::IsWindowEnabled(window) ? "" : " disabled") << '\n';
    for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        describe(out, child, depth + 1);
}

BOOL CALLBACK describeOwn(HWND window, LPARAM stream)
{
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process == ::GetCurrentProcessId())
        describe(*reinterpret_cast<std::ostream*>(stream), window, 1);
    return TRUE;
}

std::wstring failuresFolder()
{
    wchar_t path[MAX_PATH] = L"";
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring folder{path};
    for (int i = 0; i < 2; ++i)
        folder.erase(folder.find_last_of(L"\\/"));
    folder += L"\\failures";
    ::CreateDirectoryW(folder.c_str(), nullptr);
    return folder;
}

std::wstring testName()
{
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = test ? std::string{test->test_suite_name()} + "." + test->name() : "no test";
    std::replace(name.begin(), name.end(), '/', '-');
    return {name.begin(), name.end()};
}

} // namespace

std::string describeWindows()
{
    std::ostringstream out;
    out << "windows:\n";
    ::EnumWindows(describeOwn, reinterpret_cast<LPARAM>(static_cast<std::ostream*>(&out)));
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    if (::GetGUIThreadInfo(0, &info))
        out << "active " << info.hwndActive << " focus " << info.hwndFocus << " capture " << info.hwndCapture
            << " menu owner " << info.hwndMenuOwner << " flags " << info.flags << '\n';
    return out.str();
}

void takeSnapshot(const std::string& reason)
{
    const std::wstring stem = failuresFolder() + L"\\" + testName();
    const std::string text = reason + '\n' + describeWindows();
    if (FILE* file = ::_wfopen((stem + L".txt").c_str(), L"wb")) {
        std::fputs(text.c_str(), file);
        std::fclose(file);
    }
    std::fputs(text.c_str(), stderr);
    const bool pictured = Picture::ofScreen().savePng(stem + L".png");
    std::fprintf(stderr, "%s\n", pictured ? "the screen is pictured in the folder failures" : "no picture");
    std::fflush(stderr);
}

} // namespace ovo::testkit
