#include <ovoui/update/core/OfferRules.h>

#include <ovouires/resource.h>

#include <gtest/gtest.h>

using namespace ovoui::update;

TEST(OfferRules, OnlyALookThatFailedIsNotNoted)
{
    for (const Look look : {Look::Failed, Look::NothingNew, Look::Newer, Look::Skipped}) {
        const PoliteRule rule = afterLook(look);
        EXPECT_EQ(rule.noted, look != Look::Failed) << static_cast<int>(look);
        EXPECT_EQ(rule.offered, look == Look::Newer) << static_cast<int>(look);
    }
}

TEST(OfferRules, EveryWayToEndADialogThatWasAskedFor)
{
    for (int result = -1; result <= 0xFFFF; ++result)
        ASSERT_EQ(afterAnswer(Asked::Yes, result), result == 1 ? OfferAction::OpenPage : OfferAction::Nothing)
            << result;
}

TEST(OfferRules, EveryWayToEndOneThatWasNot)
{
    for (int result = -1; result <= 0xFFFF; ++result) {
        const OfferAction expected = result == 1                 ? OfferAction::OpenPage
                                     : result == IDC_UPDATE_SKIP ? OfferAction::Skip
                                                                 : OfferAction::RemindLater;
        ASSERT_EQ(afterAnswer(Asked::No, result), expected) << result;
    }
}
