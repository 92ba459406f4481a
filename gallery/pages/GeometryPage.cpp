#include "GeometryPage.h"

#include "resource.h"

#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/TabKeys.h>

BEGIN_MESSAGE_MAP(GeometryPage, GalleryPage)
    ON_NOTIFY(TCN_SELCHANGE, IDC_TABS, &GeometryPage::OnTabChanged)
END_MESSAGE_MAP()

namespace
{

CString asText(const wchar_t* name, const CRect& rect)
{
    CString text;
    text.Format(L"%s\n%d, %d to %d, %d\n", name, rect.left, rect.top, rect.right, rect.bottom);
    return text;
}

} // namespace

GeometryPage::GeometryPage()
    : GalleryPage(IDD_PAGE_GEOMETRY)
{
}

GeometryPage::~GeometryPage() = default;

BOOL GeometryPage::PreTranslateMessage(MSG* message)
{
    return PreTranslateTabControl(*message, m_tabs.m_hWnd) || GalleryPage::PreTranslateMessage(message);
}

void GeometryPage::DoDataExchange(CDataExchange* exchange)
{
    GalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_TABS, m_tabs);
}

BOOL GeometryPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    m_map.create(*this, [this](const CRect& rect) { showPlace(rect); });
    replace(IDC_MAP, m_map);
    showPlace(m_map.rectangle());

    int index = 0;
    for (const wchar_t* title : {L"Oak", L"Elm", L"Ash", L"Fir"})
        m_tabs.InsertItem(index++, title);
    showTab();
    stretch(IDC_MAP, {.growX = 100, .growY = 100});
    stretch(IDC_MAP_TEXT, {.moveX = 100});
    stretch(IDC_TABS_LABEL, {.moveY = 100});
    stretch(IDC_TABS, {.moveY = 100, .growX = 100});
    stretch(IDC_TAB_TEXT, {.moveX = 100, .moveY = 100});
    return FALSE;
}

void GeometryPage::showPlace(const CRect& rect)
{
    SetDlgItemText(IDC_MAP_TEXT,
                   asText(L"Rectangle", rect) + L"\n" + asText(L"Work area", GetWorkArea(rect)));
}

void GeometryPage::showTab()
{
    CString text;
    text.Format(L"Tab %d of %d", m_tabs.GetCurSel() + 1, m_tabs.GetItemCount());
    SetDlgItemText(IDC_TAB_TEXT, text);
}

void GeometryPage::OnTabChanged(NMHDR*, LRESULT* result)
{
    showTab();
    *result = 0;
}
