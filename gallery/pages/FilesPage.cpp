#include "FilesPage.h"

#include "Screenshot.h"
#include "model/DemoFileDialog.h"
#include "model/PreviewDialog.h"
#include "resource.h"

#include <ovoui/files/Browse.h>

namespace
{

std::wstring homeFolder()
{
    wchar_t folder[MAX_PATH]{};
    ::ExpandEnvironmentStringsW(L"%USERPROFILE%", folder, MAX_PATH);
    return folder;
}

std::vector<std::filesystem::path> listOf(const std::optional<std::filesystem::path>& path)
{
    return path ? std::vector{*path} : std::vector<std::filesystem::path>{};
}

} // namespace

BEGIN_MESSAGE_MAP(FilesPage, GalleryPage)
    ON_BN_CLICKED(IDC_FILES_CLASSIC, &FilesPage::OnClassic)
    ON_BN_CLICKED(IDC_FILES_NEW_STYLE, &FilesPage::OnNewStyle)
    ON_BN_CLICKED(IDC_FILES_CLASSIC_PREVIEW, &FilesPage::OnClassicPreview)
    ON_BN_CLICKED(IDC_FILES_NEW_STYLE_PREVIEW, &FilesPage::OnNewStylePreview)
    ON_BN_CLICKED(IDC_FILES_BROWSE_FILE, &FilesPage::OnBrowseFile)
    ON_BN_CLICKED(IDC_FILES_BROWSE_FILES, &FilesPage::OnBrowseFiles)
    ON_BN_CLICKED(IDC_FILES_BROWSE_DIR, &FilesPage::OnBrowseDir)
    ON_BN_CLICKED(IDC_FILES_PICK_FILE, &FilesPage::OnPickFile)
    ON_BN_CLICKED(IDC_FILES_PICK_FILES, &FilesPage::OnPickFiles)
    ON_BN_CLICKED(IDC_FILES_PICK_SAVE, &FilesPage::OnPickSave)
    ON_BN_CLICKED(IDC_FILES_PICK_FOLDER, &FilesPage::OnPickFolder)
    ON_BN_CLICKED(IDC_FILES_PICK_FOLDERS, &FilesPage::OnPickFolders)
END_MESSAGE_MAP()

FilesPage::FilesPage()
    : GalleryPage(IDD_PAGE_FILES)
    , m_folder(homeFolder().c_str())
    , m_extension(L".txt")
    , m_filter(L"All files|*.*|Text (*.txt)|*.txt|Pictures|*.png;*.jpg|")
{
}

FilesPage::~FilesPage() = default;

void FilesPage::DoDataExchange(CDataExchange* exchange)
{
    GalleryPage::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_FILES_TITLE, m_title);
    DDX_Text(exchange, IDC_FILES_FOLDER, m_folder);
    DDX_Text(exchange, IDC_FILES_NAME, m_name);
    DDX_Text(exchange, IDC_FILES_EXTENSION, m_extension);
    DDX_Text(exchange, IDC_FILES_FILTER, m_filter);
    DDX_Check(exchange, IDC_FILES_MUST_EXIST, m_mustExist);
    DDX_Check(exchange, IDC_FILES_SAVE, m_save);
}

BOOL FilesPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    for (const int id : {IDC_FILES_TITLE, IDC_FILES_FOLDER, IDC_FILES_NAME, IDC_FILES_FILTER})
        stretch(id, {.growX = 100});
    stretch(IDC_FILES_RESULT, {.growX = 100, .growY = 100});
    return FALSE;
}

// The host's controls, and the preview, in either dialog

void FilesPage::showDialog(bool newStyle)
{
    if (!UpdateData())
        return;
    DemoFileDialog dialog(AfxGetMainWnd(), newStyle, m_save != FALSE,
                          [this](const std::wstring& line) { log(line); });
    const std::wstring folder = m_folder.GetString();
    dialog.SetDefaultFolder(folder);
    Paths paths;
    if (dialog.DoModal() == IDOK)
        paths = {dialog.GetPathName().GetString(), dialog.values()};
    tell(L"COVOFileDialog", paths);
}

void FilesPage::showPreview(bool newStyle, const std::wstring& path)
{
    if (!UpdateData())
        return;
    PreviewDialog dialog(AfxGetMainWnd(), newStyle, path);
    const std::wstring folder = m_folder.GetString();
    dialog.SetDefaultFolder(folder);
    Paths paths;
    if (dialog.DoModal() == IDOK)
        paths = {dialog.GetPathName().GetString()};
    tell(L"Preview", paths);
}

// The browse functions

void FilesPage::OnBrowseFile()
{
    if (!UpdateData())
        return;
    std::wstring path = m_name.GetString();
    const bool chosen = BrowseForFile(AfxGetMainWnd(), m_title.GetString(), m_folder.GetString(), m_extension,
                                      m_filter.GetString(), path, m_mustExist, m_save);
    tell(L"BrowseForFile", chosen ? Paths{path} : Paths{});
}

void FilesPage::OnBrowseFiles()
{
    if (!UpdateData())
        return;
    Paths paths;
    BrowseForFiles(AfxGetMainWnd(), m_title, m_folder.GetString(), m_extension.GetString(),
                   m_filter.GetString(), paths);
    tell(L"BrowseForFiles", paths);
}

void FilesPage::OnBrowseDir()
{
    if (!UpdateData())
        return;
    wchar_t path[MAX_PATH]{};
    ::lstrcpynW(path, m_folder, MAX_PATH);
    const int chosen = BrowseForDir(AfxGetMainWnd(), m_title.GetString(), path);
    tell(L"BrowseForDir", chosen ? Paths{path} : Paths{});
}

// For std::filesystem

FileQuestion FilesPage::question()
{
    return {.parent = AfxGetMainWnd(),
            .title = m_title.GetString(),
            .folder = m_folder.GetString(),
            .name = m_name.GetString(),
            .types = {{L"All files", {L"*.*"}}, {L"Text", {L"*.txt"}}, {L"Pictures", {L"*.png", L"*.jpg"}}},
            .extension = m_extension.GetString()};
}

FolderQuestion FilesPage::folderQuestion()
{
    return {.parent = AfxGetMainWnd(), .title = m_title.GetString(), .folder = m_folder.GetString()};
}

void FilesPage::OnPickFile()
{
    if (UpdateData())
        tell(L"pickFile", listOf(pickFile(question())));
}

void FilesPage::OnPickFiles()
{
    if (UpdateData())
        tell(L"pickFiles", pickFiles(question()));
}

void FilesPage::OnPickSave()
{
    if (UpdateData())
        tell(L"pickFileToSave", listOf(pickFileToSave(question())));
}

void FilesPage::OnPickFolder()
{
    if (UpdateData())
        tell(L"pickFolder", listOf(pickFolder(folderQuestion())));
}

void FilesPage::OnPickFolders()
{
    if (UpdateData())
        tell(L"pickFolders", pickFolders(folderQuestion()));
}

// Results

void FilesPage::tell(const std::wstring& function, const std::vector<std::filesystem::path>& paths)
{
    Paths texts;
    for (const std::filesystem::path& path : paths)
        texts.push_back(path.wstring());
    tell(function, texts);
}

void FilesPage::tell(const std::wstring& function, const Paths& paths)
{
    if (!m_hWnd)
        return; // another page was opened while the dialog was
    std::wstring text = function + (paths.empty() ? L": cancelled" : L":");
    for (const std::wstring& path : paths)
        text += L"\r\n" + path;
    SetDlgItemText(IDC_FILES_RESULT, text.c_str());
    log(paths.empty() ? function + L": cancelled" : function + L": " + paths.front());
}

/// A picture to choose, in the folder of temporary files.
std::wstring FilesPage::pictureOfItself() const
{
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / L"ovoui gallery";
    std::filesystem::create_directories(folder);
    const std::wstring path = (folder / L"Files page.png").wstring();
    saveScreenshot(m_hWnd, path);
    return path;
}

std::vector<std::wstring> FilesPage::poses() const
{
    return {L"classic", L"new-style", L"preview", L"preview-new-style", L"folder"};
}

bool FilesPage::pose(const std::wstring& name)
{
    if (name == L"classic")
        showDialog(false);
    else if (name == L"new-style")
        showDialog(true);
    else if (name == L"preview")
        showPreview(false, pictureOfItself());
    else if (name == L"preview-new-style")
        showPreview(true, pictureOfItself());
    else if (name == L"folder")
        OnPickFolder();
    else
        return false;
    return true;
}
