// A file dialog that shows the picture in the selected file: one class for both of the system's dialogs.
#pragma once

#include "PicturePreview.h"

#include <ovoui/files/FileDialog.h>

class PreviewDialog : public COVOFileDialog
{
public:
    PreviewDialog(CWnd* parent, bool newStyle);

protected:
    BOOL OnInitDialog() override;
    void OnInitDone() override;
    void OnFileNameChange() override;

private:
    PicturePreview m_preview;
};
