/// Not exported: the dialog behind COVOProgressBox.
#pragma once

#include <ovoui/frame/Lifeline.h>
#include <ovoui/frame/MsgBoxDlg.h>
#include <ovoui/frame/core/BoxExtras.h>

class COVOProgressBoxDlg : public COVOMsgBoxDlg
{
public:
    COVOProgressBoxDlg(HWND owner, const std::wstring& text, const std::wstring& caption);
    ~COVOProgressBoxDlg() override;

    void open();
    void close();
    bool isCancelled() const { return m_cancelled; }

    void show(ULONGLONG done, ULONGLONG total);
    void setText(const std::wstring& text);
    /// False when the dialog object was deleted by what a message has led to.
    bool letMessagesThrough();

protected:
    BOOL OnInitDialog() override;
    void OnCancel() override;
    ovoui::frame::BoxExtras extras() override;

    afx_msg BOOL OnCancelButton(UINT id);
    afx_msg void OnEnter() {} ///< without the button there is nothing to answer
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void enableOwner();
    void showUnknown();
    static bool dispatchOne();

    Lifeline m_lifeline;
    HWND m_owner;
    bool m_disablesOwner = false;
    bool m_opened = false;
    bool m_cancelled = false;
    ULONGLONG m_lastMessages = 0; ///< when they were let through
    HWND m_bar = nullptr;
    ovoui::frame::ExtraControls m_controls;
};
