#include "DemoFileDialog.h"

#include "resource.h"

#include <ovocor/Text.h>

namespace
{

constexpr const wchar_t* kFormats[] = {L"Plain", L"Packed", L"Sealed"};
constexpr int kQuality = 85;

/// The classic dialog's child, made aside: the labels of both dialogs are in its template.
class Labels : public CDialog
{
public:
    explicit Labels(CWnd* parent) { Create(IDD_FILE_CONTROLS, parent ? parent : AfxGetMainWnd()); }
    ~Labels() override { DestroyWindow(); }
};

} // namespace

DemoFileDialog::DemoFileDialog(CWnd* parent, bool newStyle, bool save, Log log)
    : COVOFileDialog(!save, L"txt", nullptr,
                     OFN_HIDEREADONLY | OFN_NOCHANGEDIR | (save ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST),
                     L"Text (*.txt)|*.txt|All files|*.*||", parent, newStyle)
    , m_log(std::move(log))
{
    const Labels labels(parent);
    if (IsVistaStyle()) {
        AddCheckButton(labels, IDC_FILE_BACKUP, true);
        AddComboBox(labels, IDC_FILE_FORMAT_LABEL, IDC_FILE_FORMAT);
        for (DWORD item = 0; item < std::size(kFormats); ++item)
            AddControlItem(IDC_FILE_FORMAT, item, kFormats[item]);
        SetSelectedControlItem(IDC_FILE_FORMAT, 0);
        StartVisualGroup(IDC_FILE_QUALITY_LABEL, L"&Quality:");
        AddEditBox(labels, 0, IDC_FILE_QUALITY);
        EndVisualGroup();
        SetEditBoxInt(IDC_FILE_QUALITY, kQuality);
    } else {
        ofn->Flags |= OFN_ENABLETEMPLATE;
        ofn->lpTemplateName = MAKEINTRESOURCE(IDD_FILE_CONTROLS);
    }
    AddRadioGroup(labels, IDC_FILE_SIZES, {IDC_FILE_SMALL, IDC_FILE_LARGE});
    AddPushButton(labels, IDC_FILE_DETAILS);
    AddMenu(labels, IDC_FILE_INSERT);
    AddMenuItem(IDC_FILE_INSERT, IDC_FILE_INSERT_DATE, L"Date");
    AddMenuItem(IDC_FILE_INSERT, IDC_FILE_INSERT_NAME, L"Name");
    if (IsVistaStyle())
        SetSelectedRadioButton(IDC_FILE_SIZES, IDC_FILE_SMALL);
}

BOOL DemoFileDialog::OnInitDialog()
{
    m_log(L"OnInitDialog");
    for (const wchar_t* format : kFormats)
        ::SendMessageW(GetDlgItem(IDC_FILE_FORMAT)->m_hWnd, CB_ADDSTRING, 0,
                       reinterpret_cast<LPARAM>(format));
    ::SendMessageW(GetDlgItem(IDC_FILE_FORMAT)->m_hWnd, CB_SETCURSEL, 0, 0);
    CheckDlgButton(IDC_FILE_BACKUP, BST_CHECKED);
    SetSelectedRadioButton(IDC_FILE_SIZES, IDC_FILE_SMALL);
    SetEditBoxInt(IDC_FILE_QUALITY, kQuality);
    return TRUE;
}

LRESULT DemoFileDialog::OnPostInit(WPARAM wParam, LPARAM lParam)
{
    m_log(L"OnPostInit");
    return COVOFileDialog::OnPostInit(wParam, lParam);
}

BOOL DemoFileDialog::OnFileNameOK(BOOL bResult)
{
    m_values = stringPrintf(
        L"backup %d, format %d, quality %d, size %u", GetCheckButtonState(IDC_FILE_BACKUP),
        static_cast<int>(GetSelectedControlItem(IDC_FILE_FORMAT)), GetEditBoxInt(IDC_FILE_QUALITY),
        static_cast<unsigned>(GetSelectedRadioButton(IDC_FILE_SIZES)));
    m_log(L"OnFileNameOK: " + std::wstring(GetPathName().GetString()) + L", " + m_values);
    return bResult;
}

void DemoFileDialog::OnFolderChange()
{
    m_log(L"OnFolderChange: " + std::wstring(GetFolderPath().GetString()));
}

void DemoFileDialog::OnItemSelected(DWORD dwIDCtl, DWORD dwIDItem)
{
    m_log(stringPrintf(L"OnItemSelected: control %u, item %u", static_cast<unsigned>(dwIDCtl),
                       static_cast<unsigned>(dwIDItem)));
}

void DemoFileDialog::OnButtonClicked(DWORD dwIDCtl)
{
    m_log(stringPrintf(L"OnButtonClicked: control %u", static_cast<unsigned>(dwIDCtl)));
}

void DemoFileDialog::OnCheckButtonToggled(DWORD dwIDCtl, BOOL bChecked)
{
    m_log(stringPrintf(L"OnCheckButtonToggled: control %u, checked %d", static_cast<unsigned>(dwIDCtl),
                       bChecked));
    SetControlState(IDC_FILE_QUALITY, bChecked != FALSE, true);
}

void DemoFileDialog::OnControlActivating(DWORD dwIDCtl)
{
    m_log(stringPrintf(L"OnControlActivating: control %u", static_cast<unsigned>(dwIDCtl)));
}

void DemoFileDialog::OnEnChange(DWORD dwIDCtl)
{
    m_log(stringPrintf(L"OnEnChange: control %u", static_cast<unsigned>(dwIDCtl)));
}
