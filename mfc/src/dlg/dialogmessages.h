// Internal: what dialogs and property pages do alike with their messages.
#pragma once

#include <afxwin.h>

namespace afxdetail
{

/// The system's dialog procedure of a CDialog: everything but the initialisation is done by the message map.
INT_PTR CALLBACK dialogProcedure(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam);

/// Offers a command that the dialog does not handle to its owner, then to the program.
bool routeFromDialog(const CWnd& dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);

} // namespace afxdetail
