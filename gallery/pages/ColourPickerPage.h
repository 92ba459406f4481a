// The colour picker's dialogs, and a preview that follows them.
#pragma once

#include "ColourSample.h"
#include "GalleryPage.h"
#include "model/PickerDialogs.h"
#include "resource.h"

#include <ovoui/colour/ColourButton.h>
#include <ovoui/colour/ColourDropper.h>

class ColourPickerPage : public GalleryPage
{
public:
    ColourPickerPage();
    ~ColourPickerPage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnPick();
    afx_msg void OnCustomColours();
    afx_msg void OnOnTab();
    afx_msg void OnInSheet();
    afx_msg void OnModeless();
    afx_msg void OnPalette();
    afx_msg void OnAlpha();
    afx_msg void OnButtonChosen();
    afx_msg void OnButtonPointed();
    afx_msg void OnButtonClosed();
    afx_msg void OnTaken();
    DECLARE_MESSAGE_MAP()

private:
    ColPickerModeType chosenMode() const;
    bool byKeyboard() const { return IsDlgButtonChecked(IDC_PICK_KEYS) != 0; }
    void use(const Colour& colour);
    bool posePage(const std::wstring& name);
    void show(const Colour& colour);
    void picked(INT_PTR answer, const Colour& colour);

    PickerHost m_host;
    Colour m_colour = Colour::rgba(0.85, 0.36, 0.12, -1);
    ColourSample m_sample;
    CColourButton m_button;
    CColourDropper m_dropper;
    std::unique_ptr<LivePicker> m_modeless;
};
