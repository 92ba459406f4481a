#include "GeometryPage.h"

#include "resource.h"

#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/TabKeys.h>

BEGIN_MESSAGE_MAP(GeometryPage, GalleryPage)
    ON_NOTIFY(TCN_SELCHANGE, IDC_TABS, OnTabChanged)
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
    CRect place;
    GetDlgItem(IDC_MAP)->GetWindowRect(&place);
    ScreenToClient(&place);
    m_map.create(*this, place, [this](const CRect& rect) { showPlace(rect); });
    showPlace(m_map.rectangle());

    int index = 0;
    for (const wchar_t* title : {L"Oak", L"Elm", L"Ash", L"Fir"})
        m_tabs.InsertItem(index++, title);
    showTab();
    return FALSE;
}

void GeometryPage::showPlace(const CRect& rect)
{
    SetDlgItemText(IDC_MAP_TEXT, asText(L"Rectangle", rect) + L"\n" + asText(L"Work area", GetWorkArea(rect)));
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
