// CDialog: making a dialog, and its messages.
#include <afxwin.h>
#include <afxpriv.h>

#include "../wnd/wndflags.h"
#include "dialoginit.h"
#include "dialogmessages.h"
#include "dialogresource.h"

#include <detail/help.h>
#include <detail/pending.h>

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    // the two buttons
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    // making
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
    // help
    ON_WM_HELPINFO()
    ON_MESSAGE(WM_COMMANDHELP, &CDialog::OnCommandHelp)
    ON_MESSAGE(WM_HELPHITTEST, &CDialog::OnHelpHitTest)
END_MESSAGE_MAP()

INT_PTR CALLBACK afxdetail::dialogProcedure(HWND wnd, UINT message, WPARAM, LPARAM)
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
        storePendingException();
        return FALSE;
    }
}

namespace
{

UINT helpIdOf(LPCTSTR templateName)
{
    return IS_INTRESOURCE(templateName) ? LOWORD(reinterpret_cast<UINT_PTR>(templateName)) : 0;
}

/// What a template says of the dialog's window.
struct TemplateHead
{
    explicit TemplateHead(LPCDLGTEMPLATE dialogTemplate)
    {
        // The extended form begins with two words that no style has, and has the rest further on.
        const auto* words = reinterpret_cast<const WORD*>(dialogTemplate);
        const bool extended = words[0] == 1 && words[1] == 0xFFFF;
        style = extended ? static_cast<DWORD>(MAKELONG(words[6], words[7])) : dialogTemplate->style;
        x = extended ? static_cast<short>(words[9]) : dialogTemplate->x;
        y = extended ? static_cast<short>(words[10]) : dialogTemplate->y;
    }

    /// Whether the dialog is shown as soon as it is made.
    bool isVisible() const { return (style & WS_VISIBLE) != 0; }

    /// Whether the place is left to the framework.
    bool leavesPlaceOpen() const
    {
        constexpr DWORD kPlaced = DS_ABSALIGN | DS_CENTER | DS_CENTERMOUSE;
        return x == 0 && y == 0 && !(style & (kPlaced | WS_CHILD));
    }

    DWORD style;
    short x;
    short y;
};

CPoint placeOf(HWND wnd)
{
    CRect rect;
    ::GetWindowRect(wnd, &rect);
    return rect.TopLeft();
}

bool isInput(UINT message)
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
           (message >= WM_NCMOUSEMOVE && message <= WM_NCMBUTTONDBLCLK);
}

} // namespace

CDialog::CDialog() = default;

CDialog::CDialog(UINT templateId, CWnd* parent)
    : CDialog(MAKEINTRESOURCEW(templateId), parent)
{
}

CDialog::CDialog(LPCTSTR templateName, CWnd* parent)
    : m_nIDHelp(helpIdOf(templateName))
    , m_lpszTemplateName(templateName)
    , m_pParentWnd(parent)
{
}

CDialog::~CDialog()
{
    if (m_hWnd)
        ::DestroyWindow(m_hWnd); // not by the member: no exception may leave a destructor
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    return Create(MAKEINTRESOURCEW(templateId), parent);
}

BOOL CDialog::Create(LPCTSTR templateName, CWnd* parent)
{
    m_lpszTemplateName = templateName;
    if (m_nIDHelp == 0)
        m_nIDHelp = helpIdOf(templateName);
    const afxdetail::DialogResource resource(templateName);
    return resource.get() && createModeless(resource.get(), parent, resource.module());
}

BOOL CDialog::CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent)
{
    return CreateIndirect(static_cast<LPCDLGTEMPLATE>(::LockResource(dialogTemplate)), parent, nullptr);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* dialogInit)
{
    m_dialogInit = dialogInit;
    return dialogTemplate && createModeless(dialogTemplate, parent, AfxGetInstanceHandle());
}

bool CDialog::createModeless(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE instance)
{
    if (!parent)
        parent = AfxGetMainWnd();
    m_nFlags |= afxdetail::kContinueModal; // cleared by an EndDialog in OnInitDialog
    const HWND wnd = createWindow(dialogTemplate, parent->GetSafeHwnd(), instance);
    if (!wnd)
        return false; // the object may have deleted itself with the window
    const bool wanted = (m_nFlags & afxdetail::kContinueModal) != 0;
    m_nFlags &= ~afxdetail::kContinueModal;
    if (!wanted)
        DestroyWindow();
    return wanted;
}

/// Null when the window is not made, or did not outlive its initialisation: this object may then be gone.
HWND CDialog::createWindow(LPCDLGTEMPLATE dialogTemplate, HWND owner, HINSTANCE instance)
{
    const TemplateHead head(dialogTemplate);
    m_shownWhenMade = head.isVisible();
    m_placeLeftOpen = head.leavesPlaceOpen();
    afxdetail::CallOut creation;
    AfxHookWindowCreate(this);
    const HWND wnd =
        ::CreateDialogIndirectParamW(instance, dialogTemplate, owner, &afxdetail::dialogProcedure, 0);
    if (AfxUnhookWindowCreate())
        PostNcDestroy(); // no window came to be, so no message ended it
    const bool complete = ::IsWindow(wnd) && !creation.failed();
    if (!complete && ::IsWindow(wnd))
        ::DestroyWindow(wnd);
    creation.finish();
    return complete ? wnd : nullptr;
}

// Initialisation

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    const HWND wnd = m_hWnd;
    const CPoint place = placeOf(wnd);
    const LRESULT result = Default(); // reaches OnInitDialog through the dialog procedure
    if (FromHandlePermanent(wnd) != this)
        return result; // the object may be gone with the window
    // A dialog that has moved or shown itself in OnInitDialog stays where it is.
    if (placeOf(wnd) == place && !IsWindowVisible() && CheckAutoCenter())
        CenterWindow();
    // Ended already: it must not be shown any more, whatever its template says.
    if (m_shownWhenMade && !(m_nFlags & afxdetail::kContinueModal))
        ::DestroyWindow(wnd);
    return result;
}

BOOL CDialog::CheckAutoCenter()
{
    return m_placeLeftOpen;
}

BOOL CDialog::OnInitDialog()
{
    const bool filled = m_dialogInit         ? afxdetail::runDialogInit(m_hWnd, m_dialogInit)
                        : m_lpszTemplateName ? afxdetail::runDialogInit(m_hWnd, m_lpszTemplateName)
                                             : true;
    if (!filled || !UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

LRESULT CDialog::HandleSetFont(WPARAM font, LPARAM)
{
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(font)));
    return Default();
}

void CDialog::OnSetFont(CFont*) {}

// Commands

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

BOOL CDialog::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    return CWnd::OnCmdMsg(id, code, extra, info) || afxdetail::routeFromDialog(*this, id, code, extra, info);
}

bool afxdetail::routeFromDialog(const CWnd& dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    // Only commands that a whole program may know go further, not the notifications of the dialog's controls.
    const bool routed = code == CN_COMMAND || static_cast<UINT>(code) == CN_UPDATE_COMMAND_UI;
    if (!routed || id < 0x8000 || id >= 0xF000)
        return false;
    CWnd* owner = dialog.GetParent();
    if (owner && owner->OnCmdMsg(id, code, extra, info))
        return true;
    CWinThread* thread = AfxGetThread();
    return thread && thread->OnCmdMsg(id, code, extra, info);
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    const CWinApp* app = AfxGetApp();
    if (app && app->m_bHelpMode) // keys look for help now
        return FALSE;
    return isInput(message->message) && IsDialogMessage(message);
}

// Help

BOOL CDialog::OnHelpInfo(HELPINFO* info)
{
    // A key in a message box of this dialog asks about the box.
    if (afxdetail::helpOfMessageBox() || SendMessage(WM_COMMANDHELP))
        return TRUE;
    return CWnd::OnHelpInfo(info);
}

LRESULT CDialog::OnCommandHelp(WPARAM, LPARAM context)
{
    const DWORD_PTR known = static_cast<DWORD_PTR>(context);
    return afxdetail::showHelp(known ? known : static_cast<DWORD_PTR>(SendMessage(WM_HELPHITTEST)));
}

LRESULT CDialog::OnHelpHitTest(WPARAM, LPARAM)
{
    return m_nIDHelp ? static_cast<LRESULT>(HID_BASE_RESOURCE + m_nIDHelp) : 0;
}

// Focus, default button, units

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
