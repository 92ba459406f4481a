#include <ovoui/files/Browse.h>

#include <ovoui/files/AskedFiles.h>
#include <ovoui/files/ShellPaths.h>
#include <ovoui/files/core/AsciiCase.h>
#include <ovoui/files/core/FilterChoice.h>

#include <cwchar>

namespace
{

constexpr std::size_t kLongestName = 259;
constexpr DWORD kRoomForFiles = 32767;

bool sameButForCase(wchar_t a, wchar_t b)
{
    if (ovoui::isAscii(a) && ovoui::isAscii(b)) // the C runtime takes a hundred times as long
        return ovoui::isSameAsciiLetter(a, b);
    return ::_wcsnicmp(&a, &b, 1) == 0;
}

std::wstring textOf(const wchar_t* text)
{
    return text ? text : L"";
}

} // namespace

bool BrowseForFile(CWnd* pParent, const std::wstring& title, const std::wstring& initialDir,
                   const wchar_t* defExt, const std::wstring& filter, std::wstring& path, int mustExist,
                   int save)
{
    const DWORD flags = ovoui::dialogFlags({.mustExist = mustExist != 0, .saves = save != 0});
    CFileDialog dialog(!save, defExt, path.substr(0, kLongestName).c_str(), flags, (filter + L'|').c_str(),
                       pParent, 0, TRUE);
    const ovoui::Beginning beginning{title, ovoui::existingFolderNear(initialDir),
                                     ovoui::filterEntryOf(filter, textOf(defExt), ovoui::kForOneFile)};
    ovoui::begin(dialog, beginning);
    if (dialog.DoModal() != IDOK)
        return false;
    path = dialog.GetPathName().GetString();
    return true;
}

bool BrowseForFiles(CWnd* pParent, const wchar_t* title, const std::wstring& initialDir,
                    const std::wstring& defExt, const std::wstring& filter, std::vector<std::wstring>& paths)
{
    const DWORD flags = ovoui::dialogFlags({.mustExist = true, .several = true});
    CFileDialog dialog(TRUE, defExt.c_str(), nullptr, flags, (filter + L'|').c_str(), pParent, 0, TRUE);
    std::vector<wchar_t> chosen(kRoomForFiles);
    dialog.GetOFN().lpstrFile = chosen.data();
    dialog.GetOFN().nMaxFile = kRoomForFiles;
    const ovoui::Beginning beginning{textOf(title), ovoui::existingFolderNear(initialDir),
                                     ovoui::filterEntryOf(filter, defExt, ovoui::forFiles(&sameButForCase))};
    ovoui::begin(dialog, beginning);
    if (dialog.DoModal() != IDOK)
        return false;
    paths = ovoui::chosenFiles(dialog);
    return true;
}
