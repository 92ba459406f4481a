/// Not exported: opening and closing items. The rule is in core/ExpansionRule.h.
#pragma once

#include <ovoui/tree/Concern.h>

class MultiTreeCtrl::Expansion final : public Concern
{
public:
    using Concern::Concern;

    /// The tree view is about to open or close an item. `result` becomes true when it must not. False when
    /// the node has nothing to do with it, so that the parent decides.
    bool before(const NMTREEVIEW& notification, LRESULT& result);
    /// The tree view has done so. False for an item without a node.
    bool after(const NMTREEVIEW& notification);

    /// When a program closes an item, the tree view may do so without a notification; the node must hear of
    /// it.
    void settles(const Message& message, HTREEITEM item) override;

private:
    void open(Node& node, HTREEITEM item, LRESULT& result);
    void close(Node& node, HTREEITEM item);
    void restoreState(Node& node, HTREEITEM item);
    void deleteChildren(HTREEITEM item);
    void deleteChildrenOneByOne(HTREEITEM item);
};
