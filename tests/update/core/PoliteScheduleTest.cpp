#include <ovoui/update/core/PoliteSchedule.h>

#include <gtest/gtest.h>

using namespace ovoui::update;

namespace
{

constexpr std::int64_t kDay = 24 * 60 * 60;
constexpr std::int64_t kNow = 1'700'000'000;

} // namespace

TEST(PoliteSchedule, ACheckIsDueAfterItsDays)
{
    const struct
    {
        std::int64_t last;
        int days;
        bool due;
    } rows[] = {{0, 7, true},
                {kNow, 7, false},
                {kNow - 7 * kDay + 1, 7, false},
                {kNow - 7 * kDay, 7, true},
                {kNow - 1, 0, true},
                {kNow, 0, true},
                {kNow + 1, 7, true}}; // the clock was set back
    for (const auto& [last, days, due] : rows)
        EXPECT_EQ((PoliteSchedule{last, 0, {}}.isDue(kNow, days)), due) << last;
}

TEST(PoliteSchedule, AReminderPutsItOff)
{
    EXPECT_FALSE((PoliteSchedule{0, kNow + 1, {}}.isDue(kNow, 0)));
    EXPECT_TRUE((PoliteSchedule{0, kNow, {}}.isDue(kNow, 0)));
    EXPECT_FALSE((PoliteSchedule{0, kNow + 366 * kDay, {}}.isDue(kNow, 0)));
    EXPECT_TRUE((PoliteSchedule{0, kNow + 366 * kDay + 1, {}}.isDue(kNow, 0))) << "not for ever";
    EXPECT_FALSE((PoliteSchedule{kNow - kDay, kNow - 1, {}}.isDue(kNow, 7))) << "both count";
}

TEST(PoliteSchedule, TimesAreNumbers)
{
    EXPECT_EQ(timeOf(L"1700000000"), kNow);
    EXPECT_EQ(timeOf(L""), 0);
    EXPECT_EQ(timeOf(L"12x"), 0);
    EXPECT_EQ(timeOf(L"-5"), 0);
    EXPECT_EQ(timeOf(L"99999999999999999999999"), 0) << "too large to be a time";
}
