// CDialog: modal dialogs.
#include <afxwin.h>

#include "../wnd/wndflags.h"
#include "dialogresource.h"
#include "modalrun.h"

#include <detail/pending.h>

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* dialogInit)
{
    m_template = dialogTemplate;
    m_dialogInit = dialogInit;
    if (!m_pParentWnd)
        m_pParentWnd = parent;
    return dialogTemplate != nullptr;
}

BOOL CDialog::InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent)
{
    m_templateHandle = dialogTemplate;
    if (!m_pParentWnd)
        m_pParentWnd = parent;
    return dialogTemplate != nullptr;
}

HWND CDialog::PreModal()
{
    const HWND owner = GetSafeOwner(m_pParentWnd, &m_disabledTopLevel)->GetSafeHwnd();
    if (m_disabledTopLevel)
        ::EnableWindow(m_disabledTopLevel, FALSE);
    return owner;
}

void CDialog::PostModal()
{
    if (m_disabledTopLevel)
        ::EnableWindow(std::exchange(m_disabledTopLevel, nullptr), TRUE);
}

INT_PTR CDialog::DoModal()
{
    LPCDLGTEMPLATE dialogTemplate = m_template;
    HINSTANCE instance = AfxGetInstanceHandle();
    if (m_lpszTemplateName) {
        const afxdetail::DialogResource resource(m_lpszTemplateName);
        dialogTemplate = resource.get();
        instance = resource.module();
    } else if (m_templateHandle) {
        dialogTemplate = static_cast<LPCDLGTEMPLATE>(::LockResource(m_templateHandle));
    }
    if (!dialogTemplate)
        return -1;

    const HWND owner = PreModal();
    struct Undo
    {
        CDialog& dialog;
        ~Undo() { dialog.PostModal(); }
    } const undo{*this};
    return runModal(dialogTemplate, instance, owner);
}

INT_PTR CDialog::runModal(LPCDLGTEMPLATE dialogTemplate, HINSTANCE instance, HWND owner)
{
    afxdetail::ModalRun run(*this, owner);
    m_nModalResult = -1;
    if (!createWindow(dialogTemplate, owner, instance))
        return m_nModalResult;
    if (ContinueModal()) {
        m_nModalResult = IDABORT; // unless EndDialog says better
        RunModalLoop(MLF_SHOWONIDLE | ((GetStyle() & DS_NOIDLEMSG) ? MLF_NOIDLEMSG : 0));
    }
    run.finish();
    return m_nModalResult;
}

void CDialog::EndDialog(int result)
{
    if (m_nFlags & (afxdetail::kModalLoop | afxdetail::kContinueModal))
        EndModalLoop(result);
    afxdetail::callOut([&] {
        const HWND owner = (m_nFlags & afxdetail::kOwnerLocked) ? ::GetWindow(m_hWnd, GW_OWNER) : nullptr;
        const bool staysLocked = owner && !::IsWindowEnabled(owner);
        ::EndDialog(m_hWnd, result);
        if (staysLocked)
            ::EnableWindow(owner, FALSE); // some systems enable it, whoever has disabled it
    });
}
