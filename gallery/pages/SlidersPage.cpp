#include "SlidersPage.h"

#include "resource.h"

#include <cstdlib>
#include <map>
#include <vector>

BEGIN_MESSAGE_MAP(SlidersPage, GalleryPage)
    ON_CBN_SELCHANGE(IDC_SLIDERS_CONVENTION, &SlidersPage::OnConvention)
    ON_BN_CLICKED(IDC_SLIDERS_ENABLED, &SlidersPage::OnEnable)
    ON_BN_CLICKED(IDC_SLIDERS_EXTRAS, &SlidersPage::OnExtras)
    ON_MESSAGE(CSliderButton::kValueChanged, &SlidersPage::OnValueChanged)
    ON_MESSAGE(CSliderButton::kReleased, &SlidersPage::OnReleased)
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

namespace
{

struct Row
{
    const wchar_t* name;
    CSliderButton::SliderType type;
    double low;
    double high;
    const wchar_t* start; ///< in machine form
};

constexpr Row kRows[] = {
    {L"integer", CSliderButton::SliderInteger, 1, 24, L"8"},
    {L"linear", CSliderButton::SliderLinear, -10, 10, L"2.5"},
    {L"logarithmic", CSliderButton::SliderLogarithmic, 0.1, 1000, L"10.0"},
    {L"square root", CSliderButton::SliderSquareRoot, 0, 400, L"100.0"},
};
constexpr std::size_t kRowCount = std::size(kRows);
constexpr int kDecimals = 1;

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
constexpr double kSnap = 15;
constexpr double kStartHeading = 30;
constexpr double kStartTilt = 25;

UINT buddyOf(std::size_t row)
{
    return IDC_SLIDERS_BUDDY + static_cast<UINT>(row);
}

} // namespace

SlidersPage::SlidersPage()
    : GalleryPage(IDD_PAGE_SLIDERS)
    , m_buttons{CSliderButton(m_numbers), CSliderButton(m_numbers), CSliderButton(m_numbers),
                CSliderButton(m_numbers)}
{
}

SlidersPage::~SlidersPage() = default;

BOOL SlidersPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    m_numbers.tip = [this](const std::wstring& text) { SetDlgItemText(IDC_SLIDERS_TIP, text.c_str()); };
    for (std::size_t row = 0; row < kRowCount; ++row) {
        CSliderButton& button = m_buttons[row];
        button.SubclassDlgItem(IDC_SLIDERS_BUTTON + static_cast<UINT>(row), this);
        button.SetBuddy(*GetDlgItem(static_cast<int>(buddyOf(row))));
        button.SetType(kRows[row].type);
        button.SetRange(static_cast<int>(kRows[row].low), static_cast<int>(kRows[row].high));
        button.SetRange(kRows[row].low, kRows[row].high, kDecimals);
    }
    auto& conventions = *static_cast<CComboBox*>(GetDlgItem(IDC_SLIDERS_CONVENTION));
    for (const Convention& convention : kConventions)
        conventions.AddString(convention.name);
    conventions.SetCurSel(0);
    CheckDlgButton(IDC_SLIDERS_ENABLED, BST_CHECKED);

    m_plot.create(*this);
    replace(IDC_SLIDERS_PLOT, m_plot);
    m_box.create(*this);
    replace(IDC_SLIDERS_BOX, m_box);
    m_heading.Create(WS_CHILD | WS_VISIBLE, CRect(), this, 1);
    replace(IDC_SLIDERS_HEADING, m_heading);
    m_tilt.Create(WS_CHILD | WS_VISIBLE, CRect(), this, 1);
    replace(IDC_SLIDERS_TILT, m_tilt);
    m_dial.SetTicks(kDialTicks);
    m_dial.Create(WS_CHILD | WS_VISIBLE, CRect(), this, 1);
    replace(IDC_SLIDERS_DIAL, m_dial);
    stretch(IDC_SLIDERS_PLOT, {.growX = 100});
    stretch(IDC_SLIDERS_BOX, {.growX = 100, .growY = 100});
    stretch(IDC_SLIDERS_TILT, {.moveX = 100, .growY = 100});
    stretch(IDC_SLIDERS_DIAL, {.moveX = 100, .moveY = 50});
    stretch(IDC_SLIDERS_EXTRAS, {.moveY = 100});
    stretch(IDC_SLIDERS_HEADING, {.moveY = 100});
    stretch(IDC_SLIDERS_ENABLED, {.moveY = 100});

    fillNumbers();
    showCurve(0);
    turn(kStartHeading, kStartTilt);
    return FALSE;
}

void SlidersPage::fillNumbers()
{
    for (std::size_t row = 0; row < kRowCount; ++row) {
        std::wstring text;
        m_numbers.toDisplay(text, kRows[row].start);
        SetDlgItemText(static_cast<int>(buddyOf(row)), text.c_str());
    }
}

void SlidersPage::OnConvention()
{
    const int chosen = static_cast<CComboBox*>(GetDlgItem(IDC_SLIDERS_CONVENTION))->GetCurSel();
    m_numbers.use(kConventions[chosen].decimal, kConventions[chosen].separator);
    fillNumbers();
}

void SlidersPage::OnEnable()
{
    const BOOL enable = IsDlgButtonChecked(IDC_SLIDERS_ENABLED) == BST_CHECKED;
    for (CSliderButton& button : m_buttons)
        button.EnableWindow(enable);
    m_heading.EnableWindow(enable);
    m_dial.EnableWindow(enable);
    m_tilt.EnableWindow(enable);
}

// Slider buttons

double SlidersPage::valueIn(std::size_t row)
{
    CString shown;
    GetDlgItemText(static_cast<int>(buddyOf(row)), shown);
    std::wstring number;
    m_numbers.fromDisplay(number, std::wstring(shown));
    return std::wcstod(number.c_str(), nullptr);
}

void SlidersPage::showCurve(std::size_t row)
{
    m_plot.show(kRows[row].type, kRows[row].low, kRows[row].high, valueIn(row));
}

LRESULT SlidersPage::OnValueChanged(WPARAM buddy, LPARAM)
{
    const std::size_t row =
        static_cast<UINT>(::GetDlgCtrlID(reinterpret_cast<HWND>(buddy))) - IDC_SLIDERS_BUDDY;
    CString shown;
    GetDlgItemText(static_cast<int>(buddyOf(row)), shown);
    showCurve(row);
    log(std::wstring(kRows[row].name) + L" slider: value " + std::wstring(shown));
    return 0;
}

LRESULT SlidersPage::OnReleased(WPARAM buddy, LPARAM)
{
    const std::size_t row =
        static_cast<UINT>(::GetDlgCtrlID(reinterpret_cast<HWND>(buddy))) - IDC_SLIDERS_BUDDY;
    log(std::wstring(kRows[row].name) + L" slider: released");
    return 0;
}

void SlidersPage::OnExtras()
{
    const bool use = IsDlgButtonChecked(IDC_SLIDERS_EXTRAS) == BST_CHECKED;
    for (CSliderButton& button : m_buttons) {
        button.StepByWheel(use);
        button.StepFinelyByShift(use);
        button.ShowBubble(use);
    }
    m_buttons[2].SetTicks(use ? std::vector<double>{1, 10, 100} : std::vector<double>());
    for (CAngleSlider* slider : {static_cast<CAngleSlider*>(&m_heading), static_cast<CAngleSlider*>(&m_tilt),
                                 static_cast<CAngleSlider*>(&m_dial)}) {
        slider->UseKeyboard(use);
        slider->SetSnap(use ? kSnap : 0);
        slider->ModifyStyle(use ? 0 : WS_TABSTOP, use ? WS_TABSTOP : 0);
    }
}

// Angles

void SlidersPage::turn(double heading, double tilt)
{
    m_heading.SetPos(heading);
    m_dial.SetPos(heading);
    m_tilt.SetPos(tilt);
    m_box.turn(heading, tilt);
}

void SlidersPage::OnHScroll(UINT code, UINT position, CScrollBar*)
{
    const int angle = static_cast<short>(position);
    if (code == SB_THUMBPOSITION) {
        m_heading.SetPos(angle);
        m_dial.SetPos(angle);
    }
    m_box.turn(angle, m_tilt.GetPos());
    log(L"WM_HSCROLL " + std::wstring(code == SB_THUMBTRACK ? L"SB_THUMBTRACK " : L"SB_THUMBPOSITION ") +
        std::to_wstring(angle));
}

void SlidersPage::OnVScroll(UINT code, UINT position, CScrollBar*)
{
    const int angle = static_cast<short>(position);
    if (code == SB_THUMBPOSITION)
        m_tilt.SetPos(angle);
    m_box.turn(m_heading.GetPos(), angle);
    log(L"WM_VSCROLL " + std::wstring(code == SB_THUMBTRACK ? L"SB_THUMBTRACK " : L"SB_THUMBPOSITION ") +
        std::to_wstring(angle));
}

// Poses

std::vector<std::wstring> SlidersPage::poses() const
{
    return {L"integer", L"linear", L"logarithmic", L"square-root", L"turned",      L"disabled",
            L"pressed", L"at-0",   L"at-45",       L"at-90",       L"at-minus-30", L"extras"};
}

bool SlidersPage::pose(const std::wstring& name)
{
    const std::vector<std::wstring> names = poses();
    for (std::size_t row = 0; row < kRowCount; ++row) {
        m_buttons[row].SendMessage(CPopupSlider::kDeactivated);
        if (name == names[row]) {
            showCurve(row);
            m_buttons[row].SetFocus();
            m_buttons[row].SendMessage(WM_KEYDOWN, VK_SPACE);
            return true;
        }
    }
    if (name == L"turned")
        turn(-50, -60);
    else if (name == L"disabled")
        CheckDlgButton(IDC_SLIDERS_ENABLED, BST_UNCHECKED);
    else if (name == L"pressed")
        m_buttons[0].SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    else if (name == L"extras")
        openWithExtras();
    else
        return poseAngle(name);
    OnEnable();
    return true;
}

bool SlidersPage::poseAngle(const std::wstring& name)
{
    static const std::map<std::wstring, double> angles{
        {L"at-0", 0}, {L"at-45", 45}, {L"at-90", 90}, {L"at-minus-30", -30}};
    const auto found = angles.find(name);
    if (found == angles.end())
        return false;
    turn(found->second, found->second);
    return true;
}

void SlidersPage::openWithExtras()
{
    CheckDlgButton(IDC_SLIDERS_EXTRAS, BST_CHECKED);
    OnExtras();
    showCurve(2);
    m_buttons[2].SetFocus();
    m_buttons[2].SendMessage(WM_KEYDOWN, VK_SPACE);
}
