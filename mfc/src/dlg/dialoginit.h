// Internal: DLGINIT resources, which fill list and combo boxes of a dialog.
#pragma once

#include <afxwin.h>

namespace afxdetail
{

/// Sends the messages of a DLGINIT resource to the controls of a dialog. FALSE when a string is refused.
/// `data` ends with a zero control number; null sends nothing.
bool runDialogInit(HWND dialog, const void* data);

/// The same for the resource of the dialog template's name, found along the resource chain; true when there
/// is none.
bool runDialogInit(HWND dialog, LPCTSTR templateName);

} // namespace afxdetail
