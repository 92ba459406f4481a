#include <ovoui/frame/core/Countdown.h>

#include <gtest/gtest.h>

#include <set>

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

TEST(Countdown, EachTickShowsWhatIsLeftUntilOnePresses)
{
    Countdown count(2, 10'000);
    for (std::uint64_t now = 10'000; now < 12'000; now += 200)
        EXPECT_EQ(count.tick(now), CountTick::Show) << now;
    EXPECT_EQ(count.tick(12'000), CountTick::Press);
    EXPECT_EQ(count.tick(12'200), CountTick::Nothing) << "it presses once";

    Countdown stopped(2, 10'000);
    stopped.stop();
    EXPECT_EQ(stopped.tick(10'200), CountTick::Nothing);
    EXPECT_EQ(stopped.tick(13'000), CountTick::Nothing);
    EXPECT_EQ(Countdown().tick(1), CountTick::Nothing);
}

TEST(Countdown, KeysButtonsAndTheWheelEndIt)
{
    // WM_KEYDOWN, WM_SYSKEYDOWN, the presses of mouse buttons, those in the frame, the wheel in both
    // directions
    const std::set<unsigned> input{0x100, 0x104, 0x201, 0x204, 0x207, 0x20B,
                                   0xA1,  0xA4,  0xA7,  0xAB,  0x20A, 0x20E};
    for (unsigned message = 0; message <= 0xFFFF; ++message)
        ASSERT_EQ(endsCountdown(message), input.contains(message)) << std::hex << message;
}
