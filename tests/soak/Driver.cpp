#include "Driver.h"

#include "GalleryFrame.h"
#include "resource.h"
#include "support/WindowFacts.h"

#include <afxcmn.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <stdexcept>

namespace
{

constexpr UINT kStep = WM_APP + 1;
constexpr UINT_PTR kPause = 1;
constexpr UINT kPauseTime = 10; // milliseconds, in which timers and painting get their turn
constexpr int kPauseEvery = 40; // steps
constexpr int kStuck = 400;     // attempts to close what is open
constexpr size_t kStory = 40;
constexpr int kDearOnce = 12; ///< of so many presses on a button that is answered after seconds

std::wstring classOf(HWND wnd)
{
    const std::wstring name = support::classOf(wnd);
    // The framework's own names differ from run to run.
    return name.starts_with(L"Afx:") ? L"Afx" : name;
}

BOOL CALLBACK gather(HWND wnd, LPARAM found)
{
    if (::IsWindowVisible(wnd))
        reinterpret_cast<std::vector<HWND>*>(found)->push_back(wnd);
    return TRUE;
}

BOOL CALLBACK isOfTheShell(HWND wnd, LPARAM found)
{
    static const std::array<std::wstring, 3> kinds{L"SHELLDLL_DefView", L"ExplorerBrowserControl",
                                                   L"SHBrowseForFolder ShellNameSpace Control"};
    // Wine's dialog for folders has a plain tree with this number; `*` in it reads the whole disk.
    constexpr int kTreeOfFolders = 0x3741;
    const bool isTree = classOf(wnd) == L"SysTreeView32" && ::GetDlgCtrlID(wnd) == kTreeOfFolders;
    if (!isTree && std::find(kinds.begin(), kinds.end(), classOf(wnd)) == kinds.end())
        return TRUE;
    *reinterpret_cast<bool*>(found) = true;
    return FALSE;
}

/// The system's dialogs for files and folders show real ones, which Delete, F2 and a drag would change.
bool showsFiles(HWND top)
{
    bool found = false;
    ::EnumChildWindows(top, isOfTheShell, reinterpret_cast<LPARAM>(&found));
    return found;
}

LPARAM packed(CPoint point)
{
    return MAKELPARAM(static_cast<WORD>(point.x), static_cast<WORD>(point.y));
}

void setKey(WORD key, bool down)
{
    BYTE keys[256];
    if (!::GetKeyboardState(keys))
        return;
    keys[key] = down ? 0x80 : 0;
    ::SetKeyboardState(keys);
}

} // namespace

Driver::Driver(GalleryFrame& frame, unsigned seed, const std::wstring& onlyPage)
    : m_frame(frame)
    , m_random(seed)
{
    for (const PageEntry& entry : pageTable())
        if (onlyPage.empty() || entry.name == onlyPage)
            m_table.push_back(&entry);
    if (m_table.empty())
        throw std::invalid_argument("no page has this name");
    CreateEx(0, AfxRegisterWndClass(0), L"", 0, CRect(), CWnd::FromHandle(HWND_MESSAGE), 0);
}

Driver::~Driver()
{
    stop();
    DestroyWindow();
}

void Driver::begin(int steps)
{
    m_left = steps;
    m_closing = 0;
    m_active = true;
    openPage(); // the next one: a batch does not begin where all of them begin
    next();
}

void Driver::stop()
{
    m_active = false;
    KillTimer(kPause);
    for (const WORD key : {VK_SHIFT, VK_CONTROL})
        setKey(key, false);
}

std::string Driver::story() const
{
    const std::lock_guard guard{m_storyLock};
    std::string story = "the last inputs of " + std::to_string(m_done) + ":\n";
    for (const std::wstring& line : m_story)
        story += "  " + std::string(line.begin(), line.end()) + "\n";
    return story;
}

std::string Driver::lastInputs() const
{
    std::wstring inputs;
    for (size_t i = m_story.size() - std::min<size_t>(2, m_story.size()); i < m_story.size(); ++i)
        inputs += (inputs.empty() ? L"" : L"; ") + m_story[i];
    return {inputs.begin(), inputs.end()};
}

// Steps

void Driver::next()
{
    if (m_done % kPauseEvery == 0)
        SetTimer(kPause, kPauseTime, nullptr);
    else
        PostMessage(kStep);
}

LRESULT Driver::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == kStep || (message == WM_TIMER && wParam == kPause)) {
        KillTimer(kPause);
        if (m_active && m_left > 0)
            step();
        else if (m_active)
            close();
        return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

/// Only an input counts as a step. While there is nothing to aim at, such as a dialog that is about to be
/// shown, the driver waits.
void Driver::step()
{
    const HWND target = pickWindow();
    if (!target || cancelsFiles(::GetAncestor(target, GA_ROOT))) {
        SetTimer(kPause, kPauseTime, nullptr);
        return;
    }
    if (isDear(target) && !oneIn(kDearOnce)) {
        next();
        return;
    }
    if (beforeInput)
        beforeInput();
    --m_left;
    ++m_done;
    next(); // asked for first: this step may not return before a dialog is closed
    leaveSilentServer();
    if (::GetAncestor(target, GA_ROOT) != m_frame.m_hWnd)
        ++m_reach.modal;
    if (m_frame.openedPage())
        ++m_reach.pages[m_frame.openedPage()->name];
    ++m_reach.controls[classOf(target)];
    act(target);
}

void Driver::act(HWND target)
{
    const int chance = pick(1000);
    if (chance < 330)
        click(target);
    else if (chance < 400)
        drag(target);
    else if (chance < 440)
        turnWheel(target);
    else if (chance < 700)
        press(::GetFocus() ? ::GetFocus() : target);
    else if (chance < 780)
        type(::GetFocus() ? ::GetFocus() : target);
    else if (chance < 840)
        pushButton(target);
    else if (chance < 950)
        sendMessage(target);
    else if (chance < 962)
        repaint();
    else if (chance < 972)
        resize();
    else if (!m_frame.IsWindowEnabled())
        click(target);
    else if (chance < 978)
        showPose();
    else
        openPage();
}

/// Closes what is in front, however it is closed.
void Driver::close()
{
    if (++m_closing == kStuck && whenStuck)
        whenStuck();
    SetTimer(kPause, kPauseTime, nullptr); // again, for as long as the loop outside does not get its turn
    ::EndMenu();
    if (const HWND capture = ::GetCapture())
        ::PostMessageW(capture, WM_CANCELMODE, 0, 0);
    if (const HWND focus = ::GetFocus()) {
        ::PostMessageW(focus, WM_KEYDOWN, VK_ESCAPE, 1);
        ::PostMessageW(focus, WM_KEYUP, VK_ESCAPE, 0xC0000001);
    }
    for (const HWND wnd : openWindows())
        if (wnd != m_frame.m_hWnd && ::IsWindowEnabled(wnd))
            ::PostMessageW(wnd, classOf(wnd) == L"#32770" ? WM_COMMAND : WM_CLOSE,
                           classOf(wnd) == L"#32770" ? IDCANCEL : 0, 0);
}

/// Cancels a dialog that shows real files.
bool Driver::cancelsFiles(HWND top) const
{
    if (top == m_frame.m_hWnd || !showsFiles(top))
        return false;
    ::PostMessageW(top, WM_COMMAND, IDCANCEL, 0);
    return true;
}

/// Whether a press may open one of the system's file dialogs, which take a second each and are not what is
/// looked at.
bool Driver::isDear(HWND target) const
{
    if (!isOpen(L"files") && !isServerThat(L"A large list over a slow line"))
        return false;
    const HWND focus = ::GetFocus();
    return classOf(target) == L"Button" || (focus && classOf(focus) == L"Button");
}

bool Driver::isOpen(std::wstring_view page) const
{
    return m_frame.openedPage() && m_frame.openedPage()->name == page;
}

/// The list of what servers answer, on its page; null on others.
HWND Driver::servers() const
{
    return isOpen(L"updates") ? ::GetDlgItem(m_frame.page().GetSafeHwnd(), IDC_UPDATES_OUTCOME) : nullptr;
}

/// Whether updates are looked for at the server whose answer has this name.
bool Driver::isServerThat(const wchar_t* answer) const
{
    const HWND list = servers();
    const LRESULT place =
        ::SendMessageW(list, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(answer));
    return list && place != CB_ERR && ::SendMessageW(list, CB_GETCURSEL, 0, 0) == place;
}

/// A server that never answers is waited for by the system, three times half a minute.
void Driver::leaveSilentServer()
{
    if (!isServerThat(L"A server that never answers"))
        return;
    const HWND outcomes = servers();
    ::SendMessageW(outcomes, CB_SETCURSEL, 0, 0);
    m_frame.page().SendMessage(WM_COMMAND, MAKEWPARAM(IDC_UPDATES_OUTCOME, CBN_SELCHANGE),
                               reinterpret_cast<LPARAM>(outcomes));
}

// What the user does

void Driver::click(HWND target)
{
    note(L"click", target);
    const LPARAM at = packed(pickPoint(target));
    const bool right = oneIn(6);
    const UINT down = right ? WM_RBUTTONDOWN : WM_LBUTTONDOWN;
    const WPARAM keys = right ? MK_RBUTTON : MK_LBUTTON;
    ::PostMessageW(target, WM_MOUSEMOVE, 0, at);
    ::PostMessageW(target, down, keys, at);
    ::PostMessageW(target, right ? WM_RBUTTONUP : WM_LBUTTONUP, 0, at);
    if (oneIn(6)) {
        ::PostMessageW(target, right ? WM_RBUTTONDBLCLK : WM_LBUTTONDBLCLK, keys, at);
        ::PostMessageW(target, right ? WM_RBUTTONUP : WM_LBUTTONUP, 0, at);
    }
}

void Driver::drag(HWND target)
{
    note(L"drag", target);
    ::PostMessageW(target, WM_LBUTTONDOWN, MK_LBUTTON, packed(pickPoint(target)));
    for (int moves = 1 + pick(5); moves > 0; --moves)
        ::PostMessageW(target, WM_MOUSEMOVE, MK_LBUTTON, packed(pickPoint(target)));
    ::PostMessageW(target, WM_LBUTTONUP, 0, packed(pickPoint(target)));
}

void Driver::turnWheel(HWND target)
{
    note(L"wheel", target);
    CPoint at = pickPoint(target);
    ::ClientToScreen(target, &at);
    const short notches = static_cast<short>((oneIn(2) ? 1 : -1) * WHEEL_DELTA * (1 + pick(3)));
    ::PostMessageW(target, WM_MOUSEWHEEL, MAKEWPARAM(0, notches), packed(at));
}

void Driver::press(HWND target)
{
    static const WORD keys[] = {VK_LEFT,   VK_RIGHT,    VK_UP,      VK_DOWN, VK_HOME,   VK_END,    VK_PRIOR,
                                VK_NEXT,   VK_TAB,      VK_TAB,     VK_TAB,  VK_RETURN, VK_ESCAPE, VK_SPACE,
                                VK_F2,     VK_F3,       VK_F4,      VK_F5,   VK_APPS,   VK_DELETE, VK_BACK,
                                VK_INSERT, 'A',         'C',        'V',     'X',       'Z',       'Y',
                                VK_ADD,    VK_SUBTRACT, VK_MULTIPLY};
    note(L"key", target);
    setKey(VK_SHIFT, oneIn(4));
    setKey(VK_CONTROL, oneIn(5));
    const WORD key = keys[pick(static_cast<int>(std::size(keys)))];
    for (int times = oneIn(8) ? 1 + pick(10) : 1; times > 0; --times)
        ::PostMessageW(target, WM_KEYDOWN, key, 1);
    ::PostMessageW(target, WM_KEYUP, key, 0xC0000001);
}

void Driver::type(HWND target)
{
    static constexpr wchar_t kCharacters[] = L"0123456789,.-+ aehlrst#%/\\\"";
    note(L"type", target);
    setKey(VK_SHIFT, false);
    setKey(VK_CONTROL, false);
    for (int times = 1 + pick(6); times > 0; --times)
        ::PostMessageW(target, WM_CHAR, kCharacters[pick(static_cast<int>(std::size(kCharacters)) - 1)], 1);
}

void Driver::pushButton(HWND target)
{
    if (classOf(target) != L"Button")
        return click(target);
    note(L"push", target);
    ::PostMessageW(target, BM_CLICK, 0, 0);
}

void Driver::openPage()
{
    note(L"page", m_frame);
    m_frame.openPage(*m_table[m_pages++ % m_table.size()]);
}

void Driver::showPose()
{
    const std::shared_ptr<GalleryPage> page = m_frame.page().shared_from_this();
    const std::vector<std::wstring> poses = page->poses();
    if (poses.empty())
        return;
    note(L"pose", *page);
    page->pose(poses[pick(static_cast<int>(poses.size()))]);
}

void Driver::resize()
{
    note(L"size", m_frame);
    m_frame.SetWindowPos(nullptr, 0, 0, 400 + pick(800), 300 + pick(600),
                         SWP_NOZORDER | SWP_NOMOVE | SWP_NOACTIVATE);
}

// What the system and other programs do

void Driver::sendMessage(HWND target)
{
    struct Message
    {
        UINT number;
        WPARAM wParam;
        LPARAM lParam;
    };
    static const Message messages[] = {
        {WM_THEMECHANGED, 0, 0},
        {WM_SYSCOLORCHANGE, 0, 0},
        {WM_SETTINGCHANGE, 0, 0},
        {WM_CANCELMODE, 0, 0},
        {WM_CAPTURECHANGED, 0, 0},
        {WM_MOUSELEAVE, 0, 0},
        {WM_CONTEXTMENU, 0, -1},
        {WM_KILLFOCUS, 0, 0},
        {WM_SETFOCUS, 0, 0},
        {WM_ENABLE, TRUE, 0},
        {WM_SETREDRAW, TRUE, 0},
        {WM_GETOBJECT, 0, OBJID_CLIENT},
        {WM_QUERYUISTATE, 0, 0},
        {WM_UPDATEUISTATE, 0x30001, 0},
        {WM_TIMER, 1, 0},
        {WM_HSCROLL, SB_LINERIGHT, 0},
        {WM_VSCROLL, SB_PAGEDOWN, 0},
        {WM_HSCROLL, SB_LEFT, 0},
        {WM_VSCROLL, SB_TOP, 0},
        {WM_CUT, 0, 0},
        {WM_COPY, 0, 0},
        {WM_PASTE, 0, 0},
        {WM_UNDO, 0, 0},
        {WM_CLEAR, 0, 0},
        {WM_SETCURSOR, 0, HTCLIENT},
        {WM_FONTCHANGE, 0, 0},
        {WM_DISPLAYCHANGE, 32, 0},
        {WM_ACTIVATEAPP, FALSE, 0},
        {WM_ACTIVATEAPP, TRUE, 0},
        {WM_NULL, 0, 0},
    };
    note(L"message", target);
    const Message& message = messages[pick(static_cast<int>(std::size(messages)))];
    ::PostMessageW(target, message.number, message.wParam, message.lParam);
}

void Driver::repaint()
{
    note(L"repaint", m_frame);
    for (const HWND wnd : openWindows())
        ::RedrawWindow(wnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

// Where

/// Top-level windows of the program that can be seen.
std::vector<HWND> Driver::openWindows() const
{
    std::vector<HWND> found;
    ::EnumThreadWindows(::GetCurrentThreadId(), gather, reinterpret_cast<LPARAM>(&found));
    return found;
}

/// A window that the user could reach: of one that is in front of the frame rather than of the frame.
HWND Driver::pickWindow()
{
    std::vector<HWND> tops = openWindows();
    std::erase_if(tops, [](HWND wnd) { return !::IsWindowEnabled(wnd); });
    if (tops.empty())
        return nullptr;
    const HWND top = oneIn(4) ? tops[pick(static_cast<int>(tops.size()))] : tops.front();
    // The page rather than what stands around it.
    const bool onPage = top == m_frame.m_hWnd && m_frame.page().m_hWnd && !oneIn(5);
    std::vector<HWND> within{onPage ? m_frame.page().m_hWnd : top};
    ::EnumChildWindows(within.front(), gather, reinterpret_cast<LPARAM>(&within));
    const HWND target = within[pick(static_cast<int>(within.size()))];
    return ::IsWindowEnabled(target) ? target : top;
}

/// Mostly in the client area, sometimes beside it.
CPoint Driver::pickPoint(HWND target)
{
    CRect client;
    ::GetClientRect(target, &client);
    if (oneIn(20))
        client.InflateRect(30, 30);
    return {client.left + pick(std::max(1, client.Width())), client.top + pick(std::max(1, client.Height()))};
}

void Driver::note(const wchar_t* action, HWND target)
{
    ++m_reach.actions[action];
    std::wstring line =
        std::wstring(action) + L" " + classOf(target) + L" " + std::to_wstring(::GetDlgCtrlID(target));
    if (m_frame.openedPage())
        line += std::wstring(L" on ") + m_frame.openedPage()->name;
    const std::lock_guard guard{m_storyLock};
    m_story.push_back(std::move(line));
    if (m_story.size() > kStory)
        m_story.pop_front();
}
