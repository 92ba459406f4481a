#include "wndmenus.h"

#include <detail/threadstate.h>

namespace
{

bool hasItem(HMENU menu, UINT id)
{
    const int count = ::GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_ID;
        if (::GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &item) && item.wID == id)
            return true;
    }
    return false;
}

CMenu* objectWithItem(HMENU menu, UINT id)
{
    CMenu* object = menu ? CMenu::FromHandlePermanent(menu) : nullptr;
    return object && hasItem(menu, id) ? object : nullptr;
}

} // namespace

CMenu* afxdetail::menuWithItem(const CWnd& window, UINT id)
{
    CMenu* popup = objectWithItem(threadState().openingMenu, id);
    return popup ? popup : objectWithItem(::GetMenu(window.m_hWnd), id);
}
