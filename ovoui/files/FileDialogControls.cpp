// COVOFileDialog: the host's controls in either dialog.
#include <ovoui/files/FileDialog.h>

#include <ovoui/files/FileDialogImp.h>
#include <ovoui/files/ShellPaths.h>

#include <cwchar>

namespace
{

HWND controlOf(const CWnd& dialog, DWORD id)
{
    return ::GetDlgItem(dialog.m_hWnd, static_cast<int>(id));
}

} // namespace

// New style only

void COVOFileDialog::AddCheckButton(const CDialog& dlg, DWORD id, bool checked)
{
    m_imp->customize("AddCheckButton")->AddCheckButton(id, COVOFileDialogImp::labelOf(dlg, id), checked);
}

void COVOFileDialog::AddComboBox(const CDialog& dlg, DWORD labelId, DWORD comboId)
{
    IFileDialogCustomize* const customize = m_imp->customize("AddComboBox");
    customize->StartVisualGroup(labelId, COVOFileDialogImp::labelOf(dlg, labelId));
    customize->AddComboBox(comboId);
    customize->EndVisualGroup();
}

void COVOFileDialog::AddComboBox(DWORD id)
{
    m_imp->customize("AddComboBox")->AddComboBox(id);
}

void COVOFileDialog::AddEditBox(const CDialog& dlg, DWORD textId, DWORD editId)
{
    m_imp->customize("AddEditBox")
        ->AddEditBox(editId, textId ? COVOFileDialogImp::labelOf(dlg, textId) : CString());
}

void COVOFileDialog::AddControlItem(DWORD id, DWORD itemId, std::wstring label)
{
    m_imp->customize("AddControlItem")->AddControlItem(id, itemId, label.c_str());
}

void COVOFileDialog::StartVisualGroup(DWORD id, const std::wstring& label)
{
    m_imp->customize("StartVisualGroup")->StartVisualGroup(id, label.c_str());
}

void COVOFileDialog::EndVisualGroup()
{
    m_imp->customize("EndVisualGroup")->EndVisualGroup();
}

void COVOFileDialog::SetSelectedControlItem(DWORD id, DWORD itemId)
{
    m_imp->customize("SetSelectedControlItem")->SetSelectedControlItem(id, itemId);
}

// Both

LONG_PTR COVOFileDialog::GetSelectedControlItem(DWORD id) const
{
    if (!IsVistaStyle())
        return ::SendMessageW(controlOf(*m_imp, id), CB_GETCURSEL, 0, 0);
    DWORD item = 0;
    return SUCCEEDED(m_imp->customize("GetSelectedControlItem")->GetSelectedControlItem(id, &item)) ? item
                                                                                                    : 0;
}

bool COVOFileDialog::GetCheckButtonState(DWORD id) const
{
    if (!IsVistaStyle())
        return m_imp->IsDlgButtonChecked(static_cast<int>(id)) != 0;
    BOOL checked = FALSE;
    return SUCCEEDED(m_imp->customize("GetCheckButtonState")->GetCheckButtonState(id, &checked)) && checked;
}

void COVOFileDialog::SetControlState(DWORD id, bool enabled, bool visible)
{
    if (IsVistaStyle()) {
        const int state = (enabled ? CDCS_ENABLED : 0) + (visible ? CDCS_VISIBLE : 0);
        m_imp->customize("SetControlState")->SetControlState(id, static_cast<CDCONTROLSTATEF>(state));
        return;
    }
    const HWND control = controlOf(*m_imp, id);
    ::ShowWindow(control, visible ? SW_SHOW : SW_HIDE);
    ::EnableWindow(control, enabled);
}

bool COVOFileDialog::GetControlStateVisible(DWORD id) const
{
    if (!IsVistaStyle())
        return (::GetWindowLongW(controlOf(*m_imp, id), GWL_STYLE) & WS_VISIBLE) != 0;
    CDCONTROLSTATEF state{};
    return SUCCEEDED(m_imp->customize("GetControlStateVisible")->GetControlState(id, &state)) &&
           (state & CDCS_VISIBLE) != 0;
}

std::wstring COVOFileDialog::GetEditBoxText(DWORD id) const
{
    if (!IsVistaStyle()) {
        CString text;
        m_imp->GetDlgItemText(static_cast<int>(id), text);
        return text.GetString();
    }
    LPWSTR text = nullptr;
    if (FAILED(m_imp->customize("GetEditBoxText")->GetEditBoxText(id, &text)) || !text)
        return {};
    const std::wstring copy(text);
    ::CoTaskMemFree(text);
    return copy;
}

int COVOFileDialog::GetEditBoxInt(DWORD id) const
{
    if (!IsVistaStyle())
        return static_cast<int>(m_imp->GetDlgItemInt(static_cast<int>(id), nullptr, TRUE));
    int value = 0;
    return std::swscanf(GetEditBoxText(id).c_str(), L"%d", &value) == 1 ? value : 0;
}

void COVOFileDialog::SetEditBoxInt(DWORD id, int value)
{
    if (IsVistaStyle())
        m_imp->customize("SetEditBoxInt")->SetEditBoxText(id, std::to_wstring(value).c_str());
    else
        m_imp->SetDlgItemInt(static_cast<int>(id), static_cast<UINT>(value), TRUE);
}

void COVOFileDialog::SetFolder(const std::wstring& path)
{
    IFileDialog* const dialog = m_imp->fileDialog();
    if (!IsVistaStyle() || !dialog)
        return;
    if (const auto folder = ovoui::shellItemOf(path))
        dialog->SetFolder(folder.get());
}
