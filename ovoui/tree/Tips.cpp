// Tooltips.
#include <ovoui/tree/HostCalls.h>

#include <ovocor/Text.h>

void MultiTreeCtrl::OnGetinfotip(NMHDR* header, LRESULT* result)
{
    auto& request = *reinterpret_cast<NMTVGETINFOTIP*>(header);
    *result = 0;
    const OVO::Handle<Node> node = this->node(request.hItem);
    if (!node)
        return;
    const HostCalls host(*this);
    host.report([&] {
        const std::wstring tip = node->infotip(*this);
        // The buffer may be the tree view's, which has gone when the node has destroyed the tree.
        if (host.usable() && !tip.empty() && request.cchTextMax > 0)
            packTo(request.pszText, static_cast<std::size_t>(request.cchTextMax), tip);
    });
}

/// The tip must not hide behind a topmost window that the tree is in; where it is shown is the tree view's
/// choice.
BOOL MultiTreeCtrl::OnToolTipShow(UINT, NMHDR* header, LRESULT* result)
{
    ::SetWindowPos(header->hwndFrom, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    *result = FALSE;
    return FALSE;
}
