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
}

TEST(PoliteSchedule, AReminderDoesNotWaitForTheNextCheck)
{
    const std::int64_t last = kNow - 3 * kDay;
    EXPECT_FALSE((PoliteSchedule{last, kNow + 1, {}}.isDue(kNow, 7)));
    EXPECT_TRUE((PoliteSchedule{last, kNow, {}}.isDue(kNow, 7)));
    EXPECT_TRUE((PoliteSchedule{last, kNow - kDay, {}}.isDue(kNow, 7))) << "the program did not run that day";
    EXPECT_FALSE((PoliteSchedule{last, last, {}}.isDue(kNow, 7))) << "a check since has reminded";
    EXPECT_FALSE((PoliteSchedule{last, last - kDay, {}}.isDue(kNow, 7)));
    EXPECT_FALSE((PoliteSchedule{last, 0, {}}.isDue(kNow, 7))) << "none was wanted";
    EXPECT_FALSE((PoliteSchedule{kNow - 7 * kDay, kNow + 1, {}}.isDue(kNow, 7))) << "not before it either";
}

TEST(PoliteSchedule, TimesAreNumbers)
{
    EXPECT_EQ(timeOf(L"1700000000"), kNow);
    EXPECT_EQ(timeOf(L""), 0);
    EXPECT_EQ(timeOf(L"12x"), 0);
    EXPECT_EQ(timeOf(L"-5"), 0);
    EXPECT_EQ(timeOf(L"99999999999999999999999"), 0) << "too large to be a time";
}

TEST(PoliteSchedule, AReminderComesAfterItsDays)
{
    EXPECT_EQ(daysLater(kNow, 0), kNow);
    EXPECT_EQ(daysLater(kNow, 3), kNow + 3 * kDay);
    EXPECT_EQ(daysLater(kNow, 36500), kNow + 36500 * kDay) << "a hundred years do not overflow";
    EXPECT_FALSE((PoliteSchedule{0, daysLater(kNow, 3), {}}.isDue(kNow + 3 * kDay - 1, 0)));
    EXPECT_TRUE((PoliteSchedule{0, daysLater(kNow, 3), {}}.isDue(kNow + 3 * kDay, 0)));
}

TEST(PoliteSchedule, OneVersionIsSkipped)
{
    for (const wchar_t* skipped : {L"", L"1", L"1.0", L"2"})
        for (const wchar_t* version : {L"", L"1", L"1.0", L"2"})
            EXPECT_EQ((PoliteSchedule{0, 0, skipped}.isSkipped(version)),
                      *version && std::wstring(version) == skipped)
                << testing::PrintToString(skipped) << " and " << testing::PrintToString(version);
}
