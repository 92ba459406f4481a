#include "ColourSheet.h"

#include "resource.h"

ColourSheetPage::ColourSheetPage(const PickerHost& host, const Colour& colour)
    : CPropertyPage(IDD_COLOUR_SHEET_PAGE)
    , m_tabs(m_listener, colour)
{
    m_listener.changed = [this, &host](const Colour& picked, bool final) {
        SetModified();
        host.changed(picked, final);
    };
}

void ColourSheetPage::DoDataExchange(CDataExchange* exchange)
{
    CPropertyPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_SHEET_TABS, m_tabs);
}

BOOL ColourSheetPage::OnInitDialog()
{
    CPropertyPage::OnInitDialog();
    m_tabs.open({L"Leaves", L"Bark"});
    return TRUE;
}

BEGIN_MESSAGE_MAP(LineSheetPage, CPropertyPage)
    ON_EN_CHANGE(IDC_LINE_WIDTH, &LineSheetPage::OnChange)
    ON_BN_CLICKED(IDC_LINE_DASHED, &LineSheetPage::OnChange)
END_MESSAGE_MAP()

LineSheetPage::LineSheetPage()
    : CPropertyPage(IDD_LINE_SHEET_PAGE)
{
}

void LineSheetPage::DoDataExchange(CDataExchange* exchange)
{
    constexpr int kWidest = 20;
    CPropertyPage::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_LINE_WIDTH, m_width);
    DDV_MinMaxInt(exchange, m_width, 1, kWidest);
    DDX_Check(exchange, IDC_LINE_DASHED, m_dashed);
}

BOOL LineSheetPage::OnInitDialog()
{
    CPropertyPage::OnInitDialog();
    SetModified(FALSE); // filling the controls is no change
    return TRUE;
}

void LineSheetPage::OnChange()
{
    SetModified();
}

ColourSheet::ColourSheet(const PickerHost& host, const Colour& colour, CWnd* parent)
    : CPropertySheet(L"Properties of the Leaves", parent)
    , m_colourPage(host, colour)
{
    AddPage(&m_colourPage);
    AddPage(&m_linePage);
}
