// A file dialog with every kind of control: one class for both of the system's dialogs.
#pragma once

#include <ovoui/files/FileDialog.h>

#include <functional>
#include <string>

class DemoFileDialog : public COVOFileDialog
{
public:
    using Log = std::function<void(const std::wstring& line)>;

    DemoFileDialog(CWnd* parent, bool newStyle, bool save, Log log);

    /// The values of the controls when the file was accepted.
    const std::wstring& values() const { return m_values; }

protected:
    BOOL OnInitDialog() override;
    LRESULT OnPostInit(WPARAM wParam, LPARAM lParam) override;
    BOOL OnFileNameOK(BOOL bResult) override;
    void OnFileNameChange() override { m_log(L"OnFileNameChange"); }
    void OnFolderChange() override;
    void OnInitDone() override { m_log(L"OnInitDone"); }
    void OnTypeChange() override { m_log(L"OnTypeChange"); }
    void OnItemSelected(DWORD dwIDCtl, DWORD dwIDItem) override;
    void OnButtonClicked(DWORD dwIDCtl) override;
    void OnCheckButtonToggled(DWORD dwIDCtl, BOOL bChecked) override;
    void OnControlActivating(DWORD dwIDCtl) override;
    void OnEnChange(DWORD dwIDCtl) override;

private:
    Log m_log;
    std::wstring m_values;
};
