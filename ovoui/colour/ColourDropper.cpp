#include <ovoui/colour/ColourDropper.h>

#include <ovoui/colour/Magnifier.h>
#include <ovoui/colour/core/ControlKeys.h>
#include <ovoui/colour/core/ScreenPick.h>
#include <ovoui/frame/AskedKey.h>
#include <ovoui/frame/PressWatch.h>
#include <ovoui/frame/TellParent.h>

using namespace ovoui::colour;

IMPLEMENT_DYNAMIC(CColourDropper, CButton)

BEGIN_MESSAGE_MAP(CColourDropper, CButton)
    ON_WM_LBUTTONDOWN() // mouse
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_KEYDOWN() // keyboard
    ON_WM_KEYUP()
    ON_WM_GETDLGCODE()
    ON_MESSAGE(BM_CLICK, &CColourDropper::OnClick)
    ON_WM_CAPTURECHANGED() // interruptions
    ON_WM_CANCELMODE()
    ON_WM_KILLFOCUS()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace
{

CPoint pointer()
{
    CPoint point;
    ::GetCursorPos(&point);
    return point;
}

} // namespace

CColourDropper::CColourDropper()
    : m_pick(std::make_unique<ScreenPick>())
    , m_magnifier(std::make_unique<Magnifier>())
{
}

CColourDropper::~CColourDropper()
{
    ::DestroyWindow(m_hWnd);
}

bool CColourDropper::IsPicking() const
{
    return m_pick->goesOn();
}

// What the rules lead to

void CColourDropper::begin()
{
    SetState(TRUE);
    SetCapture();
}

void CColourDropper::follow()
{
    ::SetCursor(::LoadCursorW(nullptr, IDC_CROSS));
    m_magnifier->show(*this, pointer());
}

void CColourDropper::take()
{
    m_taken = screenColour(pointer());
    const Lifeline::Watch watch(m_lifeline);
    end();
    if (watch.alive() && m_hWnd)
        ovoui::frame::tellParent(*this, kTaken);
}

void CColourDropper::giveUp()
{
    if (m_pick->interrupt() == ScreenPick::Act::GiveUp)
        end();
}

/// The rules are at rest by now, so losing the capture is no interruption.
void CColourDropper::end()
{
    m_magnifier->hide();
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    if (m_hWnd)
        SetState(FALSE);
}

// Mouse

bool CColourDropper::isOnButton(CPoint client) const
{
    CRect rect;
    GetClientRect(&rect);
    return rect.PtInRect(client) != FALSE;
}

void CColourDropper::OnLButtonDown(UINT, CPoint)
{
    const Lifeline::Watch watch(m_lifeline);
    const ovoui::frame::PressWatch press;
    SetFocus(); // the window that loses it may do anything
    if (!watch.alive() || !m_hWnd || !press.goesOn())
        return;
    const ScreenPick::Act act = m_pick->press();
    if (act == ScreenPick::Act::Begin)
        begin();
    else if (act == ScreenPick::Act::Take)
        take();
}

void CColourDropper::OnLButtonDblClk(UINT flags, CPoint point)
{
    OnLButtonDown(flags, point);
}

void CColourDropper::OnMouseMove(UINT, CPoint point)
{
    if (m_pick->move(isOnButton(point)) == ScreenPick::Act::Follow)
        follow();
    else
        Default();
}

void CColourDropper::OnLButtonUp(UINT, CPoint)
{
    const ScreenPick::Act act = m_pick->release();
    if (act == ScreenPick::Act::Take)
        take();
    else if (act == ScreenPick::Act::GiveUp)
        end();
}

// Keyboard

/// While picking goes on every key is the button's; Enter is at any time.
UINT CColourDropper::OnGetDlgCode()
{
    const bool asksEnter = ovoui::frame::asksForKey(CWnd::GetCurrentMessage()->lParam, VK_RETURN);
    const auto usual = static_cast<UINT>(Default());
    return dropperWantsKeys(asksEnter, IsPicking()) ? usual | DLGC_WANTALLKEYS : usual;
}

void CColourDropper::OnKeyDown(UINT key, UINT, UINT)
{
    const bool again = (CWnd::GetCurrentMessage()->lParam & 0x40000000) != 0; // the key is being held
    switch (dropperKey(key, again, IsPicking())) {
    case DropperKey::GiveUp:
        giveUp();
        break;
    case DropperKey::Press:
        if (m_pick->accept() == ScreenPick::Act::Take)
            take();
        else
            OnClick(0, 0);
        break;
    case DropperKey::MovePointer:
        if (m_pick->arrow() == ScreenPick::Act::Follow)
            movePointer(key);
        break;
    case DropperKey::Ignore:
        break;
    case DropperKey::Platform:
        Default();
    }
}

void CColourDropper::OnKeyUp(UINT key, UINT, UINT)
{
    if (!actsOnPressAlone(key))
        Default();
}

void CColourDropper::movePointer(UINT key)
{
    const PointerStep step = pointerStep(key, ::GetKeyState(VK_SHIFT) < 0);
    const CPoint point = pointer() + CSize(step.right, step.down);
    ::SetCursorPos(point.x, point.y);
    follow();
}

/// As a key or accessibility presses the button.
LRESULT CColourDropper::OnClick(WPARAM, LPARAM)
{
    const Lifeline::Watch watch(m_lifeline);
    SetFocus();
    if (!watch.alive() || !m_hWnd || m_pick->start() != ScreenPick::Act::Begin)
        return 0;
    begin();
    follow();
    return 0;
}

// Interruptions

void CColourDropper::OnCaptureChanged(CWnd* wnd)
{
    if (wnd->GetSafeHwnd() != m_hWnd)
        giveUp();
    Default();
}

void CColourDropper::OnCancelMode()
{
    giveUp();
    Default();
}

void CColourDropper::OnKillFocus(CWnd*)
{
    giveUp();
    Default();
}

void CColourDropper::OnDestroy()
{
    giveUp();
    Default();
}
