#include <ovoui/colour/PickerStop.h>

#include <ovoui/frame/TellParent.h>

#include <utility>

namespace ovoui::colour
{

BEGIN_MESSAGE_MAP(PickerStop, CWnd)
    ON_WM_KEYDOWN() // keyboard
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_NCHITTEST() // all else is the dialog's
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_GETOBJECT, &PickerStop::OnGetObject)
END_MESSAGE_MAP()

PickerStop::PickerStop(Calls calls, std::shared_ptr<ColourIdentity> identity)
    : m_calls(std::move(calls))
    , m_identity(std::move(identity))
{
}

PickerStop::~PickerStop()
{
    m_identity->window = nullptr;
    ::DestroyWindow(m_hWnd);
}

bool PickerStop::create(CWnd& dialog, const CRect& place, UINT id, CWnd* before)
{
    // Without WS_EX_TRANSPARENT a dialog that clips its children could not draw there.
    if (!CreateEx(WS_EX_TRANSPARENT | WS_EX_NOPARENTNOTIFY, AfxRegisterWndClass(0),
                  m_identity->name().c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP, place, &dialog, id))
        return false;
    m_identity->window = m_hWnd;
    if (before)
        SetWindowPos(before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return true;
}

void PickerStop::announceValue() const
{
    frame::announce(EVENT_OBJECT_VALUECHANGE, m_hWnd);
}

void PickerStop::announceCell(int cell) const
{
    frame::announce(EVENT_OBJECT_FOCUS, m_hWnd, cell);
}

void PickerStop::OnKeyDown(UINT key, UINT, UINT)
{
    if (!m_calls.uses(key)) {
        Default();
        return;
    }
    // The dialog may end, and with it this object; an error of the host leaves the message.
    const struct Telling
    {
        ~Telling()
        {
            if (watch.alive())
                stop.m_key = 0;
        }
        PickerStop& stop;
        Lifeline::Watch watch;
    } telling{*this, Lifeline::Watch(m_lifeline)};
    m_key = key;
    frame::sendToHost(::GetParent(m_hWnd), WM_HSCROLL, SB_ENDSCROLL, reinterpret_cast<LPARAM>(m_hWnd));
}

void PickerStop::OnSetFocus(CWnd*)
{
    Default();
    m_calls.focus();
}

void PickerStop::OnKillFocus(CWnd*)
{
    Default();
    m_calls.focus();
}

void PickerStop::OnPaint()
{
    ValidateRect(nullptr);
}

void PickerStop::OnDestroy()
{
    m_identity->window = nullptr;
    Default();
}

LRESULT PickerStop::OnGetObject(WPARAM wParam, LPARAM lParam)
{
    if (!frame::asksForContents(lParam))
        return Default();
    return frame::accessibleAnswer(wParam, accessibleColours(m_identity));
}

} // namespace ovoui::colour
