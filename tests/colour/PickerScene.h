// A colour picker in a real dialog, and a host that takes down what it is told.
#pragma once

#include <testkit/Desktop.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/Picture.h>
#include <testkit/Robot.h>
#include <testkit/TestApp.h>

#include <ovoui/colour/ColPickerDlg.h>

#include <ovocor/OvoError.h>

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ovo::testkit
{

// Numbers that hosts know
constexpr int kSlider1 = 3432;
constexpr int kSlider2 = 3433;
constexpr int kSlider3 = 3434;
constexpr int kWheel = 3435;
constexpr int kPatch = 3436;
constexpr int kValue1 = 3437;
constexpr int kValue2 = 3438;
constexpr int kValue3 = 3439;
constexpr int kCaption1 = 3440;
constexpr int kCaption2 = 3441;
constexpr int kCaption3 = 3442;
constexpr int kSliderAlpha = 3443;
constexpr int kValueAlpha = 3444;
constexpr int kCaptionAlpha = 3445;
constexpr int kSpace = 20506;
constexpr int kPickerTemplate = 20201;
constexpr int kDragCursor = 742;

// Templates of the tests
constexpr int kSwatchTemplate = 7101;
constexpr int kNarrowSwatchTemplate = 7102;
constexpr int kBareTemplate = 7103;
constexpr int kPageTemplate = 7104;
constexpr int kEmptyPageTemplate = 7105;
constexpr int kPickerPageTemplate = 7106;
constexpr int kMirroredTemplate = 7107;
constexpr int kPickerTabs = 3600;
constexpr int kSwatchArea = 3500;

/// Makes what deriving hosts reach reachable for the tests, and takes down the calls.
template <class Base>
class Recorded : public Base
{
public:
    using Base::Base;

    using Base::DoHScroll;
    using Base::DoKillfocusColpickerValues;
    using Base::DoLButtonDblClk;
    using Base::DoLButtonDown;
    using Base::DoLButtonUp;
    using Base::DoMouseMove;
    using Base::Drag;
    using Base::draw_hue_marker;
    using Base::draw_tri_marker;
    using Base::GetSliderColour;
    using Base::m_alphaEnabled;
    using Base::m_caption1;
    using Base::m_caption2;
    using Base::m_caption3;
    using Base::m_colour;
    using Base::m_customAreaId;
    using Base::m_customRect;
    using Base::m_drag;
    using Base::m_mode;
    using Base::m_patchRect;
    using Base::m_slider1;
    using Base::m_slider2;
    using Base::m_slider3;
    using Base::m_sliderAlpha;
    using Base::m_space;
    using Base::m_swatches;
    using Base::m_value1;
    using Base::m_value2;
    using Base::m_value3;
    using Base::m_valueAlpha;
    using Base::m_wheelRect;
    using Base::PtInCustomColour;
    using Base::SetColour;
    using Base::SetSliderMode;
    using Base::UpdateSlider;

    std::vector<bool> told; ///< by UpdateExternalColours
    int loaded = 0;
    int saved = 0;
    std::array<COLORREF, 18> custom{};
    std::function<void(bool)> onChange;
    std::function<void()> onCustom;
    std::function<void()> onLoad;
    std::function<void()> onSave;
    std::function<void()> onGone; ///< when the window has been destroyed
    CShadedTabCtrl* tabs = nullptr;

    std::wstring text(int id) const
    {
        CString text;
        this->GetDlgItemText(id, text);
        return std::wstring(text);
    }
    std::vector<std::wstring> values() const { return {text(kValue1), text(kValue2), text(kValue3)}; }
    std::vector<int> positions() const
    {
        return {m_slider1.GetPos(), m_slider2.GetPos(), m_slider3.GetPos()};
    }

    /// Lets the dialog paint what it has to.
    void paint() { this->UpdateWindow(); }

    // Points of the wheel
    CPoint centre() const
    {
        return {(m_wheelRect.left + m_wheelRect.right) / 2, (m_wheelRect.top + m_wheelRect.bottom) / 2};
    }
    int outer() const { return std::min(m_wheelRect.Width() / 2, m_wheelRect.Height() / 2); }

protected:
    CShadedTabCtrl* tabCtrl() override { return tabs; }
    void UpdateExternalColours(bool final) override
    {
        told.push_back(final);
        if (const auto act = onChange)
            act(final);
    }
    COLORREF& customCols(int index) override
    {
        if (const auto act = onCustom)
            act();
        return custom[static_cast<std::size_t>(index)];
    }
    void LoadSettings() override
    {
        ++loaded;
        if (const auto act = onLoad)
            act();
    }
    void SaveSettings() override
    {
        ++saved;
        if (const auto act = onSave)
            act();
    }
    void PostNcDestroy() override
    {
        const auto act = onGone;
        Base::PostNcDestroy();
        if (act)
            act();
    }
};

/// With the library's own template.
using Picker = Recorded<ColPickerDlg>;
/// With a template of the test's.
using HostPicker = Recorded<ColPickerDlgBase>;

const Colour kOrange = Colour::rgb(1, 0.5, 0);

/// An open picker.
class PickerScene : public ::testing::Test
{
protected:
    ~PickerScene() override
    {
        if (picker && picker->m_hWnd)
            picker->DestroyWindow();
    }

    /// Opens a picker of the library's own template, modeless.
    void open(ColPickerModeType mode = ColPickerModeRGB, const Colour& colour = kOrange)
    {
        picker = std::make_unique<Picker>(TestApp::instance(), mode, colour, nullptr, nullptr);
        picker->useKeyboard(keyboard);
        picker->createColPickerDlgBase();
        ready(*picker);
    }

    /// Opens a picker with swatches in a template of the test's. `onLoad` can change the template's items
    /// before the picker looks at them.
    void openSwatches(int dialogTemplate = kSwatchTemplate, const Colour& colour = kOrange,
                      std::function<void()> onLoad = nullptr)
    {
        host = std::make_unique<HostPicker>(dialogTemplate, TestApp::instance(), colour, nullptr, nullptr);
        host->onLoad = std::move(onLoad);
        host->m_customAreaId = kSwatchArea;
        host->useKeyboard(keyboard);
        for (std::size_t i = 0; i < host->custom.size(); ++i)
            host->custom[i] = RGB(10 * i, 255 - 10 * i, 77);
        host->Create(static_cast<UINT>(dialogTemplate), nullptr);
        ready(*host);
    }

    template <class Dialog>
    static void ready(Dialog& dialog)
    {
        ASSERT_TRUE(dialog.m_hWnd);
        dialog.SetWindowPos(&CWnd::wndTop, 120, 90, 0, 0, SWP_NOSIZE);
        present(dialog);
        dialog.told.clear();
    }

    /// Types into an edit and leaves it.
    void enter(int id, const wchar_t* text)
    {
        CWnd* const edit = picker->GetDlgItem(id);
        edit->SetFocus();
        edit->SetWindowText(text);
        picker->GetDlgItem(IDOK)->SetFocus();
        picker->paint();
    }

    const GdiPlusSession gdiPlus;
    bool keyboard = false; ///< whether the pickers to be opened take it in ring, triangle and swatches
    std::unique_ptr<Picker> picker;
    std::unique_ptr<HostPicker> host;
    Robot user;
};

/// Within what can be seen.
inline void expectColour(const Colour& colour, double r, double g, double b, double bound = 1e-9)
{
    EXPECT_NEAR(colour.r(), r, bound);
    EXPECT_NEAR(colour.g(), g, bound);
    EXPECT_NEAR(colour.b(), b, bound);
}

} // namespace ovo::testkit
