// Internal to CEditView: the system's dialogs for finding and replacing, and what was looked for.
#pragma once

#include <afxwin.h>
#include <commdlg.h>

#include <array>

namespace afxdetail
{

class FindDialog
{
public:
    FindDialog() = default;
    ~FindDialog();
    FindDialog(const FindDialog&) = delete;
    FindDialog& operator=(const FindDialog&) = delete;

    /// The registered message by which the dialog tells its owner what the user wants.
    static UINT message();

    /// Shows the dialog, with this text to look for unless it is empty; one that is open already comes to the
    /// front.
    void open(const CWnd& owner, bool replace, const CString& text);
    void close();
    /// Whether a message comes from this dialog.
    bool sent(const FINDREPLACEW* told) const { return told == &m_data; }
    /// Takes over the settings of a message; at its end the dialog loses them.
    void keepSettings() { m_settings = m_data.Flags & (FR_DOWN | FR_MATCHCASE); }

    const wchar_t* what() const { return m_what.data(); }
    const wchar_t* with() const { return m_with.data(); }
    bool next() const { return (m_settings & FR_DOWN) != 0; }
    bool matchCase() const { return (m_settings & FR_MATCHCASE) != 0; }

private:
    /// Sees to the dialog's keys: its owner is the frame, so no message of it comes by the view.
    class Window : public CWnd
    {
        BOOL PreTranslateMessage(MSG* message) override { return IsDialogMessage(message); }
    };

    std::array<wchar_t, 256> m_what{};
    std::array<wchar_t, 256> m_with{};
    FINDREPLACEW m_data{};
    DWORD m_settings = FR_DOWN;
    Window m_window; ///< lets go of the dialog when that destroys itself
    bool m_replaces = false;
};

} // namespace afxdetail
