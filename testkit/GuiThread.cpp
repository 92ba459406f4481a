#include "GuiThread.h"
#include "detail/Display.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <future>
#include <map>
#include <mutex>

namespace ovo::testkit
{

namespace
{

constexpr UINT kAsk = WM_APP;
constexpr wchar_t kClassName[] = L"testkit questions";

struct Request
{
    std::function<void()> question;
    std::promise<void> outcome;
};

// Questions under way. A question that was given up is no longer here, so that a message which arrives late
// finds nothing to do.
std::mutex g_lock;
std::map<WPARAM, std::shared_ptr<Request>> g_requests;
WPARAM g_lastId = 0;

HWND g_window = nullptr;
bool g_tookQuit = false;

std::shared_ptr<Request> take(WPARAM id)
{
    const std::lock_guard guard{g_lock};
    const auto found = g_requests.find(id);
    if (found == g_requests.end())
        return nullptr;
    auto request = found->second;
    g_requests.erase(found);
    return request;
}

LRESULT CALLBACK answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kAsk)
        return ::DefWindowProcW(window, message, wParam, lParam);
    const auto request = take(wParam);
    if (!request)
        return 0;
    try {
        request->question();
        request->outcome.set_value();
    } catch (...) {
        request->outcome.set_exception(std::current_exception());
    }
    return 0;
}

void pump()
{
    if (!AfxGetThread()->PumpMessage())
        g_tookQuit = true;
}

bool messageWaits()
{
    MSG message;
    return ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE) != FALSE;
}

} // namespace

GuiThread::GuiThread()
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = answer;
    windowClass.hInstance = ::GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kClassName;
    ::RegisterClassW(&windowClass);
    g_window = ::CreateWindowExW(0, kClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                 windowClass.hInstance, nullptr);
}

GuiThread::~GuiThread()
{
    ::DestroyWindow(g_window);
    g_window = nullptr;
    ::UnregisterClassW(kClassName, ::GetModuleHandleW(nullptr));
}

bool GuiThread::runUntil(const std::function<bool()>& done, Limit limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    LONG idleCount = 0;
    bool idle = true;
    while (!done()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        if (messageWaits()) {
            pump();
            idle = true;
            idleCount = 0;
        } else if (idle) {
            idle = AfxGetThread()->OnIdle(idleCount++) != FALSE;
        } else {
            // Nothing to do: the condition is looked at again after the next message, or shortly.
            ::MsgWaitForMultipleObjectsEx(0, nullptr, 5, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        }
    }
    return true;
}

void GuiThread::settle(Limit limit)
{
    LONG idleCount = 0;
    const auto end = std::chrono::steady_clock::now() + limit;
    for (bool busy = true; busy;) {
        if (std::chrono::steady_clock::now() > end) {
            ADD_FAILURE() << "the windows do not come to rest";
            return;
        }
        if (messageWaits())
            pump();
        else
            busy = AfxGetThread()->OnIdle(idleCount++) != FALSE || messageWaits();
    }
}

void GuiThread::settleOnScreen()
{
    settle();
    awaitDisplay();
    settle();
}

bool GuiThread::tookQuit()
{
    return std::exchange(g_tookQuit, false);
}

void GuiThread::ask(const std::function<void()>& question, Limit limit)
{
    const auto request = std::make_shared<Request>();
    request->question = question;
    WPARAM id = 0;
    {
        const std::lock_guard guard{g_lock};
        id = ++g_lastId;
        g_requests[id] = request;
    }
    DWORD_PTR ignored = 0;
    ::SendMessageTimeoutW(g_window, kAsk, id, 0, SMTO_NORMAL, static_cast<UINT>(limit.count()), &ignored);
    if (take(id))
        throw Unanswered{};
    // It has been begun, so it is waited for: it works on what belongs to the caller.
    request->outcome.get_future().get();
}

// Under Wine a thread takes what the display tells it when it has no other message, so it is asked twice: the
// second question finds it past that.
void GuiThread::catchUp()
{
    const auto askTwice = [] {
        for (int i = 0; i < 2; ++i)
            ask([] {});
    };
    askTwice();
    awaitDisplay();
    askTwice();
}

} // namespace ovo::testkit
