#include <testkit/Desktop.h>
#include "ProbeWindow.h"
#include <testkit/ImportPatch.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

using namespace ovo::testkit;
using ::testing::SizeIs;

namespace
{

/// An edit control with the focus.
struct EditScene
{
    RecordingParent parent;
    CEdit edit;
    Robot robot;

    EditScene()
    {
        edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, CRect(20, 20, 320, 44), &parent, 3);
        present(parent);
        edit.SetFocus();
    }

    std::wstring text() const
    {
        CString text;
        edit.GetWindowText(text);
        return text.GetString();
    }
};

UINT WINAPI noInput(UINT, LPINPUT, int)
{
    return 0;
}

} // namespace

TEST(RobotKeys, TypesLettersOfBothCasesDigitsAndSigns)
{
    EditScene scene;

    scene.robot.type(L"Hello, World! 42%");

    EXPECT_EQ(scene.text(), L"Hello, World! 42%");
}

TEST(RobotKeys, TypesWhatNoKeyHas)
{
    EditScene scene;

    scene.robot.type(L"gr\u00FC\u00DFe \u03B1\u4E2D");

    EXPECT_EQ(scene.text(), L"gr\u00FC\u00DFe \u03B1\u4E2D");
}

TEST(RobotKeys, MovesTheCaretAndErases)
{
    EditScene scene;

    scene.robot.type(L"abcdef")
        .key(VK_LEFT, 3)
        .key(VK_BACK)
        .key(VK_HOME)
        .key(VK_DELETE)
        .key(VK_END)
        .type(L"!");

    EXPECT_EQ(scene.text(), L"bdef!");
}

TEST(RobotKeys, KeysArriveAsPressesAndReleases)
{
    ProbeWindow probe;
    Robot robot;

    robot.key(VK_F5, 2);

    EXPECT_EQ(probe.count(WM_KEYDOWN), 2);
    EXPECT_EQ(probe.count(WM_KEYUP), 2);
    EXPECT_EQ(probe.all(WM_KEYDOWN)[0].wParam, static_cast<WPARAM>(VK_F5));
}

TEST(RobotKeys, HeldKeysChangeWhatOthersMean)
{
    EditScene scene;

    scene.robot.type(L"one two").holding(VK_SHIFT).key(VK_LEFT, 3).letGo(VK_SHIFT).key(VK_DELETE);
    EXPECT_EQ(scene.text(), L"one ");

    scene.robot.holding(VK_SHIFT).key(VK_HOME);
    EXPECT_GE(::GetKeyState(VK_SHIFT), 0) << "held no longer than the story";
    scene.robot.type(L"x");
    EXPECT_EQ(scene.text(), L"x");
}

TEST(RobotKeys, FailTheStoryWhereTheSystemTakesNoInput)
{
    EditScene scene;
    {
        const ImportPatch locked{nullptr, "SendInput", reinterpret_cast<void*>(&noInput)};
        EXPECT_NONFATAL_FAILURE(scene.robot.type(L"a"), "the system does not take the input");
        EXPECT_NONFATAL_FAILURE(scene.robot.click(Spot{scene.edit}), "the system does not take the input");
    }
    scene.robot.type(L"b");

    EXPECT_EQ(scene.text(), L"b");
}
