/// A push button from which the user picks a colour anywhere on the screen.
///
///     m_dropper.SubclassDlgItem(IDC_FROM_SCREEN, this); // a push button of the template
///
///     ON_CONTROL(CColourDropper::kTaken, IDC_FROM_SCREEN, &LeafDlg::OnColourOfScreen)
#pragma once

#include <ovoui/export.h>
#include <ovoui/frame/Lifeline.h>

#include <afxwin.h>

#include <memory>

namespace ovoui::colour
{
class Magnifier;
class ScreenPick;
} // namespace ovoui::colour

/// The user presses the button, drags to a point of the screen, and lets go; a magnifier beside the pointer
/// shows the pixels around it meanwhile. Without a mouse, Space or Enter begin, arrows move the pointer by
/// one pixel and with Shift by ten, and Space or Enter take the colour. Escape gives up, and so does another
/// window that takes the mouse or the focus.
///
/// The parent is sent WM_COMMAND with kTaken, and may destroy the button in it. It gets no BN_CLICKED.
class OVOUI_API CColourDropper : public CButton
{
    DECLARE_DYNAMIC(CColourDropper)

public:
    static constexpr UINT kTaken = 0x52; ///< the user has taken a colour

    CColourDropper();
    ~CColourDropper() override;

    /// The colour that was taken last; black at first.
    COLORREF TakenColour() const { return m_taken; }
    /// Whether the user is picking.
    bool IsPicking() const;

protected:
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* wnd);
    afx_msg LRESULT OnClick(WPARAM wParam, LPARAM lParam);
    afx_msg void OnDestroy();
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* other);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void begin();
    void follow();
    void take();
    void giveUp();
    void end();
    bool isOnButton(CPoint client) const;
    void movePointer(UINT key);

    std::unique_ptr<ovoui::colour::ScreenPick> m_pick;
    std::unique_ptr<ovoui::colour::Magnifier> m_magnifier;
    COLORREF m_taken = 0;
    Lifeline m_lifeline;
};
