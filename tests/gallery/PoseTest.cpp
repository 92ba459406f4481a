// Poses in which the mouse is pressed: wherever the pointer was before, it goes on from where the pose has
// led it.
#include "GalleryScene.h"
#include "support/WindowFacts.h"

#include "Resolution.h"
#include "resource.h"
#include <ovouires/resource.h>
#include <testkit/AccessibleView.h>
#include <testkit/GuiThread.h>

#include <gtest/gtest.h>

#include <string>

using namespace ovo::testkit;
using support::textOf;

namespace
{

using From = GalleryScene::From;

class GalleryPose : public ::testing::TestWithParam<From>
{
protected:
    /// Opens a page with the pointer in the middle of the gallery, where dialogs come up.
    void open(const wchar_t* page)
    {
        scene.open(page);
        CRect place;
        scene.frame().GetWindowRect(&place);
        ::SetCursorPos(place.CenterPoint().x, place.CenterPoint().y);
        GuiThread::settleOnScreen(); // or the display tells of this place after the pose has left it
    }

    GalleryScene scene{GetParam()};
    Robot robot;
};

} // namespace

TEST_P(GalleryPose, TheHueIsDraggedOnFromWhereItIsShown)
{
    open(L"colourpicker");
    int hue = -1;
    auto dragging =
        robot.waitFor("the picker", [] { return shownDialog() != nullptr; })
            .moveBy(1, 0)
            .then([&] { hue = std::stoi(textOf(::GetDlgItem(shownDialog(), IDC_COLOUR_VALUE_1))); })
            .key(VK_ESCAPE) // the drag
            .key(VK_ESCAPE)
            .waitFor("the picker to go", [] { return shownDialog() == nullptr; })
            .start();
    EXPECT_TRUE(scene.page().pose(L"mid-drag"));
    dragging.finish();
    EXPECT_NEAR(hue, 200, 3);
}

TEST_P(GalleryPose, TheSliderIsDraggedOnFromWhereItsButtonIsPressed)
{
    open(L"sliders");
    const auto number = [this] { return AccessibleView(scene.control(IDC_SLIDERS_BUTTON)).value(); };
    ASSERT_EQ(number(), L"8");
    EXPECT_TRUE(scene.page().pose(L"pressed"));
    robot.moveBy(1, 0);
    EXPECT_EQ(number(), L"8");
    robot.moveBy(scaled(scene.frame(), 20), 0);
    EXPECT_GT(std::stoi(number()), 8) << "the drag goes on";
}

INSTANTIATE_TEST_SUITE_P(Layouts, GalleryPose, ::testing::Values(From::Left, From::Right),
                         [](const auto& layout) {
                             return layout.param == From::Left ? "FromLeft" : "FromRight";
                         });
