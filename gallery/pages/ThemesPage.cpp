#include "ThemesPage.h"

#include "Resolution.h"
#include "resource.h"

#include <ovoui/frame/ThemeData.h>

#include <uxtheme.h>
#include <vsstyle.h>
#include <vssym32.h>

BEGIN_MESSAGE_MAP(ThemeSamples, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

// Pixels at 96 dots per inch.
constexpr int kRow = 40;
constexpr int kHeight = 30;
constexpr int kLabel = 120;
constexpr int kSwatch = 90;
constexpr int kButton = 60;
constexpr int kGap = 6;

struct State
{
    const wchar_t* label;
    int value;
    UINT classic; ///< for DrawFrameControl where there are no themes
};

constexpr State kStates[] = {
    {L"Normal", 1, 0},  {L"Hot", 2, DFCS_HOT}, {L"Pressed", 3, DFCS_PUSHED}, {L"Disabled", 4, DFCS_INACTIVE},
    {L"Default", 5, 0},
};

/// The colour of the text on a push button of the window's theme; without one that of the system.
COLORREF textOnButton(HWND window, int state)
{
    COLORREF colour = ::GetSysColor(state == PBS_DISABLED ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
    const HTHEME theme = ::OpenThemeData(window, L"Button");
    if (!theme)
        return colour;
    ::GetThemeColor(theme, BP_PUSHBUTTON, state, TMT_TEXTCOLOR, &colour);
    ::CloseThemeData(theme);
    return colour;
}

} // namespace

bool ThemeSamples::create(CWnd& parent)
{
    const LPCTSTR cls = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW),
                                            reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    if (!CreateEx(0, cls, L"", WS_CHILD | WS_VISIBLE, CRect(), &parent, 1))
        return false;
    SetFont(parent.GetFont());
    return true;
}

void ThemeSamples::OnPaint()
{
    CThemeData& themes = CThemeData::getThemeData();
    CPaintDC dc(this);
    CFont* const old = dc.SelectObject(GetParent()->GetFont());
    dc.SetBkMode(TRANSPARENT);

    const int height = scaled(m_hWnd, kHeight);
    const int labelWidth = scaled(m_hWnd, kLabel);
    int top = 0;
    const auto label = [&](const wchar_t* text) {
        dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
        CRect place(0, top, labelWidth, top + height);
        dc.DrawText(text, -1, &place, DT_SINGLELINE | DT_VCENTER);
    };
    const auto swatch = [&](const wchar_t* text, COLORREF colour) {
        label(text);
        const CRect place(labelWidth, top, labelWidth + scaled(m_hWnd, kSwatch), top + height);
        dc.FillSolidRect(&place, colour);
        dc.Draw3dRect(&place, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNSHADOW));
        dc.SetBkMode(TRANSPARENT);
        top += scaled(m_hWnd, kRow);
    };
    swatch(L"GroupboxText", themes.GroupboxText(m_hWnd));
    swatch(L"ButtonFace", themes.ButtonFace(m_hWnd));
    LOGBRUSH brush{};
    ::GetObjectW(themes.BackgroundBrush(m_hWnd), sizeof brush, &brush);
    swatch(L"BackgroundBrush", brush.lbColor);

    label(L"drawBackground");
    int left = labelWidth;
    for (const State& state : kStates) {
        CRect place(left, top, left + scaled(m_hWnd, kButton), top + height);
        const bool themed =
            themes.IsAppThemed() && themes.drawBackground(dc, &place, m_hWnd, L"Button", state.value);
        if (!themed)
            dc.DrawFrameControl(&place, DFC_BUTTON, DFCS_BUTTONPUSH | state.classic);
        dc.SetTextColor(textOnButton(m_hWnd, state.value));
        dc.DrawText(state.label, -1, &place, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
        left += scaled(m_hWnd, kButton + kGap);
    }
    dc.SelectObject(old);
}

ThemesPage::ThemesPage()
    : GalleryPage(IDD_PAGE_THEMES)
{
}

ThemesPage::~ThemesPage() = default;

BOOL ThemesPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    SetDlgItemText(IDC_THEME_STATE, CThemeData::getThemeData().IsAppThemed() ? L"Visual styles are on."
                                                                             : L"Visual styles are off.");
    m_samples.create(*this);
    replace(IDC_THEME_SAMPLES, m_samples);
    stretch(IDC_THEME_SAMPLES, {.growX = 100, .growY = 100});
    return FALSE;
}
