// A property sheet as a host writes it: the colour is picked on a shaded tab control of its first page.
#pragma once

#include "PickerDialogs.h"

#include <afxdlgs.h>

/// The page with the tab control. It can be applied when the colour has changed.
class ColourSheetPage : public CPropertyPage
{
public:
    ColourSheetPage(const PickerHost& host, const Colour& colour);

    Colour colour() { return m_tabs.colour(); }

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    PickerHost m_listener; ///< to the picker, before the host
    PickerTabs m_tabs;
};

/// A page with numbers, which are exchanged when the user leaves it.
class LineSheetPage : public CPropertyPage
{
public:
    LineSheetPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    afx_msg void OnChange();
    DECLARE_MESSAGE_MAP()

private:
    int m_width = 3;
    BOOL m_dashed = FALSE;
};

class ColourSheet : public CPropertySheet
{
public:
    ColourSheet(const PickerHost& host, const Colour& colour, CWnd* parent);

    Colour colour() { return m_colourPage.colour(); }

private:
    ColourSheetPage m_colourPage;
    LineSheetPage m_linePage;
};
