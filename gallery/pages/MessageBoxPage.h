// OVOMessageBox with every flag to choose, and what COVOMessageDialog and COVOProgressBox add.
#pragma once

#include "GalleryPage.h"

#include <ovoui/frame/MessageBox.h>
#include <ovoui/frame/ProgressBox.h>

#include <memory>

class MessageBoxPage : public GalleryPage
{
public:
    MessageBoxPage();
    ~MessageBoxPage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnShow();
    afx_msg void OnOwnButtons();
    afx_msg void OnForget();
    afx_msg void OnProgress();
    afx_msg LRESULT OnHelpAsked(WPARAM box, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    UINT chosenType() const;
    void showRemembered();
    void showAnswer(const wchar_t* function, int answer);
    int askAboutFonts(HWND owner) const;

    CComboBox m_buttonsCombo;
    CComboBox m_iconCombo;
    CComboBox m_defaultCombo;
    CString m_text;
    CString m_caption;
    CString m_key;
    UINT m_helpId = 0;
    int m_help = 0;
    std::unique_ptr<COVOProgressBox> m_posed;
};
