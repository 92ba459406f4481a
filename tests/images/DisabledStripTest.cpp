// Strips of disabled images.
#include "TestStrip.h"
#include "resource.h"

#include <support/OwnedDib.h>

#include <testkit/GdiCounter.h>
#include <testkit/GdiPlusSession.h>

#include <ovoui/images/DisabledStrip.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// Two images of 8 by 8 pixels and a part of a third one.
std::uint32_t redAndGreen(int x, int y)
{
    return y == 0 ? 0x00123456 : x < 8 ? 0xFFFF0000 : 0x8000FF00;
}

} // namespace

TEST(DisabledStrip, IsGreyAtHalfItsAlphaWhicheverWayUpItIsStored)
{
    for (const auto rows : {TestStrip::Rows::BottomUp, TestStrip::Rows::TopDown}) {
        const TestStrip strip(20, 9, 32, redAndGreen, rows);
        const OwnedDib made(disabledStrip(strip.handle(), 8));
        EXPECT_EQ(made.size(), CSize(16, 8)) << "the whole images alone";
        EXPECT_EQ(made.bits(), 32);
        EXPECT_EQ(made.at(3, 0) >> 24, 0u);
        EXPECT_EQ(made.at(3, 1), 0x80363636u);
        EXPECT_EQ(made.at(11, 7), 0x40B6B6B6u);
    }
}

TEST(DisabledStrip, WithoutAlphaHasWhatIsTransparentThere)
{
    const GdiPlusSession gdiPlus;
    const TestStrip strip(16, 8, 24, [](int x, int) {
        return x == 0 ? 0x00FF00u : x == 1 ? 0xFF0000u : 0x00FF00u;
    });
    const OwnedDib made(disabledStrip(strip.handle(), 8));
    EXPECT_EQ(made.at(0, 0) >> 24, 0u) << "the colour of the top left pixel";
    EXPECT_EQ(made.at(5, 5) >> 24, 0u);
    EXPECT_EQ(made.at(1, 3), 0x80363636u);

    const OwnedDib resource(disabledStrip(TESTSTRIP_24, 8));
    ASSERT_EQ(resource.size(), CSize(16, 8));
    int grey = 0;
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 16; ++x)
            grey += resource.at(x, y) == 0x80363636u; // what is red there
    EXPECT_GT(grey, 0);
}

TEST(DisabledStrip, OfNothingIsNone)
{
    const TestStrip strip(16, 8, 32, redAndGreen);
    EXPECT_EQ(disabledStrip(HBITMAP{}, 8), nullptr);
    EXPECT_EQ(disabledStrip(UINT{4711}, 8), nullptr) << "no such resource";
    EXPECT_EQ(disabledStrip(strip.handle(), 0), nullptr);
    EXPECT_EQ(disabledStrip(strip.handle(), -8), nullptr);
    EXPECT_EQ(disabledStrip(strip.handle(), 9), nullptr) << "higher than the strip";
    const GdiCounter gdi;
    const OwnedDib made(disabledStrip(strip.handle(), 8));
    EXPECT_EQ(gdi.grown(), 1);
}
