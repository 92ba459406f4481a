// A file dialog that shows the picture in the selected file: one class for both of the system's dialogs.
#pragma once

#include "PicturePreview.h"

#include <ovoui/files/FileDialog.h>

class PreviewDialog : public COVOFileDialog
{
public:
    /// Begins with the file of this path, or with none.
    PreviewDialog(CWnd* parent, bool newStyle, const std::wstring& path = {});

protected:
    BOOL OnInitDialog() override;
    void OnInitDone() override;
    void OnFolderChange() override;
    void OnFileNameChange() override;

private:
    void showSelected();

    PicturePreview m_preview;
};
