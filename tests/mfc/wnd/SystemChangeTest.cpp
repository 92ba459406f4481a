// Changes of the system's colours and settings, which the system tells to top-level windows alone.
#include "Windows.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>

using namespace wndtest;

namespace
{

using Heard = std::vector<std::pair<UINT, LPARAM>>;

bool isChange(UINT message)
{
    return message == WM_SYSCOLORCHANGE || message == WM_SETTINGCHANGE;
}

class Hearing : public Hidden<>
{
public:
    Heard heard;
    std::function<void()> then; ///< called with each

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (isChange(message))
            heard.emplace_back(message, lParam);
        if (const auto act = isChange(message) ? then : nullptr) {
            act();
            return 0;
        }
        return Hidden<>::WindowProc(message, wParam, lParam);
    }
};

WNDPROC g_platformProcedure = nullptr;
int g_plainHeard = 0;

LRESULT CALLBACK hearPlain(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    g_plainHeard += message == WM_SYSCOLORCHANGE;
    return ::CallWindowProcW(g_platformProcedure, wnd, message, wParam, lParam);
}

class SystemChange : public ::testing::Test
{
protected:
    SystemChange()
    {
        top.create(WS_OVERLAPPEDWINDOW);
        child.createChild(top, 5);
        grandchild.createChild(child, 6);
        popup.create(WS_POPUP, &top);
    }

    Hearing top;
    Hearing child;
    Hearing grandchild;
    Hearing popup;
};

} // namespace

TEST_F(SystemChange, IsToldToEverythingInTheWindow)
{
    const auto text = reinterpret_cast<LPARAM>(L"intl");
    top.SendMessage(WM_SYSCOLORCHANGE);
    top.SendMessage(WM_SETTINGCHANGE, 0, text);
    const Heard both{{WM_SYSCOLORCHANGE, 0}, {WM_SETTINGCHANGE, text}};
    EXPECT_EQ(top.heard, both);
    EXPECT_EQ(child.heard, both);
    EXPECT_EQ(grandchild.heard, both) << "once";
    EXPECT_EQ(popup.heard, Heard{}) << "the system tells it";
}

TEST_F(SystemChange, IsToldToControlsThatNoObjectIsAttachedTo)
{
    const HWND control = plainControl(child, L"ToolbarWindow32", 7);
    ASSERT_NE(control, nullptr);
    g_platformProcedure = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&hearPlain)));
    g_plainHeard = 0;
    top.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(g_plainHeard, 1);
}

TEST_F(SystemChange, OfOneChildIsItsOwn)
{
    child.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(child.heard.size(), 1u);
    EXPECT_TRUE(grandchild.heard.empty());
    EXPECT_TRUE(top.heard.empty());
}

TEST_F(SystemChange, AWindowThatHandlesItAltogetherKeepsItToItself)
{
    top.then = [] {};
    top.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_TRUE(child.heard.empty());
}

TEST_F(SystemChange, WhoHearsOfItMayDestroyAnyWindow)
{
    Hearing second;
    second.createChild(top, 8);
    child.then = [&] { second.DestroyWindow(); };
    top.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(child.heard.size(), 1u);
    EXPECT_TRUE(second.heard.empty());

    child.then = [&] { top.DestroyWindow(); };
    const HWND window = top;
    ::SendMessageW(window, WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(SystemChange, TheObjectOfTheWindowMayBeDeletedMeanwhile)
{
    auto doomed = std::make_unique<Hearing>();
    doomed->create(WS_OVERLAPPEDWINDOW);
    Hearing inside;
    inside.createChild(*doomed, 9);
    inside.then = [&] { doomed.reset(); };
    ::SendMessageW(*doomed, WM_SETTINGCHANGE, 0, 0);
    EXPECT_EQ(doomed, nullptr);
    EXPECT_EQ(inside.m_hWnd, nullptr);
}

TEST_F(SystemChange, WhatIsRaisedThereReachesTheSender)
{
    child.then = [] { throw std::runtime_error("the colours"); };
    EXPECT_THROW(top.SendMessage(WM_SYSCOLORCHANGE), std::runtime_error);
}
