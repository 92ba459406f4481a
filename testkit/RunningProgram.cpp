#include "RunningProgram.h"
#include "detail/Display.h"
#include "detail/UnderWine.h"

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <thread>

using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace ovo::testkit
{

namespace
{

constexpr UINT kAnswerLimit = 5000;    // milliseconds
constexpr auto kUntilTryingAgain = 1s; // of a user
constexpr int kStartAttempts = 5;
constexpr COLORREF kBareScreen = RGB(0, 0, 0); // the display's, where no window is

fs::path folderOfTests()
{
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

/// Starts a process. A loaded machine refuses this now and then, so it is tried a few times; the tests are
/// not about the start of processes.
PROCESS_INFORMATION started(std::wstring commandLine, const fs::path& folder)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    DWORD error = 0;
    for (int attempt = 0; attempt < kStartAttempts; ++attempt) {
        PROCESS_INFORMATION process{};
        if (::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(),
                             &startup, &process))
            return process;
        error = ::GetLastError();
        std::printf("the program was not started, error %lu\n", error);
        std::this_thread::sleep_for(200ms);
    }
    throw std::runtime_error("the program cannot be started, error " + std::to_string(error));
}

std::wstring classOf(HWND wnd)
{
    wchar_t name[128]{};
    ::GetClassNameW(wnd, name, static_cast<int>(std::size(name)));
    return name;
}

/// Which window the user would type into, for one who reads why a test failed.
std::string inFront()
{
    const HWND wnd = ::GetForegroundWindow();
    if (!wnd)
        return "no window is in front";
    std::string words = "\"" + fs::path(textOf(wnd)).string() + "\" is in front";
    if (!::IsWindowEnabled(wnd))
        words += ", disabled";
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    if (::GetGUIThreadInfo(::GetWindowThreadProcessId(wnd, nullptr), &thread) && thread.hwndFocus)
        words += ", and the keyboard at " + fs::path(classOf(thread.hwndFocus)).string() + " " +
                 std::to_string(::GetDlgCtrlID(thread.hwndFocus));
    return words;
}

/// Whether the display still has to do, in its own time, what a window at a point asks for by being `shown`
/// or gone. That is so under Wine alone; on Windows the screen may be black in a window and is not without.
bool isBehind(CPoint screen, bool shown)
{
    return runsUnderWine() && (colourAt(screen) == kBareScreen) == shown;
}

/// Neither it nor a window that it is part of is disabled or hidden.
bool takesInput(HWND wnd)
{
    for (HWND part = wnd; part; part = ::GetAncestor(part, GA_PARENT))
        if (!::IsWindowEnabled(part))
            return false;
    return ::IsWindowVisible(wnd) != FALSE;
}

} // namespace

RunningProgram::RunningProgram(const std::wstring& name, const std::wstring& arguments)
{
    const fs::path program = folderOfTests() / (name + L".exe");
    std::wstring commandLine = L"\"" + program.wstring() + L"\" " + arguments;
    m_process = started(commandLine, program.parent_path());
    try {
        waitFor("the program's main window", [this] {
            const std::vector<HWND> shown = shownWindows();
            m_main = shown.empty() ? nullptr : shown.back();
            return m_main != nullptr;
        });
        comeToTheFront();
    } catch (...) {
        end();
        throw;
    }
}

RunningProgram::~RunningProgram()
{
    end();
    leaveABareScreen();
}

void RunningProgram::end()
{
    m_input.releaseAll();
    if (::WaitForSingleObject(m_process.hProcess, 0) != WAIT_OBJECT_0) {
        ::TerminateProcess(m_process.hProcess, 99);
        ::WaitForSingleObject(m_process.hProcess, INFINITE);
    }
    ::CloseHandle(m_process.hThread);
    ::CloseHandle(m_process.hProcess);
}

/// The next program must not be taken for shown because of what the display has not taken away yet.
void RunningProgram::leaveABareScreen() const
{
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (isBehind(m_place, false) && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(5ms);
}

/// Waits until the program is in front, seen on the screen, and has dealt with what the display told it about
/// that. Wine raises a window once it learns that it is shown: above a menu, should one have been opened
/// before.
void RunningProgram::comeToTheFront()
{
    if (!isInFront())
        ::SetForegroundWindow(m_main);
    waitFor("the program to come to the front", [this] { return isInFront() && isActive(); });
    m_place = rectOf(m_main).TopLeft() + CSize(5, 5);
    waitFor("the window to be seen", [this] { return !isBehind(m_place, true); });
    letCatchUp();
}

/// Lets the program deal with what the display has told it: it does so before it looks for messages.
void RunningProgram::letCatchUp() const
{
    for (int i = 0; i < 2; ++i) {
        DWORD_PTR ignored = 0;
        ::SendMessageTimeoutW(m_main, WM_NULL, 0, 0, SMTO_NORMAL, kAnswerLimit, &ignored);
    }
}

/// Under Wine the display tells a window, in its own time, that it has got the pointer or the keyboard, and
/// that nothing is held on that. Wine then takes the pointer there, lets go of the modifiers, so that Alt+C
/// becomes C, and cancels what the mouse was about. That has happened when this returns.
void RunningProgram::awaitWordOfDisplay() const
{
    letCatchUp();
    awaitDisplay();
    letCatchUp();
}

// Windows

std::vector<HWND> RunningProgram::shownWindows() const
{
    std::vector<HWND> windows;
    for (HWND wnd = ::GetTopWindow(nullptr); wnd; wnd = ::GetWindow(wnd, GW_HWNDNEXT)) {
        DWORD process = 0;
        ::GetWindowThreadProcessId(wnd, &process);
        if (process == m_process.dwProcessId && ::IsWindowVisible(wnd))
            windows.push_back(wnd);
    }
    return windows;
}

bool RunningProgram::shows(const std::wstring& title) const
{
    for (const HWND wnd : shownWindows())
        if (textOf(wnd) == title)
            return true;
    return false;
}

HWND RunningProgram::window(const std::wstring& title, Limit limit)
{
    HWND found = nullptr;
    const auto find = [&] {
        for (const HWND wnd : shownWindows())
            if (textOf(wnd) == title && ::IsWindowEnabled(wnd) && ::GetForegroundWindow() == wnd)
                found = wnd;
        return found != nullptr;
    };
    waitFor("the window \"" + fs::path(title).string() + "\"", find, limit);
    return found;
}

HWND RunningProgram::shown(const std::wstring& windowClass) const
{
    for (const HWND wnd : shownWindows())
        if (classOf(wnd) == windowClass)
            return wnd;
    return nullptr;
}

HWND RunningProgram::child(HWND parent, const std::wstring& windowClass) const
{
    for (HWND wnd = ::GetWindow(parent, GW_CHILD); wnd; wnd = ::GetWindow(wnd, GW_HWNDNEXT)) {
        if (classOf(wnd) == windowClass)
            return wnd;
        if (const HWND below = child(wnd, windowClass))
            return below;
    }
    return nullptr;
}

bool RunningProgram::isInFront() const
{
    DWORD process = 0;
    ::GetWindowThreadProcessId(::GetForegroundWindow(), &process);
    return process == m_process.dwProcessId;
}

/// Whether its own thread knows that it is active.
bool RunningProgram::isActive() const
{
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(::GetWindowThreadProcessId(m_main, nullptr), &info) && info.hwndActive;
}

bool RunningProgram::canClick(HWND wnd) const
{
    return takesInput(wnd) && isInFront();
}

// Input

/// The display tells the program of each movement in its own time, and the program takes the pointer there
/// once more: to a place that it has left, where that comes late.
void RunningProgram::moveTo(CPoint screen)
{
    const auto isThere = [screen] {
        CPoint point;
        ::GetCursorPos(&point);
        return point == screen;
    };
    waitFor("the pointer to stay", [&] {
        m_input.moveTo(screen);
        awaitWordOfDisplay();
        return isThere();
    });
}

void RunningProgram::clickAt(CPoint screen, Button button)
{
    moveTo(screen);
    m_input.click(button);
}

void RunningProgram::click(HWND wnd, Button button)
{
    waitFor("the window to be enabled", [=, this] { return canClick(wnd); });
    clickAt(rectOf(wnd).CenterPoint(), button);
}

bool RunningProgram::clickNow(HWND wnd, Button button)
{
    if (!canClick(wnd))
        return false;
    clickAt(rectOf(wnd).CenterPoint(), button);
    return true;
}

void RunningProgram::click(HWND wnd, CPoint client, Button button)
{
    waitFor("the window to be shown", [wnd] { return ::IsWindowVisible(wnd) != FALSE; });
    ::ClientToScreen(wnd, &client);
    clickAt(client, button);
}

void RunningProgram::drag(HWND wnd, const std::vector<CPoint>& way, Button button)
{
    waitFor("the window to be shown", [wnd] { return ::IsWindowVisible(wnd) != FALSE; });
    for (std::size_t i = 0; i < way.size(); ++i) {
        CPoint screen = way[i];
        ::ClientToScreen(wnd, &screen);
        moveTo(screen);
        if (i == 0)
            m_input.press(button);
    }
    m_input.release(button);
}

void RunningProgram::key(WORD virtualKey, int times)
{
    waitFor("the program to be in front", [this] { return isInFront(); });
    for (int i = 0; i < times; ++i) {
        m_input.keyDown(virtualKey);
        m_input.keyUp(virtualKey);
    }
}

void RunningProgram::chord(WORD held, WORD virtualKey)
{
    chord(std::vector{held}, virtualKey);
}

void RunningProgram::chord(const std::vector<WORD>& held, WORD virtualKey)
{
    waitFor("the program to be in front", [this] { return isInFront(); });
    awaitWordOfDisplay();
    m_input.chord(held, virtualKey);
}

void RunningProgram::type(const std::wstring& text)
{
    waitFor("the program to be in front", [this] { return isInFront(); });
    for (const wchar_t character : text)
        m_input.character(character);
}

void RunningProgram::waitFor(const std::string& what, const std::function<bool()>& condition, Limit limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            throw std::runtime_error("waited in vain for " + what + "; " + inFront());
        std::this_thread::sleep_for(5ms);
    }
}

void RunningProgram::tryUntil(const std::string& what, const std::function<void()>& act,
                              const std::function<bool()>& condition, Limit limit)
{
    auto next = std::chrono::steady_clock::now();
    const auto actInTime = [&] {
        if (condition())
            return true;
        if (std::chrono::steady_clock::now() >= next) {
            act();
            next = std::chrono::steady_clock::now() + kUntilTryingAgain;
        }
        return false;
    };
    waitFor(what, actInTime, limit);
}

void RunningProgram::closeByKeys()
{
    const auto ended = [this] { return ::WaitForSingleObject(m_process.hProcess, 0) == WAIT_OBJECT_0; };
    const auto pressOrRaise = [this] {
        if (isInFront())
            m_input.chord({VK_MENU}, VK_F4);
        else
            ::SetForegroundWindow(m_main);
    };
    tryUntil("the program to end", pressOrRaise, ended);
}

DWORD RunningProgram::waitForEnd()
{
    waitFor("the program to end",
            [this] { return ::WaitForSingleObject(m_process.hProcess, 0) == WAIT_OBJECT_0; });
    DWORD code = 0;
    ::GetExitCodeProcess(m_process.hProcess, &code);
    return code;
}

// Looking

std::wstring textOf(HWND wnd)
{
    wchar_t text[2048]{};
    DWORD_PTR length = 0;
    if (!::SendMessageTimeoutW(wnd, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text), SMTO_NORMAL,
                               kAnswerLimit, &length))
        return {};
    return text;
}

std::wstring textOf(HWND dialog, int id)
{
    return textOf(::GetDlgItem(dialog, id));
}

CRect rectOf(HWND wnd)
{
    CRect rect;
    ::GetWindowRect(wnd, &rect);
    return rect;
}

COLORREF colourAt(HWND wnd, CPoint client)
{
    ::ClientToScreen(wnd, &client);
    return colourAt(client);
}

COLORREF colourAt(CPoint point)
{
    const HDC screen = ::GetDC(nullptr);
    const COLORREF colour = ::GetPixel(screen, point.x, point.y);
    ::ReleaseDC(nullptr, screen);
    return colour;
}

} // namespace ovo::testkit
