#include <ovoui/images/core/StripRules.h>

#include <gtest/gtest.h>

using namespace ovoui::images;

TEST(StripRules, OnlyWholeImagesCount)
{
    for (int size = -2; size < 12; ++size)
        for (int width = 0; width < 40; ++width)
            for (int height = 0; height < 14; ++height) {
                int expected = 0;
                while (size > 0 && height >= size && liesInStrip(expected, size, width))
                    ++expected;
                EXPECT_EQ(wholeImages(size, width, height), expected)
                    << size << " in " << width << 'x' << height;
            }
}

TEST(StripRules, OneImageOrAll)
{
    for (long index = -3; index < 8; ++index)
        for (const int inStrip : {0, 1, 5}) {
            const ImageRange expected =
                index < 0 ? ImageRange{0, inStrip} : ImageRange{static_cast<int>(index), 1};
            EXPECT_EQ(imagesAsked(index, inStrip), expected) << index << " of " << inStrip;
        }
}

TEST(StripRules, OnlyWhatIsScaledAndLargeEnoughIsSharpened)
{
    for (int sw = 1; sw < 7; ++sw)
        for (int sh = 1; sh < 7; ++sh)
            for (int tw = 1; tw < 7; ++tw)
                for (int th = 1; th < 7; ++th)
                    EXPECT_EQ(isSharpened({sw, sh}, {tw, th}), (sw != tw || sh != th) && tw >= 4 && th >= 4)
                        << sw << 'x' << sh << " at " << tw << 'x' << th;
}

TEST(StripRules, AnImageLiesInTheStripAsAWhole)
{
    for (int index = 0; index < 6; ++index)
        for (int strip = 0; strip < 40; ++strip)
            EXPECT_EQ(liesInStrip(index, 8, strip), index * 8 + 8 <= strip) << index << " in " << strip;
    EXPECT_FALSE(liesInStrip(0x7FFFFFFF, 0x10000, 0x7FFFFFFF)) << "far beyond the end";
}
