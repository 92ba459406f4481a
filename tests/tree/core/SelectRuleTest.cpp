#include <ovoui/tree/core/SelectRule.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ovoui::tree;

namespace
{

/// All answers that the tree view can give, by what the caret was, what was wanted and what it is now; -1 is
/// none.
std::vector<CaretAsked> allAnswers()
{
    std::vector<CaretAsked> all;
    for (int before = -1; before < 3; ++before)
        for (int wanted = -1; wanted < 3; ++wanted)
            for (int now = -1; now < 3; ++now)
                for (unsigned selected = 0; selected < 4; ++selected)
                    all.push_back({wanted >= 0, wanted >= 0 && now == wanted, now == before, selected});
    return all;
}

} // namespace

TEST(SelectRule, TheParentIsToldHereExactlyWhenTheCaretStaysAndOthersWereDeselected)
{
    for (const CaretAsked& asked : allAnswers()) {
        const AfterAsking after = afterAsking(asked);
        const bool tells = after == AfterAsking::SelectAndTell || after == AfterAsking::Tell;
        EXPECT_EQ(tells, asked.stayed && asked.selectedBefore > (asked.wanted ? 1u : 0u));
        EXPECT_TRUE(!tells || (after == AfterAsking::SelectAndTell) == asked.wanted);
    }
}

TEST(SelectRule, AnItemThatIsTheCaretNowIsSelectedAndOneThatWasRefusedIsNot)
{
    for (const CaretAsked& asked : allAnswers()) {
        const AfterAsking after = afterAsking(asked);
        if (after == AfterAsking::SelectAndTell || after == AfterAsking::Tell)
            continue;
        AfterAsking expected = AfterAsking::Nothing; // also when the parent has chosen another caret
        if (asked.wanted && asked.stayed)
            expected = AfterAsking::Deselect;
        if (asked.wanted && asked.reached)
            expected = AfterAsking::Select;
        EXPECT_EQ(after, expected);
    }
}

TEST(SelectRule, NotAgainstAParentThatHasChosenAnotherCaret)
{
    for (const bool reached : {false, true})
        for (const bool stayed : {false, true})
            EXPECT_EQ(selectsForCertain(reached, stayed), reached || stayed);
}

TEST(SelectRule, KeysGoToTheEditorFirstAndElseToTheAccelerators)
{
    for (const bool keyboard : {false, true})
        for (const bool editing : {false, true})
            for (const bool accelerators : {false, true}) {
                TreeKeyRoute expected = TreeKeyRoute::PassOn;
                if (keyboard && accelerators)
                    expected = TreeKeyRoute::Accelerators;
                if (keyboard && editing)
                    expected = TreeKeyRoute::ToEditor;
                EXPECT_EQ(treeKeyRoute(keyboard, editing, accelerators), expected);
            }
}

TEST(SelectRule, TheTreeViewMovesTheCaretAloneWhereNothingElseIsSelected)
{
    for (std::size_t selected = 0; selected < 4; ++selected)
        for (const bool caretAlone : {false, true})
            for (const bool range : {false, true}) {
                if (caretAlone && selected != 1)
                    continue; // then it is not alone
                const bool nothingElse = selected == 0 || caretAlone;
                EXPECT_EQ(treeViewSelects(selected, caretAlone, range), nothingElse && !range)
                    << selected << caretAlone << range;
            }
}
