// A file dialog of the newer kind whose answers the test gives: for what no real one does on request.
#pragma once

#include <testkit/ImportPatch.h>

#include <afxdlgs.h>

#include <functional>
#include <string>
#include <vector>

/// While it lives, CFileDialog gets this dialog from the system. One at a time.
class FakeShellDialog
{
public:
    FakeShellDialog();
    ~FakeShellDialog();
    FakeShellDialog(const FakeShellDialog&) = delete;
    FakeShellDialog& operator=(const FakeShellDialog&) = delete;

    std::vector<std::wstring> results;                 ///< what the user accepts
    HRESULT creation = S_OK;                           ///< what making the dialog gives
    std::function<HRESULT(IFileDialogEvents&)> onShow; ///< instead of accepting the results
    HRESULT optionsAnswer = S_OK;                      ///< what setting the options gives

    DWORD options = 0;      ///< as they were set last
    GUID client{};          ///< likewise
    HRESULT closed = S_OK;  ///< what the program has closed it with
    CLSID kind{};           ///< which dialog was made
    std::wstring name;      ///< of the file, as it was set last
    std::wstring extension; ///< likewise
    UINT type = 0;          ///< the number of the file type, likewise
    int topPlaces = 0;
    int bottomPlaces = 0;
    int defaultFolders = 0;
    int references() const;
    IFileDialog* dialog() const;
    /// Offers the results as the user's OK does; whether they are taken.
    HRESULT accept(IFileDialogEvents& events) const;

private:
    class Dialog;
    static HRESULT WINAPI create(REFCLSID kind, LPUNKNOWN outer, DWORD context, REFIID iid, LPVOID* object);

    Dialog* m_dialog;
    ovo::testkit::ImportPatch m_patch;
};
