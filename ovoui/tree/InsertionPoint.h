/// A place in a tree where children can be inserted.
#include <ovoui/tree/MultiTreeCtrl.h> // which includes this file at its end

#ifndef OVOUI_TREE_INSERTIONPOINT_H
#define OVOUI_TREE_INSERTIONPOINT_H

/// The root of a tree, or one of its nodes. It decides how children are ordered, what may be dropped among
/// them, and which commands it knows.
///
/// Every node is one. For the top level a host derives one of its own whose hTreeItem() gives TVI_ROOT; if
/// the tree's parent window derives from this class too, things can be dropped and pasted at the top level.
/// In all operations `tree` is the tree that asks, and `zone` means what it does in dragInto.
class OVOUI_API MultiTreeCtrl::InsertionPoint
{
public:
    /// The item under which children go: TVI_ROOT, or a node's item.
    virtual HTREEITEM hTreeItem() const = 0;

    /// Negative when `a` sorts before `b`, positive when behind, 0 when they are the same child. By text in
    /// the user's locale unless overridden.
    virtual int compareChildren(MultiTreeCtrl& tree, const Node& a, const Node& b) const;

    /// Whether children are kept sorted here. True unless overridden.
    virtual bool canCompare() const;

    /// What a drop of `data` here would do. Gives the effect of a drop without keys held, one of OLE's
    /// DROPEFFECT_, and stores in `effect` all those from which the user may choose. `zone` is -1 for a drop
    /// into this place, or n >= 1 for one among its children, behind the n-th. A node that does not take the
    /// data itself but lets it go beside it sets `flag` and gives 0.
    virtual DWORD dragInto(COleDataObject& data, DWORD& effect, bool& flag, int zone) const = 0;

    /// Takes the data dropped or pasted, with the effect chosen. False when nothing was done.
    virtual bool dropInto(COleDataObject& data, DWORD effect, MultiTreeCtrl& tree, int zone) = 0;

    /// The commands known here: an array from `first` up to but without `last`, which stays this object's
    /// own. None, both null, unless overridden.
    virtual void getCommands(CommandSupported*& first, CommandSupported*& last) const;

    /// Shows in `ui` how a command that getCommands offers stands. `flag` tells that just one node is
    /// selected. Does nothing unless overridden: the command is enabled.
    virtual void doUpdateCmd(CCmdUI* ui, bool flag) const;

    /// Does the command `id`, which getCommands offers. Nothing unless overridden.
    virtual void doCommand(MultiTreeCtrl& tree, unsigned id);

    /// Whether children may be inserted here now.
    virtual bool expanded() const = 0;

protected:
    InsertionPoint() = default;
    InsertionPoint(const InsertionPoint&) = default;
    InsertionPoint& operator=(const InsertionPoint&) = default;
    // Not virtual: a place in a tree is not deleted through this class.
    ~InsertionPoint() = default;
};

#endif
