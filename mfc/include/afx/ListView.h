// CListView: a view that is a list control.
#pragma once

#include <afx/CtrlView.h>
#include <afx/ListCtrl.h>

/// Add the list's styles, such as LVS_REPORT, in PreCreateWindow, and fill it in OnInitialUpdate.
class OVOMFC_API CListView : public CCtrlView
{
    DECLARE_DYNCREATE(CListView)

public:
    CListView();

    /// The view's window as a list control; valid as long as the view.
    CListCtrl& GetListCtrl() const;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    /// Takes an image list (LVSIL_...) out of the control. It stays its maker's.
    void RemoveImageList(int kind);

private:
    mutable CListCtrl m_list; ///< not attached: the window's object is the view
};
