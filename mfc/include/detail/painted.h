// Internal: a window that could not paint itself.
#pragma once

#include <windows.h>

namespace afxdetail
{

/// Takes a window for painted, its frame included. It would be asked again for ever otherwise: by some platforms
/// as long as its frame alone is left.
inline void markPainted(HWND wnd)
{
    ::RedrawWindow(wnd, nullptr, nullptr, RDW_VALIDATE | RDW_NOERASE | RDW_NOFRAME | RDW_NOINTERNALPAINT);
}

} // namespace afxdetail
