/// Not exported: the dialog behind COVOMessageDialog.
#pragma once

#include <ovoui/frame/MessageDialog.h>
#include <ovoui/frame/MsgBoxDlg.h>
#include <ovoui/frame/core/BoxExtras.h>
#include <ovoui/frame/core/Countdown.h>

class COVOMessageDialogBox : public COVOMsgBoxDlg
{
public:
    explicit COVOMessageDialogBox(const COVOMessageDialog& message);
    ~COVOMessageDialogBox() override;

    /// Whether an answer may be kept, and given without showing the box.
    bool mayBeKept(int answer) const;
    /// Whether the user has asked for the answer to be kept, and has given one: a box also goes with its
    /// owner and with the program.
    bool keepsAnswer() const { return m_keepsAnswer && m_answered; }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    ovoui::frame::BoxExtras extras() override;

    afx_msg void OnNotAgain();
    afx_msg void OnDetails();
    afx_msg void OnClose();
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    static ovoui::frame::MessageBoxButtons buttonsOf(const COVOMessageDialog& message);
    ovoui::frame::Extent measuredLabel(const std::wstring& label);
    int detailsHeight();
    bool copiesDetails(const MSG& message);

    // countdown
    void showCount(const std::wstring& label);
    void stopCountdown();

    // controls
    void createControls();
    HWND createControl(const wchar_t* windowClass, const std::wstring& text, DWORD style, DWORD extendedStyle,
                       int id);
    void placeControls();
    void showDetails(bool show);

    const COVOMessageDialog& m_message;
    ovoui::frame::ExtraControls m_controls;
    ovoui::frame::Countdown m_countdown;
    std::wstring m_defaultLabel; ///< without the count
    bool m_keepsAnswer = false;
    bool m_answered = false;
};
