// Pasting: by the command that nodes offer, else as a drop of what is on the clipboard.
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/core/DropEffect.h>

#include <afxole.h>
#include <shlobj.h>

namespace
{

/// What the owner of the clipboard's data wants done with it: a move after Cut, say. 0 when it does not say.
DWORD preferredEffect(COleDataObject& data)
{
    static const auto format = static_cast<CLIPFORMAT>(::RegisterClipboardFormatW(CFSTR_PREFERREDDROPEFFECT));
    const HGLOBAL memory = data.IsDataAvailable(format) ? data.GetGlobalData(format) : nullptr;
    if (!memory)
        return 0;
    DWORD effect = 0;
    if (::GlobalSize(memory) >= sizeof effect)
        if (const auto* stored = static_cast<const DWORD*>(::GlobalLock(memory))) {
            effect = *stored;
            ::GlobalUnlock(memory);
        }
    ::GlobalFree(memory);
    return effect;
}

} // namespace

/// Where what is on the clipboard would go, and how.
struct MultiTreeCtrl::PastePlace
{
    InsertionPoint* place = nullptr; ///< null when the data is not taken anywhere
    OVO::Handle<Node> node;          ///< the place, if it is a node
    DWORD effect = 0;
    int zone = -1;
};

/// Asks the one selected node, else the caret's, else the root, as if the data were dragged there.
MultiTreeCtrl::PastePlace MultiTreeCtrl::findPastePlace(COleDataObject& data)
{
    const std::vector<HTREEITEM> selected = selectedItems();
    const HTREEITEM hovered = selected.size() == 1 ? selected.front() : caret();
    PastePlace found;
    HTREEITEM behind = nullptr;
    DWORD allowed = 0;
    const HostCalls host(*this);
    const DWORD answer = askTarget(data, hovered, allowed, &found.node, behind, found.zone);
    if (!host.usable())
        return found;
    found.effect = ovoui::tree::resolvePasteEffect(preferredEffect(data), answer, allowed);
    if (found.effect)
        found.place = found.node ? found.node.get() : rootInsertionPoint();
    return found;
}

BOOL MultiTreeCtrl::OnEditPaste(UINT id)
{
    const HostCalls host(*this);
    if (routeToNodes(id) || !host.usable())
        return TRUE;
    COleDataObject data;
    if (!data.AttachClipboard())
        return FALSE;
    bool taken = false;
    host.report([&] {
        const PastePlace found = findPastePlace(data);
        if (!host.usable())
            return;
        taken = found.place != nullptr;
        if (!taken)
            return;
        found.place->dropInto(data, found.effect, *this, found.zone);
        if (found.node && host.usable())
            updateUI(*found.node);
    });
    return taken;
}

void MultiTreeCtrl::OnUpdateEditPaste(CCmdUI* ui)
{
    const UINT id = ui->m_nID;
    const HostCalls host(*this);
    const bool can = canPaste(id);
    if (can || !host.usable()) {
        ui->Enable(can && host.usable());
    } else if (!routeToParent(id, static_cast<int>(CN_UPDATE_COMMAND_UI), ui, nullptr)) {
        AFX_CMDHANDLERINFO info{};
        ui->Enable(routeToParent(id, CN_COMMAND, ui, &info));
    }
}

bool MultiTreeCtrl::canPaste(UINT id)
{
    bool can = false;
    ovoui::tree::quietly([&] {
        const HostCalls host(*this);
        COleDataObject data;
        can = offersCommand(id) || (host.usable() && data.AttachClipboard() && findPastePlace(data).place);
    });
    return can;
}
