// The message loop's next step, which raises what was kept while no call of the framework was under way.
#pragma once

#include <afxwin.h>

inline void nextStep(CWnd& window)
{
    window.PostMessage(WM_NULL);
    AfxGetThread()->PumpMessage();
}
