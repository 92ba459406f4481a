// CDialog: making a dialog, and its messages.
#include <afxwin.h>
#include <afxpriv.h>

#include "dialogresource.h"

#include <detail/pending.h>

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_WM_CTLCOLOR()
    ON_COMMAND(IDOK, OnOK)
    ON_COMMAND(IDCANCEL, OnCancel)
    ON_MESSAGE(WM_INITDIALOG, HandleInitDialog)
    ON_MESSAGE(WM_COMMANDHELP, OnCommandHelp)
    ON_MESSAGE(WM_HELPHITTEST, OnHelpHitTest)
    ON_MESSAGE(WM_SETFONT, HandleSetFont)
END_MESSAGE_MAP()

namespace
{

/// The system's dialog procedure: everything but the initialisation is done by the message map.
INT_PTR CALLBACK dialogProcedure(HWND wnd, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    auto* dialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(wnd));
    if (!dialog)
        return TRUE;
    try {
        return dialog->OnInitDialog();
    } catch (...) {
        // Raised again by HandleInitDialog, inside the dialog's own message dispatch.
        afxdetail::storePendingException();
        return FALSE;
    }
}

} // namespace

CDialog::CDialog() = default;

CDialog::CDialog(UINT templateId, CWnd* parent)
    : m_nIDHelp(templateId)
    , m_lpszTemplateName(MAKEINTRESOURCEW(templateId))
    , m_pParentWnd(parent)
{
}

CDialog::CDialog(LPCTSTR templateName, CWnd* parent)
    : m_nIDHelp(IS_INTRESOURCE(templateName) ? LOWORD(reinterpret_cast<UINT_PTR>(templateName)) : 0)
    , m_lpszTemplateName(templateName)
    , m_pParentWnd(parent)
{
}

CDialog::~CDialog()
{
    if (m_hWnd)
        DestroyWindow();
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    return Create(MAKEINTRESOURCEW(templateId), parent);
}

BOOL CDialog::Create(LPCTSTR templateName, CWnd* parent)
{
    m_lpszTemplateName = templateName;
    if (IS_INTRESOURCE(templateName) && m_nIDHelp == 0)
        m_nIDHelp = LOWORD(reinterpret_cast<UINT_PTR>(templateName));
    const afxdetail::DialogResource resource(templateName);
    return resource.get() && CreateIndirect(resource.get(), parent, nullptr, resource.module());
}

BOOL CDialog::CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent, HINSTANCE instance)
{
    const auto* locked = static_cast<LPCDLGTEMPLATE>(::LockResource(dialogTemplate));
    const BOOL created = CreateIndirect(locked, parent, nullptr, instance);
    return created;
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* init, HINSTANCE instance)
{
    m_lpDialogInit = init;
    if (!parent)
        parent = AfxGetMainWnd();
    if (!dialogTemplate)
        return FALSE;
    return createWindow(dialogTemplate, parent, instance ? instance : AfxGetInstanceHandle());
}

bool CDialog::createWindow(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE instance)
{
    AfxHookWindowCreate(this);
    const HWND wnd =
        ::CreateDialogIndirectParamW(instance, dialogTemplate, parent->GetSafeHwnd(), &dialogProcedure, 0);
    if (AfxUnhookWindowCreate())
        PostNcDestroy();
    if (!wnd && m_hWnd) // its creation failed half-way
        Detach();
    try {
        afxdetail::rethrowPendingException();
    } catch (...) {
        if (m_hWnd)
            ::DestroyWindow(m_hWnd);
        throw;
    }
    return wnd != nullptr;
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    PreInitDialog();
    return Default(); // reaches OnInitDialog through the dialog procedure
}

BOOL CDialog::OnInitDialog()
{
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::PreInitDialog() {}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM)
{
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

void CDialog::OnSetFont(CFont*) {}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

LRESULT CDialog::OnCommandHelp(WPARAM, LPARAM)
{
    CWinApp* app = AfxGetApp();
    if (m_nIDHelp == 0 || !app)
        return FALSE;
    app->HtmlHelp(0x20000 + m_nIDHelp);
    return TRUE;
}

LRESULT CDialog::OnHelpHitTest(WPARAM, LPARAM)
{
    return m_nIDHelp ? static_cast<LRESULT>(0x20000 + m_nIDHelp) : 0;
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    const UINT id = message->message;
    const bool input = (id >= WM_KEYFIRST && id <= WM_KEYLAST) || (id >= WM_MOUSEFIRST && id <= WM_MOUSELAST) ||
                       (id >= WM_NCMOUSEMOVE && id <= WM_NCMBUTTONDBLCLK);
    return input && IsDialogMessage(message);
}

BOOL CDialog::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    if (CWnd::OnCmdMsg(id, code, extra, info))
        return TRUE;
    // Only commands that a whole program may know go further, not the notifications of the dialog's controls.
    const bool routed = code == CN_COMMAND || static_cast<UINT>(code) == CN_UPDATE_COMMAND_UI;
    if (!routed || id < 0x8000 || id >= 0xF000)
        return FALSE;
    CWnd* owner = GetParent();
    if (owner && owner->OnCmdMsg(id, code, extra, info))
        return TRUE;
    CWinThread* thread = AfxGetThread();
    return thread && thread->OnCmdMsg(id, code, extra, info);
}

void CDialog::NextDlgCtrl() const
{
    SendMessage(WM_NEXTDLGCTL, 0, FALSE);
}

void CDialog::PrevDlgCtrl() const
{
    SendMessage(WM_NEXTDLGCTL, 1, FALSE);
}

void CDialog::GotoDlgCtrl(CWnd* control)
{
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control->m_hWnd), TRUE);
}

void CDialog::SetDefID(UINT id)
{
    SendMessage(DM_SETDEFID, id);
}

DWORD CDialog::GetDefID() const
{
    return static_cast<DWORD>(SendMessage(DM_GETDEFID));
}

void CDialog::MapDialogRect(LPRECT rect) const
{
    ::MapDialogRect(m_hWnd, rect);
}
