// CDialogBar: a bar with the controls of a dialog template.
#pragma once

#include <afx/ControlBar.h>

/// The template is one for a child window. What its controls notify that the bar does not handle goes to the
/// frame.
class OVOMFC_API CDialogBar : public CControlBar
{
    DECLARE_DYNAMIC(CDialogBar)

public:
    CDialogBar();
    ~CDialogBar() override;

    using CWnd::Create;
    /// FALSE when the template, found along the resource chain, is missing. `style`: CBRS_ bits.
    virtual BOOL Create(CWnd* parent, LPCTSTR templateName, UINT style, UINT id);
    virtual BOOL Create(CWnd* parent, UINT templateId, UINT style, UINT id);

    CSize m_sizeDefault{0, 0}; ///< what its controls need, in pixels

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

protected:
    /// WM_INITDIALOG: fills list and combo boxes from the template's resource.
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* sizes);
    afx_msg void OnNcPaint();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    LPCTSTR m_lpszTemplateName = nullptr;
};
