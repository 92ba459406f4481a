#include <ovoui/tree/core/EdgeScroll.h>

#include <gtest/gtest.h>

using namespace ovoui::tree;

namespace
{

constexpr ScrollArea kArea{0, 0, 100, 200};

unsigned at(int x, int y)
{
    return scrollCode(x, y, kArea, 11);
}

} // namespace

TEST(EdgeScroll, TheMiddleAndTheOutsideAreNoDirection)
{
    EXPECT_EQ(at(50, 100), kScrollNone);
    EXPECT_EQ(at(11, 11), kScrollNone);
    EXPECT_EQ(at(88, 188), kScrollNone);
    EXPECT_EQ(at(-1, 100), kScrollNone);
    EXPECT_EQ(at(50, 200), kScrollNone);
    EXPECT_EQ(at(100, 5), kScrollNone);
}

TEST(EdgeScroll, TheHighByteIsVerticalTheLowByteHorizontal)
{
    EXPECT_EQ(at(50, 0), 0x00FFu);
    EXPECT_EQ(at(50, 10), 0x00FFu);
    EXPECT_EQ(at(50, 199), 0x01FFu);
    EXPECT_EQ(at(50, 189), 0x01FFu);
    EXPECT_EQ(at(0, 100), 0xFF00u);
    EXPECT_EQ(at(99, 100), 0xFF01u);
    EXPECT_EQ(at(0, 0), 0x0000u);
    EXPECT_EQ(at(99, 199), 0x0101u);
}

TEST(EdgeScroll, TheVerticalPartStandsAlone)
{
    EXPECT_EQ(verticalPart(0x00FF), kScrollUp);
    EXPECT_EQ(verticalPart(0x01FF), kScrollDown);
    EXPECT_EQ(verticalPart(0xFF01), 0xFFu);
}

TEST(EdgeScrollTimer, WaitsLongerForTheFirstStep)
{
    EdgeScrollTimer timer(50, 20);
    EXPECT_FALSE(timer.running());
    EXPECT_FALSE(timer.stepDue(0x00FF, 1000));
    EXPECT_TRUE(timer.running());
    EXPECT_FALSE(timer.stepDue(0x00FF, 1050)); // more than the delay
    EXPECT_TRUE(timer.stepDue(0x00FF, 1051));
    EXPECT_FALSE(timer.stepDue(0x00FF, 1051 + 20)); // from then on more than the interval
    EXPECT_TRUE(timer.stepDue(0x00FF, 1051 + 21));
    EXPECT_FALSE(timer.stepDue(0x00FF, 1051 + 41));
    EXPECT_TRUE(timer.stepDue(0x00FF, 1051 + 42));
}

TEST(EdgeScrollTimer, TheSameDirectionBeginsAnewAfterAStop)
{
    EdgeScrollTimer timer(50, 20);
    timer.stepDue(0x00FF, 0);
    EXPECT_TRUE(timer.stepDue(0x00FF, 60));
    timer.stop();
    EXPECT_FALSE(timer.stepDue(0x00FF, 200));
    EXPECT_FALSE(timer.stepDue(0x00FF, 250));
    EXPECT_TRUE(timer.stepDue(0x00FF, 251));
}

TEST(EdgeScrollTimer, ANewDirectionBeginsAnew)
{
    EdgeScrollTimer timer(50, 20);
    timer.stepDue(0x00FF, 0);
    EXPECT_TRUE(timer.stepDue(0x00FF, 60));
    EXPECT_FALSE(timer.stepDue(0x01FF, 61));
    EXPECT_FALSE(timer.stepDue(0x01FF, 100));
    EXPECT_TRUE(timer.stepDue(0x01FF, 112));
    timer.stop();
    EXPECT_FALSE(timer.running());
}

TEST(EdgeScrollTimer, SurvivesAClockThatWrapsAround)
{
    EdgeScrollTimer timer(50, 20);
    EXPECT_FALSE(timer.stepDue(0x00FF, 0xFFFFFFF0u));
    EXPECT_FALSE(timer.stepDue(0x00FF, 0x00000010u));
    EXPECT_TRUE(timer.stepDue(0x00FF, 0x00000030u));
}
