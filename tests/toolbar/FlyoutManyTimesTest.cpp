// Opening and choosing many times: nothing is left behind.
#include "ToolBarScene.h"

#include <testkit/GdiCounter.h>
#include <testkit/WindowCounter.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// Presses a button, goes to an entry of its flyout and lets go.
void chooseOnce(BarScene& scene, int button, int entry)
{
    pressAtOnce(scene.bar(), button);
    BarScene::flyout()->show();
    const CPoint target = scene.entry(entry).find();
    CPoint inBar = target;
    scene.bar().ScreenToClient(&inBar);
    scene.bar().SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(inBar.x, inBar.y));
    BarScene::flyout()->SendMessage(WM_TIMER, 43); // its tip
    releaseAtOnce(scene.bar(), target);
}

/// Image lists are GDI objects inside: each has a bitmap of its images and one of its mask.
void expectNothingLeft(BarScene& scene, int button, size_t times)
{
    chooseOnce(scene, button, 0);
    chooseOnce(scene, button, 1);
    GuiThread::settle();
    const GdiCounter objects;
    const WindowCounter windows;
    const std::size_t issued = scene.commands().size();
    for (size_t i = 0; i < times; ++i)
        chooseOnce(scene, button, i % 2);
    GuiThread::settle();
    EXPECT_LE(objects.grown(), 0);
    EXPECT_EQ(windows.grown(), 0);
    EXPECT_EQ(scene.commands().size(), issued + times);
}

} // namespace

TEST(FlyoutManyTimes, AnImageListThatStaysWouldBeSeen)
{
    const GdiCounter objects;
    const HIMAGELIST list = ::ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 8, 8);
    EXPECT_GT(objects.grown(), 0);
    ::ImageList_Destroy(list);
    EXPECT_EQ(objects.grown(), 0);
}

TEST(FlyoutManyTimes, ACommandsFlyoutLeavesNothingBehind)
{
    BarScene scene;
    expectNothingLeft(scene, BarScene::Lines, 1000);
}

TEST(FlyoutManyTimes, AResourcesFlyoutLeavesNothingBehind)
{
    BarScene scene;
    expectNothingLeft(scene, BarScene::Shapes, 200);
}

TEST(FlyoutManyTimes, AFlyoutWithStripsOfItsOwnLeavesNothingBehind)
{
    BarScene scene;
    const HIMAGELIST list = reinterpret_cast<HIMAGELIST>(scene.bar().SendMessage(TB_SETIMAGELIST, 0, 0));
    scene.bar().AttachBar(BarScene::Lines, 16, {ID_LINE, ID_CURVE}, {IDR_SHAPES, IDR_SHAPES}, {4, 5}, {},
                          false, false);
    expectNothingLeft(scene, BarScene::Lines, 200);
    scene.bar().SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(list));
}
