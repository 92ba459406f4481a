#include "SystemInfoPage.h"

#include "resource.h"

#include <ovoui/sysinfo/LoadedModules.h>
#include <ovoui/sysinfo/MachineInfo.h>
#include <ovoui/sysinfo/ModuleListDlg.h>
#include <ovoui/sysinfo/SystemInfoDlg.h>

#include <ovouires/resource.h>

#include <algorithm>
#include <array>

namespace
{

struct Form
{
    const wchar_t* title;
    std::wstring (*make)(const std::vector<LoadedModule>& modules);
};

constexpr Form kForms[] = {
    {L"Text with tabs", &modulesAsText}, {L"Markdown table", &modulesAsMarkdown}, {L"JSON", &modulesAsJson}};

/// Where the columns of the text with tabs begin behind the first, in quarters of a letter's average width.
constexpr std::array kColumns = {75, 150, 195, 300, 370, 440, 490, 540, 590};

/// With the line ends of edit controls.
CString forEdit(const std::wstring& text)
{
    CString result(text.c_str());
    result.Replace(L"\r\n", L"\n");
    result.Replace(L"\n", L"\r\n");
    return result;
}

/// A list that is filtered from the beginning.
class FilteredList : public CModuleListDlg
{
protected:
    BOOL OnInitDialog() override
    {
        CModuleListDlg::OnInitDialog();
        SetDlgItemText(IDC_MODULES_FILTER, L"ovo");
        return TRUE;
    }
};

} // namespace

BEGIN_MESSAGE_MAP(SystemInfoPage, GalleryPage)
    ON_BN_CLICKED(IDC_SYSINFO_DIALOG, &SystemInfoPage::OnDialog)
    ON_BN_CLICKED(IDC_SYSINFO_LIST, &SystemInfoPage::OnList)
    ON_BN_CLICKED(IDC_SYSINFO_REFRESH, &SystemInfoPage::OnRefresh)
    ON_CBN_SELCHANGE(IDC_SYSINFO_FORM, &SystemInfoPage::OnForm)
END_MESSAGE_MAP()

SystemInfoPage::SystemInfoPage()
    : GalleryPage(IDD_PAGE_SYSTEM_INFO)
{
}

SystemInfoPage::~SystemInfoPage() = default;

BOOL SystemInfoPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    m_form.Attach(::GetDlgItem(m_hWnd, IDC_SYSINFO_FORM));
    for (const Form& form : kForms)
        m_form.AddString(form.title);
    m_form.SetCurSel(0);
    for (const int id : {IDC_SYSINFO_MACHINE_TEXT, IDC_SYSINFO_MODULES})
        static_cast<CEdit*>(GetDlgItem(id))->SetLimitText(0);
    auto columns = kColumns;
    static_cast<CEdit*>(GetDlgItem(IDC_SYSINFO_MODULES))
        ->SetTabStops(static_cast<int>(columns.size()), columns.data());
    showData();
    stretch(IDC_SYSINFO_MACHINE_TEXT, {.growX = 100});
    stretch(IDC_SYSINFO_MODULES, {.growX = 100, .growY = 100});
    return FALSE;
}

void SystemInfoPage::showData()
{
    SetDlgItemText(IDC_SYSINFO_MACHINE_TEXT, machineAsText(machineInfo()).c_str());
    const Form& form = kForms[m_form.GetCurSel()];
    SetDlgItemText(IDC_SYSINFO_MODULES, forEdit(form.make(loadedModules())));
}

void SystemInfoPage::OnForm()
{
    showData();
}

void SystemInfoPage::OnRefresh()
{
    showData();
}

void SystemInfoPage::OnDialog()
{
    CSystemInfoDlg dialog(this);
    dialog.ShowMachine(IsDlgButtonChecked(IDC_SYSINFO_MACHINE) == BST_CHECKED);
    dialog.DoModal();
}

void SystemInfoPage::OnList()
{
    CModuleListDlg(this).DoModal();
}

std::vector<std::wstring> SystemInfoPage::poses() const
{
    return {L"dialog", L"machine", L"list", L"filtered"};
}

bool SystemInfoPage::pose(const std::wstring& name)
{
    if (name == L"list")
        OnList();
    else if (name == L"filtered")
        FilteredList().DoModal();
    else if (name == L"dialog" || name == L"machine") {
        CheckDlgButton(IDC_SYSINFO_MACHINE, name == L"machine" ? BST_CHECKED : BST_UNCHECKED);
        OnDialog();
    } else {
        return false;
    }
    return true;
}
