/// Helpers for any combo box.
#pragma once

#include <ovoui/export.h>

#include <afxwin.h>

/// Selects the first item of `combo` whose whole text is `text` and gives its index; -1, with the selection
/// as it was, when there is none.
///
/// With `ignoreCase`, `text` is put into lower case by Unicode's rules and the items by those of the C
/// library's current locale. In the "C" locale, which programs start with, the latter knows only A to Z: a
/// text with other capital letters finds only items that have them in lower case.
OVOUI_API int selectString(CComboBox& combo, const wchar_t* text, bool ignoreCase);

/// Makes a closed drop-down combo box as high as it is now and `lines` more lines, as high as its field, for
/// the open list.
OVOUI_API void resizeCombo(CComboBox& combo, DWORD lines);
