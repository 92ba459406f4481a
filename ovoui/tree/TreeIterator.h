/// Walks over the items of a tree.
#include <ovoui/tree/MultiTreeCtrl.h> // which includes this file at its end

#ifndef OVOUI_TREE_TREEITERATOR_H
#define OVOUI_TREE_TREEITERATOR_H

#include <cstddef>
#include <iterator>
#include <memory>

/// Stands at an item with a node, or at the end. Goes depth first, parents before their children, over open
/// and closed items alike; over the selected ones only, if so made.
///
/// Items may be deleted during the walk, that of the iterator among them: the next step goes to the item that
/// came behind. An iterator keeps the node that it stands at. When the tree is destroyed, the next step leads
/// to the end.
///
///     for (auto node = tree.beginSelected(); node != tree.end(); ++node)
///         print(node->text(tree));
class OVOUI_API MultiTreeCtrl::iterator
{
public:
    /// For the standard library: an iterator that can be copied and used again.
    using iterator_category = std::forward_iterator_tag;
    /// For the standard library.
    using value_type = Node;
    /// For the standard library.
    using difference_type = std::ptrdiff_t;
    /// For the standard library.
    using pointer = OVO::Handle<Node>;
    /// For the standard library.
    using reference = Node&;

    /// The end of no tree.
    iterator();
    iterator(const iterator& other);
    iterator(iterator&& other) noexcept;
    /// Stands where `other` stands, in the same tree.
    iterator& operator=(iterator other) noexcept;
    ~iterator();

    /// The node of the item; the reference is good until the next step. Not at the end.
    Node& operator*() const;
    /// A handle to the node, which keeps it alive.
    OVO::Handle<Node> operator->() const;
    /// A handle to the node, which keeps it alive; none at the end.
    operator OVO::Handle<Node>() const;

    /// Stays at the end when it is there.
    iterator& operator++();
    iterator operator++(int);

    /// Whether `a` and `b` stand at the same item of the same tree.
    friend bool operator==(const iterator& a, const iterator& b) { return a.eq(b); }

    /// Whether the next steps go to selected items only; the iterator stays where it is.
    iterator& setSelect(bool selected);
    /// Whether the next steps go to selected items only.
    bool selectedOnly() const { return m_selectedOnly; }

private:
    friend class MultiTreeCtrl;
    class Place;

    iterator(const MultiTreeCtrl& tree, HTREEITEM item, bool selectedOnly);

    bool eq(const iterator& other) const;
    HTREEITEM behindPlace() const;

    const MultiTreeCtrl* m_tree = nullptr;
    std::unique_ptr<Place> m_place; ///< null at the end
    bool m_selectedOnly = false;
};

#endif
