// What activation means to a group of windows.
#include "Windows.h"

#include <afxpriv.h>

#include <testkit/Desktop.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;
using namespace wndtest;

namespace
{

/// Does not take the focus when it is told that it is active.
class Quiet : public Hidden<>
{
protected:
    void OnActivate(UINT, CWnd*, BOOL) {}
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Quiet, Hidden<>)
    ON_WM_ACTIVATE()
END_MESSAGE_MAP()

class Group : public Quiet
{
public:
    struct Told
    {
        UINT state;
        HWND active;
        HWND inactive;
        bool operator==(const Told&) const = default;
    };
    std::vector<Told> told;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ACTIVATETOPLEVEL) {
            const HWND* windows = reinterpret_cast<HWND*>(lParam);
            told.push_back({LOWORD(wParam), windows[0], windows[1]});
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST(Activation, IsToldToTheOutermostOwner)
{
    Group group;
    group.create();
    Quiet popup;
    popup.create(WS_POPUP, &group);
    const PlainWindow other;
    popup.SendMessage(WM_ACTIVATE, WA_ACTIVE, reinterpret_cast<LPARAM>(static_cast<HWND>(other)));
    popup.SendMessage(WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(static_cast<HWND>(other)));
    EXPECT_EQ(group.told, (std::vector<Group::Told>{{WA_ACTIVE, popup.m_hWnd, other}, {WA_INACTIVE, other, popup.m_hWnd}}));
}

TEST(Activation, InsideOfAGroupIsNoNews)
{
    Group group;
    group.create();
    Quiet popup;
    popup.create(WS_POPUP, &group);
    popup.SendMessage(WM_ACTIVATE, WA_ACTIVE, reinterpret_cast<LPARAM>(group.m_hWnd));
    group.SendMessage(WM_ACTIVATE, WA_ACTIVE, reinterpret_cast<LPARAM>(popup.m_hWnd));
    EXPECT_TRUE(group.told.empty());
}

TEST(Activation, APressOnADisabledWindowBringsItsPopupToTheFront)
{
    Hidden<> owner;
    owner.create(WS_OVERLAPPEDWINDOW);
    owner.ShowWindow(SW_SHOW);
    Hidden<> popup;
    popup.create(WS_POPUP, &owner);
    present(popup);
    owner.EnableWindow(FALSE);
    Hidden<> other;
    other.create(WS_OVERLAPPEDWINDOW);
    present(other);
    ASSERT_EQ(::GetForegroundWindow(), other.m_hWnd);

    const LPARAM press = MAKELPARAM(HTERROR, WM_LBUTTONDOWN);
    EXPECT_EQ(owner.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(owner.m_hWnd), MAKELPARAM(HTERROR, WM_MOUSEMOVE)), 0)
        << "moving the pointer does nothing";
    EXPECT_EQ(::GetForegroundWindow(), other.m_hWnd);
    EXPECT_EQ(owner.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(owner.m_hWnd), press), TRUE);
    EXPECT_EQ(::GetForegroundWindow(), popup.m_hWnd);
    owner.EnableWindow(TRUE);
}

TEST(Activation, TheTopParentKnowsWhetherItIsActive)
{
    Hidden<> top;
    top.create(WS_OVERLAPPEDWINDOW);
    Hidden<> child;
    child.createChild(top, 4);
    Hidden<> other;
    other.create(WS_OVERLAPPEDWINDOW);
    present(top);
    EXPECT_TRUE(child.IsTopParentActive());
    present(other);
    EXPECT_FALSE(child.IsTopParentActive());
    child.ActivateTopParent();
    EXPECT_EQ(::GetForegroundWindow(), top.m_hWnd);
}
