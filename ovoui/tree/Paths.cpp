#include <ovoui/tree/Paths.h>

#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/Selection.h>

using ovoui::tree::PathStep;

// The control's operations

std::wstring MultiTreeCtrl::selectedPath()
{
    return Paths(*this).selected();
}

void MultiTreeCtrl::selectPath(const std::wstring& path)
{
    Paths(*this).select(path);
}

// The path of an item, and back

std::wstring MultiTreeCtrl::Paths::labelOf(HTREEITEM item) const
{
    if (const OVO::Handle<Node> node = m_state->view.node(item))
        return node->text(m_tree);
    return std::wstring(m_tree.GetItemText(item).GetString());
}

std::wstring MultiTreeCtrl::Paths::selected() const
{
    const HostCalls host(m_tree);
    const HTREEITEM focus = m_state->view.caret();
    Tracker item(m_state, focus && m_state->view.isSelected(focus) ? focus : m_state->selection->first());
    std::vector<PathStep> steps;
    while (item) {
        PathStep step{labelOf(item.item())};
        if (!host.usable() || !item)
            return {};
        step.ordinal = ordinalOf(item.item(), step.text);
        if (!host.usable() || !item)
            return {};
        steps.insert(steps.begin(), std::move(step));
        item.moveTo(m_state->view.next(TVGN_PARENT, item.item()));
    }
    return ovoui::tree::formatPath(steps);
}

/// Which of the children with this text an item is, counted from 1.
unsigned MultiTreeCtrl::Paths::ordinalOf(HTREEITEM item, const std::wstring& text) const
{
    const HostCalls host(m_tree);
    const Tracker end(m_state, item);
    const HTREEITEM parent = m_state->view.next(TVGN_PARENT, item);
    Tracker at(m_state, m_state->view.firstChild(parent ? parent : TVI_ROOT),
               Tracker::WhenDeleted::NextSibling);
    unsigned ordinal = 1;
    while (at && at.item() != end.item()) {
        const bool same = labelOf(at.item()) == text;
        if (!host.usable())
            break;
        ordinal += same && !at.moved() ? 1 : 0;
        at.moveTo(at.moved() ? at.item() : m_state->view.nextSibling(at.item()));
    }
    return ordinal;
}

void MultiTreeCtrl::Paths::select(const std::wstring& path) const
{
    const HostCalls host(m_tree);
    const std::vector<PathStep> steps = ovoui::tree::parsePath(path);
    const Tracker item(m_state, find(steps, true));
    if (!host.usable() || (!item && !steps.empty()))
        return;
    m_tree.doSelectItem(item.item());
    if (!host.usable() || !item)
        return;
    m_tree.m_anchor = item.item();
    m_tree.EnsureVisible(item.item());
}

HTREEITEM MultiTreeCtrl::Paths::find(const std::vector<PathStep>& path, bool opens) const
{
    const HostCalls host(m_tree);
    Tracker item(m_state, nullptr);
    bool atTop = true;
    for (const PathStep& step : path) {
        if (item && opens)
            m_tree.Expand(item.item(), TVE_EXPAND);
        if (!host.usable() || (!item && !atTop))
            return nullptr;
        item.moveTo(
            findChild(m_state->view.firstChild(item ? item.item() : TVI_ROOT), step.text, step.ordinal));
        atTop = false;
        if (!item)
            return nullptr;
    }
    return item.item();
}

/// Among `first` and its following siblings the one that has this text for the `ordinal`th time.
HTREEITEM MultiTreeCtrl::Paths::findChild(HTREEITEM first, const std::wstring& text, unsigned ordinal) const
{
    const HostCalls host(m_tree);
    Tracker child(m_state, first, Tracker::WhenDeleted::NextSibling);
    while (child) {
        const bool same = labelOf(child.item()) == text;
        if (!host.usable())
            return nullptr;
        if (same && !child.moved() && --ordinal == 0)
            return child.item();
        child.moveTo(child.moved() ? child.item() : m_state->view.nextSibling(child.item()));
    }
    return nullptr;
}
