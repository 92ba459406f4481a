// Call-outs of the colour picker's dialogs, the colour button, grid and dropper.
#include "CallOutScene.h"
#include "RaisingParent.h"

#include <testkit/Desktop.h>
#include <testkit/TemporaryProfile.h>

#include <ovoui/colour/ColPickerDlg.h>
#include <ovoui/colour/ColPickerPaletteDlg.h>
#include <ovoui/colour/ColourButton.h>
#include <ovoui/colour/ColourDropper.h>
#include <ovoui/colour/ColourGrid.h>
#include <ovouires/resource.h>

#include <optional>

using namespace ovo::testkit;

namespace
{

// The dialogs

class RaisingPicker : public ColPickerDlg
{
public:
    using ColPickerDlg::ColPickerDlg;
    using ColPickerDlg::m_wheelRect;

private:
    void UpdateExternalColours(bool) override { Raising::here("UpdateExternalColours"); }
    void LoadSettings() override { Raising::here("LoadSettings"); }
    void SaveSettings() override { Raising::here("SaveSettings"); }
    CShadedTabCtrl* tabCtrl() override
    {
        Raising::here("tabCtrl");
        return ColPickerDlg::tabCtrl();
    }
};

class PickerScene : public CallOutScene
{
public:
    void provoke() override
    {
        dialog = std::make_unique<RaisingPicker>(*AfxGetApp(), ColPickerModeRGB, Colour::rgb(0.2, 0.4, 0.6),
                                                 nullptr, &parent);
        dialog->createColPickerDlgBase();
        click(*dialog, CRect(dialog->m_wheelRect).CenterPoint());
        if (CWnd* const mode = dialog->GetDlgItem(kModeHls))
            mode->SendMessage(BM_CLICK);
    }
    void expectSound() override
    {
        provoke();
        EXPECT_TRUE(::IsWindow(dialog->m_hWnd));
    }

private:
    static constexpr int kModeHls = 3431;

    TemporaryProfile profile;
    std::unique_ptr<RaisingPicker> dialog;
};

class RaisingPalette : public ColPickerPaletteDlg
{
public:
    using ColPickerPaletteDlg::ColPickerPaletteDlg;
    using ColPickerPaletteDlg::m_swatches;

private:
    COLORREF& customCols(int index) override
    {
        Raising::here("customCols");
        return ColPickerPaletteDlg::customCols(index);
    }
};

/// Asks for the custom colours when they are painted.
class PaletteScene : public CallOutScene
{
public:
    PaletteScene()
    {
        dialog.Create(IDD_COLOUR_PALETTE, &parent);
        dialog.ShowWindow(SW_SHOW);
        paint(dialog);
    }
    void provoke() override { paint(dialog); }
    void expectSound() override
    {
        provoke();
        EXPECT_TRUE(::IsWindow(dialog.m_hWnd));
    }

protected:
    TemporaryProfile profile;
    RaisingPalette dialog{*AfxGetApp(), ColPickerModeRGB, Colour::rgb(0.2, 0.4, 0.6), nullptr, &parent};
};

/// Asks for one of them when it is chosen.
class SwatchScene : public PaletteScene
{
public:
    void provoke() override { choose(3); }
    void expectSound() override
    {
        choose(4);
        EXPECT_EQ(dialog.GetColour().colorref(), RGB(255, 127, 39));
    }

private:
    void choose(std::size_t swatch) { click(dialog, dialog.m_swatches[swatch].CenterPoint()); }
};

// The button

constexpr COLORREF kLeaf = RGB(84, 130, 53);
constexpr COLORREF kRust = RGB(190, 49, 26);

class RaisingColourButton : public CColourButton
{
    std::optional<Colour> askForColour(const Colour&) override
    {
        Raising::here("askForColour");
        return Colour::rgb(0, 1, 0);
    }
};

class ColourButtonScene : public CallOutScene
{
public:
    ColourButtonScene()
    {
        button.Create(L"Pen", kChild, CRect(0, 0, 80, 24), &host, 1);
        button.SetPalette({kLeaf, kRust}, 2);
        button.SetColour(Colour::colorref(kLeaf));
        present(host);
        button.SetFocus();
    }
    /// Chooses the other colour.
    void provoke() override { choose(VK_RIGHT); }
    void expectSound() override
    {
        button.CloseUp();
        EXPECT_FALSE(button.IsDropped());
        button.SetColour(Colour::colorref(kLeaf));
        choose(VK_RIGHT);
        EXPECT_EQ(button.GetColour().colorref(), kRust);
    }

protected:
    void choose(UINT key)
    {
        for (const UINT each : {UINT{VK_DOWN}, key, UINT{VK_RETURN}})
            press(button, each);
    }

    RaisingParent host{{{CColourButton::kDropped, "kDropped"},
                        {CColourButton::kPointed, "kPointed"},
                        {CColourButton::kClosed, "kClosed"},
                        {CColourButton::kChosen, "kChosen"}}};
    RaisingColourButton button;
};

/// Chooses the line below the palette.
class AskingButtonScene : public ColourButtonScene
{
public:
    void provoke() override { choose(VK_END); }
    void expectSound() override
    {
        EXPECT_FALSE(button.IsDropped());
        provoke();
        EXPECT_EQ(button.GetColour().colorref(), RGB(0, 255, 0));
    }
};

// Grid and dropper

class GridScene : public CallOutScene
{
public:
    GridScene()
    {
        grid.Create(kChild, CRect(0, 0, 80, 60), &host, 1);
        grid.SetColours({kLeaf, kRust}, 2);
    }
    void provoke() override { click(grid, grid.CellRect(1).CenterPoint()); }
    void expectSound() override
    {
        provoke();
        EXPECT_EQ(grid.Current(), 1);
        EXPECT_NE(::GetCapture(), grid.m_hWnd);
    }

private:
    RaisingParent host{{{CColourGrid::kPointed, "kPointed"}, {CColourGrid::kChosen, "kChosen"}}};
    CColourGrid grid;
};

class DropperScene : public CallOutScene
{
public:
    DropperScene()
    {
        dropper.Create(L"From screen", kChild, CRect(0, 0, 80, 24), &host, 1);
        present(host);
        dropper.SetFocus();
    }
    /// Begins, and takes the colour under the pointer.
    void provoke() override
    {
        press(dropper, VK_SPACE);
        press(dropper, VK_RETURN);
    }
    void expectSound() override
    {
        EXPECT_FALSE(dropper.IsPicking());
        press(dropper, VK_SPACE);
        EXPECT_TRUE(dropper.IsPicking());
        press(dropper, VK_RETURN);
        EXPECT_FALSE(dropper.IsPicking());
        EXPECT_NE(::GetCapture(), dropper.m_hWnd);
    }

private:
    RaisingParent host{{{CColourDropper::kTaken, "kTaken"}}};
    CColourDropper dropper;
};

const std::vector<CallOut> kColours{
    {"UpdateExternalColours", &make<PickerScene>, {Outcome::Shown, Outcome::Shown, Outcome::Passes}},
    {"LoadSettings", &make<PickerScene>, {Outcome::Shown, Outcome::Shown, Outcome::Passes}},
    {"SaveSettings", &make<PickerScene>, {Outcome::Shown, Outcome::Shown, Outcome::Passes}},
    {"tabCtrl", &make<PickerScene>, {Outcome::Shown, Outcome::Shown, Outcome::Passes}},
    {"customCols", &make<PaletteScene>, {Outcome::Shown, Outcome::Quiet, Outcome::Passes}},
    {"customCols", &make<SwatchScene>, {Outcome::Shown, Outcome::Shown, Outcome::Passes}},
    {"askForColour", &make<AskingButtonScene>, kAsAHandler},
    {"kDropped", &make<ColourButtonScene>, kAsAHandler},
    {"kPointed", &make<ColourButtonScene>, kAsAHandler},
    {"kClosed", &make<ColourButtonScene>, kAsAHandler},
    {"kChosen", &make<ColourButtonScene>, kAsAHandler},
    {"kPointed", &make<GridScene>, kAsAHandler},
    {"kChosen", &make<GridScene>, kAsAHandler},
    {"kTaken", &make<DropperScene>, kAsAHandler},
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Colours, CallOuts, ::testing::ValuesIn(kColours), &nameOfCallOut);
