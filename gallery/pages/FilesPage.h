// The file dialog in both kinds, the browse functions, and their forms for std::filesystem.
#pragma once

#include "GalleryPage.h"

#include <ovoui/files/FilePicker.h>

class FilesPage : public GalleryPage
{
public:
    FilesPage();
    ~FilesPage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnClassic() { showDialog(false); }
    afx_msg void OnNewStyle() { showDialog(true); }
    afx_msg void OnClassicPreview() { showPreview(false); }
    afx_msg void OnNewStylePreview() { showPreview(true); }
    afx_msg void OnBrowseFile();
    afx_msg void OnBrowseFiles();
    afx_msg void OnBrowseDir();
    afx_msg void OnPickFile();
    afx_msg void OnPickFiles();
    afx_msg void OnPickSave();
    afx_msg void OnPickFolder();
    afx_msg void OnPickFolders();
    DECLARE_MESSAGE_MAP()

private:
    using Paths = std::vector<std::wstring>;

    void showDialog(bool newStyle);
    void showPreview(bool newStyle, const std::wstring& path = {});
    FileQuestion question();
    FolderQuestion folderQuestion();
    std::wstring pictureOfItself() const;
    void tell(const std::wstring& function, const Paths& paths);
    void tell(const std::wstring& function, const std::vector<std::filesystem::path>& paths);

    CString m_title;
    CString m_folder;
    CString m_name;
    CString m_extension;
    CString m_filter;
    BOOL m_mustExist = FALSE;
    BOOL m_save = FALSE;
};
