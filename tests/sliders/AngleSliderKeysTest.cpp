// The angle sliders by keyboard and wheel, snapping, typing, and what accessibility sees.
#include <support/Perishing.h>
#include <testkit/AccessibleView.h>
#include <testkit/Desktop.h>
#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>
#include <testkit/WinEvents.h>

#include <ovoui/sliders/DialSlider.h>
#include <ovoui/sliders/RoundSlider.h>
#include <ovoui/sliders/WheelSlider.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <utility>

using namespace ovo::testkit;

namespace
{

class ScrollParent : public RecordingParent
{
public:
    ScrollParent()
        : RecordingParent(CSize(340, 340))
    {
    }
    std::vector<std::pair<UINT, int>> told; ///< code and angle
    std::function<void()> react;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_HSCROLL || message == WM_VSCROLL) {
            told.emplace_back(LOWORD(wParam), static_cast<short>(HIWORD(wParam)));
            if (react)
                react();
        }
        return RecordingParent::WindowProc(message, wParam, lParam);
    }
};

using Told = std::vector<std::pair<UINT, int>>;

class AngleSliderKeys : public ::testing::Test
{
protected:
    AngleSliderKeys()
    {
        round->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 10, 214, 50), &parent, 5);
        wheel->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(250, 10, 290, 214), &parent, 6);
        round->UseKeyboard(true);
        wheel->UseKeyboard(true);
        present(parent);
    }
    HWND edit() const { return ::FindWindowExW(*round, nullptr, L"Edit", nullptr); }

    ScrollParent parent;
    std::unique_ptr<CRoundSlider> round = std::make_unique<CRoundSlider>(false);
    std::unique_ptr<CWheelSlider> wheel = std::make_unique<CWheelSlider>(false);
    Robot user;
};

} // namespace

TEST_F(AngleSliderKeys, EachKeyTurnsAndTells)
{
    round->SetFocus();
    user.key(VK_RIGHT).key(VK_UP).key(VK_LEFT).key(VK_PRIOR);
    EXPECT_EQ(
        parent.told,
        (Told{{SB_THUMBPOSITION, 1}, {SB_THUMBPOSITION, 2}, {SB_THUMBPOSITION, 1}, {SB_THUMBPOSITION, 16}}));
    EXPECT_EQ(round->GetPos(), 16);
    parent.told.clear();
    user.key(VK_NEXT).holding(VK_CONTROL).key(VK_DOWN).letGo(VK_CONTROL).key(VK_HOME);
    EXPECT_EQ(parent.told, (Told{{SB_THUMBPOSITION, 1}, {SB_THUMBPOSITION, -4}, {SB_THUMBPOSITION, 0}}));
    parent.told.clear();
    user.key(VK_HOME);
    EXPECT_TRUE(parent.told.empty()) << "nothing has changed";
}

TEST_F(AngleSliderKeys, WhatAKeyTurnsShowsAtOnce)
{
    round->SetFocus();
    const Picture before = Picture::ofClient(*round);
    user.key(VK_PRIOR);
    EXPECT_GT(Picture::ofClient(*round).differences(before), 100);
    user.key(VK_HOME);
    EXPECT_EQ(Picture::ofClient(*round).differences(before), 0);
}

TEST_F(AngleSliderKeys, TheFocusIsMarkedWhileTheKeyboardIsAskedFor)
{
    round->SetFocus();
    const Picture marked = Picture::ofClient(*round);
    round->UseKeyboard(false);
    EXPECT_GT(Picture::ofClient(*round).differences(marked), 20);
    round->UseKeyboard(true);
    EXPECT_EQ(Picture::ofClient(*round).differences(marked), 0);
}

TEST_F(AngleSliderKeys, TheWheelSliderStopsAtItsLimits)
{
    wheel->SetPos(85);
    wheel->SetFocus();
    user.key(VK_PRIOR, 2);
    EXPECT_EQ(parent.told, (Told{{SB_THUMBPOSITION, 90}}));
}

TEST_F(AngleSliderKeys, TheMouseWheelTurns)
{
    round->SetFocus();
    user.moveTo(Spot{*round}).turnWheel(2).waitFor("the turn", [&] { return round->GetPos() == 2; });
    user.holding(VK_CONTROL).turnWheel(-1).waitFor("five back", [&] { return round->GetPos() == -3; });
}

TEST_F(AngleSliderKeys, UnaskedTheKeyboardDoesNothing)
{
    round->UseKeyboard(false);
    round->SetFocus();
    round->SendMessage(WM_KEYDOWN, VK_RIGHT);
    round->SendMessage(WM_CHAR, L'5');
    round->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120));
    EXPECT_TRUE(parent.told.empty());
    EXPECT_EQ(edit(), nullptr);
    EXPECT_EQ(round->SendMessage(WM_GETDLGCODE) & (DLGC_WANTARROWS | DLGC_WANTCHARS), 0);
    wheel->SetFocus();
    user.click(Spot{*round});
    EXPECT_EQ(::GetFocus(), wheel->m_hWnd) << "a click does not take the focus";
}

TEST_F(AngleSliderKeys, TheFocusIsPaintedAsItComesAndGoes)
{
    wheel->SetFocus();
    const Picture without = Picture::ofClient(*round);
    round->SetFocus();
    EXPECT_GT(Picture::ofClient(*round).differences(without), 20);
    wheel->SetFocus();
    EXPECT_EQ(Picture::ofClient(*round).differences(without), 0);
}

TEST_F(AngleSliderKeys, InADialogTheKeysAreItsOwn)
{
    constexpr LRESULT kKeys = DLGC_WANTARROWS | DLGC_WANTCHARS;
    EXPECT_EQ(round->SendMessage(WM_GETDLGCODE) & kKeys, kKeys);
    round->SetFocus();
    user.type(L"4").waitFor("the edit", [&] { return edit() != nullptr; });
    EXPECT_TRUE(::SendMessageW(edit(), WM_GETDLGCODE, 0, 0) & DLGC_WANTALLKEYS) << "Enter and Escape too";
}

TEST_F(AngleSliderKeys, AClickTakesTheFocusWhichIsMarked)
{
    wheel->SetFocus();
    round->UpdateWindow();
    const auto dottedLine = [&] {
        CClientDC dc(round.get());
        int changes = 0;
        for (int x = 4; x < 200; ++x)
            changes += dc.GetPixel(x, 3) != dc.GetPixel(x, 5);
        return changes;
    };
    const int without = dottedLine();
    user.click(Spot{*round, CPoint(104, 20)});
    EXPECT_EQ(::GetFocus(), round->m_hWnd);
    round->SetPos(0);
    round->UpdateWindow();
    EXPECT_GT(dottedLine(), without + 50);
}

TEST_F(AngleSliderKeys, AMessageThatIsShownWhenTheFocusComesLeavesNoDragBehind)
{
    wheel->SetFocus();
    const auto wheelsEdit = [&] { return ::FindWindowExW(*wheel, nullptr, L"Edit", nullptr); };
    user.type(L"5").waitFor("the edit", [&] { return wheelsEdit() != nullptr; });
    bool asked = false;
    parent.react = [&] {
        if (!std::exchange(asked, true))
            parent.MessageBox(L"Really?", L"Host");
    };
    user.press(Spot{*round, CPoint(60, 20)})
        .release()
        .waitFor("the message", [] { return shownWindow(L"Host") != nullptr; })
        .key(VK_RETURN)
        .waitFor("its end", [] { return shownWindow(L"Host") == nullptr; });
    EXPECT_TRUE(asked);
    EXPECT_NE(::GetCapture(), round->m_hWnd);
    EXPECT_EQ(round->GetPos(), 0);
}

TEST_F(AngleSliderKeys, ShiftSnapsADrag)
{
    round->SetSnap(15);
    round->SetFocus();
    // A late report of the display may let go of Shift for a moment, and the angle is free then.
    std::vector<int> withShift;
    parent.react = [&] {
        if (::GetKeyState(VK_SHIFT) < 0)
            withShift.push_back(parent.told.back().second);
    };
    user.holding(VK_SHIFT).press(Spot{*round, CPoint(104, 20)}).moveBy(-30, 0).moveBy(-5, 0).release();
    ASSERT_FALSE(withShift.empty());
    for (const int angle : withShift)
        EXPECT_EQ(angle % 15, 0) << angle;
    EXPECT_NE(round->GetPos(), 0);

    parent.react = {};
    parent.told.clear();
    user.press(Spot{*round, CPoint(104, 20)}).moveBy(-30, 0).moveBy(-5, 0).release();
    EXPECT_TRUE(std::any_of(parent.told.begin(), parent.told.end(), [](const auto& told) {
        return told.second % 15 != 0;
    })) << "without Shift it takes any angle";
}

TEST_F(AngleSliderKeys, ANumberIsTypedIntoASmallEdit)
{
    round->SetFocus();
    user.type(L"-47.5").waitFor("the edit", [&] { return edit() != nullptr; });
    const LONG style = ::GetWindowLongW(edit(), GWL_STYLE);
    EXPECT_TRUE(style & ES_CENTER);
    EXPECT_TRUE(style & ES_AUTOHSCROLL) << "long numbers are taken";
    EXPECT_TRUE(parent.told.empty());
    user.key(VK_RETURN).waitFor("the edit to go", [&] { return edit() == nullptr; });
    EXPECT_EQ(round->GetPos(), -47.5);
    EXPECT_EQ(parent.told, (Told{{SB_THUMBPOSITION, -48}}));
    EXPECT_EQ(::GetFocus(), round->m_hWnd);

    user.type(L"12").key(VK_ESCAPE).waitFor("the edit to go", [&] { return edit() == nullptr; });
    EXPECT_EQ(round->GetPos(), -47.5);
    user.type(L"1x").waitFor("the edit", [&] { return edit() != nullptr; });
    wheel->SetFocus();
    EXPECT_EQ(edit(), nullptr) << "leaving it accepts";
    EXPECT_EQ(round->GetPos(), 1);
    EXPECT_EQ(::GetFocus(), wheel->m_hWnd);
}

/// As when another program comes to the front.
TEST_F(AngleSliderKeys, AFocusThatGoesToNoWindowIsNotTakenBack)
{
    round->SetFocus();
    user.type(L"5").waitFor("the edit", [&] { return edit() != nullptr; });
    ::SetFocus(nullptr);
    EXPECT_EQ(edit(), nullptr);
    EXPECT_EQ(round->GetPos(), 5);
    EXPECT_EQ(::GetFocus(), nullptr);
}

static int WINAPI commaForDecimals(LCID locale, LCTYPE type, LPWSTR text, int room)
{
    if (type != LOCALE_SDECIMAL)
        return ::GetLocaleInfoW(locale, type, text, room);
    ::lstrcpynW(text, L",", room);
    return 2;
}

TEST_F(AngleSliderKeys, ANumberIsTypedWithTheUsersDecimalSign)
{
    const ImportPatch patch(L"ovoui.dll", "GetLocaleInfoW", reinterpret_cast<void*>(&commaForDecimals));
    round->SetFocus();
    for (const auto& [typed, angle] : {std::pair{L"12,5", 12.5}, std::pair{L"-7.25", -7.25}}) {
        user.type(typed).key(VK_RETURN).waitFor("the edit to go", [&] { return edit() == nullptr; });
        EXPECT_EQ(round->GetPos(), angle);
    }
}

TEST_F(AngleSliderKeys, TheSmallEditHasTheUsualFontAndLiesInTheMiddle)
{
    round->SetFocus();
    user.type(L"4").waitFor("the edit", [&] { return edit() != nullptr; });
    EXPECT_EQ(::GetFocus(), edit());
    EXPECT_EQ(::SendMessageW(edit(), WM_GETFONT, 0, 0),
              reinterpret_cast<LRESULT>(::GetStockObject(DEFAULT_GUI_FONT)));
    CRect place;
    ::GetWindowRect(edit(), &place);
    CRect slider;
    round->GetWindowRect(&slider);
    EXPECT_EQ(CRect(place & slider), place);
    EXPECT_NEAR(place.CenterPoint().x, slider.CenterPoint().x, 1);
    EXPECT_NEAR(place.CenterPoint().y, slider.CenterPoint().y, 1);
    user.key(VK_ESCAPE).waitFor("the edit to go", [&] { return edit() == nullptr; });
    EXPECT_TRUE(parent.told.empty());
}

/// The style does not tell: the control may take it off and draw the line itself.
TEST_F(AngleSliderKeys, TheSmallEditHasALineAroundIt)
{
    round->SetFocus();
    user.type(L"4").waitFor("the edit", [&] { return edit() != nullptr; });
    const Picture shown = Picture::ofWindow(edit());
    const int width = shown.width();
    const int height = shown.height();
    const COLORREF ground = ::GetSysColor(COLOR_WINDOW);
    ASSERT_EQ(shown.at(3, height / 2), ground) << "beside the text";
    for (const CRect& side : {CRect(0, 0, width, 1), CRect(0, height - 1, width, height),
                              CRect(0, 0, 1, height), CRect(width - 1, 0, width, height)})
        EXPECT_EQ(shown.count(ground, 0, side), 0) << side.left << ' ' << side.top;
    user.key(VK_ESCAPE).waitFor("the edit to go", [&] { return edit() == nullptr; });
}

TEST_F(AngleSliderKeys, CharactersThatAreOnTheirWayWhenTheEditOpensGoIntoIt)
{
    round->SetFocus();
    for (const wchar_t character : {L'1', L'2', L'0'})
        round->SendMessage(WM_CHAR, character, 1);
    CString text;
    CWnd::FromHandle(edit())->GetWindowText(text);
    EXPECT_EQ(text, L"120");
    user.key(VK_RETURN).waitFor("the edit to go", [&] { return edit() == nullptr; });
    EXPECT_EQ(round->GetPos(), 120);
}

TEST_F(AngleSliderKeys, TheParentMayDestroyItInEveryMessage)
{
    parent.react = [&] { round.reset(); };
    round->SetFocus();
    user.key(VK_RIGHT);
    EXPECT_EQ(round, nullptr);

    parent.react = [&] { wheel.reset(); };
    wheel->SetFocus();
    user.type(L"5").key(VK_RETURN);
    EXPECT_EQ(wheel, nullptr);
}

/// A slider that a host has derived.
class LeavingSlider : public CRoundSlider
{
public:
    using CRoundSlider::CRoundSlider;
    std::function<void()> onLeft; ///< its edit has lost the focus

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_COMMAND || HIWORD(wParam) != EN_KILLFOCUS || !onLeft)
            return CRoundSlider::WindowProc(message, wParam, lParam);
        const std::function<void()> deed = onLeft;
        deed();
        return 0;
    }
};

/// An edit control tells its parent when it loses the focus. Some platforms' go on with what they know of
/// themselves then, which this one does not.
static LRESULT WINAPI tellAlone(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    wchar_t name[20]{};
    ::GetClassNameW(window, name, 20);
    if (message != WM_KILLFOCUS || ::lstrcmpiW(name, L"Edit") != 0)
        return ::CallWindowProcW(procedure, window, message, wParam, lParam);
    ::SendMessageW(::GetParent(window), WM_COMMAND, MAKEWPARAM(1, EN_KILLFOCUS),
                   reinterpret_cast<LPARAM>(window));
    return 0;
}

TEST_F(AngleSliderKeys, ASliderMayGoWhenItsEditLosesTheFocus)
{
    const ImportPatch telling(L"ovomfc.dll", "CallWindowProcW", reinterpret_cast<void*>(&tellAlone));
    for (const bool deletes : {false, true}) {
        SCOPED_TRACE(deletes);
        auto slider = std::make_unique<Perishing<LeavingSlider>>(false);
        slider->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 230, 214, 270), &parent, 7);
        slider->UseKeyboard(true);
        bool left = false;
        slider->onLeft = [&] {
            left = true;
            if (deletes)
                slider.reset();
            else
                slider->DestroyWindow();
        };
        slider->SetFocus();
        const HWND window = slider->m_hWnd;
        user.type(L"5").waitFor("the edit", [&] { return ::GetParent(::GetFocus()) == window; });
        wheel->SetFocus();
        EXPECT_TRUE(left);
        EXPECT_FALSE(::IsWindow(window));
        EXPECT_EQ(::GetFocus(), wheel->m_hWnd);
    }
}

TEST_F(AngleSliderKeys, AccessibilitySeesASliderWithItsAngle)
{
    round->SetPos(33);
    const AccessibleView seen(*round);
    EXPECT_EQ(seen.role(), ROLE_SYSTEM_SLIDER);
    EXPECT_EQ(seen.value(), L"33");
    round->DestroyWindow();
    BSTR text = nullptr;
    EXPECT_EQ(seen->get_accValue(AccessibleView::numbered(CHILDID_SELF), &text), CO_E_OBJNOTCONNECTED);
}

TEST_F(AngleSliderKeys, TheLabelInFrontIsTheName)
{
    CStatic label;
    label.Create(L"&Heading:", WS_CHILD | WS_VISIBLE, CRect(10, 60, 60, 80), &parent, 7);
    CRoundSlider namedRound(false);
    CWheelSlider namedWheel(false);
    CDialSlider namedDial;
    const CRect place(70, 60, 200, 80);
    namedRound.Create(WS_CHILD | WS_VISIBLE, place, &parent, 8);
    namedWheel.Create(WS_CHILD | WS_VISIBLE, place, &parent, 9);
    namedDial.Create(WS_CHILD | WS_VISIBLE, place, &parent, 10);
    for (CAngleSlider* named :
         {static_cast<CAngleSlider*>(&namedRound), static_cast<CAngleSlider*>(&namedWheel),
          static_cast<CAngleSlider*>(&namedDial)}) {
        named->SetWindowPos(&label, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        const AccessibleView seen(*named);
        EXPECT_EQ(seen.name(), L"Heading");
        EXPECT_EQ(seen.role(), ROLE_SYSTEM_SLIDER);
        EXPECT_EQ(seen.action(), L"") << "there is nothing to press";
        EXPECT_FALSE(seen.state() & STATE_SYSTEM_UNAVAILABLE);
        named->EnableWindow(FALSE);
        EXPECT_TRUE(seen.state() & STATE_SYSTEM_UNAVAILABLE);
    }
    EXPECT_EQ(AccessibleView(*wheel).name(), L"WheelSlider") << "behind another slider it is its own text";
    wheel->SetWindowText(L"Tilt");
    EXPECT_EQ(AccessibleView(*wheel).name(), L"Tilt");
    const std::wstring longName(300, L't');
    wheel->SetWindowText(longName.c_str());
    EXPECT_EQ(AccessibleView(*wheel).name(), longName);
    label.SetWindowText(longName.c_str());
    namedRound.SetWindowPos(&label, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(AccessibleView(namedRound).name(), longName);
}

TEST_F(AngleSliderKeys, AccessibilityHearsOfEveryChangeOfTheAngle)
{
    const auto dial = std::make_unique<CDialSlider>();
    dial->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 60, 111, 161), &parent, 7);
    dial->UseKeyboard(true);
    for (CAngleSlider* slider :
         {static_cast<CAngleSlider*>(round.get()), static_cast<CAngleSlider*>(wheel.get()),
          static_cast<CAngleSlider*>(dial.get())}) {
        parent.react = nullptr;
        WinEvents changes(EVENT_OBJECT_VALUECHANGE);
        slider->SetPos(0);
        EXPECT_EQ(changes.of(*slider), 0) << "nothing has changed";
        slider->SetPos(20);
        EXPECT_EQ(changes.of(*slider), 1);
        slider->SetPos(20.4);
        EXPECT_EQ(changes.of(*slider), 1) << "it is still read as 20";
        slider->SetFocus();
        user.key(VK_RIGHT);
        EXPECT_EQ(changes.of(*slider), 2);
        user.key(VK_HOME).key(VK_HOME);
        EXPECT_EQ(changes.of(*slider), 3) << "the second time nothing changes";

        changes.forget();
        CRect client;
        slider->GetClientRect(&client);
        const CPoint from(client.Width() / 2, client.Height() / 4);
        const auto send = [&](UINT message, CPoint at) {
            slider->SendMessage(message, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        };
        send(WM_LBUTTONDOWN, from);
        EXPECT_EQ(changes.of(*slider), 0) << "a press turns nothing";
        send(WM_MOUSEMOVE, from - CPoint(8, 8));
        EXPECT_EQ(changes.of(*slider), 1);
        send(WM_MOUSEMOVE, from - CPoint(8, 8));
        EXPECT_EQ(changes.of(*slider), 1) << "the pointer is where it was";
        ::ReleaseCapture();
        EXPECT_EQ(changes.of(*slider), 2) << "the angle from before shows again";
    }
}
