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

    // Order. `OrderToIndex` gives the item at a place from the left.
    int OrderToIndex(int order) const;

    // Where things are, in client pixels
    BOOL Layout(HDLAYOUT* layout);
    BOOL GetItemRect(int index, LPRECT rect) const;

    // Looks and filters
    CImageList* SetImageList(CImageList* list); ///< Gives the list of before.

    /// Draws an item of format HDF_OWNERDRAW; the header must override this then.

protected:
};
