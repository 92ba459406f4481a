// Commands: the tree's own, those of its nodes, and the way on to the parent window.
#include <ovoui/tree/HostCalls.h>

#include <ovouires/resource.h>

#include <algorithm>

using ovoui::tree::quietly;

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
    // Notifications come this way too; they end here.
    if (!isCommandOrUpdate(code))
        return CTreeCtrl::OnCmdMsg(id, code, extra, info);
    if (info)
        return findHandler(id, code, extra, info);
    auto* const ui = code == CN_COMMAND ? nullptr : static_cast<CCmdUI*>(extra);
    if (code != CN_COMMAND && !ui)
        return CTreeCtrl::OnCmdMsg(id, code, extra, info);
    const HostCalls host(*this);
    const bool disabled = isCommandDisabled(id);
    if (disabled || !host.usable()) {
        if (ui)
            ui->Enable(FALSE);
        return TRUE;
    }
    const bool handled = CTreeCtrl::OnCmdMsg(id, code, extra, nullptr);
    if (ui && !host.usable())
        ui->Enable(FALSE); // the tree is gone, and cannot do what was asked about
    if (handled || !host.usable())
        return TRUE;
    // A command that a selected node offers is the node's: the parent does not disable it.
    const bool offered = ui && offersCommand(id);
    if (offered || !host.usable()) {
        ui->Enable(offered && host.usable());
        return TRUE;
    }
    return routeToParent(id, code, extra, nullptr);
}

/// Has the selected nodes that offer a command show how it stands. False when there are none. When that
/// destroys the tree, the command is disabled: nothing is left to do it.
bool MultiTreeCtrl::updateByNodes(CCmdUI& ui, UINT id)
{
    const HostCalls host(*this);
    const auto nodes = selectedNodes();
    bool taken = false;
    quietly([&] {
        for (const OVO::Handle<Node>& node : nodes)
            if (host.usable() && offers(*node, id) && host.usable()) {
                taken = true;
                node->doUpdateCmd(&ui, nodes.size() == 1);
            }
    });
    if (host.usable())
        return taken;
    ui.Enable(FALSE);
    return true;
}

/// Who would handle a command. The entry for all other commands counts only if a selected node offers it, and
/// that for Paste if there is something that can be pasted.
BOOL MultiTreeCtrl::findHandler(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    const HostCalls host(*this);
    AFX_CMDHANDLERINFO any{};
    CTreeCtrl::OnCmdMsg(0, CN_COMMAND, nullptr, &any); // no command has the number 0
    if (CTreeCtrl::OnCmdMsg(id, code, extra, info)) {
        const bool taken = id == ID_EDIT_PASTE ? canPaste(id) : info->pmf != any.pmf || offersCommand(id);
        if (taken)
            return TRUE;
        *info = {};
    }
    return host.usable() && routeToParent(id, code, extra, info);
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
    const HostCalls host(*this);
    const OVO::Handle<EVSubscriptionList<int>> gestures = m_gestures;
    std::vector<OVO::Handle<Node>> takers = selectedNodes();
    const bool asked =
        host.report([&] { std::erase_if(takers, [id](const auto& node) { return !offers(*node, id); }); });
    if (!asked || !host.usable())
        return true;
    if (takers.empty())
        return false;
    gestures->notify(static_cast<int>(id));
    std::exception_ptr foreign;
    host.reportKeeping(foreign, [&] {
        for (const OVO::Handle<Node>& node : takers)
            if (host.usable())
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
    const HostCalls host(*this);
    for (int i = popup->GetMenuItemCount() - 1; i >= 0 && host.usable(); --i)
        updateMenuItem(*popup, static_cast<UINT>(i));
}

void MultiTreeCtrl::updateMenuItem(CMenu& popup, UINT index)
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
    const HostCalls host(*this);
    const UINT id = ui.m_nID;
    if (!updateByNodes(ui, id) && host.usable())
        ui.DoUpdate(this, TRUE);
    if (host.usable() && isCommandDisabled(id))
        popup.EnableMenuItem(index, MF_BYPOSITION | MF_GRAYED);
}
