// Nothing of the gallery is cut off or covered: its frame, its pages, what its pages can show. The program
// runs once for each resolution.
#include "Clipping.h"
#include "GalleryScene.h"
#include "Poses.h"

#include "Resolution.h"

#include <gtest/gtest.h>

#include <set>

using namespace ovo::testkit;

namespace
{

std::string utf8(const wchar_t* text)
{
    return ::testing::PrintToString(std::wstring(text));
}

/// Poses that are to be cut.
const std::set<std::wstring> kMeant{
    L"lists/shortened", // columns are too narrow, which cuts texts
    L"docking/cut",     // bars have too little room
    L"toolbars/edge",   // a bar is moved to the edge of the screen, and its flyout comes into view
};

class GalleryClipping : public ::testing::Test
{
protected:
    GalleryScene scene;
};

} // namespace

TEST_F(GalleryClipping, EveryPageIsSeenWhole)
{
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        EXPECT_EQ(linesOf(clippingProblems(scene.frame())), "") << utf8(entry.name);
    }
}

TEST_F(GalleryClipping, WhatThePagesCanShowIsSeenWhole)
{
    const PosesSeen seen = lookAtPoses(scene, &clippingProblems,
                                       [](const std::wstring& name) { return !kMeant.contains(name); });
    EXPECT_EQ(linesOf(seen.problems), "");
    EXPECT_GT(seen.dialogs, 20u);
}

TEST_F(GalleryClipping, TheSentenceAboveEachPageIsSeenWhole)
{
    constexpr int kMargin = 10; // pixels at 96 dots per inch
    const HWND list = scene.frame().pageList();
    CClientDC dc(&scene.frame());
    dc.SelectObject(scene.frame().pageList().GetFont());
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        const int room = scene.pageSize().cx - 2 * scaled(list, kMargin);
        EXPECT_LE(dc.GetTextExtent(entry.summary).cx, room) << utf8(entry.name);
    }
}

/// What the tests above rely on.
TEST(Clipping, IsFound)
{
    CFrameWnd parent;
    ASSERT_TRUE(parent.Create(nullptr, L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 800, 400)));
    const auto at = [&](int left, int top, int right, int bottom) {
        return CRect(scaled(parent, left), scaled(parent, top), scaled(parent, right),
                     scaled(parent, bottom));
    };
    const auto problems = [&] { return linesOf(clippingProblems(parent)); };
    {
        CStatic label;
        label.Create(L"Some words that need more than one line", WS_CHILD | WS_VISIBLE, at(0, 0, 100, 16),
                     &parent);
        EXPECT_NE(problems().find("the text needs"), std::string::npos) << problems();
        label.SetWindowText(L"Few");
        EXPECT_EQ(problems(), "");
        label.MoveWindow(at(780, 0, 840, 16));
        EXPECT_NE(problems().find("beyond its parent"), std::string::npos) << problems();
        label.MoveWindow(at(0, 0, 60, 16));

        CButton button;
        button.Create(L"Several words", WS_CHILD | WS_VISIBLE, at(0, 20, 40, 50), &parent, 2);
        EXPECT_NE(problems().find("Several words"), std::string::npos) << problems();
        button.SetWindowText(L"1");
        EXPECT_EQ(problems(), "");
        button.MoveWindow(at(0, 10, 40, 40));
        EXPECT_NE(problems().find("overlap"), std::string::npos) << problems();
        button.MoveWindow(at(0, 20, 40, 26));
        EXPECT_NE(problems().find("a line needs"), std::string::npos) << problems();
    }
    EXPECT_EQ(problems(), "");
    CComboBox box;
    box.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, at(0, 0, 60, 100), &parent, 3);
    box.AddString(L"an entry that is too long");
    EXPECT_NE(problems().find("the entry"), std::string::npos) << problems();
    box.DestroyWindow();
    CListBox list;
    list.Create(WS_CHILD | WS_VISIBLE | WS_HSCROLL, at(0, 0, 60, 100), &parent, 5);
    list.AddString(L"a line that is too long");
    EXPECT_NE(problems().find("the line"), std::string::npos) << problems();
    list.SetHorizontalExtent(scaled(parent, 300));
    EXPECT_EQ(problems(), "") << "it is reached with the scroll bar";
    list.DestroyWindow();
    CTabCtrl tabs;
    tabs.Create(WS_CHILD | WS_VISIBLE, at(0, 0, 60, 60), &parent, 4);
    tabs.InsertItem(0, L"a tab that is too long");
    EXPECT_NE(problems().find("the tab"), std::string::npos) << problems();
    tabs.DestroyWindow();
    parent.DestroyWindow();
}
