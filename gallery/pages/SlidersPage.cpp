#include "SlidersPage.h"

#include "Pointer.h"
#include "resource.h"

#include <ovoui/frame/Geometry.h>
#include <ovoui/sliders/SliderData.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

BEGIN_MESSAGE_MAP(SlidersPage, GalleryPage)
    ON_BN_CLICKED(IDC_SLIDERS_CHECK, &SlidersPage::OnCheck)
    ON_CBN_SELCHANGE(IDC_SLIDERS_CONVENTION, &SlidersPage::OnConvention)
    ON_BN_CLICKED(IDC_SLIDERS_ENABLED, &SlidersPage::OnEnable)
    ON_BN_CLICKED(IDC_SLIDERS_EXTRAS, &SlidersPage::OnExtras)
    ON_BN_CLICKED(IDC_SLIDERS_REVERSED, &SlidersPage::OnReversed)
    ON_MESSAGE(CSliderButton::kValueChanged, &SlidersPage::OnValueChanged)
    ON_MESSAGE(CSliderButton::kReleased, &SlidersPage::OnReleased)
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

namespace
{

constexpr double kLongestEdge = 10; // of the cube whose volume a slider shows

double edgeOf(double volume)
{
    return std::cbrt(volume) / kLongestEdge;
}

double volumeOf(double edge)
{
    return std::pow(edge * kLongestEdge, 3);
}

struct Row
{
    const wchar_t* name;
    CSliderButton::SliderType type;
    double low;
    double high;
    int decimals;
    double start;
};

// The order is that of the controls and of the poses.
enum : std::size_t
{
    Integer,
    Linear,
    Logarithmic,
    SquareRoot,
    OwnScale,
    PerCent,
};

constexpr Row kTable[] = {
    {L"integer", CSliderButton::SliderInteger, 1, 24, 0, 8},
    {L"linear", CSliderButton::SliderLinear, -10, 10, 1, 2.5},
    {L"logarithmic", CSliderButton::SliderLogarithmic, 0.1, 1000, 1, 10},
    {L"square-root", CSliderButton::SliderSquareRoot, 0, 400, 1, 100},
    {L"own-scale", CSliderButton::SliderLinear, 0, 1000, 0, 125},
    {L"per-cent", CSliderButton::SliderLinear, 0, 1, 3, 0.25},
};

/// The number at a share of the way, as the row's slider has it.
double numberAt(std::size_t index, double share)
{
    const Row& row = kTable[index];
    if (index == OwnScale)
        return volumeOf(share);
    if (row.type == CSliderButton::SliderLogarithmic)
        return row.low * std::pow(row.high / row.low, share);
    if (row.type == CSliderButton::SliderSquareRoot)
        return row.low + (row.high - row.low) * share * share;
    return row.low + (row.high - row.low) * share;
}

struct Convention
{
    const wchar_t* name;
    wchar_t decimal;
    const wchar_t* separator;
};

constexpr Convention kConventions[] = {
    {L"1.5, 2 (point and comma)", L'.', L","},
    {L"1,5; 2 (comma and semicolon)", L',', L";"},
    {L"1\u066B5\u061B 2 (Arabic signs)", L'\u066B', L"\u061B"},
};

constexpr double kDialTicks = 30;
constexpr double kSnap = 15; // degrees, as explainExtras says
constexpr double kStartHeading = 30;
constexpr double kStartTilt = 25;

UINT buddyOf(std::size_t row)
{
    return IDC_SLIDERS_BUDDY + static_cast<UINT>(row);
}

std::size_t rowOf(WPARAM buddy)
{
    return static_cast<std::size_t>(::GetDlgCtrlID(reinterpret_cast<HWND>(buddy)) - IDC_SLIDERS_BUDDY);
}

/// With the mouse, near the upper left corner.
void press(CWnd& button)
{
    constexpr int kInside = 4;
    pointAt(button, {kInside, kInside});
    button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(kInside, kInside));
}

} // namespace

SlidersPage::SlidersPage()
    : GalleryPage(IDD_PAGE_SLIDERS)
    , m_buttons{CSliderButton(m_numbers), CSliderButton(m_numbers), CSliderButton(m_numbers),
                CSliderButton(m_numbers), CSliderButton(m_volumes), CSliderButton(m_shares)}
{
    static_assert(std::size(kTable) == kRows);
    std::transform(std::begin(kTable), std::end(kTable), m_values.begin(),
                   [](const Row& row) { return row.start; });
}

SlidersPage::~SlidersPage() = default;

BOOL SlidersPage::OnInitDialog()
{
    createButtons();
    GalleryPage::OnInitDialog(); // which shows the numbers
    m_numbers.tip = m_volumes.tip =
        m_shares.tip = [this](const std::wstring& text) { SetDlgItemText(IDC_SLIDERS_TIP, text.c_str()); };
    auto& conventions = *static_cast<CComboBox*>(GetDlgItem(IDC_SLIDERS_CONVENTION));
    for (const Convention& convention : kConventions)
        conventions.AddString(convention.name);
    conventions.SetCurSel(0);
    CheckDlgButton(IDC_SLIDERS_ENABLED, BST_CHECKED);
    m_plot.create(*this);
    replace(IDC_SLIDERS_PLOT, m_plot);
    m_box.create(*this);
    replace(IDC_SLIDERS_BOX, m_box);
    createAngles();
    arrange();
    showCurve(Integer);
    turn(kStartHeading, kStartTilt);
    return FALSE;
}

void SlidersPage::createButtons()
{
    for (std::size_t row = 0; row < kRows; ++row) {
        CSliderButton& button = m_buttons[row];
        button.SubclassDlgItem(IDC_SLIDERS_BUTTON + static_cast<UINT>(row), this);
        button.SetBuddy(*GetDlgItem(static_cast<int>(buddyOf(row))));
        button.SetType(kTable[row].type);
        button.SetRange(static_cast<int>(kTable[row].low), static_cast<int>(kTable[row].high));
        button.SetRange(kTable[row].low, kTable[row].high, kTable[row].decimals);
    }
    m_buttons[OwnScale].SetMapping(&edgeOf, &volumeOf);
    m_buttons[OwnScale].SetTicks({1, 8, 27, 64, 125, 216, 343, 512, 729});
}

void SlidersPage::createAngles()
{
    const CRect headingPlace = placeOf(IDC_SLIDERS_HEADING);
    const CRect tiltPlace = placeOf(IDC_SLIDERS_TILT);
    m_headings[false].Create(WS_CHILD | WS_VISIBLE, CRect(), this, 1);
    replace(IDC_SLIDERS_HEADING, m_headings[false]);
    m_tilts[false].Create(WS_CHILD | WS_VISIBLE, CRect(), this, 1);
    replace(IDC_SLIDERS_TILT, m_tilts[false]);
    m_headings[true].Create(WS_CHILD, headingPlace, this, IDC_SLIDERS_HEADING_REVERSED);
    m_tilts[true].Create(WS_CHILD, tiltPlace, this, IDC_SLIDERS_TILT_REVERSED);
    m_dial.SetTicks(kDialTicks);
    m_dial.Create(WS_CHILD | WS_VISIBLE, CRect(), this, 1);
    replace(IDC_SLIDERS_DIAL, m_dial);
    for (CAngleSlider* const slider : angleSliders()) {
        slider->UseKeyboard(true);
        slider->ModifyStyle(0, WS_TABSTOP);
    }
    for (const bool reversed : {false, true}) {
        m_headings[reversed].SetWindowText(L"Heading");
        m_tilts[reversed].SetWindowText(L"Tilt");
    }
    m_dial.SetWindowText(L"Heading");
}

std::vector<CAngleSlider*> SlidersPage::angleSliders()
{
    return {&m_headings[false], &m_headings[true], &m_tilts[false], &m_tilts[true], &m_dial};
}

void SlidersPage::arrange()
{
    stretch(IDC_SLIDERS_PLOT, {.growX = 100});
    stretch(IDC_SLIDERS_CHECK, {.moveX = 100});
    stretch(IDC_SLIDERS_BOX, {.growX = 100, .growY = 100});
    stretch(IDC_SLIDERS_DIAL, {.moveX = 100, .moveY = 50});
    for (const int tilt : {IDC_SLIDERS_TILT, IDC_SLIDERS_TILT_REVERSED})
        stretch(tilt, {.moveX = 100, .growY = 100});
    for (const int below : {IDC_SLIDERS_HEADING, IDC_SLIDERS_HEADING_REVERSED, IDC_SLIDERS_ENABLED,
                            IDC_SLIDERS_REVERSED, IDC_SLIDERS_EXTRAS})
        stretch(below, {.moveY = 100});
}

void SlidersPage::DoDataExchange(CDataExchange* exchange)
{
    GalleryPage::DoDataExchange(exchange);
    for (std::size_t row = 0; row < kRows; ++row)
        DDX_SliderNumber(exchange, m_buttons[row], m_values[row]);
}

/// Reads all numbers. One that is not in its range is reported, and the reading ends there.
void SlidersPage::OnCheck()
{
    if (!UpdateData(TRUE) || !m_hWnd)
        return;
    CString line(L"read:");
    for (std::size_t row = 0; row < kRows; ++row)
        line.AppendFormat(L" %s %g", kTable[row].name, m_values[row]);
    log(std::wstring(line));
}

void SlidersPage::OnConvention()
{
    const bool areRead = UpdateData(TRUE) != FALSE;
    if (!m_hWnd)
        return;
    auto& conventions = *static_cast<CComboBox*>(GetDlgItem(IDC_SLIDERS_CONVENTION));
    if (!areRead) {
        conventions.SetCurSel(m_convention); // which goes on
        return;
    }
    m_convention = conventions.GetCurSel();
    m_numbers.use(kConventions[m_convention].decimal, kConventions[m_convention].separator);
    UpdateData(FALSE);
}

void SlidersPage::OnEnable()
{
    const BOOL enable = IsDlgButtonChecked(IDC_SLIDERS_ENABLED) == BST_CHECKED;
    for (CSliderButton& button : m_buttons)
        button.EnableWindow(enable);
    for (const bool reversed : {false, true}) {
        m_headings[reversed].EnableWindow(enable);
        m_tilts[reversed].EnableWindow(enable);
    }
    m_dial.EnableWindow(enable);
}

void SlidersPage::OnExtras()
{
    const bool use = IsDlgButtonChecked(IDC_SLIDERS_EXTRAS) == BST_CHECKED;
    for (CSliderButton& button : m_buttons) {
        button.StepByWheel(use);
        button.StepFinelyByShift(use);
        button.ShowBubble(use);
    }
    m_buttons[Logarithmic].SetTicks(use ? std::vector<double>{1, 10, 100} : std::vector<double>());
    for (CAngleSlider* const slider : angleSliders())
        slider->SetSnap(use ? kSnap : 0);
    explainExtras(use);
}

/// What there is to try, since the controls look the same until they are used.
void SlidersPage::explainExtras(bool on) const
{
    if (!on)
        return log(L"the sliders are as a host gets them at first");
    log(L"StepByWheel: the wheel over a number or its button changes it; StepFinelyByShift: with Shift, "
        L"finely");
    log(L"ShowBubble: the number stands above the thumb; SetTicks: marks below the logarithmic slider");
    log(L"SetSnap: with Shift the mouse turns heading and tilt to multiples of 15 degrees");
}

void SlidersPage::OnReversed()
{
    m_reversed = IsDlgButtonChecked(IDC_SLIDERS_REVERSED) == BST_CHECKED;
    for (const bool reversed : {false, true}) {
        m_headings[reversed].ShowWindow(reversed == m_reversed ? SW_SHOWNA : SW_HIDE);
        m_tilts[reversed].ShowWindow(reversed == m_reversed ? SW_SHOWNA : SW_HIDE);
    }
}

// Slider buttons

void SlidersPage::showCurve(std::size_t row)
{
    m_plot.show([row](double share) { return numberAt(row, share); },
                m_buttons[row].Number().value_or(kTable[row].low));
}

LRESULT SlidersPage::OnValueChanged(WPARAM buddy, LPARAM)
{
    const std::size_t row = rowOf(buddy);
    CString shown;
    GetDlgItemText(static_cast<int>(buddyOf(row)), shown);
    showCurve(row);
    log(std::wstring(kTable[row].name) + L" slider: value " + std::wstring(shown));
    return 0;
}

LRESULT SlidersPage::OnReleased(WPARAM buddy, LPARAM)
{
    log(std::wstring(kTable[rowOf(buddy)].name) + L" slider: released");
    return 0;
}

// Angles

void SlidersPage::turn(double heading, double tilt)
{
    for (CRoundSlider& slider : m_headings)
        slider.SetPos(heading);
    for (CWheelSlider& slider : m_tilts)
        slider.SetPos(tilt);
    m_dial.SetPos(heading);
    m_box.turn(heading, tilt);
}

void SlidersPage::OnHScroll(UINT code, UINT position, CScrollBar*)
{
    const int angle = static_cast<short>(position);
    if (code == SB_THUMBPOSITION)
        turn(angle, tilt().GetPos());
    else
        m_box.turn(angle, tilt().GetPos());
    log(L"WM_HSCROLL " + std::wstring(code == SB_THUMBTRACK ? L"SB_THUMBTRACK " : L"SB_THUMBPOSITION ") +
        std::to_wstring(angle));
}

void SlidersPage::OnVScroll(UINT code, UINT position, CScrollBar*)
{
    const int angle = static_cast<short>(position);
    if (code == SB_THUMBPOSITION)
        turn(heading().GetPos(), angle);
    else
        m_box.turn(heading().GetPos(), angle);
    log(L"WM_VSCROLL " + std::wstring(code == SB_THUMBTRACK ? L"SB_THUMBTRACK " : L"SB_THUMBPOSITION ") +
        std::to_wstring(angle));
}

// Poses

std::vector<std::wstring> SlidersPage::poses() const
{
    std::vector<std::wstring> names = {L"at-screen-edge", L"pressed", L"extras", L"disabled", L"turned",
                                       L"reversed",       L"at-0",    L"at-45",  L"at-90",    L"at-minus-30"};
    for (const Row& row : kTable)
        names.emplace_back(row.name);
    return names;
}

bool SlidersPage::pose(const std::wstring& name)
{
    const auto row = std::find_if(std::begin(kTable), std::end(kTable),
                                  [&](const Row& entry) { return entry.name == name; });
    if (row != std::end(kTable)) {
        openPopup(static_cast<std::size_t>(row - std::begin(kTable)));
    } else if (name == L"at-screen-edge") {
        openAtScreenEdge();
    } else if (name == L"pressed") {
        press(m_buttons[Integer]);
    } else if (name == L"extras") {
        CheckDlgButton(IDC_SLIDERS_EXTRAS, BST_CHECKED);
        OnExtras();
        openPopup(Logarithmic);
    } else if (name == L"disabled") {
        CheckDlgButton(IDC_SLIDERS_ENABLED, BST_UNCHECKED);
        OnEnable();
    } else {
        return poseAngles(name);
    }
    return true;
}

void SlidersPage::openPopup(std::size_t row)
{
    showCurve(row);
    m_buttons[row].SetFocus();
    m_buttons[row].SendMessage(WM_KEYDOWN, VK_SPACE);
}

/// In the lower right corner of the screen, which the window reaches beyond.
void SlidersPage::openAtScreenEdge()
{
    CWnd& frame = *GetTopLevelParent();
    CRect window;
    frame.GetWindowRect(&window);
    CRect button;
    m_buttons[Integer].GetWindowRect(&button);
    const CRect screen(GetWorkArea(window));
    const CPoint corner = screen.BottomRight() - CSize(button.Width(), button.Height() / 2);
    const CPoint moved = window.TopLeft() + (corner - button.BottomRight());
    frame.SetWindowPos(nullptr, moved.x, moved.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    openPopup(Integer);
}

bool SlidersPage::poseAngles(const std::wstring& name)
{
    static const std::map<std::wstring, std::pair<double, double>> angles{
        {L"at-0", {0, 0}},       {L"at-45", {45, 45}},
        {L"at-90", {90, 90}},    {L"at-minus-30", {-30, -30}},
        {L"turned", {-50, -60}}, {L"reversed", {kStartHeading, kStartTilt}}};
    const auto found = angles.find(name);
    if (found == angles.end())
        return false;
    turn(found->second.first, found->second.second);
    CheckDlgButton(IDC_SLIDERS_REVERSED, name == L"reversed" ? BST_CHECKED : BST_UNCHECKED);
    OnReversed();
    return true;
}
