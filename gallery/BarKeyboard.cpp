#include "BarKeyboard.h"

#include <ovoui/toolbar/VantorToolBar.h>

#include <algorithm>

namespace
{

using Bars = BarKeyboard::Bars;

void collectInside(HWND parent, Bars& bars)
{
    for (HWND child = ::GetWindow(parent, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CWnd* const window = CWnd::FromHandlePermanent(child);
        auto* const bar = dynamic_cast<CControlBar*>(window);
        const bool walked = dynamic_cast<CVantorToolBar*>(window) || dynamic_cast<CDialogBar*>(window);
        if (!walked)
            collectInside(child, bars);
        else if (std::ranges::find(bars, bar) == bars.end())
            bars.push_back(bar);
    }
}

BOOL CALLBACK collectFloating(HWND window, LPARAM bars)
{
    if (dynamic_cast<CMiniFrameWnd*>(CWnd::FromHandlePermanent(window)))
        collectInside(window, *reinterpret_cast<Bars*>(bars));
    return TRUE;
}

bool hasFocus(const CControlBar* bar)
{
    const HWND focus = ::GetFocus();
    return bar->m_hWnd && (focus == bar->m_hWnd || ::IsChild(bar->m_hWnd, focus));
}

bool giveFocus(CControlBar& bar)
{
    if (!bar.IsVisible())
        return false;
    if (auto* const buttons = dynamic_cast<CVantorToolBar*>(&bar))
        return buttons->FocusButtons() != FALSE;
    const HWND first = ::GetNextDlgTabItem(bar, nullptr, FALSE);
    if (first)
        ::SetFocus(first);
    return first && ::GetFocus() == first;
}

/// Whether a label or button of the bar has this letter.
bool hasLetter(const CControlBar& bar, wchar_t letter)
{
    for (const CWnd* control = bar.GetWindow(GW_CHILD); control; control = control->GetNextWindow()) {
        CString text;
        control->GetWindowText(text);
        const int mark = text.Find(L'&');
        if (mark >= 0 && CString(text[mark + 1]).CompareNoCase(CString(letter)) == 0)
            return true;
    }
    return false;
}

} // namespace

void BarKeyboard::collect(CWnd& page, Bars& bars)
{
    collectInside(page, bars);
    ::EnumThreadWindows(::GetCurrentThreadId(), &collectFloating, reinterpret_cast<LPARAM>(&bars));
}

void BarKeyboard::step(const Bars& bars)
{
    auto next = std::ranges::find_if(bars, &hasFocus);
    if (next == bars.end()) {
        m_before = ::GetFocus();
        next = bars.begin();
    } else {
        ++next;
        leave(); // so that Escape leads there from every bar
    }
    std::find_if(next, bars.end(), [](CControlBar* bar) { return giveFocus(*bar); });
}

bool BarKeyboard::isForBars(const MSG& message)
{
    return message.message == WM_SYSCHAR ||
           (message.message == WM_KEYDOWN && (message.wParam == VK_ESCAPE || message.wParam == VK_TAB));
}

bool BarKeyboard::offer(const Bars& bars, MSG& message)
{
    if (!isForBars(message))
        return false;
    const auto found = std::ranges::find_if(bars, &hasFocus);
    if (found == bars.end() || dynamic_cast<CVantorToolBar*>(*found)) // which has keys of its own
        return false;
    CControlBar& bar = **found;
    const bool key = message.message == WM_KEYDOWN;
    if (key && message.wParam == VK_ESCAPE) {
        leave();
        return true;
    }
    return (key || hasLetter(bar, static_cast<wchar_t>(message.wParam))) && bar.IsDialogMessage(&message);
}

void BarKeyboard::leave()
{
    if (::IsWindow(m_before) && ::IsWindowVisible(m_before))
        ::SetFocus(m_before);
    else
        AfxGetMainWnd()->SetFocus(); // which hands it on
}
