// Renaming in place.
#include <ovoui/tree/EditLabelAgain.h>
#include <ovoui/tree/NodeErrors.h>
#include <ovoui/tree/TreeState.h>

#include <ovouires/resource.h>

using ovoui::tree::keepForeign;
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
    clearselection(next(TVGN_ROOT));
    DefWindowProc(TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(item));
}

void MultiTreeCtrl::OnBeginlabeledit(NMHDR* header, LRESULT* result)
{
    const std::shared_ptr<State> state = m_state;
    const OVO::Handle<Node> node = this->node(reinterpret_cast<NMTVDISPINFO*>(header)->item.hItem);
    *result = TRUE; // refused, unless all goes well
    if (!node)
        return;
    bool begun = false;
    bool ready = false;
    std::exception_ptr foreign = keepForeign(*this, [&] {
        if (!node->canRename() || isCommandDisabled(ID_TREE_RENAME))
            return;
        begun = true;
        node->beginLabelEdit(*this);
        const std::wstring text = node->renameText(*this);
        ready = state->usable();
        if (ready)
            ::SetWindowTextW(reinterpret_cast<HWND>(ask(TVM_GETEDITCONTROL)), text.c_str());
    });
    if (ready) {
        *result = FALSE;
        state->edited = reinterpret_cast<NMTVDISPINFO*>(header)->item.hItem;
    } else if (begun) {
        const std::exception_ptr another = keepForeign(*this, [&] { node->endLabelEdit(*this); });
        foreign = foreign ? foreign : another;
    }
    // An exception takes the place of the refusal, so the editor has to be closed again.
    if (foreign && state->usable())
        PostMessage(TVM_ENDEDITLABELNOW, TRUE, 0);
    raise(foreign);
}

void MultiTreeCtrl::OnEndlabeledit(NMHDR* header, LRESULT* result)
{
    const std::shared_ptr<State> state = m_state;
    const TVITEM& edited = reinterpret_cast<NMTVDISPINFO*>(header)->item;
    *result = FALSE;
    // The end of one edit may be told twice; the second time there is nothing to do.
    if (!std::exchange(state->edited, nullptr))
        return;
    // Not just its handle: a new item may get that of a deleted one.
    const State::Tracker item(state, edited.hItem);
    const OVO::Handle<Node> node = this->node(item.item());
    if (!node)
        return;
    // The tree view's own text changes without a message when it takes the typed one.
    state->children.distrustAll();
    bool again = false;
    std::exception_ptr foreign;
    if (edited.pszText) {
        const std::wstring typed = edited.pszText;
        foreign = keepForeign(*this, [&] { again = applyTypedText(*node, item.item(), typed, result); });
    }
    if (state->usable()) {
        const std::exception_ptr another = keepForeign(*this, [&] { node->endLabelEdit(*this); });
        foreign = foreign ? foreign : another;
    }
    if (again && state->usable() && item) {
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
    if (typed == node.renameText(*this))
        return false;
    const std::shared_ptr<State> state = m_state;
    const State::Tracker old(state, item);
    const std::wstring before = node.text(*this);
    node.rename(*this, typed);
    const HTREEITEM now = node.hTreeItem();
    if (!state->usable() || !now)
        return false;
    if (!old || now != item) {
        clearselection(next(TVGN_ROOT));
        doSelectItem(now);
        return false;
    }
    const std::wstring after = node.text(*this);
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
