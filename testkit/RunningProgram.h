#pragma once

#include "Input.h"

#include <afxwin.h>

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
    /// `name`: the file beside the tests, without its ending. Waits until the program shows its main window.
    explicit RunningProgram(const std::wstring& name, const std::wstring& arguments = L"");
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    // Windows
    HWND main() const { return m_main; }
    /// The shown window with this title, once there is one and it can be used.
    HWND window(const std::wstring& title);
    /// The shown window of this class, or null.
    HWND shown(const std::wstring& windowClass) const;
    bool shows(const std::wstring& title) const;
    /// The control below `parent`, at whatever depth.
    HWND child(HWND parent, const std::wstring& windowClass) const;

    // Input
    void click(HWND wnd, Button button = Button::Left);
    void click(HWND wnd, CPoint client, Button button = Button::Left);
    /// Presses at one point of a window's client area, moves to others in turn, and releases at the last.
    void drag(HWND wnd, const std::vector<CPoint>& way, Button button = Button::Left);
    void key(WORD virtualKey, int times = 1);
    void chord(WORD held, WORD virtualKey);
    void chord(const std::vector<WORD>& held, WORD virtualKey);
    void type(const std::wstring& text);

    void waitFor(const std::string& what, const std::function<bool()>& condition);
    /// Does something, and again as long as nothing comes of it. For what a late movement of the pointer,
    /// which the display reports in its own time, can undo.
    void tryUntil(const std::string& what, const std::function<void()>& act,
                  const std::function<bool()>& condition);
    /// Alt+F4 until the program has ended.
    void closeByKeys();
    /// Waits until the program has ended; gives its exit code.
    DWORD waitForEnd();
    /// Waits until the program has ended; false when it crashed. The exit code of a program whose main window
    /// is a dialog is that of the last message, so it says no more than this.
    bool endsByItself() { return waitForEnd() < 0x10000; }

private:
    std::vector<HWND> shownWindows() const;
    void comeToTheFront();
    void leaveABareScreen() const;
    bool isInFront() const;
    bool isActive() const;
    void moveTo(CPoint screen);
    void clickAt(CPoint screen, Button button);

    PROCESS_INFORMATION m_process{};
    HWND m_main = nullptr;
    CPoint m_place; ///< within the main window as it was first shown, in screen coordinates
    Input m_input;
};

/// What a window of any program says of itself.
std::wstring textOf(HWND wnd);
std::wstring textOf(HWND dialog, int id);
CRect rectOf(HWND wnd);
/// The colour of the screen at a point of a window's client area.
COLORREF colourAt(HWND wnd, CPoint client);
COLORREF colourAt(CPoint screen);

} // namespace ovo::testkit
