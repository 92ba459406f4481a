// Internal to the window engine: the owner-drawn items of menus.
#pragma once

#include <afxwin.h>

namespace afxdetail
{

/// The menu object, among the window's menu bar and the popup about to be shown, that has an item with this
/// number; null when there is none. A message that asks for an item's size does not name the menu.
CMenu* menuWithItem(const CWnd& window, UINT id);

} // namespace afxdetail
