// fillColourEntryBgd against a plain drawing of every square.
#include "ListScene.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr COLORREF kBlank = RGB(250, 250, 0);
constexpr DWORD kColour = 0x02000000 | RGB(200, 0, 0);
constexpr DWORD kDark = 0x02000000 | RGB(100, 0, 0);
constexpr DWORD kBright = 0x02000000 | RGB(255, 150, 150);

Picture swatch(const CRect& rect, DWORD checkA = kDark, DWORD checkB = kBright)
{
    Picture picture(50, 50, kBlank);
    fillColourEntryBgd(*CDC::FromHandle(picture.dc()), kColour, checkA, checkB, rect);
    return picture;
}

} // namespace

TEST(Swatch, IsExactForEverySizeUpTo40AtEveryOffsetUpTo7)
{
    for (int width = 0; width <= 40; ++width)
        for (int height = 0; height <= 40; ++height) {
            // Every offset in both directions comes up; all pairs of them are tried without a context.
            const int left = (width + 3 * height) % 8;
            const int top = (5 * width + height) % 8;
            const CRect rect(left, top, left + width, top + height);
            Picture expected(50, 50, kBlank);
            drawSwatchByDefinition(expected.dc(), kColour, kDark, kBright, rect);
            ASSERT_EQ(swatch(rect).differences(expected), 0)
                << width << " x " << height << " at " << left << ", " << top;
        }
}

TEST(Swatch, EveryOffsetOfTheUsualSizes)
{
    for (const CSize size :
         {CSize(20, 15), CSize(31, 17), CSize(40, 40), CSize(2, 3), CSize(3, 40), CSize(40, 3)})
        for (int left = 0; left <= 7; ++left)
            for (int top = 0; top <= 7; ++top) {
                const CRect rect(CPoint(left, top), size);
                Picture expected(50, 50, kBlank);
                drawSwatchByDefinition(expected.dc(), kColour, kDark, kBright, rect);
                ASSERT_EQ(swatch(rect).differences(expected), 0)
                    << size.cx << " x " << size.cy << " at " << left << ", " << top;
            }
}

TEST(Swatch, IsPlainWhenBothCheckersAreTheSame)
{
    const Picture picture = swatch(CRect(3, 4, 43, 24), kDark, kDark);
    EXPECT_EQ(picture.count(RGB(200, 0, 0)), 40 * 20);
    EXPECT_EQ(picture.count(kBlank), 50 * 50 - 40 * 20);
}

TEST(Swatch, AnAreaTooSmallForSquaresGetsItsLeftHalf)
{
    EXPECT_EQ(swatch(CRect(3, 4, 23, 6)).count(RGB(200, 0, 0)), 10 * 2);
    EXPECT_EQ(swatch(CRect(3, 4, 23, 6)).count(kBlank), 50 * 50 - 10 * 2);
    EXPECT_EQ(swatch(CRect(3, 4, 4, 24)).count(kBlank), 50 * 50);
    EXPECT_EQ(swatch(CRect(3, 4, 3, 4)).count(kBlank), 50 * 50);
}

TEST(Swatch, LeavesTheContextAsItWas)
{
    Picture picture(50, 50);
    ::SetBkColor(picture.dc(), RGB(1, 2, 3));
    ::SetDCBrushColor(picture.dc(), RGB(4, 5, 6));
    const HGDIOBJ brush = ::GetCurrentObject(picture.dc(), OBJ_BRUSH);
    fillColourEntryBgd(*CDC::FromHandle(picture.dc()), kColour, kDark, kBright, CRect(0, 0, 40, 20));
    EXPECT_EQ(::GetBkColor(picture.dc()), RGB(1, 2, 3));
    EXPECT_EQ(::GetDCBrushColor(picture.dc()), RGB(4, 5, 6));
    EXPECT_EQ(::GetCurrentObject(picture.dc(), OBJ_BRUSH), brush);
}
