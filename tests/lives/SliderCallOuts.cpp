// Call-outs of the sliders: conversions and mappings, drawing and limits of derived classes, and what parents
// are told.
#include "CallOutScene.h"
#include "RaisingParent.h"

#include <testkit/Desktop.h>

#include <ovoui/sliders/DialSlider.h>
#include <ovoui/sliders/RoundSlider.h>
#include <ovoui/sliders/SliderButton.h>
#include <ovoui/sliders/WheelSlider.h>

#include <gallery/resource.h>

using namespace ovo::testkit;

namespace
{

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

class SliderButtonScene : public CallOutScene
{
public:
    SliderButtonScene()
        : SliderButtonScene(parent)
    {
    }
    void provoke() override { drag(); }
    void expectSound() override
    {
        button.cancelPopup();
        drag();
        button.cancelPopup();
        CString text;
        edit.GetWindowText(text);
        EXPECT_FALSE(text.IsEmpty());
    }

protected:
    explicit SliderButtonScene(CWnd& window)
    {
        edit.Create(kChild | WS_BORDER, CRect(0, 0, 80, 20), &window,
                    IDS_FRAME_PALETTE); // a string, for the tip
        edit.SetWindowText(L"5");
        button.Create(nullptr, kChild | SS_NOTIFY, CRect(90, 0, 110, 20), &window, 1);
        button.SetType(CSliderButton::SliderLinear);
        button.SetRange(0.0, 10.0, 1);
        button.SetBuddy(edit);
        present(window);
    }

    void drag()
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

/// Steps by the wheel over the buddy, too.
class BuddyWheelScene : public SliderButtonScene
{
public:
    BuddyWheelScene() { button.StepByWheel(true); }
    void provoke() override { edit.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA)); }
};

/// Made before the controls in it.
struct ValueHost
{
    RaisingParent host{
        {{CSliderButton::kValueChanged, "kValueChanged"}, {CSliderButton::kReleased, "kReleased"}}};
};

/// In a parent that is told of the value.
class ValueScene : private ValueHost, public SliderButtonScene
{
public:
    ValueScene()
        : SliderButtonScene(host)
    {
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

class WheelScene : public CallOutScene
{
public:
    WheelScene() { wheel.Create(kChild, CRect(0, 0, 120, 30), &parent, 1); }
    void provoke() override { paint(wheel); }
    void expectSound() override { provoke(); }

private:
    RaisingWheel wheel{false};
};

void turn(CWnd& slider)
{
    slider.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 30));
    slider.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(30, 50));
    slider.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(30, 50));
}

void expectTurnsAgain(CWnd& slider)
{
    slider.SendMessage(WM_CANCELMODE);
    paint(slider);
    turn(slider);
    EXPECT_NE(::GetCapture(), slider.m_hWnd);
}

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

class AngleSliderScene : public CallOutScene
{
public:
    AngleSliderScene() { slider.Create(kChild, CRect(0, 0, 60, 60), &parent, 1); }
    void provoke() override
    {
        paint(slider);
        turn(slider);
    }
    void expectSound() override { expectTurnsAgain(slider); }

private:
    RaisingSlider slider;
};

class ScrollScene : public CallOutScene
{
public:
    ScrollScene() { slider.Create(kChild, CRect(0, 0, 60, 60), &host, 1); }
    void provoke() override { turn(slider); }
    void expectSound() override { expectTurnsAgain(slider); }

protected:
    RaisingParent host{{{WM_HSCROLL, "scroll"}, {WM_VSCROLL, "scroll"}}};
    CRoundSlider slider{false};
};

/// Turned with a key.
class ScrollByKeyScene : public ScrollScene
{
public:
    ScrollByKeyScene() { slider.UseKeyboard(true); }
    void provoke() override { press(slider, VK_RIGHT); }
};

const std::vector<CallOut> kSliders{
    {"fromDisplay", &make<SliderButtonScene>, kAsAHandler},
    {"toDisplay", &make<SliderButtonScene>, kAsAHandler},
    {"showTip", &make<SliderButtonScene>, kAsAHandler},
    {"hideTip", &make<SliderButtonScene>, kAsAHandler},
    {"fromDisplay", &make<BuddyWheelScene>, kAsAHandler},
    {"toDisplay", &make<BuddyWheelScene>, kAsAHandler},
    {"shareOf", &make<MappingScene>, kAsAHandler},
    {"numberAt", &make<MappingScene>, kAsAHandler},
    {"kValueChanged", &make<ValueScene>, kAsAHandler},
    {"kReleased", &make<ValueScene>, kAsAHandler},
    {"drawOnCylinder", &make<WheelScene>, kInPainting},
    {"angleAt", &make<AngleSliderScene>, kAsAHandler},
    {"limited", &make<AngleSliderScene>, kAsAHandler},
    {"paintBody", &make<AngleSliderScene>, kInPainting},
    {"scroll", &make<ScrollScene>, kAsAHandler},
    {"scroll", &make<ScrollByKeyScene>, kAsAHandler},
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Sliders, CallOuts, ::testing::ValuesIn(kSliders), &nameOfCallOut);
