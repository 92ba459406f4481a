#include "GalleryFrame.h"

#include "Direction.h"
#include "Resolution.h"
#include "Screenshot.h"
#include "VisualStyles.h"
#include "resource.h"

#include <ovoui/frame/Geometry.h>
#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <utility>

namespace
{

constexpr SIZE kPageSize{440, 260}; // dialog units; no page's template is larger
constexpr int kFontSize = 8;        // points
constexpr int kPointsPerInch = 72;

// Pixels at 96 dots per inch.
constexpr int kLabelHeight = 16;
constexpr int kGap = 8;
constexpr UINT_PTR kPoseTimer = 1;
constexpr UINT kPoseDelay = 200; // milliseconds for the screen to show what was painted

} // namespace

BEGIN_MESSAGE_MAP(GalleryFrame, CFrameWnd)
    // pages
    ON_NOTIFY(TVN_SELCHANGEDW, IDC_PAGE_LIST, &GalleryFrame::OnPageChosen)
    ON_COMMAND(ID_PAGE_OPEN, &GalleryFrame::OnPageOpen)
    ON_COMMAND(ID_PAGE_NEXT, &GalleryFrame::OnNextPage)
    ON_COMMAND(ID_PAGE_PREVIOUS, &GalleryFrame::OnPreviousPage)
    ON_WM_SETFOCUS()
    ON_WM_ACTIVATE()
    ON_MESSAGE(WM_NEXTDLGCTL, &GalleryFrame::OnNextControl)
    ON_MESSAGE(WM_DPICHANGED, &GalleryFrame::OnResolutionChanged)
    // toolbar
    ON_WM_ACTIVATEAPP() // an open flyout closes
    ON_COMMAND(ID_BAR_KEYBOARD, &GalleryFrame::OnBarKeyboard)
    ON_COMMAND_RANGE(ID_GROUP_ALL, ID_GROUP_DIALOGS, &GalleryFrame::OnGroup)
    ON_COMMAND_RANGE(ID_THEME_STYLED, ID_THEME_CLASSIC, &GalleryFrame::OnTheme)
    ON_EN_CHANGE(IDC_FRAME_FILTER, &GalleryFrame::OnFilterChanged)
    ON_COMMAND(IDC_FRAME_FILTER, &GalleryFrame::OnFilterEnded)
    ON_CBN_SELCHANGE(IDC_FRAME_POSES, &GalleryFrame::OnPoseChosen)
    ON_COMMAND(ID_POSE_SHOW, &GalleryFrame::OnPoseShow)
    // palette
    ON_UPDATE_COMMAND_UI(ID_VIEW_PALETTE, &GalleryFrame::OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_PALETTE, &GalleryFrame::OnBarCheck)
    ON_WM_HSCROLL()
    ON_EN_CHANGE(IDC_FRAME_LIST_WIDTH, &GalleryFrame::OnPaletteChanged)
    ON_EN_CHANGE(IDC_FRAME_LOG_HEIGHT, &GalleryFrame::OnPaletteChanged)
    ON_WM_CLOSE()
    ON_WM_ENDSESSION()
    // log
    ON_COMMAND(ID_LOG_CLEAR, &GalleryFrame::OnLogClear)
    ON_UPDATE_COMMAND_UI(ID_LOG_CLEAR, &GalleryFrame::OnUpdateLogClear)
    // pictures
    ON_WM_ENTERIDLE()
    ON_WM_TIMER()
END_MESSAGE_MAP()

GalleryFrame::GalleryFrame() = default;

GalleryFrame::~GalleryFrame() = default;

// Window and parts

BOOL GalleryFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.lpszClass =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1),
                            AfxGetApp()->LoadIcon(IDR_MAIN_FRAME));
    cs.style |= WS_CLIPCHILDREN; // what moves when a bar leaves its place is not erased again
    return CFrameWnd::PreCreateWindow(cs);
}

BOOL GalleryFrame::OnCreateClient(LPCREATESTRUCT, CCreateContext*)
{
    if (!createParts())
        return FALSE;
    static constexpr UINT kPanes[] = {ID_SEPARATOR, ID_INDICATOR_CAPS, ID_INDICATOR_NUM};
    m_statusBar.SetIndicators(kPanes, static_cast<int>(std::size(kPanes)));
    noteResolution(m_hWnd, 0); // of a window before
    useResolution();
    makeRoomForPages();
    return TRUE;
}

bool GalleryFrame::createParts()
{
    return m_pageList.create(*this, IDC_PAGE_LIST) && m_header.create(*this) &&
           m_journalLabel.Create(L"&Journal of notifications:", WS_CHILD | WS_VISIBLE, CRect(), this) &&
           m_journal.create(*this, IDC_LOG) && m_statusBar.Create(this) && createBars();
}

// Fonts and images for the monitor that the window is on.
void GalleryFrame::useResolution()
{
    LOGFONT face{};
    face.lfHeight = -::MulDiv(kFontSize, dotsPerInch(m_hWnd), kPointsPerInch);
    face.lfWeight = FW_NORMAL;
    face.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpynW(face.lfFaceName, L"MS Shell Dlg 2", LF_FACESIZE);
    auto font = std::make_unique<CFont>();
    font->CreateFontIndirect(&face);
    for (CWnd* wnd : std::initializer_list<CWnd*>{&m_pageList, &m_journalLabel})
        wnd->SetFont(font.get());
    m_journal.useFont(*font);
    m_bar.useFont(*font);
    m_font = std::move(font);
    m_header.useFont(face);
    m_pageList.loadImages();
}

// The window opens as large as the pages are, or as the monitor's work area is.
void GalleryFrame::makeRoomForPages()
{
    CRect frame;
    GetWindowRect(&frame);
    const CSize room = places().page.Size();
    const CSize wanted(dialogUnits(m_hWnd, *m_font, kPageSize));
    const CRect work(GetWorkArea(frame));
    frame.right = frame.left + std::min(frame.Width() + wanted.cx - room.cx, static_cast<LONG>(work.Width()));
    frame.bottom =
        frame.top + std::min(frame.Height() + wanted.cy - room.cy, static_cast<LONG>(work.Height()));
    EnsureRectVisible(frame);
    MoveWindow(&frame);
}

GalleryFrame::Places GalleryFrame::places()
{
    const int gap = scaled(m_hWnd, kGap);
    CRect area;
    RepositionBars(0, 0xFFFF, 0, reposQuery, &area);
    area.DeflateRect(gap, gap);
    Places places;
    places.log = CRect(area.left, area.bottom - scaled(m_hWnd, m_sizes.logHeight), area.right, area.bottom);
    places.label =
        CRect(area.left, places.log.top - scaled(m_hWnd, kLabelHeight), area.right, places.log.top);
    places.list =
        CRect(area.left, area.top, area.left + scaled(m_hWnd, m_sizes.listWidth), places.label.top - gap);
    const CRect right(places.list.right + gap, area.top, area.right, places.list.bottom);
    places.header = CRect(right.left, right.top, right.right, right.top + m_header.height());
    places.page = CRect(right.left, places.header.bottom, right.right, right.bottom);
    return places;
}

void GalleryFrame::RecalcLayout(BOOL notify)
{
    CFrameWnd::RecalcLayout(notify);
    if (!m_journal.m_hWnd)
        return;
    const Places at = places();
    moveChild(m_journal, at.log);
    moveChild(m_journalLabel, at.label);
    moveChild(m_pageList, at.list);
    moveChild(m_header, at.header);
    if (m_page && m_page->m_hWnd)
        moveChild(*m_page, at.page);
}

LRESULT GalleryFrame::OnResolutionChanged(WPARAM dots, LPARAM place)
{
    noteResolution(m_hWnd, LOWORD(dots));
    useResolution();
    m_bar.SendMessage(WM_DPICHANGED, dots, place);
    MoveWindow(reinterpret_cast<const RECT*>(place));
    if (m_entry)
        openPage(*m_entry);
    return 0;
}

/// What a dialog does when IsDialogMessage asks for it, as for the letter of a label. `next` is the control,
/// or whether the one before is meant.
LRESULT GalleryFrame::OnNextControl(WPARAM next, LPARAM direct)
{
    ::SetFocus(LOWORD(direct) ? reinterpret_cast<HWND>(next)
                              : ::GetNextDlgTabItem(m_hWnd, ::GetFocus(), next != 0));
    return 0;
}

/// An edit control of several lines takes Tab itself, and would only lead on inside its own dialog.
static bool leavesText(const MSG& message)
{
    wchar_t kind[8]{};
    ::GetClassNameW(message.hwnd, kind, 8);
    return message.message == WM_KEYDOWN && message.wParam == VK_TAB && ::GetKeyState(VK_CONTROL) >= 0 &&
           ::lstrcmpiW(kind, L"Edit") == 0 && (::GetWindowLongW(message.hwnd, GWL_STYLE) & ES_MULTILINE);
}

// Tab and mnemonics reach the page list and the log as well as the page; Enter belongs to the page, whose
// default button it presses.
BOOL GalleryFrame::PreTranslateMessage(MSG* message)
{
    if (!IsWindowEnabled())
        return FALSE; // the keys belong to the modal box that is open
    if (CFrameWnd::PreTranslateMessage(message))
        return TRUE;
    if (BarKeyboard::isForBars(*message) && m_barKeyboard.offer(bars(), *message))
        return TRUE;
    if (leavesText(*message)) {
        ::SetFocus(::GetNextDlgTabItem(m_hWnd, message->hwnd, ::GetKeyState(VK_SHIFT) < 0));
        return TRUE;
    }
    const HWND self = m_hWnd;
    const bool forPage = message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
    const BOOL taken = forPage ? m_page && m_page->IsDialogMessage(message) : IsDialogMessage(message);
    // What the key led to may have closed the gallery.
    if (taken && ::IsWindow(self) && m_page)
        m_page->revealFocus();
    return taken;
}

// Pages

void GalleryFrame::openPage(const PageEntry& entry)
{
    m_entry = &entry;
    m_chosen = nullptr;
    if (m_page)
        m_page->DestroyWindow(); // a handler under way keeps the object itself
    m_page = entry.make();
    m_page->open(*this, [this](const std::wstring& line) { logLine(line); });
    followVisualStyles(*m_page);
    // Behind the list, so that Tab goes from the list to the page and on to the log.
    m_page->SetWindowPos(&m_pageList, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    m_header.show(entry.title, entry.summary);
    m_bar.showPoses(m_page->poses());
    RecalcLayout();
    m_page->ShowWindow(SW_SHOW);

    m_pageList.show(entry);
}

/// Posted, since a list without a selection chooses an item when it gets the focus, and that may come while a
/// control of the page is in the middle of a press.
void GalleryFrame::OnPageChosen(NMHDR* header, LRESULT* result)
{
    *result = 0;
    m_chosen = m_pageList.pageAt(reinterpret_cast<const NMTREEVIEWW*>(header)->itemNew.hItem);
    PostMessage(WM_COMMAND, ID_PAGE_OPEN);
}

void GalleryFrame::OnPageOpen()
{
    if (m_chosen && m_chosen != m_entry)
        openPage(*m_chosen);
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

/// As in a dialog: who has answered a box goes on at the same control. Floating bars know themselves where
/// the keyboard was.
void GalleryFrame::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    if (state == WA_INACTIVE && !dynamic_cast<CMiniFrameWnd*>(other))
        m_lastFocus = ::GetFocus();
    CFrameWnd::OnActivate(state, other, minimized);
}

void GalleryFrame::OnSetFocus(CWnd*)
{
    const HWND last = std::exchange(m_lastFocus, nullptr);
    const bool takesIt = ::IsChild(m_hWnd, last) && ::IsWindowVisible(last) && ::IsWindowEnabled(last);
    ::SetFocus(takesIt ? last : m_pageList.m_hWnd);
}

// The flyout of a toolbar closes with the application's activation.
void GalleryFrame::OnActivateApp(BOOL active, DWORD thread)
{
    CFrameWnd::OnActivateApp(active, thread);
    CVantorToolBar::ActivateApp(active);
}

// Journal

void GalleryFrame::logLine(const std::wstring& line)
{
    m_journal.add(line);
}

void GalleryFrame::OnLogClear()
{
    m_journal.clear();
}

void GalleryFrame::OnUpdateLogClear(CCmdUI* ui)
{
    ui->Enable(!m_journal.isEmpty());
}

// Pictures

void GalleryFrame::settle()
{
    MSG message;
    LONG idle = 0;
    do {
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE))
            AfxPumpMessage();
    } while (AfxGetThread()->OnIdle(idle++)); // bars and boxes are brought up to date in idle time
    RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

bool GalleryFrame::shoot(const PageEntry& entry, const std::wstring& pose, const std::wstring& path)
{
    OnLogClear();
    // Whatever a pose before has done
    arrangeBars();
    moveIntoView();
    SetForegroundWindow(); // a box before may have left another window active
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

/// Brings the window back onto the screen.
void GalleryFrame::moveIntoView()
{
    CRect place;
    GetWindowRect(&place);
    CRect seen = place;
    EnsureRectVisible(seen);
    if (seen != place)
        SetWindowPos(nullptr, seen.left, seen.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
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
    m_poseSaved = saveScreenshotOfDialog(m_posing, m_posePath);
    m_posePath.clear();
    ::PostMessageW(std::exchange(m_posing, nullptr), WM_COMMAND, IDCANCEL, 0);
}
