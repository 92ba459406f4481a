#include "GalleryPage.h"

#include "DialogResolution.h"
#include "NotificationNames.h"
#include "Resolution.h"

namespace
{

constexpr UINT kTurn = WM_APP + 100; ///< the message loop has its turn again
/// Of the notifications that come at once. A list that deselects a million rows sends two for each.
constexpr unsigned kLoggedAtOnce = 100;

} // namespace

GalleryPage::GalleryPage(UINT templateId)
    : CDialog(templateId)
{
}

GalleryPage::~GalleryPage() = default;

bool GalleryPage::open(CWnd& parent, Log log)
{
    if (!createAtResolution(*this, LOWORD(m_lpszTemplateName), parent))
        return false;
    m_log = std::move(log);
    return true;
}

BOOL GalleryPage::PreTranslateMessage(MSG* message)
{
    return CWnd::PreTranslateMessage(message);
}

// Layout

BOOL GalleryPage::OnInitDialog()
{
    m_layout.begin(*this);
    return CDialog::OnInitDialog();
}

void GalleryPage::stretch(int id, const Stretch& how)
{
    m_layout.stretch(::GetDlgItem(m_hWnd, id), how);
}

CRect GalleryPage::placeOf(int id) const
{
    CRect place;
    ::GetWindowRect(::GetDlgItem(m_hWnd, id), &place);
    ScreenToClient(&place);
    return place;
}

void GalleryPage::replace(int id, CWnd& by)
{
    const HWND empty = ::GetDlgItem(m_hWnd, id);
    const CRect place = placeOf(id);
    by.SetDlgCtrlID(id);
    ::SetWindowPos(by.m_hWnd, empty, place.left, place.top, place.Width(), place.Height(), SWP_NOACTIVATE);
    ::DestroyWindow(empty);
}

int GalleryPage::scaled(int length) const
{
    return ::scaled(m_hWnd, length);
}

void GalleryPage::revealFocus()
{
    m_layout.reveal(::GetFocus());
}

// Messages

LRESULT GalleryPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const std::shared_ptr<GalleryPage> alive =
        weak_from_this().lock(); // null while the page is being deleted
    if (message == WM_DESTROY)
        m_log = nullptr; // that the page's controls lose what they hold is no news
    if (scroll(message, wParam, lParam))
        return 0;
    if (message == kTurn)
        endTurn();
    const LRESULT result = CDialog::WindowProc(message, wParam, lParam);
    if (message == WM_SIZE)
        m_layout.apply();
    return result;
}

/// Whether the message was for the scroll bars that the page has when its room is too small.
bool GalleryPage::scroll(UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool ownBar = (message == WM_HSCROLL || message == WM_VSCROLL) && lParam == 0;
    const bool wheel = message == WM_MOUSEWHEEL && m_layout.scrollsVertically();
    if (ownBar) {
        m_layout.scroll(message == WM_HSCROLL ? SB_HORZ : SB_VERT, LOWORD(wParam));
    } else if (wheel) {
        const int code = GET_WHEEL_DELTA_WPARAM(wParam) > 0 ? SB_LINEUP : SB_LINEDOWN;
        for (int line = 0; line < 3; ++line)
            m_layout.scroll(SB_VERT, code);
    }
    return ownBar || wheel;
}

void GalleryPage::log(const std::wstring& line) const
{
    if (m_hWnd && m_log && !line.empty())
        m_log(line);
}

BOOL GalleryPage::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (lParam)
        log(describeCommand(reinterpret_cast<HWND>(lParam), HIWORD(wParam)));
    return CDialog::OnCommand(wParam, lParam);
}

BOOL GalleryPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    logNotify(*reinterpret_cast<const NMHDR*>(lParam));
    return CDialog::OnNotify(wParam, lParam, result);
}

void GalleryPage::logNotify(const NMHDR& header)
{
    if (m_notified >= kLoggedAtOnce) {
        ++m_notified;
        return;
    }
    const std::wstring line = describeNotify(header);
    if (line.empty())
        return;
    log(line);
    if (++m_notified == 1)
        PostMessage(kTurn);
}

/// Tells how many notifications were left out.
void GalleryPage::endTurn()
{
    if (m_notified > kLoggedAtOnce)
        log(L"and " + std::to_wstring(m_notified - kLoggedAtOnce) + L" more at once");
    m_notified = 0;
}
