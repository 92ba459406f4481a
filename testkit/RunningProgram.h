#pragma once

#include "Input.h"

#include <afxwin.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace ovo::testkit
{

/// Starts a program, and acts as its user: with real input, looking at its windows. What is waited for in
/// vain is thrown as std::runtime_error. The program is ended at the latest with this object.
class RunningProgram
{
public:
    /// How long something is waited for.
    using Limit = std::chrono::milliseconds;
    static constexpr Limit kPatience{20000}; ///< unless a test says otherwise

    /// `name`: the file beside the tests, or the path of another one, without its ending. `arguments` stand
    /// behind it on the command line. Waits until the program shows its main window.
    explicit RunningProgram(const std::wstring& name, const std::wstring& arguments = L"");
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    // Windows
    /// The program's main window, as it was first shown.
    HWND main() const { return m_main; }
    /// The shown window with this title, once there is one and it can be used. Throws when there is none
    /// within `limit`.
    HWND window(const std::wstring& title, Limit limit = kPatience);
    /// The shown window of the class `windowClass`, or null.
    HWND shown(const std::wstring& windowClass) const;
    /// Whether a shown window has this `title`.
    bool shows(const std::wstring& title) const;
    /// The control of the class `windowClass` below `parent`, at whatever depth.
    HWND child(HWND parent, const std::wstring& windowClass) const;

    // Input
    /// Clicks with `button` into the middle of `wnd`, once it can be used and the program is in front.
    void click(HWND wnd, Button button = Button::Left);
    /// The same where it can be used at once; false, and nothing is done, where it cannot.
    bool clickNow(HWND wnd, Button button = Button::Left);
    /// Clicks with `button` at a point of the client area of `wnd`, `client`.
    void click(HWND wnd, CPoint client, Button button = Button::Left);
    /// Presses `button` at the first point of `way`, moves to the others in turn, and releases it at the
    /// last; they are in the client area of `wnd`.
    void drag(HWND wnd, const std::vector<CPoint>& way, Button button = Button::Left);
    /// Presses the key with the VK_ code `virtualKey`, so many `times`, once the program is in front.
    void key(WORD virtualKey, int times = 1);
    /// Presses `virtualKey` while `held` is down; both are VK_ codes.
    void chord(WORD held, WORD virtualKey);
    /// The same with several keys `held`.
    void chord(const std::vector<WORD>& held, WORD virtualKey);
    /// Types `text`, once the program is in front.
    void type(const std::wstring& text);

    /// Throws with the words of `what` and the window in front when the condition does not hold within
    /// `limit`.
    void waitFor(const std::string& what, const std::function<bool()>& condition, Limit limit = kPatience);
    /// Does `act`, and again as long as `condition` does not hold; throws as waitFor does, after `limit`. For
    /// what a late movement of the pointer, which the display reports in its own time, can undo.
    void tryUntil(const std::string& what, const std::function<void()>& act,
                  const std::function<bool()>& condition, Limit limit = kPatience);
    /// Alt+F4 until the program has ended.
    void closeByKeys();
    /// Waits until the program has ended; gives its exit code.
    DWORD waitForEnd();
    /// Waits until the program has ended; false when it crashed. The exit code of a program whose main window
    /// is a dialog is that of the last message, so it says no more than this.
    bool endsByItself() { return waitForEnd() < 0x10000; }

private:
    void end();
    std::vector<HWND> shownWindows() const;
    void comeToTheFront();
    void leaveABareScreen() const;
    void letCatchUp() const;
    void awaitWordOfDisplay() const;
    bool isInFront() const;
    bool isActive() const;
    bool canClick(HWND wnd) const;
    void moveTo(CPoint screen);
    void clickAt(CPoint screen, Button button);

    PROCESS_INFORMATION m_process{};
    HWND m_main = nullptr;
    CPoint m_place; ///< within the main window as it was first shown, in screen coordinates
    Input m_input;
};

/// The text of `wnd`, which may be another program's; empty when it does not answer.
std::wstring textOf(HWND wnd);
/// That of a control, `id`, of `dialog`.
std::wstring textOf(HWND dialog, int id);
/// The place of `wnd` on the screen.
CRect rectOf(HWND wnd);
/// The colour of the screen at a point of the client area of `wnd`, `client`.
COLORREF colourAt(HWND wnd, CPoint client);
/// The colour at a point, `screen`, of it.
COLORREF colourAt(CPoint screen);

} // namespace ovo::testkit
