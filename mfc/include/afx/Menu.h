// CMenu: a menu.
#pragma once

#include <afx.h>

class CBitmap;
class CWnd;

/// Wraps one menu and destroys it when destroyed, unless the object is temporary. A menu that is set on a
/// window or inserted into another menu belongs to those: detach it then.
///
/// Members not described here do what the menu function of the same name does and give what it gives. Items
/// are named by command id (MF_BYCOMMAND) or by position from 0 (MF_BYPOSITION).
class OVOMFC_API CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)

public:
    CMenu();
    ~CMenu() override;

    HMENU m_hMenu = nullptr;

    // Objects and handles
    static CMenu* PASCAL FromHandle(HMENU menu);
    static CMenu* PASCAL FromHandlePermanent(HMENU menu);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HMENU menu); ///< FALSE for NULL, and when one of the two is taken already.
    HMENU Detach();
    HMENU GetSafeHmenu() const; ///< NULL when there is no menu, or no object.
    operator HMENU() const { return m_hMenu; }
    BOOL operator==(const CMenu& other) const { return m_hMenu == other.m_hMenu; }
    BOOL operator!=(const CMenu& other) const { return m_hMenu != other.m_hMenu; }

    // Making and destroying. FALSE on failure.
    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    BOOL LoadMenu(LPCTSTR name); ///< Along the resource chain.
    BOOL LoadMenu(UINT id);
    BOOL LoadMenuIndirect(const void* menuTemplate);
    BOOL DestroyMenu();

    // Items
    BOOL AppendMenu(UINT flags, UINT_PTR id = 0, LPCTSTR item = nullptr);
    BOOL AppendMenu(UINT flags, UINT_PTR id, const CBitmap* bitmap);
    BOOL InsertMenu(UINT position, UINT flags, UINT_PTR id = 0, LPCTSTR item = nullptr);
    BOOL InsertMenu(UINT position, UINT flags, UINT_PTR id, const CBitmap* bitmap);
    BOOL ModifyMenu(UINT position, UINT flags, UINT_PTR id = 0, LPCTSTR item = nullptr);
    BOOL ModifyMenu(UINT position, UINT flags, UINT_PTR id, const CBitmap* bitmap);
    BOOL InsertMenuItem(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE); ///< Sets cbSize.
    BOOL DeleteMenu(UINT position, UINT flags) { return ::DeleteMenu(m_hMenu, position, flags); }
    /// Leaves a popup that hangs there alive.
    BOOL RemoveMenu(UINT position, UINT flags) { return ::RemoveMenu(m_hMenu, position, flags); }

    // State of items
    UINT CheckMenuItem(UINT id, UINT check) { return ::CheckMenuItem(m_hMenu, id, check); }
    BOOL CheckMenuRadioItem(UINT first, UINT last, UINT item, UINT flags)
    {
        return ::CheckMenuRadioItem(m_hMenu, first, last, item, flags);
    }
    UINT EnableMenuItem(UINT id, UINT enable)
    {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, id, enable));
    }
    BOOL SetDefaultItem(UINT item, BOOL byPosition = FALSE)
    {
        return ::SetMenuDefaultItem(m_hMenu, item, static_cast<UINT>(byPosition));
    }
    UINT GetDefaultItem(UINT flags, BOOL byPosition = FALSE)
    {
        return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(byPosition), flags);
    }
    BOOL SetMenuItemBitmaps(UINT position, UINT flags, const CBitmap* unchecked, const CBitmap* checked);
    BOOL GetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE); ///< Sets cbSize.
    BOOL SetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE); ///< Sets cbSize.

    // What is there
    int GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
    UINT GetMenuItemID(int position) const
    {
        return ::GetMenuItemID(m_hMenu, position);
    } ///< 0 separator, -1 popup
    UINT GetMenuState(UINT id, UINT flags) const { return ::GetMenuState(m_hMenu, id, flags); }
    int GetMenuString(UINT item, LPTSTR buffer, int maxCount, UINT flags) const
    {
        return ::GetMenuStringW(m_hMenu, item, buffer, maxCount, flags);
    }
    int GetMenuString(UINT item, CString& text, UINT flags) const; ///< Of any length; gives the length.
    CMenu* GetSubMenu(int position) const { return FromHandle(::GetSubMenu(m_hMenu, position)); }

    // The menu as a whole
    BOOL GetMenuInfo(LPMENUINFO info) const; ///< Sets cbSize.
    BOOL SetMenuInfo(LPCMENUINFO info) { return ::SetMenuInfo(m_hMenu, info); }
    BOOL SetMenuContextHelpId(DWORD id) { return ::SetMenuContextHelpId(m_hMenu, id); }
    DWORD GetMenuContextHelpId() const { return ::GetMenuContextHelpId(m_hMenu); }

    /// Shows a popup menu at a screen point and waits until it is closed; `wnd` gets its messages. With
    /// TPM_RETURNCMD it gives the chosen id, 0 for none.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* wnd, LPCRECT rect = nullptr);
    BOOL TrackPopupMenuEx(UINT flags, int x, int y, CWnd* wnd, LPTPMPARAMS params);

    // For items of type MF_OWNERDRAW, of a menu whose object is attached to it
    virtual void DrawItem(LPDRAWITEMSTRUCT item);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT item);
};
