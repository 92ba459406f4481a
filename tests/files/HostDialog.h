// A host's dialog, written once for both kinds, and what the tests need to use it.
#pragma once

#include <testkit/Desktop.h>
#include <testkit/Robot.h>
#include <testkit/TemporaryFiles.h>

#include <ovoui/files/FileDialog.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

enum class Kind
{
    Classic,
    NewStyle
};

std::string nameOf(Kind kind);

/// A check box, a combo box with a label, an edit box and a push button, from one template. Takes down what
/// its handlers are told.
class HostDialog : public COVOFileDialog
{
public:
    explicit HostDialog(Kind kind, BOOL open = TRUE, CWnd* parent = nullptr,
                        const wchar_t* filter = L"Text|*.txt|All|*.*||",
                        DWORD flags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR);
    ~HostDialog() override;

    void startIn(const std::wstring& folder) { ofn->lpstrInitialDir = (m_folder = folder).c_str(); }

    std::vector<std::string> events;
    std::map<std::string, std::function<void()>> on; ///< by the handler's name without "On"
    std::function<BOOL(BOOL)> onFileNameOK = [](BOOL result) { return result; };

    int count(const std::string& event) const;
    void forgetEvents() { events.clear(); }

protected:
    BOOL OnHelpInfo(HELPINFO* info, BOOL handled) override;
    void OnSize(UINT type, int cx, int cy) override;
    BOOL OnInitDialog() override;
    BOOL OnFileNameOK(BOOL result) override;
    void OnFileNameChange() override { note("FileNameChange"); }
    void OnFolderChange() override { note("FolderChange"); }
    void OnInitDone() override { note("InitDone"); }
    void OnLBSelChangedNotify(UINT box, UINT selection, UINT code) override;
    void OnTypeChange() override { note("TypeChange"); }
    LRESULT OnPostInit(WPARAM wParam, LPARAM lParam) override;
    void OnItemSelected(DWORD id, DWORD item) override;
    void OnButtonClicked(DWORD id) override;
    void OnCheckButtonToggled(DWORD id, BOOL checked) override;
    void OnControlActivating(DWORD id) override;
    void OnEnChange(DWORD id) override;

private:
    void addControls();
    void note(const std::string& event);

    std::wstring m_folder;
};

/// The template's dialog, which has the labels.
class Labels : public CDialog
{
public:
    explicit Labels(UINT templateId);
    ~Labels() override;
};

ovo::testkit::Story whenAsked();
HWND asked();
/// A shown control below the dialog that waits, by its text; null when there is none.
HWND controlWithText(const wchar_t* text);
/// The window of one of the host's controls in either dialog.
HWND controlOf(const HostDialog& dialog, DWORD id);
HWND nameBox();
/// A control below the dialog that waits, by its class and, if given, its text.
HWND controlOfClass(const wchar_t* windowClass, const wchar_t* text = nullptr);
