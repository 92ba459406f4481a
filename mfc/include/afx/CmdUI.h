// CCmdUI: how a command is shown, to be brought up to date by its update handler.
#pragma once

#include <afx.h>

class CCmdTarget;
class CMenu;
class CWnd;

/// Stands for one menu item, or another control that shows a command, during an update request. A handler for
/// ON_UPDATE_COMMAND_UI says how the command stands and need not know what shows it:
///
/// | shown by           | Enable               | SetCheck                     | SetRadio | SetText |
/// |--------------------|----------------------|------------------------------|----------|---------|
/// | menu item          | enabled or grey      | check mark                   | dot      | text    |
/// | toolbar button     | enabled or grey      | pressed, 2: undetermined     | as check | -       |
/// | status bar pane    | text shown or hidden | popped out or normal         | as check | text    |
/// | button in a bar    | enabled or grey      | check mark                   | as check | text    |
/// | other control      | enabled or grey      | -                            | -        | text    |
class OVOMFC_API CCmdUI
{
public:
    CCmdUI();
    virtual ~CCmdUI();

    UINT m_nID = 0;
    UINT m_nIndex = 0;             ///< position in the menu, or in the bar
    CMenu* m_pMenu = nullptr;      ///< null when this is no menu item
    CMenu* m_pSubMenu = nullptr;   ///< the popup that the item opens; m_nID is then that of its first item
    CWnd* m_pOther = nullptr;      ///< the bar or control, when this is no menu item
    BOOL m_bEnableChanged = FALSE; ///< Enable has been called
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0;           ///< the number of items; a handler that inserts or deletes items sets it
    CMenu* m_pParentMenu = nullptr; ///< the menu that m_pMenu hangs in

    /// Does nothing to an item that opens a popup.
    virtual void Enable(BOOL on = TRUE);
    virtual void SetCheck(int check = 1); ///< 0 off, 1 on, 2 undetermined
    virtual void SetRadio(BOOL on = TRUE);
    virtual void SetText(LPCTSTR text);

    /// From a handler: leaves the request to the next target.
    void ContinueRouting();

    /// Asks a target. When no update handler takes the request and `disableIfNoHandler`, the item is enabled
    /// if there is a command handler, and disabled if not. TRUE when an update handler took it.
    BOOL DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler);
};
