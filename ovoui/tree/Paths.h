/// Not exported: the selected item as a path, and back.
#pragma once

#include <ovoui/tree/TreeState.h>
#include <ovoui/tree/core/TreePath.h>

class MultiTreeCtrl::Paths
{
public:
    explicit Paths(MultiTreeCtrl& tree)
        : m_tree(tree)
        , m_state(tree.m_state)
    {
    }

    std::wstring selected() const;
    void select(const std::wstring& path) const;

    /// The item of a path; null when there is none, or no tree any more. `opens`: what is on the way is
    /// opened.
    HTREEITEM find(const std::vector<ovoui::tree::PathStep>& path, bool opens) const;
    /// A step of a path.
    std::wstring labelOf(HTREEITEM item) const;

private:
    unsigned ordinalOf(HTREEITEM item, const std::wstring& text) const;
    HTREEITEM findChild(HTREEITEM first, const std::wstring& text, unsigned ordinal) const;

    MultiTreeCtrl& m_tree;
    const std::shared_ptr<State> m_state;
};
