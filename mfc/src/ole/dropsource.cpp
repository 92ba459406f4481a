#include <afxole.h>

#include "guarded.h"

#include <detail/handleof.h>
#include <detail/threadstate.h>

#pragma GCC diagnostic ignored "-Winvalid-offsetof" // the parts of a class are found by their offset

using afxdetail::guarded;

BEGIN_INTERFACE_MAP(COleDropSource, CCmdTarget)
INTERFACE_PART(COleDropSource, IID_IDropSource, DropSource)
END_INTERFACE_MAP()

namespace
{

bool isDown(int virtualKey)
{
    return ::GetKeyState(virtualKey) < 0;
}

bool isButtonMessage(UINT message)
{
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
        return true;
    default:
        return false;
    }
}

bool isEscape(const MSG& message)
{
    return message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE;
}

bool nextInput(MSG& message)
{
    return ::PeekMessageW(&message, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE) ||
           ::PeekMessageW(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE);
}

/// Milliseconds after which a press is a drag even without a movement: a setting of the system.
ULONGLONG dragDelay()
{
    return ::GetProfileIntW(L"windows", L"DragDelay", DD_DEFDRAGDELAY);
}

} // namespace

COleDropSource::COleDropSource() = default;

void COleDropSource::prepare(LPCRECT startRect)
{
    m_dragStarted = false;
    const bool right = isDown(VK_RBUTTON) && !isDown(VK_LBUTTON);
    m_buttonDrop = right ? MK_RBUTTON : MK_LBUTTON;
    m_buttonCancel = right ? MK_LBUTTON : MK_RBUTTON;
    if (startRect) {
        m_startRect = *startRect;
    } else {
        CPoint pointer;
        ::GetCursorPos(&pointer);
        m_startRect = CRect(pointer, CSize(1, 1));
    }
}

BOOL COleDropSource::OnBeginDrag(CWnd* window)
{
    const HWND capture = afxdetail::handleOf(window);
    if (capture)
        ::SetCapture(capture);
    const bool begins = waitForStart(capture);
    if (capture && ::GetCapture() == capture)
        ::ReleaseCapture();
    return begins;
}

bool COleDropSource::waitForStart(HWND capture) const
{
    const int button = m_buttonDrop == MK_LBUTTON ? VK_LBUTTON : VK_RBUTTON;
    const ULONGLONG end = ::GetTickCount64() + dragDelay();
    CPoint pointer;
    ::GetCursorPos(&pointer);
    if (!m_startRect.PtInRect(pointer))
        return isDown(button);
    for (;;) {
        MSG message;
        while (nextInput(message)) {
            if (isButtonMessage(message.message) || isEscape(message))
                return false;
            if (message.message == WM_MOUSEMOVE && !m_startRect.PtInRect(message.pt))
                return true;
        }
        if (!isDown(button) || (capture && ::GetCapture() != capture))
            return false;
        const ULONGLONG now = ::GetTickCount64();
        if (now >= end)
            return true;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now),
                                    QS_INPUT | QS_SENDMESSAGE);
    }
}

SCODE COleDropSource::QueryContinueDrag(BOOL escapePressed, DWORD keyState)
{
    if (escapePressed || (keyState & m_buttonCancel))
        return DRAGDROP_S_CANCEL;
    if (!(keyState & m_buttonDrop))
        return m_dragStarted ? DRAGDROP_S_DROP : DRAGDROP_S_CANCEL;
    return S_OK;
}

SCODE COleDropSource::GiveFeedback(DROPEFFECT)
{
    return m_dragStarted ? DRAGDROP_S_USEDEFAULTCURSORS : S_OK;
}

STDMETHODIMP_(ULONG) COleDropSource::XDropSource::AddRef()
{
    METHOD_PROLOGUE_EX_(COleDropSource, DropSource)
    return pThis->ExternalAddRef();
}

STDMETHODIMP_(ULONG) COleDropSource::XDropSource::Release()
{
    METHOD_PROLOGUE_EX_(COleDropSource, DropSource)
    return pThis->ExternalRelease();
}

STDMETHODIMP COleDropSource::XDropSource::QueryInterface(REFIID iid, LPVOID* object)
{
    METHOD_PROLOGUE_EX_(COleDropSource, DropSource)
    return static_cast<HRESULT>(pThis->ExternalQueryInterface(&iid, object));
}

STDMETHODIMP COleDropSource::XDropSource::QueryContinueDrag(BOOL escapePressed, DWORD keyState)
{
    METHOD_PROLOGUE(COleDropSource, DropSource)
    // A target or a message handler has failed: the drag ends, and the exception comes out of DoDragDrop.
    if (afxdetail::threadState().pendingException)
        return DRAGDROP_S_CANCEL;
    return guarded([&] { return pThis->QueryContinueDrag(escapePressed, keyState); }, DRAGDROP_S_CANCEL);
}

STDMETHODIMP COleDropSource::XDropSource::GiveFeedback(DWORD effect)
{
    METHOD_PROLOGUE(COleDropSource, DropSource)
    return guarded([&] { return pThis->GiveFeedback(effect); }, DRAGDROP_S_USEDEFAULTCURSORS);
}
