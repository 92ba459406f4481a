// ControlsDlg.h : the dialog
#pragma once

class CControlsDlg : public CDialog
{
public:
    CControlsDlg(CWnd* pParent = NULL);

    enum { IDD = IDD_CONTROLS_DIALOG };

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual void OnOK();

    afx_msg void OnPaint();
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnShow();
    afx_msg void OnSelchangeCountry();
    afx_msg void OnTreesSelchanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnBooksItemchanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnPagesSelchange(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    void FillTrees();
    void FillBooks();
    void AddLine(CString& strText, LPCTSTR lpszName, LPCTSTR lpszValue);

    HICON m_hIcon;
    CImageList m_ilLeaves;

    CString m_strPerson;
    int m_nAge;
    BOOL m_bMember;
    int m_nSex;
    CString m_strSport;
    int m_nVolume;
    CTime m_timeBorn;
    COleDateTime m_dateMonth;
    DWORD m_dwAddress;
    CString m_strTree;
    CString m_strBook;

    CComboBox m_cbCountry;
    CListBox m_lbSports;
    CSpinButtonCtrl m_spinAge;
    CSliderCtrl m_sliderVolume;
    CProgressCtrl m_progressLevel;
    CTreeCtrl m_treeTrees;
    CListCtrl m_listBooks;
    CTabCtrl m_tabPages;
    CDateTimeCtrl m_dtBorn;
    CMonthCalCtrl m_calMonth;
    CHotKeyCtrl m_keyShortcut;
    CIPAddressCtrl m_ipAddress;
    CAnimateCtrl m_clip;
};
