// The context menu: the edit commands, greyed by the routing.
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

/// Below the caret's label, or in the corner of the tree, in screen coordinates.
CPoint placeAt(CTreeCtrl& tree, HTREEITEM caret)
{
    CRect label;
    if (caret) {
        tree.EnsureVisible(caret);
        tree.GetItemRect(caret, &label, TRUE);
    }
    CPoint place(label.left, label.bottom);
    tree.ClientToScreen(&place);
    return place;
}

} // namespace

void MultiTreeCtrl::OnContextMenu(CWnd*, CPoint screen)
{
    CMenu menu;
    menu.CreatePopupMenu();
    for (const MenuLine& line : kLines)
        menu.AppendMenu(line.text ? MF_STRING : MF_SEPARATOR, line.command,
                        line.text ? ovoui::resourceString(line.text).c_str() : nullptr);
    const bool keyboard = screen == CPoint(-1, -1);
    const CPoint place = keyboard ? placeAt(*this, m_state->view.caret()) : screen;
    const UINT layout = (GetExStyle() & WS_EX_LAYOUTRTL) ? TPM_LAYOUTRTL : 0;
    menu.TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON | layout, place.x, place.y, this);
}
