#include "DialogFit.h"
#include "support/WindowFacts.h"

#include <commctrl.h>
#include <uxtheme.h>

#include <algorithm>

using support::classOf;
using support::textOf;

namespace
{

/// Width of a text in one line, without the mark of its letter.
int widthOf(HFONT font, const std::wstring& text)
{
    const HDC dc = ::GetDC(nullptr);
    const HGDIOBJ old = ::SelectObject(dc, font);
    RECT area{};
    ::DrawTextW(dc, text.c_str(), -1, &area, DT_CALCRECT | DT_SINGLELINE);
    ::SelectObject(dc, old);
    ::ReleaseDC(nullptr, dc);
    return area.right;
}

HFONT fontOf(HWND window)
{
    return reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
}

int clientWidth(HWND window)
{
    RECT client;
    ::GetClientRect(window, &client);
    return client.right;
}

Problems compare(const std::wstring& what, int needed, int available)
{
    if (needed <= available)
        return {};
    return {what + L" needs " + std::to_wstring(needed) + L" pixels and has " + std::to_wstring(available)};
}

bool showsText(HWND control)
{
    const LONG style = ::GetWindowLongW(control, GWL_STYLE);
    const std::wstring name = classOf(control);
    if (::lstrcmpiW(name.c_str(), L"Static") == 0)
        return (style & SS_TYPEMASK) <= SS_RIGHT;
    return ::lstrcmpiW(name.c_str(), L"Button") == 0 && (style & BS_TYPEMASK) != BS_OWNERDRAW;
}

/// What a button needs beside its text: its edges and the rectangle of the focus, or a box and the gap behind
/// it.
int besideText(HWND control)
{
    if (::lstrcmpiW(classOf(control).c_str(), L"Button") != 0)
        return 0;
    const int edges = 2 * ::GetSystemMetrics(SM_CXEDGE);
    const LONG type = ::GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK;
    const bool push = type <= BS_DEFPUSHBUTTON;
    return edges + (push ? 4 * ::GetSystemMetrics(SM_CXBORDER) : ::GetSystemMetrics(SM_CXMENUCHECK));
}

Problems captionProblems(HWND dialog)
{
    const LONG style = ::GetWindowLongW(dialog, GWL_STYLE);
    if ((style & WS_CAPTION) != WS_CAPTION)
        return {};
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const HFONT font = ::CreateFontIndirectW(&metrics.lfCaptionFont);
    const int buttons = 1 + 2 * ((style & (WS_MAXIMIZEBOX | WS_MINIMIZEBOX)) != 0);
    const int needed =
        widthOf(font, textOf(dialog)) + buttons * metrics.iCaptionWidth + 2 * ::GetSystemMetrics(SM_CXEDGE);
    ::DeleteObject(font);
    return compare(L"the caption \"" + textOf(dialog) + L"\"", needed, clientWidth(dialog));
}

INT_PTR CALLBACK doNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

} // namespace

HiddenDialog::HiddenDialog(HMODULE module, UINT dialog, LANGID language)
{
    const HRSRC found = ::FindResourceExW(module, RT_DIALOG, MAKEINTRESOURCEW(dialog), language);
    const void* const bytes = ::LockResource(::LoadResource(module, found));
    m_handle =
        ::CreateDialogIndirectParamW(module, static_cast<const DLGTEMPLATE*>(bytes), nullptr, doNothing, 0);
}

HiddenDialog::~HiddenDialog()
{
    ::DestroyWindow(m_handle);
}

Problems fitProblems(HWND control, const std::wstring& text)
{
    return compare(L"control " + std::to_wstring(::GetDlgCtrlID(control)) + L", \"" + text + L"\",",
                   widthOf(fontOf(control), text) + besideText(control), clientWidth(control));
}

Problems fitProblems(HWND dialog)
{
    Problems problems = captionProblems(dialog);
    for (HWND control = ::GetWindow(dialog, GW_CHILD); control; control = ::GetWindow(control, GW_HWNDNEXT))
        if (showsText(control))
            std::ranges::copy(fitProblems(control, textOf(control)), std::back_inserter(problems));
    return problems;
}

Problems headingProblems(HWND list)
{
    Problems problems;
    const auto header = reinterpret_cast<HWND>(::SendMessageW(list, LVM_GETHEADER, 0, 0));
    const int columns = static_cast<int>(::SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    // The margins at both ends, and without visual styles the edges.
    const int beside = (::IsAppThemed() ? 6 : 8) * ::GetSystemMetrics(SM_CXEDGE);
    for (int i = 0; i < columns; ++i) {
        wchar_t text[256];
        HDITEMW item{};
        item.mask = HDI_TEXT | HDI_WIDTH;
        item.pszText = text;
        item.cchTextMax = 256;
        ::SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        std::ranges::copy(compare(std::wstring(L"the heading \"") + text + L"\"",
                                  widthOf(fontOf(header), text) + beside, item.cxy),
                          std::back_inserter(problems));
    }
    return problems;
}
