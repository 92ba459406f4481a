// CFileDialog: the newer dialog.
#include "filedialogdata.h"

#include "core/filefilter.h"
#include "core/filelist.h"

#include <detail/pending.h>

namespace
{

/// A reference to a COM object, released at the end.
template <class Interface>
class Reference
{
public:
    Reference() = default;
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;
    ~Reference()
    {
        if (m_object)
            m_object->Release();
    }

    Interface** operator&() { return &m_object; }
    Interface* operator->() const { return m_object; }
    Interface* get() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

private:
    Interface* m_object = nullptr;
};

/// The flags that both dialogs know, by the same bits.
constexpr DWORD kSharedFlags = OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR | OFN_NOVALIDATE | OFN_ALLOWMULTISELECT |
                               OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST | OFN_CREATEPROMPT | OFN_SHAREAWARE |
                               OFN_NOREADONLYRETURN | OFN_NOTESTFILECREATE | OFN_NODEREFERENCELINKS |
                               OFN_DONTADDTORECENT | OFN_FORCESHOWHIDDEN;

std::wstring fullPath(const std::wstring& path)
{
    const DWORD length = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(length, L'\0');
    full.resize(::GetFullPathNameW(path.c_str(), length, full.data(), nullptr));
    return full;
}

/// Whether the dialog begins in this folder now; not when there is none.
bool beginIn(IFileDialog& dialog, const std::wstring& folder)
{
    Reference<IShellItem> item;
    return !folder.empty() &&
           SUCCEEDED(::SHCreateItemFromParsingName(fullPath(folder).c_str(), nullptr, IID_IShellItem,
                                                   reinterpret_cast<void**>(&item))) &&
           SUCCEEDED(dialog.SetFolder(item.get()));
}

/// The path in the file system; empty for what is not there.
std::wstring pathOf(IShellItem& item)
{
    LPWSTR path = nullptr;
    if (FAILED(item.GetDisplayName(SIGDN_FILESYSPATH, &path)) || !path)
        return {};
    const std::wstring text(path);
    ::CoTaskMemFree(path);
    return text;
}

std::vector<std::wstring> pathsOf(IShellItemArray& items)
{
    std::vector<std::wstring> paths;
    DWORD count = 0;
    items.GetCount(&count);
    for (DWORD i = 0; i < count; ++i) {
        Reference<IShellItem> item;
        if (SUCCEEDED(items.GetItemAt(i, &item)))
            paths.push_back(pathOf(*item.get()));
    }
    std::erase(paths, std::wstring());
    return paths;
}

/// What the user has accepted.
std::vector<std::wstring> resultsOf(IFileDialog& dialog)
{
    Reference<IFileOpenDialog> opening;
    Reference<IShellItemArray> several;
    if (SUCCEEDED(dialog.QueryInterface(IID_IFileOpenDialog, reinterpret_cast<void**>(&opening))) &&
        SUCCEEDED(opening->GetResults(&several)))
        return pathsOf(*several.get());
    Reference<IShellItem> item;
    if (FAILED(dialog.GetResult(&item)))
        return {};
    return {pathOf(*item.get())};
}

} // namespace

/// Leaves the classic dialog in use when there is no other, as on a thread of the free-threaded kind.
void CFileDialog::makeShellDialog()
{
    const HRESULT started = ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    if (FAILED(started))
        return;
    m_data->startsCom = true;
    const CLSID& kind = m_bOpenFileDialog ? CLSID_FileOpenDialog : CLSID_FileSaveDialog;
    if (FAILED(::CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog,
                                  reinterpret_cast<void**>(&m_pIFileDialog))))
        return;
    m_bVistaStyle = TRUE;
    m_pIFileDialog->QueryInterface(IID_IFileDialogCustomize,
                                   reinterpret_cast<void**>(&m_pIFileDialogCustomize));
}

INT_PTR CFileDialog::showShellDialog(HWND owner)
{
    ApplyOFNToShellDialog();
    struct Advice
    {
        explicit Advice(CFileDialog& fileDialog)
            : dialog(*fileDialog.m_pIFileDialog)
            , given(SUCCEEDED(dialog.Advise(&fileDialog.m_xFileDialogEvents, &cookie)))
        {
        }
        ~Advice()
        {
            if (given)
                dialog.Unadvise(cookie);
        }
        IFileDialog& dialog;
        DWORD cookie = 0;
        bool given;
    } const advice(*this);

    afxdetail::CallOut showing;
    m_data->callDepth = afxdetail::threadState().callOuts;
    const HRESULT answer = m_pIFileDialog->Show(owner);
    // A dialog whose window was destroyed seems to succeed, but no file was accepted.
    const bool accepted = SUCCEEDED(answer) && m_data->stage == Data::Stage::Accepted;
    showing.finish();
    return accepted && m_data->stored ? IDOK : IDCANCEL;
}

/// On this path there is no child of ours; the object is tied to the dialog's own window without getting its
/// messages, so that handlers have a window to go by.
void CFileDialog::standForShellDialog()
{
    Reference<IOleWindow> ole;
    HWND wnd = nullptr;
    if (m_hWnd || FAILED(m_pIFileDialog->QueryInterface(IID_IOleWindow, reinterpret_cast<void**>(&ole))) ||
        FAILED(ole->GetWindow(&wnd)) || !wnd)
        return;
    Attach(wnd);
}

void CFileDialog::ApplyOFNToShellDialog()
{
    ASSERT(m_bVistaStyle);
    if (!m_bVistaStyle)
        return;
    FILEOPENDIALOGOPTIONS options = 0;
    m_pIFileDialog->GetOptions(&options);
    m_pIFileDialog->SetOptions((options & ~kSharedFlags) | (m_ofn.Flags & kSharedFlags) |
                               FOS_FORCEFILESYSTEM);
    if (m_ofn.lpstrTitle)
        m_pIFileDialog->SetTitle(m_ofn.lpstrTitle);
    if (m_ofn.lpstrDefExt)
        m_pIFileDialog->SetDefaultExtension(m_ofn.lpstrDefExt);

    const std::vector<afxdetail::FilterPair> pairs = afxdetail::filterPairs(m_ofn.lpstrFilter);
    if (!pairs.empty() && !m_data->typesGiven) {
        std::vector<COMDLG_FILTERSPEC> types;
        for (const afxdetail::FilterPair& pair : pairs)
            types.push_back({pair.description, pair.patterns});
        m_pIFileDialog->SetFileTypes(static_cast<UINT>(types.size()), types.data());
        m_data->typesGiven = true;
    }
    if (m_ofn.nFilterIndex > 0)
        m_pIFileDialog->SetFileTypeIndex(m_ofn.nFilterIndex);
    applyFolderAndName();
}

/// A folder in the file name goes before the initial folder, unless it is gone.
void CFileDialog::applyFolderAndName()
{
    const std::wstring file = m_ofn.lpstrFile ? m_ofn.lpstrFile : L"";
    const afxdetail::PathParts parts = afxdetail::splitPath(file);
    if (!beginIn(*m_pIFileDialog, std::wstring(parts.folder)) && m_ofn.lpstrInitialDir)
        beginIn(*m_pIFileDialog, m_ofn.lpstrInitialDir);
    if (!parts.name.empty())
        m_pIFileDialog->SetFileName(std::wstring(parts.name).c_str());
}

void CFileDialog::UpdateOFNFromShellDialog()
{
    ASSERT(m_bVistaStyle);
    if (!m_bVistaStyle)
        return;
    UINT type = 0;
    if (SUCCEEDED(m_pIFileDialog->GetFileTypeIndex(&type)))
        m_ofn.nFilterIndex = type;
    FILEOPENDIALOGOPTIONS options = 0;
    if (SUCCEEDED(m_pIFileDialog->GetOptions(&options)))
        m_ofn.Flags = (m_ofn.Flags & ~kSharedFlags) | (options & kSharedFlags);
    m_data->stored = storePaths();
}

/// False when there is no file, and when the host's buffer is too small; it then holds the length needed.
bool CFileDialog::storePaths()
{
    afxdetail::FileList list =
        afxdetail::packPaths(isAsking() ? std::vector<std::wstring>{static_cast<LPCTSTR>(GetPathName())}
                                        : resultsOf(*m_pIFileDialog));
    if (list.text.empty() || !m_ofn.lpstrFile)
        return false;
    if (m_ofn.Flags & OFN_ALLOWMULTISELECT)
        list.endAsAList();
    if (m_ofn.lpstrFile == m_data->file.data() && list.text.size() > m_data->file.size()) {
        m_data->file.resize(list.text.size());
        m_ofn.lpstrFile = m_data->file.data();
        m_ofn.nMaxFile = static_cast<DWORD>(m_data->file.size());
    }
    if (list.text.size() > m_ofn.nMaxFile) {
        m_ofn.lpstrFile[0] = static_cast<wchar_t>(std::min<std::size_t>(list.text.size(), 0xFFFF));
        if (m_ofn.nMaxFile > 1)
            m_ofn.lpstrFile[1] = L'\0';
        return false;
    }
    std::copy(list.text.begin(), list.text.end(), m_ofn.lpstrFile);
    m_ofn.nFileOffset = static_cast<WORD>(list.nameOffset);
    m_ofn.nFileExtension = static_cast<WORD>(list.extensionOffset);
    if (m_ofn.lpstrFileTitle && m_ofn.nMaxFileTitle > 0)
        ::lstrcpynW(m_ofn.lpstrFileTitle, m_ofn.lpstrFile + list.nameOffset,
                    static_cast<int>(m_ofn.nMaxFileTitle));
    return true;
}

IFileOpenDialog* CFileDialog::GetIFileOpenDialog()
{
    ASSERT(m_bVistaStyle);
    IFileOpenDialog* dialog = nullptr;
    if (m_pIFileDialog && m_bOpenFileDialog)
        m_pIFileDialog->QueryInterface(IID_IFileOpenDialog, reinterpret_cast<void**>(&dialog));
    return dialog;
}

IFileSaveDialog* CFileDialog::GetIFileSaveDialog()
{
    ASSERT(m_bVistaStyle);
    IFileSaveDialog* dialog = nullptr;
    if (m_pIFileDialog && !m_bOpenFileDialog)
        m_pIFileDialog->QueryInterface(IID_IFileSaveDialog, reinterpret_cast<void**>(&dialog));
    return dialog;
}

IFileDialogCustomize* CFileDialog::GetIFileDialogCustomize()
{
    ASSERT(m_bVistaStyle);
    if (m_pIFileDialogCustomize)
        m_pIFileDialogCustomize->AddRef();
    return m_pIFileDialogCustomize;
}

// The dialog's own controls

void CFileDialog::SetControlText(int id, LPCSTR text)
{
    SetControlText(id, static_cast<LPCTSTR>(CString(text)));
}

void CFileDialog::SetControlText(int id, const wchar_t* text)
{
    ASSERT(m_ofn.Flags & OFN_EXPLORER);
    if (!m_bVistaStyle)
        ::SendMessageW(dialogWindow(), CDM_SETCONTROLTEXT, static_cast<WPARAM>(id),
                       reinterpret_cast<LPARAM>(text));
    else if (id == IDOK)
        m_pIFileDialog->SetOkButtonLabel(text);
    else if (id == stc3)
        m_pIFileDialog->SetFileNameLabel(text);
    else
        AfxThrowNotSupportedException();
}

void CFileDialog::HideControl(int id)
{
    ASSERT(m_ofn.Flags & OFN_EXPLORER);
    if (m_bVistaStyle)
        AfxThrowNotSupportedException();
    ::SendMessageW(dialogWindow(), CDM_HIDECONTROL, static_cast<WPARAM>(id), 0);
}

void CFileDialog::SetDefExt(LPCSTR extension)
{
    ASSERT(m_ofn.Flags & OFN_EXPLORER);
    const CString wide(extension);
    if (m_bVistaStyle)
        m_pIFileDialog->SetDefaultExtension(wide);
    else
        ::SendMessageW(dialogWindow(), CDM_SETDEFEXT, 0,
                       reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(wide)));
}
