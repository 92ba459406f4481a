// The gallery's window: pages at the left, the open page, a log of notifications at the bottom.
#pragma once

#include "BarKeyboard.h"
#include "FrameBar.h"
#include "FramePalette.h"
#include "GalleryPage.h"
#include "Journal.h"
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

    /// Brings back what the profile knows of bars, palette and choices.
    void restoreBars();
    /// The same is saved when the window is closed, or the session ends.
    void saveBars();

    /// Makes the toolbar float over the page, in so many rows of buttons.
    void floatBar(int rows);
    void floatPalette();

    FrameBar& bar() { return m_bar; }
    FramePalette& palette() { return m_palette; }
    const PageEntry* openedPage() const { return m_entry; }
    PageTree& pageList() { return m_pageList; }
    /// Its own bars and those of the open page, in the order of Ctrl+F6.
    BarKeyboard::Bars bars();

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    void RecalcLayout(BOOL notify = TRUE) override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL OnCreateClient(LPCREATESTRUCT cs, CCreateContext* context) override;

    afx_msg void OnEnterIdle(UINT why, CWnd* who);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnPageChosen(NMHDR* header, LRESULT* result);
    afx_msg void OnPageOpen();
    afx_msg void OnNextPage();
    afx_msg void OnPreviousPage();
    // toolbar
    afx_msg void OnBarKeyboard();
    afx_msg void OnGroup(UINT command);
    afx_msg void OnTheme(UINT command);
    afx_msg void OnFilterChanged();
    afx_msg void OnFilterEnded();
    afx_msg void OnPoseChosen();
    afx_msg void OnPoseShow();
    // palette
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg void OnPaletteChanged();
    afx_msg void OnClose();
    afx_msg void OnEndSession(BOOL ending);
    afx_msg void OnLogClear();
    afx_msg void OnUpdateLogClear(CCmdUI* ui);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnActivateApp(BOOL active, DWORD thread);
    afx_msg LRESULT OnResolutionChanged(WPARAM dots, LPARAM place);
    afx_msg LRESULT OnNextControl(WPARAM next, LPARAM direct);
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
    bool createBars();
    void arrangeBars();
    void moveIntoView();
    void filterPages();
    void applyPalette();
    bool offerToPage(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);
    void useResolution();
    void makeRoomForPages();
    Places places();
    void stepPage(int step);
    void settle();

    std::unique_ptr<CFont> m_font; // first, since the windows below use it
    PageTree m_pageList;
    PageHeader m_header;
    CStatic m_journalLabel;
    Journal m_journal;
    CStatusBar m_statusBar;
    FrameBar m_bar;
    FramePalette m_palette;
    BarKeyboard m_barKeyboard;
    FramePalette::Values m_sizes; ///< of list and log, and the band's colour
    PageGroup m_group = PageGroup::All;
    bool m_offering = false; ///< a command is offered to the page
    std::shared_ptr<GalleryPage> m_page;
    const PageEntry* m_entry = nullptr;
    const PageEntry* m_chosen = nullptr; ///< in the list, and due to open
    HWND m_lastFocus = nullptr; ///< when another window became active
    HWND m_posing = nullptr; ///< the modal box whose picture is due
    std::wstring m_posePath; ///< where the picture of the next modal box goes; empty when none is wanted
    bool m_poseSaved = false;
};
