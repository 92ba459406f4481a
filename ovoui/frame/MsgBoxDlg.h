/// Not exported: the dialog behind OVOMessageBox.
#pragma once

#include <ovoui/frame/MessageText.h>
#include <ovoui/frame/core/MessageBoxLayout.h>
#include <ovoui/frame/core/MessageBoxStyle.h>
#include <ovoui/frame/core/SavedPosition.h>

#include <afxwin.h>

#include <string>

class COVOMsgBoxDlg : public CDialog
{
public:
    /// The arguments of OVOMessageBox.
    struct Request
    {
        HWND owner;
        const wchar_t* text;
        const wchar_t* caption;
        UINT type;
        const wchar_t* settingsKey;
        UINT helpId;
    };

    explicit COVOMsgBoxDlg(const Request& request);
    COVOMsgBoxDlg(const Request& request, ovoui::frame::MessageBoxButtons buttons);
    ~COVOMsgBoxDlg() override;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    /// The room that a derived box takes beside text and buttons; asked for once, when the box opens.
    virtual ovoui::frame::BoxExtras extras() { return {}; }

    static ovoui::frame::BoxMetrics systemMetrics();
    static std::wstring labelOf(const ovoui::frame::MessageBoxButton& button);
    const ovoui::frame::MessageBoxButtons& buttons() const { return m_buttons; }
    ovoui::frame::MessageBoxButton& defaultButton();
    ovoui::frame::Extent buttonSize() const { return {m_buttonWidth, m_buttonHeight}; }
    MessageText& text() { return m_text; }

    /// Sets the size of the open box, which stays on the screen. That is no move by the user.
    void resize(const ovoui::frame::Extent& size);

    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnCancel() override;

    afx_msg BOOL OnAnswer(UINT id);
    afx_msg void OnHelp();
    afx_msg void OnClose();
    afx_msg void OnMove(int x, int y);
    afx_msg LRESULT OnDpiChanged(WPARAM, LPARAM);
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    struct Measured
    {
        ovoui::frame::Extent text;
        int lineHeight;
        int widthLimit; ///< at which the text is wrapped
    };

    // Steps of OnInitDialog (MsgBoxDlgInit.cpp).
    void readSavedPosition();
    void useGuiFont();
    ovoui::frame::Extent fitText();
    Measured measure(CPoint place);
    void measureButtons(CDC& dc, const TEXTMETRICW& font);
    ovoui::frame::Extent measureText(CDC& dc);
    void addScrollBars(const ovoui::frame::TextArea& area);
    void placeDialog(const ovoui::frame::Extent& size);
    void createButtons();
    void createButton(const ovoui::frame::MessageBoxButton& button, int position);
    void createIcon();
    void moveAnchorToSavedPosition();
    ovoui::frame::Box areaToCentreIn() const;

    void copyByKeyboard();
    void savePosition();

    MessageText m_text;
    HWND m_owner;
    std::wstring m_message;
    CString m_caption;
    UINT m_type;
    CString m_settingsKey;
    UINT m_helpId;
    bool m_moved = false;
    int m_buttonHeight = 0;
    int m_buttonWidth = 0;
    UINT m_helpMessage = 0;
    bool m_focusSet = false;
    HWND m_anchor = nullptr; // the default button

    ovoui::frame::BoxExtras m_extras;
    ovoui::frame::MessageBoxButtons m_buttons;
    ovoui::frame::SavedPosition m_saved;
};
