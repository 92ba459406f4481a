// COVOFileDialog: further controls in either dialog, and folders.
#include <ovoui/files/FileDialog.h>

#include <ovoui/files/FileDialogImp.h>
#include <ovoui/files/ShellPaths.h>

namespace
{

CString labelOf(const CDialog& dlg, DWORD id)
{
    CString label;
    dlg.GetDlgItemText(static_cast<int>(id), label);
    return label;
}

/// Calls a method of the system's dialog with the item of a folder, if there is one.
template <class Use>
void withFolder(const std::wstring& path, Use use)
{
    if (path.empty())
        return;
    if (IShellItem* folder = ovoui::shellItemOf(path)) {
        use(folder);
        folder->Release();
    }
}

} // namespace

void COVOFileDialog::AddPushButton(const CDialog& dlg, DWORD id)
{
    if (IsVistaStyle())
        m_imp->customize("AddPushButton")->AddPushButton(id, labelOf(dlg, id));
    else
        m_imp->declared().addPushButton(id);
}

void COVOFileDialog::AddMenu(const CDialog& dlg, DWORD id)
{
    if (IsVistaStyle())
        m_imp->customize("AddMenu")->AddMenu(id, labelOf(dlg, id));
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
        customize->AddControlItem(id, button, labelOf(dlg, button));
}

void COVOFileDialog::AddSeparator(DWORD id)
{
    if (IsVistaStyle())
        m_imp->customize("AddSeparator")->AddSeparator(id);
}

void COVOFileDialog::AddText(const CDialog& dlg, DWORD id)
{
    if (IsVistaStyle())
        m_imp->customize("AddText")->AddText(id, labelOf(dlg, id));
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
    if (IsVistaStyle())
        withFolder(path, [&](IShellItem* folder) {
            m_imp->fileDialog()->AddPlace(folder, top ? FDAP_TOP : FDAP_BOTTOM);
        });
}

void COVOFileDialog::SetDefaultFolder(const std::wstring& path)
{
    if (IsVistaStyle())
        withFolder(path, [&](IShellItem* folder) { m_imp->fileDialog()->SetDefaultFolder(folder); });
    else
        m_imp->useDefaultFolder(path);
}

void COVOFileDialog::RememberFolder(const GUID& purpose)
{
    if (IsVistaStyle())
        m_imp->fileDialog()->SetClientGuid(purpose);
    else
        m_imp->rememberFolder(purpose);
}
