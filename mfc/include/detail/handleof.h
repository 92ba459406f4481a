// Internal: the handle of an object that may be null.
#pragma once

#include <afx/Gdi.h>
#include <afx/ImageList.h>
#include <afx/Wnd.h>

namespace afxdetail
{

inline HGDIOBJ handleOf(const CGdiObject* object)
{
    return object ? object->m_hObject : nullptr;
}

inline HBRUSH handleOf(const CBrush* brush)
{
    return brush ? static_cast<HBRUSH>(brush->m_hObject) : nullptr;
}

inline HBITMAP handleOf(const CBitmap* bitmap)
{
    return bitmap ? static_cast<HBITMAP>(bitmap->m_hObject) : nullptr;
}

inline HRGN handleOf(const CRgn* region)
{
    return region ? static_cast<HRGN>(region->m_hObject) : nullptr;
}

inline HPALETTE handleOf(const CPalette* palette)
{
    return palette ? static_cast<HPALETTE>(palette->m_hObject) : nullptr;
}

inline HDC handleOf(const CDC* dc)
{
    return dc ? dc->m_hDC : nullptr;
}

inline HWND handleOf(const CWnd* window)
{
    return window ? window->m_hWnd : nullptr;
}

inline HIMAGELIST handleOf(const CImageList* list)
{
    return list ? list->m_hImageList : nullptr;
}

} // namespace afxdetail
