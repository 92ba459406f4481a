// Internal: which menu a popup hangs in.
#pragma once

#include <afxwin.h>

namespace afxdetail
{

/// Remembers, while it lives, which context menu is being tracked: the system's messages do not say.
class TrackedMenu
{
public:
    explicit TrackedMenu(HMENU menu);
    ~TrackedMenu();
    TrackedMenu(const TrackedMenu&) = delete;
    TrackedMenu& operator=(const TrackedMenu&) = delete;

private:
    HMENU m_outer;
};

/// The menu that `popup` hangs in, searched from the context menu being tracked and then from a window's menu
/// bar; null for a context menu itself.
HMENU menuAbove(HMENU popup, HWND wnd);

} // namespace afxdetail
