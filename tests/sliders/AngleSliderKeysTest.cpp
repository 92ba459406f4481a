// The angle sliders by keyboard and wheel, snapping, typing, and what accessibility sees.
#include "support/Desktop.h"
#include "support/Picture.h"
#include "support/RecordingParent.h"
#include "support/Robot.h"

#include <ovoui/sliders/RoundSlider.h>
#include <ovoui/sliders/WheelSlider.h>

#include <gtest/gtest.h>

#include <oleacc.h>

#include <memory>

using namespace ovotest;

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

TEST_F(AngleSliderKeys, ShiftSnapsADrag)
{
    round->SetSnap(15);
    round->SetFocus();
    user.holding(VK_SHIFT).press(Spot{*round, CPoint(104, 20)}).moveBy(-30, 0).moveBy(-5, 0).release();
    ASSERT_FALSE(parent.told.empty());
    for (const auto& told : parent.told)
        EXPECT_EQ(told.second % 15, 0) << told.second;
    EXPECT_NE(round->GetPos(), 0);
}

TEST_F(AngleSliderKeys, ANumberIsTypedIntoASmallEdit)
{
    round->SetFocus();
    user.type(L"-47.5").waitFor("the edit", [&] { return edit() != nullptr; });
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

TEST_F(AngleSliderKeys, AccessibilitySeesASliderWithItsAngle)
{
    round->SetPos(33);
    IAccessible* object = nullptr;
    ASSERT_EQ(::AccessibleObjectFromWindow(*round, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                           reinterpret_cast<void**>(&object)),
              S_OK);
    VARIANT self{};
    self.vt = VT_I4;
    VARIANT role{};
    EXPECT_EQ(object->get_accRole(self, &role), S_OK);
    EXPECT_EQ(role.lVal, ROLE_SYSTEM_SLIDER);
    BSTR text = nullptr;
    EXPECT_EQ(object->get_accValue(self, &text), S_OK);
    EXPECT_STREQ(text, L"33");
    ::SysFreeString(text);
    round->DestroyWindow();
    EXPECT_EQ(object->get_accValue(self, &text), CO_E_OBJNOTCONNECTED);
    object->Release();
}
