// Single buttons: hit test, reading, replacing, and what is painted anew.
#include "ToolBarScene.h"
#include "support/PlatformSetting.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

CRect itemRect(const TestBar& bar, int index)
{
    CRect rect;
    bar.GetItemRect(index, &rect);
    return rect;
}

/// What a change makes invalid.
CRect invalidAfter(TestBar& bar, const std::function<void()>& change)
{
    GuiThread::settle();
    bar.UpdateWindow();
    bar.ValidateRect(nullptr);
    change();
    CRect invalid(0, 0, 0, 0);
    bar.GetUpdateRect(&invalid);
    return invalid;
}

CRect clientOf(const TestBar& bar)
{
    CRect client;
    bar.GetClientRect(&client);
    return client;
}

} // namespace

TEST(BarButtonHit, FindsTheButtonItsPlaceOnTheScreenAndItsFlyout)
{
    BarScene scene;
    for (int i = 0; i < 5; ++i) {
        const CRect item = itemRect(scene.bar(), i);
        CRect onScreen = item;
        scene.bar().ClientToScreen(&onScreen);
        for (const CPoint point :
             {item.TopLeft(), item.CenterPoint(), CPoint(item.right - 1, item.bottom - 1)}) {
            int index = -9;
            CRect rect;
            bool hasFlyout = false;
            ASSERT_TRUE(scene.bar().ButtonHitTest(point, index, rect, hasFlyout));
            EXPECT_EQ(index, i);
            EXPECT_EQ(rect, onScreen);
            EXPECT_EQ(hasFlyout, i == BarScene::Lines || i == BarScene::Shapes);
        }
    }
}

TEST(BarButtonHit, NoButtonLeavesTheResultsAlone)
{
    BarScene scene;
    int index = -9;
    CRect rect(1, 2, 3, 4);
    bool hasFlyout = true;
    for (const CPoint point : {CPoint(-1, 5), CPoint(5, -1), CPoint(2000, 5), CPoint(5, 2000)})
        EXPECT_FALSE(scene.bar().ButtonHitTest(point, index, rect, hasFlyout));
    EXPECT_EQ(index, -9);
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    EXPECT_TRUE(hasFlyout);
}

TEST(BarButtonHit, AHiddenButtonIsNotThere)
{
    BarScene scene;
    const CPoint first = itemRect(scene.bar(), 0).CenterPoint();
    scene.bar().SetButtonStyle(0, TBBS_BUTTON | TBBS_HIDDEN);
    int index = -9;
    CRect rect;
    bool hasFlyout = false;
    ASSERT_TRUE(scene.bar().ButtonHitTest(first, index, rect, hasFlyout));
    EXPECT_EQ(index, 1);
}

TEST(BarButton, AnEqualOneChangesNothing)
{
    BarScene scene;
    TBBUTTON button;
    scene.bar()._getButton(0, &button);
    EXPECT_EQ(button.idCommand, ID_PLAIN);
    int deletions = 0;
    scene.frame().onNotify = [&](NMHDR* header) {
        deletions += header->code == TBN_DELETINGBUTTON;
        return 0;
    };
    EXPECT_TRUE(invalidAfter(scene.bar(), [&] { scene.bar()._setButton(0, &button); }).IsRectEmpty());
    button.fsState ^= TBSTATE_ENABLED;
    button.bReserved[0] = 1;
    button.bReserved[1] = 2;
    EXPECT_TRUE(invalidAfter(scene.bar(), [&] { scene.bar()._setButton(0, &button); }).IsRectEmpty());
    EXPECT_EQ(deletions, 0);
    EXPECT_FALSE(scene.bar().GetButtonStyle(0) & TBBS_DISABLED);
}

TEST(BarButton, AnotherLookPaintsItsRectangleOnly)
{
    PlatformSetting setting;
    setting->invalidatesWholeBar = true; // also where it does not
    BarScene scene;
    TBBUTTON button;
    scene.bar()._getButton(1, &button);
    button.idCommand = ID_ARC;
    button.iBitmap = 6;
    button.fsState |= TBSTATE_CHECKED;
    const CRect invalid = invalidAfter(scene.bar(), [&] { scene.bar()._setButton(1, &button); });
    EXPECT_EQ(invalid, itemRect(scene.bar(), 1));
    TBBUTTON after;
    scene.bar()._getButton(1, &after);
    EXPECT_EQ(after.idCommand, ID_ARC);
    EXPECT_EQ(after.iBitmap, 6);
    EXPECT_EQ(after.fsState, button.fsState);
    EXPECT_EQ(scene.bar().SendMessage(TB_BUTTONCOUNT), 5);
    EXPECT_TRUE(scene.bar().HasFlyout(1)) << "the flyout stays";
}

TEST(BarButton, WhereThePlatformLeavesTheRestAloneNothingIsTakenBack)
{
    PlatformSetting setting;
    const bool whole = setting->invalidatesWholeBar;
    setting->invalidatesWholeBar = false;
    BarScene scene;
    TBBUTTON button;
    scene.bar()._getButton(1, &button);
    button.idCommand = ID_ARC;
    const CRect invalid = invalidAfter(scene.bar(), [&] { scene.bar()._setButton(1, &button); });
    EXPECT_EQ(invalid, whole ? clientOf(scene.bar()) : itemRect(scene.bar(), 1));
    TBBUTTON after;
    scene.bar()._getButton(1, &after);
    EXPECT_EQ(after.idCommand, ID_ARC);
}

TEST(BarButton, WhatWasInvalidBeforeStaysSo)
{
    BarScene scene;
    TBBUTTON button;
    scene.bar()._getButton(1, &button);
    button.iBitmap = 6;
    const CRect other = itemRect(scene.bar(), 4);
    const CRect invalid = invalidAfter(scene.bar(), [&] {
        scene.bar().InvalidateRect(&other);
        scene.bar()._setButton(1, &button);
    });
    CRect both;
    both.UnionRect(other, itemRect(scene.bar(), 1));
    EXPECT_EQ(invalid, both);
}

TEST(BarButton, AControlThatWaitsToBePaintedStillDoes)
{
    BarScene scene;
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, itemRect(scene.bar(), BarScene::Other), &scene.bar(), 77);
    TBBUTTON button;
    scene.bar()._getButton(BarScene::Lines, &button);
    for (const bool waits : {true, false}) {
        GuiThread::settle();
        scene.bar().RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        if (waits)
            edit.Invalidate();
        button.iBitmap = button.iBitmap == 6 ? 5 : 6;
        scene.bar()._setButton(BarScene::Lines, &button);
        EXPECT_EQ(edit.GetUpdateRect(nullptr) != FALSE, waits);
    }
}

TEST(BarButton, OfAHiddenBarIsReplacedWithoutAMessageThatCouldShowIt)
{
    BarScene scene;
    int told = 0;
    scene.bar().seeing = [&](UINT message, WPARAM) { told += message == WM_SETREDRAW; };
    const auto showImage = [&](int image) {
        TBBUTTON button;
        scene.bar()._getButton(BarScene::Lines, &button);
        button.iBitmap = image;
        scene.bar()._setButton(BarScene::Lines, &button);
        EXPECT_EQ(scene.image(BarScene::Lines), image);
    };
    scene.bar().ShowWindow(SW_HIDE);
    showImage(6);
    EXPECT_EQ(told, 0);
    EXPECT_FALSE(scene.bar().GetStyle() & WS_VISIBLE);
    scene.bar().ShowWindow(SW_SHOWNA);
    showImage(5);
    EXPECT_EQ(told, 2) << "off, and on again";
    scene.bar().seeing = nullptr;
}

TEST(BarButton, AnotherWidthPaintsTheWholeBar)
{
    BarScene scene;
    TBBUTTON button;
    scene.bar()._getButton(BarScene::Gap, &button);
    button.iBitmap = 40;
    EXPECT_EQ(invalidAfter(scene.bar(), [&] { scene.bar()._setButton(BarScene::Gap, &button); }),
              clientOf(scene.bar()));
    EXPECT_EQ(itemRect(scene.bar(), BarScene::Gap).Width(), 40);

    scene.bar()._getButton(0, &button);
    button.fsStyle = TBSTYLE_AUTOSIZE;
    EXPECT_EQ(invalidAfter(scene.bar(), [&] { scene.bar()._setButton(0, &button); }), clientOf(scene.bar()));
}

TEST(BarButton, ItsTextSurvivesTheReplacement)
{
    BarScene scene;
    scene.bar().SetButtonText(0, L"Words of its own");
    TBBUTTON button;
    scene.bar()._getButton(0, &button);
    button.iBitmap = 3;
    scene.bar()._setButton(0, &button);
    EXPECT_EQ(scene.bar().GetButtonText(0), CString(L"Words of its own"));
    EXPECT_EQ(scene.image(0), 3);
}

TEST(BarButton, TheSameWordsElsewhereAreNoChangeOtherWordsAre)
{
    BarScene scene;
    scene.bar().SetButtonText(0, L"Words");
    TBBUTTON button;
    scene.bar()._getButton(0, &button);
    const std::wstring same = L"Words";
    button.iString = reinterpret_cast<INT_PTR>(same.c_str());
    EXPECT_TRUE(invalidAfter(scene.bar(), [&] { scene.bar()._setButton(0, &button); }).IsRectEmpty());
    const std::wstring other = L"Others";
    button.iString = reinterpret_cast<INT_PTR>(other.c_str());
    EXPECT_EQ(invalidAfter(scene.bar(), [&] { scene.bar()._setButton(0, &button); }), clientOf(scene.bar()));
    EXPECT_STREQ(scene.bar().GetButtonText(0), L"Others");
}

TEST(BarButton, BeyondTheLastNothingHappens)
{
    BarScene scene;
    TBBUTTON button;
    scene.bar()._getButton(99, &button);
    EXPECT_EQ(button.idCommand, 0);
    button.idCommand = 5;
    scene.bar()._setButton(99, &button);
    scene.bar()._setButton(-1, &button);
    EXPECT_EQ(scene.bar().SendMessage(TB_BUTTONCOUNT), 5);
}
