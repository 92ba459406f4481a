#include <ovoui/sliders/SliderButton.h>

#include <ovoui/frame/BufferedPaint.h>
#include <ovoui/sliders/AccessibleSlider.h>
#include <ovoui/sliders/PopupWatcher.h>
#include <ovoui/sliders/SliderButtonFace.h>
#include <ovoui/sliders/SliderButtonOptions.h>
#include <ovoui/sliders/core/SliderDrag.h>

using namespace ovoui::sliders;

BEGIN_MESSAGE_MAP(CSliderButton, CStatic)
    ON_WM_NCHITTEST() // mouse
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSELEAVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN() // keyboard
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_PAINT() // painting
    ON_WM_ERASEBKGND()
    ON_WM_ENABLE()
    ON_WM_DESTROY()
    ON_MESSAGE(CPopupSlider::kDeactivated, &CSliderButton::OnUnpress)
    ON_MESSAGE(WM_GETOBJECT, &CSliderButton::OnGetObject)
END_MESSAGE_MAP()

namespace
{

constexpr double kFineStep = 0.1; // of a position

/// Keys that the open slider takes though the button has the focus.
bool movesSlider(WPARAM key)
{
    switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_HOME:
    case VK_END:
        return true;
    default:
        return false;
    }
}

/// 1 for an arrow key that makes the number greater, -1 for one that makes it smaller, 0 for other keys.
int arrowStep(WPARAM key)
{
    if (key == VK_RIGHT || key == VK_DOWN)
        return 1;
    return key == VK_LEFT || key == VK_UP ? -1 : 0;
}

} // namespace

CSliderButton::CSliderButton(SliderButtonUtils& utils)
    : m_utils(utils)
    , m_options(std::make_unique<Options>())
    , m_identity(std::make_shared<SliderIdentity>())
{
}

CSliderButton::~CSliderButton()
{
    m_identity->window = nullptr;
}

void CSliderButton::SetBuddy(HWND buddy)
{
    m_buddy = buddy;
    hearBuddyWheel();
}

void CSliderButton::SetType(SliderType type)
{
    m_type = type;
}

void CSliderButton::SetRange(int low, int high)
{
    m_low = low;
    m_high = high;
}

void CSliderButton::SetRange(double low, double high, int decimals)
{
    m_realLow = low;
    m_realHigh = high;
    m_decimals = decimals;
}

void CSliderButton::SetPages(int pages)
{
    ASSERT(pages != 0);
    m_pages = pages;
}

bool CSliderButton::SetMapping(std::function<double(double)> shareOf, std::function<double(double)> numberAt)
{
    HostMapping mapping{std::move(shareOf), std::move(numberAt)};
    const bool none = !mapping.shareOf && !mapping.numberAt;
    if (!none && !isUsable(mapping, {0, 100}))
        return false;
    m_options->mapping = std::move(mapping);
    return true;
}

void CSliderButton::SetTicks(std::vector<double> numbers)
{
    m_options->ticks = std::move(numbers);
}

void CSliderButton::ShowBubble(bool show)
{
    m_options->showsBubble = show;
    updateBubble();
}

void CSliderButton::StepByWheel(bool step)
{
    m_options->stepsByWheel = step;
    hearBuddyWheel();
}

void CSliderButton::StepFinelyByShift(bool finely)
{
    m_options->finelyByShift = finely;
}

void CSliderButton::OnDestroy()
{
    m_pressed = m_tracking = m_dragging = false;
    m_identity->window = nullptr;
    m_watcher.reset();
    m_options->bubble.DestroyWindow();
    if (m_popup.m_hWnd)
        m_popup.DestroyWindow();
    CStatic::OnDestroy();
}

// Pressed and released

void CSliderButton::SetPressed(bool pressed)
{
    if (m_pressed == pressed)
        return;
    m_pressed = pressed;
    if (!pressed) {
        m_watcher.reset();
        m_options->bubble.hide();
        if (m_tracking)
            ::ReleaseCapture();
        m_tracking = m_dragging = false;
    }
    const Lifeline::Watch watch(m_lifeline);
    Invalidate();
    UpdateWindow();
    if (pressed || !::IsWindow(m_buddy))
        return;
    ::SetFocus(m_buddy);
    if (watch.alive())
        tellParent(kReleased);
}

/// The popup has lost the activation and is gone.
LRESULT CSliderButton::OnUnpress(WPARAM, LPARAM)
{
    SetPressed(false);
    return 0;
}

/// Presses the button and drops the popup. Whether that came about.
bool CSliderButton::press(const CPoint& at)
{
    const Lifeline::Watch watch(m_lifeline);
    SetPressed(true);
    if (!watch.alive() || !m_hWnd)
        return false;
    try {
        ShowPopup(at);
    } catch (...) {
        if (watch.alive() && m_hWnd)
            dismiss();
        throw;
    }
    return watch.alive() && m_hWnd && m_pressed;
}

// Mouse

/// A static control lets the mouse through to its parent otherwise.
LRESULT CSliderButton::OnNcHitTest(CPoint)
{
    return HTCLIENT;
}

void CSliderButton::OnLButtonDown(UINT, CPoint point)
{
    if (m_pressed) {
        dismiss();
        return;
    }
    if (!press(point))
        return;
    SetCapture();
    m_tracking = true;
    m_dragging = false;
    m_pressPoint = point;
}

/// A quick second click is one like the first.
void CSliderButton::OnLButtonDblClk(UINT flags, CPoint point)
{
    OnLButtonDown(flags, point);
}

void CSliderButton::OnMouseMove(UINT, CPoint point)
{
    if (!m_tracking) {
        enterTip();
        return;
    }
    if (!m_dragging) {
        const PendingDrag pending{{m_pressPoint.x, m_pressPoint.y},
                                  m_thumbOffset,
                                  ::GetSystemMetrics(SM_CXDRAG),
                                  ::GetSystemMetrics(SM_CYDRAG)};
        m_dragging = dragStarts(pending, {point.x, point.y}, m_popupRect.PtInRect(point) != FALSE);
    }
    if (m_dragging)
        dragTo(point.x);
}

void CSliderButton::dragTo(int x)
{
    if (!m_popup.m_hWnd)
        return;
    m_popup.slider().SetPos(positionUnder(x, {m_channelLeft, m_channelRight}, {m_minimum, m_maximum}));
    SetValue();
}

void CSliderButton::OnLButtonUp(UINT, CPoint)
{
    if (!m_tracking)
        return;
    const bool dragged = m_dragging;
    m_tracking = m_dragging = false;
    ::ReleaseCapture();
    if (dragged)
        dismiss();
}

/// Something else has the mouse now. The popup stays open.
void CSliderButton::OnCaptureChanged(CWnd* wnd)
{
    m_tracking = m_dragging = false;
    CStatic::OnCaptureChanged(wnd);
}

BOOL CSliderButton::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    if (!m_options->stepsByWheel)
        return CStatic::OnMouseWheel(flags, delta, point);
    turnWheel(delta);
    return TRUE;
}

/// Away from the user is more. Wheels without notches tell of parts of one.
void CSliderButton::turnWheel(int delta)
{
    if (!IsWindowEnabled())
        return;
    m_options->wheelRest += delta;
    const int notches = m_options->wheelRest / WHEEL_DELTA;
    m_options->wheelRest %= WHEEL_DELTA;
    const bool fine = m_options->finelyByShift && ::GetKeyState(VK_SHIFT) < 0;
    if (notches != 0)
        stepBy(notches * (fine ? kFineStep : 1.0));
}

void CSliderButton::hearBuddyWheel()
{
    m_options->buddyWheel.reset();
    if (m_options->stepsByWheel && ::IsWindow(m_buddy))
        m_options->buddyWheel =
            std::make_unique<BuddyWheel>(m_buddy, [this](int delta) { turnWheel(delta); });
}

// The tip

void CSliderButton::enterTip()
{
    if (m_tipShown || m_noTip)
        return;
    if (m_tip.IsEmpty() && m_tip.LoadString(static_cast<UINT>(::GetDlgCtrlID(m_buddy))))
        m_tip = m_tip.SpanExcluding(L"\n");
    if (m_tip.IsEmpty()) {
        m_noTip = true;
        return;
    }
    TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&leaving);
    m_tipShown = true;
    m_utils.showTip(std::wstring(m_tip));
}

void CSliderButton::OnMouseLeave()
{
    m_tipShown = false;
    m_utils.hideTip();
}

// Keyboard

UINT CSliderButton::OnGetDlgCode()
{
    return CStatic::OnGetDlgCode() & ~static_cast<UINT>(DLGC_STATIC);
}

void CSliderButton::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (key != VK_SPACE) {
        CStatic::OnKeyDown(key, repeat, flags);
        return;
    }
    if (m_pressed)
        dismiss();
    else
        press(middle());
}

CPoint CSliderButton::middle() const
{
    CRect client;
    GetClientRect(&client);
    return client.CenterPoint();
}

BOOL CSliderButton::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && message->hwnd == m_hWnd && takesKey(*message))
        return TRUE;
    return CStatic::PreTranslateMessage(message);
}

/// Keys that must not reach the dialog, which would go to another control or close.
bool CSliderButton::takesKey(const MSG& message)
{
    if (!m_pressed) {
        if (message.wParam != VK_DOWN)
            return false;
        press(middle());
        return true;
    }
    if (message.wParam == VK_ESCAPE)
        cancelPopup();
    else if (const int arrow = arrowStep(message.wParam);
             arrow != 0 && m_options->finelyByShift && ::GetKeyState(VK_SHIFT) < 0)
        stepBy(arrow * kFineStep);
    else if (movesSlider(message.wParam) && m_popup.m_hWnd)
        m_popup.slider().SendMessage(WM_KEYDOWN, message.wParam, message.lParam);
    else
        return false;
    return true;
}

// Painting

void CSliderButton::OnSetFocus(CWnd* other)
{
    CStatic::OnSetFocus(other);
    Invalidate();
}

void CSliderButton::OnKillFocus(CWnd* other)
{
    CStatic::OnKillFocus(other);
    Invalidate();
}

void CSliderButton::OnEnable(BOOL enable)
{
    CStatic::OnEnable(enable);
    Invalidate();
    if (!enable)
        dismiss();
}

BOOL CSliderButton::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CSliderButton::OnPaint()
{
    BufferedPaint paint(*this);
    CRect client;
    GetClientRect(&client);
    SliderButtonFace(m_hWnd, m_pressed).paint(paint.dc(), client);
}

// Accessibility

LRESULT CSliderButton::OnGetObject(WPARAM wParam, LPARAM lParam)
{
    if (static_cast<LONG>(lParam) != OBJID_CLIENT)
        return Default();
    m_identity->window = m_hWnd;
    m_identity->name = [this] { return labelBefore(m_buddy); };
    m_identity->value = [this] { return std::wstring(buddyText()); };
    return accessibleSlider(wParam, m_identity);
}
