// CToolBarCtrl: layout, pictures and texts, other windows.
#include <afxwin.h>
#include <afxcmn.h>

#include <detail/handleof.h>
#include <detail/resourcechain.h>
#include <detail/send.h>

using afxdetail::controlFrom;
using afxdetail::handleOf;
using afxdetail::pack;
using afxdetail::send;

int CToolBarCtrl::GetRows() const
{
    return send<int>(*this, TB_GETROWS);
}

void CToolBarCtrl::SetRows(int rows, BOOL larger, LPRECT rect)
{
    send(*this, TB_SETROWS, MAKEWPARAM(rows, larger), rect);
}

BOOL CToolBarCtrl::GetMaxSize(LPSIZE size) const
{
    return send<BOOL>(*this, TB_GETMAXSIZE, 0, size);
}

DWORD CToolBarCtrl::GetButtonSize() const
{
    return send<DWORD>(*this, TB_GETBUTTONSIZE);
}

BOOL CToolBarCtrl::SetButtonSize(CSize size)
{
    return send<BOOL>(*this, TB_SETBUTTONSIZE, 0, pack(size.cx, size.cy));
}

BOOL CToolBarCtrl::SetButtonWidth(int minimum, int maximum)
{
    return send<BOOL>(*this, TB_SETBUTTONWIDTH, 0, pack(minimum, maximum));
}

BOOL CToolBarCtrl::SetBitmapSize(CSize size)
{
    return send<BOOL>(*this, TB_SETBITMAPSIZE, 0, pack(size.cx, size.cy));
}

void CToolBarCtrl::SetButtonStructSize(int size)
{
    send(*this, TB_BUTTONSTRUCTSIZE, size);
}

BOOL CToolBarCtrl::SetIndent(int indent)
{
    return send<BOOL>(*this, TB_SETINDENT, indent);
}

int CToolBarCtrl::GetMaxTextRows() const
{
    return send<int>(*this, TB_GETTEXTROWS);
}

BOOL CToolBarCtrl::SetMaxTextRows(int rows)
{
    return send<BOOL>(*this, TB_SETMAXTEXTROWS, rows);
}

BOOL CToolBarCtrl::GetPadding(int* horizontal, int* vertical) const
{
    const DWORD padding = send<DWORD>(*this, TB_GETPADDING);
    *horizontal = LOWORD(padding);
    *vertical = HIWORD(padding);
    return padding != 0;
}

DWORD CToolBarCtrl::SetPadding(int horizontal, int vertical)
{
    return send<DWORD>(*this, TB_SETPADDING, 0, pack(horizontal, vertical));
}

void CToolBarCtrl::GetMetrics(LPTBMETRICS metrics) const
{
    send(*this, TB_GETMETRICS, 0, metrics);
}

void CToolBarCtrl::SetMetrics(LPTBMETRICS metrics)
{
    send(*this, TB_SETMETRICS, 0, metrics);
}

void CToolBarCtrl::AutoSize()
{
    send(*this, TB_AUTOSIZE);
}

DWORD CToolBarCtrl::GetStyle() const
{
    return send<DWORD>(*this, TB_GETSTYLE);
}

void CToolBarCtrl::SetStyle(DWORD style)
{
    send(*this, TB_SETSTYLE, 0, style);
}

DWORD CToolBarCtrl::GetExtendedStyle() const
{
    return send<DWORD>(*this, TB_GETEXTENDEDSTYLE);
}

DWORD CToolBarCtrl::SetExtendedStyle(DWORD style)
{
    return send<DWORD>(*this, TB_SETEXTENDEDSTYLE, 0, style);
}

DWORD CToolBarCtrl::SetDrawTextFlags(DWORD mask, DWORD flags)
{
    return send<DWORD>(*this, TB_SETDRAWTEXTFLAGS, mask, flags);
}

int CToolBarCtrl::AddBitmap(int count, UINT bitmapId)
{
    TBADDBITMAP bitmap{AfxFindResourceHandle(MAKEINTRESOURCEW(bitmapId), RT_BITMAP), bitmapId};
    return send<int>(*this, TB_ADDBITMAP, count, &bitmap);
}

int CToolBarCtrl::AddBitmap(int count, CBitmap* bitmap)
{
    TBADDBITMAP added{nullptr, reinterpret_cast<UINT_PTR>(handleOf(bitmap))};
    return send<int>(*this, TB_ADDBITMAP, count, &added);
}

BOOL CToolBarCtrl::ReplaceBitmap(LPTBREPLACEBITMAP replacement)
{
    return send<BOOL>(*this, TB_REPLACEBITMAP, 0, replacement);
}

BOOL CToolBarCtrl::ChangeBitmap(int id, int image)
{
    return send<BOOL>(*this, TB_CHANGEBITMAP, id, pack(image, 0));
}

int CToolBarCtrl::GetBitmap(int id) const
{
    return send<int>(*this, TB_GETBITMAP, id);
}

UINT CToolBarCtrl::GetBitmapFlags() const
{
    return send<UINT>(*this, TB_GETBITMAPFLAGS);
}

void CToolBarCtrl::LoadImages(int bitmapId, HINSTANCE instance)
{
    send(*this, TB_LOADIMAGES, bitmapId, instance);
}

int CToolBarCtrl::AddString(UINT stringId)
{
    return send<int>(*this, TB_ADDSTRINGW, afxdetail::moduleOfString(stringId), stringId);
}

int CToolBarCtrl::AddStrings(LPCTSTR strings)
{
    return send<int>(*this, TB_ADDSTRINGW, 0, strings);
}

int CToolBarCtrl::GetString(int index, LPTSTR text, int room) const
{
    CString whole;
    const int length = GetString(index, whole);
    if (length < 0 || room <= 0)
        return length;
    ::lstrcpynW(text, whole, room);
    return ::lstrlenW(text);
}

int CToolBarCtrl::GetString(int index, CString& text) const
{
    text.Empty();
    const int length = send<int>(*this, TB_GETSTRINGW, MAKEWPARAM(0, index));
    if (length <= 0)
        return length;
    const int bytes = (length + 1) * static_cast<int>(sizeof(TCHAR)); // the message counts bytes
    send(*this, TB_GETSTRINGW, MAKEWPARAM(bytes, index), text.GetBuffer(length));
    text.ReleaseBuffer();
    return length;
}

CImageList* CToolBarCtrl::GetImageList() const
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TB_GETIMAGELIST));
}

CImageList* CToolBarCtrl::SetImageList(CImageList* list)
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TB_SETIMAGELIST, 0, handleOf(list)));
}

CImageList* CToolBarCtrl::GetHotImageList() const
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TB_GETHOTIMAGELIST));
}

CImageList* CToolBarCtrl::SetHotImageList(CImageList* list)
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TB_SETHOTIMAGELIST, 0, handleOf(list)));
}

CImageList* CToolBarCtrl::GetDisabledImageList() const
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TB_GETDISABLEDIMAGELIST));
}

CImageList* CToolBarCtrl::SetDisabledImageList(CImageList* list)
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TB_SETDISABLEDIMAGELIST, 0, handleOf(list)));
}

CImageList* CToolBarCtrl::GetPressedImageList()
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TB_GETPRESSEDIMAGELIST));
}

CImageList* CToolBarCtrl::SetPressedImageList(int imageId, CImageList* list)
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TB_SETPRESSEDIMAGELIST, imageId, handleOf(list)));
}

BOOL CToolBarCtrl::GetColorScheme(COLORSCHEME* scheme) const
{
    return send<BOOL>(*this, TB_GETCOLORSCHEME, 0, scheme);
}

void CToolBarCtrl::SetColorScheme(const COLORSCHEME* scheme)
{
    send(*this, TB_SETCOLORSCHEME, 0, scheme);
}

HRESULT CToolBarCtrl::SetWindowTheme(LPCWSTR subAppName)
{
    return send<HRESULT>(*this, TB_SETWINDOWTHEME, 0, subAppName);
}

HRESULT CToolBarCtrl::GetDropTarget(IDropTarget** target) const
{
    return send<HRESULT>(*this, TB_GETOBJECT, &IID_IDropTarget, target);
}

void CToolBarCtrl::Customize()
{
    send(*this, TB_CUSTOMIZE);
}

void CToolBarCtrl::SaveState(HKEY root, LPCTSTR subKey, LPCTSTR value)
{
    TBSAVEPARAMS params{root, subKey, value};
    send(*this, TB_SAVERESTORE, TRUE, &params);
}

void CToolBarCtrl::RestoreState(HKEY root, LPCTSTR subKey, LPCTSTR value)
{
    TBSAVEPARAMS params{root, subKey, value};
    send(*this, TB_SAVERESTORE, FALSE, &params);
}

void CToolBarCtrl::SetOwner(CWnd* window)
{
    send(*this, TB_SETPARENT, handleOf(window));
    CWnd::SetOwner(window);
}

CToolTipCtrl* CToolBarCtrl::GetToolTips() const
{
    return controlFrom<CToolTipCtrl>(send<HWND>(*this, TB_GETTOOLTIPS));
}

void CToolBarCtrl::SetToolTips(CToolTipCtrl* tip)
{
    send(*this, TB_SETTOOLTIPS, handleOf(tip));
}
