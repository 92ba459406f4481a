// The dial with real input, and the exchange of data with dialogs.
#include <support/Perishing.h>
#include <testkit/Desktop.h>
#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>
#include <testkit/TestApp.h>

#include <ovoui/sliders/DialSlider.h>
#include <ovoui/sliders/SliderData.h>
#include <ovoui/sliders/UnitNumbers.h>

#include <gtest/gtest.h>

#include <memory>

using namespace ovo::testkit;

namespace
{

class ScrollParent : public RecordingParent
{
public:
    ScrollParent()
        : RecordingParent(CSize(340, 200))
    {
    }
    std::vector<std::pair<UINT, int>> told; ///< code and angle

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_HSCROLL)
            told.emplace_back(LOWORD(wParam), static_cast<short>(HIWORD(wParam)));
        return RecordingParent::WindowProc(message, wParam, lParam);
    }
};

/// 101 pixels wide and high, so that it has a middle.
class DialSlider : public ::testing::Test
{
protected:
    DialSlider()
    {
        dial.Create(WS_CHILD | WS_VISIBLE, CRect(20, 20, 121, 121), &parent, 5);
        present(parent);
    }
    Spot at(int x, int y) const { return Spot{dial, CPoint(x, y)}; }

    ScrollParent parent;
    CDialSlider dial;
    Robot user;
};

} // namespace

TEST_F(DialSlider, ADragTurnsByTheAngleRoundItsMiddle)
{
    user.press(at(50, 10)).moveTo(at(90, 50)).release();
    ASSERT_FALSE(parent.told.empty());
    EXPECT_EQ(parent.told.back(), (std::pair<UINT, int>{SB_THUMBPOSITION, 90}));
    EXPECT_EQ(parent.told.front().first, UINT{SB_THUMBTRACK});
    EXPECT_NEAR(dial.GetPos(), 90, 0.01);
}

TEST_F(DialSlider, ItTurnsWithoutEnd)
{
    user.press(at(50, 10))
        .moveTo(at(90, 50))
        .moveTo(at(50, 90))
        .moveTo(at(10, 50))
        .moveTo(at(50, 10))
        .moveTo(at(90, 50))
        .release();
    EXPECT_NEAR(dial.GetPos(), 450, 0.01);
}

TEST_F(DialSlider, FromRightToLeftClockwiseIsTheSameWay)
{
    dial.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    CRect place;
    dial.GetWindowRect(&place);
    const CPoint middle = place.CenterPoint();
    user.press(Spot{middle - CSize(0, 40)}).moveTo(Spot{middle + CSize(40, 0)}).release();
    EXPECT_NEAR(dial.GetPos(), 90, 2);
}

TEST_F(DialSlider, StopsHoldIt)
{
    dial.SetStops(-45, 45);
    user.press(at(50, 10)).moveTo(at(90, 50)).release();
    EXPECT_EQ(parent.told.back(), (std::pair<UINT, int>{SB_THUMBPOSITION, 45}));
    dial.RemoveStops();
    user.press(at(50, 10)).moveTo(at(90, 50)).release();
    EXPECT_NEAR(dial.GetPos(), 135, 0.01);
}

TEST_F(DialSlider, AClickTurnsNothing)
{
    user.click(at(80, 80));
    EXPECT_EQ(dial.GetPos(), 0);
}

TEST_F(DialSlider, KeysStopAtTheStops)
{
    dial.UseKeyboard(true);
    dial.SetStops(-10, 10);
    dial.SetFocus();
    user.key(VK_PRIOR);
    EXPECT_EQ(dial.GetPos(), 10);
}

TEST_F(DialSlider, ThePointerShowsTheAngle)
{
    const Picture up = Picture::ofClient(dial);
    dial.SetPos(90);
    const Picture right = Picture::ofClient(dial);
    EXPECT_GT(up.differences(right), 50);
    EXPECT_EQ(right.at(70, 50), ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(right.at(0, 0), ::GetSysColor(COLOR_BTNFACE));
    dial.SetTicks(30);
    EXPECT_GT(right.differences(Picture::ofClient(dial)), 20);
    dial.EnableWindow(FALSE);
    EXPECT_EQ(Picture::ofClient(dial).at(70, 50), ::GetSysColor(COLOR_GRAYTEXT));
}

TEST_F(DialSlider, TicksBeyondTheStopsAreLeftOutAtOnce)
{
    dial.SetTicks(30);
    const Picture all = Picture::ofClient(dial);
    dial.SetStops(-45, 45);
    EXPECT_GT(Picture::ofClient(dial).differences(all), 10);
    dial.RemoveStops();
    EXPECT_EQ(Picture::ofClient(dial).differences(all), 0);
}

// Data exchange

namespace
{

class SliderExchange : public ::testing::Test
{
protected:
    SliderExchange()
    {
        buddy.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 10, 100, 32), &parent, 7);
        CStatic plain;
        plain.Create(L"", WS_CHILD | WS_VISIBLE, CRect(102, 10, 118, 32), &parent, 9);
        button.SubclassWindow(plain.Detach());
        button.SetBuddy(buddy);
        button.SetType(CSliderButton::SliderLinear);
        button.SetRange(0.0, 50.0, 1);
        present(parent);
    }
    std::wstring text() const
    {
        CString text;
        buddy.GetWindowText(text);
        return std::wstring(text);
    }

    CUnitNumbers plainNumbers{L"mm", false};
    RecordingParent parent;
    CEdit buddy;
    CSliderButton button{plainNumbers};
};

int WINAPI signsOfTheTest(LCID locale, LCTYPE type, LPWSTR text, int room)
{
    if (type != LOCALE_SDECIMAL && type != LOCALE_STHOUSAND)
        return ::GetLocaleInfoW(locale, type, text, room);
    ::lstrcpynW(text, type == LOCALE_SDECIMAL ? L"," : L".", room);
    return 2;
}

/// What the user reads when a slider button of this range does not take a number.
template <class Number>
std::wstring refusal(SliderButtonUtils& numbers, double low, double high)
{
    RecordingParent parent;
    CEdit buddy;
    buddy.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 10, 90, 30), &parent, 7);
    CSliderButton button(numbers);
    button.SetBuddy(buddy);
    button.SetType(CSliderButton::SliderLinear);
    button.SetRange(low, high, 2);
    present(parent);
    TestApp::instance().forget();
    CDataExchange reading(&parent, TRUE);
    try {
        Number number = 7;
        DDX_SliderNumber(&reading, button, number);
    } catch (CUserException* error) {
        error->Delete();
    }
    const auto& boxes = TestApp::instance().boxes();
    return boxes.size() == 1 ? std::wstring(boxes[0].text) : L"no box, or several";
}

} // namespace

TEST_F(SliderExchange, NumbersGoThroughTheButtonsConversions)
{
    CDataExchange showing(&parent, FALSE);
    double number = 12.5;
    DDX_SliderNumber(&showing, button, number);
    EXPECT_EQ(text(), L"12.5 mm");
    buddy.SetWindowText(L"33.25mm");
    CDataExchange reading(&parent, TRUE);
    DDX_SliderNumber(&reading, button, number);
    EXPECT_EQ(number, 33.25);
    int whole = 0;
    DDX_SliderNumber(&reading, button, whole);
    EXPECT_EQ(whole, 33);
}

TEST_F(SliderExchange, WhatIsNoNumberOfTheRangeIsRefused)
{
    for (const wchar_t* wrong : {L"", L"many", L"51", L"-1", L"nan"}) {
        TestApp::instance().forget();
        buddy.SetWindowText(wrong);
        CDataExchange reading(&parent, TRUE);
        double number = 7;
        bool failed = false;
        try {
            DDX_SliderNumber(&reading, button, number);
        } catch (CUserException* error) {
            failed = true;
            error->Delete();
        }
        EXPECT_TRUE(failed) << testing::PrintToString(wrong);
        EXPECT_EQ(number, 7) << "the member stays";
        ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
        EXPECT_EQ(TestApp::instance().boxes()[0].text, L"Enter a number from 0 mm to 50 mm.");
    }
}

TEST(SliderRefusal, NamesTheEndsAsTheUserWritesThem)
{
    const ImportPatch patch(L"ovoui.dll", "GetLocaleInfoW", reinterpret_cast<void*>(&signsOfTheTest));
    CUnitNumbers percent(CUnitNumbers::Percent);
    EXPECT_EQ(refusal<double>(percent, 0.005, 0.75), L"Enter a number from 0,5 % to 75 %.");
    CUnitNumbers grouped(L"mm");
    EXPECT_EQ(refusal<double>(grouped, -0.25, 1234567.5), L"Enter a number from -0,25 mm to 1.234.567,5 mm.");
}

TEST(SliderRefusal, NamesAllDigitsOfTheEnds)
{
    CUnitNumbers plain(L"", false);
    EXPECT_EQ(refusal<double>(plain, 0, 0.336), L"Enter a number from 0 to 0.336.");
    EXPECT_EQ(refusal<int>(plain, -1e10, 1e10), L"Enter a number from -2147483648 to 2147483647.");
}

TEST(SliderRefusal, SaysNothingWhenTheHostDeletesTheButtonMeanwhile)
{
    struct Deleting : CUnitNumbers
    {
        using CUnitNumbers::CUnitNumbers;
        void fromDisplay(std::wstring& out, const std::wstring& displayed) override
        {
            CUnitNumbers::fromDisplay(out, displayed);
            if (deletesWhenRead)
                button.reset();
        }
        void toDisplay(std::wstring& out, const std::wstring& machine) override
        {
            CUnitNumbers::toDisplay(out, machine);
            button.reset();
        }
        bool deletesWhenRead = false;
        std::unique_ptr<CSliderButton> button;
    };
    for (const bool whenRead : {true, false}) {
        RecordingParent parent;
        CEdit buddy;
        buddy.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 10, 90, 30), &parent, 7);
        Deleting numbers(L"mm");
        numbers.deletesWhenRead = whenRead;
        numbers.button = std::make_unique<Perishing<CSliderButton>>(numbers);
        CSliderButton* const button = numbers.button.get();
        button->SetBuddy(buddy);
        button->SetType(CSliderButton::SliderLinear);
        TestApp::instance().forget();
        CDataExchange reading(&parent, TRUE);
        double number = 7;
        try {
            DDX_SliderNumber(&reading, *button, number);
            ADD_FAILURE() << "taken as " << number;
        } catch (CUserException* error) {
            error->Delete();
        }
        EXPECT_FALSE(numbers.button) << "it has been deleted";
        EXPECT_TRUE(Perishing<CSliderButton>::isUntouched(button));
        EXPECT_TRUE(TestApp::instance().boxes().empty());
    }
}

TEST_F(SliderExchange, WhatTheSliderShowsAtItsEndIsTaken)
{
    button.SetType(CSliderButton::SliderLogarithmic);
    button.SetRange(1.0, 1000.0, 2);
    EXPECT_EQ(button.Limits(), std::pair(1.0, 1000.0));
    buddy.SetWindowText(L"1000.00 mm");
    CDataExchange reading(&parent, TRUE);
    double number = 7;
    DDX_SliderNumber(&reading, button, number);
    EXPECT_EQ(number, 1000);

    button.SetType(CSliderButton::SliderLinear);
    button.SetRange(0.333, 0.666, 2);
    for (const auto& [text, expected] : {std::pair(L"0.33 mm", 0.333), {L"0.67 mm", 0.666}}) {
        buddy.SetWindowText(text);
        DDX_SliderNumber(&reading, button, number);
        EXPECT_EQ(number, expected);
    }
}

TEST_F(SliderExchange, WhatIsRefusedGetsTheFocusAndIsSelected)
{
    buddy.SetWindowText(L"51");
    parent.SetFocus();
    CDataExchange reading(&parent, TRUE);
    double number = 7;
    try {
        DDX_SliderNumber(&reading, button, number);
        ADD_FAILURE() << "taken as " << number;
    } catch (CUserException* error) {
        error->Delete();
    }
    EXPECT_EQ(::GetFocus(), buddy.m_hWnd);
    int from = 0;
    int to = 0;
    buddy.GetSel(from, to);
    EXPECT_EQ(from, 0);
    EXPECT_EQ(to, 2);
    ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_EQ(TestApp::instance().boxes()[0].type & MB_ICONMASK, UINT{MB_ICONEXCLAMATION});
}

TEST_F(SliderExchange, AWholeNumberIsTheNearestOne)
{
    CDataExchange reading(&parent, TRUE);
    for (const auto& [text, expected] : {std::pair(L"33.25", 33), {L"33.75mm", 34}, {L"0.5", 1}}) {
        buddy.SetWindowText(text);
        int number = 7;
        DDX_SliderNumber(&reading, button, number);
        EXPECT_EQ(number, expected);
    }
}

TEST_F(SliderExchange, WhatAnIntCannotHoldIsRefused)
{
    button.SetRange(-1e10, 1e10, 0);
    buddy.SetWindowText(L"2147483647");
    CDataExchange reading(&parent, TRUE);
    int number = 7;
    DDX_SliderNumber(&reading, button, number);
    EXPECT_EQ(number, 2147483647);
    buddy.SetWindowText(L"5000000000");
    TestApp::instance().forget();
    try {
        DDX_SliderNumber(&reading, button, number);
        ADD_FAILURE() << "taken as " << number;
    } catch (CUserException* error) {
        error->Delete();
    }
    EXPECT_EQ(number, 2147483647) << "the member stays";
    EXPECT_EQ(TestApp::instance().boxes().size(), 1u);
}

TEST_F(SliderExchange, AnglesGoBothWays)
{
    CDialSlider dial;
    dial.Create(WS_CHILD | WS_VISIBLE, CRect(150, 10, 200, 60), &parent, 8);
    double degrees = 33;
    CDataExchange showing(&parent, FALSE);
    DDX_Angle(&showing, dial, degrees);
    EXPECT_EQ(dial.GetPos(), 33);
    dial.SetPos(-4.5);
    CDataExchange reading(&parent, TRUE);
    DDX_Angle(&reading, dial, degrees);
    EXPECT_EQ(degrees, -4.5);
}
