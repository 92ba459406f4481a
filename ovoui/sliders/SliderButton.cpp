#include <ovoui/sliders/SliderButton.h>

#include <ovoui/frame/BufferedPaint.h>
#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/ThemeData.h>
#include <ovoui/sliders/PopupWatcher.h>
#include <ovoui/sliders/core/NumberText.h>
#include <ovoui/sliders/core/SliderDrag.h>

#include <vssym32.h>

#include <algorithm>

using namespace ovoui::sliders;

BEGIN_MESSAGE_MAP(CSliderButton, CStatic)
    ON_WM_NCHITTEST() // mouse
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSELEAVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_KEYDOWN() // keyboard
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_PAINT() // painting
    ON_WM_ERASEBKGND()
    ON_WM_ENABLE()
    ON_WM_DESTROY()
    ON_MESSAGE(CPopupSlider::kDeactivated, &CSliderButton::OnUnpress)
END_MESSAGE_MAP()

namespace
{

constexpr int kBuddyText = 100; // characters that are read of it

Positions stepsOf(CSliderButton::SliderType type, int low, int high)
{
    return type == CSliderButton::SliderInteger ? Positions{low, high} : Positions{0, 100};
}

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

} // namespace

CSliderButton::CSliderButton(SliderButtonUtils& utils)
    : m_utils(utils)
{
}

CSliderButton::~CSliderButton() = default;

void CSliderButton::SetBuddy(HWND buddy)
{
    m_buddy = buddy;
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

void CSliderButton::OnDestroy()
{
    m_pressed = m_tracking = m_dragging = false;
    m_watcher.reset();
    if (m_popup.m_hWnd)
        m_popup.DestroyWindow();
    CStatic::OnDestroy();
}

// The popup

void CSliderButton::ShowPopup(const CPoint& at)
{
    if (!m_popup.m_hWnd && !m_popup.Create(this))
        return;
    const Positions steps = stepsOf(m_type, m_low, m_high);
    m_minimum = steps.minimum;
    m_maximum = steps.maximum;
    CPopupSliderCtrl& slider = m_popup.slider();
    slider.SetRange(m_minimum, m_maximum);
    slider.SetPageSize(pageSize(steps, m_pages));

    const Lifeline::Watch watch(m_lifeline);
    SetSliderPos();
    if (!watch.alive() || !m_popup.m_hWnd || !m_pressed)
        return;
    m_textBefore = buddyText();
    placePopup(at);
    m_watcher = std::make_unique<PopupWatcher>(PopupWatcher::Calls{
        .pressed = [this](HWND under) { dismissFor(under); }, .escape = [this] { cancelPopup(); }});
}

/// A press of the mouse on another window than the popup and the button ends the popup.
void CSliderButton::dismissFor(HWND pressed)
{
    if (pressed != m_hWnd && pressed != m_popup.m_hWnd && !::IsChild(m_popup.m_hWnd, pressed))
        dismiss();
}

/// Below the button, with the thumb under the pointer as far as the screen allows, and without the
/// activation.
void CSliderButton::placePopup(const CPoint& at)
{
    CPopupSliderCtrl& slider = m_popup.slider();
    CRect channel;
    slider.GetChannelRect(&channel);
    slider.MapWindowPoints(&m_popup, &channel);
    const int thumb = thumbOffset({channel.left, channel.right}, slider.GetPos(), {m_minimum, m_maximum});

    CPoint pointer = at;
    ClientToScreen(&pointer);
    CRect button;
    GetWindowRect(&button);
    CRect popup;
    m_popup.GetWindowRect(&popup);
    popup.MoveToXY(pointer.x - (channel.left + thumb), button.bottom);
    EnsureRectVisible(popup);
    m_popup.SetWindowPos(&wndTop, popup.left, popup.top, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);

    m_popup.MapWindowPoints(this, &channel);
    m_channelLeft = channel.left;
    m_channelRight = channel.right;
    m_thumbOffset = channel.left + thumb - at.x;
    m_popup.GetClientRect(&m_popupRect);
    m_popup.MapWindowPoints(this, &m_popupRect);
}

void CSliderButton::HidePopup()
{
    m_watcher.reset();
    if (m_popup.m_hWnd)
        m_popup.ShowWindow(SW_HIDE);
}

/// The popup goes, and the button comes up.
void CSliderButton::dismiss()
{
    if (!m_pressed)
        return;
    const Lifeline::Watch watch(m_lifeline);
    HidePopup();
    if (watch.alive())
        SetPressed(false);
}

void CSliderButton::cancelPopup()
{
    const Lifeline::Watch watch(m_lifeline);
    if (::IsWindow(m_buddy) && buddyText() != m_textBefore) {
        setBuddyText(m_textBefore);
        if (!watch.alive() || !tellParent(kValueChanged))
            return;
    }
    dismiss();
}

// The number

CString CSliderButton::buddyText() const
{
    CString text;
    const int length = ::GetWindowTextLengthW(m_buddy);
    ::GetWindowTextW(m_buddy, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

void CSliderButton::setBuddyText(LPCTSTR text)
{
    ::SetWindowTextW(m_buddy, text);
}

void CSliderButton::SetSliderPos()
{
    const Positions steps{m_minimum, m_maximum};
    const std::wstring shown(buddyText().Left(kBuddyText));
    int position = 0;
    if (m_type == SliderInteger) {
        position = parseWhole(shown).value_or(m_minimum);
    } else {
        const Lifeline::Watch watch(m_lifeline);
        std::wstring number;
        m_utils.fromDisplay(number, shown);
        if (!watch.alive() || !m_popup.m_hWnd)
            return;
        position = positionOf(parseReal(number).value_or(m_realLow), mappingOf(m_type),
                              {m_realLow, m_realHigh}, steps);
    }
    m_popup.slider().SetPos(position);
    m_popup.slider().Invalidate();
}

void CSliderButton::SetValue()
{
    if (!m_buddy || !m_popup.m_hWnd)
        return;
    const Lifeline::Watch watch(m_lifeline);
    const int position = m_popup.slider().GetPos();
    std::wstring text = std::to_wstring(position);
    if (m_type != SliderInteger) {
        const double value =
            valueAt(position, mappingOf(m_type), {m_realLow, m_realHigh}, {m_minimum, m_maximum});
        text.clear();
        m_utils.toDisplay(text, formatReal(value, m_decimals));
        if (!watch.alive())
            return;
    }
    setBuddyText(text.c_str());
    if (watch.alive())
        tellParent(kValueChanged);
}

/// Whether the button still has its window afterwards.
bool CSliderButton::tellParent(UINT message)
{
    const Lifeline::Watch watch(m_lifeline);
    ::SendMessageW(::GetParent(m_buddy), message, reinterpret_cast<WPARAM>(m_buddy), 0);
    return watch.alive() && m_hWnd;
}

// Pressed and released

void CSliderButton::SetPressed(bool pressed)
{
    if (m_pressed == pressed)
        return;
    m_pressed = pressed;
    if (!pressed) {
        m_watcher.reset();
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
    CDC& dc = paint.dc();
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_BTNFACE));
    paintFace(dc, client);
    paintArrow(dc, client);
    if (::GetFocus() == m_hWnd) {
        client.DeflateRect(1, 1);
        dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
        dc.SetBkColor(::GetSysColor(COLOR_WINDOW));
        dc.DrawFocusRect(&client);
    }
}

void CSliderButton::paintFace(CDC& dc, const CRect& client)
{
    CThemeData& themes = CThemeData::getThemeData();
    if (themes.IsAppThemed()) {
        const int idle = IsWindowEnabled() ? PBS_NORMAL : PBS_DISABLED;
        themes.drawBackground(dc, &client, m_hWnd, L"Button", m_pressed ? PBS_PRESSED : idle);
        return;
    }
    const COLORREF highlight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    dc.Draw3dRect(&client, m_pressed ? shadow : highlight, m_pressed ? highlight : shadow);
}

void CSliderButton::paintArrow(CDC& dc, const CRect& client)
{
    const int width = client.Width();
    const int middle = client.Height() / 2;
    const int size = std::min(width - 5, middle - 2);
    if (size <= 0)
        return;
    POINT arrow[] = {
        {width - 3, middle}, {width - 3 - size, middle - size}, {width - 3 - size, middle + size}};
    CBrush brush(::GetSysColor(IsWindowEnabled() ? COLOR_3DDKSHADOW : COLOR_GRAYTEXT));
    CBrush* const oldBrush = dc.SelectObject(&brush);
    CGdiObject* const oldPen = dc.SelectStockObject(NULL_PEN);
    dc.Polygon(arrow, 3);
    dc.SelectObject(static_cast<CPen*>(oldPen));
    dc.SelectObject(oldBrush);
}
