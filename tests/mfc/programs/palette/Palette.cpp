// Palette.cpp : a list and a menu that draw their items themselves
#include "stdafx.h"
#include "Resource.h"
#include "ColourListBox.h"
#include "ColourMenu.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

struct CColour
{
    LPCTSTR lpszName;
    COLORREF crColour;
};

static const CColour colours[] = {
    {_T("Crimson"), RGB(220, 20, 60)},
    {_T("Forest"), RGB(34, 139, 34)},
    {_T("Ocean"), RGB(0, 105, 148)},
};
static const int nColours = sizeof(colours) / sizeof(colours[0]);

class CPaletteDlg : public CDialog
{
public:
    CPaletteDlg() : CDialog(IDD_PALETTE_DIALOG) {}

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();

    afx_msg void OnSelchangeColours();
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg void OnColour(UINT nID);
    DECLARE_MESSAGE_MAP()

private:
    CColourListBox m_lbColours;
};

BEGIN_MESSAGE_MAP(CPaletteDlg, CDialog)
    ON_WM_CONTEXTMENU()
    ON_LBN_SELCHANGE(IDC_COLOURS, &CPaletteDlg::OnSelchangeColours)
    ON_COMMAND_RANGE(ID_COLOUR_FIRST, ID_COLOUR_FIRST + nColours - 1, &CPaletteDlg::OnColour)
END_MESSAGE_MAP()

void CPaletteDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_COLOURS, m_lbColours);
}

BOOL CPaletteDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    for (int i = 0; i < nColours; i++)
        m_lbColours.AddColour(colours[i].lpszName, colours[i].crColour);
    return TRUE;
}

void CPaletteDlg::OnSelchangeColours()
{
    CString strName;
    m_lbColours.GetText(m_lbColours.GetCurSel(), strName);
    SetDlgItemText(IDC_CHOSEN, strName);
}

void CPaletteDlg::OnContextMenu(CWnd* /*pWnd*/, CPoint point)
{
    CColourMenu menu;
    VERIFY(menu.CreatePopupMenu());
    for (int i = 0; i < nColours; i++)
        menu.AppendColour(ID_COLOUR_FIRST + i, colours[i].crColour);
    if (point.x == -1 && point.y == -1) {
        CRect rect;
        m_lbColours.GetWindowRect(rect);
        point = rect.TopLeft() + CSize(20, 20);
    }
    menu.TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON, point.x, point.y, this);
}

void CPaletteDlg::OnColour(UINT nID)
{
    m_lbColours.SetCurSel(nID - ID_COLOUR_FIRST);
    OnSelchangeColours();
}

class CPaletteApp : public CWinApp
{
public:
    virtual BOOL InitInstance()
    {
        CWinApp::InitInstance();
        CPaletteDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
};

CPaletteApp theApp;
