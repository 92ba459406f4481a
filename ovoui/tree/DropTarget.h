/// Not exported: the tree as a target of OLE drags.
#pragma once

#include <ovoui/tree/MultiTreeCtrl.h>
#include <ovoui/tree/core/EdgeScroll.h>

#include <afxole.h>

/// Marks the place under the pointer, scrolls at the edges, and hands what is dropped to the node there. It
/// lives as long as the tree, or a drag that goes on although the host has destroyed the tree, has a
/// reference to it.
class MultiTreeCtrl::DropTarget : public COleDropTarget
{
public:
    explicit DropTarget(MultiTreeCtrl& tree);
    ~DropTarget() override;

    /// The tree goes: nothing is taken any more.
    void leave();

    DROPEFFECT OnDragEnter(CWnd* window, COleDataObject* data, DWORD keys, CPoint point) override;
    DROPEFFECT OnDragOver(CWnd* window, COleDataObject* data, DWORD keys, CPoint point) override;
    DROPEFFECT OnDragScroll(CWnd* window, DWORD keys, CPoint point) override;
    void OnDragLeave(CWnd* window) override;
    DROPEFFECT OnDropEx(CWnd* window, COleDataObject* data, DROPEFFECT standard, DROPEFFECT allowed,
                        CPoint point) override;

private:
    bool isUsable() const;
    void noteEntering(DWORD keys);
    unsigned directionAt(CPoint point) const;
    bool drop(COleDataObject& data, DROPEFFECT& effect, DROPEFFECT allowed, CPoint point);

    MultiTreeCtrl* m_tree;      ///< null when it has gone
    bool m_inside = false;      ///< a drag is over the tree
    bool m_rightButton = false; ///< it is made with the right button
    ovoui::tree::EdgeScrollTimer m_scroll;
};
