/// A tab control whose shaded page shows through the controls on it.
///
///     HBRUSH MyPage::OnCtlColor(CDC* dc, CWnd* control, UINT type) // a dialog on a page of the tab control
///     {
///         return CShadedTabCtrl::AmendCtlColor(dc, control, type, CDialog::OnCtlColor(dc, control, type));
///     }
#pragma once

#include <ovoui/export.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <map>

/// With visual styles, a tab control paints its page in a pattern of its own, which a child window or the
/// controls of a child dialog would cover with the colour of dialogs. This one takes a picture of itself,
/// makes a pattern brush of it, and hands the brush to the controls, aligned with what lies under them.
/// Without visual styles there is no brush, and every control keeps what it has.
///
/// The picture is taken when the brush is first asked for, after each change of the size, and anew after a
/// change of the theme and for each window that the object gets.
class OVOUI_API CShadedTabCtrl : public CTabCtrl
{
    DECLARE_DYNAMIC(CShadedTabCtrl)

public:
    CShadedTabCtrl();
    /// Frees the brush and the picture. Controls must not paint with the brush any more.
    ~CShadedTabCtrl() override;

    /// The brush for `child`, which lies on a shaded tab control: directly, or within a window that does.
    /// `origin` is where the brush begins in the child's client coordinates: give it to SetBrushOrg before
    /// filling. False, with both left alone, when there is no such tab control or no brush. The brush stays
    /// the tab control's, until its size changes.
    static bool GetBackgroundBrush(CWnd* child, HBRUSH& brush, CPoint& origin);
    /// The same `brush` and `origin` for this tab control, in the coordinates of `relativeTo`, or of the
    /// screen when that is null.
    bool GetBackgroundBrush(HBRUSH& brush, CPoint& origin, CWnd* relativeTo);

    /// For a WM_CTLCOLOR handler: the brush with which `control`, which lies on a shaded tab control, paints
    /// its background, and the DC prepared for it. `type` is one of CTLCOLOR_...; edits keep their colours. A
    /// group box gets a solid brush in the colour under its corner, since it fills the background of its
    /// caption. Gives `defaultBrush` when there is nothing to change. The caller never deletes the brush.
    static HBRUSH AmendCtlColor(CDC* dc, CWnd* control, UINT type, HBRUSH defaultBrush);
    /// The same with `dc`, `type` and `defaultBrush` for a control known to lie on this tab control. Here
    /// list boxes keep their colours, too.
    HBRUSH AmendCtlColor(CDC* dc, UINT type, HBRUSH defaultBrush, CWnd* control);

    /// Solid brushes for group boxes, one a colour. They live until the process ends.
    static std::map<COLORREF, HBRUSH> ms_brushes;

protected:
    /// Takes the picture anew. Nothing of this object may be used afterwards when painting has destroyed it.
    void captureBackground();

    void PreSubclassWindow() override;

    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg LRESULT OnThemeChanged();
    DECLARE_MESSAGE_MAP()

private:
    static CShadedTabCtrl* above(CWnd* child);
    bool hasBackground();
    bool takePicture(CBitmap& picture);
    HBRUSH amended(CDC* dc, UINT type, HBRUSH defaultBrush, CWnd* control);
    HBRUSH alignedBrush(CDC& dc, const CWnd& control);
    HBRUSH flippedBrush();
    void makeFlippedBrush();
    COLORREF colourAt(CPoint point);

    bool m_captured = false; ///< the picture has been taken, or tried to
    CBitmap m_picture;       ///< of the whole window
    CBrush m_brush;          ///< that picture as a pattern
    CBrush m_flippedBrush;   ///< the same from right to left; made when it is needed
};
