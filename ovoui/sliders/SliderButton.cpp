#include <ovoui/sliders/SliderButton.h>

#include <ovoui/frame/BufferedPaint.h>
#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/LoadedText.h>
#include <ovoui/sliders/AccessibleSlider.h>
#include <ovoui/sliders/SliderButtonFace.h>
#include <ovoui/sliders/SliderButtonParts.h>

#include <ovouires/resource.h>

using namespace ovoui::sliders;
using ovoui::frame::keepFirst;
using ovoui::frame::keeping;
using ovoui::frame::raise;

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
    ON_WM_SIZE()
    ON_WM_ENABLE()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_THEMECHANGED, &CSliderButton::OnThemeChanged)
    ON_MESSAGE(CPopupSlider::kDeactivated, &CSliderButton::OnUnpress)
    ON_MESSAGE(WM_GETOBJECT, &CSliderButton::OnGetObject)
END_MESSAGE_MAP()

namespace
{

Mapping mappingOf(CSliderButton::SliderType type)
{
    switch (type) {
    case CSliderButton::SliderLogarithmic:
        return Mapping::Logarithmic;
    case CSliderButton::SliderSquareRoot:
        return Mapping::SquareRoot;
    default:
        return Mapping::Linear;
    }
}

} // namespace

CSliderButton::CSliderButton(SliderButtonUtils& utils)
    : m_parts(std::make_unique<Parts>(utils))
{
}

CSliderButton::~CSliderButton() = default;

/// A window that becomes a slider button may have the focus already.
void CSliderButton::PreSubclassWindow()
{
    CStatic::PreSubclassWindow();
    m_parts->focused = ::GetFocus() == m_hWnd;
}

void CSliderButton::OnDestroy()
{
    m_parts->pressed = false;
    m_parts->drag.end();
    m_parts->tip.leave(); // nobody tells a window that is gone that the pointer has left it
    m_parts->watcher.reset();
    m_parts->theme.forget();
    m_parts->bubble.DestroyWindow();
    if (m_popup.m_hWnd)
        m_popup.DestroyWindow();
    CStatic::OnDestroy();
}

// Settings

void CSliderButton::SetBuddy(HWND buddy)
{
    m_parts->buddy.set(buddy);
    hearBuddyWheel();
}

HWND CSliderButton::Buddy() const
{
    return m_parts->buddy.window();
}

void CSliderButton::SetType(SliderType type)
{
    m_parts->numbers.whole = type == SliderInteger;
    m_parts->numbers.mapping = mappingOf(type);
}

void CSliderButton::SetRange(int low, int high)
{
    m_parts->numbers.low = low;
    m_parts->numbers.high = high;
}

void CSliderButton::SetRange(double low, double high, int decimals)
{
    m_parts->numbers.range = {low, high};
    m_parts->numbers.decimals = decimals;
}

void CSliderButton::SetPages(int pages)
{
    ASSERT(pages != 0);
    m_parts->pages = pages;
}

bool CSliderButton::SetMapping(std::function<double(double)> shareOf, std::function<double(double)> numberAt)
{
    HostMapping mapping{std::move(shareOf), std::move(numberAt)};
    const bool none = !mapping.shareOf && !mapping.numberAt;
    if (!none && !isUsable(mapping, {0, 100}))
        return false;
    m_parts->numbers.host = std::move(mapping);
    return true;
}

void CSliderButton::SetTicks(std::vector<double> numbers)
{
    m_parts->ticks = std::move(numbers);
}

void CSliderButton::ShowBubble(bool show)
{
    m_parts->wantsBubble = show;
    updateBubble();
}

void CSliderButton::StepByWheel(bool step)
{
    m_parts->stepsByWheel = step;
    hearBuddyWheel();
}

void CSliderButton::StepFinelyByShift(bool finely)
{
    m_parts->finelyByShift = finely;
}

// Pressed and released

void CSliderButton::SetPressed(bool pressed)
{
    if (m_parts->pressed == pressed)
        return;
    m_parts->pressed = pressed;
    if (!pressed) {
        m_parts->watcher.reset();
        m_parts->bubble.hide();
        if (m_parts->drag.tracking())
            ::ReleaseCapture();
        m_parts->drag.end();
    }
    const Lifeline::Watch watch(*this);
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    if (pressed || !m_parts->buddy.exists())
        return;
    ::SetFocus(m_parts->buddy.window());
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
    const Lifeline::Watch watch(*this);
    SetPressed(true);
    if (!watch.alive())
        return false;
    std::exception_ptr raised = keeping([&] { ShowPopup(at); });
    if (raised && watch.alive())
        keepFirst(raised, [this] { dismiss(); });
    raise(raised);
    if (watch.alive() && !m_popup.m_hWnd)
        dismiss(); // the system has no window for it
    return watch.alive() && m_parts->pressed;
}

CPoint CSliderButton::middle() const
{
    CRect client;
    GetClientRect(&client);
    return client.CenterPoint();
}

// Painting

void CSliderButton::OnSetFocus(CWnd* other)
{
    m_parts->focused = true;
    CStatic::OnSetFocus(other);
    Invalidate();
}

void CSliderButton::OnKillFocus(CWnd* other)
{
    m_parts->focused = false;
    CStatic::OnKillFocus(other);
    Invalidate();
}

/// A parent that asks for it (SS_NOTIFY) is told, and may do anything.
void CSliderButton::OnEnable(BOOL enable)
{
    const Lifeline::Watch watch(*this);
    CStatic::OnEnable(enable);
    if (!watch.alive())
        return;
    Invalidate();
    if (!enable)
        dismiss();
}

/// The arrow goes by the size.
void CSliderButton::OnSize(UINT type, int width, int height)
{
    CStatic::OnSize(type, width, height);
    Invalidate();
}

/// For this window alone or for all.
LRESULT CSliderButton::OnThemeChanged(WPARAM, LPARAM)
{
    m_parts->theme.forget();
    Invalidate();
    return Default();
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
    SliderButtonFace(m_hWnd, m_parts->theme, m_parts->pressed, m_parts->focused).paint(paint.dc(), client);
}

// Accessibility

LRESULT CSliderButton::OnGetObject(WPARAM wParam, LPARAM lParam)
{
    if (!ovoui::frame::asksForContents(lParam))
        return Default();
    const auto name = [this] { return labelBefore(m_parts->buddy.window()); };
    const auto value = [this] { return m_parts->buddy.text(); };
    const auto slider = std::make_shared<AccessibleSlider>(*this, name, value);
    // Posted, since the client waits and pressing calls the host.
    slider->offer([this] { return actionName(); }, [this] { PostMessage(WM_KEYDOWN, VK_SPACE); });
    return ovoui::frame::accessibleAnswer(wParam, slider);
}

std::wstring CSliderButton::actionName() const
{
    return IsWindowEnabled() ? ovoui::frame::loadedText(IDS_ACTION_PRESS) : std::wstring();
}
