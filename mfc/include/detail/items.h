// Internal: what list boxes and combo boxes have in common.
#pragma once

#include <detail/send.h>

namespace afxdetail
{

/// The text of an item, by the messages that give its length and copy it. Empty when there is no such item.
inline void itemText(const CWnd& control, UINT lengthMessage, UINT textMessage, int index, CString& text)
{
    const int length = send<int>(control, lengthMessage, index);
    text.Empty();
    if (length < 0)
        return;
    send(control, textMessage, index, text.GetBuffer(length));
    text.ReleaseBuffer(length);
}

/// Hands the messages of an owner-drawn control to its operations; false for any other message.
template <class Control>
bool drawsItself(Control& control, UINT message, LPARAM lParam, LRESULT* result)
{
    switch (message) {
    case WM_DRAWITEM:
        control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return true;
    case WM_MEASUREITEM:
        control.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return true;
    case WM_COMPAREITEM:
        *result = control.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return true;
    case WM_DELETEITEM:
        control.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return true;
    default:
        return false;
    }
}

} // namespace afxdetail
