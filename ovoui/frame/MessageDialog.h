/// A message box with buttons, details and a memory of its own.
///
///     COVOMessageDialog box(m_hWnd, L"The plan uses fonts that are missing.", L"Open", MB_ICONEXCLAMATION);
///     box.AddButton(IDC_REPLACE, L"&Replace");
///     box.AddButton(IDCANCEL, L"Cancel");
///     box.SetDetails(listOfFonts);
///     box.OfferNotToAsk(L"ReplaceFonts");
///     if (box.DoModal() == IDC_REPLACE) ...
#pragma once

#include <ovoui/export.h>
#include <ovoui/frame/MessageBoxFlags.h>

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

/// Looks, is laid out and is answered as OVOMessageBox. All setters are to be called before DoModal.
class OVOUI_API COVOMessageDialog
{
public:
    /// `owner`, `text`, `caption` and `type` are those of OVOMessageBox; an empty caption gives the default
    /// caption.
    explicit COVOMessageDialog(HWND owner, std::wstring text, std::wstring caption = {}, UINT type = MB_OK);

    /// A button of the host's with this `label`, to the right of those added before. The first one replaces
    /// the buttons of the type; the default button is still that of the type. `id`, from 1 to 20500, is the
    /// answer: IDCANCEL makes the button the one of Escape and the close box, IDHELP asks for help.
    void AddButton(int id, std::wstring label);

    /// A text below the box, of any length, which the user shows and hides by a button.
    void SetDetails(std::wstring text);

    /// A check box with this `label`; when it is checked, the answer is kept in the application's profile,
    /// section "answers", under this `entry`, and DoModal gives it from then on without showing the box.
    /// IDCANCEL is never kept, and an answer is given only while the box has a button for it. An empty label
    /// gives "Do not show this message again".
    void OfferNotToAsk(std::wstring entry, std::wstring label = {});

    /// Presses the default button after so many seconds, at most a day, which its label counts. A key or a
    /// mouse button pressed in the box ends the count, as does the wheel turned there. While the box is
    /// disabled by another one in front of it, its button is not pressed.
    void PressDefaultAfter(unsigned seconds);

    /// As `settingsKey` of OVOMessageBox.
    void SetSettingsKey(std::wstring settingsKey) { m_settingsKey = std::move(settingsKey); }
    /// As `helpId` of OVOMessageBox.
    void SetHelp(UINT helpId) { m_helpId = helpId; }

    /// The id of the button pressed; else as OVOMessageBox. This object may be deleted while the box is open.
    int DoModal() const;

    /// Forgets what the user has answered for an `entry`: its box is shown again.
    static void ForgetAnswer(const std::wstring& entry);
    /// Forgets what the user has answered for all entries: every box is shown again.
    static void ForgetAnswers();

private:
    friend class COVOMessageDialogBox;

    struct Button
    {
        int id;
        std::wstring label;
    };

    HWND m_owner;
    std::wstring m_text;
    std::wstring m_caption;
    UINT m_type;
    std::wstring m_settingsKey;
    UINT m_helpId = 0;
    std::vector<Button> m_buttons;
    std::wstring m_details;
    std::wstring m_entry; ///< of the answer; empty: none is kept
    std::wstring m_checkLabel;
    unsigned m_seconds = 0; ///< 0: no count
};
