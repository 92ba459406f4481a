// The picker's edits and sliders in all modes.
#include "PickerScene.h"

using namespace ovo::testkit;

namespace
{

using Texts = std::vector<std::wstring>;
using Numbers = std::vector<int>;

class PickerNumbers : public PickerScene
{
protected:
    /// Moves a slider as the user does, by its keys.
    void slide(CSliderCtrl& slider, int position)
    {
        slider.SetPos(position);
        picker->SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, position),
                            reinterpret_cast<LPARAM>(slider.m_hWnd));
        picker->paint();
    }
};

} // namespace

// Opening

TEST_F(PickerNumbers, RedGreenAndBlue)
{
    open();
    EXPECT_EQ(picker->values(), (Texts{L"255", L"128", L"0"}));
    EXPECT_EQ(picker->positions(), (Numbers{255, 128, 0}));
    EXPECT_EQ(picker->text(kCaption1), L"&Red:");
    EXPECT_EQ(picker->text(kCaption2), L"&Green:");
    EXPECT_EQ(picker->text(kCaption3), L"&Blue:");
    EXPECT_EQ(picker->m_slider1.GetRangeMin(), 0);
    EXPECT_EQ(picker->m_slider1.GetRangeMax(), 255);
    EXPECT_EQ(picker->m_slider3.GetRangeMax(), 255);
    EXPECT_EQ(picker->m_space.GetCurSel(), 0);
}

TEST_F(PickerNumbers, HueLightnessAndSaturation)
{
    open(ColPickerModeHLS);
    EXPECT_EQ(picker->values(), (Texts{L"30", L"50", L"100"}));
    EXPECT_EQ(picker->positions(), (Numbers{30, 50, 100}));
    EXPECT_EQ(picker->text(kCaption1), L"&Hue:");
    EXPECT_EQ(picker->text(kCaption2), L"&Lightness:");
    EXPECT_EQ(picker->text(kCaption3), L"&Saturation:");
    EXPECT_EQ(picker->m_slider1.GetRangeMax(), 359);
    EXPECT_EQ(picker->m_slider2.GetRangeMax(), 100);
    EXPECT_EQ(picker->m_space.GetCurSel(), 1);
}

TEST_F(PickerNumbers, HueSaturationAndValue)
{
    open(ColPickerModeHSV, Colour::rgb(0.5, 0.25, 0.25));
    EXPECT_EQ(picker->values(), (Texts{L"0", L"50", L"50"}));
    EXPECT_EQ(picker->text(kCaption2), L"&Saturation:");
    EXPECT_EQ(picker->text(kCaption3), L"&Value:");
    EXPECT_EQ(picker->m_slider1.GetRangeMax(), 359);
    EXPECT_EQ(picker->m_space.GetCurSel(), 2);
}

TEST_F(PickerNumbers, TheModelsStandInTheOrderOfTheirModes)
{
    open();
    CString name;
    Texts names;
    for (int i = 0; i < picker->m_space.GetCount(); ++i) {
        picker->m_space.GetLBText(i, name);
        names.push_back(std::wstring(name));
    }
    EXPECT_EQ(names, (Texts{L"RGB", L"HLS", L"HSV"}));
}

TEST_F(PickerNumbers, EditsTakeThreeDigits)
{
    open();
    user.click(Spot{picker->m_value2})
        .key(VK_HOME)
        .holding(VK_SHIFT)
        .key(VK_END)
        .letGo(VK_SHIFT)
        .type(L"12345");
    EXPECT_EQ(picker->text(kValue2), L"123");
    EXPECT_EQ(::ImmGetContext(picker->m_value1), nullptr) << "plain digits are typed";
}

TEST_F(PickerNumbers, SettingsAreLoadedOnceAndSavedWithTheMode)
{
    open();
    EXPECT_EQ(picker->loaded, 1);
    EXPECT_EQ(picker->saved, 1);
    picker->SetSliderMode(picker.get(), ColPickerModeHSV);
    EXPECT_EQ(picker->saved, 2);
    EXPECT_EQ(picker->loaded, 1);
}

// The mode

TEST_F(PickerNumbers, TheUserChoosesTheModelInTheComboBox)
{
    open();
    user.click(Spot{picker->m_space}).key(VK_DOWN).key(VK_RETURN);
    EXPECT_EQ(picker->m_mode, ColPickerModeHLS);
    picker->paint();
    EXPECT_EQ(picker->values(), (Texts{L"30", L"50", L"100"}));
    EXPECT_EQ(picker->text(kCaption2), L"&Lightness:");
    EXPECT_TRUE(picker->told.empty()) << "the colour is the same";
}

TEST_F(PickerNumbers, ChangingTheModeChangesNoColour)
{
    const Colour odd = Colour::rgb(0.1234, 0.5678, 0.4321);
    open(ColPickerModeRGB, odd);
    for (const auto mode : {ColPickerModeHLS, ColPickerModeHSV, ColPickerModeRGB, ColPickerModeHSV}) {
        picker->SetSliderMode(picker.get(), mode);
        picker->paint();
        expectColour(picker->GetColour(), odd.r(), odd.g(), odd.b(), 0);
    }
}

TEST_F(PickerNumbers, WhatIsNoModeIsIgnored)
{
    open(ColPickerModeHLS);
    for (const int number : {0, 4, -1}) {
        picker->SetSliderMode(picker.get(), static_cast<ColPickerModeType>(number));
        EXPECT_EQ(picker->m_mode, ColPickerModeHLS) << number;
    }
    EXPECT_EQ(picker->saved, 1);
}

TEST_F(PickerNumbers, SpoiltSettingsOpenInRedGreenAndBlue)
{
    Picker spoilt(TestApp::instance(), ColPickerModeHLS, kOrange, nullptr, nullptr);
    spoilt.onLoad = [&] { spoilt.m_mode = static_cast<ColPickerModeType>(77); };
    spoilt.createColPickerDlgBase();
    EXPECT_EQ(spoilt.m_mode, ColPickerModeRGB);
    EXPECT_EQ(spoilt.m_space.GetCurSel(), 0);
    spoilt.DestroyWindow();
}

// Edits

TEST_F(PickerNumbers, TypedTextsInEveryMode)
{
    const struct
    {
        ColPickerModeType mode;
        int edit;
        const wchar_t* typed;
        const wchar_t* shown;
        int number; // of the three
        int value;
    } rows[] = {
        {ColPickerModeRGB, kValue1, L"7", L"7", 0, 7},
        {ColPickerModeRGB, kValue2, L"255", L"255", 1, 255},
        {ColPickerModeRGB, kValue3, L"256", L"255", 2, 255},
        {ColPickerModeRGB, kValue1, L"-5", L"0", 0, 0},
        {ColPickerModeRGB, kValue1, L"", L"0", 0, 0},
        {ColPickerModeRGB, kValue1, L"abc", L"0", 0, 0},
        {ColPickerModeRGB, kValue1, L"12x", L"12", 0, 12},
        {ColPickerModeHLS, kValue1, L"359", L"359", 0, 359},
        {ColPickerModeHLS, kValue1, L"360", L"359", 0, 359},
        {ColPickerModeHLS, kValue1, L"999", L"359", 0, 359},
        {ColPickerModeHLS, kValue2, L"101", L"100", 1, 100},
        {ColPickerModeHLS, kValue2, L"-1", L"0", 1, 0},
        {ColPickerModeHLS, kValue3, L"40", L"40", 2, 40},
        {ColPickerModeHLS, kValue3, L"", L"0", 2, 0},
        {ColPickerModeHSV, kValue1, L"200", L"200", 0, 200},
        {ColPickerModeHSV, kValue2, L"100", L"100", 1, 100},
        {ColPickerModeHSV, kValue3, L"255", L"100", 2, 100},
        {ColPickerModeHSV, kValue3, L"x", L"0", 2, 0},
    };
    open();
    for (const auto& row : rows) {
        picker->SetSliderMode(picker.get(), row.mode);
        picker->SetColour(picker.get(), Colour::hls(Angle::degrees(30), 0.4, 0.6), true);
        picker->paint();
        picker->told.clear();
        enter(row.edit, row.typed);
        EXPECT_EQ(picker->text(row.edit), row.shown) << row.typed;
        EXPECT_EQ(picker->positions()[static_cast<std::size_t>(row.number)], row.value) << row.typed;
        EXPECT_EQ(picker->told, (std::vector<bool>{true})) << row.typed;
        EXPECT_EQ(picker->GetColour().a(), 1) << "alpha is not edited";
    }
}

TEST_F(PickerNumbers, ATextThatChangesNothingIsPutRightAndToldToNoOne)
{
    open(ColPickerModeRGB, Colour::rgb(1, 0.2, 0));
    enter(kValue1, L"999");
    EXPECT_EQ(picker->text(kValue1), L"255");
    enter(kValue3, L"none");
    EXPECT_EQ(picker->text(kValue3), L"0");
    EXPECT_TRUE(picker->told.empty());
}

TEST_F(PickerNumbers, TabAppliesWhatWasTypedAndGoesOn)
{
    open();
    user.click(Spot{picker->m_value1})
        .key(VK_HOME)
        .holding(VK_SHIFT)
        .key(VK_END)
        .letGo(VK_SHIFT)
        .type(L"9")
        .key(VK_TAB);
    expectColour(picker->GetColour(), 9 / 255.0, 0.5, 0, 1.0 / 255);
    EXPECT_EQ(picker->told, (std::vector<bool>{true}));
    EXPECT_EQ(::GetFocus(), picker->m_slider2.m_hWnd);
}

TEST_F(PickerNumbers, TheOrderOfTabFollowsTheRows)
{
    open(ColPickerModeRGB, Colour::rgba(1, 0.5, 0, 1));
    std::vector<int> order;
    picker->m_space.SetFocus();
    for (int i = 0; i < 11; ++i) {
        order.push_back(::GetDlgCtrlID(::GetFocus()));
        user.key(VK_TAB);
    }
    EXPECT_EQ(order, (std::vector<int>{kSpace, kSlider1, kValue1, kSlider2, kValue2, kSlider3, kValue3,
                                       kSliderAlpha, kValueAlpha, IDOK, IDCANCEL}));
}

TEST_F(PickerNumbers, LettersOfTheCaptionsLeadToTheirSliders)
{
    open(ColPickerModeHLS);
    const std::pair<WORD, int> letters[] = {{'L', kSlider2}, {'S', kSlider3}, {'H', kSlider1}, {'M', kSpace}};
    for (const auto& [letter, id] : letters) {
        user.holding(VK_MENU).key(letter).letGo(VK_MENU);
        EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), id) << static_cast<char>(letter);
    }
}

TEST_F(PickerNumbers, TextsAreSelectedWhenTheyAreShown)
{
    open();
    picker->m_value1.SetFocus();
    picker->SetColour(picker.get(), Colour::rgb(0.4, 0.4, 0.4), false);
    picker->paint();
    int from = 0;
    int to = 0;
    picker->m_value1.GetSel(from, to);
    EXPECT_EQ(from, 0);
    EXPECT_EQ(to, 3) << "102";
}

TEST_F(PickerNumbers, AHueJustBelowTheFullTurn)
{
    open(ColPickerModeHLS, Colour::hls(Angle::degrees(359.6), 0.5, 1));
    EXPECT_EQ(picker->text(kValue1), L"360");
    EXPECT_EQ(picker->m_slider1.GetPos(), 359);
}

TEST_F(PickerNumbers, WhatWasPickedStaysWhenAnEditIsLeftBeforeAnyMessageToPaint)
{
    const std::function<void()> picks[] = {
        [this] {
            const CPoint middle = picker->centre();
            picker->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(middle.x, middle.y));
            picker->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(middle.x, middle.y));
        },
        [this] {
            const CPoint bottom = picker->centre() + CSize(0, picker->outer() * 9 / 10);
            picker->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(bottom.x, bottom.y));
        },
        [this] {
            picker->m_slider3.SetPos(200);
            picker->SendMessage(WM_HSCROLL, SB_ENDSCROLL, reinterpret_cast<LPARAM>(picker->m_slider3.m_hWnd));
        },
    };
    for (const auto& pick : picks) {
        open();
        picker->m_value1.SetFocus();
        picker->paint();
        pick();
        const COLORREF picked = picker->GetColour().colorref();
        ASSERT_NE(picked, kOrange.colorref());
        picker->m_space.SetFocus();
        EXPECT_EQ(picker->GetColour().colorref(), picked);
        picker->DestroyWindow();
    }
}

// Sliders

TEST_F(PickerNumbers, SlidersInEveryMode)
{
    open();
    slide(picker->m_slider2, 51);
    expectColour(picker->GetColour(), 1, 0.2, 0);
    EXPECT_EQ(picker->text(kValue2), L"51");
    EXPECT_EQ(picker->told, (std::vector<bool>{true}));
    EXPECT_EQ(picker->GetColour().a(), 1);

    picker->SetSliderMode(picker.get(), ColPickerModeHLS);
    slide(picker->m_slider1, 240);
    slide(picker->m_slider2, 25);
    slide(picker->m_slider3, 50);
    EXPECT_NEAR(picker->GetColour().h_hls().degrees(), 240, 1e-9);
    EXPECT_NEAR(picker->GetColour().l_hls(), 0.25, 1e-9);
    EXPECT_NEAR(picker->GetColour().s_hls(), 0.5, 1e-9);

    picker->SetSliderMode(picker.get(), ColPickerModeHSV);
    slide(picker->m_slider2, 70);
    slide(picker->m_slider3, 90);
    EXPECT_NEAR(picker->GetColour().s_hsv(), 0.7, 1e-9);
    EXPECT_NEAR(picker->GetColour().v_hsv(), 0.9, 1e-9);
    picker->paint();
    EXPECT_EQ(picker->values(), (Texts{L"240", L"70", L"90"}));
}

TEST_F(PickerNumbers, TheUserMovesASliderByKeys)
{
    open();
    picker->m_slider3.SetFocus();
    user.key(VK_RIGHT, 3);
    EXPECT_EQ(picker->m_slider3.GetPos(), 3);
    expectColour(picker->GetColour(), 1, 128 / 255.0, 3 / 255.0);
    EXPECT_FALSE(picker->told.empty());
    for (const bool final : picker->told)
        EXPECT_TRUE(final);
}

TEST_F(PickerNumbers, ASliderThatEndsWhereItWasIsToldAsFinalToo)
{
    open(ColPickerModeRGB, Colour::rgba(1, 0.2, 0, 1));
    picker->SendMessage(WM_HSCROLL, SB_ENDSCROLL, reinterpret_cast<LPARAM>(picker->m_slider1.m_hWnd));
    EXPECT_EQ(picker->told, (std::vector<bool>{true}));
    expectColour(picker->GetColour(), 1, 0.2, 0);
}

TEST_F(PickerNumbers, TheHueOfAGreyIsMovedBySlider)
{
    open(ColPickerModeHLS, Colour::hlsa(Angle::degrees(10), 0.5, 0, 1));
    slide(picker->m_slider1, 200);
    EXPECT_NEAR(picker->GetColour().h_hls().degrees(), 200, 1e-9);
    EXPECT_EQ(picker->text(kValue1), L"200");
}

TEST_F(PickerNumbers, OtherBarsAndCodesAreIgnored)
{
    open();
    CScrollBar other;
    other.Create(WS_CHILD | SBS_HORZ, CRect(0, 0, 10, 10), picker.get(), 900);
    picker->m_slider1.SetPos(3);
    picker->DoHScroll(picker.get(), SB_THUMBPOSITION, &other);
    picker->DoHScroll(picker.get(), SB_THUMBPOSITION, nullptr);
    auto* const slider = static_cast<CScrollBar*>(static_cast<CWnd*>(&picker->m_slider1));
    picker->DoHScroll(picker.get(), 9, slider);
    EXPECT_TRUE(picker->told.empty());
    picker->DoHScroll(picker.get(), SB_ENDSCROLL, slider);
    EXPECT_EQ(picker->told.size(), 1u);
    expectColour(picker->GetColour(), 3 / 255.0, 128 / 255.0, 0);
}

TEST_F(PickerNumbers, OnlySettingAVisiblyOtherColourDoesAnything)
{
    open(ColPickerModeRGB, Colour::rgba(0.5, 0.5, 0.5, 1));
    picker->SetColour(picker.get(), Colour::rgba(0.501, 0.499, 0.5, 1), false);
    expectColour(picker->GetColour(), 0.5, 0.5, 0.5, 0);
    EXPECT_FALSE(::GetUpdateRect(picker->m_hWnd, nullptr, FALSE));
    picker->SetColour(picker.get(), Colour::hlsa(Angle::degrees(99), 0.5, 0, 1), false);
    EXPECT_EQ(picker->GetColour().h_hls().degrees(), 0) << "a grey whose hue alone differs";
    EXPECT_FALSE(::GetUpdateRect(picker->m_hWnd, nullptr, FALSE));
    picker->SetColour(picker.get(), Colour::hlsa(Angle::degrees(99), 0.5, 0, 1), true);
    EXPECT_EQ(picker->GetColour().h_hls().degrees(), 99);
    EXPECT_TRUE(::GetUpdateRect(picker->m_hWnd, nullptr, FALSE));
    EXPECT_TRUE(picker->told.empty()) << "the host did it";
}

// Alpha

TEST_F(PickerNumbers, AlphaIsEditedWhenTheColourHasOne)
{
    open(ColPickerModeRGB, Colour::rgba(1, 0.5, 0, 0.5));
    EXPECT_TRUE(picker->m_valueAlpha.IsWindowVisible());
    EXPECT_TRUE(picker->m_sliderAlpha.IsWindowVisible());
    EXPECT_TRUE(picker->GetDlgItem(kCaptionAlpha)->IsWindowVisible());
    EXPECT_EQ(picker->text(kValueAlpha), L"128");
    EXPECT_EQ(picker->m_sliderAlpha.GetPos(), 128);
    EXPECT_EQ(picker->m_sliderAlpha.GetRangeMax(), 255);
    enter(kValueAlpha, L"51");
    EXPECT_NEAR(picker->GetColour().a(), 0.2, 1e-9);
    EXPECT_EQ(picker->m_sliderAlpha.GetPos(), 51);
    enter(kValueAlpha, L"300");
    EXPECT_EQ(picker->GetColour().a(), 1);
    EXPECT_EQ(picker->text(kValueAlpha), L"255");
    enter(kValueAlpha, L"-3");
    EXPECT_EQ(picker->GetColour().a(), 0);
    slide(picker->m_sliderAlpha, 102);
    EXPECT_NEAR(picker->GetColour().a(), 0.4, 1e-9);
    EXPECT_EQ(picker->text(kValueAlpha), L"102");
}

TEST_F(PickerNumbers, AColourOfNoOpacityStillHasAlpha)
{
    open(ColPickerModeRGB, Colour::rgba(0, 0, 0, 0));
    EXPECT_TRUE(picker->m_valueAlpha.IsWindowVisible());
    EXPECT_EQ(picker->text(kValueAlpha), L"0");
}

TEST_F(PickerNumbers, WithoutAlphaItsControlsStayHidden)
{
    open(ColPickerModeRGB, Colour::rgba(1, 0.5, 0, -1));
    EXPECT_FALSE(picker->m_valueAlpha.IsWindowVisible());
    EXPECT_FALSE(picker->m_sliderAlpha.IsWindowVisible());
    EXPECT_FALSE(picker->GetDlgItem(kCaptionAlpha)->IsWindowVisible());
    EXPECT_EQ(picker->GetColour().a(), -1);
}

TEST_F(PickerNumbers, AlphaSurvivesTheOtherNumbers)
{
    open(ColPickerModeHLS, Colour::rgba(1, 0.5, 0, 0.2));
    enter(kValue2, L"20");
    EXPECT_NEAR(picker->GetColour().a(), 0.2, 1e-9);
    slide(picker->m_slider1, 77);
    EXPECT_NEAR(picker->GetColour().a(), 0.2, 1e-9);
}
