// CFileDialog: making it, asking the user, and the answer.
#include "filedialogdata.h"

#include "core/filefilter.h"
#include "core/filelist.h"

#include <detail/threadstate.h>

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

namespace
{

// Help ids of the two dialogs
constexpr UINT kHelpOnOpening = 28676;
constexpr UINT kHelpOnSaving = 28677;

/// The dialog's text for a question that takes a buffer and gives the length with the terminating zero.
CString askedText(HWND dialog, UINT question)
{
    CString text;
    const auto length = static_cast<int>(::SendMessageW(dialog, question, 0, 0));
    if (length <= 1)
        return text;
    ::SendMessageW(dialog, question, static_cast<WPARAM>(length),
                   reinterpret_cast<LPARAM>(text.GetBuffer(length)));
    text.ReleaseBuffer();
    return text;
}

afxdetail::ListStyle listStyleOf(DWORD flags, BOOL vistaStyle)
{
    if (!(flags & OFN_ALLOWMULTISELECT))
        return afxdetail::ListStyle::OneFile;
    return vistaStyle || (flags & OFN_EXPLORER) ? afxdetail::ListStyle::Zeros : afxdetail::ListStyle::Blanks;
}

CString textOf(std::wstring_view text)
{
    return CString(text.data(), static_cast<int>(text.size()));
}

/// Of several files of the old style the first one's name; empty for another kind of answer.
CString firstNameOfBlanks(const OPENFILENAME& ofn)
{
    if (ofn.nFileOffset == 0 || ofn.lpstrFile[ofn.nFileOffset - 1] != L' ')
        return CString();
    const std::wstring_view names(ofn.lpstrFile + ofn.nFileOffset);
    return textOf(names.substr(0, names.find(L' ')));
}

/// The focus goes back to the control that had it, which the system does not do for every kind of owner.
class FocusKeeper
{
public:
    FocusKeeper()
        : m_active(::GetActiveWindow())
        , m_focus(::GetFocus())
    {
    }
    ~FocusKeeper()
    {
        // Wine's newer dialog leaves a hidden window active.
        const HWND active = ::GetActiveWindow();
        if (active != m_active && !::IsWindowVisible(active) && ::IsWindowVisible(m_active))
            ::SetActiveWindow(m_active);
        if (::IsWindow(m_focus) && ::IsWindowEnabled(m_focus) && ::IsChild(::GetActiveWindow(), m_focus))
            ::SetFocus(m_focus);
    }
    FocusKeeper(const FocusKeeper&) = delete;
    FocusKeeper& operator=(const FocusKeeper&) = delete;

private:
    HWND m_active;
    HWND m_focus;
};

} // namespace

bool afxdetail::failedDuring(int callDepth)
{
    const afxdetail::ThreadState& state = afxdetail::threadState();
    return state.callOuts == callDepth && state.pendingException;
}

CFileDialog::CFileDialog(BOOL open, LPCTSTR defaultExtension, LPCTSTR fileName, DWORD flags, LPCTSTR filter,
                         CWnd* parent, DWORD size, BOOL vistaStyle)
    : CCommonDialog(parent)
    , m_bOpenFileDialog(open)
    , m_data(std::make_unique<Data>())
{
    m_nIDHelp = open ? kHelpOnOpening : kHelpOnSaving;

    const std::wstring_view name = fileName ? fileName : L"";
    m_data->file.resize(std::max<std::size_t>(_MAX_PATH, name.size() + 1));
    std::copy(name.begin(), name.end(), m_data->file.begin());

    m_ofn.lStructSize = size ? size : sizeof m_ofn;
    m_ofn.hInstance = AfxGetResourceHandle();
    m_ofn.Flags = flags | OFN_EXPLORER | OFN_ENABLEHOOK;
    m_ofn.lpstrFile = m_data->file.data();
    m_ofn.nMaxFile = static_cast<DWORD>(m_data->file.size());
    m_ofn.lpstrFileTitle = m_data->title;
    m_ofn.nMaxFileTitle = static_cast<DWORD>(std::size(m_data->title));
    if (defaultExtension)
        m_ofn.lpstrDefExt = (m_data->defaultExtension = defaultExtension).c_str();
    if (filter)
        m_ofn.lpstrFilter = (m_data->filter = afxdetail::zeroTerminatedFilter(filter)).c_str();
    if (vistaStyle)
        makeShellDialog();
}

CFileDialog::~CFileDialog()
{
    if (m_pIFileDialogCustomize)
        m_pIFileDialogCustomize->Release();
    if (m_pIFileDialog)
        m_pIFileDialog->Release();
    if (m_data->startsCom)
        ::CoUninitialize();
}

INT_PTR CFileDialog::DoModal()
{
    ASSERT(m_data->stage != Data::Stage::Open); // a dialog cannot be shown twice at once
    if (m_data->stage == Data::Stage::Open || m_data->stage == Data::Stage::Accepting)
        return IDCANCEL;

    const FocusKeeper focus;
    m_ofn.hwndOwner = PreModal();
    struct Undo
    {
        CFileDialog& dialog;
        ~Undo()
        {
            if (dialog.m_hWnd)
                dialog.Detach();
            if (dialog.m_data->stage != Data::Stage::Accepted)
                dialog.m_data->stage = Data::Stage::Closed;
            dialog.PostModal();
        }
    } const undo{*this};
    m_data->stage = Data::Stage::Open;
    m_data->initDone = false;
    m_data->stored = false;
    const INT_PTR result =
        m_bVistaStyle ? showShellDialog(m_ofn.hwndOwner) : showClassicDialog(m_ofn.hwndOwner);
    if (result == IDOK)
        m_data->stage = Data::Stage::Accepted;
    return result;
}

bool CFileDialog::isAsking() const
{
    return m_data->stage == Data::Stage::Open && m_hWnd;
}

/// With OFN_EXPLORER the object's window is a child of the dialog.
HWND CFileDialog::dialogWindow() const
{
    return (m_ofn.Flags & OFN_EXPLORER) ? ::GetParent(m_hWnd) : m_hWnd;
}

// The answer

CString CFileDialog::GetPathName() const
{
    if (!isAsking())
        return m_ofn.lpstrFile;
    if (!m_bVistaStyle)
        return (m_ofn.Flags & OFN_EXPLORER) ? askedText(dialogWindow(), CDM_GETFILEPATH)
                                            : CString(m_ofn.lpstrFile);
    return textOf(
        afxdetail::joinPath(static_cast<LPCTSTR>(GetFolderPath()), static_cast<LPCTSTR>(GetFileName())));
}

LPCTSTR CFileDialog::nameInBuffer() const
{
    const std::wstring_view path(m_ofn.lpstrFile);
    if (m_ofn.nFileOffset > path.size()) // several files: the first name stands behind the folder
        return m_ofn.lpstrFile + m_ofn.nFileOffset;
    return m_ofn.lpstrFile + (path.size() - afxdetail::splitPath(path).name.size());
}

CString CFileDialog::GetFileName() const
{
    if (listStyleOf(m_ofn.Flags, m_bVistaStyle) == afxdetail::ListStyle::Blanks)
        if (const CString first = firstNameOfBlanks(m_ofn); !first.IsEmpty())
            return first;
    if (!isAsking())
        return nameInBuffer();
    if (!m_bVistaStyle)
        return (m_ofn.Flags & OFN_EXPLORER) ? askedText(dialogWindow(), CDM_GETSPEC)
                                            : CString(nameInBuffer());
    LPWSTR name = nullptr;
    if (FAILED(m_pIFileDialog->GetFileName(&name)) || !name)
        return CString();
    const CString text(name);
    ::CoTaskMemFree(name);
    return text;
}

CString CFileDialog::GetFileExt() const
{
    const CString name = GetFileName();
    const std::wstring_view text(static_cast<LPCTSTR>(name));
    return textOf(text.substr(afxdetail::extensionOffset(text)));
}

CString CFileDialog::GetFileTitle() const
{
    const CString name = GetFileName();
    const std::wstring_view text(static_cast<LPCTSTR>(name));
    const std::size_t extension = afxdetail::extensionOffset(text);
    const bool period = extension > 0 && text[extension - 1] == L'.';
    return textOf(text.substr(0, period ? extension - 1 : text.size()));
}

BOOL CFileDialog::GetReadOnlyPref() const
{
    if (m_bVistaStyle)
        AfxThrowNotSupportedException();
    return (m_ofn.Flags & OFN_READONLY) ? TRUE : FALSE;
}

POSITION CFileDialog::GetStartPosition() const
{
    return reinterpret_cast<POSITION>(m_ofn.lpstrFile && *m_ofn.lpstrFile ? m_ofn.lpstrFile : nullptr);
}

CString CFileDialog::GetNextPathName(POSITION& position) const
{
    ASSERT(position);
    const auto* place = reinterpret_cast<const wchar_t*>(position);
    if (!place)
        return CString();
    const std::wstring path =
        afxdetail::nextPath(m_ofn.lpstrFile, place, listStyleOf(m_ofn.Flags, m_bVistaStyle));
    position = reinterpret_cast<POSITION>(const_cast<wchar_t*>(place));
    return textOf(path);
}

CString CFileDialog::GetFolderPath() const
{
    ASSERT(m_hWnd);                     // only while the dialog is shown
    ASSERT(m_ofn.Flags & OFN_EXPLORER); // the others do not tell it
    if (!m_hWnd)
        return CString();
    if (!m_bVistaStyle)
        return askedText(dialogWindow(), CDM_GETFOLDERPATH);
    IShellItem* folder = nullptr;
    if (FAILED(m_pIFileDialog->GetFolder(&folder)))
        return CString();
    LPWSTR path = nullptr;
    folder->GetDisplayName(SIGDN_FILESYSPATH, &path); // null for a folder that is not in the file system
    folder->Release();
    const CString text(path);
    ::CoTaskMemFree(path);
    return text;
}

// The handlers that a derived class overrides

BOOL CFileDialog::OnFileNameOK()
{
    return FALSE;
}

UINT CFileDialog::OnShareViolation(LPCTSTR)
{
    return OFN_SHAREWARN;
}

void CFileDialog::OnLBSelChangedNotify(UINT, UINT, UINT) {}
void CFileDialog::OnInitDone() {}
void CFileDialog::OnFileNameChange() {}
void CFileDialog::OnFolderChange() {}
void CFileDialog::OnTypeChange() {}
void CFileDialog::OnItemSelected(DWORD, DWORD) {}
void CFileDialog::OnButtonClicked(DWORD) {}
void CFileDialog::OnCheckButtonToggled(DWORD, BOOL) {}
void CFileDialog::OnControlActivating(DWORD) {}
