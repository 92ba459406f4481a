// What the controls call in their host, beside the tree's nodes, raises every kind of exception: what is
// documented happens, and the control is as good as before.
#include <support/Raising.h>

#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>
#include <testkit/RecordingParent.h>
#include <testkit/TemporaryProfile.h>
#include <testkit/TestApp.h>

#include <ovoui/ovoui.h>
#include <ovoui/toolbar/core/FlyoutRecords.h>

#include <ovouires/resource.h>

#include <gallery/resource.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

using namespace ovo::testkit;

namespace
{

constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;

/// A control and its host, which raises what is armed.
class Scene
{
public:
    virtual ~Scene() = default;
    /// Leads to the call.
    virtual void provoke() = 0;
    /// What a user could do before can still be done.
    virtual void expectSound() {}

protected:
    Scene() { parent.ShowWindow(SW_SHOWNOACTIVATE); }

    RecordingParent parent;
};

struct CallOut
{
    const char* name;
    std::function<std::unique_ptr<Scene>()> make;
    Outcomes outcomes;
};

void PrintTo(const CallOut& callOut, std::ostream* out)
{
    *out << callOut.name;
}

// The list

class ColouredList : public COVOListCtrlEx
{
    DWORD rowColour(int) override
    {
        Raising::here("rowColour");
        return 0xFF0000FF;
    }
};

class ListScene : public Scene
{
public:
    ListScene()
    {
        list.Create(kChild, CRect(0, 0, 200, 100), &parent, 1);
        list.AddColumn(L"Name", 0, -1, true, LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM, LVCFMT_LEFT);
        for (const wchar_t* text : {L"b", L"c", L"a"})
            list.AddItem(list.GetItemCount(), 0, text, 0, -1);
    }

    void expectSound() override { EXPECT_EQ(list.GetItemCount(), 3); }

protected:
    ColouredList list;
};

class RowColourScene : public ListScene
{
public:
    void provoke() override
    {
        list.UseRowColours(TRUE);
        list.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
};

class CompareScene : public ListScene
{
public:
    CompareScene()
    {
        sorter.Attach(list);
        sorter.SetCompare(0, [](COVOListCtrlEx& sorted, int row, int other) {
            Raising::here("Compare");
            return sorted.GetItemText(row, 0).Compare(sorted.GetItemText(other, 0));
        });
    }

    void provoke() override { sorter.Sort(0, true); }
    void expectSound() override
    {
        EXPECT_EQ(list.GetItemText(0, 0), L"b") << "nothing was sorted";
        sorter.Sort(0, true);
        EXPECT_EQ(list.GetItemText(0, 0), L"a");
    }

private:
    COVOListSorter sorter;
};

// Sliders

class RaisingUtils : public SliderButtonUtils
{
public:
    void fromDisplay(std::wstring& out, const std::wstring& displayed) override
    {
        Raising::here("fromDisplay");
        out = displayed;
    }
    void toDisplay(std::wstring& out, const std::wstring& machine) override
    {
        Raising::here("toDisplay");
        out = machine;
    }
    void hideTip() override { Raising::here("hideTip"); }
    void showTip(const std::wstring&) override { Raising::here("showTip"); }
};

class SliderButtonScene : public Scene
{
public:
    SliderButtonScene()
    {
        edit.Create(kChild | WS_BORDER, CRect(0, 0, 80, 20), &parent,
                    IDS_FRAME_PALETTE); // a string, for the tip
        edit.SetWindowText(L"5");
        button.Create(nullptr, kChild | SS_NOTIFY, CRect(90, 0, 110, 20), &parent, 1);
        button.SetType(CSliderButton::SliderLinear);
        button.SetRange(0.0, 10.0, 1);
        button.SetBuddy(edit);
        present(parent);
    }

    void provoke() override { press(); }
    void expectSound() override
    {
        button.cancelPopup();
        press();
        button.cancelPopup();
        CString text;
        edit.GetWindowText(text);
        EXPECT_FALSE(text.IsEmpty());
    }

protected:
    void press()
    {
        button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        button.SendMessage(WM_MOUSELEAVE);
        button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        button.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(40, 5));
        button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(40, 5));
    }

    CEdit edit;
    RaisingUtils utils;
    CSliderButton button{utils};
};

/// With a mapping of the host's own.
class MappingScene : public SliderButtonScene
{
public:
    MappingScene()
    {
        button.SetMapping(
            [](double number) {
                Raising::here("shareOf");
                return number / 10;
            },
            [](double share) {
                Raising::here("numberAt");
                return share * 10;
            });
    }
};

class RaisingWheel : public CWheelSlider
{
public:
    using CWheelSlider::CWheelSlider;

private:
    void drawOnCylinder(CDC& dc, const CRect& cylinder, double shown) override
    {
        Raising::here("drawOnCylinder");
        CWheelSlider::drawOnCylinder(dc, cylinder, shown);
    }
};

class WheelScene : public Scene
{
public:
    WheelScene() { wheel.Create(kChild, CRect(0, 0, 120, 30), &parent, 1); }
    void provoke() override { wheel.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }
    void expectSound() override { provoke(); }

private:
    RaisingWheel wheel{false};
};

class RaisingSlider : public CDialSlider
{
    double angleAt(CPoint point, bool pressed) override
    {
        Raising::here("angleAt");
        return CDialSlider::angleAt(point, pressed);
    }
    double limited(double degrees) const override
    {
        Raising::here("limited");
        return CDialSlider::limited(degrees);
    }
    void paintBody(CDC& dc, const CRect& client, double shown) override
    {
        Raising::here("paintBody");
        CDialSlider::paintBody(dc, client, shown);
    }
};

class AngleSliderScene : public Scene
{
public:
    AngleSliderScene() { slider.Create(kChild, CRect(0, 0, 60, 60), &parent, 1); }

    void provoke() override
    {
        slider.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        slider.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 30));
        slider.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(30, 50));
        slider.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(30, 50));
    }
    void expectSound() override
    {
        slider.SendMessage(WM_CANCELMODE);
        provoke();
        EXPECT_NE(::GetCapture(), slider.m_hWnd);
    }

private:
    RaisingSlider slider;
};

// Colours

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

class PickerScene : public Scene
{
public:
    void provoke() override
    {
        dialog = std::make_unique<RaisingPicker>(*AfxGetApp(), ColPickerModeRGB, Colour::rgb(0.2, 0.4, 0.6),
                                                 nullptr, &parent);
        dialog->createColPickerDlgBase();
        const CPoint shade = CRect(dialog->m_wheelRect).CenterPoint();
        const LPARAM at = MAKELPARAM(shade.x, shade.y);
        dialog->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
        dialog->SendMessage(WM_LBUTTONUP, 0, at);
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
class PaletteScene : public Scene
{
public:
    PaletteScene()
    {
        dialog.Create(IDD_COLOUR_PALETTE, &parent);
        dialog.ShowWindow(SW_SHOW);
        paint();
    }
    void provoke() override { paint(); }
    void expectSound() override
    {
        provoke();
        EXPECT_TRUE(::IsWindow(dialog.m_hWnd));
    }

protected:
    void paint() { dialog.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

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
    void choose(std::size_t swatch)
    {
        const CPoint point = dialog.m_swatches[swatch].CenterPoint();
        dialog.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        dialog.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    }
};

class RaisingColourButton : public CColourButton
{
    std::optional<Colour> askForColour(const Colour&) override
    {
        Raising::here("askForColour");
        return Colour::rgb(0, 1, 0);
    }
};

class ColourButtonScene : public Scene
{
public:
    ColourButtonScene()
    {
        button.Create(L"Pen", kChild, CRect(0, 0, 80, 24), &parent, 1);
        present(parent);
        button.SetFocus();
    }
    /// Chooses the line below the palette.
    void provoke() override
    {
        for (const WPARAM key : {VK_DOWN, VK_END, VK_RETURN})
            button.SendMessage(WM_KEYDOWN, key, 1);
    }
    void expectSound() override
    {
        EXPECT_FALSE(button.IsDropped());
        provoke();
        EXPECT_EQ(button.GetColour().colorref(), RGB(0, 255, 0));
    }

private:
    RaisingColourButton button;
};

// Notifications

/// A parent that raises in every notification of its controls.
class RaisingParent : public CWnd
{
public:
    RaisingParent()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 200), nullptr, 0);
    }
    ~RaisingParent() override { DestroyWindow(); }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        Raising::here("WM_COMMAND");
        return CWnd::OnCommand(wParam, lParam);
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        Raising::here("WM_NOTIFY");
        return CWnd::OnNotify(wParam, lParam, result);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_HSCROLL || message == WM_VSCROLL)
            Raising::here("scroll");
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class ScrollScene : public Scene
{
public:
    ScrollScene() { slider.Create(kChild, CRect(0, 0, 60, 60), &host, 1); }
    void provoke() override
    {
        slider.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 30));
        slider.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(30, 50));
        slider.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(30, 50));
    }
    void expectSound() override
    {
        slider.SendMessage(WM_CANCELMODE);
        provoke();
        EXPECT_NE(::GetCapture(), slider.m_hWnd);
    }

private:
    RaisingParent host;
    CRoundSlider slider{false};
};

class GridScene : public Scene
{
public:
    GridScene()
    {
        grid.Create(kChild, CRect(0, 0, 80, 60), &host, 1);
        grid.SetColours({RGB(1, 2, 3), RGB(200, 100, 50)}, 2);
    }
    void provoke() override
    {
        grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    }
    void expectSound() override { provoke(); }

private:
    RaisingParent host;
    CColourGrid grid;
};

class ComboScene : public Scene
{
public:
    ComboScene()
    {
        combo.Create(kChild | CBS_DROPDOWN, CRect(0, 0, 150, 200), &host, 1);
        combo.AddString(L"Anise");
        combo.SetFocus();
    }
    void provoke() override { combo.GetWindow(GW_CHILD)->SendMessage(WM_CHAR, L'A', 1); }
    void expectSound() override
    {
        provoke();
        EXPECT_EQ(combo.GetCount(), 1);
    }

private:
    RaisingParent host;
    COVOComboBox combo;
};

class ComboObserver : public COVOComboBoxDeletion
{
    void OnComboBoxDeleted(COVOComboBox*) override { Raising::here("OnComboBoxDeleted"); }
};

class ComboDeletionScene : public Scene
{
public:
    void provoke() override
    {
        auto* const combo = new COVOComboBox;
        combo->Create(kChild | CBS_DROPDOWN, CRect(0, 0, 150, 200), &parent, 1);
        combo->AutoDelete(true);
        combo->AutoDeleteNotify(&observer);
        combo->DestroyWindow();
    }
    void expectSound() override { provoke(); }

private:
    ComboObserver observer;
};

class BarScene : public Scene
{
public:
    BarScene()
    {
        bar.CreateEx(&parent, TBSTYLE_FLAT, kChild | CBRS_TOP | CBRS_TOOLTIPS);
        TBBUTTON button{};
        button.iBitmap = I_IMAGENONE;
        button.idCommand = kEdit;
        button.fsState = TBSTATE_ENABLED;
        bar.InsertButton(0, &button);
        edit.Create(kChild, CRect(0, 0, 60, 20), &bar, kEdit);
        bar.SetControlCallback([](CVantorToolBar*, UINT, UINT, void*) -> LRESULT {
            Raising::here("ControlCallback");
            return 0;
        });
    }
    void provoke() override { edit.SetWindowText(L"text"); }
    void expectSound() override
    {
        provoke();
        EXPECT_EQ(bar.GetToolBarCtrl().GetButtonCount(), 1);
    }

private:
    static constexpr UINT kEdit = 100;

    CVantorToolBar bar;
    CEdit edit;
};

/// A flyout whose entry is clicked.
class FlyoutScene : public Scene
{
public:
    FlyoutScene()
    {
        bar.CreateEx(&parent, TBSTYLE_FLAT, kChild | CBRS_TOP);
        ovoui::toolbar::FlyoutRecord record;
        record.hasFlyout = true;
        record.bitmapSize = 16;
        record.commands = {kFirst, kSecond};
        record.bitmapIds = {0, 0};
        record.images = {0, 0};
        record.names = {Quark(L"first"), Quark(L"second")};
        flyout->create(bar, record, true);
        flyout->whenChosen = [this](const CFlyoutToolbar::Entry& entry) {
            Raising::here("whenChosen");
            chosen = entry.command;
        };
        flyout->show();
    }
    void provoke() override
    {
        flyout->SendMessage(WM_COMMAND, kSecond);
        GuiThread::settle(); // it posts to itself what it tells
    }
    void expectSound() override
    {
        EXPECT_EQ(chosen, 0);
        provoke();
        EXPECT_EQ(chosen, kSecond);
    }

private:
    static constexpr int kFirst = 100;
    static constexpr int kSecond = 101;

    CVantorToolBar bar;
    const std::shared_ptr<CFlyoutToolbar> flyout = std::make_shared<CFlyoutToolbar>();
    int chosen = 0;
};

class RaisingBar : public CVantorToolBar
{
    void DrawNCGripper(CDC* dc, const CRect& rect) override
    {
        Raising::here("DrawNCGripper");
        CVantorToolBar::DrawNCGripper(dc, rect);
    }
};

class GripperScene : public Scene
{
public:
    GripperScene() { bar.CreateEx(&parent, TBSTYLE_FLAT, kChild | CBRS_TOP | CBRS_GRIPPER); }
    void provoke() override { bar.SendMessage(WM_NCPAINT, 1); }
    void expectSound() override { provoke(); }

private:
    RaisingBar bar;
};

template <class Made>
std::unique_ptr<Scene> make()
{
    return std::make_unique<Made>();
}

const std::vector<CallOut>& callOuts()
{
    using enum Outcome;
    static const std::vector<CallOut> all{
        {"rowColour", &make<RowColourScene>, {Passes, Shown, Passes}},
        {"Compare", &make<CompareScene>, {Passes, Passes, Passes}},
        {"fromDisplay", &make<SliderButtonScene>, {Passes, Shown, Passes}},
        {"toDisplay", &make<SliderButtonScene>, {Passes, Shown, Passes}},
        {"showTip", &make<SliderButtonScene>, {Passes, Shown, Passes}},
        {"hideTip", &make<SliderButtonScene>, {Passes, Shown, Passes}},
        {"angleAt", &make<AngleSliderScene>, {Passes, Shown, Passes}},
        {"limited", &make<AngleSliderScene>, {Passes, Shown, Passes}},
        {"paintBody",
         &make<AngleSliderScene>,
         {Passes, Quiet, Passes}}, // as the framework has it for WM_PAINT
        {"drawOnCylinder", &make<WheelScene>, {Passes, Quiet, Passes}},
        {"shareOf", &make<MappingScene>, {Passes, Shown, Passes}},
        {"numberAt", &make<MappingScene>, {Passes, Shown, Passes}},
        {"DrawNCGripper", &make<GripperScene>, {Passes, Shown, Passes}},
        {"UpdateExternalColours", &make<PickerScene>, {Shown, Shown, Passes}},
        {"LoadSettings", &make<PickerScene>, {Shown, Shown, Passes}},
        {"SaveSettings", &make<PickerScene>, {Shown, Shown, Passes}},
        {"tabCtrl", &make<PickerScene>, {Shown, Shown, Passes}},
        {"customCols", &make<PaletteScene>, {Shown, Quiet, Passes}},
        {"customCols", &make<SwatchScene>, {Shown, Shown, Passes}},
        {"askForColour", &make<ColourButtonScene>, {Passes, Shown, Passes}},
        {"scroll", &make<ScrollScene>, {Passes, Shown, Passes}},
        {"WM_COMMAND", &make<ComboScene>, {Passes, Shown, Passes}},
        {"WM_COMMAND", &make<GridScene>, {Passes, Shown, Passes}},
        {"OnComboBoxDeleted", &make<ComboDeletionScene>, {Passes, Shown, Passes}},
        {"ControlCallback", &make<BarScene>, {Passes, Shown, Passes}},
        {"whenChosen", &make<FlyoutScene>, {Passes, Shown, Passes}},
    };
    return all;
}

class CallOuts : public ::testing::TestWithParam<CallOut>
{
};

} // namespace

TEST_P(CallOuts, DoWithAnExceptionWhatIsDocumented)
{
    const CallOut& callOut = GetParam();
    for (const Raising::Kind& kind : Raising::kinds()) {
        SCOPED_TRACE(kind.name);
        const std::unique_ptr<Scene> scene = callOut.make();
        const Raising raising(callOut.name, kind);
        EXPECT_EQ(outcomeOf([&] { scene->provoke(); }), callOut.outcomes.of(kind.group));
        EXPECT_TRUE(raising.happened()) << "it was not called";
        scene->expectSound();
        GuiThread::settle();
    }
}

INSTANTIATE_TEST_SUITE_P(Table, CallOuts, ::testing::ValuesIn(callOuts()), [](const auto& info) {
    return std::string(info.param.name) + std::to_string(info.index);
});
