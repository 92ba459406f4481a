#include "TestGuard.h"
#include "GuiThread.h"
#include "TestApp.h"
#include "detail/Thrown.h"

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
    handleLeftMessages();
    closeLeftWindows();
    m_watchdog.end();
}

// What a handler throws now would end the program before the other tests have run.
void TestGuard::handleLeftMessages()
{
    try {
        GuiThread::settle();
    } catch (...) {
        ADD_FAILURE() << "a message that the test left was answered by an exception: "
                      << thrownText(std::current_exception());
    }
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
