#include <ovoui/files/FilePicker.h>

#include <ovoui/files/AskedFiles.h>
#include <ovoui/files/Browse.h>
#include <ovoui/files/ShellPaths.h>
#include <ovoui/files/core/FileTypes.h>

#include <algorithm>

namespace fs = std::filesystem;

namespace
{

constexpr std::size_t kRoomForFiles = 0x40000; ///< in the classic dialog, whose buffer does not grow

using ovoui::FileWish;

constexpr FileWish kOpen{.mustExist = true};
constexpr FileWish kOpenSeveral{.mustExist = true, .several = true};
constexpr FileWish kSave{.saves = true};

/// The texts that the dialog refers to stand here while it is shown.
class Picker : public CFileDialog
{
public:
    Picker(const FileWish& wish, const FileQuestion& question)
        : CFileDialog(!wish.saves, nullptr, question.name.c_str(), ovoui::dialogFlags(wish), nullptr,
                      question.parent, 0, TRUE)
        , m_beginning{question.title, ovoui::existingFolderNear(question.folder.wstring()),
                      ovoui::typeWith(question.types, question.extension)}
        , m_types(ovoui::filterTextOf(question.types))
        , m_extension(ovoui::withoutPeriod(question.extension))
    {
        ovoui::begin(*this, m_beginning);
        if (!question.types.empty())
            m_ofn.lpstrFilter = m_types.c_str();
        if (!question.extension.empty())
            m_ofn.lpstrDefExt = m_extension.c_str();
        if (!isNewStyle() && wish.several) {
            m_room = question.name;
            m_room.resize(std::max(kRoomForFiles, m_room.size() + 1));
            m_ofn.lpstrFile = m_room.data();
            m_ofn.nMaxFile = static_cast<DWORD>(m_room.size());
        }
    }

    bool isNewStyle() const { return m_bVistaStyle != FALSE; }

    /// New style only. False when the dialog does not take it: it would give files.
    bool askForFolders()
    {
        FILEOPENDIALOGOPTIONS options{};
        return SUCCEEDED(m_pIFileDialog->GetOptions(&options)) &&
               SUCCEEDED(m_pIFileDialog->SetOptions(options | FOS_PICKFOLDERS));
    }

    /// Empty when the user cancels.
    std::vector<fs::path> paths()
    {
        if (DoModal() != IDOK)
            return {};
        const std::vector<std::wstring> chosen = ovoui::chosenFiles(*this);
        return {chosen.begin(), chosen.end()};
    }

private:
    const ovoui::Beginning m_beginning;
    std::wstring m_types;
    std::wstring m_extension;
    std::wstring m_room;
};

std::optional<fs::path> firstOf(const std::vector<fs::path>& paths)
{
    return paths.empty() ? std::nullopt : std::optional(paths.front());
}

/// Without a new-style dialog for folders. The older one would have no owner where no parent is given, and
/// leave the main window enabled.
std::vector<fs::path> browseForFolder(const FolderQuestion& question)
{
    wchar_t path[MAX_PATH]{};
    ::lstrcpynW(path, question.folder.c_str(), MAX_PATH);
    if (BrowseForDir(CWnd::GetSafeOwner(question.parent), question.title, path))
        return {fs::path(path)};
    return {};
}

std::vector<fs::path> foldersFor(const FileWish& wish, const FolderQuestion& question)
{
    Picker picker(wish, {.parent = question.parent, .title = question.title, .folder = question.folder});
    if (!picker.isNewStyle() || !picker.askForFolders())
        return browseForFolder(question);
    return picker.paths();
}

} // namespace

std::optional<fs::path> pickFile(const FileQuestion& question)
{
    return firstOf(Picker(kOpen, question).paths());
}

std::vector<fs::path> pickFiles(const FileQuestion& question)
{
    return Picker(kOpenSeveral, question).paths();
}

std::optional<fs::path> pickFileToSave(const FileQuestion& question)
{
    return firstOf(Picker(kSave, question).paths());
}

std::optional<fs::path> pickFolder(const FolderQuestion& question)
{
    return firstOf(foldersFor(kOpen, question));
}

std::vector<fs::path> pickFolders(const FolderQuestion& question)
{
    return foldersFor(kOpenSeveral, question);
}
