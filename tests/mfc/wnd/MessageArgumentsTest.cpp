// What the handlers of window messages are called with, and what becomes of their results.
#include "Windows.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace wndtest;

namespace
{

std::string text(CWnd* wnd)
{
    return wnd ? "window " + std::to_string(reinterpret_cast<INT_PTR>(wnd->m_hWnd)) : "no window";
}
std::string text(CMenu* menu)
{
    return menu ? "menu " + std::to_string(reinterpret_cast<INT_PTR>(menu->m_hMenu)) : "no menu";
}
std::string text(CDC* dc)
{
    return dc ? "dc " + std::to_string(reinterpret_cast<INT_PTR>(dc->m_hDC)) : "no dc";
}
std::string text(CPoint point)
{
    return "(" + std::to_string(point.x) + "," + std::to_string(point.y) + ")";
}
template <class Control>
requires std::is_base_of_v<CWnd, Control> std::string text(Control* control)
{
    return text(static_cast<CWnd*>(control));
}
template <class Number>
requires std::is_integral_v<Number> std::string text(Number number)
{
    return std::to_string(number);
}
template <class Pointer>
std::string text(Pointer* pointer)
{
    return "at " + std::to_string(reinterpret_cast<INT_PTR>(pointer));
}

/// Takes down how each handler is called. Handlers with a result give 77.
class Taker : public Hidden<>
{
public:
    std::string call;

    /// Sends a message and gives the call that came of it, with the result.
    std::string of(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        call = "no call";
        const LRESULT result = ::SendMessageW(m_hWnd, message, wParam, lParam);
        return call + " -> " + std::to_string(result);
    }

protected:
    template <class... Arguments>
    void take(const char* name, Arguments... arguments)
    {
        call = name;
        ((call += " " + text(arguments)), ...);
    }

    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized) { take("activate", state, other, minimized); }
    afx_msg void OnActivateApp(BOOL active, DWORD thread) { take("app", active, thread); }
    afx_msg void OnAppCommand(CWnd* wnd, UINT command, UINT device, UINT key) { take("appcommand", wnd, command, device, key); }
    afx_msg void OnAskCbFormatName(UINT size, LPTSTR buffer) { take("format", size, buffer); }
    afx_msg void OnCaptureChanged(CWnd* wnd) { take("capture", wnd); }
    afx_msg void OnChangeCbChain(HWND gone, HWND next) { take("chain", gone, next); }
    afx_msg void OnChangeUIState(UINT action, UINT element) { take("uistate", action, element); }
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags) { take("char", character, repeat, flags); }
    afx_msg int OnCharToItem(UINT key, CListBox* box, UINT index)
    {
        take("chartoitem", key, box, index);
        return 77;
    }
    afx_msg int OnCompareItem(int id, LPCOMPAREITEMSTRUCT item)
    {
        take("compare", id, item);
        return 77;
    }
    afx_msg void OnContextMenu(CWnd* wnd, CPoint point) { take("contextmenu", wnd, point); }
    afx_msg BOOL OnCopyData(CWnd* wnd, COPYDATASTRUCT* data)
    {
        take("copydata", wnd, data ? static_cast<int>(data->dwData) : -1);
        return 77;
    }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT kind)
    {
        take("colour", dc, wnd, kind);
        return reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(77));
    }
    afx_msg void OnDestroyClipboard() { take("destroyclipboard"); }
    afx_msg BOOL OnDeviceChange(UINT event, DWORD_PTR data)
    {
        take("device", event, data);
        return 77;
    }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item) { take("draw", id, item); }
    afx_msg void OnEndSession(BOOL ending) { take("endsession", ending); }
    afx_msg void OnEnterIdle(UINT why, CWnd* who) { take("idle", why, who); }
    afx_msg BOOL OnEraseBkgnd(CDC* dc)
    {
        take("erase", dc);
        return 77;
    }
    afx_msg UINT OnGetDlgCode()
    {
        take("dlgcode");
        return 77;
    }
    afx_msg BOOL OnHelpInfo(HELPINFO* info)
    {
        take("help", info);
        return 77;
    }
    afx_msg void OnHotKey(UINT id, UINT modifiers, UINT key) { take("hotkey", id, modifiers, key); }
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar) { take("hscroll", code, pos, bar); }
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL system) { take("popup", menu, index, system); }
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags) { take("keydown", key, repeat, flags); }
    afx_msg void OnLButtonDown(UINT flags, CPoint point) { take("lbutton", flags, point); }
    afx_msg LRESULT OnMenuChar(UINT character, UINT flags, CMenu* menu)
    {
        take("menuchar", character, flags, menu);
        return 77;
    }
    afx_msg UINT OnMenuDrag(UINT pos, CMenu* menu)
    {
        take("menudrag", pos, menu);
        return 77;
    }
    afx_msg void OnMenuSelect(UINT item, UINT flags, HMENU menu) { take("menuselect", item, flags, menu); }
    afx_msg int OnMouseActivate(CWnd* top, UINT hit, UINT message)
    {
        take("mouseactivate", top, hit, message);
        return 77;
    }
    afx_msg void OnMouseLeave() { take("leave"); }
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point)
    {
        take("wheel", flags, delta, point);
        return delta > 0;
    }
    afx_msg void OnMove(int x, int y) { take("move", x, y); }
    afx_msg void OnMoving(UINT side, LPRECT rect) { take("moving", side, rect); }
    afx_msg BOOL OnNcActivate(BOOL active)
    {
        take("ncactivate", active);
        return 77;
    }
    afx_msg void OnNcCalcSize(BOOL rects, NCCALCSIZE_PARAMS* params) { take("calcsize", rects, params); }
    afx_msg LRESULT OnNcHitTest(CPoint point)
    {
        take("hit", point);
        return 77;
    }
    afx_msg void OnNcLButtonDown(UINT hit, CPoint point) { take("nclbutton", hit, point); }
    afx_msg void OnNcXButtonDown(short hit, UINT button, CPoint point) { take("ncxbutton", hit, button, point); }
    afx_msg UINT OnNotifyFormat(CWnd* wnd, UINT command)
    {
        take("notifyformat", wnd, command);
        return 77;
    }
    afx_msg void OnPaintClipboard(CWnd* viewer, HGLOBAL data) { take("paintclipboard", viewer, data); }
    afx_msg void OnParentNotify(UINT event, LPARAM lParam) { take("parentnotify", event, lParam); }
    afx_msg UINT OnPowerBroadcast(UINT event, UINT data)
    {
        take("power", event, data);
        return 77;
    }
    afx_msg BOOL OnQueryEndSession()
    {
        take("queryend");
        return 77;
    }
    afx_msg void OnRawInput(UINT code, HRAWINPUT input) { take("input", code, input); }
    afx_msg void OnRenderFormat(UINT format) { take("render", format); }
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hit, UINT message)
    {
        take("cursor", wnd, hit, message);
        return 77;
    }
    afx_msg void OnSetFocus(CWnd* old) { take("focus", old); }
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section) { take("setting", flags, section); }
    afx_msg void OnShowWindow(BOOL show, UINT status) { take("show", show, status); }
    afx_msg void OnSize(UINT type, int cx, int cy) { take("size", type, cx, cy); }
    afx_msg void OnSpoolerStatus(UINT status, UINT jobs) { take("spooler", status, jobs); }
    afx_msg void OnSysCommand(UINT id, LPARAM lParam) { take("syscommand", id, lParam); }
    afx_msg void OnTimer(UINT_PTR id) { take("timer", id); }
    afx_msg void OnUnInitMenuPopup(CMenu* menu, UINT flags) { take("uninit", menu, flags); }
    afx_msg int OnVKeyToItem(UINT key, CListBox* box, UINT index)
    {
        take("vkeytoitem", key, box, index);
        return 77;
    }
    afx_msg void OnVScrollClipboard(CWnd* viewer, UINT code, UINT pos) { take("vscrollclipboard", viewer, code, pos); }
    afx_msg void OnXButtonDown(UINT flags, UINT button, CPoint point) { take("xbutton", flags, button, point); }
    afx_msg LRESULT OnOwn(WPARAM wParam, LPARAM lParam)
    {
        take("own", wParam, lParam);
        return 77;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Taker, Hidden<>)
    ON_WM_ACTIVATE()
    ON_WM_ACTIVATEAPP()
    ON_WM_APPCOMMAND()
    ON_WM_ASKCBFORMATNAME()
    ON_WM_CAPTURECHANGED()
    ON_WM_CHANGECBCHAIN()
    ON_WM_CHANGEUISTATE()
    ON_WM_CHAR()
    ON_WM_CHARTOITEM()
    ON_WM_COMPAREITEM()
    ON_WM_CONTEXTMENU()
    ON_WM_COPYDATA()
    ON_WM_CTLCOLOR()
    ON_WM_DESTROYCLIPBOARD()
    ON_WM_DEVICECHANGE()
    ON_WM_DRAWITEM()
    ON_WM_ENDSESSION()
    ON_WM_ENTERIDLE()
    ON_WM_ERASEBKGND()
    ON_WM_GETDLGCODE()
    ON_WM_HELPINFO()
    ON_WM_HOTKEY()
    ON_WM_HSCROLL()
    ON_WM_INITMENUPOPUP()
    ON_WM_INPUT()
    ON_WM_KEYDOWN()
    ON_WM_LBUTTONDOWN()
    ON_WM_MENUCHAR()
    ON_WM_MENUDRAG()
    ON_WM_MENUSELECT()
    ON_WM_MOUSEACTIVATE()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_MOVE()
    ON_WM_MOVING()
    ON_WM_NCACTIVATE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCHITTEST()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCXBUTTONDOWN()
    ON_WM_NOTIFYFORMAT()
    ON_WM_PAINTCLIPBOARD()
    ON_WM_PARENTNOTIFY()
    ON_WM_POWERBROADCAST()
    ON_WM_QUERYENDSESSION()
    ON_WM_RENDERFORMAT()
    ON_WM_SETCURSOR()
    ON_WM_SETFOCUS()
    ON_WM_SETTINGCHANGE()
    ON_WM_SHOWWINDOW()
    ON_WM_SIZE()
    ON_WM_SPOOLERSTATUS()
    ON_WM_SYSCOMMAND()
    ON_WM_TIMER()
    ON_WM_UNINITMENUPOPUP()
    ON_WM_VKEYTOITEM()
    ON_WM_VSCROLLCLIPBOARD()
    ON_WM_XBUTTONDOWN()
    ON_MESSAGE(WM_APP, &Taker::OnOwn)
END_MESSAGE_MAP()

class MessageArguments : public ::testing::Test
{
protected:
    MessageArguments()
    {
        wnd.create();
        menu = ::CreatePopupMenu();
        dc = ::GetDC(plain);
    }
    ~MessageArguments() override
    {
        ::ReleaseDC(plain, dc);
        ::DestroyMenu(menu);
    }

    template <class Handle>
    static WPARAM w(Handle handle)
    {
        return reinterpret_cast<WPARAM>(handle);
    }
    template <class Handle>
    static LPARAM l(Handle handle)
    {
        return reinterpret_cast<LPARAM>(handle);
    }
    static std::string name(const char* kind, const void* handle)
    {
        return kind + std::string(" ") + std::to_string(reinterpret_cast<INT_PTR>(handle));
    }
    std::string plainName() const { return name("window", static_cast<HWND>(plain)); }

    Taker wnd;
    PlainWindow plain;
    HMENU menu;
    HDC dc;
};

} // namespace

TEST_F(MessageArguments, OfPlaceAndSize)
{
    EXPECT_EQ(wnd.of(WM_MOVE, 0, MAKELPARAM(-5, -9)), "move -5 -9 -> 0") << "left of the first screen";
    EXPECT_EQ(wnd.of(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 30)), "size 2 40000 30 -> 0");
    RECT rect{};
    EXPECT_EQ(wnd.of(WM_MOVING, WMSZ_LEFT, l(&rect)), "moving 1 " + name("at", &rect) + " -> 0");
    NCCALCSIZE_PARAMS params{};
    EXPECT_EQ(wnd.of(WM_NCCALCSIZE, TRUE, l(&params)), "calcsize 1 " + name("at", &params) + " -> 0");
    EXPECT_EQ(wnd.of(WM_NCHITTEST, 0, MAKELPARAM(-3, 4)), "hit (-3,4) -> 77");
}

TEST_F(MessageArguments, OfActivation)
{
    EXPECT_EQ(wnd.of(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), l(static_cast<HWND>(plain))),
              "activate 2 " + plainName() + " 1 -> 0");
    EXPECT_EQ(wnd.of(WM_ACTIVATE, WA_INACTIVE, 0), "activate 0 no window 0 -> 0");
    EXPECT_EQ(wnd.of(WM_ACTIVATEAPP, TRUE, 4711), "app 1 4711 -> 0");
    EXPECT_EQ(wnd.of(WM_NCACTIVATE, TRUE), "ncactivate 1 -> 77");
    EXPECT_EQ(wnd.of(WM_MOUSEACTIVATE, w(static_cast<HWND>(plain)), MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)),
              "mouseactivate " + plainName() + " 1 513 -> 77");
    EXPECT_EQ(wnd.of(WM_SHOWWINDOW, TRUE, SW_PARENTOPENING), "show 1 3 -> 0");
    EXPECT_EQ(wnd.of(WM_SETFOCUS, w(static_cast<HWND>(plain))), "focus " + plainName() + " -> 0");
    EXPECT_EQ(wnd.of(WM_CAPTURECHANGED, 0, l(static_cast<HWND>(plain))), "capture " + plainName() + " -> 0");
    EXPECT_EQ(wnd.of(WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS)), "uistate 2 1 -> 0");
}

TEST_F(MessageArguments, OfTheMouse)
{
    EXPECT_EQ(wnd.of(WM_LBUTTONDOWN, MK_CONTROL, MAKELPARAM(-7, 8)), "lbutton 8 (-7,8) -> 0");
    EXPECT_EQ(wnd.of(WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(5, -6)), "nclbutton 2 (5,-6) -> 0");
    EXPECT_EQ(wnd.of(WM_XBUTTONDOWN, MAKEWPARAM(MK_SHIFT, XBUTTON2), MAKELPARAM(1, 2)), "xbutton 4 2 (1,2) -> 0");
    EXPECT_EQ(wnd.of(WM_NCXBUTTONDOWN, MAKEWPARAM(HTERROR, XBUTTON1), MAKELPARAM(1, 2)),
              "ncxbutton -2 1 (1,2) -> 0");
    EXPECT_EQ(wnd.of(WM_MOUSEWHEEL, MAKEWPARAM(MK_LBUTTON, 120), MAKELPARAM(-1, 9)), "wheel 1 120 (-1,9) -> 1");
    EXPECT_EQ(wnd.of(WM_MOUSEWHEEL, MAKEWPARAM(0, -240), 0), "wheel 0 -240 (0,0) -> 0");
    EXPECT_EQ(wnd.of(WM_MOUSELEAVE), "leave -> 0");
    EXPECT_EQ(wnd.of(WM_SETCURSOR, w(static_cast<HWND>(plain)), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)),
              "cursor " + plainName() + " 1 512 -> 77");
    EXPECT_EQ(wnd.of(WM_CONTEXTMENU, w(static_cast<HWND>(plain)), MAKELPARAM(-1, -1)),
              "contextmenu " + plainName() + " (-1,-1) -> 0")
        << "from the keyboard";
    EXPECT_EQ(wnd.of(WM_APPCOMMAND, w(static_cast<HWND>(plain)), MAKELPARAM(MK_CONTROL, 0x8000 | 14)),
              "appcommand " + plainName() + " 14 32768 8 -> 0");
    EXPECT_EQ(wnd.of(WM_INPUT, RIM_INPUTSINK, 5), "input 1 at 5 -> 0");
}

TEST_F(MessageArguments, OfTheKeyboard)
{
    EXPECT_EQ(wnd.of(WM_KEYDOWN, VK_F4, MAKELPARAM(3, 0x4001)), "keydown 115 3 16385 -> 0");
    EXPECT_EQ(wnd.of(WM_CHAR, 0x4E2D, MAKELPARAM(1, 0x8000)), "char 20013 1 32768 -> 0");
    EXPECT_EQ(wnd.of(WM_GETDLGCODE), "dlgcode -> 77");
    EXPECT_EQ(wnd.of(WM_HOTKEY, 9, MAKELPARAM(MOD_ALT, VK_F2)), "hotkey 9 1 113 -> 0");
    HELPINFO info{};
    EXPECT_EQ(wnd.of(WM_HELP, 0, l(&info)), "help " + name("at", &info) + " -> 77");
}

TEST_F(MessageArguments, OfMenusAndCommands)
{
    EXPECT_EQ(wnd.of(WM_INITMENUPOPUP, w(menu), MAKELPARAM(3, TRUE)), "popup " + name("menu", menu) + " 3 1 -> 0");
    EXPECT_EQ(wnd.of(WM_UNINITMENUPOPUP, w(menu), MAKELPARAM(0, MF_SYSMENU)),
              "uninit " + name("menu", menu) + " 8192 -> 0");
    EXPECT_EQ(wnd.of(WM_MENUSELECT, MAKEWPARAM(5, 0xFFFF), 0), "menuselect 5 65535 at 0 -> 0");
    EXPECT_EQ(wnd.of(WM_MENUCHAR, MAKEWPARAM('x', MF_POPUP), l(menu)),
              "menuchar 120 16 " + name("menu", menu) + " -> 77");
    EXPECT_EQ(wnd.of(WM_MENUDRAG, 2, l(menu)), "menudrag 2 " + name("menu", menu) + " -> 77");
    EXPECT_EQ(wnd.of(WM_SYSCOMMAND, SC_KEYMENU, 'f'), "syscommand 61696 102 -> 0");
    EXPECT_EQ(wnd.of(WM_ENTERIDLE, MSGF_DIALOGBOX, l(static_cast<HWND>(plain))), "idle 0 " + plainName() + " -> 0");
}

TEST_F(MessageArguments, OfControls)
{
    EXPECT_EQ(wnd.of(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 40000), l(static_cast<HWND>(plain))),
              "hscroll 5 40000 " + plainName() + " -> 0")
        << "positions are not negative";
    EXPECT_EQ(wnd.of(WM_HSCROLL, SB_LINEUP, 0), "hscroll 0 0 no window -> 0") << "the window's own bar";
    DRAWITEMSTRUCT draw{};
    EXPECT_EQ(wnd.of(WM_DRAWITEM, 12, l(&draw)), "draw 12 " + name("at", &draw) + " -> 0");
    COMPAREITEMSTRUCT compare{};
    EXPECT_EQ(wnd.of(WM_COMPAREITEM, 12, l(&compare)), "compare 12 " + name("at", &compare) + " -> 77");
    EXPECT_EQ(wnd.of(WM_CHARTOITEM, MAKEWPARAM('k', 3), l(static_cast<HWND>(plain))),
              "chartoitem 107 " + plainName() + " 3 -> 77");
    EXPECT_EQ(wnd.of(WM_VKEYTOITEM, MAKEWPARAM(VK_DOWN, 3), l(static_cast<HWND>(plain))),
              "vkeytoitem 40 " + plainName() + " 3 -> 77");
    EXPECT_EQ(wnd.of(WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, 9), l(static_cast<HWND>(plain))),
              "parentnotify " + std::to_string(MAKELONG(WM_CREATE, 9)) + " " +
                  std::to_string(reinterpret_cast<INT_PTR>(static_cast<HWND>(plain))) + " -> 0");
}

TEST_F(MessageArguments, OfColours)
{
    // One entry stands for seven messages; the kind tells them apart.
    const UINT messages[] = {WM_CTLCOLORMSGBOX, WM_CTLCOLOREDIT, WM_CTLCOLORLISTBOX,  WM_CTLCOLORBTN,
                             WM_CTLCOLORDLG,    WM_CTLCOLORSCROLLBAR, WM_CTLCOLORSTATIC};
    for (UINT kind = 0; kind < std::size(messages); ++kind)
        EXPECT_EQ(wnd.of(messages[kind], w(dc), l(static_cast<HWND>(plain))),
                  "colour " + name("dc", dc) + " " + plainName() + " " + std::to_string(kind) + " -> 77");
    EXPECT_EQ(wnd.of(WM_ERASEBKGND, w(dc)), "erase " + name("dc", dc) + " -> 77");
}

TEST_F(MessageArguments, OfTheSystem)
{
    EXPECT_EQ(wnd.of(WM_TIMER, 0x123456789A), "timer 78187493530 -> 0") << "an id may be an address";
    EXPECT_EQ(wnd.of(WM_SETTINGCHANGE, 5, l(L"intl")).substr(0, 12), "setting 5 at");
    EXPECT_EQ(wnd.of(WM_DEVICECHANGE, 7, 8), "device 7 8 -> 77");
    EXPECT_EQ(wnd.of(WM_POWERBROADCAST, 4, 6), "power 4 6 -> 77");
    EXPECT_EQ(wnd.of(WM_SPOOLERSTATUS, 1, MAKELPARAM(2, 3)), "spooler 1 2 -> 0");
    EXPECT_EQ(wnd.of(WM_QUERYENDSESSION), "queryend -> 77");
    EXPECT_EQ(wnd.of(WM_ENDSESSION, TRUE), "endsession 1 -> 0");
    EXPECT_EQ(wnd.of(WM_NOTIFYFORMAT, w(static_cast<HWND>(plain)), NF_QUERY), "notifyformat " + plainName() + " 3 -> 77");
    COPYDATASTRUCT data{42, 0, nullptr};
    EXPECT_EQ(wnd.of(WM_COPYDATA, w(static_cast<HWND>(plain)), l(&data)), "copydata " + plainName() + " 42 -> 77");
}

TEST_F(MessageArguments, OfTheClipboard)
{
    EXPECT_EQ(wnd.of(WM_RENDERFORMAT, CF_UNICODETEXT), "render 13 -> 0");
    EXPECT_EQ(wnd.of(WM_DESTROYCLIPBOARD), "destroyclipboard -> 0");
    EXPECT_EQ(wnd.of(WM_CHANGECBCHAIN, w(static_cast<HWND>(plain)), 0), "chain " + name("at", static_cast<HWND>(plain)) + " at 0 -> 0");
    EXPECT_EQ(wnd.of(WM_PAINTCLIPBOARD, w(static_cast<HWND>(plain)), 0), "paintclipboard " + plainName() + " at 0 -> 0");
    EXPECT_EQ(wnd.of(WM_VSCROLLCLIPBOARD, w(static_cast<HWND>(plain)), MAKELPARAM(2, 300)),
              "vscrollclipboard " + plainName() + " 2 300 -> 0");
    wchar_t buffer[8]{};
    EXPECT_EQ(wnd.of(WM_ASKCBFORMATNAME, 8, l(buffer)), "format 8 " + name("at", buffer) + " -> 0");
}

TEST_F(MessageArguments, OfTheProgramsOwnMessages)
{
    EXPECT_EQ(wnd.of(WM_APP, ~WPARAM{0}, -2), "own 18446744073709551615 -2 -> 77");
}
