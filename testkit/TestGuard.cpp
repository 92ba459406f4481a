#include "TestGuard.h"
#include "GuiThread.h"
#include "TestApp.h"

namespace ovo::testkit
{

namespace
{

BOOL CALLBACK collectShown(HWND window, LPARAM windows)
{
    if (::IsWindowVisible(window))
        reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

} // namespace

void TestGuard::OnTestStart(const ::testing::TestInfo&)
{
    if (auto* const app = dynamic_cast<TestApp*>(AfxGetApp())) // not the host's own application
        app->forget();
    GuiThread::tookQuit();
    m_watchdog.begin();
}

void TestGuard::OnTestEnd(const ::testing::TestInfo&)
{
    GuiThread::settle();
    closeLeftWindows();
    m_watchdog.end();
}

// What one test leaves open would take the next one's input.
void TestGuard::closeLeftWindows()
{
    std::vector<HWND> windows;
    ::EnumThreadWindows(::GetCurrentThreadId(), collectShown, reinterpret_cast<LPARAM>(&windows));
    for (const HWND window : windows) {
        wchar_t text[64] = L"";
        ::InternalGetWindowText(window, text, static_cast<int>(std::size(text)));
        ADD_FAILURE() << "the test left a window open: " << ::testing::PrintToString(std::wstring{text});
        ::DestroyWindow(window);
    }
}

} // namespace ovo::testkit
