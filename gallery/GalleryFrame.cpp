#include "GalleryFrame.h"

#include "Screenshot.h"
#include "resource.h"

#include <ovoui/frame/NonClientMetrics.h>

#include <utility>

#include <utility>

namespace
{

constexpr int kListWidth = 170;
constexpr int kLogHeight = 120;
constexpr int kGap = 6;
constexpr UINT_PTR kPoseTimer = 1;
constexpr UINT kPoseDelay = 200; // milliseconds for the screen to show what was painted

} // namespace

BEGIN_MESSAGE_MAP(GalleryFrame, CFrameWnd)
    ON_WM_ENTERIDLE()
    ON_WM_TIMER()
    ON_WM_SETFOCUS()
    ON_NOTIFY(TVN_SELCHANGEDW, IDC_PAGE_LIST, OnPageChosen)
    ON_COMMAND(ID_LOG_CLEAR, OnLogClear)
    ON_UPDATE_COMMAND_UI(ID_LOG_CLEAR, OnUpdateLogClear)
END_MESSAGE_MAP()

GalleryFrame::GalleryFrame() = default;

GalleryFrame::~GalleryFrame() = default;

BOOL GalleryFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.lpszClass = AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW),
                                       reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    cs.cx = 900;
    cs.cy = 680;
    return CFrameWnd::PreCreateWindow(cs);
}

BOOL GalleryFrame::OnCreateClient(LPCREATESTRUCT, CCreateContext*)
{
    const OvoNonClientMetrics metrics;
    m_font.CreateFontIndirect(&metrics.lfMessageFont);
    constexpr DWORD kList = TVS_HASBUTTONS | TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP | TVS_FULLROWSELECT;
    if (!m_pageList.CreateEx(WS_EX_CLIENTEDGE, kList | WS_VISIBLE | WS_TABSTOP, CRect(), this, IDC_PAGE_LIST))
        return FALSE;
    constexpr DWORD kLog = LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP | WS_VISIBLE | WS_CHILD;
    if (!m_log.CWnd::CreateEx(WS_EX_CLIENTEDGE, L"LISTBOX", nullptr, kLog, CRect(), this, IDC_LOG))
        return FALSE;
    if (!m_statusBar.Create(this))
        return FALSE;
    static constexpr UINT kPanes[] = {ID_SEPARATOR, ID_INDICATOR_CAPS, ID_INDICATOR_NUM};
    m_statusBar.SetIndicators(kPanes, static_cast<int>(std::size(kPanes)));

    for (CWnd* wnd : {static_cast<CWnd*>(&m_pageList), static_cast<CWnd*>(&m_log)})
        wnd->SetFont(&m_font);
    fillPageList();
    return TRUE;
}

void GalleryFrame::fillPageList()
{
    for (const PageEntry& page : pageTable()) {
        const HTREEITEM item = m_pageList.InsertItem(page.title);
        m_pageList.SetItemData(item, reinterpret_cast<DWORD_PTR>(&page));
    }
}

void GalleryFrame::openPage(const PageEntry& entry)
{
    if (m_entry == &entry)
        return;
    m_entry = &entry;
    m_page.reset();
    m_page = entry.make();
    m_page->open(*this, [this](const std::wstring& line) { logLine(line); });
    RecalcLayout();
    m_page->ShowWindow(SW_SHOW);

    for (HTREEITEM item = m_pageList.GetRootItem(); item; item = m_pageList.GetNextSiblingItem(item))
        if (m_pageList.GetItemData(item) == reinterpret_cast<DWORD_PTR>(&entry))
            m_pageList.SelectItem(item);
}

void GalleryFrame::RecalcLayout(BOOL notify)
{
    CFrameWnd::RecalcLayout(notify);
    if (!m_log.m_hWnd)
        return;
    CRect area;
    RepositionBars(0, 0xFFFF, 0, reposQuery, &area);
    area.DeflateRect(kGap, kGap);
    const int logTop = area.bottom - kLogHeight;
    m_log.MoveWindow(area.left, logTop, area.Width(), kLogHeight);
    m_pageList.MoveWindow(area.left, area.top, kListWidth, logTop - area.top - kGap);
    if (m_page)
        m_page->MoveWindow(area.left + kListWidth + kGap, area.top, area.Width() - kListWidth - kGap,
                           logTop - area.top - kGap);
}

void GalleryFrame::OnPageChosen(NMHDR* header, LRESULT* result)
{
    const auto& change = *reinterpret_cast<NMTREEVIEWW*>(header);
    *result = 0;
    if (change.itemNew.hItem)
        openPage(*reinterpret_cast<const PageEntry*>(m_pageList.GetItemData(change.itemNew.hItem)));
}

void GalleryFrame::OnSetFocus(CWnd*)
{
    m_pageList.SetFocus();
}

void GalleryFrame::logLine(const std::wstring& line)
{
    m_log.SetTopIndex(m_log.AddString(line.c_str()));
}

void GalleryFrame::OnLogClear()
{
    m_log.ResetContent();
}

void GalleryFrame::OnUpdateLogClear(CCmdUI* ui)
{
    ui->Enable(m_log.GetCount() > 0);
}

// Pictures

void GalleryFrame::settle()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE))
        AfxPumpMessage();
    RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

/// A modal box that a pose has opened is idle: its picture can be taken as soon as the screen shows it.
void GalleryFrame::OnEnterIdle(UINT why, CWnd* who)
{
    CFrameWnd::OnEnterIdle(why, who);
    if (why != MSGF_DIALOGBOX || m_posePath.empty() || m_posing)
        return;
    m_posing = who->m_hWnd;
    SetTimer(kPoseTimer, kPoseDelay, nullptr);
}

void GalleryFrame::OnTimer(UINT_PTR id)
{
    if (id != kPoseTimer) {
        CFrameWnd::OnTimer(id);
        return;
    }
    KillTimer(kPoseTimer);
    m_poseSaved = saveScreenshot(m_posing, m_posePath);
    m_posePath.clear();
    ::PostMessageW(std::exchange(m_posing, nullptr), WM_COMMAND, IDCANCEL, 0);
}

bool GalleryFrame::shoot(const PageEntry& entry, const std::wstring& pose, const std::wstring& path)
{
    openPage(entry);
    settle();
    if (pose.empty())
        return saveScreenshot(m_hWnd, path);
    m_posePath = path;
    m_poseSaved = false;
    m_page->pose(pose);
    return m_poseSaved;
}

bool GalleryFrame::shootAll(const std::wstring& folder)
{
    bool good = true;
    for (const PageEntry& entry : pageTable()) {
        const std::wstring base = folder + L"\\" + entry.name;
        good = shoot(entry, L"", base + L".png") && good;
        for (const std::wstring& pose : m_page->poses())
            good = shoot(entry, pose, base + L"-" + pose + L".png") && good;
    }
    return good;
}
