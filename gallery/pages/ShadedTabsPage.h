// The same controls on a shaded tab control and on an ordinary one.
#pragma once

#include "GalleryPage.h"
#include "resource.h"

#include <ovoui/colour/ShadedTabCtrl.h>

/// A dialog on the page of a tab control.
class TabContent : public CDialog
{
public:
    /// Makes the dialog for the chosen tab and puts it where the tab control has its page. One that was
    /// there before goes.
    bool open(CTabCtrl& tabs);
    /// Back to that place.
    void fit();

    /// Keys of dialogs are handled by the frame: Tab goes on behind this dialog's last control.
    BOOL PreTranslateMessage(MSG* message) override { return CWnd::PreTranslateMessage(message); }

protected:
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    // It is no dialog to be closed.
    void OnOK() override {}
    void OnCancel() override {}
    DECLARE_MESSAGE_MAP()

private:
    void fill();
    void fillMore();
    void alignTools();
};

class ShadedTabsPage : public GalleryPage
{
public:
    ShadedTabsPage();
    ~ShadedTabsPage() override;

    BOOL PreTranslateMessage(MSG* message) override;
    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    afx_msg void OnTab(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    CShadedTabCtrl m_shaded;
    CTabCtrl m_plain;
    TabContent m_onShaded;
    TabContent m_onPlain;
};
