// A classic file dialog without files: what a real one tells after a second or two, it tells at once.
#pragma once

#include <testkit/ImportPatch.h>

#include <windows.h>

#include <commdlg.h>

#include <functional>

/// While it lives, CFileDialog gets this dialog from the system. Like the real one it is modal, makes the
/// child dialog of the host's template, and ends when it is told OK or Cancel. One at a time.
class FakeClassicDialog
{
public:
    FakeClassicDialog();
    ~FakeClassicDialog();
    FakeClassicDialog(const FakeClassicDialog&) = delete;
    FakeClassicDialog& operator=(const FakeClassicDialog&) = delete;

    /// What happens in the dialog once it is shown. Afterwards, when all has been done that was posted
    /// meanwhile, the user cancels.
    std::function<void(HWND child)> onShow;

    /// Tells the child of an event, which is one of CDN_. Its answer.
    LRESULT notify(UINT event) const;
    /// Whether the dialog shown last was still open for the user to cancel.
    bool wasCancelledByTheUser() const { return m_cancelled; }

private:
    static BOOL WINAPI show(OPENFILENAMEW* settings);
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    static INT_PTR CALLBACK childProcedure(HWND child, UINT message, WPARAM wParam, LPARAM lParam);
    void begin(HWND dialog);

    OPENFILENAMEW* m_settings = nullptr;
    HWND m_child = nullptr;
    bool m_cancelled = false;
    ovo::testkit::ImportPatch m_opening;
    ovo::testkit::ImportPatch m_saving;
};
