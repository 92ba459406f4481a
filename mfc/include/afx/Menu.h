// CMenu: a menu.
#pragma once

#include <afx.h>

class CBitmap;
class CWnd;

/// Wraps one menu and destroys it when destroyed, unless the object is temporary. A menu that is set on a window
/// or inserted into another menu belongs to those: detach it then.
class OVOMFC_API CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)

public:
    CMenu();
    ~CMenu() override;

    HMENU m_hMenu = nullptr;

    static CMenu* PASCAL FromHandle(HMENU menu);
    static CMenu* PASCAL FromHandlePermanent(HMENU menu);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HMENU menu);
    HMENU Detach();
    HMENU GetSafeHmenu() const; ///< NULL when there is no menu, or no object.
    operator HMENU() const { return m_hMenu; }
    BOOL operator==(const CMenu& other) const { return m_hMenu == other.m_hMenu; }
    BOOL operator!=(const CMenu& other) const { return m_hMenu != other.m_hMenu; }

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    BOOL LoadMenu(LPCTSTR name); ///< Along the resource chain.
    BOOL LoadMenu(UINT id);
    BOOL LoadMenuIndirect(const void* menuTemplate);
    BOOL DestroyMenu();
    BOOL DeleteMenu(UINT position, UINT flags) { return ::DeleteMenu(m_hMenu, position, flags); }
    BOOL RemoveMenu(UINT position, UINT flags) { return ::RemoveMenu(m_hMenu, position, flags); }

    BOOL AppendMenu(UINT flags, UINT_PTR id = 0, LPCTSTR item = nullptr)
    {
        return ::AppendMenuW(m_hMenu, flags, id, item);
    }
    BOOL AppendMenu(UINT flags, UINT_PTR id, const CBitmap* bitmap);
    BOOL InsertMenu(UINT position, UINT flags, UINT_PTR id = 0, LPCTSTR item = nullptr)
    {
        return ::InsertMenuW(m_hMenu, position, flags, id, item);
    }
    BOOL ModifyMenu(UINT position, UINT flags, UINT_PTR id = 0, LPCTSTR item = nullptr)
    {
        return ::ModifyMenuW(m_hMenu, position, flags, id, item);
    }
    BOOL InsertMenuItem(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE)
    {
        return ::InsertMenuItemW(m_hMenu, item, byPosition, info);
    }
    BOOL GetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE);
    BOOL SetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE);
    BOOL SetMenuItemBitmaps(UINT position, UINT flags, const CBitmap* unchecked, const CBitmap* checked);

    UINT CheckMenuItem(UINT id, UINT check) { return ::CheckMenuItem(m_hMenu, id, check); }
    BOOL CheckMenuRadioItem(UINT first, UINT last, UINT item, UINT flags)
    {
        return ::CheckMenuRadioItem(m_hMenu, first, last, item, flags);
    }
    UINT EnableMenuItem(UINT id, UINT enable) { return static_cast<UINT>(::EnableMenuItem(m_hMenu, id, enable)); }
    BOOL SetDefaultItem(UINT item, BOOL byPosition = FALSE)
    {
        return ::SetMenuDefaultItem(m_hMenu, item, static_cast<UINT>(byPosition));
    }
    UINT GetDefaultItem(UINT flags, BOOL byPosition = FALSE)
    {
        return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(byPosition), flags);
    }

    int GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
    UINT GetMenuItemID(int position) const { return ::GetMenuItemID(m_hMenu, position); } ///< 0 separator, -1 popup
    UINT GetMenuState(UINT id, UINT flags) const { return ::GetMenuState(m_hMenu, id, flags); }
    int GetMenuString(UINT item, LPTSTR buffer, int maxCount, UINT flags) const
    {
        return ::GetMenuStringW(m_hMenu, item, buffer, maxCount, flags);
    }
    int GetMenuString(UINT item, CString& text, UINT flags) const;
    CMenu* GetSubMenu(int position) const { return FromHandle(::GetSubMenu(m_hMenu, position)); }
    BOOL SetMenuContextHelpId(DWORD id) { return ::SetMenuContextHelpId(m_hMenu, id); }
    DWORD GetMenuContextHelpId() const { return ::GetMenuContextHelpId(m_hMenu); }

    /// Shows a popup menu at a screen point and waits. With TPM_RETURNCMD it gives the chosen id, 0 for none.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* wnd, LPCRECT rect = nullptr);
    BOOL TrackPopupMenuEx(UINT flags, int x, int y, CWnd* wnd, LPTPMPARAMS params);

    // For owner-drawn items
    virtual void DrawItem(LPDRAWITEMSTRUCT item);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT item);
};
