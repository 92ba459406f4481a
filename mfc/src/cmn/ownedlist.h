// Internal to the common controls: image lists that a control makes for its caller.
#pragma once

#include <afx/ImageList.h>

namespace afxdetail
{

/// A new object for a new list, both the caller's; NULL for NULL.
inline CImageList* ownedList(HIMAGELIST list)
{
    if (!list)
        return nullptr;
    auto* const object = new CImageList;
    object->Attach(list);
    return object;
}

} // namespace afxdetail
