// The flyout records of a bar.
#include <ovoui/toolbar/core/FlyoutRecords.h>

#include <ovocor/IntCast.h>

#include <gtest/gtest.h>

#include <limits>

using namespace ovoui::toolbar;

namespace
{

int listA;
int listB;

FlyoutRecord commandList(std::vector<int> commands)
{
    FlyoutRecord record;
    record.hasFlyout = true;
    record.bitmapSize = 16;
    record.commands = std::move(commands);
    record.bitmapIds = {60, 61};
    record.images = {4, 5};
    record.imageList = &listA;
    return record;
}

FlyoutRecord resourceRecord()
{
    FlyoutRecord record;
    record.hasFlyout = true;
    record.toolbarId = 7000;
    record.bitmapSize = 16;
    record.buttonIndices = {3, 0, 2};
    return record;
}

} // namespace

TEST(FlyoutRecords, ButtonsWithoutARecordHaveNoFlyout)
{
    FlyoutRecords records;
    for (const int button : {-1, 0, 1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(records.find(button), nullptr);
    EXPECT_EQ(records.count(), 0);
}

TEST(FlyoutRecords, ARecordBringsThoseBeforeItIntoBeing)
{
    FlyoutRecords records;
    records.set(3, commandList({1, 2}));
    EXPECT_EQ(records.count(), 4);
    EXPECT_EQ(records.find(2), nullptr);
    ASSERT_NE(records.find(3), nullptr);
    EXPECT_EQ(records.find(3)->commands, (std::vector{1, 2}));
    EXPECT_EQ(records.find(4), nullptr);
}

TEST(FlyoutRecords, InsertingAndErasingKeepTheRecordsWithTheirButtons)
{
    FlyoutRecords records;
    records.set(1, resourceRecord());
    EXPECT_FALSE(records.insert(2));
    EXPECT_FALSE(records.insert(-1));
    EXPECT_TRUE(records.insert(0));
    EXPECT_EQ(records.find(1), nullptr);
    EXPECT_NE(records.find(2), nullptr);
    EXPECT_TRUE(records.insert(2));
    EXPECT_NE(records.find(3), nullptr);
    records.erase(0);
    EXPECT_NE(records.find(2), nullptr);
    records.erase(7);
    records.erase(-1);
    EXPECT_EQ(records.count(), 3);
    records.erase(2);
    EXPECT_EQ(records.find(2), nullptr);
}

TEST(FlyoutRecords, ClearingLeavesTheOthersWhereTheyAre)
{
    FlyoutRecords records;
    records.set(0, resourceRecord());
    records.set(1, commandList({1}));
    records.clear(0);
    records.clear(9);
    records.clear(-1);
    EXPECT_EQ(records.find(0), nullptr);
    EXPECT_NE(records.find(1), nullptr);
    records.clearAll();
    EXPECT_EQ(records.find(1), nullptr);
    EXPECT_EQ(records.count(), 2);
}

TEST(FlyoutRecords, TheBitmapSizeChangesInCommandListsOnly)
{
    FlyoutRecords records;
    records.set(0, resourceRecord());
    records.set(1, commandList({1}));
    records.set(3, commandList({2}));
    records.setBitmapSize(32);
    EXPECT_EQ(records.find(0)->bitmapSize, 16);
    EXPECT_EQ(records.find(1)->bitmapSize, 32);
    EXPECT_EQ(records.find(3)->bitmapSize, 32);
}

TEST(FlyoutRecords, AnotherImageListTakesThePlaceOfTheOneOfBefore)
{
    FlyoutRecords records;
    FlyoutRecord other = commandList({1});
    other.imageList = nullptr;
    records.set(0, commandList({1}));
    records.set(1, other);
    records.replaceImageList(&listA, &listB);
    EXPECT_EQ(records.find(0)->imageList, &listB);
    EXPECT_EQ(records.find(1)->imageList, nullptr);
}

TEST(FlyoutRecords, TheImageOfAChosenEntry)
{
    const FlyoutRecord list = commandList({10, 11, 12});
    EXPECT_EQ(imageOfEntry(list, 0, 99), 4);
    EXPECT_EQ(imageOfEntry(list, 1, 99), 5);
    EXPECT_EQ(imageOfEntry(list, 2, 99), 99); // no bitmap is named for it
    EXPECT_EQ(imageOfEntry(list, -1, 99), 99);
    const FlyoutRecord resource = resourceRecord();
    EXPECT_EQ(imageOfEntry(resource, 0, 99), 3);
    EXPECT_EQ(imageOfEntry(resource, 2, 99), 2);
    EXPECT_EQ(imageOfEntry(resource, 3, 99), 99);
}

TEST(FlyoutRecords, CountsBeyondAnIntRaiseTheRangeError)
{
    constexpr std::size_t kMost = 0x7FFFFFFF;
    EXPECT_EQ(toCount(kMost), std::numeric_limits<int>::max());
    EXPECT_THROW(toCount(kMost + 1), IntCastError);
}
