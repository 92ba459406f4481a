/// Not exported: the selected item as a path, and back.
#pragma once

#include <ovoui/tree/TreeState.h>

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

private:
    std::wstring labelOf(HTREEITEM item) const;
    unsigned ordinalOf(HTREEITEM item, const std::wstring& text) const;
    HTREEITEM findChild(HTREEITEM first, const std::wstring& text, unsigned ordinal) const;

    MultiTreeCtrl& m_tree;
    const std::shared_ptr<State> m_state;
};
