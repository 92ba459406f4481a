#include "PreviewDialog.h"

#include "resource.h"

PreviewDialog::PreviewDialog(CWnd* parent, bool newStyle, const std::wstring& path)
    : COVOFileDialog(TRUE, nullptr, path.c_str(), OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_FILEMUSTEXIST,
                     L"Pictures|*.png;*.jpg;*.bmp;*.gif|All files|*.*||", parent, newStyle)
{
    if (IsVistaStyle())
        return;
    ofn->Flags |= OFN_ENABLETEMPLATE;
    ofn->lpTemplateName = MAKEINTRESOURCE(IDD_FILE_PREVIEW);
}

/// The classic dialog has room for the pane in its template.
BOOL PreviewDialog::OnInitDialog()
{
    CWnd* const area = GetDlgItem(IDC_PREVIEW_AREA);
    CRect place;
    area->GetWindowRect(&place);
    DialogWnd()->ScreenToClient(&place);
    area->ShowWindow(SW_HIDE);
    m_preview.createIn(*DialogWnd(), place);
    return TRUE;
}

/// The new-style dialog has no room for windows of others: the pane stands beside it.
void PreviewDialog::OnInitDone()
{
    if (IsVistaStyle()) {
        m_preview.createBeside(*DialogWnd());
    } else {
        // The system has moved its own controls meanwhile, and the pane with them.
        CRect place;
        GetDlgItem(IDC_PREVIEW_AREA)->GetWindowRect(&place);
        DialogWnd()->ScreenToClient(&place);
        m_preview.MoveWindow(&place);
    }
    showSelected();
}

void PreviewDialog::OnFolderChange()
{
    showSelected();
}

void PreviewDialog::OnFileNameChange()
{
    showSelected();
}

void PreviewDialog::showSelected()
{
    m_preview.show(GetPathName().GetString());
}
