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
    std::vector<FileType> types{};  ///< to choose from, in this order; none: all files
    std::wstring extension{}; ///< as ".png": chooses a type to begin with, and is added to names without one
};

/// Asks for one file that exists, as `question` says; nothing when the user cancels. As all functions here it
/// leaves the working directory as it is, and the path may have any length that the system's dialog can give.
OVOUI_API std::optional<std::filesystem::path> pickFile(const FileQuestion& question);
/// Asks for at least one file, all of which exist, as `question` says; none when the user cancels.
OVOUI_API std::vector<std::filesystem::path> pickFiles(const FileQuestion& question);
/// Asks where to save, as `question` says; the user is asked before a file is replaced. Nothing when the user
/// cancels.
OVOUI_API std::optional<std::filesystem::path> pickFileToSave(const FileQuestion& question);

/// What is asked about a folder. Everything may be left out.
struct FolderQuestion
{
    CWnd* parent = nullptr;         ///< without one the main window
    std::wstring title{};           ///< empty: the system's
    std::filesystem::path folder{}; ///< to begin in, or the nearest one that exists
};

/// Asks for a folder, as `question` says, in the new-style dialog; where there is none, in that of
/// BrowseForDir. Nothing when the user cancels.
OVOUI_API std::optional<std::filesystem::path> pickFolder(const FolderQuestion& question);
/// Asks for several, as `question` says; where there is no new-style dialog, for one. None when the user
/// cancels.
OVOUI_API std::vector<std::filesystem::path> pickFolders(const FolderQuestion& question);
