// CTreeCtrl: the parts of an item.
#include <afxwin.h>
#include <afxcmn.h>

#include <detail/send.h>

using afxdetail::send;

namespace
{

constexpr UINT kUnchecked = 1; // state images of check boxes
constexpr UINT kChecked = 2;

/// An item with the fields of `mask` filled in; zeros when there is no such item.
TVITEMEX itemWith(const CTreeCtrl& tree, HTREEITEM item, UINT mask)
{
    TVITEMEX data{};
    data.mask = TVIF_HANDLE | mask;
    data.hItem = item;
    send(tree, TVM_GETITEMW, 0, &data);
    return data;
}

} // namespace

BOOL CTreeCtrl::GetItem(TVITEM* item) const
{
    return send<BOOL>(*this, TVM_GETITEMW, 0, item);
}

BOOL CTreeCtrl::SetItem(TVITEM* item)
{
    return send<BOOL>(*this, TVM_SETITEMW, 0, item);
}

BOOL CTreeCtrl::SetItem(HTREEITEM item, UINT mask, LPCTSTR text, int image, int selectedImage, UINT state,
                        UINT stateMask, LPARAM data)
{
    TVITEM changes{};
    changes.mask = mask | TVIF_HANDLE;
    changes.hItem = item;
    changes.pszText = const_cast<LPTSTR>(text);
    changes.iImage = image;
    changes.iSelectedImage = selectedImage;
    changes.state = state;
    changes.stateMask = stateMask;
    changes.lParam = data;
    return SetItem(&changes);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM item) const
{
    return itemWith(*this, item, TVIF_CHILDREN).cChildren != 0;
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const
{
    return afxdetail::textOfAnyLength([this, item](LPTSTR buffer, int room) {
        TVITEM data{};
        data.mask = TVIF_HANDLE | TVIF_TEXT;
        data.hItem = item;
        data.pszText = buffer;
        data.cchTextMax = room;
        *buffer = 0;
        if (!GetItem(&data))
            return 0;
        // A parent that supplies texts on demand may give a pointer of its own.
        if (data.pszText && data.pszText != buffer)
            ::lstrcpynW(buffer, data.pszText, room);
        return ::lstrlenW(buffer);
    });
}

BOOL CTreeCtrl::SetItemText(HTREEITEM item, LPCTSTR text)
{
    return SetItem(item, TVIF_TEXT, text, 0, 0, 0, 0, 0);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const
{
    return static_cast<DWORD_PTR>(itemWith(*this, item, TVIF_PARAM).lParam);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR data)
{
    return SetItem(item, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(data));
}

UINT CTreeCtrl::GetItemState(HTREEITEM item, UINT mask) const
{
    return send<UINT>(*this, TVM_GETITEMSTATE, item, mask) & mask;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM item, UINT state, UINT mask)
{
    return SetItem(item, TVIF_STATE, nullptr, 0, 0, state, mask, 0);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM item, int& image, int& selectedImage) const
{
    TVITEM data{};
    data.mask = TVIF_HANDLE | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    data.hItem = item;
    if (!GetItem(&data))
        return FALSE;
    image = data.iImage;
    selectedImage = data.iSelectedImage;
    return TRUE;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM item, int image, int selectedImage)
{
    return SetItem(item, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, image, selectedImage, 0, 0, 0);
}

UINT CTreeCtrl::GetItemStateEx(HTREEITEM item) const
{
    return itemWith(*this, item, TVIF_STATEEX).uStateEx;
}

BOOL CTreeCtrl::SetItemStateEx(HTREEITEM item, UINT state)
{
    TVITEMEX data{};
    data.mask = TVIF_HANDLE | TVIF_STATEEX;
    data.hItem = item;
    data.uStateEx = state;
    return send<BOOL>(*this, TVM_SETITEMW, 0, &data);
}

int CTreeCtrl::GetItemExpandedImageIndex(HTREEITEM item) const
{
    return itemWith(*this, item, TVIF_EXPANDEDIMAGE).iExpandedImage;
}

BOOL CTreeCtrl::SetItemExpandedImageIndex(HTREEITEM item, int image)
{
    TVITEMEX data{};
    data.mask = TVIF_HANDLE | TVIF_EXPANDEDIMAGE;
    data.hItem = item;
    data.iExpandedImage = image;
    return send<BOOL>(*this, TVM_SETITEMW, 0, &data);
}

BOOL CTreeCtrl::GetCheck(HTREEITEM item) const
{
    return GetItemState(item, TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(kChecked);
}

BOOL CTreeCtrl::SetCheck(HTREEITEM item, BOOL check)
{
    return SetItemState(item, INDEXTOSTATEIMAGEMASK(check ? kChecked : kUnchecked), TVIS_STATEIMAGEMASK);
}
