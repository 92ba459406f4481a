/// Puts a control of a class of its own where a dialog template has a placeholder.
///
///     createInPlace(m_angle, *this, IDC_ANGLE); // in OnInitDialog; the template has a static control there
#pragma once

#include <afxwin.h>

/// Makes `control`, which has `Create(style, rect, parent, id)`, in the place of the control `id` of
/// `dialog`, which is destroyed: with its number, rectangle, order in Tab, tab stop, and text for the name,
/// hidden or disabled as it was. False, with the placeholder left alone, when there is no such control or the
/// system refuses.
template <class Control>
bool createInPlace(Control& control, CWnd& dialog, UINT id)
{
    const HWND place = ::GetDlgItem(dialog.m_hWnd, static_cast<int>(id));
    if (!place)
        return false;
    const CWnd* const placeholder = CWnd::FromHandle(place);
    CRect rect;
    placeholder->GetWindowRect(&rect);
    dialog.ScreenToClient(&rect);
    CString text;
    placeholder->GetWindowText(text);
    constexpr DWORD kTakenOver = WS_VISIBLE | WS_DISABLED | WS_TABSTOP | WS_GROUP;
    if (!control.Create(WS_CHILD | (placeholder->GetStyle() & kTakenOver), rect, &dialog, id))
        return false;
    control.SetWindowText(text);
    ::SetWindowPos(control.m_hWnd, place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ::DestroyWindow(place);
    return true;
}
