#include <ovoui/colour/ColPicker.h>

#include <ovoui/colour/ColPickerStops.h>
#include <ovoui/colour/ColourWheelImage.h>
#include <ovoui/colour/core/ColourModes.h>
#include <ovoui/colour/core/TypedColour.h>
#include <ovoui/colour/core/ValueText.h>
#include <ovoui/lists/ComboFunctions.h>
#include <ovouires/resource.h>

#include <cwchar>
#include <imm.h>

using namespace ovoui::colour;

namespace
{

/// Of red, green and blue, of hue, lightness and saturation, and so on, by mode.
std::array<UINT, 3> captionIds(ColPickerModeType mode)
{
    switch (mode) {
    case ColPickerModeRGB:
        return {IDS_COLOUR_RED, IDS_COLOUR_GREEN, IDS_COLOUR_BLUE};
    case ColPickerModeHLS:
        return {IDS_COLOUR_HUE, IDS_COLOUR_LIGHTNESS, IDS_COLOUR_SATURATION};
    case ColPickerModeHSV:
        return {IDS_COLOUR_HUE, IDS_COLOUR_SATURATION, IDS_COLOUR_VALUE};
    }
    return {};
}

bool isMode(ColPickerModeType mode)
{
    return mode >= ColPickerModeRGB && mode <= ColPickerModeHSV;
}

/// In the order of the modes.
constexpr std::array<UINT, 3> kSpaceNames{IDS_COLOUR_SPACE_RGB, IDS_COLOUR_SPACE_HLS, IDS_COLOUR_SPACE_HSV};

void setRange(CSliderCtrl& slider, int maximum)
{
    if (slider.m_hWnd)
        slider.SetRange(0, maximum, TRUE);
}

void setPosition(CSliderCtrl& slider, int position)
{
    if (slider.m_hWnd)
        slider.SetPos(position);
}

void redraw(CWnd& control)
{
    if (control.m_hWnd)
        control.Invalidate(TRUE);
}

} // namespace

ColPicker::ColPicker(CWinApp& app, ColPickerModeType mode)
    : m_mode(mode)
    , m_app(app)
{
}

ColPicker::~ColPicker() = default;

CShadedTabCtrl* ColPicker::tabCtrl()
{
    return nullptr;
}

void ColPicker::UpdateExternalColours(bool) {}

void ColPicker::LoadSettings() {}

void ColPicker::SaveSettings() {}

void ColPicker::set_bitmap_pixel(int, int, const unsigned char*) {}

// Making

void ColPicker::DoInit(CWnd* wnd, CComboBox& spaceCombo)
{
    const Lifeline::Watch watch(m_lifeline);
    m_initialised = false;
    m_hueMarkerDrawn = m_triMarkerDrawn = false;
    m_drag = Drag::None;
    LoadSettings();
    if (!watch.alive() || !wnd->m_hWnd)
        return;

    if (!isMode(m_mode)) // settings may have been spoilt
        m_mode = ColPickerModeRGB;
    m_mirrored = (wnd->GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    m_patchRect = takePlace(wnd, IDC_PATCH);
    m_wheelRect = takePlace(wnd, IDC_WHEEL);
    if (m_customAreaId != 0)
        m_customRect = takePlace(wnd, m_customAreaId);
    m_wheel = std::make_unique<ColourWheelImage>(m_wheelRect);
    const HueRing& ring = m_wheel->ring();
    m_innerRadius = ring.inner();
    m_outerRadius = ring.outer();
    m_centreX = ring.centre().x();
    m_centreY = ring.centre().y();
    {
        CClientDC dc(wnd);
        draw_hue_marker(&dc);
        draw_tri_marker(&dc);
    }
    SetSliderMode(wnd, m_mode);
    if (!watch.alive() || !wnd->m_hWnd)
        return;
    makeStops(wnd);
    prepareEdits();
    wnd->EnableToolTips(TRUE);
    fillSpaces(spaceCombo);
    m_initialised = true;
}

void ColPicker::doOnDestroy()
{
    m_stops.reset();
    m_wheel.reset();
    m_drag = Drag::None;
    m_initialised = false;
}

/// Where a placeholder stands, which then gives the place to the picture drawn there. An empty rectangle
/// without it.
CRect ColPicker::takePlace(CWnd* wnd, int id)
{
    CRect place;
    if (CWnd* const placeholder = wnd->GetDlgItem(id)) {
        placeholder->GetWindowRect(&place);
        wnd->ScreenToClient(&place);
        placeholder->ShowWindow(SW_HIDE);
    }
    return place;
}

void ColPicker::prepareEdits()
{
    constexpr int kMostDigits = 3;
    for (CEdit* const edit : {&m_value1, &m_value2, &m_value3, &m_valueAlpha}) {
        if (!edit->m_hWnd || (edit == &m_valueAlpha && !m_alphaEnabled))
            continue;
        edit->SetLimitText(kMostDigits);
        ::ImmAssociateContext(edit->m_hWnd, nullptr); // plain digits are typed
    }
}

void ColPicker::fillSpaces(CComboBox& combo)
{
    if (!combo.m_hWnd)
        return;
    for (const UINT id : kSpaceNames) {
        CString name;
        name.LoadString(id);
        combo.AddString(name);
    }
    combo.SetCurSel(m_mode - 1);
    resizeCombo(combo, static_cast<DWORD>(kSpaceNames.size()));
}

// The mode and the numbers

void ColPicker::SetSliderMode(CWnd* wnd, ColPickerModeType mode)
{
    if (!isMode(mode))
        return;
    const Lifeline::Watch watch(m_lifeline);
    m_mode = mode;
    const auto [first, second, third] = maxima(mode);
    setRange(m_slider1, first);
    setRange(m_slider2, second);
    setRange(m_slider3, third);
    if (m_alphaEnabled)
        setRange(m_sliderAlpha, kAlphaMaximum);

    const std::array<UINT, 3> captions = captionIds(mode);
    m_caption1.LoadString(captions[0]);
    m_caption2.LoadString(captions[1]);
    m_caption3.LoadString(captions[2]);
    wnd->UpdateData(FALSE);
    if (!watch.alive() || !wnd->m_hWnd)
        return;
    UpdateSlider();
    invalidatePatch(wnd);
    if (!watch.alive() || !wnd->m_hWnd)
        return;
    for (CSliderCtrl* const slider : {&m_slider1, &m_slider2, &m_slider3, &m_sliderAlpha})
        redraw(*slider);
    SaveSettings();
}

ColPicker::Values ColPicker::shownValues() const
{
    return valuesOf(m_colour, m_mode);
}

void ColPicker::UpdateSlider()
{
    const auto [first, second, third] = shownValues();
    setPosition(m_slider1, first);
    setPosition(m_slider2, second);
    setPosition(m_slider3, third);
    if (m_alphaEnabled)
        setPosition(m_sliderAlpha, alphaOf(m_colour));
}

/// What a slider that the dialog does not have would stand at is known from the colour.
int ColPicker::sliderOr(const CSliderCtrl& slider, int value)
{
    return slider.m_hWnd ? slider.GetPos() : value;
}

void ColPicker::GetSliderColour(Colour& out) const
{
    const auto [first, second, third] = shownValues();
    const int alpha = m_alphaEnabled ? sliderOr(m_sliderAlpha, alphaOf(m_colour)) : kAlphaMaximum;
    out = colourOf({sliderOr(m_slider1, first), sliderOr(m_slider2, second), sliderOr(m_slider3, third)},
                   static_cast<double>(alpha) / kAlphaMaximum, m_mode);
}

void ColPicker::DoHScroll(CWnd* wnd, UINT code, CScrollBar* bar)
{
    const HWND slider = bar->GetSafeHwnd();
    if (carryOutKey(wnd, slider))
        return;
    const bool ours = slider && (slider == m_slider1.m_hWnd || slider == m_slider2.m_hWnd ||
                                 slider == m_slider3.m_hWnd || slider == m_sliderAlpha.m_hWnd);
    if (!ours || code > SB_ENDSCROLL)
        return;
    Colour colour;
    GetSliderColour(colour);
    change(wnd, colour, evenHueCounts(m_mode), true);
}

bool ColPicker::hasTyped() const
{
    for (const CEdit* const edit : {&m_value1, &m_value2, &m_value3, &m_valueAlpha})
        if (edit->m_hWnd && edit->GetModify())
            return true;
    return false;
}

int ColPicker::typedOr(CEdit& edit, int value, int maximum)
{
    if (!edit.m_hWnd)
        return value;
    wchar_t text[32];
    const int length = edit.GetWindowText(text, static_cast<int>(std::size(text)));
    return valueFromText({text, static_cast<std::size_t>(length)}, maximum);
}

void ColPicker::DoKillfocusColpickerValues(CWnd* wnd)
{
    if (!countsWhenLeft(m_initialised, m_onlyTypedNumbers, hasTyped()))
        return;
    const auto [first, second, third] = shownValues();
    const auto [firstMost, secondMost, thirdMost] = maxima(m_mode);
    const Values typed{typedOr(m_value1, first, firstMost), typedOr(m_value2, second, secondMost),
                       typedOr(m_value3, third, thirdMost)};
    const int alpha =
        m_alphaEnabled ? typedOr(m_valueAlpha, alphaOf(m_colour), kAlphaMaximum) : kAlphaMaximum;
    const Colour colour = colourOf(typed, static_cast<double>(alpha) / kAlphaMaximum, m_mode);
    if (changesColour(m_colour, colour, m_alphaEnabled, m_mode)) {
        change(wnd, colour, evenHueCounts(m_mode), true);
    } else {
        SetColour(wnd, colour, evenHueCounts(m_mode));
        showValues(); // instead of what was out of range or no number
    }
}

void ColPicker::showValues()
{
    const Lifeline::Watch watch(m_lifeline);
    const Values values = shownValues();
    const int alpha = alphaOf(m_colour);
    // The dialog hears of each new text.
    showValue(m_value1, values[0]);
    if (watch.alive())
        showValue(m_value2, values[1]);
    if (watch.alive())
        showValue(m_value3, values[2]);
    if (watch.alive() && m_alphaEnabled)
        showValue(m_valueAlpha, alpha);
}

void ColPicker::showValue(CEdit& edit, int value)
{
    const HWND wnd = edit.m_hWnd;
    if (!wnd)
        return;
    wchar_t text[16];
    std::swprintf(text, std::size(text), L"%d", value);
    ::SetWindowTextW(wnd, text);
    ::SendMessageW(wnd, EM_SETSEL, 0, -1);
    ::SendMessageW(wnd, EM_SCROLLCARET, 0, 0);
}

// The colour

void ColPicker::SetColour(CWnd* wnd, const Colour& colour, bool force)
{
    if (m_initialised && !differ(m_colour, colour, force))
        return;
    m_colour = colour;
    UpdateSlider();
    if (!wnd->GetSafeHwnd())
        return;
    const Lifeline::Watch watch(m_lifeline);
    invalidatePatch(wnd);
    if (!watch.alive() || !wnd->m_hWnd)
        return;
    wnd->InvalidateRect(&m_wheelRect, FALSE);
    CClientDC dc(wnd);
    draw_hue_marker(&dc);
    draw_tri_marker(&dc);
    announceColour();
}

/// The edits show the colour when the patch is painted; without a patch they do so at once.
void ColPicker::invalidatePatch(CWnd* wnd)
{
    if (m_patchRect.IsRectEmpty())
        showValues();
    else
        wnd->InvalidateRect(&m_patchRect, FALSE);
}

/// By the user. Whether picker and window still exist afterwards. The edits show the colour when it is
/// painted; while the host was busy the user may have left one of them, and with the numbers of before it
/// would bring the colour of before back.
bool ColPicker::change(CWnd* wnd, const Colour& colour, bool force, bool final)
{
    const Lifeline::Watch watch(m_lifeline);
    SetColour(wnd, colour, force);
    if (watch.alive() && wnd->m_hWnd)
        UpdateExternalColours(final);
    if (watch.alive() && wnd->m_hWnd)
        wnd->UpdateWindow();
    return watch.alive() && wnd->m_hWnd;
}
