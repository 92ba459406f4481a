/// Asks the user for a folder, a file or several files in one call.
///
///     std::wstring path = L"untitled.txt";
///     const std::wstring filter = L"Text (*.txt)|*.txt|All files|*.*|";
///     if (BrowseForFile(this, L"Save the notes", lastFolder, L".txt", filter, path, 0, 1))
///         save(path);
///
/// The dialogs begin in the nearest folder that exists, choose the filter's entry for the default extension,
/// and leave the working directory as it is. Cancelled, and when a dialog fails, they change nothing.
/// FilePicker.h has the same for std::filesystem, and without a limit to the length of a folder's path.
#pragma once

#include <ovoui/export.h>

#include <afxwin.h>

#include <string>
#include <vector>

/// A folder. `path` is where to begin, and becomes the folder that was chosen; its buffer must hold MAX_PATH
/// characters. `title` says what is asked; `pParent` (may be null) is disabled meanwhile. Gives 1, or 0 when
/// no folder was chosen.
OVOUI_API int BrowseForDir(CWnd* pParent, const std::wstring& title, wchar_t* path);

/// One file. `path` is the name to begin with (its first 259 characters) and becomes the full path of the
/// file that was chosen. `defExt` (may be null) has its period, as in ".txt"; `filter` has pairs of a
/// description and patterns, each ended by "|". The entry with the pattern "*" and `defExt`, in the same
/// case, is chosen to begin with. With `mustExist` only existing files are taken; with `save` the dialog is
/// one for saving, which asks before a file is replaced. An empty `title` gives the system's.
/// `pParent` may be null. The dialog begins in `initialDir`, or in the nearest folder above it that exists.
OVOUI_API bool BrowseForFile(CWnd* pParent, const std::wstring& title, const std::wstring& initialDir,
                             const wchar_t* defExt, const std::wstring& filter, std::wstring& path,
                             int mustExist, int save);

/// One or more files that exist, put into `paths` in the dialog's order. `pParent`, `initialDir`, `defExt`
/// and `filter` as above, but the case of `defExt` does not count, and a pattern counts only when "|" or ";"
/// follows. The folder and the names together have at most 32766 characters; a larger choice counts as
/// cancelled. `title` may be null.
OVOUI_API bool BrowseForFiles(CWnd* pParent, const wchar_t* title, const std::wstring& initialDir,
                              const std::wstring& defExt, const std::wstring& filter,
                              std::vector<std::wstring>& paths);
