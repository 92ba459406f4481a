#include "DockingPage.h"

#include "model/DockingFrame.h"
#include "resource.h"

#include <afxpriv.h>

BEGIN_MESSAGE_MAP(DockingPage, GalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_DOCK_SHOW, IDC_DOCK_SHOW + 3, &DockingPage::OnShow)
    ON_BN_CLICKED(IDC_DOCK_SAVE, &DockingPage::OnSave)
    ON_BN_CLICKED(IDC_DOCK_RESTORE, &DockingPage::OnRestore)
    ON_BN_CLICKED(IDC_DOCK_ONE_ROW, &DockingPage::OnOneRow)
    ON_BN_CLICKED(IDC_DOCK_SIDES, &DockingPage::OnSides)
    ON_BN_CLICKED(IDC_DOCK_FLOAT, &DockingPage::OnFloat)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &DockingPage::OnIdleUpdate)
END_MESSAGE_MAP()

DockingPage::DockingPage()
    : GalleryPage(IDD_PAGE_DOCKING)
{
}

DockingPage::~DockingPage() = default;

BOOL DockingPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    m_frame = DockingFrame::make(*this, IDC_DOCK_FRAME, [this](const std::wstring& line) { log(line); });
    if (!m_frame)
        return FALSE;
    replace(IDC_DOCK_FRAME, *m_frame);
    stretch(IDC_DOCK_FRAME, {.growX = 100, .growY = 100});
    for (int id = IDC_DOCK_SHOW; id <= IDC_DOCK_FLOAT; ++id)
        stretch(id, {.moveY = 100});
    return FALSE;
}

// Which bars are shown

void DockingPage::OnShow(UINT id)
{
    CControlBar& bar = m_frame->bar(static_cast<int>(id - IDC_DOCK_SHOW));
    m_frame->ShowControlBar(&bar, IsDlgButtonChecked(static_cast<int>(id)) == BST_CHECKED, FALSE);
}

/// A bar may have been closed by its own close box.
LRESULT DockingPage::OnIdleUpdate(WPARAM, LPARAM)
{
    for (int i = 0; m_frame && i < DockingFrame::kBars; ++i)
        if (const UINT shown = m_frame->bar(i).IsVisible() ? BST_CHECKED : BST_UNCHECKED;
            IsDlgButtonChecked(IDC_DOCK_SHOW + i) != shown)
            CheckDlgButton(IDC_DOCK_SHOW + i, shown);
    return 0;
}

// Arrangements

void DockingPage::OnSave()
{
    m_frame->save();
}

void DockingPage::OnRestore()
{
    m_frame->restore();
}

void DockingPage::OnOneRow()
{
    m_frame->arrangeInOneRow();
}

void DockingPage::OnSides()
{
    m_frame->arrangeAtSides();
}

void DockingPage::OnFloat()
{
    m_frame->makeFloat();
}

std::vector<std::wstring> DockingPage::poses() const
{
    return {L"sides", L"floating", L"cut"};
}

bool DockingPage::pose(const std::wstring& name)
{
    if (name == L"sides") {
        m_frame->arrangeAtSides();
    } else if (name == L"floating") {
        m_frame->makeFloat();
    } else if (name == L"cut") {
        CRect place = placeOf(IDC_DOCK_FRAME);
        place.right = place.left + place.Width() * 2 / 5;
        m_frame->MoveWindow(&place);
    } else {
        return false;
    }
    return true;
}
