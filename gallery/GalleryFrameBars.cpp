// The gallery's window: its toolbar and its palette.
#include "GalleryFrame.h"

#include "Resolution.h"
#include "VisualStyles.h"
#include "resource.h"

#include <ovocor/ovocor.h>

#include <utility>

namespace
{

constexpr wchar_t kBars[] = L"Bars"; // sections of the profile
constexpr wchar_t kChoices[] = L"Bars-Choices";
constexpr wchar_t kPalette[] = L"Palette";
constexpr wchar_t kHue[] = L"Hue";
constexpr wchar_t kListWidth[] = L"ListWidth";
constexpr wchar_t kLogHeight[] = L"LogHeight";

constexpr double kLightness = 0.45; // of the band's colour
constexpr double kSaturation = 0.6;

PageGroup groupOf(UINT command)
{
    return static_cast<PageGroup>(command - ID_GROUP_ALL);
}

FramePalette::Values valuesInProfile()
{
    const CWinApp& app = *AfxGetApp();
    FramePalette::Values values;
    const auto read = [&](LPCTSTR entry, int& value) {
        value = static_cast<int>(const_cast<CWinApp&>(app).GetProfileInt(kPalette, entry, value));
    };
    read(kHue, values.hue);
    read(kListWidth, values.listWidth);
    read(kLogHeight, values.logHeight);
    return values;
}

} // namespace

bool GalleryFrame::createBars()
{
    EnableDocking(CBRS_ALIGN_ANY);
    if (!m_bar.create(*this) || !m_palette.create(*this, m_sizes))
        return false;
    arrangeBars();
    return true;
}

/// As at the first start.
void GalleryFrame::arrangeBars()
{
    DockControlBar(&m_bar, AFX_IDW_DOCKBAR_TOP);
    DockControlBar(&m_palette, AFX_IDW_DOCKBAR_RIGHT);
    ShowControlBar(&m_palette, FALSE, TRUE);
}

void GalleryFrame::floatBar(int rows)
{
    CRect page;
    m_page->GetWindowRect(&page);
    const int step = scaled(m_hWnd, 8);
    FloatControlBar(&m_bar, page.CenterPoint());
    RecalcLayout();
    for (int width = page.Width(); m_bar.rowsShown() < rows && width > 0; width -= step)
        m_bar.CalcDynamicLayout(width, LM_HORZ | LM_COMMIT);
    RecalcLayout();
}

void GalleryFrame::floatPalette()
{
    CRect page;
    m_page->GetWindowRect(&page);
    FloatControlBar(&m_palette, page.CenterPoint());
    ShowControlBar(&m_palette, TRUE, FALSE);
}

// From one run to the next

void GalleryFrame::restoreBars()
{
    m_sizes = valuesInProfile();
    m_palette.show(m_sizes);
    applyPalette();
    LoadBarState(kBars);
    m_bar.LoadChoices(kChoices);
    m_group = groupOf(m_bar.group());
    if (m_bar.theme() == ID_THEME_CLASSIC)
        setVisualStyles(false);
    filterPages();
}

void GalleryFrame::saveBars()
{
    SaveBarState(kBars);
    m_bar.SaveChoices(kChoices);
    CWinApp& app = *AfxGetApp();
    app.WriteProfileInt(kPalette, kHue, m_sizes.hue);
    app.WriteProfileInt(kPalette, kListWidth, m_sizes.listWidth);
    app.WriteProfileInt(kPalette, kLogHeight, m_sizes.logHeight);
}

void GalleryFrame::OnClose()
{
    saveBars();
    CFrameWnd::OnClose();
}

/// The system may end the program without closing its windows.
void GalleryFrame::OnEndSession(BOOL ending)
{
    if (ending)
        saveBars();
    CFrameWnd::OnEndSession(ending);
}

// The toolbar

BarKeyboard::Bars GalleryFrame::bars()
{
    BarKeyboard::Bars all{&m_bar, &m_palette};
    if (m_page)
        BarKeyboard::collect(*m_page, all);
    return all;
}

void GalleryFrame::OnBarKeyboard()
{
    m_barKeyboard.step(bars());
}

void GalleryFrame::OnGroup(UINT command)
{
    m_group = groupOf(command);
    filterPages();
}

void GalleryFrame::OnFilterChanged()
{
    filterPages();
}

/// Enter, Escape or Tab in the filter: the first page that is listed opens, unless the open one is listed.
void GalleryFrame::OnFilterEnded()
{
    if (const PageEntry* const first = m_pageList.firstPage(); first && !m_pageList.lists(*m_entry))
        openPage(*first);
    m_pageList.SetFocus();
}

void GalleryFrame::filterPages()
{
    m_pageList.list(m_group, m_bar.filter());
    if (m_entry)
        m_pageList.show(*m_entry);
}

void GalleryFrame::OnTheme(UINT command)
{
    setVisualStyles(command == ID_THEME_STYLED);
    logLine(command == ID_THEME_STYLED ? L"Visual styles are on" : L"Visual styles are off");
    if (m_entry)
        openPage(*m_entry);
}

/// Posted, since a pose may show a modal box while the combo box still waits for its answer.
void GalleryFrame::OnPoseChosen()
{
    PostMessage(WM_COMMAND, ID_POSE_SHOW);
}

void GalleryFrame::OnPoseShow()
{
    const std::wstring pose = m_bar.pose();
    if (pose.empty()) {
        openPage(*m_entry);
        return;
    }
    const std::shared_ptr<GalleryPage> page = m_page;
    page->pose(pose);
}

// Commands go to the control with the focus, then to the page, then to the frame.

BOOL GalleryFrame::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    if (offerToPage(id, code, extra, info))
        return TRUE;
    return CFrameWnd::OnCmdMsg(id, code, extra, info);
}

/// Dialogs pass commands on to their parents, back to here: they are asked once.
bool GalleryFrame::offerToPage(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    const bool command = code == CN_COMMAND || code == static_cast<int>(CN_UPDATE_COMMAND_UI);
    if (!command || m_offering || !m_page || !m_page->m_hWnd)
        return false;
    m_offering = true;
    const HWND self = m_hWnd;
    const std::shared_ptr<GalleryPage> page = m_page;
    CWnd* const focus = CWnd::FromHandlePermanent(::GetFocus());
    const bool inPage = focus && page->IsChild(focus);
    const bool taken = (inPage && focus->OnCmdMsg(id, code, extra, info)) ||
                       (page->m_hWnd && page->CCmdTarget::OnCmdMsg(id, code, extra, info));
    if (::IsWindow(self)) // the command may have closed the gallery
        m_offering = false;
    return taken;
}

// The palette

void GalleryFrame::OnHScroll(UINT code, UINT pos, CScrollBar* bar)
{
    if (bar && bar->m_hWnd == m_palette.GetDlgItem(IDC_FRAME_HUE)->GetSafeHwnd())
        applyPalette();
    else
        CFrameWnd::OnHScroll(code, pos, bar);
}

void GalleryFrame::OnPaletteChanged()
{
    if (m_palette.m_hWnd)
        applyPalette();
}

void GalleryFrame::applyPalette()
{
    m_sizes = m_palette.values();
    m_header.setAccent(Colour::hls(Angle::degrees(m_sizes.hue), kLightness, kSaturation).colorref());
    RecalcLayout();
}
