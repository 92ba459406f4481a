#include <ovoui/frame/core/ProgressRules.h>

#include <gtest/gtest.h>

#include <limits>

using namespace ovoui::frame;

TEST(ProgressRules, TheBarIsTheShareOfAll)
{
    for (const std::uint64_t total : {1u, 3u, 1000u, 12345u}) {
        int last = 0;
        for (std::uint64_t done = 0; done <= total; ++done) {
            const int position = barPosition(done, total).value();
            ASSERT_NEAR(position, static_cast<double>(done) * kBarSteps / static_cast<double>(total), 1.0)
                << done << " of " << total;
            ASSERT_GE(position, last);
            last = position;
        }
        EXPECT_EQ(last, kBarSteps);
        EXPECT_EQ(barPosition(total + 1, total), kBarSteps) << "more than all is all";
    }
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
    EXPECT_EQ(barPosition(kMost, kMost), kBarSteps);
    EXPECT_EQ(barPosition(kMost / 2, kMost), kBarSteps / 2);
    EXPECT_EQ(barPosition(0, kMost), 0);
}

TEST(ProgressRules, WithoutATotalThereIsNoPosition)
{
    EXPECT_EQ(barPosition(0, 0), std::nullopt);
    EXPECT_EQ(barPosition(5, 0), std::nullopt);
}

TEST(ProgressRules, MessagesPassAfterAPause)
{
    for (const std::uint64_t last : {std::uint64_t{0}, std::uint64_t{1'000'000}})
        for (std::uint64_t later = 0; later < 100; ++later)
            EXPECT_EQ(letsMessagesThrough(last + later, last), later >= 20) << later;
}

TEST(ProgressRules, MessagesDoNotKeepTheWorkWaitingForEver)
{
    for (const std::uint64_t begin : {std::uint64_t{0}, std::uint64_t{1'000'000}})
        for (std::uint64_t later = 0; later < 1000; ++later)
            EXPECT_EQ(goesOnWithMessages(begin + later, begin), later < 200) << later;
}
