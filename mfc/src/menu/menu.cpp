#include "trackedmenu.h"

#include <detail/handlemap.h>
#include <detail/pending.h>

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace
{

struct MenuTraits
{
    using Object = CMenu;
    using Handle = HMENU;
    static std::unique_ptr<CMenu> make(HMENU handle)
    {
        auto menu = std::make_unique<CMenu>();
        menu->m_hMenu = handle;
        return menu;
    }
    static void forget(CMenu& menu) { menu.m_hMenu = nullptr; }
};

afxdetail::HandleMap<MenuTraits>& menuMap()
{
    return afxdetail::handleMap<MenuTraits>();
}

LPCTSTR itemOf(const CBitmap* bitmap)
{
    return static_cast<LPCTSTR>(bitmap->GetSafeHandle());
}

} // namespace

CMenu::CMenu() = default;

CMenu::~CMenu()
{
    if (m_hMenu)
        DestroyMenu();
}

// Objects and handles

CMenu* PASCAL CMenu::FromHandle(HMENU menu)
{
    return menuMap().fromHandle(menu);
}

CMenu* PASCAL CMenu::FromHandlePermanent(HMENU menu)
{
    return menuMap().fromHandlePermanent(menu);
}

void PASCAL CMenu::DeleteTempMap()
{
    menuMap().deleteTemporary();
}

BOOL CMenu::Attach(HMENU menu)
{
    if (!menu || m_hMenu || FromHandlePermanent(menu))
        return FALSE;
    m_hMenu = menu;
    menuMap().setPermanent(menu, this);
    return TRUE;
}

HMENU CMenu::Detach()
{
    const HMENU menu = m_hMenu;
    if (!menu)
        return nullptr;
    if (FromHandlePermanent(menu) == this)
        menuMap().removePermanent(menu);
    else
        menuMap().remove(menu); // a temporary object: it stands for this menu no longer
    m_hMenu = nullptr;
    return menu;
}

HMENU CMenu::GetSafeHmenu() const
{
    return this ? m_hMenu : nullptr;
}

// Making and destroying

BOOL CMenu::CreateMenu()
{
    return Attach(::CreateMenu());
}

BOOL CMenu::CreatePopupMenu()
{
    return Attach(::CreatePopupMenu());
}

BOOL CMenu::LoadMenu(LPCTSTR name)
{
    return Attach(::LoadMenuW(AfxFindResourceHandle(name, RT_MENU), name));
}

BOOL CMenu::LoadMenu(UINT id)
{
    return LoadMenu(MAKEINTRESOURCEW(id));
}

BOOL CMenu::LoadMenuIndirect(const void* menuTemplate)
{
    return Attach(::LoadMenuIndirectW(menuTemplate));
}

BOOL CMenu::DestroyMenu()
{
    const HMENU menu = Detach();
    if (!menu)
        return FALSE;
    menuMap().remove(menu); // no object must be found for a menu that is gone
    return ::DestroyMenu(menu);
}

// Items

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR id, LPCTSTR item)
{
    return ::AppendMenuW(m_hMenu, flags, id, item);
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR id, const CBitmap* bitmap)
{
    return AppendMenu(flags | MF_BITMAP, id, itemOf(bitmap));
}

BOOL CMenu::InsertMenu(UINT position, UINT flags, UINT_PTR id, LPCTSTR item)
{
    return ::InsertMenuW(m_hMenu, position, flags, id, item);
}

BOOL CMenu::InsertMenu(UINT position, UINT flags, UINT_PTR id, const CBitmap* bitmap)
{
    return InsertMenu(position, flags | MF_BITMAP, id, itemOf(bitmap));
}

BOOL CMenu::ModifyMenu(UINT position, UINT flags, UINT_PTR id, LPCTSTR item)
{
    return ::ModifyMenuW(m_hMenu, position, flags, id, item);
}

BOOL CMenu::ModifyMenu(UINT position, UINT flags, UINT_PTR id, const CBitmap* bitmap)
{
    return ModifyMenu(position, flags | MF_BITMAP, id, itemOf(bitmap));
}

BOOL CMenu::InsertMenuItem(UINT item, LPMENUITEMINFO info, BOOL byPosition)
{
    info->cbSize = sizeof *info;
    return ::InsertMenuItemW(m_hMenu, item, byPosition, info);
}

BOOL CMenu::GetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition)
{
    info->cbSize = sizeof *info;
    return ::GetMenuItemInfoW(m_hMenu, item, byPosition, info);
}

BOOL CMenu::SetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition)
{
    info->cbSize = sizeof *info;
    return ::SetMenuItemInfoW(m_hMenu, item, byPosition, info);
}

BOOL CMenu::SetMenuItemBitmaps(UINT position, UINT flags, const CBitmap* unchecked, const CBitmap* checked)
{
    return ::SetMenuItemBitmaps(m_hMenu, position, flags, static_cast<HBITMAP>(unchecked->GetSafeHandle()),
                                static_cast<HBITMAP>(checked->GetSafeHandle()));
}

int CMenu::GetMenuString(UINT item, CString& text, UINT flags) const
{
    const int length = ::GetMenuStringW(m_hMenu, item, nullptr, 0, flags);
    if (length > 0) {
        ::GetMenuStringW(m_hMenu, item, text.GetBuffer(length), length + 1, flags);
        text.ReleaseBuffer();
    } else {
        text.Empty();
    }
    return text.GetLength();
}

// The menu as a whole

BOOL CMenu::GetMenuInfo(LPMENUINFO info) const
{
    info->cbSize = sizeof *info;
    return ::GetMenuInfo(m_hMenu, info);
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* wnd, LPCRECT rect)
{
    const afxdetail::TrackedMenu tracked(m_hMenu);
    return afxdetail::callOut(
        [&] { return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, wnd->GetSafeHwnd(), rect); });
}

BOOL CMenu::TrackPopupMenuEx(UINT flags, int x, int y, CWnd* wnd, LPTPMPARAMS params)
{
    const afxdetail::TrackedMenu tracked(m_hMenu);
    return afxdetail::callOut(
        [&] { return ::TrackPopupMenuEx(m_hMenu, flags, x, y, wnd->GetSafeHwnd(), params); });
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}
