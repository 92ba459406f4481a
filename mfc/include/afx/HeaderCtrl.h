// CHeaderCtrl: the titles above columns.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

class CImageList;

/// A header control. Indices count from 0 and are -1 on failure. Image lists given to it stay the caller's.
class OVOMFC_API CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    CHeaderCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Items
    int GetItemCount() const;
    int InsertItem(int position, HDITEM* item);
    BOOL DeleteItem(int position);
    BOOL GetItem(int position, HDITEM* item) const;
    BOOL SetItem(int position, HDITEM* item);
    int GetFocusedItem() const;
    BOOL SetFocusedItem(int index);

    // Order
    int OrderToIndex(int order) const; ///< The item at a place counted from the left.
    BOOL GetOrderArray(LPINT order, int count);
    BOOL SetOrderArray(int count, LPINT order);

    // Where things are, in client pixels
    BOOL Layout(HDLAYOUT* layout);
    int HitTest(LPHDHITTESTINFO info);
    BOOL GetItemRect(int index, LPRECT rect) const;
    BOOL GetItemDropDownRect(int index, LPRECT rect) const;
    BOOL GetOverflowRect(LPRECT rect) const;
    int SetHotDivider(CPoint point);
    int SetHotDivider(int index);

    // Looks and filters
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* list); ///< Gives the list of before.
    /// A temporary object, unlike that of trees and lists. The image list behind it is the caller's.
    CImageList* CreateDragImage(int index);
    int GetBitmapMargin() const;
    int SetBitmapMargin(int width); ///< Gives the margin of before.
    int SetFilterChangeTimeout(DWORD milliseconds);
    BOOL EditFilter(int column, BOOL discardChanges);
    BOOL ClearFilter(int column);
    BOOL ClearAllFilters();

    /// Draws an item of format HDF_OWNERDRAW. Does nothing by default.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
