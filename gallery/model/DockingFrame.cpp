#include "DockingFrame.h"

#include "ImageStrip.h"
#include "Resolution.h"
#include "resource.h"

#include <ovouires/resource.h>

#include <afxcmn.h>

#include <algorithm>
#include <vector>

BEGIN_MESSAGE_MAP(DockingFrame, CFrameWnd)
    // buttons
    ON_COMMAND_RANGE(ID_DOCK_FIRST, ID_DOCK_LAST, &DockingFrame::OnTool)
    ON_UPDATE_COMMAND_UI_RANGE(ID_DOCK_FIRST, ID_DOCK_LAST, &DockingFrame::OnUpdateTool)
    // the palette's controls
    ON_WM_HSCROLL()
    ON_EN_CHANGE(IDC_PALETTE_TEXT, &DockingFrame::OnTextChanged)
    ON_BN_CLICKED(IDC_PALETTE_FILLED, &DockingFrame::OnFilled)
END_MESSAGE_MAP()

namespace
{

constexpr UINT kFirstBar = AFX_IDW_CONTROLBAR_FIRST + 0x20;
constexpr LPCTSTR kProfile = L"DockingPage";

CRect screenRect(const CWnd& wnd)
{
    CRect rect;
    wnd.GetWindowRect(&rect);
    return rect;
}

} // namespace

DockingFrame::DockingFrame(Log log)
    : m_log(std::move(log))
{
}

DockingFrame* DockingFrame::make(CWnd& parent, UINT id, Log log)
{
    auto* frame = new DockingFrame(std::move(log));
    const LPCTSTR cls = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                            reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    if (!frame->CWnd::CreateEx(WS_EX_CONTROLPARENT, cls, L"", kStyle, CRect(), &parent, id))
        return nullptr; // it has deleted itself
    if (frame->createParts())
        return frame;
    frame->DestroyWindow();
    return nullptr;
}

void DockingFrame::PostNcDestroy()
{
    delete this;
}

bool DockingFrame::createParts()
{
    createImages(m_images, {IDB_TOOLBAR_16, IDB_TOOLBAR_24, IDB_TOOLBAR_32}, m_hWnd);
    EnableDocking(CBRS_ALIGN_ANY);
    constexpr UINT kPalette = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_LEFT | CBRS_GRIPPER;
    const bool made = m_shape.create(*this) && createBar(m_bars[0], kFirstBar, L"File", ID_DOCK_FIRST, 5) &&
                      createBar(m_bars[1], kFirstBar + 1, L"Edit", ID_DOCK_FIRST + 5, 4) &&
                      createBar(m_bars[2], kFirstBar + 2, L"View", ID_DOCK_FIRST + 9, 3) &&
                      m_palette.Create(this, IDD_PALETTE, kPalette, IDS_PALETTE, kFirstBar + 3);
    if (!made)
        return false;
    m_palette.EnableDocking(CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT);
    auto& slider = static_cast<CSliderCtrl&>(*m_palette.GetDlgItem(IDC_PALETTE_SIZE));
    slider.SetRange(10, 100);
    slider.SetPos(60);
    m_palette.CheckDlgButton(IDC_PALETTE_FILLED, BST_CHECKED);
    DockControlBar(&m_palette, AFX_IDW_DOCKBAR_RIGHT);
    arrangeInOneRow();
    return true;
}

bool DockingFrame::createBar(CToolBar& bar, UINT id, LPCTSTR title, UINT firstCommand, int count)
{
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP | CBRS_GRIPPER | CBRS_TOOLTIPS |
                             CBRS_FLYBY | CBRS_SIZE_DYNAMIC;
    if (!bar.CreateEx(this, TBSTYLE_FLAT, kStyle, CRect(2, 2, 2, 2), id))
        return false;
    bar.SetWindowText(title);
    const int side = scaled(m_hWnd, 16);
    bar.SetSizes(CSize(side + scaled(m_hWnd, 8), side + scaled(m_hWnd, 7)), CSize(side, side));
    bar.GetToolBarCtrl().SetImageList(m_images.ImageList());
    std::vector<UINT> commands;
    for (int i = 0; i < count; ++i)
        commands.push_back(firstCommand + static_cast<UINT>(i));
    if (!bar.SetButtons(commands.data(), count))
        return false;
    for (int i = 0; i < count; ++i)
        bar.SetButtonInfo(i, commands[static_cast<std::size_t>(i)], TBBS_BUTTON,
                          static_cast<int>(firstCommand - ID_DOCK_FIRST) + i);
    bar.EnableDocking(CBRS_ALIGN_ANY);
    return true;
}

CControlBar& DockingFrame::bar(int index)
{
    if (index == kBars - 1)
        return m_palette;
    return m_bars[static_cast<std::size_t>(index)];
}

// Arrangements

void DockingFrame::save()
{
    SaveBarState(kProfile);
    m_log(L"SaveBarState");
}

void DockingFrame::restore()
{
    LoadBarState(kProfile);
    m_log(L"LoadBarState");
}

void DockingFrame::arrangeInOneRow()
{
    for (std::size_t i = 0; i < m_bars.size(); ++i) {
        CRect rect = i > 0 ? screenRect(m_bars[i - 1]) : CRect();
        rect.OffsetRect(1, 0); // a little behind the one before
        DockControlBar(&m_bars[i], AFX_IDW_DOCKBAR_TOP, i > 0 ? &rect : nullptr);
        RecalcLayout();
    }
}

void DockingFrame::arrangeAtSides()
{
    DockControlBar(&m_bars[0], AFX_IDW_DOCKBAR_TOP);
    DockControlBar(&m_bars[1], AFX_IDW_DOCKBAR_LEFT);
    DockControlBar(&m_bars[2], AFX_IDW_DOCKBAR_BOTTOM);
    DockControlBar(&m_palette, AFX_IDW_DOCKBAR_RIGHT);
    RecalcLayout();
}

void DockingFrame::makeFloat()
{
    const CRect room = screenRect(m_shape);
    m_bars[0].CalcDynamicLayout(3 * scaled(m_hWnd, 26), LM_HORZ | LM_COMMIT);
    FloatControlBar(&m_bars[0], room.TopLeft() + CPoint(scaled(m_hWnd, 30), scaled(m_hWnd, 30)));
    FloatControlBar(&m_palette, CPoint(room.CenterPoint().x, room.top + scaled(m_hWnd, 60)));
    RecalcLayout();
}

// Buttons

void DockingFrame::OnTool(UINT id)
{
    m_log(L"command " + std::to_wstring(id));
}

void DockingFrame::OnUpdateTool(CCmdUI* ui)
{
    ui->Enable(ui->m_nID != ID_DOCK_FIRST + 3);
}

// The palette

void DockingFrame::OnHScroll(UINT, UINT, CScrollBar*)
{
    const LRESULT pos = m_palette.SendDlgItemMessage(IDC_PALETTE_SIZE, TBM_GETPOS);
    m_shape.setSize(static_cast<int>(pos));
    m_log(L"the palette's slider is at " + std::to_wstring(pos));
}

void DockingFrame::OnTextChanged()
{
    CString text;
    m_palette.GetDlgItemText(IDC_PALETTE_TEXT, text);
    m_shape.setText(text.GetString());
}

void DockingFrame::OnFilled()
{
    m_shape.setFilled(m_palette.IsDlgButtonChecked(IDC_PALETTE_FILLED) == BST_CHECKED);
}
