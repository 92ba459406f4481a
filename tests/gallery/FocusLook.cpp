#include "FocusLook.h"

#include "AccessibleText.h"

#include <testkit/GuiThread.h>
#include <testkit/Picture.h>

#include <afxwin.h>

using namespace ovo::testkit;

namespace
{

constexpr int kMostStops = 80;

/// A caret is seen, though not at every moment.
bool showsCaret(HWND focus)
{
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) && info.hwndCaret == focus;
}

/// These show no focus: a list box in which nothing is selected, whose first row may be scrolled out of view,
/// and Wine's field of dates.
bool isOfThePlatform(HWND window)
{
    wchar_t name[64]{};
    ::GetClassNameW(window, name, 64);
    const bool list = ::lstrcmpiW(name, L"ListBox") == 0;
    return (list && ::SendMessageW(window, LB_GETCURSEL, 0, 0) == LB_ERR) ||
           ::lstrcmpiW(name, L"SysDateTimePick32") == 0;
}

void showNow(HWND window)
{
    GuiThread::settleOnScreen();
    ::RedrawWindow(::GetAncestor(window, GA_ROOT), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::GdiFlush();
}

Picture seenAt(const CRect& place)
{
    Picture picture(place.Width(), place.Height());
    const HDC screen = ::GetDC(nullptr);
    ::BitBlt(picture.dc(), 0, 0, place.Width(), place.Height(), screen, place.left, place.top, SRCCOPY);
    ::ReleaseDC(nullptr, screen);
    ::GdiFlush();
    return picture;
}

} // namespace

bool isFocusSeen(HWND focus, const RECT& part, HWND elsewhere)
{
    const bool caret = showsCaret(focus);
    CRect place(part);
    ::MapWindowPoints(focus, nullptr, reinterpret_cast<POINT*>(&place), 2);
    showNow(focus);
    const Picture with = seenAt(place);
    ::SetFocus(elsewhere);
    showNow(focus);
    return caret || isOfThePlatform(focus) || seenAt(place).differences(with) > 0;
}

Problems unseenFocusIn(HWND dialog)
{
    Problems problems;
    ::SendMessageW(dialog, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0); // as Tab does
    const HWND first = ::GetNextDlgTabItem(dialog, nullptr, FALSE);
    HWND stop = first;
    for (int i = 0; stop && i < kMostStops; ++i) {
        ::SetFocus(stop);
        const HWND focus = ::GetFocus();
        const HWND next = ::GetNextDlgTabItem(dialog, stop, FALSE);
        CRect client;
        ::GetClientRect(focus, &client);
        if (!isFocusSeen(focus, client, next == stop ? nullptr : next))
            problems.push_back(L"nothing shows the focus of " + readAloudAlone(focus) + L" (" +
                               std::to_wstring(::GetDlgCtrlID(focus)) + L")");
        stop = next == first ? nullptr : next;
    }
    ::SetFocus(first);
    return problems;
}
