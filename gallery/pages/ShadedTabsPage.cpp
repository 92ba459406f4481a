#include "ShadedTabsPage.h"

#include "DialogResolution.h"

#include "Resolution.h"

#include <ovoui/frame/TabKeys.h>

#include <array>

BEGIN_MESSAGE_MAP(TabContent, CDialog)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

namespace
{

constexpr int kColumnWidth = 80;
constexpr int kPercentDone = 60;
constexpr int kYearsOld = 42;

} // namespace

bool TabContent::open(CTabCtrl& tabs)
{
    if (::IsChild(m_hWnd, ::GetFocus()))
        tabs.SetFocus();
    if (m_hWnd)
        DestroyWindow();
    const bool isFirst = tabs.GetCurSel() == 0;
    if (!createAtResolution(*this, isFirst ? IDD_TAB_CONTENT : IDD_MORE_TAB_CONTENT, tabs))
        return false;
    if (isFirst)
        fill();
    else
        fillMore();
    fit();
    ShowWindow(SW_SHOW);
    return true;
}

void TabContent::fill()
{
    static constexpr std::array kTrees{L"Ash", L"Beech", L"Elm", L"Oak"};
    CheckDlgButton(IDC_CONTENT_CHECK, BST_CHECKED);
    CheckDlgButton(IDC_CONTENT_ROUND, BST_CHECKED);
    SetDlgItemText(IDC_CONTENT_EDIT, L"Copper beech");
    SetDlgItemText(IDC_CONTENT_READ_ONLY, L"Fagus sylvatica");
    SendDlgItemMessage(IDC_CONTENT_ICON, STM_SETICON,
                       reinterpret_cast<WPARAM>(::LoadIconW(nullptr, IDI_INFORMATION)));
    CListCtrl rows;
    rows.Attach(*GetDlgItem(IDC_CONTENT_ROWS));
    rows.InsertColumn(0, L"Tree", LVCFMT_LEFT, scaled(m_hWnd, kColumnWidth));
    CTreeCtrl tree;
    tree.Attach(*GetDlgItem(IDC_CONTENT_TREE));
    const HTREEITEM root = tree.InsertItem(L"Broad-leaved");
    int row = 0;
    for (const wchar_t* const name : kTrees) {
        SendDlgItemMessage(IDC_CONTENT_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
        SendDlgItemMessage(IDC_CONTENT_KIND, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
        SendDlgItemMessage(IDC_CONTENT_PLACE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
        rows.InsertItem(row++, name);
        tree.InsertItem(name, root);
    }
    rows.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED);
    rows.Detach();
    tree.Detach();
    SendDlgItemMessage(IDC_CONTENT_KIND, CB_SETCURSEL, 1);
    SendDlgItemMessage(IDC_CONTENT_PLACE, CB_SETCURSEL, 2);
    SendDlgItemMessage(IDC_CONTENT_PROGRESS, PBM_SETPOS, kPercentDone);
    SendDlgItemMessage(IDC_CONTENT_SPIN, UDM_SETPOS, 0, kYearsOld);
}

void TabContent::fillMore()
{
    SendDlgItemMessage(IDC_CONTENT_KEY, HKM_SETHOTKEY, MAKEWORD('B', HOTKEYF_CONTROL | HOTKEYF_ALT));
    SendDlgItemMessage(IDC_CONTENT_ADDRESS, IPM_SETADDRESS, 0, MAKEIPADDRESS(192, 0, 2, 1));
    for (const wchar_t* const name : {L"Drawknife", L"Spud"}) {
        COMBOBOXEXITEM item{};
        item.mask = CBEIF_TEXT;
        item.iItem = -1;
        item.pszText = const_cast<LPTSTR>(name);
        SendDlgItemMessage(IDC_CONTENT_CHOICE, CBEM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
    }
    SendDlgItemMessage(IDC_CONTENT_CHOICE, CB_SETCURSEL, 0);
    SendDlgItemMessage(IDC_CONTENT_TOOLS, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    int command = 1;
    for (const wchar_t* const name : {L"Scrape", L"Tan"}) {
        TBBUTTON button{};
        button.iBitmap = I_IMAGENONE;
        button.idCommand = command++;
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE | BTNS_SHOWTEXT;
        button.iString = reinterpret_cast<INT_PTR>(name);
        SendDlgItemMessage(IDC_CONTENT_TOOLS, TB_ADDBUTTONS, 1, reinterpret_cast<LPARAM>(&button));
    }
    alignTools();
}

/// The system decides how high the buttons are; their texts are to stand in one line with the link.
void TabContent::alignTools()
{
    CWnd& tools = *GetDlgItem(IDC_CONTENT_TOOLS);
    CRect bar;
    tools.GetWindowRect(&bar);
    ScreenToClient(&bar);
    CRect line;
    GetDlgItem(IDC_CONTENT_LINK)->GetWindowRect(&line);
    ScreenToClient(&line);
    CRect button;
    tools.SendMessage(TB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&button));
    tools.SetWindowPos(nullptr, bar.left, line.CenterPoint().y - button.CenterPoint().y, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void TabContent::fit()
{
    auto* const tabs = static_cast<CTabCtrl*>(GetParent());
    CRect page;
    tabs->GetClientRect(&page);
    tabs->AdjustRect(FALSE, &page);
    MoveWindow(&page);
}

// On an ordinary tab control this changes nothing.
HBRUSH TabContent::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    return CShadedTabCtrl::AmendCtlColor(dc, control, type, CDialog::OnCtlColor(dc, control, type));
}

BEGIN_MESSAGE_MAP(ShadedTabsPage, GalleryPage)
    ON_NOTIFY(TCN_SELCHANGE, IDC_SHADED_TABS, &ShadedTabsPage::OnTab)
    ON_NOTIFY(TCN_SELCHANGE, IDC_PLAIN_TABS, &ShadedTabsPage::OnTab)
END_MESSAGE_MAP()

ShadedTabsPage::ShadedTabsPage()
    : GalleryPage(IDD_PAGE_SHADED_TABS)
{
}

ShadedTabsPage::~ShadedTabsPage() = default;

BOOL ShadedTabsPage::PreTranslateMessage(MSG* message)
{
    const bool onPlain = ::IsChild(m_plain.m_hWnd, message->hwnd) || message->hwnd == m_plain.m_hWnd;
    const HWND tabs = onPlain ? m_plain.m_hWnd : m_shaded.m_hWnd;
    return PreTranslateTabControl(*message, tabs) || GalleryPage::PreTranslateMessage(message);
}

void ShadedTabsPage::DoDataExchange(CDataExchange* exchange)
{
    GalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_SHADED_TABS, m_shaded);
    DDX_Control(exchange, IDC_PLAIN_TABS, m_plain);
}

BOOL ShadedTabsPage::OnInitDialog()
{
    // For the addresses and links of the second pages, which the framework does not start.
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_INTERNET_CLASSES | ICC_LINK_CLASS};
    ::InitCommonControlsEx(&classes);
    GalleryPage::OnInitDialog();
    for (CTabCtrl* const tabs : {static_cast<CTabCtrl*>(&m_shaded), &m_plain}) {
        int index = 0;
        for (const wchar_t* title : {L"Leaves", L"Bark"})
            tabs->InsertItem(index++, title);
    }
    m_onShaded.open(m_shaded);
    m_onPlain.open(m_plain);
    stretch(IDC_SHADED_TABS, {.growX = 50, .growY = 100});
    stretch(IDC_PLAIN_TABS_LABEL, {.moveX = 50});
    stretch(IDC_PLAIN_TABS, {.moveX = 50, .growX = 50, .growY = 100});
    return FALSE;
}

void ShadedTabsPage::OnTab(NMHDR* header, LRESULT*)
{
    if (header->idFrom == IDC_PLAIN_TABS)
        m_onPlain.open(m_plain);
    else
        m_onShaded.open(m_shaded);
}

std::vector<std::wstring> ShadedTabsPage::poses() const
{
    return {L"more-controls"};
}

bool ShadedTabsPage::pose(const std::wstring& name)
{
    if (name != L"more-controls")
        return false;
    m_shaded.SetCurSel(1);
    m_plain.SetCurSel(1);
    m_onShaded.open(m_shaded);
    m_onPlain.open(m_plain);
    return true;
}

/// The tab controls have their new sizes when the base class has laid out the page.
LRESULT ShadedTabsPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = GalleryPage::WindowProc(message, wParam, lParam);
    if (message == WM_SIZE)
        for (TabContent* const content : {&m_onShaded, &m_onPlain})
            if (content->m_hWnd)
                content->fit();
    return result;
}
