// Completing combo boxes, with every choice that a host has.
#pragma once

#include "GalleryPage.h"

#include <ovoui/images/AlphaImageList.h>
#include <ovoui/lists/ComboBox.h>

class ComboPage : public GalleryPage
{
public:
    ComboPage();
    ~ComboPage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    afx_msg void OnFlags();
    afx_msg void OnAccepted();
    afx_msg void OnRejected();
    DECLARE_MESSAGE_MAP()

private:
    void fillColours();
    void fillParts();

    CAlphaImageList m_images; // shown by the last combo box until its end
    COVOComboBox m_plant;
    COVOComboBox m_used;
    COVOComboBox m_colour;
    COVOComboBox m_part;
};
