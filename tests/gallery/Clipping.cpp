#include "Clipping.h"
#include "support/WindowFacts.h"

#include <afxwin.h>

#include <afxcmn.h>

#include <algorithm>
#include <functional>
#include <map>
#include <vector>

using support::textOf;

namespace
{

LONG styleOf(HWND window)
{
    return ::GetWindowLongW(window, GWL_STYLE);
}

CRect clientOf(HWND window)
{
    CRect client;
    ::GetClientRect(window, &client);
    return client;
}

CRect placeIn(HWND parent, HWND child)
{
    CRect place;
    ::GetWindowRect(child, &place);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

std::wstring nameOf(HWND window)
{
    return support::lowerClassOf(window) + L" " + std::to_wstring(::GetDlgCtrlID(window)) + L" \"" +
           textOf(window) + L"\"";
}

std::wstring sizeText(CSize size)
{
    return std::to_wstring(size.cx) + L" x " + std::to_wstring(size.cy);
}

/// The size of a text in the window's font; lines are broken at `width` with DT_WORDBREAK.
CSize sizeIn(HWND window, const std::wstring& text, UINT format, int width = 0)
{
    CRect area(0, 0, width, 0);
    CClientDC dc(CWnd::FromHandle(window));
    CFont* const old = dc.SelectObject(CWnd::FromHandle(window)->GetFont());
    dc.DrawText(text.c_str(), -1, &area, DT_CALCRECT | format);
    dc.SelectObject(old);
    return area.Size();
}

Problems compare(HWND window, const std::wstring& what, CSize needed, CSize available)
{
    if (needed.cx <= available.cx && needed.cy <= available.cy)
        return {};
    return {nameOf(window) + L": " + what + L" needs " + sizeText(needed) + L" pixels and has " +
            sizeText(available)};
}

// The kinds of controls

Problems inStatic(HWND window)
{
    const LONG style = styleOf(window);
    const LONG type = style & SS_TYPEMASK;
    if ((type > SS_RIGHT && type != SS_LEFTNOWORDWRAP) || (style & SS_ELLIPSISMASK))
        return {};
    const CSize room = clientOf(window).Size();
    const UINT breaks = type == SS_LEFTNOWORDWRAP ? 0u : UINT{DT_WORDBREAK};
    const UINT prefix = style & SS_NOPREFIX ? UINT{DT_NOPREFIX} : 0u;
    return compare(window, L"the text",
                   sizeIn(window, textOf(window), breaks | prefix | DT_EXPANDTABS, room.cx), room);
}

Problems inButton(HWND window)
{
    const LONG style = styleOf(window);
    if ((style & (BS_BITMAP | BS_ICON)) || (style & BS_TYPEMASK) == BS_OWNERDRAW)
        return {};
    Problems problems = fitProblems(window, textOf(window));
    const CSize line = sizeIn(window, L"Xg", DT_SINGLELINE);
    const Problems high = compare(window, L"a line", {0, line.cy}, clientOf(window).Size());
    problems.insert(problems.end(), high.begin(), high.end());
    return problems;
}

Problems inEdit(HWND window)
{
    return compare(window, L"a line", {0, sizeIn(window, L"Xg", DT_SINGLELINE).cy}, clientOf(window).Size());
}

Problems inCombo(HWND window)
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    if (!::GetComboBoxInfo(window, &info) || (styleOf(window) & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)))
        return {};
    const CSize room = CRect(info.rcItem).Size();
    Problems problems;
    CComboBox& box = *static_cast<CComboBox*>(CWnd::FromHandle(window));
    for (int i = 0; i < box.GetCount(); ++i) {
        CString text;
        box.GetLBText(i, text);
        const Problems found = compare(window, L"the entry \"" + std::wstring(text.GetString()) + L"\"",
                                       sizeIn(window, text.GetString(), DT_SINGLELINE), room);
        problems.insert(problems.end(), found.begin(), found.end());
    }
    return problems;
}

/// A line may be as wide as the scroll bar reaches.
Problems inListBox(HWND window)
{
    if (styleOf(window) & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE | LBS_MULTICOLUMN))
        return {};
    CListBox& box = *static_cast<CListBox*>(CWnd::FromHandle(window));
    const CSize room(std::max(clientOf(window).Width(), box.GetHorizontalExtent()),
                     clientOf(window).Height());
    Problems problems;
    for (int i = 0; i < box.GetCount(); ++i) {
        CString text;
        box.GetText(i, text);
        const Problems found = compare(window, L"the line \"" + std::wstring(text.GetString()) + L"\"",
                                       sizeIn(window, text.GetString(), DT_SINGLELINE | DT_NOPREFIX), room);
        problems.insert(problems.end(), found.begin(), found.end());
    }
    return problems;
}

Problems inTabs(HWND window)
{
    Problems problems;
    const int count = TabCtrl_GetItemCount(window);
    for (int i = 0; i < count; ++i) {
        CRect tab;
        wchar_t text[128]{};
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 128;
        ::SendMessageW(window, TCM_GETITEMRECT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&tab));
        ::SendMessageW(window, TCM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        const CRect seen = CRect(tab & clientOf(window));
        const Problems found = compare(window, std::wstring(L"the tab \"") + text + L"\"",
                                       sizeIn(window, text, DT_SINGLELINE), seen.Size());
        problems.insert(problems.end(), found.begin(), found.end());
    }
    return problems;
}

Problems inStatusBar(HWND window)
{
    Problems problems;
    const int count = static_cast<int>(::SendMessageW(window, SB_GETPARTS, 0, 0));
    for (int i = 0; i < count; ++i) {
        CRect pane;
        wchar_t text[256]{};
        ::SendMessageW(window, SB_GETRECT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&pane));
        ::SendMessageW(window, SB_GETTEXTW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        const Problems found =
            compare(window, std::wstring(L"the pane \"") + text + L"\"", sizeIn(window, text, DT_SINGLELINE),
                    CRect(pane & clientOf(window)).Size());
        problems.insert(problems.end(), found.begin(), found.end());
    }
    return problems;
}

Problems inToolBar(HWND window)
{
    Problems problems;
    const int count = static_cast<int>(::SendMessageW(window, TB_BUTTONCOUNT, 0, 0));
    const CRect client = clientOf(window);
    for (int i = 0; i < count; ++i) {
        CRect button;
        TBBUTTON facts{};
        ::SendMessageW(window, TB_GETBUTTON, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&facts));
        ::SendMessageW(window, TB_GETITEMRECT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&button));
        if (!(facts.fsStyle & BTNS_SEP) && CRect(button & client) != button)
            problems.push_back(nameOf(window) + L": button " + std::to_wstring(i) + L" is not seen whole");
    }
    return problems;
}

Problems inDatePicker(HWND window)
{
    const int button = ::GetSystemMetrics(SM_CXVSCROLL);
    CSize needed = sizeIn(window, textOf(window), DT_SINGLELINE);
    needed.cx += button;
    return compare(window, L"the date", needed, clientOf(window).Size());
}

Problems inControl(HWND window)
{
    static const std::map<std::wstring, std::function<Problems(HWND)>> kinds{
        {L"static", &inStatic},
        {L"button", &inButton},
        {L"edit", &inEdit},
        {L"combobox", &inCombo},
        {L"listbox", &inListBox},
        {L"systabcontrol32", &inTabs},
        {L"msctls_statusbar32", &inStatusBar},
        {L"toolbarwindow32", &inToolBar},
        {L"sysdatetimepick32", &inDatePicker},
        {L"syslistview32", &headingProblems},
    };
    const auto kind = kinds.find(support::lowerClassOf(window));
    return kind == kinds.end() ? Problems{} : kind->second(window);
}

// Places

bool scrolls(HWND window)
{
    return (styleOf(window) & (WS_HSCROLL | WS_VSCROLL)) != 0;
}

/// Group boxes and the tabs of property sheets lie around others, an up-down control at the edge of its edit
/// control, and what is transparent lets others through.
bool mayCover(HWND window)
{
    const std::wstring name = support::lowerClassOf(window);
    return (name == L"button" && (styleOf(window) & BS_TYPEMASK) == BS_GROUPBOX) ||
           name == L"systabcontrol32" || name == L"msctls_updown32" ||
           (::GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TRANSPARENT);
}

std::vector<HWND> shownChildren(HWND parent)
{
    std::vector<HWND> found;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (::IsWindowVisible(child))
            found.push_back(child);
    return found;
}

Problems misplaced(HWND parent, const std::vector<HWND>& children)
{
    Problems problems;
    const CRect room = clientOf(parent);
    for (std::size_t i = 0; i < children.size(); ++i) {
        const CRect place = placeIn(parent, children[i]);
        if (!scrolls(parent) && CRect(place & room) != place && !place.IsRectEmpty())
            problems.push_back(nameOf(children[i]) + L" reaches beyond its parent");
        for (std::size_t j = 0; j < i; ++j) {
            const CRect other = placeIn(parent, children[j]);
            if (!mayCover(children[i]) && !mayCover(children[j]) && !CRect(place & other).IsRectEmpty())
                problems.push_back(nameOf(children[i]) + L" and " + nameOf(children[j]) + L" overlap");
        }
    }
    return problems;
}

/// Those of controls of the system are the system's business.
bool hasPartsOfOurs(HWND window)
{
    const std::wstring name = support::lowerClassOf(window);
    return name != L"combobox" && name != L"syslistview32" && name != L"systreeview32";
}

} // namespace

Problems clippingProblems(HWND parent)
{
    const std::vector<HWND> children = shownChildren(parent);
    Problems problems = misplaced(parent, children);
    for (const HWND child : children) {
        Problems found = inControl(child);
        if (hasPartsOfOurs(child))
            std::ranges::copy(clippingProblems(child), std::back_inserter(found));
        problems.insert(problems.end(), found.begin(), found.end());
    }
    return problems;
}
