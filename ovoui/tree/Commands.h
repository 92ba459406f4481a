/// Not exported: commands that nodes offer, and the way on to the parent window.
#pragma once

#include <ovoui/tree/Concern.h>

#include <utility>

class MultiTreeCtrl::Commands final : public Concern
{
public:
    using Concern::Concern;

    /// Routes a command, or the question whether it is enabled. False when there is no handler.
    bool route(UINT id, int code, void* extra);
    /// Who would handle a command.
    bool findHandler(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);
    /// Has all selected nodes that offer the command do it, as one gesture. False when there are none.
    bool routeToNodes(UINT id);
    /// The parent may hand commands down to the tree: then they end here, and do not go round and round.
    bool routeToParent(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);
    bool canPaste(UINT id) const;
    /// Shows how a line of a menu stands.
    void updateMenuItem(CMenu& popup, UINT index);

private:
    bool isOffered(UINT id) const;
    bool updateByNodes(CCmdUI& ui, UINT id);

    std::vector<std::pair<UINT, int>> m_asking; ///< what the parent is being asked
};
