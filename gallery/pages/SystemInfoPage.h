// The loaded modules and the machine: as dialogs and as data.
#pragma once

#include "GalleryPage.h"

class SystemInfoPage : public GalleryPage
{
public:
    SystemInfoPage();
    ~SystemInfoPage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnDialog();
    afx_msg void OnList();
    afx_msg void OnForm();
    afx_msg void OnRefresh();
    DECLARE_MESSAGE_MAP()

private:
    void showData();

    CComboBox m_form;
};
