// The width of a list's column.
#pragma once

#include "Resolution.h"

#include <afxcmn.h>

#include <algorithm>

/// `usual` pixels at 96 dots per inch, or more when `text`, in the font of the list, needs them: users may
/// have chosen a large one.
inline int columnWidth(CListCtrl& list, int usual, LPCTSTR text)
{
    constexpr int kMargins = 18; // of a heading without visual styles; those of a cell are narrower
    return std::max(scaled(list, usual), list.GetStringWidth(text) + scaled(list, kMargins));
}
