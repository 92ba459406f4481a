/// Not exported: where something dragged over the tree would go, and how that is shown.
#pragma once

#include <ovoui/tree/Concern.h>

class MultiTreeCtrl::Dropping final : public Concern
{
public:
    using Concern::Concern;

    /// Who would take the data, and how.
    struct Place
    {
        DWORD effects = 0;        ///< those that are allowed
        OVO::Handle<Node> target; ///< null for the root
        HTREEITEM item = nullptr; ///< the one to put an insertion mark behind
        int zone = -1;            ///< what dropInto is to be told
    };

    /// Finds the place at a client point. Gives its answer: the effect without keys held.
    DWORD dragHitTest(COleDataObject& data, CPoint point, Place& place);
    /// The same for the item that the pointer is over; null stands for the root.
    DWORD ask(COleDataObject& data, HTREEITEM hovered, Place& place);
    /// What things are dropped into above the top level: the parent window, if it is an insertion point too.
    InsertionPoint* root() const;

    /// Shows the insertion mark behind one item and highlights another; null for none.
    void showMark(HTREEITEM markBehind, HTREEITEM highlighted);

    void allGo() override { m_markShown = false; }

private:
    int placeAmongSiblings(HTREEITEM item) const;
    void setMark(HTREEITEM behind);
    void highlight(HTREEITEM item);

    bool m_markShown = false;
};
