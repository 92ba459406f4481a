// The gallery's window: pages at the left, the open page, a log of notifications at the bottom.
#pragma once

#include "GalleryPage.h"
#include "PageHeader.h"
#include "PageTable.h"
#include "PageTree.h"

#include <afxcmn.h>
#include <afxext.h>

#include <memory>
#include <string>

class GalleryFrame : public CFrameWnd
{
public:
    GalleryFrame();
    ~GalleryFrame() override;

    /// Opens a page of the table afresh and marks it in the list.
    void openPage(const PageEntry& entry);
    GalleryPage& page() const { return *m_page; }

    void logLine(const std::wstring& line);

    /// Writes one picture: of a page, or of what one of its poses shows. False when that cannot be done.
    bool shoot(const PageEntry& entry, const std::wstring& pose, const std::wstring& path);

    void RecalcLayout(BOOL notify = TRUE) override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL OnCreateClient(LPCREATESTRUCT cs, CCreateContext* context) override;

    afx_msg void OnEnterIdle(UINT why, CWnd* who);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnPageChosen(NMHDR* header, LRESULT* result);
    afx_msg void OnNextPage();
    afx_msg void OnPreviousPage();
    afx_msg void OnLogClear();
    afx_msg void OnUpdateLogClear(CCmdUI* ui);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnActivateApp(BOOL active, DWORD thread);
    afx_msg LRESULT OnResolutionChanged(WPARAM dots, LPARAM place);
    DECLARE_MESSAGE_MAP()

private:
    /// Where the parts go, in client pixels.
    struct Places
    {
        CRect list;
        CRect header;
        CRect page;
        CRect label;
        CRect log;
    };

    bool createParts();
    void useResolution();
    void makeRoomForPages();
    Places places();
    void stepPage(int step);
    void settle();

    std::unique_ptr<CFont> m_font; // first, since the windows below use it
    PageTree m_pageList;
    PageHeader m_header;
    CStatic m_logLabel;
    CListBox m_log;
    CStatusBar m_statusBar;
    std::shared_ptr<GalleryPage> m_page;
    const PageEntry* m_entry = nullptr;
    HWND m_posing = nullptr; ///< the modal box whose picture is due
    std::wstring m_posePath; ///< where the picture of the next modal box goes; empty when none is wanted
    bool m_poseSaved = false;
};
