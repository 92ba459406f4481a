#include <afxwin.h>

#include <detail/send.h>

using afxdetail::send;

IMPLEMENT_DYNAMIC(CStatic, CWnd)

CStatic::CStatic() = default;

BOOL CStatic::Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_STATICW, text, style, rect, parent, id);
}

HBITMAP CStatic::SetBitmap(HBITMAP bitmap)
{
    return send<HBITMAP>(*this, STM_SETIMAGE, IMAGE_BITMAP, bitmap);
}

HBITMAP CStatic::GetBitmap() const
{
    return send<HBITMAP>(*this, STM_GETIMAGE, IMAGE_BITMAP);
}

HICON CStatic::SetIcon(HICON icon)
{
    return send<HICON>(*this, STM_SETIMAGE, IMAGE_ICON, icon);
}

HICON CStatic::GetIcon() const
{
    return send<HICON>(*this, STM_GETIMAGE, IMAGE_ICON);
}

HCURSOR CStatic::SetCursor(HCURSOR cursor)
{
    return send<HCURSOR>(*this, STM_SETIMAGE, IMAGE_CURSOR, cursor);
}

HCURSOR CStatic::GetCursor()
{
    return send<HCURSOR>(*this, STM_GETIMAGE, IMAGE_CURSOR);
}

HENHMETAFILE CStatic::SetEnhMetaFile(HENHMETAFILE metafile)
{
    return send<HENHMETAFILE>(*this, STM_SETIMAGE, IMAGE_ENHMETAFILE, metafile);
}

HENHMETAFILE CStatic::GetEnhMetaFile() const
{
    return send<HENHMETAFILE>(*this, STM_GETIMAGE, IMAGE_ENHMETAFILE);
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
