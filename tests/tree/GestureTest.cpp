// Gestures in which subscribers and nodes raise exceptions: whoever has heard of the beginning hears of the
// end.
#include "TreeScene.h"

#include <support/NextDialog.h>

#include <ovocor/OvoError.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

using namespace ovo::testkit;

namespace
{

constexpr int kPaint = 4001;

struct Gesture
{
    const char* name;
    int code;
    const char* deed; ///< of a node
    void (*provoke)(MultiTreeCtrl& tree);
};

void PrintTo(const Gesture& gesture, std::ostream* out)
{
    *out << gesture.name;
}

void eraseSelected(MultiTreeCtrl& tree)
{
    const NextDialogAnswered yes(IDYES);
    tree.SendMessage(WM_COMMAND, MultiTreeCtrl::kGestureDelete);
}

const std::vector<Gesture> kGestures{
    {"Command", kPaint, "doCommand 4001 a",
     [](MultiTreeCtrl& tree) { tree.SendMessage(WM_COMMAND, kPaint); }},
    {"Delete", MultiTreeCtrl::kGestureDelete, "erase a", &eraseSelected},
    {"Enter", MultiTreeCtrl::kGestureDefaultAction, "activate a",
     [](MultiTreeCtrl& tree) { tree.SendMessage(WM_KEYDOWN, VK_RETURN, 1); }},
    {"DefaultAction", MultiTreeCtrl::kGestureDefaultAction, "activate a",
     [](MultiTreeCtrl& tree) { tree.defaultAction(); }},
};

/// Three subscribers, of which the second one raises a number.
class TreeGestures : public ::testing::TestWithParam<Gesture>
{
protected:
    TreeGestures()
    {
        scene.node("a").erasable = true;
        scene.node("a").offer(kPaint);
        scene.tree.SelectItem(scene.item("a"));
        scene.forget();
    }

    /// The number that comes out of the gesture; 0 for none.
    int raisedByGesture()
    {
        try {
            GetParam().provoke(scene.tree);
        } catch (int number) {
            return number;
        }
        return 0;
    }

    void raiseInNode()
    {
        TestNode& node = scene.node("a");
        node.commanding = [](MultiTreeCtrl&, unsigned) { throw kOfNode; };
        node.erasing = [](MultiTreeCtrl&) -> bool { throw kOfNode; };
        node.activating = [](MultiTreeCtrl&) { throw kOfNode; };
    }

    bool isDone() const
    {
        return std::find(scene.journal.begin(), scene.journal.end(), GetParam().deed) != scene.journal.end();
    }

    /// Both others have heard of the beginning first and of the end last.
    void expectWhole()
    {
        const std::string code = std::to_string(GetParam().code);
        const Journal begin{"gesture " + code, "last " + code};
        const Journal end{"gesture 0", "last 0"};
        ASSERT_GE(scene.journal.size(), 4u);
        EXPECT_TRUE(std::equal(begin.begin(), begin.end(), scene.journal.begin()));
        EXPECT_TRUE(std::equal(end.rbegin(), end.rend(), scene.journal.rbegin()));
        EXPECT_EQ(std::count(scene.journal.begin(), scene.journal.end(), "last 0"), 1);
        EXPECT_EQ(heardByRaising, (std::vector<int>{GetParam().code, 0}));
    }

    static constexpr int kAtBeginning = 1;
    static constexpr int kAtEnd = 2;
    static constexpr int kOfNode = 3;

    Scene scene{{"a", "b"}}; // which has the first subscriber
    bool raisesAtBeginning = false;
    bool raisesAtEnd = false;
    std::vector<int> heardByRaising;

private:
    const EVSubscription m_raising = scene.tree.gestureEV().subscribe([this](const int& code) {
        heardByRaising.push_back(code);
        if (code != 0 && raisesAtBeginning)
            throw kAtBeginning;
        if (code == 0 && raisesAtEnd)
            throw kAtEnd;
    });
    const EVSubscription m_last = scene.tree.gestureEV().subscribe(
        [this](const int& code) { scene.journal.push_back("last " + std::to_string(code)); });
};

} // namespace

TEST_P(TreeGestures, EndWithoutADeedWhenASubscriberRaisesAtTheBeginning)
{
    raisesAtBeginning = true;
    EXPECT_EQ(raisedByGesture(), kAtBeginning);
    expectWhole();
    EXPECT_FALSE(isDone());
    EXPECT_EQ(scene.all(), (Names{"a", "b"}));
    EXPECT_EQ(scene.changes(), std::vector<Change>{});
}

TEST_P(TreeGestures, AreWholeWhenASubscriberRaisesAtTheEnd)
{
    raisesAtEnd = true;
    EXPECT_EQ(raisedByGesture(), kAtEnd);
    expectWhole();
    EXPECT_TRUE(isDone());
}

TEST_P(TreeGestures, EndWhenANodeRaisesAndEndWithWhatIsRaisedFirst)
{
    raiseInNode();
    raisesAtEnd = true;
    EXPECT_EQ(raisedByGesture(), kOfNode);
    expectWhole();
}

TEST_P(TreeGestures, RaiseTheFirstOfTwoExceptionsOfSubscribers)
{
    raisesAtBeginning = raisesAtEnd = true;
    EXPECT_EQ(raisedByGesture(), kAtBeginning);
    expectWhole();
    raisesAtBeginning = raisesAtEnd = false;
    heardByRaising.clear();
    scene.forget();
    EXPECT_EQ(raisedByGesture(), 0) << "as good as before";
    expectWhole();
    EXPECT_TRUE(isDone());
}

INSTANTIATE_TEST_SUITE_P(All, TreeGestures, ::testing::ValuesIn(kGestures),
                         [](const auto& info) { return std::string(info.param.name); });

// What follows the gesture

TEST(TreeErasing, TheParentHearsOfTheSelectionThoughASubscriberRaisesAtTheEnd)
{
    Scene scene{{"a", "b"}};
    scene.node("a").erasable = true;
    scene.tree.SelectItem(scene.item("a"));
    scene.forget();
    const EVSubscription raising = scene.tree.gestureEV().subscribe([](const int& code) {
        if (code == 0)
            throw 2;
    });
    EXPECT_THROW(eraseSelected(scene.tree), int);
    EXPECT_EQ(scene.all(), Names{"b"});
    EXPECT_EQ(scene.changes().size(), 1u);
}

TEST(TreeErasing, TheParentHearsOfTheSelectionThoughANodeRaises)
{
    for (const bool byCommand : {true, false}) {
        Scene scene{{"a", "b", "c"}};
        scene.node("a").erasable = scene.node("b").erasable = true;
        scene.node("b").erasing = [](MultiTreeCtrl&) -> bool { throw OvoError(L"in use"); };
        scene.tree.SelectItem(scene.item("a"));
        scene.tree.SetItemState(scene.item("b"), TVIS_SELECTED, TVIS_SELECTED);
        scene.forget();
        if (byCommand) {
            eraseSelected(scene.tree);
            EXPECT_EQ(scene.tree.errors, (Journal{"in use"}));
        } else {
            const NextDialogAnswered yes(IDYES);
            EXPECT_THROW(scene.tree.eraseSelectedNodes(), OvoError);
        }
        EXPECT_EQ(scene.all(), (Names{"b", "c"}));
        EXPECT_EQ(scene.changes().size(), 1u);
    }
}
