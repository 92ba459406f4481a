/// The popup of a slider button: a small dialog that holds one slider.
#pragma once

#include <ovoui/export.h>
#include <ovoui/sliders/PopupSliderCtrl.h>

#include <afxwin.h>

class CSliderButton;

/// Part of CSliderButton, which makes it when it is first needed. It goes out of sight when it loses the
/// activation, and posts kDeactivated to its button.
class OVOUI_API CPopupSlider : public CDialog
{
public:
    /// Posted to the button.
    static constexpr UINT kDeactivated = 3606;

    CPopupSlider();

    /// Makes the popup, out of sight and without taking the focus, in the window tree of `owner`, which
    /// outlives it.
    BOOL Create(CSliderButton* owner);

    /// The slider; it has its window while the popup has.
    CPopupSliderCtrl& slider() { return m_slider; }

    /// Moves a place for the popup onto the screen, as EnsureRectVisible does.
    void keepOnScreen(CRect& place);

    /// Makes slider and popup higher for ticks below the thumb, once.
    void makeRoomForTicks();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnCancel() override;
    void OnOK() override;

    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnActivateApp(BOOL active, DWORD thread);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg LRESULT OnScreenChanged(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void putAway();

    CPopupSliderCtrl m_slider;
    CSliderButton* m_owner = nullptr;
    CRect m_workArea; ///< of the monitor where the popup was last; empty when it may have changed
};
