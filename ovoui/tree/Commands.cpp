#include <ovoui/tree/Commands.h>

#include <ovoui/tree/Gesture.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/Paste.h>

#include <ovouires/resource.h>

#include <algorithm>

using ovoui::frame::quietly;
using ovoui::frame::raise;

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

// The control's handlers

BOOL MultiTreeCtrl::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    // Notifications come this way too; they end here.
    if (!isCommandOrUpdate(code))
        return CTreeCtrl::OnCmdMsg(id, code, extra, info);
    if (info)
        return m_state->commands->findHandler(id, code, extra, info);
    if (code != CN_COMMAND && !extra)
        return CTreeCtrl::OnCmdMsg(id, code, extra, info);
    return m_state->commands->route(id, code, extra);
}

BOOL MultiTreeCtrl::OnUnknownCommand(UINT id)
{
    return m_state->commands->routeToNodes(id);
}

BOOL MultiTreeCtrl::OnEditPaste(UINT id)
{
    const HostCalls host(*this);
    return m_state->commands->routeToNodes(id) || !host.usable() || Paste(*this).run();
}

void MultiTreeCtrl::OnUpdateEditPaste(CCmdUI* ui)
{
    const UINT id = ui->m_nID;
    const HostCalls host(*this);
    Commands& commands = *m_state->commands;
    const bool can = commands.canPaste(id);
    if (can || !host.usable()) {
        ui->Enable(can && host.usable());
    } else if (!commands.routeToParent(id, static_cast<int>(CN_UPDATE_COMMAND_UI), ui, nullptr)) {
        AFX_CMDHANDLERINFO info{};
        ui->Enable(commands.routeToParent(id, CN_COMMAND, ui, &info));
    }
}

void MultiTreeCtrl::OnUpdateEditDelete(CCmdUI* ui)
{
    bool can = false;
    quietly([&] {
        const auto nodes = m_state->selectedNodes();
        can = !nodes.empty() &&
              std::all_of(nodes.begin(), nodes.end(), [](const auto& node) { return node->canErase(); });
    });
    ui->Enable(can);
}

void MultiTreeCtrl::OnInitMenuPopup(CMenu* popup, UINT index, BOOL systemMenu)
{
    if (systemMenu) {
        CTreeCtrl::OnInitMenuPopup(popup, index, systemMenu);
        return;
    }
    const HostCalls host(*this);
    Commands& commands = *m_state->commands;
    for (int i = popup->GetMenuItemCount() - 1; i >= 0 && host.usable(); --i)
        commands.updateMenuItem(*popup, static_cast<UINT>(i));
}

// Routing

bool MultiTreeCtrl::Commands::route(UINT id, int code, void* extra)
{
    auto* const ui = code == CN_COMMAND ? nullptr : static_cast<CCmdUI*>(extra);
    const HostCalls host(tree());
    const bool disabled = tree().isCommandDisabled(id);
    if (disabled || !host.usable()) {
        if (ui)
            ui->Enable(FALSE);
        return true;
    }
    const bool handled = tree().CTreeCtrl::OnCmdMsg(id, code, extra, nullptr);
    if (ui && !host.usable())
        ui->Enable(FALSE); // the tree is gone, and cannot do what was asked about
    if (handled || !host.usable())
        return true;
    // A command that a selected node offers is the node's: the parent does not disable it.
    const bool offered = ui && isOffered(id);
    if (offered || !host.usable()) {
        ui->Enable(offered && host.usable());
        return true;
    }
    return routeToParent(id, code, extra, nullptr);
}

/// The entry for all other commands counts only if a selected node offers it, and that for Paste if there is
/// something that can be pasted.
bool MultiTreeCtrl::Commands::findHandler(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    const HostCalls host(tree());
    AFX_CMDHANDLERINFO any{};
    tree().CTreeCtrl::OnCmdMsg(0, CN_COMMAND, nullptr,
                               &any); // no command has the number 0
    if (tree().CTreeCtrl::OnCmdMsg(id, code, extra, info)) {
        const bool taken = id == ID_EDIT_PASTE ? canPaste(id) : info->pmf != any.pmf || isOffered(id);
        if (taken)
            return true;
        *info = {};
    }
    return host.usable() && routeToParent(id, code, extra, info);
}

bool MultiTreeCtrl::Commands::routeToParent(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    const HostCalls host(tree());
    CWnd* parent = tree().GetParent();
    const std::pair<UINT, int> question(id, code);
    if (!parent || std::find(m_asking.begin(), m_asking.end(), question) != m_asking.end())
        return false;
    struct Asking
    {
        ~Asking() { all.pop_back(); }
        std::vector<std::pair<UINT, int>>& all;
    };
    m_asking.push_back(question);
    const Asking done{m_asking};
    return parent->OnCmdMsg(id, code, extra, info) != FALSE;
}

bool MultiTreeCtrl::Commands::isOffered(UINT id) const
{
    bool offered = false;
    const auto nodes = m_state.selectedNodes();
    quietly([&] {
        offered =
            std::any_of(nodes.begin(), nodes.end(), [id](const auto& node) { return offers(*node, id); });
    });
    return offered;
}

bool MultiTreeCtrl::Commands::routeToNodes(UINT id)
{
    const HostCalls host(tree());
    std::vector<OVO::Handle<Node>> takers = m_state.selectedNodes();
    const bool asked =
        host.report([&] { std::erase_if(takers, [id](const auto& node) { return !offers(*node, id); }); });
    if (!asked || !host.usable())
        return true;
    if (takers.empty())
        return false;
    const auto doCommands = [&] {
        for (const OVO::Handle<Node>& node : takers)
            if (host.usable())
                node->doCommand(tree(), id);
    };
    raise(ovoui::tree::asGesture(tree().m_gestures, static_cast<int>(id), [&] { host.report(doCommands); }));
    return true;
}

bool MultiTreeCtrl::Commands::canPaste(UINT id) const
{
    bool can = false;
    quietly([&] {
        const HostCalls host(tree());
        can = isOffered(id) || (host.usable() && Paste(tree()).isPossible());
    });
    return can;
}

// Menus

/// Has the selected nodes that offer a command show how it stands; it is enabled unless they say otherwise,
/// also in a menu that has shown it grey before. False when there are none. When that destroys the tree, the
/// command is disabled: nothing is left to do it.
bool MultiTreeCtrl::Commands::updateByNodes(CCmdUI& ui, UINT id)
{
    const HostCalls host(tree());
    const auto nodes = m_state.selectedNodes();
    bool taken = false;
    quietly([&] {
        for (const OVO::Handle<Node>& node : nodes)
            if (host.usable() && offers(*node, id) && host.usable()) {
                if (!std::exchange(taken, true))
                    ui.Enable(TRUE);
                node->doUpdateCmd(&ui, nodes.size() == 1);
            }
    });
    if (host.usable())
        return taken;
    ui.Enable(FALSE);
    return true;
}

void MultiTreeCtrl::Commands::updateMenuItem(CMenu& popup, UINT index)
{
    const HostCalls host(tree());
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
        ui.DoUpdate(&tree(), FALSE);
        return;
    }
    const UINT id = ui.m_nID;
    if (!updateByNodes(ui, id) && host.usable())
        ui.DoUpdate(&tree(), TRUE);
    if (host.usable() && tree().isCommandDisabled(id))
        popup.EnableMenuItem(index, MF_BYPOSITION | MF_GRAYED);
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::Commands> MultiTreeCtrl::State::make()
{
    return std::make_shared<Commands>(*this);
}
