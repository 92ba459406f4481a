#include <ovoui/sliders/PopupSlider.h>

#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/Lifeline.h>
#include <ovoui/sliders/SliderButton.h>
#include <ovoui/sliders/core/PopupRules.h>
#include <ovoui/sliders/core/SliderPlaces.h>

#include <ovouires/resource.h>

using namespace ovoui::sliders;

BEGIN_MESSAGE_MAP(CPopupSlider, CDialog)
    ON_WM_HSCROLL()
    ON_WM_SETFOCUS()
    ON_WM_ACTIVATE()
    ON_WM_ACTIVATEAPP()
    ON_MESSAGE(WM_DISPLAYCHANGE, &CPopupSlider::OnScreenChanged)
    ON_MESSAGE(WM_SETTINGCHANGE, &CPopupSlider::OnScreenChanged)
END_MESSAGE_MAP()

namespace
{

/// True while a popup is being put away.
bool g_goingAway = false;

class ActivationGuard
{
public:
    ActivationGuard() { g_goingAway = true; }
    ~ActivationGuard() { g_goingAway = false; }
    ActivationGuard(const ActivationGuard&) = delete;
    ActivationGuard& operator=(const ActivationGuard&) = delete;
};

} // namespace

CPopupSlider::CPopupSlider() = default;

BOOL CPopupSlider::Create(CSliderButton* owner)
{
    m_owner = owner;
    return CDialog::Create(IDD_POPUP_SLIDER, owner);
}

/// Asking for monitors takes long, and the popup mostly opens where it was.
void CPopupSlider::keepOnScreen(CRect& place)
{
    if (CRect(m_workArea & place) == place)
        return;
    EnsureRectVisible(place);
    m_workArea = GetWorkArea(place);
}

LRESULT CPopupSlider::OnScreenChanged(WPARAM, LPARAM)
{
    m_workArea.SetRectEmpty();
    return Default();
}

void CPopupSlider::makeRoomForTicks()
{
    if (!(m_slider.GetStyle() & TBS_NOTICKS))
        return;
    CRect slider;
    m_slider.GetWindowRect(&slider);
    CRect popup;
    GetWindowRect(&popup);
    const TickRoom room = roomForTicks(slider.Height());
    // The thumb stays as it was instead of growing into the new room.
    m_slider.ModifyStyle(TBS_NOTICKS, TBS_FIXEDLENGTH);
    m_slider.SendMessage(TBM_SETTHUMBLENGTH, static_cast<WPARAM>(room.thumb));
    constexpr UINT kSizeOnly = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
    m_slider.SetWindowPos(nullptr, 0, 0, slider.Width(), slider.Height() + room.added, kSizeOnly);
    SetWindowPos(nullptr, 0, 0, popup.Width(), popup.Height() + room.added, kSizeOnly);
}

void CPopupSlider::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_POPUP_SLIDER, m_slider);
}

/// FALSE: the focus stays where it is.
BOOL CPopupSlider::OnInitDialog()
{
    CDialog::OnInitDialog();
    return FALSE;
}

/// Escape, which the dialog would end itself with.
void CPopupSlider::OnCancel()
{
    m_owner->cancelPopup();
}

/// Enter keeps what the slider shows.
void CPopupSlider::OnOK()
{
    ShowWindow(SW_HIDE);
}

void CPopupSlider::OnHScroll(UINT, UINT, CScrollBar*)
{
    m_owner->SetValue(); // the popup may be gone now
}

void CPopupSlider::OnSetFocus(CWnd*)
{
    if (m_slider.m_hWnd)
        m_slider.SetFocus();
}

void CPopupSlider::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    CDialog::OnActivate(state, other, minimized);
    const Activation news = state == WA_INACTIVE ? Activation::WindowLost : Activation::WindowGained;
    if (putsAway(news, IsWindowVisible() != FALSE, g_goingAway))
        putAway();
}

void CPopupSlider::OnActivateApp(BOOL active, DWORD thread)
{
    CDialog::OnActivateApp(active, thread);
    const Activation news = active ? Activation::ProgramGained : Activation::ProgramLost;
    if (putsAway(news, IsWindowVisible() != FALSE, g_goingAway))
        putAway();
}

void CPopupSlider::putAway()
{
    const ActivationGuard guard;
    const Lifeline::Watch watch(*this); // another window is activated, whose host may destroy the popup
    ShowWindow(SW_HIDE);
    if (watch.alive())
        m_owner->PostMessage(kDeactivated);
}
