#include <ovoui/frame/core/Countdown.h>

#include <gtest/gtest.h>

using namespace ovoui::frame;

TEST(Countdown, CountsTheSecondThatHasBegun)
{
    const Countdown count(3, 10'000);
    EXPECT_EQ(count.left(10'000), 3u);
    EXPECT_EQ(count.left(10'001), 3u);
    EXPECT_EQ(count.left(11'000), 2u);
    EXPECT_EQ(count.left(12'999), 1u);
    EXPECT_EQ(count.left(13'000), 0u);
    EXPECT_EQ(count.left(99'000), 0u);
}

TEST(Countdown, IsOverOnceAndNotBefore)
{
    Countdown count(3, 10'000);
    EXPECT_FALSE(count.isOver(12'999));
    EXPECT_TRUE(count.isRunning());
    EXPECT_TRUE(count.isOver(13'000));
    EXPECT_FALSE(count.isRunning());
    EXPECT_FALSE(count.isOver(13'001));
}

TEST(Countdown, StoppedIsNeverOver)
{
    Countdown count(3, 10'000);
    count.stop();
    EXPECT_FALSE(count.isOver(20'000));
    EXPECT_EQ(count.left(10'500), 0u);
    EXPECT_FALSE(Countdown().isOver(20'000));
}

TEST(Countdown, NoSecondsAreOverAtOnce)
{
    EXPECT_TRUE(Countdown(0, 5).isOver(5));
}

TEST(Countdown, ManySecondsDoNotOverflow)
{
    EXPECT_EQ(Countdown(86'400, 0).left(0), 86'400u);
    EXPECT_EQ(Countdown(4'294'967'295u, 0).left(0), 4'294'967'295u);
}

TEST(Countdown, ALabelTellsWhatIsLeft)
{
    EXPECT_EQ(countedLabel(L"&OK", 9), L"&OK (9)");
}
