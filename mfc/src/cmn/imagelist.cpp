#include <afxwin.h>
#include <afxcmn.h>

#include <detail/handlemap.h>
#include <detail/handleof.h>

using afxdetail::handleOf;

IMPLEMENT_DYNCREATE(CImageList, CObject)

namespace
{

struct ImageListTraits
{
    using Object = CImageList;
    using Handle = HIMAGELIST;
    static std::unique_ptr<CImageList> make(HIMAGELIST handle)
    {
        auto list = std::make_unique<CImageList>();
        list->m_hImageList = handle;
        return list;
    }
    static void forget(CImageList& list) { list.m_hImageList = nullptr; }
};

afxdetail::HandleMap<ImageListTraits>& imageListMap()
{
    return afxdetail::handleMap<ImageListTraits>();
}

} // namespace

CImageList::CImageList() = default;

CImageList::~CImageList()
{
    DeleteImageList();
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST list)
{
    return imageListMap().fromHandle(list);
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST list)
{
    return imageListMap().fromHandlePermanent(list);
}

void PASCAL CImageList::DeleteTempMap()
{
    imageListMap().deleteTemporary();
}

BOOL CImageList::Create(int cx, int cy, UINT flags, int initial, int grow)
{
    return adopt(::ImageList_Create(cx, cy, flags, initial, grow));
}

BOOL CImageList::Create(UINT bitmapId, int cx, int grow, COLORREF mask)
{
    return Create(MAKEINTRESOURCEW(bitmapId), cx, grow, mask);
}

BOOL CImageList::Create(LPCTSTR bitmapName, int cx, int grow, COLORREF mask)
{
    const HINSTANCE module = AfxFindResourceHandle(bitmapName, RT_BITMAP);
    return adopt(::ImageList_LoadImageW(module, bitmapName, cx, grow, mask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Create(CImageList& list1, int image1, CImageList& list2, int image2, int dx, int dy)
{
    return adopt(::ImageList_Merge(list1, image1, list2, image2, dx, dy));
}

BOOL CImageList::Create(CImageList* source)
{
    return adopt(::ImageList_Duplicate(handleOf(source)));
}

BOOL CImageList::Attach(HIMAGELIST list)
{
    if (!list || m_hImageList)
        return FALSE;
    m_hImageList = list;
    imageListMap().setPermanent(list, this);
    return TRUE;
}

BOOL CImageList::adopt(HIMAGELIST list)
{
    ASSERT(!m_hImageList);
    if (!list)
        return FALSE;
    Detach();
    return Attach(list);
}

HIMAGELIST CImageList::Detach()
{
    const HIMAGELIST list = m_hImageList;
    if (list)
        imageListMap().remove(list);
    m_hImageList = nullptr;
    return list;
}

BOOL CImageList::DeleteImageList()
{
    return m_hImageList && ::ImageList_Destroy(Detach());
}

HIMAGELIST CImageList::GetSafeHandle() const
{
    return handleOf(this); // documented for a null pointer too
}

CImageList::operator HIMAGELIST() const
{
    return m_hImageList;
}

int CImageList::GetImageCount() const
{
    return ::ImageList_GetImageCount(m_hImageList);
}

BOOL CImageList::SetImageCount(UINT count)
{
    return ::ImageList_SetImageCount(m_hImageList, count);
}

int CImageList::Add(CBitmap* image, CBitmap* mask)
{
    return ::ImageList_Add(m_hImageList, handleOf(image), handleOf(mask));
}

int CImageList::Add(CBitmap* image, COLORREF mask)
{
    return ::ImageList_AddMasked(m_hImageList, handleOf(image), mask);
}

int CImageList::Add(HICON icon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, -1, icon);
}

BOOL CImageList::Remove(int image)
{
    return ::ImageList_Remove(m_hImageList, image);
}

BOOL CImageList::Replace(int image, CBitmap* bitmap, CBitmap* mask)
{
    return ::ImageList_Replace(m_hImageList, image, handleOf(bitmap), handleOf(mask));
}

int CImageList::Replace(int image, HICON icon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, image, icon);
}

HICON CImageList::ExtractIcon(int image)
{
    return ::ImageList_GetIcon(m_hImageList, image, ILD_NORMAL);
}

BOOL CImageList::GetImageInfo(int image, IMAGEINFO* info) const
{
    return ::ImageList_GetImageInfo(m_hImageList, image, info);
}

BOOL CImageList::Copy(int to, int from, UINT flags)
{
    return ::ImageList_Copy(m_hImageList, to, m_hImageList, from, flags);
}

BOOL CImageList::Copy(int to, CImageList* source, int from, UINT flags)
{
    return ::ImageList_Copy(m_hImageList, to, handleOf(source), from, flags);
}

BOOL CImageList::SetOverlayImage(int image, int overlay)
{
    return ::ImageList_SetOverlayImage(m_hImageList, image, overlay);
}

COLORREF CImageList::SetBkColor(COLORREF colour)
{
    return ::ImageList_SetBkColor(m_hImageList, colour);
}

COLORREF CImageList::GetBkColor() const
{
    return ::ImageList_GetBkColor(m_hImageList);
}

BOOL CImageList::Draw(CDC* dc, int image, POINT point, UINT style)
{
    return ::ImageList_Draw(m_hImageList, image, handleOf(dc), point.x, point.y, style);
}

BOOL CImageList::DrawEx(CDC* dc, int image, POINT point, SIZE size, COLORREF background, COLORREF foreground,
                        UINT style)
{
    return ::ImageList_DrawEx(m_hImageList, image, handleOf(dc), point.x, point.y, size.cx, size.cy,
                              background, foreground, style);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* params)
{
    params->cbSize = sizeof *params;
    params->himl = m_hImageList;
    return ::ImageList_DrawIndirect(params);
}

BOOL CImageList::DrawIndirect(CDC* dc, int image, POINT point, SIZE size, POINT origin, UINT style, DWORD rop,
                              COLORREF background, COLORREF foreground, DWORD state, DWORD frame,
                              COLORREF effect)
{
    IMAGELISTDRAWPARAMS params{};
    params.i = image;
    params.hdcDst = handleOf(dc);
    params.x = point.x;
    params.y = point.y;
    params.cx = size.cx;
    params.cy = size.cy;
    params.xBitmap = origin.x;
    params.yBitmap = origin.y;
    params.rgbBk = background;
    params.rgbFg = foreground;
    params.fStyle = style;
    params.dwRop = rop;
    params.fState = state;
    params.Frame = frame;
    params.crEffect = effect;
    return DrawIndirect(&params);
}

BOOL CImageList::BeginDrag(int image, CPoint hotSpot)
{
    return ::ImageList_BeginDrag(m_hImageList, image, hotSpot.x, hotSpot.y);
}

void PASCAL CImageList::EndDrag()
{
    ::ImageList_EndDrag();
}

BOOL PASCAL CImageList::DragEnter(CWnd* lock, CPoint point)
{
    return ::ImageList_DragEnter(handleOf(lock), point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd* lock)
{
    return ::ImageList_DragLeave(handleOf(lock));
}

BOOL PASCAL CImageList::DragMove(CPoint point)
{
    return ::ImageList_DragMove(point.x, point.y);
}

BOOL PASCAL CImageList::DragShowNolock(BOOL show)
{
    return ::ImageList_DragShowNolock(show);
}

BOOL CImageList::SetDragCursorImage(int image, CPoint hotSpot)
{
    return ::ImageList_SetDragCursorImage(m_hImageList, image, hotSpot.x, hotSpot.y);
}

CImageList* PASCAL CImageList::GetDragImage(LPPOINT position, LPPOINT hotSpot)
{
    return FromHandle(::ImageList_GetDragImage(position, hotSpot));
}
