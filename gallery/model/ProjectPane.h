// A tree with its top level: the window around it is where things dropped above the first level go.
#pragma once

#include "ProjectItem.h"
#include "ProjectTree.h"

#include <ovoui/images/AlphaImageList.h>

class ProjectPane : public CWnd, public MultiTreeCtrl::InsertionPoint
{
public:
    explicit ProjectPane(ProjectItem::Pointer root);
    ~ProjectPane() override;

    bool create(CWnd& parent, ProjectTree::Log log);

    ProjectTree& tree() { return m_tree; }

    HTREEITEM hTreeItem() const override { return TVI_ROOT; }
    bool canCompare() const override { return false; }
    bool expanded() const override { return true; }
    DWORD dragInto(COleDataObject& data, DWORD& effect, bool& flag, int zone) const override;
    bool dropInto(COleDataObject& data, DWORD effect, MultiTreeCtrl& tree, int zone) override;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    afx_msg void OnBeginDrag(NMHDR* header, LRESULT* result);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    ProjectItem::Pointer m_root;
    CAlphaImageList m_images; // shown by the tree until its end
    ProjectTree m_tree;
    ProjectTree::Log m_log;
};
