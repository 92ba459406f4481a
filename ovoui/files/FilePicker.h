/// Asks the user for files and folders, for std::filesystem.
///
///     if (const auto picture = pickFile({.parent = this, .types = {{L"Pictures", {L"*.png", L"*.jpg"}}}}))
///         show(*picture);
#pragma once

#include <ovoui/export.h>
#include <ovoui/files/FileType.h>

#include <afxwin.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// What is asked. Everything may be left out.
struct FileQuestion
{
    CWnd* parent = nullptr;         ///< without one the main window
    std::wstring title{};           ///< empty: the system's
    std::filesystem::path folder{}; ///< to begin in, or the nearest one that exists
    std::wstring name{};            ///< to begin with; of any length
    std::vector<FileType> types{};
    std::wstring extension{}; ///< as ".png": chooses a type to begin with, and is added to names without one
};

// As the browse functions: they leave the working directory as it is, and nothing comes back when the user
// cancels. Paths may have any length that the system's dialog can give.

OVOUI_API std::optional<std::filesystem::path> pickFile(const FileQuestion& question); ///< One that exists.
OVOUI_API std::vector<std::filesystem::path>
pickFiles(const FileQuestion& question); ///< At least one, which exist.
/// Where to save; the user is asked before a file is replaced.
OVOUI_API std::optional<std::filesystem::path> pickFileToSave(const FileQuestion& question);

struct FolderQuestion
{
    CWnd* parent = nullptr;
    std::wstring title{};
    std::filesystem::path folder{};
};

/// In the new-style dialog; where there is none, in that of BrowseForDir.
OVOUI_API std::optional<std::filesystem::path> pickFolder(const FolderQuestion& question);
/// Several; where there is no new-style dialog, one.
OVOUI_API std::vector<std::filesystem::path> pickFolders(const FolderQuestion& question);
