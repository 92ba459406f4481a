// CImageList.
#include <afxwin.h>
#include <afxcmn.h>

#include <detail/handlemap.h>

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

HBITMAP bitmapOf(const CBitmap* bitmap)
{
    return static_cast<HBITMAP>(bitmap->GetSafeHandle());
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

BOOL CImageList::Attach(HIMAGELIST list)
{
    ASSERT(!m_hImageList);
    if (!list || m_hImageList)
        return FALSE;
    m_hImageList = list;
    imageListMap().setPermanent(list, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    const HIMAGELIST list = std::exchange(m_hImageList, nullptr);
    if (list)
        imageListMap().removePermanent(list);
    return list;
}

BOOL CImageList::DeleteImageList()
{
    return m_hImageList && ::ImageList_Destroy(Detach());
}

HIMAGELIST CImageList::GetSafeHandle() const
{
    return this ? m_hImageList : nullptr;
}

CImageList::operator HIMAGELIST() const
{
    return GetSafeHandle();
}

BOOL CImageList::Create(int cx, int cy, UINT flags, int initial, int grow)
{
    return Attach(::ImageList_Create(cx, cy, flags, initial, grow));
}

BOOL CImageList::Create(UINT bitmapId, int cx, int grow, COLORREF mask)
{
    return Create(MAKEINTRESOURCEW(bitmapId), cx, grow, mask);
}

BOOL CImageList::Create(LPCTSTR bitmapName, int cx, int grow, COLORREF mask)
{
    return Attach(
        ::ImageList_LoadBitmap(AfxFindResourceHandle(bitmapName, RT_BITMAP), bitmapName, cx, grow, mask));
}

BOOL CImageList::Create(CImageList& list1, int image1, CImageList& list2, int image2, int dx, int dy)
{
    return Attach(::ImageList_Merge(list1, image1, list2, image2, dx, dy));
}

BOOL CImageList::Create(CImageList* source)
{
    return Attach(::ImageList_Duplicate(source->GetSafeHandle()));
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
    return ::ImageList_Add(m_hImageList, bitmapOf(image), bitmapOf(mask));
}

int CImageList::Add(CBitmap* image, COLORREF mask)
{
    return ::ImageList_AddMasked(m_hImageList, bitmapOf(image), mask);
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
    return ::ImageList_Replace(m_hImageList, image, bitmapOf(bitmap), bitmapOf(mask));
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
    return ::ImageList_Copy(m_hImageList, to, source->GetSafeHandle(), from, flags);
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
    return ::ImageList_Draw(m_hImageList, image, dc->GetSafeHdc(), point.x, point.y, style);
}

BOOL CImageList::DrawEx(CDC* dc, int image, POINT point, SIZE size, COLORREF background, COLORREF foreground,
                        UINT style)
{
    return ::ImageList_DrawEx(m_hImageList, image, dc->GetSafeHdc(), point.x, point.y, size.cx, size.cy, background,
                              foreground, style);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* params)
{
    params->cbSize = sizeof *params;
    params->himl = m_hImageList;
    return ::ImageList_DrawIndirect(params);
}

BOOL CImageList::DrawIndirect(CDC* dc, int image, POINT point, SIZE size, POINT origin, UINT style, DWORD rop,
                              COLORREF background, COLORREF foreground, DWORD state, DWORD frame, COLORREF effect)
{
    IMAGELISTDRAWPARAMS params{};
    params.hdcDst = dc->GetSafeHdc();
    params.i = image;
    params.x = point.x;
    params.y = point.y;
    params.cx = size.cx;
    params.cy = size.cy;
    params.xBitmap = origin.x;
    params.yBitmap = origin.y;
    params.fStyle = style;
    params.dwRop = rop;
    params.rgbBk = background;
    params.rgbFg = foreground;
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
    return ::ImageList_DragEnter(lock->GetSafeHwnd(), point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd* lock)
{
    return ::ImageList_DragLeave(lock->GetSafeHwnd());
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
