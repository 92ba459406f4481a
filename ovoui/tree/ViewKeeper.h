/// Not exported: what the tree shows, as a text, and back. The text is the business of core/SavedView.h.
#pragma once

#include <ovoui/tree/Paths.h>
#include <ovoui/tree/core/SavedView.h>

class MultiTreeCtrl::ViewKeeper
{
public:
    explicit ViewKeeper(MultiTreeCtrl& tree)
        : m_tree(tree)
        , m_state(tree.m_state)
        , m_paths(tree)
    {
    }

    std::wstring save() const;
    void restore(const std::wstring& text) const;

private:
    bool collect(HTREEITEM parent, ovoui::tree::TreePath& path, ovoui::tree::SavedView& saved) const;
    void note(HTREEITEM item, const ovoui::tree::TreePath& path, ovoui::tree::SavedView& saved) const;
    void open(const std::vector<ovoui::tree::TreePath>& paths) const;
    void select(const ovoui::tree::SavedView& saved) const;

    MultiTreeCtrl& m_tree;
    const std::shared_ptr<State> m_state;
    const Paths m_paths;
};
