// What the tests of the file dialog share: a dialog that writes down what it is told, files to choose from,
// and a user's hands.
#pragma once

#include <testkit/Desktop.h>
#include <testkit/Robot.h>
#include <testkit/TemporaryFiles.h>

#include <afxdlgs.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

enum class Kind
{
    Classic,
    Newer
};

std::string nameOf(Kind kind);

/// Writes down the names of its handlers as they are called, and does what a test wants done in them.
class RecordingFileDialog : public CFileDialog
{
public:
    explicit RecordingFileDialog(Kind kind, BOOL open = TRUE,
                                 DWORD flags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR,
                                 const wchar_t* filter = nullptr, CWnd* parent = nullptr,
                                 const wchar_t* fileName = nullptr, const wchar_t* extension = nullptr);

    /// Opens in this folder.
    void startIn(const std::wstring& folder) { m_ofn.lpstrInitialDir = (m_folder = folder).c_str(); }

    std::vector<std::string> events;
    std::map<std::string, std::function<void()>> on; ///< by the handler's name without "On"
    std::function<BOOL()> onFileNameOK = [] { return FALSE; };
    std::function<UINT(const std::wstring&)> onShareViolation;

    int count(const std::string& event) const;

    using CFileDialog::m_bVistaStyle;
    using CFileDialog::m_nIDHelp;
    using CFileDialog::m_pIFileDialog;
    using CFileDialog::m_pIFileDialogCustomize;

protected:
    BOOL OnInitDialog() override;
    BOOL OnFileNameOK() override;
    UINT OnShareViolation(LPCTSTR path) override;
    void OnLBSelChangedNotify(UINT box, UINT selection, UINT code) override;
    void OnInitDone() override { note("InitDone"); }
    void OnFileNameChange() override { note("FileNameChange"); }
    void OnFolderChange() override { note("FolderChange"); }
    void OnTypeChange() override { note("TypeChange"); }
    void OnItemSelected(DWORD control, DWORD item) override;
    void OnButtonClicked(DWORD control) override;
    void OnCheckButtonToggled(DWORD control, BOOL checked) override;
    void OnControlActivating(DWORD control) override;

private:
    void note(const std::string& event);

    std::wstring m_folder;
};

/// A story that begins when the file dialog waits for the user.
ovo::testkit::Story whenAsked();

/// The dialog that waits for the user.
HWND asked();

/// A control of that dialog, of its child dialog or further down; null when there is none.
HWND controlWithText(const wchar_t* text);

/// Where the file's name is typed.
HWND nameBox();
