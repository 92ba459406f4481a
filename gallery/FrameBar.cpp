#include "FrameBar.h"

#include "Resolution.h"
#include "resource.h"

#include <commctrl.h>

#include <iterator>
#include <set>

namespace
{

constexpr int kImage = 16; // pixels at 96 dots per inch, as are the others
constexpr int kFilterWidth = 110;
constexpr int kPosesWidth = 130;
constexpr int kButtonHeight = 22;
constexpr int kDropHeight = 200;

/// Images of the strip.
enum Image
{
    PreviousImage,
    NextImage,
    AllPages,
    FramePages,
    BarPages,
    ListPages,
    ValuePages,
    DialogPages,
    Styled,
    Classic,
    Cut,
    Copy,
    Paste,
    PaletteImage,
    Clear
};

constexpr UINT kCommands[] = {ID_PAGE_PREVIOUS, ID_PAGE_NEXT, ID_SEPARATOR,    ID_GROUP_ALL, ID_THEME_STYLED,
                              ID_EDIT_COPY,     ID_SEPARATOR, ID_VIEW_PALETTE, ID_LOG_CLEAR, ID_SEPARATOR,
                              IDC_FRAME_FILTER, ID_SEPARATOR, IDC_FRAME_POSES};
constexpr int kImages[] = {PreviousImage, NextImage, 0, AllPages, Styled, Copy, 0, PaletteImage, Clear};

} // namespace

bool FrameBar::create(CFrameWnd& frame)
{
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP | CBRS_GRIPPER | CBRS_TOOLTIPS |
                             CBRS_FLYBY | CBRS_SIZE_DYNAMIC;
    if (!CreateEx(&frame, TBSTYLE_FLAT, kStyle, CRect(2, 2, 2, 2), ID_VIEW_TOOLBAR))
        return false;
    CString title;
    title.LoadString(IDS_FRAME_BAR);
    SetWindowText(title);
    SetButtons(kCommands, static_cast<int>(std::size(kCommands)));
    for (int i = 0; i < static_cast<int>(std::size(kImages)); ++i)
        if (kCommands[i] != ID_SEPARATOR)
            SetButtonInfo(i, kCommands[i], TBBS_BUTTON, kImages[i]);
    UseStrips({{IDB_FRAME_BAR_16, 16}, {IDB_FRAME_BAR_24, 24}, {IDB_FRAME_BAR_32, 32}}, kImage);
    attachFlyouts();
    ShowFlyoutMarks(true);
    UseAccessibleNames(true);
    EnableDocking(CBRS_ALIGN_ANY);

    constexpr DWORD kControl = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    return m_filter.create(*this, IDC_FRAME_FILTER) &&
           m_poses.Create(kControl | WS_VSCROLL | CBS_DROPDOWNLIST, CRect(0, 0, kPosesWidth, kDropHeight),
                          this, IDC_FRAME_POSES);
}

void FrameBar::attachFlyouts()
{
    const auto attach = [this](int button, const std::vector<int>& commands, const std::vector<int>& images) {
        const std::vector<int> strips(commands.size(), IDB_FRAME_BAR_32); // whose images the bar has
        AttachBar(button, scaled(m_hWnd, kImage), commands, strips, images, {}, false, false);
    };
    attach(
        Groups,
        {ID_GROUP_ALL, 0, ID_GROUP_FRAME, ID_GROUP_BARS, ID_GROUP_LISTS, ID_GROUP_VALUES, ID_GROUP_DIALOGS},
        {AllPages, 0, FramePages, BarPages, ListPages, ValuePages, DialogPages});
    attach(Themes, {ID_THEME_STYLED, ID_THEME_CLASSIC}, {Styled, Classic});
    attach(Edit, {ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_PASTE}, {Cut, Copy, Paste});
}

void FrameBar::useFont(CFont& font)
{
    const auto place = [&](int button, UINT id, CWnd& control, int width, int height) {
        control.SetFont(&font);
        control.SetWindowPos(nullptr, 0, 0, scaled(m_hWnd, width), height,
                             SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        SetButtonInfo(button, id, TBBS_SEPARATOR, scaled(m_hWnd, width));
    };
    place(PosesPlace, IDC_FRAME_POSES, m_poses, kPosesWidth, scaled(m_hWnd, kDropHeight));
    CRect closed; // as high as that, the filter has its text on the same line
    m_poses.GetWindowRect(&closed);
    place(FilterPlace, IDC_FRAME_FILTER, m_filter, kFilterWidth, closed.Height());
}

int FrameBar::rowsShown() const
{
    std::set<int> tops;
    const int count = static_cast<int>(::SendMessageW(m_hWnd, TB_BUTTONCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        CRect rect;
        GetItemRect(i, &rect);
        if (GetItemID(i) != ID_SEPARATOR || rect.Width() > kButtonHeight) // or a control's place
            tops.insert(rect.top);
    }
    return static_cast<int>(tops.size());
}

// Controls

std::wstring FrameBar::filter() const
{
    CString text;
    m_filter.GetWindowText(text);
    return text.GetString();
}

void FrameBar::showPoses(const std::vector<std::wstring>& names)
{
    m_poses.ResetContent();
    CString first;
    first.LoadString(IDS_FRAME_AS_IT_OPENS);
    m_poses.AddString(first);
    for (const std::wstring& name : names)
        m_poses.AddString(name.c_str());
    m_poses.SetCurSel(0);
    m_poses.EnableWindow(!names.empty());
}

std::wstring FrameBar::pose() const
{
    const int chosen = m_poses.GetCurSel();
    if (chosen <= 0)
        return {};
    CString name;
    m_poses.GetLBText(chosen, name);
    return name.GetString();
}
