#include <ovoui/frame/ProgressBoxDlg.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/MessageBoxIds.h>
#include <ovoui/frame/Module.h>
#include <ovoui/frame/core/LineEnds.h>
#include <ovoui/frame/core/ProgressRules.h>
#include <ovouires/resource.h>

#include <commctrl.h>

#include <utility>

using namespace ovoui::frame;

namespace
{

constexpr int kBarHeight = 16; ///< pixels at 96 dots per inch

MessageBoxButtons cancelAlone()
{
    return {{messageBoxButtons(MB_OKCANCEL).buttons.back()}};
}

} // namespace

BEGIN_MESSAGE_MAP(COVOProgressBoxDlg, COVOMsgBoxDlg)
    ON_COMMAND_EX(IDCANCEL, &COVOProgressBoxDlg::OnCancelButton)
    ON_COMMAND(IDOK, &COVOProgressBoxDlg::OnEnter)
    ON_WM_CLOSE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

COVOProgressBoxDlg::COVOProgressBoxDlg(HWND owner, const std::wstring& text, const std::wstring& caption)
    : COVOMsgBoxDlg({owner, text.c_str(), caption.c_str(), MB_ICONASTERISK, L"", 0}, cancelAlone())
    , m_owner(owner ? ::GetAncestor(owner, GA_ROOT) : nullptr) // a child owns nothing: its window does
{
}

COVOProgressBoxDlg::~COVOProgressBoxDlg() = default;

void COVOProgressBoxDlg::open()
{
    m_disablesOwner = m_owner && ::IsWindowEnabled(m_owner);
    if (m_disablesOwner)
        ::EnableWindow(m_owner, FALSE);
    m_opened = Create(IDD_MESSAGE_BOX, FromHandle(m_owner)) != FALSE;
    if (m_opened) {
        ShowWindow(SW_SHOW);
        RedrawWindow(nullptr, nullptr,
                     RDW_UPDATENOW | RDW_ALLCHILDREN); // the work begins before messages go through
        return;
    }
    m_cancelled = false; // by the end of a window that was not finished
    enableOwner();
}

/// The owner is enabled before the box goes: the system looks for the next active window before it tells the
/// box of its end, and would take another one, maybe another program's. What the host raises meanwhile waits
/// for the message loop: this is the end of an object, which no exception may leave.
void COVOProgressBoxDlg::close()
{
    enableOwner();
    if (m_hWnd)
        ::DestroyWindow(m_hWnd);
}

void COVOProgressBoxDlg::enableOwner()
{
    if (std::exchange(m_disablesOwner, false) && ::IsWindow(m_owner))
        ::EnableWindow(m_owner, TRUE);
}

/// A box that goes with its owner cannot be cancelled any more: the work is to stop.
void COVOProgressBoxDlg::OnDestroy()
{
    m_cancelled = true;
    enableOwner();
    COVOMsgBoxDlg::OnDestroy();
}

BOOL COVOProgressBoxDlg::OnInitDialog()
{
    const BOOL focus = COVOMsgBoxDlg::OnInitDialog();
    CRect client;
    GetClientRect(&client);
    const Box place =
        extraPlaces(m_controls, {client.Width(), client.Height()}, buttonSize().height, systemMetrics()).bar;
    m_bar = ::CreateWindowExW(0, PROGRESS_CLASSW, L"", WS_CHILD | WS_VISIBLE, place.left, place.top,
                              place.width(), place.height(), m_hWnd,
                              reinterpret_cast<HMENU>(INT_PTR{kProgressId}), ovoui::ownInstance(), nullptr);
    ::SendMessageW(m_bar, PBM_SETRANGE32, 0, kBarSteps);
    return focus;
}

BoxExtras COVOProgressBoxDlg::extras()
{
    m_controls.barHeight = scaled(kBarHeight, systemMetrics());
    return boxExtras(m_controls, systemMetrics());
}

// Cancelling

BOOL COVOProgressBoxDlg::OnCancelButton(UINT)
{
    OnCancel();
    return TRUE;
}

void COVOProgressBoxDlg::OnClose()
{
    OnCancel();
}

/// The box stays until the work has stopped.
void COVOProgressBoxDlg::OnCancel()
{
    m_cancelled = true;
    if (CWnd* const button = GetDlgItem(IDCANCEL))
        button->EnableWindow(FALSE);
}

// Progress

void COVOProgressBoxDlg::show(ULONGLONG done, ULONGLONG total)
{
    if (!m_hWnd)
        return;
    const std::optional<int> position = barPosition(done, total);
    if (!position) {
        showUnknown();
        return;
    }
    if (::GetWindowLongPtrW(m_bar, GWL_STYLE) & PBS_MARQUEE) {
        ::SendMessageW(m_bar, PBM_SETMARQUEE, FALSE, 0);
        ::SetWindowLongPtrW(m_bar, GWL_STYLE, ::GetWindowLongPtrW(m_bar, GWL_STYLE) & ~PBS_MARQUEE);
    }
    if (::SendMessageW(m_bar, PBM_GETPOS, 0, 0) != *position)
        ::SendMessageW(m_bar, PBM_SETPOS, static_cast<WPARAM>(*position), 0);
}

void COVOProgressBoxDlg::showUnknown()
{
    const LONG_PTR style = ::GetWindowLongPtrW(m_bar, GWL_STYLE);
    if (style & PBS_MARQUEE)
        return;
    ::SetWindowLongPtrW(m_bar, GWL_STYLE, style | PBS_MARQUEE);
    ::SendMessageW(m_bar, PBM_SETMARQUEE, TRUE, 0);
}

void COVOProgressBoxDlg::setText(const std::wstring& newText)
{
    if (m_hWnd)
        text().SetWindowText(withWindowsLineEnds(newText).c_str());
}

bool COVOProgressBoxDlg::letMessagesThrough()
{
    const ULONGLONG now = ::GetTickCount64();
    if (!m_opened || !letsMessagesThrough(now, m_lastMessages))
        return true;
    const Lifeline::Watch watch(m_lifeline);
    bool goesOn = true;
    MSG message;
    while (goesOn && watch.alive() && goesOnWithMessages(::GetTickCount64(), now) &&
           ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) // delivers what other threads send, too
        goesOn = dispatchOne();
    if (!watch.alive())
        return false;
    m_cancelled = m_cancelled || !goesOn;
    m_lastMessages = ::GetTickCount64();
    return true;
}

/// False when the program is to end, which its own loop is to learn as well.
bool COVOProgressBoxDlg::dispatchOne()
{
    if (AfxPumpMessage())
        return true;
    ::PostQuitMessage(static_cast<int>(AfxGetCurrentMessage()->wParam));
    return false;
}
