// CPropertySheet: its pages, its buttons, its messages.
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxpriv.h>

#include "../dlg/dialogmessages.h"
#include "../wnd/mnemonicsearch.h"

#include <detail/help.h>
#include <detail/send.h>

#include <algorithm>
#include <array>

using afxdetail::send;

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    // opening and closing
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
    ON_WM_CLOSE()
    ON_MESSAGE(PSM_PRESSBUTTON, &CPropertySheet::OnPressButton)
    // passed on to the active page
    ON_MESSAGE(WM_KICKIDLE, &CPropertySheet::OnKickIdle)
    ON_WM_HELPINFO()
    ON_MESSAGE(WM_COMMANDHELP, &CPropertySheet::OnCommandHelp)
END_MESSAGE_MAP()

namespace
{

/// Escape in an edit control of several lines, which takes it to itself and closes the page around it.
bool isEscapeInText(const MSG& message)
{
    if (message.message != WM_KEYDOWN || message.wParam != VK_ESCAPE ||
        !(::GetWindowLongW(message.hwnd, GWL_STYLE) & ES_MULTILINE))
        return false;
    wchar_t name[8]{};
    ::GetClassNameW(message.hwnd, name, static_cast<int>(std::size(name)));
    return ::lstrcmpiW(name, L"Edit") == 0;
}

} // namespace

CPropertySheet::CPropertySheet() = default;

CPropertySheet::CPropertySheet(UINT captionId, CWnd* parent, UINT selectPage)
{
    Construct(captionId, parent, selectPage);
}

CPropertySheet::CPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectPage)
{
    Construct(caption, parent, selectPage);
}

CPropertySheet::CPropertySheet(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark,
                               HPALETTE palette, HBITMAP header)
{
    Construct(captionId, parent, selectPage, watermark, palette, header);
}

CPropertySheet::CPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark,
                               HPALETTE palette, HBITMAP header)
{
    Construct(caption, parent, selectPage, watermark, palette, header);
}

CPropertySheet::~CPropertySheet()
{
    if (m_hWnd)
        ::DestroyWindow(m_hWnd); // not by the member: no exception may leave a destructor
}

void CPropertySheet::Construct(UINT captionId, CWnd* parent, UINT selectPage)
{
    Construct(captionId, parent, selectPage, nullptr);
}

void CPropertySheet::Construct(LPCTSTR caption, CWnd* parent, UINT selectPage)
{
    Construct(caption, parent, selectPage, nullptr);
}

void CPropertySheet::Construct(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark,
                               HPALETTE palette, HBITMAP header)
{
    CString caption;
    caption.LoadString(captionId);
    Construct(caption, parent, selectPage, watermark, palette, header);
}

void CPropertySheet::Construct(LPCTSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark,
                               HPALETTE palette, HBITMAP header)
{
    ASSERT(!m_hWnd);
    m_parent = parent;
    m_psh = {};
    m_psh.dwSize = sizeof m_psh;
    m_psh.nStartPage = selectPage;
    setCaption(caption);
    if (watermark) {
        m_psh.dwFlags |= PSH_WATERMARK | PSH_USEHBMWATERMARK;
        m_psh.hbmWatermark = watermark;
    }
    if (palette) {
        m_psh.dwFlags |= PSH_USEHPLWATERMARK;
        m_psh.hplWatermark = palette;
    }
    if (header) {
        m_psh.dwFlags |= PSH_HEADER | PSH_USEHBMHEADER;
        m_psh.hbmHeader = header;
    }
    if (afxdetail::programHasHelp())
        m_psh.dwFlags |= PSH_HASHELP;
}

// Pages

void CPropertySheet::AddPage(CPropertyPage* page)
{
    ASSERT(page);
    m_pages.push_back(page);
    if (!m_hWnd)
        return;
    const HPROPSHEETPAGE handle = page->createHandle();
    if (handle && send<BOOL>(*this, PSM_ADDPAGE, nullptr, handle))
        return;
    if (handle)
        ::DestroyPropertySheetPage(handle);
    std::erase(m_pages, page);
    AfxThrowResourceException();
}

void CPropertySheet::RemovePage(CPropertyPage* page)
{
    RemovePage(GetPageIndex(page));
}

void CPropertySheet::RemovePage(int index)
{
    CPropertyPage* const page = GetPage(index);
    if (!page)
        return;
    // While another page takes over, the list is still that of the tabs. Afterwards this object may be gone.
    const HWND wnd = m_hWnd;
    if (wnd)
        SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(index));
    if (wnd && FromHandlePermanent(wnd) != this)
        return;
    std::erase(m_pages, page);
    keepFocus();
}

CPropertyPage* CPropertySheet::GetPage(int index) const
{
    return index >= 0 && index < GetPageCount() ? m_pages[static_cast<std::size_t>(index)] : nullptr;
}

int CPropertySheet::GetPageIndex(CPropertyPage* page)
{
    const auto found = std::find(m_pages.begin(), m_pages.end(), page);
    return found == m_pages.end() ? -1 : static_cast<int>(found - m_pages.begin());
}

int CPropertySheet::GetActiveIndex() const
{
    const CTabCtrl* const tabs = m_hWnd ? GetTabControl() : nullptr;
    return tabs ? tabs->GetCurSel() : static_cast<int>(m_psh.nStartPage);
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    return GetPage(GetActiveIndex());
}

BOOL CPropertySheet::SetActivePage(int index)
{
    if (!GetPage(index))
        return FALSE;
    const HWND wnd = m_hWnd;
    if (!wnd) {
        m_psh.nStartPage = static_cast<UINT>(index);
        return TRUE;
    }
    const BOOL changed = send<BOOL>(*this, PSM_SETCURSEL, index);
    if (FromHandlePermanent(wnd) == this)
        keepFocus();
    return changed;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* page)
{
    return SetActivePage(GetPageIndex(page));
}

/// A page that is hidden or destroyed may take the focus along, and then the keys reach nothing that the user
/// sees.
void CPropertySheet::keepFocus()
{
    if (!m_hWnd || ::GetAncestor(m_hWnd, GA_ROOT) != ::GetActiveWindow())
        return;
    const HWND focus = ::GetFocus();
    if (!focus || (::IsChild(m_hWnd, focus) && !::IsWindowVisible(focus)))
        SendMessage(WM_NEXTDLGCTL); // to the first control
}

// Looks

void CPropertySheet::SetTitle(LPCTSTR text, UINT style)
{
    setCaption(text);
    m_psh.dwFlags = (m_psh.dwFlags & ~PSH_PROPTITLE) | style;
    if (m_hWnd)
        send(*this, PSM_SETTITLEW, style, text);
}

void CPropertySheet::setCaption(LPCTSTR caption)
{
    m_caption = caption;
    m_psh.pszCaption = m_caption;
}

void CPropertySheet::EnableStackedTabs(BOOL stacked)
{
    m_stackedTabs = stacked != FALSE;
}

void CPropertySheet::SetWizardMode()
{
    m_psh.dwFlags |= PSH_WIZARD;
}

bool CPropertySheet::isWizard() const
{
    return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97 | PSH_WIZARD_LITE)) != 0;
}

void CPropertySheet::SetWizardButtons(DWORD buttons)
{
    // A page says it while it becomes the active one; what the system does to the buttons then comes first.
    PostMessage(PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(buttons));
}

void CPropertySheet::SetFinishText(LPCTSTR text)
{
    send(*this, PSM_SETFINISHTEXTW, nullptr, text);
}

CTabCtrl* CPropertySheet::GetTabControl() const
{
    return afxdetail::controlFrom<CTabCtrl>(send<HWND>(*this, PSM_GETTABCONTROL));
}

void CPropertySheet::MapDialogRect(LPRECT rect) const
{
    ::MapDialogRect(m_hWnd, rect);
}

// Opening

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM)
{
    return OnInitDialog();
}

BOOL CPropertySheet::OnInitDialog()
{
    const HWND wnd = m_hWnd;
    CWnd* const tabs = GetDlgItem(AFX_IDC_TAB_CONTROL);
    if (tabs && !m_stackedTabs)
        tabs->ModifyStyle(TCS_MULTILINE, TCS_SINGLELINE); // before it gets tabs
    const BOOL result = Default() != 0;
    if (FromHandlePermanent(wnd) != this)
        return result; // a page may have changed its mind
    if (!isModal() && !isWizard())
        hideButtons();
    if (!(GetStyle() & WS_CHILD))
        CenterWindow();
    return result;
}

/// A modeless sheet ends below its pages.
void CPropertySheet::hideButtons()
{
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP})
        if (CWnd* const button = GetDlgItem(id)) {
            button->ShowWindow(SW_HIDE);
            button->EnableWindow(FALSE); // Enter must not press it
        }
    const CWnd* const tabs = GetTabControl();
    if (!tabs)
        return;
    CRect pages;
    CRect client;
    CRect window;
    tabs->GetWindowRect(&pages);
    ScreenToClient(&pages);
    GetClientRect(&client);
    GetWindowRect(&window);
    const int unused = client.bottom - (pages.bottom + pages.left);
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() - unused,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Closing

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (CWnd::OnCommand(wParam, lParam))
        return TRUE;
    const int button = LOWORD(wParam);
    if (button != IDOK && button != IDCANCEL && button != ID_WIZFINISH)
        return FALSE;
    passOnAndClose(button);
    return TRUE;
}

void CPropertySheet::OnClose()
{
    passOnAndClose(IDCANCEL);
}

void CPropertySheet::PressButton(int button)
{
    PostMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(button));
}

LRESULT CPropertySheet::OnPressButton(WPARAM button, LPARAM)
{
    // in the order of PSBTN_
    constexpr std::array<int, PSBTN_MAX + 1> kIds{ID_WIZBACK,   ID_WIZNEXT, ID_WIZFINISH, IDOK,
                                                  ID_APPLY_NOW, IDCANCEL,   IDHELP};
    passOnAndClose(button < kIds.size() ? kIds[button] : 0);
    return 0;
}

/// Lets the system ask the pages, and closes the sheet when that was the end of it: it has no current page
/// then.
void CPropertySheet::passOnAndClose(int button)
{
    const HWND wnd = m_hWnd;
    Default();
    if (FromHandlePermanent(wnd) != this)
        return;
    if (send<HWND>(*this, PSM_GETCURRENTPAGEHWND))
        keepFocus();
    else if (isModal())
        EndModalLoop(button);
    else
        DestroyWindow();
}

// Messages

BOOL CPropertySheet::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    const CWinApp* const app = AfxGetApp();
    if (app && app->m_bHelpMode) // keys look for help now
        return FALSE;
    if (afxdetail::isLostCharacter(m_hWnd, *message))
        return FALSE;
    const HWND wnd = m_hWnd;
    MSG asked = *message;
    if (::IsChild(wnd, asked.hwnd) && isEscapeInText(asked))
        asked.hwnd = wnd;
    const BOOL taken = send<BOOL>(*this, PSM_ISDIALOGMESSAGE, nullptr, &asked);
    if (taken && FromHandlePermanent(wnd) == this)
        keepFocus();
    return taken;
}

BOOL CPropertySheet::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    return CWnd::OnCmdMsg(id, code, extra, info) || afxdetail::routeFromDialog(*this, id, code, extra, info);
}

LRESULT CPropertySheet::OnKickIdle(WPARAM source, LPARAM count)
{
    CPropertyPage* const page = GetActivePage();
    return page && page->m_hWnd ? page->SendMessage(WM_KICKIDLE, source, count) : 0;
}

BOOL CPropertySheet::OnHelpInfo(HELPINFO* info)
{
    if (afxdetail::helpOfMessageBox() || SendMessage(WM_COMMANDHELP))
        return TRUE;
    return CWnd::OnHelpInfo(info);
}

LRESULT CPropertySheet::OnCommandHelp(WPARAM wParam, LPARAM lParam)
{
    CPropertyPage* const page = GetActivePage();
    return page && page->m_hWnd ? page->SendMessage(WM_COMMANDHELP, wParam, lParam) : 0;
}
