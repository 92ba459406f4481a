/// Not exported: the filter. What it leaves is the business of core/FilterRule.h.
#pragma once

#include <ovoui/tree/Concern.h>

#include <functional>
#include <unordered_map>

class MultiTreeCtrl::Filter final : public Concern
{
public:
    using Concern::Concern;
    using Test = std::function<bool(const Node&)>;

    /// Shows all that the filter of before has hidden, and hides what the new one does not keep.
    void set(Test keeps);

    void itemGoes(HTREEITEM item) override;
    void allGo() override;
    void begins(const Message& message) override;
    void childrenGo(HTREEITEM parent) override;
    void childrenCame(HTREEITEM parent) override;

private:
    /// A node whose item was taken out of the tree, with all that was below it.
    struct Hidden
    {
        OVO::Handle<Node> node;
        bool open = false;
        std::vector<Hidden> children;
    };
    /// The children of one parent, some of them hidden.
    struct Family
    {
        std::vector<OVO::Handle<Node>> order; ///< all, as they stood when the first was hidden
        std::unordered_map<const Node*, Hidden> hidden;
    };
    using Families = std::unordered_map<HTREEITEM, Family>; ///< by parent, TVI_ROOT for the top level

    void closeEditor() const;
    void hideAll(unsigned version);
    void hideBelow(HTREEITEM parent);
    std::vector<HTREEITEM> itemsToHide(HTREEITEM parent, unsigned version) const;
    void hide(const std::vector<HTREEITEM>& items);
    Hidden remembered(HTREEITEM item) const;
    Family& familyOf(HTREEITEM parent);
    void showAll();
    void showFamily(HTREEITEM parent, const Family& family);
    HTREEITEM show(const Hidden& hidden, HTREEITEM parent, HTREEITEM after);
    void keepLooks(HTREEITEM parent, bool open) const;
    void letGo(Families::iterator family);
    void letGo(Hidden& hidden);

    Test m_keeps;
    unsigned m_version = 0; ///< grows with every filter that is set
    Families m_hidden;
};
