// ControlsDlg.cpp : the dialog
#include "stdafx.h"
#include "Controls.h"
#include "ControlsDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

CControlsDlg::CControlsDlg(CWnd* pParent /*=NULL*/)
    : CDialog(CControlsDlg::IDD, pParent)
    , m_nAge(30)
    , m_bMember(FALSE)
    , m_nSex(1)
    , m_nVolume(3)
    , m_timeBorn(1979, 5, 17, 0, 0, 0)
    , m_dateMonth(2009, 3, 19, 0, 0, 0)
    , m_dwAddress(0)
{
    m_hIcon = AfxGetApp()->LoadIcon(IDR_MAINFRAME);
}

void CControlsDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_COUNTRY, m_cbCountry);
    DDX_Control(pDX, IDC_SPORTS, m_lbSports);
    DDX_Control(pDX, IDC_AGE_SPIN, m_spinAge);
    DDX_Control(pDX, IDC_VOLUME, m_sliderVolume);
    DDX_Control(pDX, IDC_LEVEL, m_progressLevel);
    DDX_Control(pDX, IDC_TREES, m_treeTrees);
    DDX_Control(pDX, IDC_BOOKS, m_listBooks);
    DDX_Control(pDX, IDC_PAGES, m_tabPages);
    DDX_Control(pDX, IDC_BORN, m_dtBorn);
    DDX_Control(pDX, IDC_MONTH, m_calMonth);
    DDX_Control(pDX, IDC_SHORTCUT, m_keyShortcut);
    DDX_Control(pDX, IDC_ADDRESS, m_ipAddress);
    DDX_Control(pDX, IDC_CLIP, m_clip);
    DDX_Text(pDX, IDC_PERSON, m_strPerson);
    DDV_MaxChars(pDX, m_strPerson, 20);
    DDX_Text(pDX, IDC_AGE, m_nAge);
    DDV_MinMaxInt(pDX, m_nAge, 0, 120);
    DDX_Check(pDX, IDC_MEMBER, m_bMember);
    DDX_Radio(pDX, IDC_MALE, m_nSex);
    DDX_LBString(pDX, IDC_SPORTS, m_strSport);
    DDX_Slider(pDX, IDC_VOLUME, m_nVolume);
    DDX_DateTimeCtrl(pDX, IDC_BORN, m_timeBorn);
    DDX_MonthCalCtrl(pDX, IDC_MONTH, m_dateMonth);
    DDX_IPAddress(pDX, IDC_ADDRESS, m_dwAddress);
}

BEGIN_MESSAGE_MAP(CControlsDlg, CDialog)
    ON_WM_PAINT()
    ON_WM_QUERYDRAGICON()
    ON_WM_HSCROLL()
    ON_BN_CLICKED(IDC_SHOW, &CControlsDlg::OnShow)
    ON_CBN_SELCHANGE(IDC_COUNTRY, &CControlsDlg::OnSelchangeCountry)
    ON_NOTIFY(TVN_SELCHANGED, IDC_TREES, &CControlsDlg::OnTreesSelchanged)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_BOOKS, &CControlsDlg::OnBooksItemchanged)
    ON_NOTIFY(TCN_SELCHANGE, IDC_PAGES, &CControlsDlg::OnPagesSelchange)
END_MESSAGE_MAP()

BOOL CControlsDlg::OnInitDialog()
{
    m_ilLeaves.Create(IDB_LEAVES, 16, 0, RGB(255, 0, 255));
    CDialog::OnInitDialog();

    SetIcon(m_hIcon, TRUE);
    SetIcon(m_hIcon, FALSE);

    m_cbCountry.AddString(_T("Austria"));
    m_cbCountry.AddString(_T("Belgium"));
    m_cbCountry.AddString(_T("Cyprus"));
    m_cbCountry.SetCurSel(0);

    static const LPCTSTR sports[] = {_T("Chess"), _T("Rowing"), _T("Tennis")};
    for (int i = 0; i < 3; i++)
        m_lbSports.AddString(sports[i]);

    m_spinAge.SetRange32(0, 120);
    m_sliderVolume.SetRange(0, 10, TRUE);
    m_sliderVolume.SetPos(m_nVolume);
    m_progressLevel.SetRange(0, 10);
    m_progressLevel.SetPos(m_nVolume);

    FillTrees();
    FillBooks();
    m_tabPages.InsertItem(0, _T("Plain"));
    m_tabPages.InsertItem(1, _T("Detailed"));

    m_keyShortcut.SetHotKey('K', HOTKEYF_CONTROL);
    m_ipAddress.SetAddress(10, 0, 0, 1);
    return TRUE; // return TRUE unless you set the focus to a control
}

void CControlsDlg::FillTrees()
{
    m_treeTrees.SetImageList(&m_ilLeaves, TVSIL_NORMAL);
    HTREEITEM hBroad = m_treeTrees.InsertItem(_T("Broadleaf"), 0, 0);
    m_treeTrees.InsertItem(_T("Oak"), 0, 1, hBroad);
    m_treeTrees.InsertItem(_T("Elm"), 0, 1, hBroad);
    m_treeTrees.InsertItem(_T("Conifer"), 0, 0);
    m_treeTrees.Expand(hBroad, TVE_EXPAND);
}

void CControlsDlg::FillBooks()
{
    m_listBooks.SetExtendedStyle(m_listBooks.GetExtendedStyle() | LVS_EX_FULLROWSELECT);
    m_listBooks.InsertColumn(0, _T("Title"), LVCFMT_LEFT, 80);
    m_listBooks.InsertColumn(1, _T("Year"), LVCFMT_RIGHT, 50);
    int nItem = m_listBooks.InsertItem(0, _T("Emma"));
    m_listBooks.SetItemText(nItem, 1, _T("1815"));
    nItem = m_listBooks.InsertItem(1, _T("Kim"));
    m_listBooks.SetItemText(nItem, 1, _T("1901"));
}

void CControlsDlg::OnPaint()
{
    if (!IsIconic()) {
        CDialog::OnPaint();
        return;
    }
    CPaintDC dc(this);
    SendMessage(WM_ICONERASEBKGND, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), 0);
    CRect rect;
    GetClientRect(&rect);
    dc.DrawIcon((rect.Width() - GetSystemMetrics(SM_CXICON) + 1) / 2,
                (rect.Height() - GetSystemMetrics(SM_CYICON) + 1) / 2, m_hIcon);
}

HCURSOR CControlsDlg::OnQueryDragIcon()
{
    return static_cast<HCURSOR>(m_hIcon);
}

void CControlsDlg::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if ((CWnd*)pScrollBar == &m_sliderVolume)
        m_progressLevel.SetPos(m_sliderVolume.GetPos());
    CDialog::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CControlsDlg::AddLine(CString& strText, LPCTSTR lpszName, LPCTSTR lpszValue)
{
    CString strLine;
    strLine.Format(_T("%s: %s\r\n"), lpszName, lpszValue);
    strText += strLine;
}

void CControlsDlg::OnShow()
{
    if (!UpdateData())
        return;
    CString strText, strValue;
    strValue.Format(_T("%s, %d, %s"), (LPCTSTR)m_strPerson, m_nAge, m_nSex == 0 ? _T("male") : _T("female"));
    AddLine(strText, _T("Person"), strValue);
    AddLine(strText, _T("Member"), m_bMember ? _T("yes") : _T("no"));
    m_cbCountry.GetLBText(m_cbCountry.GetCurSel(), strValue);
    AddLine(strText, _T("Country"), strValue);
    AddLine(strText, _T("Sport"), m_strSport);
    strValue.Format(_T("%d of %d"), m_nVolume, m_progressLevel.GetPos());
    AddLine(strText, _T("Volume"), strValue);
    AddLine(strText, _T("Tree"), m_strTree);
    AddLine(strText, _T("Book"), m_strBook);
    strValue.Format(_T("%d"), m_tabPages.GetCurSel());
    AddLine(strText, _T("Page"), strValue);
    AddLine(strText, _T("Born"), m_timeBorn.Format(_T("%Y-%m-%d")));
    AddLine(strText, _T("Day"), m_dateMonth.Format(_T("%Y-%m-%d")));
    DWORD dwKey = m_keyShortcut.GetHotKey();
    strValue.Format(_T("%c with %u"), LOBYTE(dwKey), HIBYTE(dwKey));
    AddLine(strText, _T("Key"), strValue);
    strValue.Format(_T("%u.%u.%u.%u"), FIRST_IPADDRESS(m_dwAddress), SECOND_IPADDRESS(m_dwAddress),
                    THIRD_IPADDRESS(m_dwAddress), FOURTH_IPADDRESS(m_dwAddress));
    AddLine(strText, _T("Address"), strValue);
    SetDlgItemText(IDC_SUMMARY, strText);
}

void CControlsDlg::OnOK()
{
    // Enter in a field shows, and does not close the dialog.
    OnShow();
}

void CControlsDlg::OnSelchangeCountry()
{
    CString strCountry;
    m_cbCountry.GetLBText(m_cbCountry.GetCurSel(), strCountry);
    SetWindowText(_T("Controls - ") + strCountry);
}

void CControlsDlg::OnTreesSelchanged(NMHDR* pNMHDR, LRESULT* pResult)
{
    LPNMTREEVIEW pNMTreeView = reinterpret_cast<LPNMTREEVIEW>(pNMHDR);
    m_strTree = m_treeTrees.GetItemText(pNMTreeView->itemNew.hItem);
    *pResult = 0;
}

void CControlsDlg::OnBooksItemchanged(NMHDR* pNMHDR, LRESULT* pResult)
{
    LPNMLISTVIEW pNMLV = reinterpret_cast<LPNMLISTVIEW>(pNMHDR);
    if (pNMLV->uNewState & LVIS_SELECTED)
        m_strBook = m_listBooks.GetItemText(pNMLV->iItem, 0) + _T(" of ") + m_listBooks.GetItemText(pNMLV->iItem, 1);
    *pResult = 0;
}

void CControlsDlg::OnPagesSelchange(NMHDR* /*pNMHDR*/, LRESULT* pResult)
{
    GetDlgItem(IDC_TREES)->EnableWindow(m_tabPages.GetCurSel() == 0);
    *pResult = 0;
}
