#include "GalleryFrame.h"

#include "Screenshot.h"
#include "resource.h"

#include <initializer_list>
#include <iterator>
#include <utility>

namespace
{

constexpr SIZE kFrameSize{940, 720};
constexpr int kListWidth = 170;
constexpr int kLogHeight = 104;
constexpr int kLabelHeight = 16;
constexpr int kGap = 8;
constexpr UINT_PTR kPoseTimer = 1;
constexpr UINT kPoseDelay = 200; // milliseconds for the screen to show what was painted

} // namespace

BEGIN_MESSAGE_MAP(GalleryFrame, CFrameWnd)
    // pages
    ON_NOTIFY(TVN_SELCHANGEDW, IDC_PAGE_LIST, OnPageChosen)
    ON_COMMAND(ID_PAGE_NEXT, OnNextPage)
    ON_COMMAND(ID_PAGE_PREVIOUS, OnPreviousPage)
    ON_WM_SETFOCUS()
    // log
    ON_COMMAND(ID_LOG_CLEAR, OnLogClear)
    ON_UPDATE_COMMAND_UI(ID_LOG_CLEAR, OnUpdateLogClear)
    // pictures
    ON_WM_ENTERIDLE()
    ON_WM_TIMER()
END_MESSAGE_MAP()

GalleryFrame::GalleryFrame() = default;

GalleryFrame::~GalleryFrame() = default;

// Window and parts

BOOL GalleryFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.lpszClass = AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW),
                                       reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1),
                                       AfxGetApp()->LoadIcon(IDR_MAIN_FRAME));
    cs.cx = kFrameSize.cx;
    cs.cy = kFrameSize.cy;
    return CFrameWnd::PreCreateWindow(cs);
}

BOOL GalleryFrame::OnCreateClient(LPCREATESTRUCT, CCreateContext*)
{
    m_font.CreatePointFont(80, L"MS Shell Dlg 2");
    if (!createParts())
        return FALSE;
    static constexpr UINT kPanes[] = {ID_SEPARATOR, ID_INDICATOR_CAPS, ID_INDICATOR_NUM};
    m_statusBar.SetIndicators(kPanes, static_cast<int>(std::size(kPanes)));
    for (CWnd* wnd : std::initializer_list<CWnd*>{&m_pageList, &m_logLabel, &m_log})
        wnd->SetFont(&m_font);
    return TRUE;
}

bool GalleryFrame::createParts()
{
    constexpr DWORD kLog = LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP | WS_VISIBLE | WS_CHILD;
    return m_pageList.create(*this, IDC_PAGE_LIST) &&
           m_header.create(*this, m_font) &&
           m_logLabel.Create(L"Notifica&tions:", WS_CHILD | WS_VISIBLE, CRect(), this) &&
           m_log.CWnd::CreateEx(WS_EX_CLIENTEDGE, L"LISTBOX", nullptr, kLog, CRect(), this, IDC_LOG) &&
           m_statusBar.Create(this);
}

void GalleryFrame::RecalcLayout(BOOL notify)
{
    CFrameWnd::RecalcLayout(notify);
    if (!m_log.m_hWnd)
        return;
    CRect area;
    RepositionBars(0, 0xFFFF, 0, reposQuery, &area);
    area.DeflateRect(kGap, kGap);
    const CRect log(area.left, area.bottom - kLogHeight, area.right, area.bottom);
    const CRect label(area.left, log.top - kLabelHeight, area.right, log.top);
    const CRect list(area.left, area.top, area.left + kListWidth, label.top - kGap);
    const CRect header(list.right + kGap, area.top, area.right, area.top + m_header.height());
    m_log.MoveWindow(&log);
    m_logLabel.MoveWindow(&label);
    m_pageList.MoveWindow(&list);
    m_header.MoveWindow(&header);
    if (m_page)
        m_page->MoveWindow(CRect(header.left, header.bottom, header.right, list.bottom));
}

// Tab and mnemonics reach the page list and the log as well as the page; Enter belongs to the page, whose default
// button it presses.
BOOL GalleryFrame::PreTranslateMessage(MSG* message)
{
    if (CFrameWnd::PreTranslateMessage(message))
        return TRUE;
    const bool forPage = message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
    return forPage ? m_page && m_page->IsDialogMessage(message) : IsDialogMessage(message);
}

// Pages

void GalleryFrame::openPage(const PageEntry& entry)
{
    m_entry = &entry;
    m_page.reset();
    m_page = entry.make();
    m_page->open(*this, [this](const std::wstring& line) { logLine(line); });
    // Behind the list, so that Tab goes from the list to the page and on to the log.
    m_page->SetWindowPos(&m_pageList, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    m_header.show(entry.title, entry.summary);
    RecalcLayout();
    m_page->ShowWindow(SW_SHOW);

    m_pageList.show(entry);
}

void GalleryFrame::OnPageChosen(NMHDR* header, LRESULT* result)
{
    *result = 0;
    const PageEntry* const entry = m_pageList.pageAt(reinterpret_cast<const NMTREEVIEWW*>(header)->itemNew.hItem);
    if (entry && entry != m_entry)
        openPage(*entry);
}

void GalleryFrame::stepPage(int step)
{
    const auto& pages = pageTable();
    const auto count = std::ssize(pages);
    openPage(pages[static_cast<std::size_t>((m_entry - pages.data() + step + count) % count)]);
}

void GalleryFrame::OnNextPage()
{
    stepPage(1);
}

void GalleryFrame::OnPreviousPage()
{
    stepPage(-1);
}

void GalleryFrame::OnSetFocus(CWnd*)
{
    m_pageList.SetFocus();
}

// Log

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

bool GalleryFrame::shoot(const PageEntry& entry, const std::wstring& pose, const std::wstring& path)
{
    OnLogClear();
    openPage(entry);
    settle();
    if (pose.empty())
        return saveScreenshot(m_hWnd, path);
    m_posePath = path;
    m_poseSaved = false;
    const bool known = m_page->pose(pose);
    if (!std::exchange(m_posePath, {}).empty()) {
        // No modal box came: the page itself shows the pose.
        settle();
        m_poseSaved = known && saveScreenshot(m_hWnd, path);
    }
    return m_poseSaved;
}

// A modal box that a pose has opened is idle: its picture can be taken as soon as the screen shows it.
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
