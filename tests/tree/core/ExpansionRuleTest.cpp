#include <ovoui/tree/core/ExpansionRule.h>

#include <gtest/gtest.h>

using namespace ovoui::tree;

namespace
{

constexpr unsigned kToggle = 0x3; // which notifications do not carry

constexpr unsigned kActions[] = {
    0, kCollapse, kExpand, kToggle, kExpandPartial, kExpandPartial | kExpand, 0x8000, kCollapseReset};

} // namespace

TEST(ExpansionRule, TheNodeIsAskedExactlyWhenAClosedItemIsToOpen)
{
    for (const unsigned action : kActions)
        for (const bool isOpen : {false, true}) {
            const bool closes = action == kCollapse || action == kCollapseReset;
            EXPECT_EQ(expansionRule(Moment::Before, action, isOpen) == ExpansionStep::Open,
                      !closes && !isOpen)
                << action;
        }
}

TEST(ExpansionRule, ClosingAndOpeningWhatIsOpenPass)
{
    for (const bool isOpen : {false, true}) {
        EXPECT_EQ(expansionRule(Moment::Before, kCollapse, isOpen), ExpansionStep::PassOn);
        EXPECT_EQ(expansionRule(Moment::Before, kCollapseReset, isOpen), ExpansionStep::PassOn);
    }
    EXPECT_EQ(expansionRule(Moment::Before, kExpand, true), ExpansionStep::PassOn);
    EXPECT_EQ(expansionRule(Moment::Before, kExpandPartial, true), ExpansionStep::PassOn);
    EXPECT_EQ(expansionRule(Moment::Before, kToggle, true), ExpansionStep::TakeState);
}

TEST(ExpansionRule, TheChildrenGoExactlyWhenAnItemHasClosed)
{
    for (const unsigned action : kActions)
        for (const bool isOpen : {false, true}) {
            const bool opened = action == kExpand || action == kExpandPartial;
            EXPECT_EQ(expansionRule(Moment::After, action, isOpen),
                      opened || isOpen ? ExpansionStep::Show : ExpansionStep::Empty)
                << action;
        }
}
