// What a flyout shows, and what a hot entry leads to.
#include <ovoui/toolbar/core/FlyoutEntries.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace ovoui::toolbar;

namespace
{

FlyoutRecord listOf(std::vector<int> commands, std::vector<int> images, std::vector<Quark> names)
{
    FlyoutRecord record;
    record.hasFlyout = true;
    record.commands = std::move(commands);
    record.images = std::move(images);
    record.names = std::move(names);
    return record;
}

bool has(const std::vector<HotStep>& steps, HotStep step)
{
    return std::ranges::find(steps, step) != steps.end();
}

} // namespace

TEST(FlyoutEntries, OfAResourceAreTheButtonsThatItHas)
{
    FlyoutRecord record;
    record.toolbarId = 7000;
    record.buttonIndices = {3, -1, 0, 4, 2, 3};
    EXPECT_EQ(entriesOfResource(record, 4), (std::vector<ResourceEntry>{{0, 3}, {2, 0}, {4, 2}, {5, 3}}));
    EXPECT_TRUE(entriesOfResource(record, 0).empty());
}

TEST(FlyoutEntries, OfAListHaveImagesAndNamesAsFarAsTheyGo)
{
    const auto entries = entriesOfList(listOf({100, 0, 101}, {5, 6}, {Quark(L"line")}));
    EXPECT_EQ(entries, (std::vector<ListedEntry>{{100, 5, L"line"}, {0, 6, L""}, {101, kNoImage, L""}}));
    EXPECT_FALSE(entries[0].isSeparator());
    EXPECT_TRUE(entries[1].isSeparator());
}

TEST(FlyoutEntries, EachStripIsAddedOnce)
{
    FlyoutRecord record;
    record.bitmapIds = {60, 61, 60, 62, 61};
    EXPECT_EQ(stripsOf(record), (std::vector<int>{60, 61, 62}));
}

TEST(FlyoutEntries, UnderThePointerIsAnEntryThatIsNoSeparator)
{
    for (int hit = -5; hit < 6; ++hit)
        for (int count = 0; count < 4; ++count)
            for (const bool separator : {false, true})
                EXPECT_EQ(entryUnder(hit, count, separator),
                          hit >= 0 && hit < count && !separator ? hit : kNoEntry);
}

TEST(FlyoutEntries, AHotEntryIsPressedToldAndGetsATip)
{
    for (int before = kNoEntry; before < 3; ++before)
        for (int now = kNoEntry; now < 3; ++now) {
            const auto steps = hotSteps(before, now);
            const bool changes = before != now;
            const bool enters = changes && now != kNoEntry;
            EXPECT_EQ(has(steps, HotStep::Release), changes && before != kNoEntry);
            EXPECT_EQ(has(steps, HotStep::HideTip), changes);
            EXPECT_EQ(has(steps, HotStep::Press), enters);
            EXPECT_EQ(has(steps, HotStep::ShowPrompt), enters);
            EXPECT_EQ(has(steps, HotStep::AwaitTip), enters);
            EXPECT_EQ(has(steps, HotStep::ShowIdlePrompt), changes && now == kNoEntry);
            if (enters) { // the tip of before must not take the timer of the next one with it
                EXPECT_LT(std::ranges::find(steps, HotStep::HideTip),
                          std::ranges::find(steps, HotStep::AwaitTip));
            }
        }
}

TEST(FlyoutEntries, ImagesAreCountedFromTheirStrips)
{
    FlyoutRecord record = listOf({100, 101, 102, 103}, {0, 1, 2}, {});
    record.bitmapIds = {60, 61};
    countFromStrips(record, [](int strip) { return strip * 10; });
    EXPECT_EQ(record.images, (std::vector<int>{600, 611, 2})) << "without a strip the image stays";
    record.commands = {100};
    countFromStrips(record, [](int) { return 1; });
    EXPECT_EQ(record.images, (std::vector<int>{601, 611, 2})) << "one image a command";
}
