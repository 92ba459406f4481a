#include "FramePalette.h"

#include "resource.h"

#include <afxcmn.h>

#include <algorithm>

namespace
{

constexpr int kLastHue = 359;
constexpr int kPageOfHues = 30;

constexpr int kLeastList = 100;
constexpr int kMostList = 400;
constexpr int kLeastLog = 40;
constexpr int kMostLog = 300;

} // namespace

bool FramePalette::create(CFrameWnd& frame, Values values)
{
    constexpr UINT kStyle = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_RIGHT | CBRS_GRIPPER;
    if (!Create(&frame, IDD_FRAME_PALETTE, kStyle, IDS_FRAME_PALETTE, ID_VIEW_PALETTE))
        return false;
    auto& slider = static_cast<CSliderCtrl&>(*GetDlgItem(IDC_FRAME_HUE));
    slider.SetRange(0, kLastHue);
    slider.SetPageSize(kPageOfHues);
    show(values);
    EnableDocking(CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT);
    return true;
}

/// By value: the edits tell the frame of their changes, which looks at the other ones then.
void FramePalette::show(Values values)
{
    SendDlgItemMessage(IDC_FRAME_HUE, TBM_SETPOS, TRUE, values.hue);
    SetDlgItemInt(IDC_FRAME_LIST_WIDTH, static_cast<UINT>(values.listWidth));
    SetDlgItemInt(IDC_FRAME_LOG_HEIGHT, static_cast<UINT>(values.logHeight));
}

FramePalette::Values FramePalette::values() const
{
    Values shown;
    shown.hue = static_cast<int>(::SendDlgItemMessageW(m_hWnd, IDC_FRAME_HUE, TBM_GETPOS, 0, 0));
    shown.listWidth =
        std::clamp(static_cast<int>(GetDlgItemInt(IDC_FRAME_LIST_WIDTH)), kLeastList, kMostList);
    shown.logHeight = std::clamp(static_cast<int>(GetDlgItemInt(IDC_FRAME_LOG_HEIGHT)), kLeastLog, kMostLog);
    return shown;
}
