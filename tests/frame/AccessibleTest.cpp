// A control with parts as clients of accessibility see it.
#include <testkit/AccessibleView.h>
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/WinEvents.h>

#include <ovoui/frame/Accessible.h>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using namespace ovo::testkit;
using ovoui::frame::Accessible;

namespace
{

/// What the test's control answers; it outlives the control's window.
struct Answers
{
    HWND window = nullptr;
    int parts = 3;
    std::optional<int> focused;
    std::optional<LONG> ownState;
    HWND inside = nullptr; ///< stands in the place of the last part
    bool throws = false;
    int acted = Accessible::kNone;
};

constexpr int kWidth = 20; // of a part
constexpr int kOverlap = 5;

/// Parts side by side, each a little over the one before.
class Strip : public Accessible
{
public:
    explicit Strip(std::shared_ptr<Answers> answers)
        : m_answers(std::move(answers))
    {
    }

    HWND window() const override { return m_answers->window; }
    int partCount() const override { return m_answers->parts; }
    LONG role(int part) const override
    {
        return part == kSelf ? ROLE_SYSTEM_PAGETABLIST : ROLE_SYSTEM_PAGETAB;
    }
    std::wstring name(int part) const override
    {
        if (m_answers->throws)
            throw std::runtime_error("no name");
        return part == kSelf ? L"strip" : L"part " + std::to_wstring(part);
    }
    std::wstring value(int part) const override { return part == 1 ? L"five" : L""; }
    std::wstring description(int part) const override { return part == 2 ? L"the last" : L""; }
    std::wstring action(int part) const override { return part == 0 ? L"Open" : L""; }
    std::optional<LONG> state(int part) const override
    {
        return part == 1 ? STATE_SYSTEM_CHECKED : m_answers->ownState;
    }
    std::optional<CRect> place(int part) const override
    {
        if (part == kSelf)
            return std::nullopt;
        CPoint corner(part * kWidth, 0);
        ::ClientToScreen(m_answers->window, &corner);
        return CRect(corner, CSize(kWidth + kOverlap, kWidth));
    }
    HWND windowOf(int part) const override { return part == 2 ? m_answers->inside : nullptr; }
    std::optional<int> focused() const override { return m_answers->focused; }
    void act(int part) override { m_answers->acted = part; }

private:
    std::shared_ptr<Answers> m_answers;
};

class Control : public CWnd
{
public:
    std::shared_ptr<Answers> answers = std::make_shared<Answers>();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_GETOBJECT && ovoui::frame::asksForContents(lParam))
            return ovoui::frame::accessibleAnswer(wParam, std::make_shared<Strip>(answers));
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class AccessibleControl : public ::testing::Test
{
protected:
    AccessibleControl()
    {
        control.Create(nullptr, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 10, 110, 40), &parent, 5);
        other.Create(WS_CHILD | WS_VISIBLE, CRect(10, 60, 110, 80), &parent, 6);
        control.answers->window = control;
        present(parent);
    }
    CPoint at(int x, int y)
    {
        CPoint point(x, y);
        control.ClientToScreen(&point);
        return point;
    }
    Answers& answers() { return *control.answers; }

    RecordingParent parent;
    Control control;
    CEdit other;
};

} // namespace

TEST_F(AccessibleControl, TextsAndRolesAreItsOwn)
{
    const AccessibleView seen(control);
    ASSERT_TRUE(seen);
    EXPECT_EQ(seen.childCount(), 3);
    EXPECT_EQ(seen.name(), L"strip");
    EXPECT_EQ(seen.name(1), L"part 0") << "clients count from 1";
    EXPECT_EQ(seen.name(3), L"part 2");
    EXPECT_EQ(seen.role(), ROLE_SYSTEM_PAGETABLIST);
    EXPECT_EQ(seen.role(2), ROLE_SYSTEM_PAGETAB);
    EXPECT_EQ(seen.value(2), L"five");
    EXPECT_EQ(seen.description(3), L"the last");
    BSTR none = nullptr;
    EXPECT_EQ(seen->get_accValue(AccessibleView::numbered(1), &none), S_FALSE) << "an empty text is none";
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(seen->get_accHelp(AccessibleView::numbered(1), &none), S_FALSE);
}

TEST_F(AccessibleControl, StatesAreItsOwnOrTheWindows)
{
    const AccessibleView seen(control);
    EXPECT_EQ(seen.state(2), STATE_SYSTEM_CHECKED);
    EXPECT_EQ(seen.state(1), 0) << "a part without an answer";
    EXPECT_EQ(seen.state() & STATE_SYSTEM_UNAVAILABLE, 0);
    control.EnableWindow(FALSE);
    EXPECT_TRUE(seen.state() & STATE_SYSTEM_UNAVAILABLE);
    answers().ownState = STATE_SYSTEM_READONLY;
    EXPECT_EQ(seen.state(), STATE_SYSTEM_READONLY);
}

TEST_F(AccessibleControl, PlacesAreItsOwnOrTheClientArea)
{
    const AccessibleView seen(control);
    EXPECT_EQ(seen.place(), CRect(at(0, 0), CSize(100, 30)));
    EXPECT_EQ(seen.place(2), CRect(at(kWidth, 0), CSize(kWidth + kOverlap, kWidth)));
}

TEST_F(AccessibleControl, APointFindsTheTopmostPart)
{
    const AccessibleView seen(control);
    EXPECT_EQ(seen.at(at(1, 1)), 1);
    EXPECT_EQ(seen.at(at(kWidth + 1, 1)), 2) << "where two overlap, the later one";
    EXPECT_EQ(seen.at(at(99, 29)), CHILDID_SELF);
    VARIANT hit{};
    EXPECT_EQ(seen->accHitTest(at(0, 0).x - 1, at(0, 0).y, &hit), S_FALSE);
    EXPECT_EQ(hit.vt, VT_EMPTY);
}

TEST_F(AccessibleControl, TheFocusIsItsOwnOrTheWindows)
{
    const AccessibleView seen(control);
    control.SetFocus();
    EXPECT_EQ(seen.focused(), CHILDID_SELF);
    answers().focused = 2;
    EXPECT_EQ(seen.focused(), 3);
    answers().focused = Accessible::kSelf;
    EXPECT_EQ(seen.focused(), CHILDID_SELF);
    answers().focused = Accessible::kNone;
    EXPECT_EQ(seen.focused(), -1);
}

TEST_F(AccessibleControl, OnlyWhatHasAnActionCanBeActedOn)
{
    const AccessibleView seen(control);
    EXPECT_EQ(seen.action(1), L"Open");
    EXPECT_EQ(seen->accDoDefaultAction(AccessibleView::numbered(2)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(answers().acted, Accessible::kNone);
    EXPECT_EQ(seen->accDoDefaultAction(AccessibleView::numbered(1)), S_OK);
    EXPECT_EQ(answers().acted, 0);
}

TEST_F(AccessibleControl, AWindowInAPartsPlaceIsAnObjectOfItsOwn)
{
    const AccessibleView seen(control);
    IDispatch* object = nullptr;
    EXPECT_EQ(seen->get_accChild(AccessibleView::numbered(3), &object), S_FALSE);
    EXPECT_EQ(object, nullptr);
    answers().inside = other;
    EXPECT_EQ(seen->get_accChild(AccessibleView::numbered(3), &object), S_OK);
    ASSERT_NE(object, nullptr);
    object->Release();
    EXPECT_EQ(seen->get_accParent(&object), S_OK);
    ASSERT_NE(object, nullptr);
    object->Release();
}

TEST_F(AccessibleControl, AmongWindowsItAnswersAsItsWindowAndItsPartsNot)
{
    const AccessibleView seen(control);
    IAccessible* window = nullptr;
    ASSERT_HRESULT_SUCCEEDED(::CreateStdAccessibleObject(control, OBJID_CLIENT, __uuidof(IAccessible),
                                                         reinterpret_cast<void**>(&window)));
    const VARIANT self = AccessibleView::numbered(CHILDID_SELF);
    const VARIANT first = AccessibleView::numbered(1);
    VARIANT found{};
    VARIANT expected{};
    const HRESULT navigated = window->accNavigate(NAVDIR_NEXT, self, &expected);
    EXPECT_NE(navigated, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(seen->accNavigate(NAVDIR_NEXT, self, &found), navigated);
    EXPECT_EQ(found.vt, expected.vt);
    ::VariantClear(&found);
    ::VariantClear(&expected);
    EXPECT_EQ(seen->accSelect(SELFLAG_TAKEFOCUS, self), window->accSelect(SELFLAG_TAKEFOCUS, self));
    window->Release();

    EXPECT_EQ(seen->accNavigate(NAVDIR_NEXT, first, &found), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(seen->accSelect(SELFLAG_TAKEFOCUS, first), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(seen->get_accSelection(&found), S_FALSE);
    EXPECT_EQ(found.vt, VT_EMPTY);
}

TEST_F(AccessibleControl, NumbersThatItDoesNotHaveAreRefused)
{
    const AccessibleView seen(control);
    BSTR text = nullptr;
    VARIANT variant{};
    for (const LONG wrong : {-1L, 4L, 1000L}) {
        EXPECT_EQ(seen->get_accName(AccessibleView::numbered(wrong), &text), E_INVALIDARG);
        EXPECT_EQ(seen->get_accRole(AccessibleView::numbered(wrong), &variant), E_INVALIDARG);
    }
    EXPECT_EQ(seen->get_accName(VARIANT{}, &text), E_INVALIDARG);
    EXPECT_EQ(text, nullptr);
}

TEST_F(AccessibleControl, WhatItThrowsIsAnError)
{
    const AccessibleView seen(control);
    answers().throws = true;
    BSTR text = nullptr;
    EXPECT_EQ(seen->get_accName(AccessibleView::numbered(1), &text), E_FAIL);
    EXPECT_EQ(text, nullptr);
}

TEST_F(AccessibleControl, ItsObjectOutlivesIt)
{
    const AccessibleView seen(control);
    const std::shared_ptr<Answers> kept = control.answers;
    control.DestroyWindow();
    kept->window = nullptr;
    BSTR text = nullptr;
    VARIANT variant{};
    IDispatch* object = nullptr;
    long count = 7;
    EXPECT_EQ(seen->get_accName(AccessibleView::numbered(0), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(seen->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(seen->get_accParent(&object), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(seen->get_accFocus(&variant), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(seen->accHitTest(0, 0, &variant), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(seen->accDoDefaultAction(AccessibleView::numbered(1)), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(kept->acted, Accessible::kNone);
}

TEST_F(AccessibleControl, OnlyTheContentsAreAskedFor)
{
    EXPECT_TRUE(ovoui::frame::asksForContents(OBJID_CLIENT));
    EXPECT_TRUE(ovoui::frame::asksForContents(static_cast<LPARAM>(static_cast<DWORD>(OBJID_CLIENT))));
    EXPECT_FALSE(ovoui::frame::asksForContents(OBJID_WINDOW));
    EXPECT_FALSE(ovoui::frame::asksForContents(0));
}

TEST_F(AccessibleControl, EventsTellOfTheControlAndOfItsParts)
{
    WinEvents changes(EVENT_OBJECT_VALUECHANGE);
    ovoui::frame::announce(EVENT_OBJECT_VALUECHANGE, control);
    ovoui::frame::announce(EVENT_OBJECT_VALUECHANGE, control, 1);
    ovoui::frame::announce(EVENT_OBJECT_VALUECHANGE, control, 1);
    ovoui::frame::announce(EVENT_OBJECT_NAMECHANGE, control, 2);
    EXPECT_EQ(changes.of(control), 1);
    EXPECT_EQ(changes.of(control, 2), 2);
    EXPECT_EQ(changes.of(control, 3), 0);
}
