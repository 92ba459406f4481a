#include "PickerDialogs.h"

#include "Pointer.h"
#include "resource.h"

#include <cmath>
#include <utility>

// The library's own dialog

BEGIN_MESSAGE_MAP(LivePicker, ColPickerDlg)
    ON_WM_SHOWWINDOW()
END_MESSAGE_MAP()

LivePicker::LivePicker(const PickerHost& host, ColPickerModeType mode, const Colour& colour, CWnd* parent)
    : ColPickerDlg(*AfxGetApp(), mode, colour, parent, parent)
    , m_host(host)
{
}

void LivePicker::UpdateExternalColours(bool final)
{
    m_host.changed(GetColour(), final);
}

/// The dialog has its place now.
void LivePicker::OnShowWindow(BOOL shown, UINT status)
{
    ColPickerDlg::OnShowWindow(shown, status);
    if (shown && m_dragTo >= 0)
        drag(GetColour().h_hls().degrees(), std::exchange(m_dragTo, -1));
}

void LivePicker::drag(double fromHue, double toHue)
{
    const CPoint from = onRing(fromHue);
    const CPoint to = onRing(toHue);
    pointAt(*this, to);
    SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
    SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.x, to.y));
}

/// Red is at the top, and hues go anticlockwise.
CPoint LivePicker::onRing(double hue) const
{
    const double radius = std::min(m_wheelRect.Width(), m_wheelRect.Height()) / 2 * 0.88;
    const Angle angle = Angle::degrees(hue);
    const CPoint centre = m_wheelRect.CenterPoint();
    return {centre.x - static_cast<int>(std::lround(radius * angle.sin())),
            centre.y - static_cast<int>(std::lround(radius * angle.cos()))};
}

// With custom colours

SwatchPicker::SwatchPicker(const PickerHost& host, const Colour& colour, CWnd* parent)
    : SwatchPicker(IDD_SWATCH_PICKER, host, colour, parent)
{
}

SwatchPicker::SwatchPicker(int dialogTemplate, const PickerHost& host, const Colour& colour, CWnd* parent)
    : ColPickerDlgBase(dialogTemplate, *AfxGetApp(), colour, nullptr, parent)
    , m_host(host)
{
    m_customAreaId = IDC_SWATCHES;
}

COLORREF& SwatchPicker::customCols(int index)
{
    static std::array<COLORREF, 18> colours{
        RGB(127, 23, 52),   RGB(190, 49, 26),   RGB(226, 125, 38),  RGB(243, 190, 76),  RGB(166, 176, 48),
        RGB(84, 130, 53),   RGB(38, 84, 60),    RGB(34, 113, 125),  RGB(38, 64, 112),   RGB(92, 64, 51),
        RGB(140, 110, 84),  RGB(196, 178, 150), RGB(238, 230, 214), RGB(255, 255, 255), RGB(190, 190, 190),
        RGB(128, 128, 128), RGB(64, 64, 64),    RGB(0, 0, 0)};
    return colours[static_cast<std::size_t>(index)];
}

void SwatchPicker::UpdateExternalColours(bool final)
{
    m_host.changed(GetColour(), final);
}

MirroredPicker::MirroredPicker(const PickerHost& host, const Colour& colour, CWnd* parent)
    : SwatchPicker(IDD_MIRRORED_PICKER, host, colour, parent)
{
}

// On a shaded tab control

PickerPage::PickerPage(const PickerHost& host, const Colour& colour, CShadedTabCtrl& tabs)
    : SwatchPicker(IDD_PICKER_PAGE, host, colour, &tabs)
    , m_tabs(tabs)
{
}

void PickerPage::open()
{
    if (!Create(IDD_PICKER_PAGE, &m_tabs))
        return;
    CRect room;
    m_tabs.GetClientRect(&room);
    m_tabs.AdjustRect(FALSE, &room);
    MoveWindow(&room);
    ShowWindow(SW_SHOW);
}

PickerTabs::PickerTabs(const PickerHost& host, const Colour& colour)
    : m_picker(host, colour, *this)
{
}

void PickerTabs::open(std::initializer_list<LPCTSTR> names)
{
    for (const LPCTSTR name : names)
        InsertItem(GetItemCount(), name);
    m_picker.open();
}

TabbedPicker::TabbedPicker(const PickerHost& host, const Colour& colour, CWnd* parent)
    : CDialog(IDD_TABBED_PICKER, parent)
    , m_tabs(host, colour)
{
}

void TabbedPicker::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_PICKER_TABS, m_tabs);
}

BOOL TabbedPicker::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_tabs.open({L"Colour", L"Line"});
    return TRUE;
}
