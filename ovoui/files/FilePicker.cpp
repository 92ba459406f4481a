#include <ovoui/files/FilePicker.h>

#include <ovoui/files/Browse.h>
#include <ovoui/files/ShellPaths.h>
#include <ovoui/files/core/FileTypes.h>

#include <afxdlgs.h>

namespace fs = std::filesystem;

namespace
{

constexpr DWORD kFlags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST | OFN_SHAREAWARE;
constexpr DWORD kRoomForFiles = 0x40000; ///< in the classic dialog, whose buffer does not grow

enum class Purpose
{
    Open,
    OpenSeveral,
    Save
};

/// The texts that the dialog refers to stand here while it is shown.
class Picker : public CFileDialog
{
public:
    Picker(Purpose purpose, const FileQuestion& question)
        : CFileDialog(purpose != Purpose::Save, nullptr, question.name.c_str(), flagsOf(purpose), nullptr,
                      question.parent, 0, TRUE)
        , m_title(question.title)
        , m_folder(ovoui::existingFolderNear(question.folder.wstring()))
        , m_types(ovoui::filterTextOf(question.types))
        , m_extension(question.extension)
    {
        if (!m_title.empty())
            m_ofn.lpstrTitle = m_title.c_str();
        if (!m_folder.empty())
            m_ofn.lpstrInitialDir = m_folder.c_str();
        if (!question.types.empty())
            m_ofn.lpstrFilter = m_types.c_str();
        m_ofn.nFilterIndex = static_cast<DWORD>(ovoui::typeWith(question.types, m_extension));
        if (!m_extension.empty())
            m_ofn.lpstrDefExt = m_extension.c_str() + (m_extension.front() == L'.' ? 1 : 0);
        if (!isNewStyle() && purpose == Purpose::OpenSeveral) {
            m_room.resize(kRoomForFiles);
            m_ofn.lpstrFile = m_room.data();
            m_ofn.nMaxFile = kRoomForFiles;
        }
    }

    bool isNewStyle() const { return m_bVistaStyle != FALSE; }

    void askForFolders()
    {
        FILEOPENDIALOGOPTIONS options{};
        m_pIFileDialog->GetOptions(&options);
        m_pIFileDialog->SetOptions(options | FOS_PICKFOLDERS);
    }

    /// Empty when the user cancels.
    std::vector<fs::path> paths()
    {
        std::vector<fs::path> chosen;
        if (DoModal() == IDOK)
            for (POSITION position = GetStartPosition(); position;)
                chosen.emplace_back(GetNextPathName(position).GetString());
        return chosen;
    }

private:
    static DWORD flagsOf(Purpose purpose)
    {
        switch (purpose) {
        case Purpose::Save:
            return kFlags | OFN_OVERWRITEPROMPT;
        case Purpose::OpenSeveral:
            return kFlags | OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT;
        case Purpose::Open:
            break;
        }
        return kFlags | OFN_FILEMUSTEXIST;
    }

    std::wstring m_title;
    std::wstring m_folder;
    std::wstring m_types;
    std::wstring m_extension;
    std::vector<wchar_t> m_room;
};

std::optional<fs::path> firstOf(const std::vector<fs::path>& paths)
{
    return paths.empty() ? std::nullopt : std::optional(paths.front());
}

/// Without a new-style dialog.
std::vector<fs::path> browseForFolder(const FolderQuestion& question)
{
    wchar_t path[MAX_PATH]{};
    ::lstrcpynW(path, question.folder.c_str(), MAX_PATH);
    if (BrowseForDir(question.parent, question.title, path))
        return {fs::path(path)};
    return {};
}

std::vector<fs::path> foldersFor(Purpose purpose, const FolderQuestion& question)
{
    Picker picker(purpose, {.parent = question.parent, .title = question.title, .folder = question.folder});
    if (!picker.isNewStyle())
        return browseForFolder(question);
    picker.askForFolders();
    return picker.paths();
}

} // namespace

std::optional<fs::path> pickFile(const FileQuestion& question)
{
    return firstOf(Picker(Purpose::Open, question).paths());
}

std::vector<fs::path> pickFiles(const FileQuestion& question)
{
    return Picker(Purpose::OpenSeveral, question).paths();
}

std::optional<fs::path> pickFileToSave(const FileQuestion& question)
{
    return firstOf(Picker(Purpose::Save, question).paths());
}

std::optional<fs::path> pickFolder(const FolderQuestion& question)
{
    return firstOf(foldersFor(Purpose::Open, question));
}

std::vector<fs::path> pickFolders(const FolderQuestion& question)
{
    return foldersFor(Purpose::OpenSeveral, question);
}
