/// Not exported: deleting items, at once or when the tree view has finished with them, and what becomes of
/// their nodes.
#pragma once

#include <ovoui/tree/Concern.h>

class MultiTreeCtrl::Deletion final : public Concern
{
public:
    using Concern::Concern;

    bool deleteAll();
    /// The tree view says that it deletes an item: the control forgets it and lets go of its node.
    void forget(HTREEITEM item, LPARAM data);
    /// Deletes the items that had to wait, if the tree view has finished with them.
    void deleteDoomed();
    /// Destroys the nodes released since there were so many, unless others hold them.
    void letGo(std::size_t releasedBefore);

    bool arrives(Message& message) override;
    void begins(const Message& message) override;
    void settles(const Message& message, HTREEITEM item) override;

private:
    void releaseNode(HTREEITEM item, LPARAM data);
    bool mayGo(HTREEITEM item) const;
    bool postponesDeleting(HTREEITEM item);
    bool postponesEmptying(HTREEITEM item);
    void doom(HTREEITEM item, bool parentClosed);
    void detachNodes(HTREEITEM item);
    void deleteAfterwards(HTREEITEM item, bool parentClosed);
    void restoreButton(HTREEITEM item);
};
