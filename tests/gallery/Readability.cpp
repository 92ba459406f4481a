#include "Readability.h"
#include "support/WindowFacts.h"

#include <ovocor/Text.h>
#include <ovoui/colour/ColourButton.h>
#include <ovoui/colour/Contrast.h>
#include <ovoui/images/AlphaImageButton.h>

#include <afxcmn.h>

#include <algorithm>
#include <functional>
#include <map>
#include <vector>

using ovo::testkit::Picture;
using support::textOf;

namespace
{

constexpr double kLeast = 4.5;
constexpr int kShare =
    3; // a colour of the text has at least one for so many pixels of the most frequent other colour
constexpr int kMostRows = 12;

CRect clientOf(HWND window)
{
    CRect client;
    ::GetClientRect(window, &client);
    return client;
}

/// Where texts are in a window, in its client pixels.
struct Place
{
    CRect rect;
    std::wstring what;
};
using Places = std::vector<Place>;

template <class Item>
CRect itemRect(HWND window, UINT message, Item item)
{
    CRect rect;
    ::SendMessageW(window, message, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&rect));
    return rect;
}

int countOf(HWND window, UINT message)
{
    return static_cast<int>(::SendMessageW(window, message, 0, 0));
}

Places whole(HWND window)
{
    return {{clientOf(window), textOf(window)}};
}

/// The text of an icon is its name.
Places inStatic(HWND window)
{
    const LONG type = ::GetWindowLongW(window, GWL_STYLE) & SS_TYPEMASK;
    return type == SS_ICON || type == SS_BITMAP ? Places{} : whole(window);
}

/// Without the edges, the rectangle of the focus and the mark. The text of a button with an image or a colour
/// is its name alone.
Places inButton(HWND window)
{
    CWnd* const object = CWnd::FromHandlePermanent(window);
    if (dynamic_cast<CAlphaImageButton*>(object) || dynamic_cast<CColourButton*>(object))
        return {};
    const LONG style = ::GetWindowLongW(window, GWL_STYLE);
    const LONG type = style & BS_TYPEMASK;
    CRect rect = clientOf(window);
    const int edge = 2 * ::GetSystemMetrics(SM_CXEDGE);
    CClientDC dc(CWnd::FromHandle(window));
    CFont* const old = dc.SelectObject(CWnd::FromHandle(window)->GetFont());
    CRect needed;
    dc.DrawText(textOf(window).c_str(), -1, &needed, DT_CALCRECT | DT_SINGLELINE);
    dc.SelectObject(old);
    if (type == BS_GROUPBOX) {
        rect = CRect(CPoint(rect.left + 3 * edge, rect.top), needed.Size() - CSize(edge, 0));
    } else if (type <= BS_DEFPUSHBUTTON) {
        rect.DeflateRect((rect.Width() - needed.Width()) / 2, (rect.Height() - needed.Height()) / 2);
    } else {
        rect.left += ::GetSystemMetrics(SM_CXMENUCHECK) + edge;
        rect.right = std::min(rect.right, rect.left + needed.right);
        rect.DeflateRect(0, std::max((rect.Height() - needed.Height()) / 2, 0));
    }
    return {{rect, textOf(window)}};
}

/// The text of one with an edit control is that one's.
Places inCombo(HWND window)
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    if (!::GetComboBoxInfo(window, &info) || info.hwndItem != window)
        return {};
    CRect rect = info.rcItem;
    rect.DeflateRect(1, 1); // the rectangle of the focus
    return {{rect, textOf(window)}};
}

Places inListBox(HWND window)
{
    Places places;
    for (int i = 0; i < std::min(countOf(window, LB_GETCOUNT), kMostRows); ++i)
        places.push_back({itemRect(window, LB_GETITEMRECT, i), L"row " + std::to_wstring(i)});
    return places;
}

Places inTabs(HWND window)
{
    Places places;
    for (int i = 0; i < countOf(window, TCM_GETITEMCOUNT); ++i) {
        CRect rect = itemRect(window, TCM_GETITEMRECT, i);
        rect.DeflateRect(::GetSystemMetrics(SM_CXEDGE) * 2, ::GetSystemMetrics(SM_CYEDGE) * 2);
        places.push_back({rect, L"tab " + std::to_wstring(i)});
    }
    return places;
}

Places inStatusBar(HWND window)
{
    Places places;
    for (int i = 0; i < countOf(window, SB_GETPARTS); ++i)
        if (LOWORD(::SendMessageW(window, SB_GETTEXTLENGTHW, static_cast<WPARAM>(i), 0)) > 0)
            places.push_back({itemRect(window, SB_GETRECT, i), L"pane " + std::to_wstring(i)});
    return places;
}

Places inHeader(HWND window)
{
    Places places;
    for (int i = 0; i < countOf(window, HDM_GETITEMCOUNT); ++i) {
        wchar_t text[64]{};
        HDITEMW item{};
        item.mask = HDI_TEXT;
        item.pszText = text;
        item.cchTextMax = 64;
        ::SendMessageW(window, HDM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        if (!*text)
            continue;
        CRect rect = itemRect(window, HDM_GETITEMRECT, i);
        rect.DeflateRect(::GetSystemMetrics(SM_CXEDGE) * 2, ::GetSystemMetrics(SM_CYEDGE));
        places.push_back({rect, L"heading " + std::to_wstring(i)});
    }
    return places;
}

Places inTree(HWND window)
{
    Places places;
    auto item = reinterpret_cast<HTREEITEM>(::SendMessageW(window, TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE, 0));
    for (int row = 0; item && row < kMostRows; ++row) {
        CRect rect;
        *reinterpret_cast<HTREEITEM*>(&rect) = item;
        if (::SendMessageW(window, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&rect))) {
            rect.DeflateRect(1, 1); // the rectangle of the focus
            places.push_back({rect, L"row " + std::to_wstring(row)});
        }
        item = reinterpret_cast<HTREEITEM>(
            ::SendMessageW(window, TVM_GETNEXTITEM, TVGN_NEXTVISIBLE, reinterpret_cast<LPARAM>(item)));
    }
    return places;
}

/// Cells with a text, of rows that are not cut at the lower edge.
Places inList(HWND window)
{
    Places places;
    CRect client;
    ::GetClientRect(window, &client);
    const int columns =
        countOf(reinterpret_cast<HWND>(::SendMessageW(window, LVM_GETHEADER, 0, 0)), HDM_GETITEMCOUNT);
    const int rows = std::min(countOf(window, LVM_GETITEMCOUNT), kMostRows);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            CListCtrl& list = *static_cast<CListCtrl*>(CWnd::FromHandle(window));
            CRect cell;
            if (list.GetItemText(row, column).IsEmpty() ||
                !list.GetSubItemRect(row, column, LVIR_LABEL, cell) || cell.bottom > client.bottom)
                continue;
            places.push_back({cell, L"cell " + std::to_wstring(row) + L", " + std::to_wstring(column)});
        }
    return places;
}

Places textsIn(HWND window)
{
    static const std::map<std::wstring, std::function<Places(HWND)>> kinds{
        {L"static", &inStatic},
        {L"edit", &whole},
        {L"button", &inButton},
        {L"combobox", &inCombo},
        {L"listbox", &inListBox},
        {L"systabcontrol32", &inTabs},
        {L"msctls_statusbar32", &inStatusBar},
        {L"sysheader32", &inHeader},
        {L"systreeview32", &inTree},
        {L"syslistview32", &inList},
        {L"combolbox", &inListBox},
        {L"tooltips_class32", &whole},
    };
    const auto kind = kinds.find(support::lowerClassOf(window));
    return kind == kinds.end() ? Places{} : kind->second(window);
}

std::wstring colourText(COLORREF colour)
{
    return stringPrintf(L"%d, %d, %d", GetRValue(colour), GetGValue(colour), GetBValue(colour));
}

/// The colours that the user has chosen for what is selected, whatever their contrast; the one behind the
/// selection may be less frequent than that of the rest of an edit control.
bool isSelection(const TextLook& look)
{
    const COLORREF selection = ::GetSysColor(COLOR_HIGHLIGHT);
    return look.text == selection ||
           (look.ground == selection && look.text == ::GetSysColor(COLOR_HIGHLIGHTTEXT));
}

/// Whether another window of the program is in front.
bool isCovered(HWND window, const CRect& place)
{
    const HWND root = ::GetAncestor(window, GA_ROOT);
    for (HWND above = ::GetWindow(root, GW_HWNDPREV); above; above = ::GetWindow(above, GW_HWNDPREV)) {
        CRect rect;
        ::GetWindowRect(above, &rect);
        if (::IsWindowVisible(above) &&
            ::GetWindowThreadProcessId(above, nullptr) == ::GetCurrentThreadId() &&
            !(rect & place).IsRectEmpty())
            return true;
    }
    return false;
}

Problems problemsAt(HWND window, const Picture& screen, const Place& place)
{
    CRect rect = place.rect & clientOf(window);
    ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    if (place.what.empty() || rect.IsRectEmpty() || isCovered(window, rect))
        return {};
    const std::optional<TextLook> look = lookOf(screen, rect);
    if (!look)
        return {stringPrintf(L"%s %d, \"%s\": nothing is seen", support::lowerClassOf(window).c_str(),
                             ::GetDlgCtrlID(window), place.what.c_str())};
    if (look->ratio >= kLeast || isSelection(*look))
        return {};
    return {stringPrintf(L"%s %d, \"%s\": %s on %s has %.1f", support::lowerClassOf(window).c_str(),
                         ::GetDlgCtrlID(window), place.what.c_str(), colourText(look->text).c_str(),
                         colourText(look->ground).c_str(), look->ratio)};
}

void collect(HWND window, const Picture& screen, Problems& problems)
{
    if (!::IsWindowVisible(window) || !::IsWindowEnabled(window))
        return; // what cannot be used may be hard to read
    for (const Place& place : textsIn(window))
        std::ranges::copy(problemsAt(window, screen, place), std::back_inserter(problems));
    for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        collect(child, screen, problems);
}

} // namespace

std::optional<TextLook> lookOf(const Picture& picture, const CRect& part)
{
    std::map<COLORREF, int> counts;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x)
            ++counts[picture.at(x, y)];
    counts.erase(CLR_INVALID);
    const auto byCount = [](const auto& a, const auto& b) { return a.second < b.second; };
    if (counts.size() < 2)
        return {};
    const auto ground = *std::ranges::max_element(counts, byCount);
    counts.erase(ground.first);
    const int most = std::ranges::max_element(counts, byCount)->second;
    TextLook look{ground.first, ground.first, 0};
    for (const auto& [colour, count] : counts) {
        const double ratio =
            ovoui::colour::contrast(Colour::colorref(colour), Colour::colorref(ground.first));
        if (count * kShare >= most && ratio > look.ratio)
            look = {ground.first, colour, ratio};
    }
    return look;
}

Problems readabilityProblems(HWND parent)
{
    const Picture screen = Picture::ofScreen();
    Problems problems;
    collect(parent, screen, problems);
    return problems;
}

Problems readabilityProblemsWithPopups(HWND parent)
{
    struct Found
    {
        HWND parent;
        std::vector<HWND> windows;
    } found{parent, {parent}};
    const auto collectPopup = [](HWND window, LPARAM result) -> BOOL {
        auto& found = *reinterpret_cast<Found*>(result);
        if (window != found.parent && ::IsWindowVisible(window))
            found.windows.push_back(window);
        return TRUE;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), collectPopup, reinterpret_cast<LPARAM>(&found));
    Problems problems;
    for (const HWND window : found.windows)
        std::ranges::copy(readabilityProblems(window), std::back_inserter(problems));
    return problems;
}
