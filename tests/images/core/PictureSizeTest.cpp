// How large a picture may be.
#include <ovoui/images/core/PictureSize.h>

#include <gtest/gtest.h>

using namespace ovoui::images;

TEST(PictureSize, OrdinarySizesAreFine)
{
    EXPECT_TRUE(isPictureSize(1, 1));
    EXPECT_TRUE(isPictureSize(16 * 40, 16));
    EXPECT_TRUE(isPictureSize(10000, 10000));
}

TEST(PictureSize, NothingIsNoPicture)
{
    EXPECT_FALSE(isPictureSize(0, 16));
    EXPECT_FALSE(isPictureSize(16, 0));
    EXPECT_FALSE(isPictureSize(-1, 16));
    EXPECT_FALSE(isPictureSize(16, -1));
    EXPECT_FALSE(isPictureSize(-16, -16));
}

TEST(PictureSize, TheBytesAreCountedIn32Bits)
{
    EXPECT_TRUE(isPictureSize(0x1FFFFFFF, 1));
    EXPECT_FALSE(isPictureSize(0x20000000, 1));
    EXPECT_TRUE(isPictureSize(1, 0x1FFFFFFF));
    EXPECT_FALSE(isPictureSize(1, 0x20000000));
    EXPECT_TRUE(isPictureSize(0x10000, 0x1FFF));
    EXPECT_FALSE(isPictureSize(0x10000, 0x2000));
}

TEST(PictureSize, NothingWrapsAround)
{
    constexpr std::int64_t kWidth = 0x20000001;
    EXPECT_FALSE(isPictureSize(kWidth * 8, 16)); // 8 in 32 bits
    EXPECT_FALSE(isPictureSize(0x7FFFFFFFLL * 0x7FFFFFFF, 0x7FFFFFFF));
    EXPECT_FALSE(isPictureSize(0x100000001, 1));
}
