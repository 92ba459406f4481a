#include <ovoui/tree/LabelEdit.h>

#include <ovoui/tree/EditLabelAgain.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/Mouse.h>
#include <ovoui/tree/core/LabelRule.h>

#include <ovouires/resource.h>

using namespace ovoui::frame;
using namespace ovoui::tree;

const UINT ovoui::tree::kEditLabelAgain = ::RegisterWindowMessageW(L"ovoui.MultiTreeCtrl.EditLabelAgain");

// The control's handlers

void MultiTreeCtrl::OnEditReplace()
{
    if (const HTREEITEM item = m_state->view.caret())
        m_state->labelEdit->edit(item);
}

void MultiTreeCtrl::OnUpdateEditReplace(CCmdUI* ui)
{
    bool can = false;
    const OVO::Handle<Node> node = this->node(m_state->view.caret());
    quietly([&] { can = node && (GetStyle() & TVS_EDITLABELS) && node->canRename(); });
    ui->Enable(can);
}

void MultiTreeCtrl::OnBeginlabeledit(NMHDR* header, LRESULT* result)
{
    m_state->labelEdit->begin(*reinterpret_cast<const NMTVDISPINFO*>(header), *result);
}

void MultiTreeCtrl::OnEndlabeledit(NMHDR* header, LRESULT* result)
{
    m_state->labelEdit->end(*reinterpret_cast<const NMTVDISPINFO*>(header), *result);
}

LRESULT MultiTreeCtrl::OnEditLabelAgain(WPARAM, LPARAM)
{
    m_state->labelEdit->editAgain();
    return 0;
}

/// An editor that opened under a modal dialog would get no key, and would stay open behind it.
void MultiTreeCtrl::OnTimer(UINT_PTR id)
{
    const HTREEITEM item = m_state->mouse->takeItemToEdit(id);
    if (!item)
        CTreeCtrl::OnTimer(id);
    else if (IsWindowEnabled() && ::IsWindowEnabled(::GetAncestor(m_hWnd, GA_ROOT)))
        m_state->labelEdit->edit(item);
}

// Editing

void MultiTreeCtrl::LabelEdit::edit(HTREEITEM item)
{
    const HostCalls host(tree());
    const Tracker edited(shared(), item);
    tree().clearselection(view().next(TVGN_ROOT));
    if (host.usable() && edited)
        tree().DefWindowProc(TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(item));
}

void MultiTreeCtrl::LabelEdit::begin(const NMTVDISPINFO& notification, LRESULT& result)
{
    const HostCalls host(tree());
    const Tracker item(shared(), notification.item.hItem);
    const OVO::Handle<Node> node = view().node(item.item());
    result = TRUE; // refused, unless all goes well
    if (!node)
        return;
    // The tree view goes on with the item.
    const PlatformHold stays(m_state.holds, PlatformHolds::Kind::Stays, item.item());
    bool begun = false;
    bool ready = false;
    std::exception_ptr foreign;
    host.reportKeeping(foreign, [&] { ready = prepare(*node, item, begun); });
    if (ready) {
        result = FALSE;
        m_edited = item.item();
    } else if (begun && host.usable()) {
        host.reportKeeping(foreign, [&] { node->endLabelEdit(tree()); });
    }
    // An exception takes the place of the refusal, so the editor has to be closed again.
    if (foreign && host.usable())
        tree().PostMessage(TVM_ENDEDITLABELNOW, TRUE, 0);
    raise(foreign);
}

/// Asks the node, tells it, and offers its text. True when the editor may open; `begun` when the node was
/// told.
bool MultiTreeCtrl::LabelEdit::prepare(Node& node, const Tracker& item, bool& begun)
{
    const HostCalls host(tree());
    if (!node.canRename() || !host.usable() || tree().isCommandDisabled(ID_TREE_RENAME) || !host.usable())
        return false;
    begun = true;
    node.beginLabelEdit(tree());
    if (!host.usable())
        return false;
    const std::wstring text = node.renameText(tree());
    if (!host.usable() || !item)
        return false;
    ::SetWindowTextW(reinterpret_cast<HWND>(view().ask(TVM_GETEDITCONTROL)), text.c_str());
    return true;
}

void MultiTreeCtrl::LabelEdit::end(const NMTVDISPINFO& notification, LRESULT& result)
{
    const HostCalls host(tree());
    const TVITEM& edited = notification.item;
    result = FALSE;
    // The end of one edit may be told twice; the second time there is nothing to do.
    if (!std::exchange(m_edited, nullptr))
        return;
    const Tracker item(shared(), edited.hItem);
    const OVO::Handle<Node> node = view().node(item.item());
    if (!node)
        return;
    std::exception_ptr foreign;
    bool again = false;
    {
        const PlatformHold stays(m_state.holds, PlatformHolds::Kind::Stays, edited.hItem);
        if (edited.pszText) {
            const std::wstring typed = edited.pszText;
            host.reportKeeping(foreign, [&] { again = apply(*node, item.item(), typed, result); });
        }
        if (host.usable())
            host.reportKeeping(foreign, [&] { node->endLabelEdit(tree()); });
    }
    if (again && host.usable() && item) {
        m_again = item.item();
        tree().PostMessage(kEditLabelAgain);
    }
    if (!item)
        result = FALSE; // the tree view must not touch the item any more
    raise(foreign);
}

/// Has the node renamed. True when it has left its text as it was: then the user is to correct what was
/// typed.
bool MultiTreeCtrl::LabelEdit::apply(Node& node, HTREEITEM item, const std::wstring& typed, LRESULT& result)
{
    const HostCalls host(tree());
    const Tracker old(shared(), item);
    const std::wstring offered = node.renameText(tree());
    if (!isRenamed(offered, typed) || !host.usable())
        return false;
    const std::wstring before = node.text(tree());
    if (!host.usable())
        return false;
    node.rename(tree(), typed);
    const HTREEITEM now = node.hTreeItem();
    if (!host.usable() || !now)
        return false;
    if (!old || now != item) {
        const Tracker anew(shared(), now);
        tree().clearselection(view().next(TVGN_ROOT));
        if (host.usable() && anew)
            tree().doSelectItem(now);
        return false;
    }
    const std::wstring after = node.text(tree());
    if (!host.usable() || !old)
        return false;
    switch (afterRename(before, after, typed)) {
    case AfterRename::EditAgain:
        return true;
    case AfterRename::TakeTyped:
        result = TRUE;
        break;
    case AfterRename::ShowNodes:
        node.resetItemText(tree());
        break;
    }
    return false;
}

/// When the tree view has closed the editor, it can be opened once more.
void MultiTreeCtrl::LabelEdit::editAgain()
{
    if (const HTREEITEM item = std::exchange(m_again, nullptr))
        tree().DefWindowProc(TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(item));
}

// Items that go

/// An editor must not outlive its item. It is closed before the tree view begins to delete, since the node
/// hears of it, and the tree view in the middle of a deletion could not stand what the node may do. False
/// when there is nothing left to delete.
bool MultiTreeCtrl::LabelEdit::arrives(Message& message)
{
    if (!m_edited)
        return true;
    const HTREEITEM item = message.item();
    const ToBeDeleted what = message.toBeDeleted();
    const bool counts = what == ToBeDeleted::Item || what == ToBeDeleted::Children;
    if (!closesEditor(what, m_edited == item, counts && view().isBelow(m_edited, item)))
        return true;
    const HostCalls host(tree());
    const Tracker going(shared(), counts ? item : TVI_ROOT);
    tree().DefWindowProc(TVM_ENDEDITLABELNOW, TRUE, 0);
    return m_state.control() && tree().m_hWnd && going;
}

void MultiTreeCtrl::LabelEdit::itemGoes(HTREEITEM item)
{
    if (m_edited == item)
        m_edited = nullptr;
    if (m_again == item)
        m_again = nullptr;
}

void MultiTreeCtrl::LabelEdit::allGo()
{
    m_edited = nullptr;
    m_again = nullptr;
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::LabelEdit> MultiTreeCtrl::State::make()
{
    return std::make_shared<LabelEdit>(*this);
}
