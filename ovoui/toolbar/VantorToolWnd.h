/// A dockable tool window: a dialog bar with a title, for palettes and property panels.
///
///     m_palette.Create(this, IDD_PALETTE, WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_GRIPPER, IDS_PALETTE, 0);
///     m_palette.EnableDocking(CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT);
///     DockControlBar(&m_palette);
///
/// Closing hides it: the frame shows it again with ShowControlBar, its controls as they were. Sliders in it
/// notify the frame: scroll messages are sent on to it.
#pragma once

#include <ovoui/export.h>

#include <afxext.h>

class OVOUI_API CVantorToolWnd : public CDialogBar
{
    DECLARE_DYNCREATE(CVantorToolWnd)

public:
    CVantorToolWnd();
    ~CVantorToolWnd() override;

    using CDialogBar::Create;
    /// Makes the bar in `frame`, which must outlive it, from the dialog template `templateId`, with the
    /// string `titleId` as its title. Templates and strings are found along the framework's resource chain.
    /// `style`: WS_ and CBRS_ bits. The bar's number `barId` is also its help context; with 0 it is the
    /// template's number. FALSE when the bar is not made; frame and help context then stay as they were.
    virtual BOOL Create(CFrameWnd* frame, UINT templateId, UINT style, UINT titleId, UINT barId);

    /// Shows the help on the bar; for hosts that route a help command to it.
    afx_msg void OnHelp();

    /// Room in pixels that hosts leave at the left and right of tool windows. 0 until the first one is
    /// constructed, which makes both 2 unless the host has set this one before.
    static int sm_xBorder;
    /// The same above and below.
    static int sm_yBorder;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnContextMenu(CWnd* wnd, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CFrameWnd* m_frame = nullptr; ///< that the bar belongs to; not owned
    UINT m_helpId = 0;            ///< the bar's number
};
