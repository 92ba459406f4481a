// CFileDialog: what the newer dialog tells.
#include "filedialogdata.h"

#include <detail/pending.h>

#pragma GCC diagnostic ignored "-Winvalid-offsetof" // the parts of a class are found by their offset

BEGIN_INTERFACE_MAP(CFileDialog, CCommonDialog)
INTERFACE_PART(CFileDialog, IID_IFileDialogEvents, FileDialogEvents)
INTERFACE_PART(CFileDialog, IID_IFileDialogControlEvents, FileDialogControlEvents)
END_INTERFACE_MAP()

/// Calls a handler and gives its answer. A CException is reported; any other exception waits for DoModal, and
/// the dialog is closed. In both cases the system gets `failure`.
template <class Handler>
HRESULT CFileDialog::answerEvent(Handler&& handler, HRESULT failure)
{
    HRESULT answer = failure;
    try {
        standForShellDialog();
        afxdetail::reportsException([&] { answer = handler(); });
    } catch (...) {
        afxdetail::storePendingException();
        m_pIFileDialog->Close(HRESULT_FROM_WIN32(ERROR_CANCELLED));
    }
    return answer;
}

// IFileDialogEvents

STDMETHODIMP_(ULONG) CFileDialog::XFileDialogEvents::AddRef()
{
    METHOD_PROLOGUE_EX_(CFileDialog, FileDialogEvents)
    return pThis->ExternalAddRef();
}

STDMETHODIMP_(ULONG) CFileDialog::XFileDialogEvents::Release()
{
    METHOD_PROLOGUE_EX_(CFileDialog, FileDialogEvents)
    return pThis->ExternalRelease();
}

STDMETHODIMP CFileDialog::XFileDialogEvents::QueryInterface(REFIID iid, LPVOID* object)
{
    METHOD_PROLOGUE_EX_(CFileDialog, FileDialogEvents)
    return static_cast<HRESULT>(pThis->ExternalQueryInterface(&iid, object));
}

STDMETHODIMP CFileDialog::XFileDialogEvents::OnFileOk(IFileDialog*)
{
    METHOD_PROLOGUE(CFileDialog, FileDialogEvents)
    const HRESULT answer = pThis->answerEvent(
        [pThis] {
            pThis->m_data->stage = Data::Stage::Accepting;
            pThis->UpdateOFNFromShellDialog();
            return pThis->OnFileNameOK() ? S_FALSE : S_OK;
        },
        S_FALSE);
    pThis->m_data->stage = answer == S_OK ? Data::Stage::Accepted : Data::Stage::Open;
    return answer;
}

STDMETHODIMP CFileDialog::XFileDialogEvents::OnFolderChanging(IFileDialog*, IShellItem*)
{
    return S_OK;
}

STDMETHODIMP CFileDialog::XFileDialogEvents::OnFolderChange(IFileDialog*)
{
    METHOD_PROLOGUE(CFileDialog, FileDialogEvents)
    return pThis->answerEvent([pThis] {
        if (!std::exchange(pThis->m_data->initDone, true))
            pThis->OnInitDone();
        pThis->OnFolderChange();
        return S_OK;
    });
}

STDMETHODIMP CFileDialog::XFileDialogEvents::OnSelectionChange(IFileDialog*)
{
    METHOD_PROLOGUE(CFileDialog, FileDialogEvents)
    return pThis->answerEvent([pThis] {
        pThis->OnFileNameChange();
        return S_OK;
    });
}

STDMETHODIMP CFileDialog::XFileDialogEvents::OnShareViolation(IFileDialog*, IShellItem* item,
                                                              FDE_SHAREVIOLATION_RESPONSE* response)
{
    METHOD_PROLOGUE(CFileDialog, FileDialogEvents)
    return pThis->answerEvent([&] {
        LPWSTR path = nullptr;
        item->GetDisplayName(SIGDN_FILESYSPATH, &path);
        const CString file(path);
        ::CoTaskMemFree(path);
        const UINT answer = pThis->OnShareViolation(file);
        *response = answer == OFN_SHAREFALLTHROUGH ? FDESVR_ACCEPT
                    : answer == OFN_SHARENOWARN    ? FDESVR_REFUSE
                                                   : FDESVR_DEFAULT;
        return S_OK;
    });
}

STDMETHODIMP CFileDialog::XFileDialogEvents::OnTypeChange(IFileDialog*)
{
    METHOD_PROLOGUE(CFileDialog, FileDialogEvents)
    return pThis->answerEvent([pThis] {
        pThis->OnTypeChange();
        return S_OK;
    });
}

STDMETHODIMP CFileDialog::XFileDialogEvents::OnOverwrite(IFileDialog*, IShellItem*, FDE_OVERWRITE_RESPONSE*)
{
    return E_NOTIMPL; // the dialog asks the user itself
}

// IFileDialogControlEvents

STDMETHODIMP_(ULONG) CFileDialog::XFileDialogControlEvents::AddRef()
{
    METHOD_PROLOGUE_EX_(CFileDialog, FileDialogControlEvents)
    return pThis->ExternalAddRef();
}

STDMETHODIMP_(ULONG) CFileDialog::XFileDialogControlEvents::Release()
{
    METHOD_PROLOGUE_EX_(CFileDialog, FileDialogControlEvents)
    return pThis->ExternalRelease();
}

STDMETHODIMP CFileDialog::XFileDialogControlEvents::QueryInterface(REFIID iid, LPVOID* object)
{
    METHOD_PROLOGUE_EX_(CFileDialog, FileDialogControlEvents)
    return static_cast<HRESULT>(pThis->ExternalQueryInterface(&iid, object));
}

STDMETHODIMP CFileDialog::XFileDialogControlEvents::OnItemSelected(IFileDialogCustomize*, DWORD control,
                                                                   DWORD item)
{
    METHOD_PROLOGUE(CFileDialog, FileDialogControlEvents)
    return pThis->answerEvent([&] {
        pThis->OnItemSelected(control, item);
        return S_OK;
    });
}

STDMETHODIMP CFileDialog::XFileDialogControlEvents::OnButtonClicked(IFileDialogCustomize*, DWORD control)
{
    METHOD_PROLOGUE(CFileDialog, FileDialogControlEvents)
    return pThis->answerEvent([&] {
        pThis->OnButtonClicked(control);
        return S_OK;
    });
}

STDMETHODIMP CFileDialog::XFileDialogControlEvents::OnCheckButtonToggled(IFileDialogCustomize*, DWORD control,
                                                                         BOOL checked)
{
    METHOD_PROLOGUE(CFileDialog, FileDialogControlEvents)
    return pThis->answerEvent([&] {
        pThis->OnCheckButtonToggled(control, checked);
        return S_OK;
    });
}

STDMETHODIMP CFileDialog::XFileDialogControlEvents::OnControlActivating(IFileDialogCustomize*, DWORD control)
{
    METHOD_PROLOGUE(CFileDialog, FileDialogControlEvents)
    return pThis->answerEvent([&] {
        pThis->OnControlActivating(control);
        return S_OK;
    });
}
