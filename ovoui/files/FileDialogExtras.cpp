// COVOFileDialog: further controls in either dialog, and folders.
#include <ovoui/files/FileDialog.h>

#include <ovoui/files/FileDialogImp.h>
#include <ovoui/files/ShellPaths.h>

void COVOFileDialog::AddPushButton(const CDialog& dlg, DWORD id)
{
    if (IsVistaStyle())
        m_imp->customize("AddPushButton")->AddPushButton(id, COVOFileDialogImp::labelOf(dlg, id));
    else
        m_imp->declared().addPushButton(id);
}

void COVOFileDialog::AddMenu(const CDialog& dlg, DWORD id)
{
    if (IsVistaStyle())
        m_imp->customize("AddMenu")->AddMenu(id, COVOFileDialogImp::labelOf(dlg, id));
    else
        m_imp->declared().addMenu(id);
}

void COVOFileDialog::AddMenuItem(DWORD id, DWORD itemId, const std::wstring& label)
{
    if (IsVistaStyle())
        m_imp->customize("AddMenuItem")->AddControlItem(id, itemId, label.c_str());
    else
        m_imp->declared().addMenuItem(id, {itemId, label});
}

void COVOFileDialog::AddRadioGroup(const CDialog& dlg, DWORD id, const std::vector<DWORD>& buttonIds)
{
    if (!IsVistaStyle()) {
        m_imp->declared().addRadioGroup(id, {buttonIds.begin(), buttonIds.end()});
        return;
    }
    IFileDialogCustomize* const customize = m_imp->customize("AddRadioGroup");
    customize->AddRadioButtonList(id);
    for (const DWORD button : buttonIds)
        customize->AddControlItem(id, button, COVOFileDialogImp::labelOf(dlg, button));
}

void COVOFileDialog::AddSeparator(DWORD id)
{
    if (IsVistaStyle())
        m_imp->customize("AddSeparator")->AddSeparator(id);
}

void COVOFileDialog::AddText(const CDialog& dlg, DWORD id)
{
    if (IsVistaStyle())
        m_imp->customize("AddText")->AddText(id, COVOFileDialogImp::labelOf(dlg, id));
}

DWORD COVOFileDialog::GetSelectedRadioButton(DWORD id) const
{
    if (IsVistaStyle())
        return static_cast<DWORD>(GetSelectedControlItem(id));
    for (const DWORD button : m_imp->declared().radioButtons(id))
        if (m_imp->IsDlgButtonChecked(static_cast<int>(button)))
            return button;
    return 0;
}

void COVOFileDialog::SetSelectedRadioButton(DWORD id, DWORD buttonId)
{
    if (IsVistaStyle()) {
        SetSelectedControlItem(id, buttonId);
        return;
    }
    for (const DWORD button : m_imp->declared().radioButtons(id))
        m_imp->CheckDlgButton(static_cast<int>(button), button == buttonId ? BST_CHECKED : BST_UNCHECKED);
}

// Folders

void COVOFileDialog::AddPlace(const std::wstring& path, bool top)
{
    if (!IsVistaStyle())
        return;
    if (const auto folder = ovoui::shellItemOf(path))
        m_imp->fileDialog()->AddPlace(folder.get(), top ? FDAP_TOP : FDAP_BOTTOM);
}

void COVOFileDialog::SetDefaultFolder(const std::wstring& path)
{
    if (!IsVistaStyle())
        m_imp->useDefaultFolder(path);
    else if (const auto folder = ovoui::shellItemOf(path))
        m_imp->fileDialog()->SetDefaultFolder(folder.get());
}

void COVOFileDialog::RememberFolder(const GUID& purpose)
{
    if (IsVistaStyle())
        m_imp->fileDialog()->SetClientGuid(purpose);
    else
        m_imp->rememberFolder(purpose);
}
