// CImageList: many small pictures of one size.
#pragma once

#include <afx.h>
#include <atltypes.h>
#include <commctrl.h>

class CBitmap;
class CDC;
class CWnd;

/// Wraps one image list and destroys it when destroyed, unless the object is temporary.
///
/// Indices count from 0 and are -1 on failure. A control that is given an image list does not own it:
/// keep the object alive as long as the control shows it.
class OVOMFC_API CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList();
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;
    ~CImageList() override;

    /// The object of a handle: the one it is attached to, else a temporary one. NULL for NULL.
    static CImageList* PASCAL FromHandle(HIMAGELIST list);
    /// The object that the handle is attached to, or NULL.
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST list);
    /// Deletes the temporary objects of this thread; their image lists stay alive.
    static void PASCAL DeleteTempMap();

    // Making one. FALSE on failure. An object that has a list already is an error.
    BOOL Create(int cx, int cy, UINT flags, int initial, int grow); ///< `flags` are ILC_ bits.
    /// From a bitmap of pictures `cx` pixels wide, found along the resource chain. `mask` is the colour to be
    /// transparent, CLR_NONE for none.
    BOOL Create(UINT bitmapId, int cx, int grow, COLORREF mask);
    BOOL Create(LPCTSTR bitmapName, int cx, int grow, COLORREF mask);
    /// One picture: `image2` laid over `image1`, displaced by (dx, dy).
    BOOL Create(CImageList& list1, int image1, CImageList& list2, int image2, int dx, int dy);
    BOOL Create(CImageList* source); ///< A copy.

    /// Takes over a handle. FALSE for NULL and for an object that has a list already.
    BOOL Attach(HIMAGELIST list);
    /// Gives the handle away; the caller destroys it. NULL when there is none.
    HIMAGELIST Detach();
    BOOL DeleteImageList();           ///< FALSE when there is none.
    HIMAGELIST GetSafeHandle() const; ///< The handle; NULL when there is none, or no object.
    operator HIMAGELIST() const;

    // Pictures. Bitmaps and icons are copied.
    int GetImageCount() const;
    BOOL SetImageCount(UINT count);
    int Add(CBitmap* image, CBitmap* mask); ///< Gives the first new index; the mask may be NULL.
    int Add(CBitmap* image, COLORREF mask); ///< As above. Changes the bitmap.
    int Add(HICON icon);
    BOOL Remove(int image); ///< -1 removes all.
    BOOL Replace(int image, CBitmap* bitmap, CBitmap* mask);
    int Replace(int image, HICON icon);
    HICON ExtractIcon(int image); ///< The caller destroys the icon.
    BOOL GetImageInfo(int image, IMAGEINFO* info) const;
    BOOL Copy(int to, int from, UINT flags = ILCF_MOVE);
    BOOL Copy(int to, CImageList* source, int from, UINT flags = ILCF_MOVE);
    BOOL SetOverlayImage(int image, int overlay); ///< `overlay` counts from 1.
    COLORREF SetBkColor(COLORREF colour);         ///< Gives the colour of before. CLR_NONE: transparent.
    COLORREF GetBkColor() const;

    // Drawing. Styles are ILD_ bits.
    BOOL Draw(CDC* dc, int image, POINT point, UINT style);
    BOOL DrawEx(CDC* dc, int image, POINT point, SIZE size, COLORREF background, COLORREF foreground,
                UINT style);
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* params); ///< Sets the size and the list itself.
    BOOL DrawIndirect(CDC* dc, int image, POINT point, SIZE size, POINT origin, UINT style = ILD_NORMAL,
                      DWORD rop = SRCCOPY, COLORREF background = CLR_DEFAULT,
                      COLORREF foreground = CLR_DEFAULT, DWORD state = ILS_NORMAL, DWORD frame = 0,
                      COLORREF effect = CLR_DEFAULT);

    // One picture being dragged. Points are relative to the locked window (no window: the screen).
    BOOL BeginDrag(int image, CPoint hotSpot);
    static void PASCAL EndDrag();
    static BOOL PASCAL DragEnter(CWnd* lock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* lock);
    static BOOL PASCAL DragMove(CPoint point);
    static BOOL PASCAL DragShowNolock(BOOL show);
    BOOL SetDragCursorImage(int image, CPoint hotSpot); ///< Merges a cursor into the dragged picture.
    /// The temporary list being dragged, NULL when none. Either pointer may be NULL.
    static CImageList* PASCAL GetDragImage(LPPOINT position, LPPOINT hotSpot);

    HIMAGELIST m_hImageList = nullptr;

private:
    BOOL adopt(HIMAGELIST list);
};
