// CDialog: modal dialogs.
#include <afxwin.h>

#include "../wnd/wndflags.h"
#include "dialogresource.h"

#include <detail/pending.h>

namespace
{

/// The owner of a modal dialog, disabled while it lives.
class DisabledOwner
{
public:
    explicit DisabledOwner(HWND owner)
        : m_owner(owner && owner != ::GetDesktopWindow() && ::IsWindowEnabled(owner) ? owner : nullptr)
    {
        if (m_owner)
            ::EnableWindow(m_owner, FALSE);
    }
    ~DisabledOwner() { enable(); }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;

    void enable()
    {
        if (m_owner)
            ::EnableWindow(m_owner, TRUE);
        m_owner = nullptr;
    }

private:
    HWND m_owner;
};

} // namespace

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* init)
{
    m_lpDialogTemplate = dialogTemplate;
    m_lpDialogInit = init;
    if (!m_pParentWnd)
        m_pParentWnd = parent;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent)
{
    m_hDialogTemplate = dialogTemplate;
    if (!m_pParentWnd)
        m_pParentWnd = parent;
    return TRUE;
}

HWND CDialog::PreModal()
{
    return GetSafeOwner(m_pParentWnd, &m_hWndTop)->GetSafeHwnd();
}

void CDialog::PostModal()
{
    if (m_hWndTop)
        ::EnableWindow(m_hWndTop, TRUE);
    m_hWndTop = nullptr;
}

INT_PTR CDialog::DoModal()
{
    LPCDLGTEMPLATE dialogTemplate = m_lpDialogTemplate;
    HINSTANCE instance = AfxGetInstanceHandle();
    if (m_lpszTemplateName) {
        const afxdetail::DialogResource resource(m_lpszTemplateName);
        dialogTemplate = resource.get();
        instance = resource.module();
    } else if (m_hDialogTemplate) {
        dialogTemplate = static_cast<LPCDLGTEMPLATE>(::LockResource(m_hDialogTemplate));
    }
    if (!dialogTemplate)
        return -1;

    const HWND owner = PreModal();
    struct Restore
    {
        CDialog& dialog;
        ~Restore() { dialog.PostModal(); }
    } const restore{*this};
    if (m_hWndTop)
        ::EnableWindow(m_hWndTop, FALSE);
    return runModal(dialogTemplate, instance, owner);
}

INT_PTR CDialog::runModal(LPCDLGTEMPLATE dialogTemplate, HINSTANCE instance, HWND owner)
{
    // An exception on the way out destroys the dialog too, with the owner enabled first: otherwise another
    // program's window would be activated.
    DisabledOwner disabled(owner);
    struct Close
    {
        CDialog& dialog;
        DisabledOwner& owner;
        ~Close()
        {
            owner.enable();
            if (dialog.m_hWnd)
                ::DestroyWindow(dialog.m_hWnd);
        }
    } const close{*this, disabled};

    m_nModalResult = -1;
    m_nFlags |= afxdetail::kContinueModal; // cleared by an EndDialog in OnInitDialog
    const bool created = createWindow(dialogTemplate, FromHandle(owner), instance);
    const bool wanted = created && ContinueModal();
    m_nFlags &= ~afxdetail::kContinueModal;
    if (wanted) {
        const DWORD flags = MLF_SHOWONIDLE | ((GetStyle() & DS_NOIDLEMSG) ? MLF_NOIDLEMSG : 0);
        RunModalLoop(flags);
    }
    if (m_hWnd)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);

    disabled.enable();
    if (owner && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(owner);
    if (m_hWnd)
        DestroyWindow();
    return m_nModalResult;
}

void CDialog::EndDialog(int result)
{
    if (m_nFlags & (afxdetail::kModalLoop | afxdetail::kContinueModal))
        EndModalLoop(result);
    ::EndDialog(m_hWnd, result);
    afxdetail::rethrowPendingException();
}
