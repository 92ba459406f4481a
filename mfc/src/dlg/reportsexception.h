// Internal to the dialogs: handlers that the system asks for something.
#pragma once

#include <afxwin.h>

namespace afxdetail
{

/// Calls a handler whose CException is reported like those of window messages. True when there was one.
template <class Handler>
bool reportsException(Handler&& handler)
{
    try {
        handler();
        return false;
    } catch (CException* exception) {
        MSG message{};
        message.message = WM_NOTIFY;
        AfxGetThread()->ProcessWndProcException(exception, &message);
        exception->Delete();
        return true;
    }
}

} // namespace afxdetail
