// EnsureRectVisible, GetWorkArea and PreTranslateTabControl.
#pragma once

#include "GalleryPage.h"
#include "WorkAreaMap.h"

#include <afxcmn.h>

class GeometryPage : public GalleryPage
{
public:
    GeometryPage();
    ~GeometryPage() override;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnTabChanged(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    void showPlace(const CRect& rect);
    void showTab();

    WorkAreaMap m_map;
    CTabCtrl m_tabs;
};
