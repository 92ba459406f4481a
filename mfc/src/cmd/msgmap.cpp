// Looking handlers up, and what their arguments are made of.
#include "dispatchtable.h"

#include <afxwin.h>

namespace afxdetail
{

const AFX_MSGMAP_ENTRY* findWindowMessage(const AFX_MSGMAP* map, UINT message)
{
    return tableOf(map).message(message);
}

const AFX_MSGMAP_ENTRY* findCommand(const AFX_MSGMAP* map, UINT message, UINT code, UINT id)
{
    return tableOf(map).command(message, code, id);
}

CWnd* wndOf(HWND handle)
{
    return CWnd::FromHandle(handle);
}

CDC* dcOf(HDC handle)
{
    return CDC::FromHandle(handle);
}

CMenu* menuOf(HMENU handle)
{
    return CMenu::FromHandle(handle);
}

void beginUpdate(CCmdUI* ui)
{
    ui->m_bContinueRouting = FALSE;
}

BOOL endUpdate(CCmdUI* ui)
{
    const BOOL handled = !ui->m_bContinueRouting;
    ui->m_bContinueRouting = FALSE;
    return handled;
}

NMHDR* headerOf(AFX_NOTIFY* notify)
{
    return notify->pNMHDR;
}

LRESULT* resultOf(AFX_NOTIFY* notify)
{
    return notify->pResult;
}

} // namespace afxdetail
