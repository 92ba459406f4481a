// CFileDialog: the classic dialog, tied to the object by a child dialog.
#include "filedialogdata.h"

#include <afxpriv.h>

#include <detail/pending.h>

#include <array>

namespace
{

UINT registered(LPCTSTR name)
{
    return ::RegisterWindowMessageW(name);
}

const UINT s_fileOk = registered(FILEOKSTRINGW);
const UINT s_selectionChange = registered(LBSELCHSTRINGW);
const UINT s_shareViolation = registered(SHAREVISTRINGW);

/// The object whose dialog is about to be made on this thread.
thread_local CFileDialog* s_waiting = nullptr;

CFileDialog* fileDialogOf(HWND wnd)
{
    return dynamic_cast<CFileDialog*>(CWnd::FromHandlePermanent(wnd));
}

} // namespace

BEGIN_MESSAGE_MAP(CFileDialog, CCommonDialog)
    // dialogs without OFN_EXPLORER
    ON_REGISTERED_MESSAGE(s_fileOk, &CFileDialog::HandleFileOk)
    ON_REGISTERED_MESSAGE(s_selectionChange, &CFileDialog::HandleSelectionChange)
    ON_REGISTERED_MESSAGE(s_shareViolation, &CFileDialog::HandleShareViolation)
END_MESSAGE_MAP()

/// The child dialog's way to its object.
class CFileDialog::ClassicChild
{
public:
    /// The hook procedure: the child's dialog procedure, from its first message on.
    static UINT_PTR CALLBACK hook(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (CFileDialog* waiting = std::exchange(s_waiting, nullptr)) {
            if (!takeOver(*waiting, wnd))
                return FALSE;
            // On its way already, past the object: the object gets it and comes back here.
            if (message == WM_INITDIALOG)
                return static_cast<UINT_PTR>(AfxCallWndProc(waiting, wnd, message, wParam, lParam));
        }
        return message == WM_INITDIALOG ? initialise(wnd) : FALSE;
    }

private:
    static bool takeOver(CFileDialog& dialog, HWND wnd)
    {
        try {
            if (!dialog.SubclassWindow(wnd))
                return false;
        } catch (...) {
            afxdetail::storePendingException();
            close(wnd, dialog);
            return false;
        }
        ::SetWindowLongPtrW(wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure));
        return true;
    }

    static UINT_PTR initialise(HWND wnd)
    {
        CFileDialog* dialog = fileDialogOf(wnd);
        if (!dialog)
            return FALSE;
        try {
            return static_cast<UINT_PTR>(dialog->OnInitDialog());
        } catch (...) {
            afxdetail::storePendingException(); // raised again inside the dialog's own message dispatch
            return FALSE;
        }
    }

    /// The framework's procedure. When a handler's exception waits for the end of the dialog, the end comes
    /// now.
    static LRESULT CALLBACK procedure(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        const LRESULT result = AfxWndProc(wnd, message, wParam, lParam);
        CFileDialog* dialog = fileDialogOf(wnd);
        if (!dialog || !afxdetail::failedDuring(dialog->m_data->callDepth))
            return result;
        close(wnd, *dialog);
        return message == WM_NOTIFY ? 1 : result; // the file is refused
    }

    /// Posted, since the dialog may be in the middle of its making.
    static void close(HWND wnd, const CFileDialog& dialog)
    {
        const HWND shown = (dialog.m_ofn.Flags & OFN_EXPLORER) ? ::GetParent(wnd) : wnd;
        ::PostMessageW(shown, WM_COMMAND, IDCANCEL, 0);
    }
};

INT_PTR CFileDialog::showClassicDialog(HWND)
{
    if ((m_ofn.Flags & (OFN_ENABLETEMPLATE | OFN_ENABLETEMPLATEHANDLE)) == OFN_ENABLETEMPLATE) {
        m_lpszTemplateName = m_ofn.lpTemplateName;
        if (m_ofn.hInstance == AfxGetResourceHandle())
            m_ofn.hInstance = AfxFindResourceHandle(m_ofn.lpTemplateName, RT_DIALOG);
    }
    m_ofn.lpfnHook = &ClassicChild::hook;

    struct Waiting
    {
        explicit Waiting(CFileDialog* dialog)
            : outer(std::exchange(s_waiting, dialog))
        {
        }
        ~Waiting() { s_waiting = outer; }
        CFileDialog* outer;
    };
    afxdetail::CallOut showing;
    m_data->callDepth = afxdetail::threadState().callOuts;
    BOOL chosen = FALSE;
    {
        const Waiting waiting(this);
        chosen = m_bOpenFileDialog ? ::GetOpenFileNameW(&m_ofn) : ::GetSaveFileNameW(&m_ofn);
    }
    showing.finish();
    return chosen ? IDOK : IDCANCEL;
}

BOOL CFileDialog::OnInitDialog()
{
    return CCommonDialog::OnInitDialog();
}

void CFileDialog::SetTemplate(UINT oldStyle, UINT explorerStyle)
{
    SetTemplate(MAKEINTRESOURCEW(oldStyle), MAKEINTRESOURCEW(explorerStyle));
}

void CFileDialog::SetTemplate(LPCTSTR oldStyle, LPCTSTR explorerStyle)
{
    if (m_bVistaStyle)
        AfxThrowNotSupportedException();
    m_ofn.lpTemplateName = (m_ofn.Flags & OFN_EXPLORER) ? explorerStyle : oldStyle;
    m_ofn.Flags |= OFN_ENABLETEMPLATE;
}

// What the dialog tells

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (CCommonDialog::OnNotify(wParam, lParam, result))
        return TRUE;
    const auto& notification = *reinterpret_cast<const OFNOTIFY*>(lParam);
    switch (notification.hdr.code) {
    case CDN_INITDONE:
        OnInitDone();
        return TRUE;
    case CDN_SELCHANGE:
        OnFileNameChange();
        return TRUE;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        return TRUE;
    case CDN_TYPECHANGE:
        OnTypeChange();
        return TRUE;
    case CDN_HELP:
        *result = SendMessage(WM_COMMANDHELP);
        return TRUE;
    case CDN_SHAREVIOLATION:
        *result = static_cast<LRESULT>(OnShareViolation(notification.pszFile));
        break;
    case CDN_FILEOK:
        *result = fileIsRefused();
        break;
    default:
        return FALSE;
    }
    // The answers count as those of a dialog procedure do.
    if (m_hWnd)
        ::SetWindowLongPtrW(m_hWnd, DWLP_MSGRESULT, *result);
    return TRUE;
}

/// A CException of the handler is reported, and the dialog stays open.
bool CFileDialog::fileIsRefused()
{
    m_data->stage = Data::Stage::Accepting;
    struct Undo
    {
        Data& data;
        ~Undo() { data.stage = Data::Stage::Open; }
    } const undo{*m_data};
    BOOL refused = FALSE;
    return afxdetail::reportsException([&] { refused = OnFileNameOK(); }) || refused;
}

LRESULT CFileDialog::HandleFileOk(WPARAM, LPARAM)
{
    // Explorer-style dialogs have asked by CDN_FILEOK.
    return (m_ofn.Flags & OFN_EXPLORER) ? FALSE : fileIsRefused();
}

LRESULT CFileDialog::HandleSelectionChange(WPARAM box, LPARAM selectionAndCode)
{
    OnLBSelChangedNotify(static_cast<UINT>(box), LOWORD(selectionAndCode), HIWORD(selectionAndCode));
    return 0;
}

LRESULT CFileDialog::HandleShareViolation(WPARAM, LPARAM path)
{
    return static_cast<LRESULT>(OnShareViolation(reinterpret_cast<LPCTSTR>(path)));
}
