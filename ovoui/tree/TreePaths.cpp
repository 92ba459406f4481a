// The selected item as a path, and back.
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/core/TreePath.h>

using ovoui::tree::PathStep;

std::wstring MultiTreeCtrl::labelOf(HTREEITEM item) const
{
    if (const OVO::Handle<Node> node = this->node(item))
        return node->text(*this);
    return std::wstring(GetItemText(item).GetString());
}

std::wstring MultiTreeCtrl::selectedPath()
{
    const HostCalls host(*this);
    const HTREEITEM focus = caret();
    Tracker item(m_state, focus && isSelected(focus) ? focus : firstSelected());
    std::vector<PathStep> steps;
    while (item) {
        PathStep step{labelOf(item.item())};
        if (!host.usable() || !item)
            return {};
        step.ordinal = ordinalOf(item.item(), step.text);
        if (!host.usable() || !item)
            return {};
        steps.insert(steps.begin(), std::move(step));
        item.moveTo(next(TVGN_PARENT, item.item()));
    }
    return ovoui::tree::formatPath(steps);
}

/// Which of the children with this text an item is, counted from 1.
unsigned MultiTreeCtrl::ordinalOf(HTREEITEM item, const std::wstring& text) const
{
    const HostCalls host(*this);
    const Tracker end(m_state, item);
    const HTREEITEM parent = next(TVGN_PARENT, item);
    Tracker at(m_state, firstChild(parent ? parent : TVI_ROOT), Tracker::WhenDeleted::NextSibling);
    unsigned ordinal = 1;
    while (at && at.item() != end.item()) {
        const bool same = labelOf(at.item()) == text;
        if (!host.usable())
            break;
        ordinal += same && !at.moved() ? 1 : 0;
        at.moveTo(at.moved() ? at.item() : nextSibling(at.item()));
    }
    return ordinal;
}

void MultiTreeCtrl::selectPath(const std::wstring& path)
{
    const HostCalls host(*this);
    const std::shared_ptr<State> state = m_state;
    Tracker item(state, nullptr);
    bool atTop = true;
    for (const PathStep& step : ovoui::tree::parsePath(path)) {
        if (item)
            Expand(item.item(), TVE_EXPAND);
        if (!host.usable() || (!item && !atTop))
            return;
        item.moveTo(findChild(firstChild(item ? item.item() : TVI_ROOT), step.text, step.ordinal));
        atTop = false;
        if (!item)
            return;
    }
    doSelectItem(item.item());
    if (!host.usable() || !item)
        return;
    m_anchor = item.item();
    EnsureVisible(item.item());
}

/// Among `first` and its following siblings the one that has this text for the `ordinal`th time.
HTREEITEM MultiTreeCtrl::findChild(HTREEITEM first, const std::wstring& text, unsigned ordinal) const
{
    const HostCalls host(*this);
    Tracker child(m_state, first, Tracker::WhenDeleted::NextSibling);
    while (child) {
        const bool same = labelOf(child.item()) == text;
        if (!host.usable())
            return nullptr;
        if (same && !child.moved() && --ordinal == 0)
            return child.item();
        child.moveTo(child.moved() ? child.item() : nextSibling(child.item()));
    }
    return nullptr;
}
