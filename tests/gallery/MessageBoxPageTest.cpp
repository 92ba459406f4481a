// The page of message boxes, used as a person would.
#include "GalleryScene.h"

#include "resource.h"

#include <testkit/TemporaryProfile.h>

#include <ovoui/frame/MessageBoxIds.h>

#include <gtest/gtest.h>

#include <string>

using namespace ovo::testkit;

namespace
{

bool isGone()
{
    return shownDialog() == nullptr;
}

Spot controlOfBox(int id)
{
    return Spot{[id] { return ::GetDlgItem(shownDialog(), id); }};
}

class GalleryBoxes : public ::testing::Test
{
protected:
    /// Presses a button of the page, and goes on when its box is open.
    Story pressing(int button)
    {
        return robot.click(Spot{scene.control(button)}).waitFor("the box", [] { return !isGone(); });
    }

    std::wstring answer()
    {
        CString text;
        scene.page().GetDlgItemText(IDC_BOX_RESULT, text);
        return text.GetString();
    }

    TemporaryProfile profile;
    GalleryScene scene;
    Robot robot;
};

} // namespace

TEST_F(GalleryBoxes, AnAnswerThatIsKeptIsGivenUntilAnswersAreForgotten)
{
    pressing(IDC_BOX_OWN)
        .click(controlOfBox(ovoui::frame::kNotAgainId))
        .click(controlOfBox(IDYES))
        .waitFor("the box to go", &isGone);
    EXPECT_EQ(answer(), L"IDYES");

    scene.page().SetDlgItemText(IDC_BOX_RESULT, L"");
    robot.click(Spot{scene.control(IDC_BOX_OWN)});
    EXPECT_TRUE(isGone());
    EXPECT_EQ(answer(), L"IDYES") << "without a box";

    robot.click(Spot{scene.control(IDC_BOX_FORGET)});
    pressing(IDC_BOX_OWN).key(VK_ESCAPE).waitFor("the box to go", &isGone);
    EXPECT_EQ(answer(), L"IDCANCEL");
}
