// CPropertyPage: making a page, and what the sheet asks it.
#include <afxdlgs.h>
#include <afxpriv.h>

#include "../dlg/dialogmessages.h"
#include "../dlg/reportsexception.h"

#include <detail/help.h>
#include <detail/pending.h>

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

namespace
{

/// The page that the system makes a window for gets that window.
UINT CALLBACK pageCallback(HWND, UINT message, PROPSHEETPAGE* page)
{
    // When it is released, the page's object may be gone.
    if (message != PSPCB_CREATE)
        return TRUE;
    try {
        AfxHookWindowCreate(reinterpret_cast<CPropertyPage*>(page->lParam));
        return TRUE;
    } catch (...) {
        afxdetail::storePendingException();
        return FALSE; // there will be no window
    }
}

/// What a handler answers the sheet; `onFailure` when it raises an exception.
template <class Handler>
LRESULT answerOf(Handler&& handler, LRESULT onFailure)
{
    LRESULT answer = onFailure;
    try {
        afxdetail::reportsException([&] { answer = handler(); });
    } catch (...) {
        afxdetail::storePendingException(); // raised when the system returns
    }
    return answer;
}

/// Loads a text; gives its characters, or null without a number.
LPCTSTR load(CString& text, UINT id)
{
    text.Empty();
    if (id == 0)
        return nullptr;
    text.LoadString(id);
    return text;
}

} // namespace

CPropertyPage::CPropertyPage() = default;

CPropertyPage::CPropertyPage(UINT templateId, UINT captionId, DWORD size)
    : CPropertyPage(MAKEINTRESOURCEW(templateId), captionId, 0, 0, size)
{
}

CPropertyPage::CPropertyPage(LPCTSTR templateName, UINT captionId, DWORD size)
    : CPropertyPage(templateName, captionId, 0, 0, size)
{
}

CPropertyPage::CPropertyPage(UINT templateId, UINT captionId, UINT headerTitleId, UINT headerSubTitleId,
                             DWORD size)
    : CPropertyPage(MAKEINTRESOURCEW(templateId), captionId, headerTitleId, headerSubTitleId, size)
{
}

CPropertyPage::CPropertyPage(LPCTSTR templateName, UINT captionId, UINT headerTitleId, UINT headerSubTitleId,
                             DWORD size)
{
    Construct(templateName, captionId, headerTitleId, headerSubTitleId);
    m_psp.dwSize = std::min<DWORD>(size, sizeof m_psp);
}

CPropertyPage::~CPropertyPage() = default;

void CPropertyPage::Construct(UINT templateId, UINT captionId)
{
    Construct(MAKEINTRESOURCEW(templateId), captionId, 0, 0);
}

void CPropertyPage::Construct(LPCTSTR templateName, UINT captionId)
{
    Construct(templateName, captionId, 0, 0);
}

void CPropertyPage::Construct(UINT templateId, UINT captionId, UINT headerTitleId, UINT headerSubTitleId)
{
    Construct(MAKEINTRESOURCEW(templateId), captionId, headerTitleId, headerSubTitleId);
}

void CPropertyPage::Construct(LPCTSTR templateName, UINT captionId, UINT headerTitleId, UINT headerSubTitleId)
{
    ASSERT(!m_hWnd);
    m_lpszTemplateName = templateName;
    m_nIDHelp = IS_INTRESOURCE(templateName) ? LOWORD(reinterpret_cast<UINT_PTR>(templateName)) : 0;
    m_psp = {};
    m_psp.dwSize = sizeof m_psp;
    m_psp.pszTemplate = templateName;
    m_psp.pszTitle = load(m_caption, captionId);
    m_psp.pszHeaderTitle = load(m_headerTitle, headerTitleId);
    m_psp.pszHeaderSubTitle = load(m_headerSubTitle, headerSubTitleId);
    if (captionId != 0)
        m_psp.dwFlags |= PSP_USETITLE;
    if (headerTitleId != 0)
        m_psp.dwFlags |= PSP_USEHEADERTITLE;
    if (headerSubTitleId != 0)
        m_psp.dwFlags |= PSP_USEHEADERSUBTITLE;
    if (afxdetail::programHasHelp())
        m_psp.dwFlags |= PSP_HASHELP;
}

/// Null when there is no such template.
HPROPSHEETPAGE CPropertyPage::createHandle()
{
    PROPSHEETPAGE page = m_psp;
    page.dwFlags |= PSP_USECALLBACK;
    page.pfnCallback = &pageCallback;
    page.pfnDlgProc = &afxdetail::dialogProcedure;
    page.lParam = reinterpret_cast<LPARAM>(this);
    if (!(page.dwFlags & PSP_DLGINDIRECT)) {
        if (!page.hInstance)
            page.hInstance = AfxFindResourceHandle(page.pszTemplate, RT_DIALOG);
        if (!::FindResourceW(page.hInstance, page.pszTemplate, RT_DIALOG))
            return nullptr;
    }
    return ::CreatePropertySheetPageW(&page);
}

/// Null outside of a sheet.
CPropertySheet* CPropertyPage::sheet() const
{
    return m_hWnd ? DYNAMIC_DOWNCAST(CPropertySheet, GetParent()) : nullptr;
}

// What the page asks of the sheet

void CPropertyPage::SetModified(BOOL changed)
{
    if (CPropertySheet* const parent = sheet())
        parent->SendMessage(changed ? PSM_CHANGED : PSM_UNCHANGED, reinterpret_cast<WPARAM>(m_hWnd));
}

void CPropertyPage::CancelToClose()
{
    CPropertySheet* const parent = sheet();
    if (parent && parent->isModal())
        parent->SendMessage(PSM_CANCELTOCLOSE);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam)
{
    CPropertySheet* const parent = sheet();
    return parent ? parent->SendMessage(PSM_QUERYSIBLINGS, wParam, lParam) : 0;
}

// What the sheet asks of the page

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const HWND parent = ::GetParent(m_hWnd);
    if (CDialog::OnNotify(wParam, lParam, result))
        return TRUE;
    const auto& notification = *reinterpret_cast<const NMHDR*>(lParam);
    return notification.hwndFrom == parent && answerSheet(notification, *result);
}

/// False for what is no question to the page. A handler may delete the page.
bool CPropertyPage::answerSheet(const NMHDR& notification, LRESULT& result)
{
    // A page that could not say whether it takes over stays the active one: the sheet would go on to the
    // next.
    constexpr LRESULT kActive = 0;
    constexpr LRESULT kNextPage = -1;
    constexpr LRESULT kStay = -1;
    switch (notification.code) {
    case PSN_SETACTIVE:
        result = answerOf([this] { return OnSetActive() ? kActive : kNextPage; }, kActive);
        return true;
    case PSN_KILLACTIVE:
        result = answerOf([this] { return !OnKillActive(); }, TRUE);
        return true;
    case PSN_APPLY:
        result = answerOf([this] { return OnApply() ? PSNRET_NOERROR : PSNRET_INVALID; }, PSNRET_INVALID);
        return true;
    case PSN_QUERYCANCEL:
        result = answerOf([this] { return !OnQueryCancel(); }, TRUE);
        return true;
    case PSN_RESET:
        reset();
        result = 0;
        return true;
    case PSN_WIZBACK:
        result = answerOf([this] { return OnWizardBack(); }, kStay);
        return true;
    case PSN_WIZNEXT:
        result = answerOf([this] { return OnWizardNext(); }, kStay);
        return true;
    case PSN_WIZFINISH:
        result = answerOf([this] { return !OnWizardFinish(); }, TRUE);
        return true;
    case PSN_HELP:
        result = SendMessage(WM_COMMANDHELP);
        return true;
    default:
        return false;
    }
}

void CPropertyPage::reset()
{
    const HWND wnd = m_hWnd;
    const auto calling = [this](void (CPropertyPage::*handler)()) {
        answerOf(
            [=, this] {
                (this->*handler)();
                return 0;
            },
            0);
    };
    calling(&CPropertyPage::OnReset);
    if (FromHandlePermanent(wnd) == this)
        calling(&CPropertyPage::OnCancel);
}

BOOL CPropertyPage::OnInitDialog()
{
    m_shownBefore = false;
    return CDialog::OnInitDialog();
}

BOOL CPropertyPage::OnSetActive()
{
    // OnInitDialog has filled the controls the first time.
    return std::exchange(m_shownBefore, true) ? UpdateData(FALSE) : TRUE;
}

BOOL CPropertyPage::OnKillActive()
{
    return UpdateData(TRUE);
}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

void CPropertyPage::OnOK()
{
    SetModified(FALSE);
}

void CPropertyPage::OnReset() {}

void CPropertyPage::OnCancel() {}

BOOL CPropertyPage::OnQueryCancel()
{
    return TRUE;
}

LRESULT CPropertyPage::OnWizardBack()
{
    return 0;
}

LRESULT CPropertyPage::OnWizardNext()
{
    return 0;
}

BOOL CPropertyPage::OnWizardFinish()
{
    return UpdateData(TRUE);
}

BOOL CPropertyPage::PreTranslateMessage(MSG* message)
{
    // Dialog keys are the sheet's: they move through its buttons, too.
    return sheet() ? CWnd::PreTranslateMessage(message) : CDialog::PreTranslateMessage(message);
}
