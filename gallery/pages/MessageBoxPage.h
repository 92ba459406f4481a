// OVOMessageBox with every flag to choose.
#pragma once

#include "GalleryPage.h"

#include <ovoui/frame/MessageBox.h>

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
    afx_msg LRESULT OnHelpAsked(WPARAM box, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    UINT chosenType() const;
    void showRemembered();

    CComboBox m_buttonsCombo;
    CComboBox m_iconCombo;
    CComboBox m_defaultCombo;
    CString m_text;
    CString m_caption;
    CString m_key;
    UINT m_helpId = 0;
    int m_help = 0;
};
