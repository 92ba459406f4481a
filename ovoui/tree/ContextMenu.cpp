// The context menu: the edit commands, greyed by the routing.
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/TreeState.h>

#include <ovoui/frame/Module.h>

#include <ovouires/resource.h>

namespace
{

struct MenuLine
{
    UINT command;
    UINT text; ///< number of its string; 0 for a separator
};

constexpr MenuLine kLines[] = {
    {ID_EDIT_CUT, IDS_MENU_CUT},
    {ID_EDIT_COPY, IDS_MENU_COPY},
    {ID_EDIT_PASTE, IDS_MENU_PASTE},
    {0, 0},
    {ID_TREE_DELETE, IDS_MENU_DELETE},
    {ID_TREE_RENAME, IDS_MENU_RENAME},
    {0, 0},
    {ID_EDIT_SELECT_ALL, IDS_MENU_SELECT_ALL},
};

/// Below the item's label or, without an item, in the corner of the tree, in screen coordinates.
CPoint placeAt(const CTreeCtrl& tree, HTREEITEM item)
{
    CRect label;
    if (!item || !tree.GetItemRect(item, &label, TRUE))
        label.SetRectEmpty();
    CPoint place(label.left, label.bottom);
    tree.ClientToScreen(&place);
    return place;
}

bool isOnScrollBar(const CWnd& wnd, CPoint screen)
{
    const LRESULT hit = wnd.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y));
    return hit == HTVSCROLL || hit == HTHSCROLL;
}

} // namespace

/// A scroll bar has a menu of the system's.
///
/// To show the caret, nodes around it may be asked to open, which may do anything to the tree. Where they
/// refuse, the menu opens at the item that hides the caret.
void MultiTreeCtrl::OnContextMenu(CWnd*, CPoint screen)
{
    const HostCalls host(*this);
    const std::shared_ptr<State> state = m_state;
    const bool keyboard = screen == CPoint(-1, -1);
    if (!keyboard && isOnScrollBar(*this, screen)) {
        Default();
        return;
    }
    const Tracker caret(state, keyboard ? state->view.caret() : nullptr);
    if (caret)
        EnsureVisible(caret.item());
    if (!host.usable())
        return;
    const HTREEITEM shown = caret ? state->view.displayedFor(caret.item()) : nullptr;
    CMenu menu;
    menu.CreatePopupMenu();
    for (const MenuLine& line : kLines)
        menu.AppendMenu(line.text ? MF_STRING : MF_SEPARATOR, line.command,
                        line.text ? ovoui::resourceString(line.text).c_str() : nullptr);
    const CPoint place = keyboard ? placeAt(*this, shown) : screen;
    const UINT layout = (GetExStyle() & WS_EX_LAYOUTRTL) ? TPM_LAYOUTRTL : 0;
    menu.TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON | layout, place.x, place.y, this);
}
