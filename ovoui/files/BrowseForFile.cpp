#include <ovoui/files/Browse.h>

#include <ovoui/files/ShellPaths.h>
#include <ovoui/files/core/FilterChoice.h>

#include <afxdlgs.h>

#include <cwchar>

namespace
{

constexpr DWORD kFlags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST | OFN_SHAREAWARE;
constexpr std::size_t kLongestName = 259;
constexpr DWORD kRoomForFiles = 32767;

bool caseCounts(wchar_t, wchar_t)
{
    return false;
}

bool isAscii(wchar_t character)
{
    return character < 0x80;
}

bool sameButForCase(wchar_t a, wchar_t b)
{
    if (isAscii(a) && isAscii(b)) // the C runtime takes a hundred times as long
        return (a | 0x20) == (b | 0x20) && (a | 0x20) >= L'a' && (a | 0x20) <= L'z';
    return ::_wcsnicmp(&a, &b, 1) == 0;
}

constexpr ovoui::FilterRules kForOneFile{true, &caseCounts};
constexpr ovoui::FilterRules kForFiles{false, &sameButForCase};

/// Sets what is not null and not empty. The texts must stay while the dialog is shown.
void begin(OPENFILENAME& ofn, int filterEntry, const std::wstring& folder, const wchar_t* title)
{
    if (filterEntry > 0)
        ofn.nFilterIndex = static_cast<DWORD>(filterEntry);
    if (!folder.empty())
        ofn.lpstrInitialDir = folder.c_str();
    if (title && *title)
        ofn.lpstrTitle = title;
}

} // namespace

bool BrowseForFile(CWnd* pParent, const std::wstring& title, const std::wstring& initialDir,
                   const wchar_t* defExt, const std::wstring& filter, std::wstring& path, int mustExist,
                   int save)
{
    const DWORD flags = kFlags | (mustExist ? OFN_FILEMUSTEXIST : 0) | (save ? OFN_OVERWRITEPROMPT : 0);
    CFileDialog dialog(!save, defExt, path.substr(0, kLongestName).c_str(), flags, (filter + L'|').c_str(),
                       pParent, 0, TRUE);
    const std::wstring folder = ovoui::existingFolderNear(initialDir);
    begin(dialog.GetOFN(), ovoui::filterEntryOf(filter, defExt ? defExt : L"", kForOneFile), folder,
          title.c_str());
    if (dialog.DoModal() != IDOK)
        return false;
    path = dialog.GetPathName().GetString();
    return true;
}

bool BrowseForFiles(CWnd* pParent, const wchar_t* title, const std::wstring& initialDir,
                    const std::wstring& defExt, const std::wstring& filter, std::vector<std::wstring>& paths)
{
    constexpr DWORD flags = kFlags | OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT | OFN_EXPLORER;
    CFileDialog dialog(TRUE, defExt.c_str(), nullptr, flags, (filter + L'|').c_str(), pParent, 0, TRUE);
    std::vector<wchar_t> chosen(kRoomForFiles);
    dialog.GetOFN().lpstrFile = chosen.data();
    dialog.GetOFN().nMaxFile = kRoomForFiles;
    const std::wstring folder = ovoui::existingFolderNear(initialDir);
    begin(dialog.GetOFN(), ovoui::filterEntryOf(filter, defExt, kForFiles), folder, title);
    if (dialog.DoModal() != IDOK)
        return false;
    std::vector<std::wstring> result;
    for (POSITION position = dialog.GetStartPosition(); position;)
        result.emplace_back(dialog.GetNextPathName(position).GetString());
    paths.swap(result);
    return true;
}
