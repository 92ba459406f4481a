// CTreeView: a view that is a tree control.
#pragma once

#include <afx/CtrlView.h>
#include <afx/TreeCtrl.h>

/// Add the tree's styles, such as TVS_HASLINES, in PreCreateWindow, and fill it in OnInitialUpdate.
class OVOMFC_API CTreeView : public CCtrlView
{
    DECLARE_DYNCREATE(CTreeView)

public:
    CTreeView();

    /// The view's window as a tree control; valid as long as the view.
    CTreeCtrl& GetTreeCtrl() const;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

private:
    mutable CTreeCtrl m_tree; ///< not attached: the window's object is the view
};
