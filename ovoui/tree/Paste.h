/// Not exported: pasting, as a drop of what is on the clipboard.
#pragma once

#include <ovoui/tree/TreeState.h>

/// One attempt to paste. It asks the one selected node, else the caret's, else the root, as if the data were
/// dragged there.
class MultiTreeCtrl::Paste
{
public:
    explicit Paste(MultiTreeCtrl& tree)
        : m_tree(tree)
    {
    }

    bool isPossible() const;
    /// False when the data is not taken anywhere. An error that was reported is the end of it: nobody else is
    /// to paste what the user wanted here.
    bool run() const;

private:
    struct Place;

    Place find(COleDataObject& data) const;
    HTREEITEM itemToAsk() const;

    MultiTreeCtrl& m_tree;
};
