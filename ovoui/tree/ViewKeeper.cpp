#include <ovoui/tree/ViewKeeper.h>

#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/ParentNotificationFilter.h>
#include <ovoui/tree/Selection.h>

#include <unordered_map>

using namespace ovoui::tree;

// The control's operations

std::wstring MultiTreeCtrl::saveView()
{
    return ViewKeeper(*this).save();
}

void MultiTreeCtrl::restoreView(const std::wstring& view)
{
    ViewKeeper(*this).restore(view);
}

// Saving

std::wstring MultiTreeCtrl::ViewKeeper::save() const
{
    SavedView saved;
    TreePath path;
    return collect(TVI_ROOT, path, saved) ? formatView(saved) : std::wstring();
}

/// Goes over all below `parent`, whose path is given, and counts the texts on the way, so that each is asked
/// for once. False when the tree has gone.
bool MultiTreeCtrl::ViewKeeper::collect(HTREEITEM parent, TreePath& path, SavedView& saved) const
{
    const HostCalls host(m_tree);
    std::unordered_map<std::wstring, unsigned> met;
    Tracker child(m_state, m_state->view.firstChild(parent), Tracker::WhenDeleted::NextSibling);
    while (child) {
        std::wstring text = m_paths.labelOf(child.item());
        if (!host.usable())
            return false;
        if (!child.moved()) { // else deleted by the question
            const unsigned ordinal = ++met[text];
            path.push_back({std::move(text), ordinal});
            note(child.item(), path, saved);
            const bool goesOn = collect(child.item(), path, saved);
            path.pop_back();
            if (!goesOn)
                return false;
        }
        child.moveTo(child.moved() ? child.item() : m_state->view.nextSibling(child.item()));
    }
    return true;
}

void MultiTreeCtrl::ViewKeeper::note(HTREEITEM item, const TreePath& path, SavedView& saved) const
{
    const View& view = m_state->view;
    if (view.isOpen(item))
        saved.open.push_back(path);
    if (view.isSelected(item))
        saved.selected.push_back(path);
    if (item == view.caret())
        saved.caret = path;
    if (item == m_tree.m_anchor)
        saved.anchor = path;
    if (item == view.next(TVGN_FIRSTVISIBLE))
        saved.first = path;
}

// Restoring

void MultiTreeCtrl::ViewKeeper::restore(const std::wstring& text) const
{
    const HostCalls host(m_tree);
    const SavedView saved = parseView(text);
    if (saved == SavedView{})
        return; // no text of ours: what the tree shows is not given up for nothing
    open(saved.open);
    if (host.usable())
        select(saved);
    const HTREEITEM first =
        host.usable() && !saved.first.empty() ? m_paths.find(saved.first, false) : nullptr;
    if (first && host.usable())
        m_tree.DefWindowProc(TVM_SELECTITEM, TVGN_FIRSTVISIBLE, reinterpret_cast<LPARAM>(first));
}

void MultiTreeCtrl::ViewKeeper::open(const std::vector<TreePath>& paths) const
{
    const HostCalls host(m_tree);
    for (const TreePath& path : paths) {
        if (!host.usable())
            return;
        const HTREEITEM item = m_paths.find(path, false);
        if (item && host.usable() && !m_state->view.isOpen(item))
            m_tree.Expand(item, TVE_EXPAND);
    }
}

/// The parent hears of the new selection once.
void MultiTreeCtrl::ViewKeeper::select(const SavedView& saved) const
{
    const HostCalls host(m_tree);
    const ItemList watch(m_state, {});
    std::vector<HTREEITEM> items;
    for (const TreePath& path : saved.selected) {
        const HTREEITEM item = m_paths.find(path, false);
        if (!host.usable())
            return;
        if (item)
            items.push_back(item);
    }
    const Tracker caret(m_state, m_paths.find(saved.caret, false));
    const Tracker anchor(m_state, host.usable() ? m_paths.find(saved.anchor, false) : nullptr);
    if (!host.usable())
        return;
    std::erase_if(items, [&](HTREEITEM item) { return watch.isGone(item); });
    const ItemList wanted(m_state, std::move(items));
    const Tracker oldCaret(m_state, m_state->view.caret());
    {
        const ParentNotificationFilter quiet(m_tree.m_hWnd);
        m_state->view.setCaret(caret.item());
    }
    if (host.usable())
        m_state->selection->become(wanted);
    if (!host.usable())
        return;
    m_tree.m_anchor = anchor.item();
    m_tree.notifyTvnSelchanged(TVC_UNKNOWN, oldCaret.item(), caret.item(), CPoint(0, 0));
}
