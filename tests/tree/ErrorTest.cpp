// What nodes raise: the tree reports it where the user or the tree view caused the call, and passes on exceptions
// of unknown types. Each operation is tried with an error of the library, one of the standard library, and one of
// another type.
#include "TreeOperations.h"

#include <ovocor/OvoError.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

class TreeErrors : public ::testing::TestWithParam<Operation>
{
protected:
    TreeErrors() { prepareForOperations(scene); }

    void arm(std::function<void()> raise)
    {
        GetParam().arm(scene.node("a"), [this, raise] {
            if (armed)
                raise();
        });
    }

    /// What a user could do before can still be done.
    void expectSound()
    {
        armed = false;
        if (scene.tree.GetEditControl())
            scene.tree.SendMessage(TVM_ENDEDITLABELNOW, TRUE);
        scene.user.waitFor("the queue to be empty", [] { return true; });
        EXPECT_EQ(scene.tree.GetEditControl(), nullptr);
        scene.tree.SelectItem(scene.item("b"));
        EXPECT_EQ(scene.selected(), Names{"b"});
        scene.node("a").expanding = nullptr;
        scene.tree.Expand(scene.item("a"), TVE_COLLAPSE);
        scene.node("a").state = 0;
        scene.tree.SetItemState(scene.item("a"), 0, TVIS_EXPANDED | TVIS_EXPANDEDONCE);
        scene.tree.Expand(scene.item("a"), TVE_EXPAND);
        EXPECT_EQ(scene.all(), (Names{"a", "x", "y", "b"}));
        EXPECT_EQ(TestNode::live(), 4);
    }

    Scene scene{{"a", "b"}};
    bool armed = true;
};

} // namespace

TEST_P(TreeErrors, OfTheLibraryAreReported)
{
    arm([] { throw OvoError(L"ours"); });
    GetParam().act(scene);
    EXPECT_EQ(scene.tree.errors, (Journal{"ours"}));
    expectSound();
}

TEST_P(TreeErrors, OfTheStandardLibraryAreReported)
{
    arm([] { throw std::runtime_error("standard"); });
    GetParam().act(scene);
    EXPECT_EQ(scene.tree.errors, (Journal{"standard"}));
    expectSound();
}

TEST_P(TreeErrors, OfAnotherTypePassOn)
{
    arm([] { throw 42; });
    EXPECT_THROW(GetParam().act(scene), int);
    EXPECT_EQ(scene.tree.errors, Journal{});
    expectSound();
}

INSTANTIATE_TEST_SUITE_P(Operations, TreeErrors, ::testing::ValuesIn(treeOperations()),
                         [](const auto& info) { return info.param.name; });

// Where the host's own code caused the call, it gets the error itself.

TEST(TreeErrorsOfCalls, GoToTheHostThatCalls)
{
    Scene scene{{"a"}};
    scene.node("a").texting = []() -> std::wstring { throw OvoError(L"no text"); };
    EXPECT_THROW(scene.tree.updateUI(scene.item("a")), OvoError);
    EXPECT_EQ(scene.tree.errors, Journal{});
}

TEST(TreeErrorsOfCalls, WhileAMenuIsShownCountAsNo)
{
    Scene scene{{"a"}};
    scene.node("a").askingErase = []() -> bool { throw std::runtime_error("cannot say"); };
    scene.tree.SelectItem(scene.item("a"));
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 5146, L"Delete");
    scene.tree.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    EXPECT_TRUE(menu.GetMenuState(5146, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_EQ(scene.tree.errors, Journal{});
}
