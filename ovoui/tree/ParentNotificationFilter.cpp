#include <ovoui/tree/ParentNotificationFilter.h>

#include <commctrl.h>

#include <algorithm>
#include <map>
#include <vector>

namespace ovoui::tree
{

namespace
{

/// A window whose procedure is replaced. The window's user data stays untouched: the parent may need it for
/// the messages that reach it meanwhile.
struct FilteredParent
{
    WNDPROC procedure;
    bool unicode;
    std::vector<HWND> quietTrees; ///< one entry for each filter
};

/// All on the one thread with windows.
std::map<HWND, FilteredParent>& filteredParents()
{
    static std::map<HWND, FilteredParent> parents;
    return parents;
}

bool isSelectionChange(UINT message, LPARAM lParam, const std::vector<HWND>& trees)
{
    if (message != WM_NOTIFY)
        return false;
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    return (header.code == TVN_SELCHANGEDW || header.code == TVN_SELCHANGEDA) &&
           std::find(trees.begin(), trees.end(), header.hwndFrom) != trees.end();
}

LRESULT CALLBACK filterProcedure(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto found = filteredParents().find(wnd);
    if (found == filteredParents().end())
        return ::DefWindowProcW(wnd, message, wParam, lParam);
    if (isSelectionChange(message, lParam, found->second.quietTrees))
        return 0;
    const WNDPROC procedure = found->second.procedure;
    const bool unicode = found->second.unicode;
    if (message == WM_NCDESTROY)
        filteredParents().erase(found);
    return unicode ? ::CallWindowProcW(procedure, wnd, message, wParam, lParam)
                   : ::CallWindowProcA(procedure, wnd, message, wParam, lParam);
}

WNDPROC setProcedure(HWND wnd, WNDPROC procedure, bool unicode)
{
    const auto value = reinterpret_cast<LONG_PTR>(procedure);
    return reinterpret_cast<WNDPROC>(unicode ? ::SetWindowLongPtrW(wnd, GWLP_WNDPROC, value)
                                             : ::SetWindowLongPtrA(wnd, GWLP_WNDPROC, value));
}

WNDPROC currentProcedure(HWND wnd, bool unicode)
{
    return reinterpret_cast<WNDPROC>(unicode ? ::GetWindowLongPtrW(wnd, GWLP_WNDPROC)
                                             : ::GetWindowLongPtrA(wnd, GWLP_WNDPROC));
}

/// Sets the filter in front of a window's own procedure. False when the system does not.
bool putInFront(HWND parent)
{
    if (!parent)
        return false;
    const bool unicode = ::IsWindowUnicode(parent) != FALSE;
    const WNDPROC procedure = currentProcedure(parent, unicode);
    if (!procedure)
        return false;
    // Entered first: the procedure may be called while it is being set.
    filteredParents().emplace(parent, FilteredParent{procedure, unicode, {}});
    if (setProcedure(parent, &filterProcedure, unicode))
        return true;
    filteredParents().erase(parent);
    return false;
}

} // namespace

// Where the system fails to replace the procedure, the parent hears of each step. Where it fails to put it
// back, the filter stays, passes everything on, and serves the next change.

ParentNotificationFilter::ParentNotificationFilter(HWND tree)
    : m_tree(tree)
    , m_parent(::GetParent(tree))
{
    auto& parents = filteredParents();
    if (!parents.contains(m_parent) && !putInFront(m_parent))
        m_parent = nullptr;
    if (m_parent)
        parents.at(m_parent).quietTrees.push_back(m_tree);
}

ParentNotificationFilter::~ParentNotificationFilter()
{
    auto& parents = filteredParents();
    const auto found = parents.find(m_parent);
    if (found == parents.end()) // destroyed meanwhile
        return;
    FilteredParent& parent = found->second;
    const auto quiet = std::find(parent.quietTrees.begin(), parent.quietTrees.end(), m_tree);
    if (quiet == parent.quietTrees.end()) // it has gone, and its handle is that of another parent now
        return;
    parent.quietTrees.erase(quiet);
    // Another procedure may have been set in front of the filter: then it stays, and passes everything on.
    if (!parent.quietTrees.empty() || currentProcedure(m_parent, parent.unicode) != &filterProcedure)
        return;
    if (setProcedure(m_parent, parent.procedure, parent.unicode))
        parents.erase(m_parent);
}

} // namespace ovoui::tree
