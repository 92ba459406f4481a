// A folder browser: a tree of folders, a list of what is in one, and a toolbar with flyouts.
#include "FileList.h"
#include "resource.h"

#include <ovocor/OvoError.h>
#include <ovouires/resource.h>

#include <fstream>

class BrowserFrame : public CFrameWnd
{
public:
    void open(const fs::path& folder) { m_tree.open(folder); }
    void RecalcLayout(BOOL notify = TRUE) override
    {
        CFrameWnd::RecalcLayout(notify);
        if (!m_list.m_hWnd)
            return;
        CRect tree;
        RepositionBars(0, 0xFFFF, 0, reposQuery, &tree);
        CRect list = tree;
        tree.right = list.left = tree.left + tree.Width() * 3 / 10;
        m_tree.MoveWindow(&tree);
        m_list.MoveWindow(&list);
    }

    /// Tab goes from the tree to the list and back.
    BOOL PreTranslateMessage(MSG* message) override
    {
        const bool isTab = message->message == WM_KEYDOWN && message->wParam == VK_TAB;
        return isTab ? IsDialogMessage(message) : CFrameWnd::PreTranslateMessage(message);
    }

protected:
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override
    {
        constexpr DWORD kStyle =
            WS_CHILD | WS_VISIBLE | WS_TABSTOP | TVS_HASBUTTONS | TVS_SHOWSELALWAYS | TVS_INFOTIP;
        if (!m_tree.CreateEx(WS_EX_CLIENTEDGE, kStyle, CRect(), this, IDC_TREE) ||
            !m_list.create(*this, IDC_LIST))
            return FALSE;
        m_tree.SetImageList(shellImages(), TVSIL_NORMAL);
        return m_status.Create(this) && createBar();
    }

    bool createBar()
    {
        const std::vector<ToolBarEntry> entries = {
            {ID_FOLDER_OPEN, 0},
            {ID_FOLDER_UP, 1},
            {ID_FOLDER_REFRESH, 2},
            {},
            {ID_LIST_SAVE, 3},
            {ID_COPY_ROWS, 4, {{ID_COPY_ROWS, 4}, {ID_COPY_PATHS, 5}}},
            {ID_SORT_NAME, 6, {{ID_SORT_NAME, 6}, {ID_SORT_SIZE, 7}, {ID_SORT_CHANGED, 8}}},
            {},
            {ID_INFO_SYSTEM, 9, {{ID_INFO_SYSTEM, 9}, {ID_INFO_MODULES, 10}}}};
        if (!m_bar.CreateEx(this) ||
            !setCommands(m_bar, entries, {{IDB_FILES_16, 16}, {IDB_FILES_24, 24}, {IDB_FILES_32, 32}}, 16))
            return false;
        m_bar.SetBarStyle(m_bar.GetBarStyle() | CBRS_TOOLTIPS | CBRS_FLYBY);
        m_bar.ShowFlyoutMarks(true);
        m_bar.LoadChoices(FileList::kSection);
        return true;
    }

    afx_msg void OnFolderChosen(NMHDR*, LRESULT*) { OnRefresh(); }
    afx_msg void OnRefresh()
    try {
        m_list.show(m_tree.folder());
        SetWindowText(m_tree.folder().c_str());
    } catch (const fs::filesystem_error&) {
        m_tree.reportError((m_tree.folder().wstring() + L" cannot be read.").c_str());
    }

    /// A folder is shown, a file opened by its program.
    afx_msg void OnRowOpened(NMHDR*, LRESULT*)
    {
        const int row = m_list.GetNextItem(-1, LVNI_FOCUSED | LVNI_SELECTED);
        const fs::path path = row >= 0 ? m_list.path(row) : fs::path();
        if (::PathIsDirectoryW(path.c_str())) {
            m_tree.selectPath(m_tree.selectedPath() + L"/" + path.filename().wstring());
            if (m_tree.folder() != path)
                open(path); // it is newer than what the tree has read
        } else if (row >= 0)
            ::ShellExecuteW(m_hWnd, nullptr, path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    }

    afx_msg void OnOpen()
    {
        if (const auto folder = pickFolder({.parent = this, .title = L"Browse", .folder = m_tree.folder()}))
            open(*folder);
    }
    afx_msg void OnUp() { m_tree.goUp(); }
    afx_msg void OnUpdateUp(CCmdUI* ui) { ui->Enable(m_tree.folder().has_relative_path()); }

    afx_msg void OnSave()
    {
        const auto path = pickFileToSave({.types = {{L"Texts", {L"*.txt"}}}, .extension = L".txt"});
        const std::wstring text = L"\xFEFF" + m_list.chosenPaths(); // UTF-16 has every name
        const auto* const bytes = reinterpret_cast<const char*>(text.data());
        if (path && !std::ofstream(*path, std::ios::binary).write(bytes, 2 * text.size()).flush())
            m_tree.reportError(L"The file cannot be written.");
    }
    afx_msg void OnCopyRows() { copySelectedRows(m_list, true); }
    afx_msg void OnCopyPaths() { copyPlaintext(m_list.chosenPaths()); }
    afx_msg void OnSort(UINT command) { m_list.sortBy(static_cast<int>(command - ID_SORT_NAME)); }

    afx_msg void OnSystemInfo()
    {
        CSystemInfoDlg dialog(this);
        dialog.ShowMachine(true);
        dialog.DoModal();
    }
    afx_msg void OnModules() { CModuleListDlg(this).DoModal(); }
    afx_msg void OnBarKeys() { m_bar.FocusButtons(); }
    afx_msg void OnPaneFocus(UINT id, NMHDR*, LRESULT*) { m_pane = id; }
    afx_msg void OnSetFocus(CWnd*) { ::SetFocus(::GetDlgItem(m_hWnd, m_pane)); } // after a dialog, too

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    try {
        if (message == WM_ACTIVATEAPP) // an open flyout closes
            CVantorToolBar::ActivateApp(wParam != 0);
        if (message == WM_CLOSE || (message == WM_ENDSESSION && wParam)) { // the last that it surely hears
            m_list.saveLayout();
            m_bar.SaveChoices(FileList::kSection);
        }
        return CFrameWnd::WindowProc(message, wParam, lParam);
    } catch (const OvoError& error) { // or it would end the program
        m_tree.reportError(error.wwhat());
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    CGdiPlusSession m_gdiPlus; // for the images of the bar
    FolderTree m_tree;
    FileList m_list;
    CVantorToolBar m_bar;
    CStatusBar m_status;
    UINT m_pane = IDC_TREE; // that had the focus last
};

BEGIN_MESSAGE_MAP(BrowserFrame, CFrameWnd)
    ON_NOTIFY(TVN_SELCHANGEDW, IDC_TREE, &BrowserFrame::OnFolderChosen)
    ON_NOTIFY_RANGE(NM_SETFOCUS, IDC_TREE, IDC_LIST, &BrowserFrame::OnPaneFocus)
    ON_NOTIFY(NM_DBLCLK, IDC_LIST, &BrowserFrame::OnRowOpened)
    ON_NOTIFY(NM_RETURN, IDC_LIST, &BrowserFrame::OnRowOpened)
    ON_COMMAND(ID_FOLDER_OPEN, &BrowserFrame::OnOpen)
    ON_COMMAND(ID_FOLDER_UP, &BrowserFrame::OnUp)
    ON_UPDATE_COMMAND_UI(ID_FOLDER_UP, &BrowserFrame::OnUpdateUp)
    ON_COMMAND(ID_FOLDER_REFRESH, &BrowserFrame::OnRefresh)
    ON_COMMAND(ID_LIST_SAVE, &BrowserFrame::OnSave)
    ON_COMMAND(ID_COPY_ROWS, &BrowserFrame::OnCopyRows)
    ON_COMMAND(ID_COPY_PATHS, &BrowserFrame::OnCopyPaths)
    ON_COMMAND_RANGE(ID_SORT_NAME, ID_SORT_CHANGED, &BrowserFrame::OnSort)
    ON_COMMAND(ID_INFO_SYSTEM, &BrowserFrame::OnSystemInfo)
    ON_COMMAND(ID_INFO_MODULES, &BrowserFrame::OnModules)
    ON_COMMAND(ID_BAR_KEYS, &BrowserFrame::OnBarKeys)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

class BrowserApp : public CWinApp
{
    BOOL InitInstance() override
    {
        SetRegistryKey(L"ovoui examples");
        AfxOleInit();
        auto* const frame = new BrowserFrame; // deletes itself with its window
        m_pMainWnd = frame;
        if (!frame->LoadFrame(IDR_MAIN_FRAME))
            return FALSE;
        frame->open(__argc > 1 ? (fs::current_path() / __wargv[1]).lexically_normal() : fs::current_path());
        const int inch = CClientDC(nullptr).GetDeviceCaps(LOGPIXELSX);
        frame->SetWindowPos(nullptr, 0, 0, 8 * inch, 4 * inch, SWP_NOMOVE | SWP_NOZORDER);
        frame->ShowWindow(m_nCmdShow);
        return TRUE;
    }
} theApp;
