#include <afxwin.h>

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

} // namespace

CMenu::CMenu() = default;

CMenu::~CMenu()
{
    if (m_hMenu)
        DestroyMenu();
}

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
    if (!menu || m_hMenu)
        return FALSE;
    m_hMenu = menu;
    menuMap().setPermanent(menu, this);
    return TRUE;
}

HMENU CMenu::Detach()
{
    const HMENU menu = m_hMenu;
    m_hMenu = nullptr;
    if (menu)
        menuMap().removePermanent(menu);
    return menu;
}

HMENU CMenu::GetSafeHmenu() const
{
    return this ? m_hMenu : nullptr;
}

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
    return m_hMenu && ::DestroyMenu(Detach());
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR id, const CBitmap* bitmap)
{
    return ::AppendMenuW(m_hMenu, flags | MF_BITMAP, id, static_cast<LPCWSTR>(bitmap->GetSafeHandle()));
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

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* wnd, LPCRECT rect)
{
    return afxdetail::callOut(
        [&] { return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, wnd->GetSafeHwnd(), rect); });
}

BOOL CMenu::TrackPopupMenuEx(UINT flags, int x, int y, CWnd* wnd, LPTPMPARAMS params)
{
    return afxdetail::callOut(
        [&] { return ::TrackPopupMenuEx(m_hMenu, flags, x, y, wnd->GetSafeHwnd(), params); });
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}
