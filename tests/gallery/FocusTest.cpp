// Where the keyboard is can be seen: on every page, in every bar, in every dialog that the pages open. It
// still is when a part of the window has been covered and seen again.
#include "AccessibleText.h"
#include "FocusLook.h"
#include "GalleryScene.h"
#include "PartPainting.h"
#include "Poses.h"

#include <testkit/GuiThread.h>

#include <ovoui/toolbar/VantorToolBar.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr int kMostStops = 80; // of the frame with its largest page

CRect clientOf(HWND window)
{
    CRect client;
    ::GetClientRect(window, &client);
    return client;
}

std::string described(const PageEntry& entry, HWND focus)
{
    return ::testing::PrintToString(std::wstring(entry.name)) + ": " +
           ::testing::PrintToString(readAloudAlone(focus)) + " (" + std::to_string(::GetDlgCtrlID(focus)) +
           ")";
}

class GalleryFocus : public ::testing::Test
{
protected:
    GalleryScene scene;
    Robot user;
};

} // namespace

TEST_F(GalleryFocus, IsSeenWhereverTabLeads)
{
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        const HWND start = scene.frame().pageList();
        ::SetFocus(start);
        int stops = 0;
        do {
            user.key(VK_TAB);
            const HWND focus = ::GetFocus();
            EXPECT_EQ(linesOf(changedByPartialPainting(focus)), "") << described(entry, focus);
            EXPECT_TRUE(isFocusSeen(focus, clientOf(focus))) << described(entry, focus);
            ::SetFocus(focus);
        } while (::GetFocus() != start && ++stops < kMostStops);
        EXPECT_GT(stops, 0);
    }
}

TEST_F(GalleryFocus, IsSeenInBars)
{
    for (const wchar_t* const page : {L"toolbars", L"docking"}) {
        scene.open(page);
        scene.frame().ShowControlBar(&scene.frame().palette(), TRUE, FALSE);
        GuiThread::settle();
        for (CControlBar* const bar : scene.frame().bars()) {
            auto* const buttons = dynamic_cast<CVantorToolBar*>(bar);
            if (!buttons)
                continue; // its controls are looked at as those of pages
            CRect first;
            buttons->GetItemRect(0, &first);
            ASSERT_TRUE(buttons->FocusButtons());
            EXPECT_EQ(linesOf(changedByPartialPainting(*bar)), "")
                << ::testing::PrintToString(std::wstring(page));
            EXPECT_TRUE(isFocusSeen(*bar, first)) << ::testing::PrintToString(std::wstring(page));
        }
    }
}

TEST_F(GalleryFocus, IsSeenInDialogs)
{
    const PosesSeen seen = lookAtPoses(scene, [&](HWND window) {
        return window == scene.frame().m_hWnd ? Problems() : unseenFocusIn(window);
    });
    EXPECT_EQ(linesOf(seen.problems), "");
    EXPECT_GT(seen.dialogs, 20u);
}

/// What the tests above rely on.
TEST(PartPainting, FindsWhatInvertsItsGroundOnceMore)
{
    class Inverting : public CWnd
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_PAINT)
                return CWnd::WindowProc(message, wParam, lParam);
            Default();
            CClientDC dc(this);
            dc.DrawFocusRect(CRect(2, 2, 60, 30));
            return 0;
        }
    };
    CFrameWnd parent;
    ASSERT_TRUE(parent.Create(nullptr, L"", WS_POPUP | WS_VISIBLE, CRect(100, 100, 400, 200)));
    Inverting child;
    const LPCTSTR ground = AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_BTNFACE));
    child.Create(ground, L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 90, 50), &parent, 7);
    present(parent);
    EXPECT_EQ(changedByPartialPainting(child).size(), 3u);
    EXPECT_TRUE(changedByPartialPainting(parent).empty());
    child.DestroyWindow();
    parent.DestroyWindow();
}

TEST(FocusLook, FindsAControlThatDoesNotShowTheFocus)
{
    class Hidden : public CButton
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_PAINT)
                return CButton::WindowProc(message, wParam, lParam);
            CPaintDC dc(this);
            return 0;
        }
    };
    CFrameWnd parent;
    ASSERT_TRUE(parent.Create(nullptr, L"", WS_POPUP | WS_VISIBLE, CRect(100, 100, 400, 200)));
    CButton seen;
    Hidden hidden;
    seen.Create(L"Seen", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 10, 90, 40), &parent, 1);
    hidden.Create(L"Hidden", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(100, 10, 190, 40), &parent, 2);
    present(parent);
    const Problems problems = unseenFocusIn(parent);
    ASSERT_EQ(problems.size(), 1u) << linesOf(problems);
    EXPECT_NE(problems.front().find(L"(2)"), std::wstring::npos);
    seen.DestroyWindow();
    hidden.DestroyWindow();
    parent.DestroyWindow();
}
