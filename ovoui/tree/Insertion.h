/// Not exported: how nodes come into the tree, and what is remembered to find their places sooner.
#pragma once

#include <ovoui/tree/ChildOrders.h>
#include <ovoui/tree/Concern.h>

#include <optional>

class MultiTreeCtrl::Insertion final : public Concern
{
public:
    using Concern::Concern;

    /// Node::insert's part of the tree: the item, with nothing done to the node. What the node is asked may
    /// delete the places given. Null when nothing was inserted.
    HTREEITEM insertItem(const Node& node, HTREEITEM parent, HTREEITEM after);

    /// Adds an item that was just inserted to the selection, or, with `first`, makes it the only one there.
    /// Gives the item, or null when the parent has deleted it on hearing of the selection.
    HTREEITEM select(HTREEITEM item, bool& first);

    /// Whether the host keeps sorted children in order.
    bool halves() const { return m_halves; }
    void setHalves(bool halves);

    /// The children of an item or TVI_ROOT, handed over: while the host is asked, nothing may change them. To
    /// be given back by remember() when they are still right.
    ovoui::tree::Children takeChildren(HTREEITEM parent);
    void remember(HTREEITEM parent, ovoui::tree::Children children);
    /// The node of a child. To be asked as long as nothing has changed (State::structure).
    OVO::Handle<Node> nodeOf(const ovoui::tree::Child& child) const;

    void itemGoes(HTREEITEM item) override;
    void allGo() override;
    void windowMade() override;
    void begins(const Message& message) override;
    void ends(const Message& message, LRESULT result) override;
    void fails() override;

private:
    HTREEITEM send(const TVINSERTSTRUCT& insert, const Node& node);
    void takeBack(HTREEITEM item) const;
    static bool changesChildren(const Message& message);

    bool m_halves = false;
    ovoui::tree::ChildOrders m_children;
};
