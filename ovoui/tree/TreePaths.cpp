// The selected item as a path, and back.
#include <ovoui/tree/TreeState.h>
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
    HTREEITEM item = caret();
    if (!item || !isSelected(item))
        item = firstSelected();
    std::vector<PathStep> steps;
    for (; item; item = next(TVGN_PARENT, item)) {
        PathStep step{labelOf(item)};
        for (HTREEITEM other = next(TVGN_PREVIOUS, item); other; other = next(TVGN_PREVIOUS, other))
            step.ordinal += labelOf(other) == step.text ? 1 : 0;
        steps.insert(steps.begin(), std::move(step));
    }
    return ovoui::tree::formatPath(steps);
}

void MultiTreeCtrl::selectPath(const std::wstring& path)
{
    const std::shared_ptr<State> state = m_state;
    State::Tracker item(state, nullptr);
    for (const PathStep& step : ovoui::tree::parsePath(path)) {
        if (item)
            Expand(item.item(), TVE_EXPAND);
        if (!state->usable())
            return;
        const HTREEITEM first = next(item ? TVGN_CHILD : TVGN_ROOT, item.item());
        item.moveTo(findChild(first, step.text, step.ordinal));
        if (!item)
            return;
    }
    doSelectItem(item.item());
    if (!state->usable() || !item)
        return;
    m_anchor = item.item();
    EnsureVisible(item.item());
}

/// Among `first` and its following siblings the one that has this text for the `ordinal`th time.
HTREEITEM MultiTreeCtrl::findChild(HTREEITEM first, const std::wstring& text, unsigned ordinal) const
{
    for (HTREEITEM child = first; child; child = next(TVGN_NEXT, child))
        if (labelOf(child) == text && --ordinal == 0)
            return child;
    return nullptr;
}
