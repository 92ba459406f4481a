// Which strip of images is scaled to which size.
#include <ovoui/images/core/StripChoice.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace ovoui::images;

TEST(StripChoice, LengthsGrowWithTheResolution)
{
    EXPECT_EQ(atResolution(16, 96), 16);
    EXPECT_EQ(atResolution(16, 120), 20);
    EXPECT_EQ(atResolution(16, 144), 24);
    EXPECT_EQ(atResolution(15, 144), 23) << "half away from zero";
    EXPECT_EQ(atResolution(-15, 144), -23);
    EXPECT_EQ(atResolution(0, 144), 0);
}

TEST(StripChoice, TheLeastThatIsLargeEnoughElseTheLargest)
{
    std::vector<int> sizes{16, 24, 32};
    do {
        for (int wanted = 1; wanted < 80; ++wanted) {
            const int expected = wanted <= 16 ? 16 : wanted <= 24 ? 24 : 32;
            EXPECT_EQ(sizes[chooseStrip(sizes, wanted)], expected) << wanted;
        }
    } while (std::next_permutation(sizes.begin(), sizes.end()));
    const int one[] = {20};
    EXPECT_EQ(chooseStrip(one, 99), 0u);
}

TEST(StripChoice, ImagesAreLoadedAnewForAnotherSizeAndForOtherColoursThatTheyShow)
{
    for (const int dotsPerInch : {0, 96, 120, 144})
        for (const int usualSize : {16, 24})
            for (const int size : {16, 20, 24, 36})
                for (const bool byColours : {false, true}) {
                    const auto now = sizeAfterChange(dotsPerInch, {usualSize, size, byColours});
                    const int wanted = usualSize * dotsPerInch / 96;
                    const bool loads = dotsPerInch == 0 ? byColours : wanted != size;
                    ASSERT_EQ(now.has_value(), loads) << dotsPerInch << ' ' << usualSize << ' ' << size;
                    EXPECT_EQ(now.value_or(0), !loads ? 0 : dotsPerInch == 0 ? size : wanted);
                }
}
