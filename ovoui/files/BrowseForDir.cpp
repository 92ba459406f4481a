#include <ovoui/files/Browse.h>

#include <ovoui/files/OleUse.h>
#include <ovoui/files/ShellPaths.h>

#include <shlobj.h>

#include <algorithm>

namespace
{

/// An item of the shell, freed with its allocator.
class ItemIds
{
public:
    explicit ItemIds(LPITEMIDLIST ids)
        : m_ids(ids)
    {
    }
    ~ItemIds()
    {
        LPMALLOC allocator = nullptr;
        if (!m_ids || FAILED(::SHGetMalloc(&allocator)))
            return;
        allocator->Free(m_ids);
        allocator->Release();
    }
    ItemIds(const ItemIds&) = delete;
    ItemIds& operator=(const ItemIds&) = delete;

    /// False for what is not in the file system.
    bool path(wchar_t (&buffer)[MAX_PATH]) const { return m_ids && ::SHGetPathFromIDListW(m_ids, buffer); }

private:
    LPITEMIDLIST m_ids;
};

/// Shows the folder to begin in, opened. `start` is its path.
int CALLBACK beginInFolder(HWND dialog, UINT message, LPARAM, LPARAM start)
{
    if (message == BFFM_INITIALIZED && start) {
        ::SendMessageW(dialog, BFFM_SETEXPANDED, TRUE, start);
        ::SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, start);
    }
    return 0;
}

} // namespace

int BrowseForDir(CWnd* pParent, const std::wstring& title, wchar_t* path)
{
    const ovoui::OleUse ole; // the dialog needs it
    const std::wstring start = ovoui::folderToBeginIn(path);
    wchar_t name[MAX_PATH]{};
    BROWSEINFOW question{};
    question.hwndOwner = pParent->GetSafeHwnd();
    question.pszDisplayName = name;
    question.lpszTitle = title.c_str();
    question.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
    question.lpfn = &beginInFolder;
    question.lParam = reinterpret_cast<LPARAM>(start.c_str());

    const ItemIds chosen(::SHBrowseForFolderW(&question));
    wchar_t folder[MAX_PATH]{};
    if (!chosen.path(folder))
        return 0;
    std::copy_n(folder, MAX_PATH, path);
    return 1;
}
