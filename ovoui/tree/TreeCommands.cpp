// Commands: the tree's own, those of its nodes, and the way on to the parent window.
#include <ovoui/tree/NodeErrors.h>
#include <ovoui/tree/TreeState.h>

#include <ovouires/resource.h>

#include <algorithm>

using ovoui::tree::quietly;
using ovoui::tree::reportErrors;

namespace
{

bool offers(const MultiTreeCtrl::Node& node, UINT id)
{
    CommandSupported* first = nullptr;
    CommandSupported* last = nullptr;
    node.getCommands(first, last);
    return std::any_of(first, last,
                       [id](const CommandSupported& command) { return command.id == id && command.offered; });
}

bool isCommandOrUpdate(int code)
{
    return code == CN_COMMAND || static_cast<UINT>(code) == CN_UPDATE_COMMAND_UI;
}

} // namespace

// Routing

BOOL MultiTreeCtrl::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    // Notifications come this way too; they are nobody else's.
    if (!isCommandOrUpdate(code))
        return CTreeCtrl::OnCmdMsg(id, code, extra, info);
    if (info)
        return findHandler(id, code, extra, info);
    const bool update = code != CN_COMMAND;
    if (update && !extra)
        return CTreeCtrl::OnCmdMsg(id, code, extra, info);
    if (isCommandDisabled(id)) {
        if (update)
            static_cast<CCmdUI*>(extra)->Enable(FALSE);
        return TRUE;
    }
    const std::shared_ptr<State> state = m_state;
    if (CTreeCtrl::OnCmdMsg(id, code, extra, nullptr))
        return TRUE;
    return state->usable() && routeToParent(id, code, extra, nullptr);
}

/// Who would handle a command. The entry for all other commands counts only if a selected node offers it, and
/// that for Paste if there is something that can be pasted.
BOOL MultiTreeCtrl::findHandler(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    AFX_CMDHANDLERINFO any{};
    CTreeCtrl::OnCmdMsg(0, CN_COMMAND, nullptr, &any); // no command has the number 0
    if (CTreeCtrl::OnCmdMsg(id, code, extra, info)) {
        const bool taken = id == ID_EDIT_PASTE ? canPaste(id) : info->pmf != any.pmf || offersCommand(id);
        if (taken)
            return TRUE;
        *info = {};
    }
    return routeToParent(id, code, extra, info);
}

/// The parent may hand commands down to the tree: then they end here, and do not go round and round.
bool MultiTreeCtrl::routeToParent(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    CWnd* parent = GetParent();
    const std::pair<UINT, int> question(id, code);
    const std::shared_ptr<State> state = m_state;
    auto& asking = state->asking;
    if (!parent || std::find(asking.begin(), asking.end(), question) != asking.end())
        return false;
    struct Asking
    {
        ~Asking() { all.pop_back(); }
        std::vector<std::pair<UINT, int>>& all;
    };
    asking.push_back(question);
    const Asking done{asking};
    return parent->OnCmdMsg(id, code, extra, info) != FALSE;
}

bool MultiTreeCtrl::offersCommand(UINT id) const
{
    bool offered = false;
    const auto nodes = selectedNodes();
    quietly([&] {
        offered =
            std::any_of(nodes.begin(), nodes.end(), [id](const auto& node) { return offers(*node, id); });
    });
    return offered;
}

BOOL MultiTreeCtrl::OnUnknownCommand(UINT id)
{
    return routeToNodes(id);
}

/// Has all selected nodes that offer the command do it, as one gesture. False when there are none.
bool MultiTreeCtrl::routeToNodes(UINT id)
{
    std::vector<OVO::Handle<Node>> takers = selectedNodes();
    const std::shared_ptr<State> state = m_state;
    if (!reportErrors(*this,
                      [&] { std::erase_if(takers, [id](const auto& node) { return !offers(*node, id); }); }))
        return true;
    if (takers.empty())
        return false;
    const OVO::Handle<EVSubscriptionList<int>> gestures = m_gestures;
    gestures->notify(static_cast<int>(id));
    const std::exception_ptr foreign = ovoui::tree::keepForeign(*this, [&] {
        for (const OVO::Handle<Node>& node : takers)
            if (state->usable())
                node->doCommand(*this, id);
    });
    gestures->notify(0);
    ovoui::tree::raise(foreign);
    return true;
}

void MultiTreeCtrl::OnUpdateEditDelete(CCmdUI* ui)
{
    bool can = false;
    quietly([&] {
        const auto nodes = selectedNodes();
        can = !nodes.empty() &&
              std::all_of(nodes.begin(), nodes.end(), [](const auto& node) { return node->canErase(); });
    });
    ui->Enable(can);
}

// Menus

void MultiTreeCtrl::OnInitMenuPopup(CMenu* popup, UINT index, BOOL systemMenu)
{
    if (systemMenu) {
        CTreeCtrl::OnInitMenuPopup(popup, index, systemMenu);
        return;
    }
    const std::shared_ptr<State> state = m_state;
    const auto nodes = selectedNodes();
    for (int i = popup->GetMenuItemCount() - 1; i >= 0 && state->usable(); --i)
        updateMenuItem(*popup, static_cast<UINT>(i), nodes);
}

void MultiTreeCtrl::updateMenuItem(CMenu& popup, UINT index, const std::vector<OVO::Handle<Node>>& nodes)
{
    CCmdUI ui;
    ui.m_pMenu = &popup;
    ui.m_nIndex = index;
    ui.m_nIndexMax = static_cast<UINT>(popup.GetMenuItemCount());
    ui.m_nID = popup.GetMenuItemID(static_cast<int>(index));
    if (ui.m_nID == 0)
        return;
    if (ui.m_nID == static_cast<UINT>(-1)) {
        // An entry that opens another menu is asked for by the first command in there.
        ui.m_pSubMenu = popup.GetSubMenu(static_cast<int>(index));
        ui.m_nID = ui.m_pSubMenu ? ui.m_pSubMenu->GetMenuItemID(0) : 0;
        ui.DoUpdate(this, FALSE);
        return;
    }
    const UINT id = ui.m_nID;
    bool taken = false;
    const bool asked = quietly([&] {
        for (const OVO::Handle<Node>& node : nodes)
            if (offers(*node, id)) {
                taken = true;
                node->doUpdateCmd(&ui, nodes.size() == 1);
            }
    });
    if (!taken && asked)
        ui.DoUpdate(this, TRUE);
    if (isCommandDisabled(id))
        popup.EnableMenuItem(index, MF_BYPOSITION | MF_GRAYED);
}
