// Internal to the file dialog: chosen files as they stand in the buffer of an OPENFILENAME.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace afxdetail
{

/// The folder without a separator at its end unless it is a root, and the name.
struct PathParts
{
    std::wstring_view folder;
    std::wstring_view name;
};
PathParts splitPath(std::wstring_view path);

/// The file in the folder. A full path as the name stays as it is.
std::wstring joinPath(std::wstring_view folder, std::wstring_view name);

/// Where the extension begins, behind its period; the length when there is none.
std::size_t extensionOffset(std::wstring_view path);

struct FileList
{
    std::wstring text;               ///< with the zeros that belong to it, the last one included
    std::size_t nameOffset = 0;      ///< of the first name
    std::size_t extensionOffset = 0; ///< 0: none, or several files

    /// Where several files may be chosen, an empty text follows one file too: what a buffer holds behind its
    /// path is no further name.
    void endAsAList();
};

/// One path as it is. Of several the folder, the names, and an empty text, each ended by a zero; a file of
/// another folder than the first one keeps its full path.
FileList packPaths(const std::vector<std::wstring>& paths);

/// What stands between the folder and the names of several files.
enum class ListStyle
{
    OneFile, ///< nothing: the text is one path
    Zeros,   ///< as packPaths makes it
    Blanks   ///< of the dialogs without OFN_EXPLORER, which write names with blanks in their short form
};

/// The path at a place of such a text; the place moves on, and becomes null behind the last file. `begin` is
/// where the text begins.
std::wstring nextPath(const wchar_t* begin, const wchar_t*& place, ListStyle style);

} // namespace afxdetail
