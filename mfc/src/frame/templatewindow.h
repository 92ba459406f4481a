// Internal: windows that are no dialogs, with the controls of a dialog template.
#pragma once

#include "../dlg/dialogresource.h"

#include <detail/pending.h>

namespace afxdetail
{

inline INT_PTR CALLBACK leavesAllToTheSystem(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

/// Makes the window of an object. `neverMade` is called when none came to be, since no message ends it then.
/// False without a window that is complete.
template <class NeverMade>
bool makeFromTemplate(CWnd* object, const DialogResource& resource, CWnd* parent, const NeverMade& neverMade)
{
    CallOut creation;
    AfxHookWindowCreate(object);
    const HWND wnd = ::CreateDialogIndirectParamW(resource.module(), resource.get(), parent->GetSafeHwnd(),
                                                  &leavesAllToTheSystem, 0);
    if (AfxUnhookWindowCreate())
        neverMade();
    const bool complete = ::IsWindow(wnd) && !creation.failed();
    if (!complete && ::IsWindow(wnd))
        ::DestroyWindow(wnd);
    creation.finish();
    return complete;
}

} // namespace afxdetail
