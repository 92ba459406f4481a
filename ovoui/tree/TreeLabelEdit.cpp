// Renaming in place.
#include <ovoui/tree/EditLabelAgain.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>

#include <ovouires/resource.h>

using ovoui::tree::PlatformHold;
using ovoui::tree::PlatformHolds;
using ovoui::tree::raise;

const UINT ovoui::tree::kEditLabelAgain = ::RegisterWindowMessageW(L"ovoui.MultiTreeCtrl.EditLabelAgain");

/// The rename command: nothing is selected while a label is edited.
void MultiTreeCtrl::OnEditReplace()
{
    if (const HTREEITEM item = caret())
        editLabel(item);
}

void MultiTreeCtrl::OnUpdateEditReplace(CCmdUI* ui)
{
    bool can = false;
    const OVO::Handle<Node> node = this->node(caret());
    ovoui::tree::quietly([&] { can = node && (GetStyle() & TVS_EDITLABELS) && node->canRename(); });
    ui->Enable(can);
}

void MultiTreeCtrl::editLabel(HTREEITEM item)
{
    const HostCalls host(*this);
    const Tracker edited(m_state, item);
    clearselection(next(TVGN_ROOT));
    if (host.usable() && edited)
        DefWindowProc(TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(item));
}

void MultiTreeCtrl::OnBeginlabeledit(NMHDR* header, LRESULT* result)
{
    const std::shared_ptr<State> state = m_state;
    const HostCalls host(*this);
    const Tracker item(state, reinterpret_cast<NMTVDISPINFO*>(header)->item.hItem);
    const OVO::Handle<Node> node = this->node(item.item());
    *result = TRUE; // refused, unless all goes well
    if (!node)
        return;
    // The tree view goes on with the item.
    const PlatformHold stays(state->holds, PlatformHolds::Kind::Stays, item.item());
    bool begun = false;
    bool ready = false;
    std::exception_ptr foreign;
    host.reportKeeping(foreign, [&] {
        if (!node->canRename() || !host.usable() || isCommandDisabled(ID_TREE_RENAME) || !host.usable())
            return;
        begun = true;
        node->beginLabelEdit(*this);
        if (!host.usable())
            return;
        const std::wstring text = node->renameText(*this);
        ready = host.usable() && item;
        if (ready)
            ::SetWindowTextW(reinterpret_cast<HWND>(ask(TVM_GETEDITCONTROL)), text.c_str());
    });
    if (ready) {
        *result = FALSE;
        state->edited = item.item();
    } else if (begun && host.usable()) {
        host.reportKeeping(foreign, [&] { node->endLabelEdit(*this); });
    }
    // An exception takes the place of the refusal, so the editor has to be closed again.
    if (foreign && host.usable())
        PostMessage(TVM_ENDEDITLABELNOW, TRUE, 0);
    raise(foreign);
}

void MultiTreeCtrl::OnEndlabeledit(NMHDR* header, LRESULT* result)
{
    const std::shared_ptr<State> state = m_state;
    const HostCalls host(*this);
    const TVITEM& edited = reinterpret_cast<NMTVDISPINFO*>(header)->item;
    *result = FALSE;
    // The end of one edit may be told twice; the second time there is nothing to do.
    if (!std::exchange(state->edited, nullptr))
        return;
    const Tracker item(state, edited.hItem);
    const OVO::Handle<Node> node = this->node(item.item());
    if (!node)
        return;
    std::exception_ptr foreign;
    bool again = false;
    {
        const PlatformHold stays(state->holds, PlatformHolds::Kind::Stays, edited.hItem);
        if (edited.pszText) {
            const std::wstring typed = edited.pszText;
            host.reportKeeping(foreign, [&] { again = applyTypedText(*node, item.item(), typed, result); });
        }
        if (host.usable())
            host.reportKeeping(foreign, [&] { node->endLabelEdit(*this); });
    }
    if (again && host.usable() && item) {
        state->editAgain = item.item();
        PostMessage(ovoui::tree::kEditLabelAgain);
    }
    if (!item)
        *result = FALSE; // the tree view must not touch the item any more
    raise(foreign);
}

/// Has the node renamed. True when it has left its text as it was: then the user is to correct what was
/// typed.
bool MultiTreeCtrl::applyTypedText(Node& node, HTREEITEM item, const std::wstring& typed, LRESULT* result)
{
    const HostCalls host(*this);
    const Tracker old(m_state, item);
    const std::wstring offered = node.renameText(*this);
    if (typed == offered || !host.usable())
        return false;
    const std::wstring before = node.text(*this);
    if (!host.usable())
        return false;
    node.rename(*this, typed);
    const HTREEITEM now = node.hTreeItem();
    if (!host.usable() || !now)
        return false;
    if (!old || now != item) {
        const Tracker anew(m_state, now);
        clearselection(next(TVGN_ROOT));
        if (host.usable() && anew)
            doSelectItem(now);
        return false;
    }
    const std::wstring after = node.text(*this);
    if (!host.usable() || !old)
        return false;
    if (after == before)
        return true;
    if (after == typed)
        *result = TRUE;
    else
        node.resetItemText(*this);
    return false;
}

/// When the tree view has closed the editor, it can be opened once more.
LRESULT MultiTreeCtrl::OnEditLabelAgain(WPARAM, LPARAM)
{
    if (const HTREEITEM item = std::exchange(m_state->editAgain, nullptr))
        DefWindowProc(TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(item));
    return 0;
}
