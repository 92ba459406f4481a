/// What stands behind an item of a tree.
#include <ovoui/tree/MultiTreeCtrl.h> // which includes this file at its end

#ifndef OVOUI_TREE_TREENODE_H
#define OVOUI_TREE_TREENODE_H

#include <cstdint>
#include <string>

class CDC;
class CImageList;

/// The application's own object behind an item. The tree asks it for text, images and permissions, and tells
/// it what the user wants done; it does the work.
///
/// Nodes are made with `new` and held by OVO::Handle. The tree holds one reference for the item from insert()
/// on until the item is deleted, in whatever way that happens; a node without another reference goes with it.
/// A node is in one tree at a time.
///
/// What these operations raise: an OvoError or a standard exception goes to the tree's reportError when the
/// tree's user or the tree view caused the call, and to the caller when the host's code did. Other exceptions
/// pass on.
///
/// Every operation may change the tree: delete items, this node's own among them, insert, open, close,
/// select, run messages. An item that the tree view is still working with loses its node at once and goes a
/// little later. Every operation may destroy the tree or its window too, except those that the tree view
/// itself waits for: expand, collapse, rename, renameText, canRename, beginLabelEdit and endLabelEdit, and
/// text and the images while an item opens or closes.
/// In all operations `tree` is the tree that the node is in.
class OVOUI_API MultiTreeCtrl::Node : public MultiTreeCtrl::InsertionPoint, public OVO::Handlable
{
public:
    Node();
    /// A node stands for one item: there are no copies.
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    /// Shows this node in `tree`, under `parent` behind `after`; both are items or the tree view's TVI_
    /// markers. `state` keeps its cut, drop-highlighted and bold bits alone. Gives the new item, or null on
    /// failure: nothing else of the node has changed then.
    HTREEITEM insert(MultiTreeCtrl& tree, HTREEITEM parent, HTREEITEM after);

    /// Sets the item's label to text(). Nothing without an item.
    void resetItemText(MultiTreeCtrl& tree);

    // The place of its children
    HTREEITEM hTreeItem() const override; ///< This node's item; null while it is in no tree.
    DWORD dragInto(COleDataObject& data, DWORD& effect, bool& flag, int zone) const override;
    bool dropInto(COleDataObject& data, DWORD effect, MultiTreeCtrl& tree, int zone) override;
    bool expanded() const override; ///< Whether the item is open, by the node's state.

    /// The item was closed; its children are about to be deleted. Does nothing unless overridden.
    virtual void collapse(MultiTreeCtrl& tree);
    /// The default action: double click, Enter.
    virtual void activate(MultiTreeCtrl& tree) = 0;
    /// The item is about to open: inserts the children (by Node::insert) and gives true. False, as by
    /// default, keeps it closed; after an error it opens with what was inserted.
    virtual bool expand(MultiTreeCtrl& tree);
    /// The text of the tooltip; empty, as by default, for none.
    virtual std::wstring infotip(MultiTreeCtrl& tree) const;
    /// The label.
    virtual std::wstring text(const MultiTreeCtrl& tree) const = 0;
    /// Deletes what the node stands for. True, as by default, lets the tree delete the item.
    virtual bool erase(MultiTreeCtrl& tree);
    /// Looks again at what the node stands for. False deletes the item; true by default.
    virtual bool refresh();
    /// The user has typed a new name, `newText`. The node takes it, makes another of it, or leaves text() as
    /// it was: then the user is asked again. Does nothing unless overridden.
    virtual void rename(MultiTreeCtrl& tree, const std::wstring& newText);
    /// The text offered for editing: text() unless overridden.
    virtual std::wstring renameText(MultiTreeCtrl& tree) const;
    /// Draws a preview into `rect` of `dc`; `images` (may be null) are those of the tree. Fills it with the
    /// colour of button faces unless overridden.
    virtual void drawPreview(CDC& dc, const CRect& rect, CImageList* images) const;
    /// A drag of this node, or its deletion (`effects` 0), is about to begin. Chooses the pointers,
    /// `cursors`, which stay the node's own, and gives the effects it allows, of those in `effects`. By
    /// default the default set, and 0: the node cannot be dragged.
    virtual DWORD dragStarting(MultiTreeCtrl& tree, DWORD effects, const DragCursorSet*& cursors);
    /// The drag has ended with this effect. Does nothing unless overridden.
    virtual void dragEnding(MultiTreeCtrl& tree, DWORD effect);
    /// Index in the image list while the item is closed.
    virtual int closedImage() const = 0;
    /// Index in the image list while the item is open.
    virtual int openImage() const = 0;
    virtual bool canRename() const; ///< False unless overridden.
    virtual bool canErase() const;  ///< False unless overridden.
    /// May change the hit-test flags of a client point on the item. Flags of the node's own stand in the
    /// upper 16 bits; if the lower ones are then all zero, the place is the node's own, and presses there
    /// come to buttonDown and handleLButtonUp. Does nothing unless overridden.
    virtual void hitTest(const MultiTreeCtrl& tree, CPoint point, unsigned& flags) const;
    /// A button went down at the client `point`, on a place of the node's own: `message` holds the MK_ bits
    /// of the keys, `flags` the hit-test flags. True when that is all; false, as by default, leaves the press
    /// to the tree view.
    virtual bool buttonDown(const MultiTreeCtrl& tree, unsigned message, CPoint point, unsigned flags);
    /// The left button went up there, at the client `point` with the hit-test `flags`. True when that is all;
    /// false by default.
    virtual bool handleLButtonUp(MultiTreeCtrl& tree, CPoint point, unsigned flags);
    /// The label editor opens. Does nothing unless overridden.
    virtual void beginLabelEdit(MultiTreeCtrl& tree);
    /// The label editor has closed, whatever came of it. Does nothing unless overridden.
    virtual void endLabelEdit(MultiTreeCtrl& tree);

    // Behind all operations, which stand in the order in which they are called through.
    ~Node() override;

private:
    friend class MultiTreeCtrl;

    HTREEITEM m_hTreeItem = nullptr;

    /// The image for the current state.
    int image() const;

public:
    /// A copy of the item's state bits (TVIS_). The cut, drop-highlighted and bold bits go to the item when
    /// the node is inserted and at every updateUI.
    std::uint32_t state = 0;
    /// The tree view's has-children value: 0 for none, 1 for a button to open the item with.
    std::int32_t children = 0;
};

#endif
