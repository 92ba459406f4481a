// CCmdUI: how a command is shown, to be brought up to date by its update handler.
#pragma once

#include <afx.h>

class CCmdTarget;
class CMenu;
class CWnd;

/// Stands for one menu item, or another control that shows a command, during an update request.
class OVOMFC_API CCmdUI
{
public:
    CCmdUI();
    virtual ~CCmdUI();

    UINT m_nID = 0;
    UINT m_nIndex = 0; ///< position in the menu, or in the bar
    CMenu* m_pMenu = nullptr;
    CMenu* m_pSubMenu = nullptr; ///< the popup that the item opens
    CWnd* m_pOther = nullptr;    ///< the control that is no menu
    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0; ///< the number of items
    CMenu* m_pParentMenu = nullptr;

    virtual void Enable(BOOL on = TRUE);
    virtual void SetCheck(int check = 1); ///< 0 off, 1 on, 2 undetermined
    virtual void SetRadio(BOOL on = TRUE);
    virtual void SetText(LPCTSTR text);

    /// From a handler: leaves the request to the next target.
    void ContinueRouting();

    /// Asks a target. Without an update handler the item is disabled, if asked for, unless there is a command
    /// handler. TRUE when an update handler took the request.
    BOOL DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler);
};
