// Strips that become image lists.
#include "AddedImage.h"
#include "TestStrip.h"
#include "resource.h"

#include <testkit/GdiCounter.h>
#include <testkit/GdiPlusSession.h>

#include <ovoui/images/AlphaImageList.h>
#include <ovoui/images/core/SharpenFilter.h>

#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

using namespace ovo::testkit;

namespace
{

constexpr std::uint32_t kTransparentWhite = 0x00FFFFFF;
constexpr std::uint32_t kHalfRed = 0x80FF0000;

/// Four images of 16 by 16: a half-transparent square in a colour of its own, on nothing.
constexpr std::uint32_t kColours[] = {0x80FF0000, 0xFF00FF00, 0x400000FF, 0xFFFFFFFF};

std::uint32_t squares(int x, int y)
{
    const bool inside = x % 16 >= 4 && x % 16 < 12 && y >= 4 && y < 12;
    return inside ? kColours[x / 16] : 0;
}

/// Opaque, with another colour at almost every pixel.
std::uint32_t busy(int x, int y)
{
    const auto number = static_cast<std::uint32_t>(37 * x * x + 91 * y + 13 * x * y);
    return 0xFF000000u | (number * 0x9E3779B1u) >> 8;
}

class AlphaImageList : public ::testing::Test
{
protected:
    AlphaImageList() { images.Create(16, 16, 4); }

    int add(const TestStrip& strip, CSize source, CSize target, long index = -1, bool hot = false)
    {
        if (target != CSize(16, 16)) {
            images.Clear();
            images.Create(target.cx, target.cy, 4);
        }
        return images.AddBitmap(0, hot, index, source, target, strip.handle(), nullptr);
    }

    GdiPlusSession gdiPlus; // outlives the rest
    AddedImages added;
    CAlphaImageList images;
};

/// How far two pixels are apart in the channel in which they differ most.
int distance(std::uint32_t a, std::uint32_t b)
{
    int most = 0;
    for (int shift = 0; shift < 32; shift += 8)
        most = std::max(
            most, std::abs(static_cast<int>((a >> shift) & 0xFF) - static_cast<int>((b >> shift) & 0xFF)));
    return most;
}

} // namespace

// Lists

TEST_F(AlphaImageList, BothListsAreMadeForTheSizeGiven)
{
    for (const HIMAGELIST list : {images.GetImageList(), images.GetHotImageList()}) {
        int cx = 0;
        int cy = 0;
        EXPECT_TRUE(::ImageList_GetIconSize(list, &cx, &cy));
        EXPECT_EQ(cx, 16);
        EXPECT_EQ(cy, 16);
        EXPECT_EQ(::ImageList_GetImageCount(list), 0);
    }
    EXPECT_NE(images.GetImageList(), images.GetHotImageList());
    EXPECT_EQ(images.ImageList()->GetSafeHandle(), images.GetImageList());
}

TEST_F(AlphaImageList, WithoutCreateNothingIsAdded)
{
    CAlphaImageList empty;
    const TestStrip strip(16, 16, 32, squares);
    EXPECT_EQ(empty.GetImageList(), nullptr);
    EXPECT_EQ(empty.AddBitmap(0, false, -1, CSize(16, 16), CSize(16, 16), strip.handle(), nullptr), -1);
}

TEST_F(AlphaImageList, ClearGoesBackToTheBeginning)
{
    const TestStrip strip(16, 16, 32, squares);
    add(strip, CSize(16, 16), CSize(16, 16));
    images.Clear();
    EXPECT_EQ(images.GetImageList(), nullptr);
    EXPECT_EQ(images.GetHotImageList(), nullptr);
    EXPECT_TRUE(images.Create(16, 16, 1));
    EXPECT_EQ(add(strip, CSize(16, 16), CSize(16, 16)), 0);
}

namespace
{

/// What the platform was asked to make a list with: width, height, flags, room, growth.
using ListFacts = std::vector<int>;

std::vector<ListFacts> g_lists; ///< asked for since a test began
std::size_t g_refusedList = 0;  ///< which of these cannot be made, counted from 1; 0 for none

HIMAGELIST WINAPI makeList(int cx, int cy, UINT flags, int initial, int grow)
{
    g_lists.push_back({cx, cy, static_cast<int>(flags), initial, grow});
    return g_lists.size() == g_refusedList ? nullptr : ::ImageList_Create(cx, cy, flags, initial, grow);
}

class AlphaImageListCreate : public ::testing::Test
{
protected:
    AlphaImageListCreate()
    {
        g_lists.clear();
        g_refusedList = 0;
    }

    const ImportPatch m_patch{L"ovomfc.dll", "ImageList_Create", reinterpret_cast<void*>(&makeList)};
    CAlphaImageList images;
};

} // namespace

TEST_F(AlphaImageListCreate, MakesTwoListsOf32BitsWithAMaskThatGrowByOne)
{
    EXPECT_TRUE(images.Create(16, 24, 5));
    const ListFacts facts{16, 24, 0x21, 5, 1};
    EXPECT_EQ(g_lists, (std::vector<ListFacts>{facts, facts}));
}

TEST_F(AlphaImageListCreate, FailsAtOnceWhenTheNormalListCannotBeMade)
{
    EXPECT_FALSE(images.Create(-1, 16, 1));
    EXPECT_EQ(images.GetImageList(), nullptr);
    EXPECT_EQ(images.GetHotImageList(), nullptr);
    EXPECT_EQ(g_lists.size(), 1u) << "the hot one is not tried";
}

TEST_F(AlphaImageListCreate, FailsWhenTheHotListCannotBeMade)
{
    g_refusedList = 2;
    EXPECT_FALSE(images.Create(16, 16, 1));
    EXPECT_EQ(images.GetHotImageList(), nullptr);
    EXPECT_TRUE(images.Create(16, 16, 1));
    EXPECT_NE(images.GetHotImageList(), nullptr);
}

// With alpha

TEST_F(AlphaImageList, AllImagesOfAStripAreAddedWithTheirAlpha)
{
    const TestStrip strip(64, 16, 32, squares);
    EXPECT_EQ(add(strip, CSize(16, 16), CSize(16, 16)), 0);
    EXPECT_EQ(::ImageList_GetImageCount(images.GetImageList()), 4);
    EXPECT_EQ(added.last().width, 64);
    EXPECT_EQ(added.last().height, 16);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(added.last().at(16 * i + 8, 8), kColours[i]) << "image " << i;
        EXPECT_EQ(added.last().at(16 * i + 1, 1) >> 24, 0u);
    }
    EXPECT_EQ(add(strip, CSize(16, 16), CSize(16, 16)), 4) << "the next ones come behind";
}

TEST_F(AlphaImageList, ScaledImagesKeepTheirAlpha)
{
    const TestStrip strip(64, 16, 32, squares);
    EXPECT_EQ(add(strip, CSize(16, 16), CSize(24, 24)), 0);
    EXPECT_EQ(::ImageList_GetImageCount(images.GetImageList()), 4);
    EXPECT_EQ(added.last().width, 96);
    EXPECT_EQ(added.last().height, 24);
    for (int i = 0; i < 4; ++i) {
        EXPECT_LE(distance(added.last().at(24 * i + 12, 12), kColours[i]), 2) << "image " << i;
        EXPECT_EQ(added.last().at(24 * i + 1, 1) >> 24, 0u);
    }
}

TEST_F(AlphaImageList, ScaledImagesAreSharpened)
{
    const TestStrip strip(64, 16, 32, squares);
    images.SetSharpenMode(false);
    // Scaled alike, without and with the sharpening: a strip of one image has no neighbours that could
    // interfere.
    const TestStrip one(16, 16, 32, squares);
    add(one, CSize(16, 16), CSize(24, 24));
    std::vector<std::uint32_t> expected = added.last().pixels;
    ovoui::images::sharpen({expected.data(), 24, 24, 24});
    images.SetSharpenMode(true);
    add(one, CSize(16, 16), CSize(24, 24));
    int worst = 0;
    for (std::size_t i = 0; i < expected.size(); ++i)
        if (expected[i] >> 24)
            worst = std::max(worst, distance(added.last().pixels[i], expected[i]));
    EXPECT_LE(worst, 60); // the edges of a clone are not scaled like those of the whole
    images.SetSharpenMode(false);
    add(one, CSize(16, 16), CSize(24, 24));
    EXPECT_NE(added.last().pixels, added.all()[added.all().size() - 2].pixels);
}

TEST_F(AlphaImageList, EachImageOfAStripIsSharpenedByItself)
{
    const CSize source(16, 16);
    const CSize target(32, 64); // so many times larger that the place in the picture makes no difference
    const TestStrip strip(48, 16, 32, busy);
    add(strip, source, target);
    const AddedImage all = added.last();
    ASSERT_EQ(all.width, 96);
    for (int i = 0; i < 3; ++i) {
        add(strip, source, target, i);
        const AddedImage& one = added.last();
        ASSERT_EQ(one.width, 32);
        int different = 0;
        for (int y = 0; y < 64; ++y)
            for (int x = 0; x < 32; ++x)
                different += all.at(32 * i + x, y) != one.at(x, y) ? 1 : 0;
        EXPECT_EQ(different, 0) << "image " << i;
    }
}

TEST_F(AlphaImageList, ImagesThatKeepTheirSizeAreNotSharpened)
{
    const TestStrip strip(16, 16, 32, [](int x, int y) { return (x + y) % 2 ? 0xFF404040u : 0xFFA0A0A0u; });
    add(strip, CSize(16, 16), CSize(16, 16));
    EXPECT_EQ(added.last().at(5, 5), 0xFFA0A0A0u);
    EXPECT_EQ(added.last().at(5, 6), 0xFF404040u);
}

TEST_F(AlphaImageList, ThreeByThreeIsNeverSharpened)
{
    const TestStrip strip(6, 6, 32, [](int x, int) { return x < 3 ? 0xFF404040u : 0xFFA0A0A0u; });
    add(strip, CSize(6, 6), CSize(3, 3));
    const std::vector<std::uint32_t> small = added.last().pixels;
    for (const std::uint32_t pixel : small)
        EXPECT_TRUE((pixel & 0xFF) >= 0x40 && (pixel & 0xFF) <= 0xA0) << std::hex << pixel;
    add(strip, CSize(6, 6), CSize(4, 3));
    for (const std::uint32_t pixel : added.last().pixels)
        EXPECT_TRUE((pixel & 0xFF) >= 0x40 && (pixel & 0xFF) <= 0xA0) << std::hex << pixel;
}

TEST_F(AlphaImageList, RowsStoredFromTheTopStandUprightToo)
{
    const auto top = [](int, int y) { return y < 8 ? kHalfRed : 0xFF0000FFu; };
    for (const TestStrip::Rows rows : {TestStrip::Rows::BottomUp, TestStrip::Rows::TopDown}) {
        const TestStrip strip(16, 16, 32, top, rows);
        add(strip, CSize(16, 16), CSize(16, 16));
        EXPECT_EQ(added.last().at(3, 0), kHalfRed);
        EXPECT_EQ(added.last().at(3, 15), 0xFF0000FFu);
    }
}

TEST_F(AlphaImageList, OddWidthsAreDrawnStraight)
{
    const TestStrip strip(35, 7, 32,
                          [](int x, int y) { return 0xFF000000u | static_cast<unsigned>(x * 7 + y); });
    images.Clear();
    images.Create(7, 7, 5);
    EXPECT_EQ(images.AddBitmap(0, false, -1, CSize(7, 7), CSize(7, 7), strip.handle(), nullptr), 0);
    EXPECT_EQ(::ImageList_GetImageCount(images.GetImageList()), 5);
    for (const int x : {0, 6, 7, 20, 34})
        EXPECT_EQ(added.last().at(x, 3), 0xFF000000u | static_cast<unsigned>(x * 7 + 3));
}

// One image

TEST_F(AlphaImageList, ASingleImageIsTheOneAskedFor)
{
    const TestStrip strip(64, 16, 32, squares);
    EXPECT_EQ(add(strip, CSize(16, 16), CSize(16, 16), 2), 0);
    EXPECT_EQ(::ImageList_GetImageCount(images.GetImageList()), 1);
    EXPECT_EQ(added.last().at(8, 8), kColours[2]);
}

TEST_F(AlphaImageList, ASingleImageWithoutSharpeningIsTheFirst)
{
    const TestStrip strip(64, 16, 32, squares);
    images.SetSharpenMode(false);
    EXPECT_EQ(add(strip, CSize(16, 16), CSize(16, 16), 2), 0);
    EXPECT_EQ(added.last().at(8, 8), kColours[0]);
}

TEST_F(AlphaImageList, AnIndexPastTheEndAddsAnEmptyImage)
{
    const TestStrip strip(64, 16, 32, squares);
    EXPECT_EQ(add(strip, CSize(16, 16), CSize(16, 16), 9), 0);
    EXPECT_EQ(added.last().at(8, 8) >> 24, 0u);
}

TEST_F(AlphaImageList, NeighboursDoNotBleedIntoSharpenedImages)
{
    // Opaque images beside each other: in the second one nothing of the first may show.
    const TestStrip strip(32, 16, 32, [](int x, int) { return x < 16 ? 0xFFFF0000u : 0xFF0000FFu; });
    add(strip, CSize(16, 16), CSize(24, 24));
    for (int y = 2; y < 22; ++y)
        EXPECT_EQ((added.last().at(24 + 1, y) >> 16) & 0xFF, 0u) << y;
}

TEST_F(AlphaImageList, TheInterpolationIsTheOneSet)
{
    const TestStrip strip(16, 16, 32, [](int x, int) { return x < 8 ? 0xFF000000u : 0xFFFFFFFFu; });
    images.SetSharpenMode(false);
    images.SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
    add(strip, CSize(16, 16), CSize(32, 32));
    for (int x = 1; x < 31; ++x)
        EXPECT_TRUE(added.last().at(x, 9) == 0xFF000000u || added.last().at(x, 9) == 0xFFFFFFFFu) << x;
    images.SetInterpolationMode(Gdiplus::InterpolationModeBilinear);
    add(strip, CSize(16, 16), CSize(32, 32));
    bool between = false;
    for (int x = 12; x < 20; ++x)
        between = between || ((added.last().at(x, 9) & 0xFF) != 0 && (added.last().at(x, 9) & 0xFF) != 0xFF);
    EXPECT_TRUE(between);
}

namespace
{

std::vector<std::string> g_steps; ///< by which a picture is got ready

Gdiplus::GpStatus WINGDIPAPI setCompositing(Gdiplus::GpGraphics* graphics, Gdiplus::CompositingMode mode)
{
    g_steps.push_back("compositing " + std::to_string(mode));
    return Gdiplus::DllExports::GdipSetCompositingMode(graphics, mode);
}

Gdiplus::GpStatus WINGDIPAPI setInterpolation(Gdiplus::GpGraphics* graphics, Gdiplus::InterpolationMode mode)
{
    g_steps.push_back("interpolation " + std::to_string(mode));
    return Gdiplus::DllExports::GdipSetInterpolationMode(graphics, mode);
}

Gdiplus::GpStatus WINGDIPAPI clear(Gdiplus::GpGraphics* graphics, Gdiplus::ARGB colour)
{
    g_steps.push_back("clear " + std::to_string(colour));
    return Gdiplus::DllExports::GdipGraphicsClear(graphics, colour);
}

} // namespace

TEST_F(AlphaImageList, APictureBeginsTransparentAndIsDrawnInLowQualityAtFirst)
{
    const wchar_t* const module = L"ovoui.dll";
    const ImportPatch first(module, "GdipSetCompositingMode", reinterpret_cast<void*>(&setCompositing));
    const ImportPatch second(module, "GdipSetInterpolationMode", reinterpret_cast<void*>(&setInterpolation));
    const ImportPatch third(module, "GdipGraphicsClear", reinterpret_cast<void*>(&clear));
    const TestStrip strip(16, 16, 32, squares);
    const auto steps = [&](int interpolation) {
        return std::vector<std::string>{"compositing " + std::to_string(Gdiplus::CompositingModeSourceCopy),
                                        "interpolation " + std::to_string(interpolation),
                                        "clear " + std::to_string(kTransparentWhite),
                                        "compositing " + std::to_string(Gdiplus::CompositingModeSourceOver)};
    };
    g_steps.clear();
    add(strip, CSize(16, 16), CSize(16, 16));
    EXPECT_EQ(g_steps, steps(Gdiplus::InterpolationModeLowQuality));
    images.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    g_steps.clear();
    add(strip, CSize(16, 16), CSize(16, 16));
    EXPECT_EQ(g_steps, steps(Gdiplus::InterpolationModeHighQualityBicubic));
}

// Without alpha

TEST_F(AlphaImageList, ThePixelAtTheTopLeftIsTransparentInABitmapPassed)
{
    for (const int bits : {1, 4, 8, 24}) {
        const std::uint32_t key = bits == 1 ? 0xFFFFFF : 0xFF0000;
        const TestStrip strip(16, 16, bits, [=](int x, int y) { return x == y ? key : 0u; });
        ASSERT_NE(add(strip, CSize(16, 16), CSize(16, 16)), -1) << bits;
        EXPECT_EQ(added.last().at(0, 0) >> 24, 0u) << bits;
        EXPECT_EQ(added.last().at(9, 9) >> 24, 0u) << bits;
        EXPECT_EQ(added.last().at(9, 8), 0xFF000000u) << bits;
    }
}

TEST_F(AlphaImageList, ImagesOfFewBitsMayBeginWithinAByte)
{
    for (const int bits : {1, 4}) {
        // Three images of 5 pixels: the second one is all black, the others all white but for the key.
        const TestStrip strip(15, 5, bits,
                              [](int x, int y) { return x + y == 0 || x / 5 != 1 ? 0xFFFFFFu : 0u; });
        images.Clear();
        images.Create(5, 5, 3);
        ASSERT_EQ(images.AddBitmap(0, false, -1, CSize(5, 5), CSize(5, 5), strip.handle(), nullptr), 0)
            << bits;
        for (int x = 0; x < 15; ++x)
            EXPECT_EQ(added.last().at(x, 2) >> 24, x / 5 == 1 ? 0xFFu : 0u) << bits << " bits, x " << x;
    }
}

TEST_F(AlphaImageList, ATopDownBitmapWithoutAlphaIsReadFromItsTop)
{
    const TestStrip strip(
        16, 16, 24, [](int, int y) { return y < 8 ? 0x00FF00u : 0x0000FFu; }, TestStrip::Rows::TopDown);
    add(strip, CSize(16, 16), CSize(16, 16));
    EXPECT_EQ(added.last().at(4, 2) >> 24, 0u);
    EXPECT_EQ(added.last().at(4, 12), 0xFF0000FFu);
}

TEST_F(AlphaImageList, LightGreyIsTransparentInAResource)
{
    images.Clear();
    images.Create(8, 8, 2);
    for (const UINT id : {TESTSTRIP_24, TESTSTRIP_4}) {
        ASSERT_NE(images.AddBitmap(id, false, -1, CSize(8, 8), CSize(8, 8), nullptr, nullptr), -1);
        EXPECT_EQ(added.last().width, 16);
        EXPECT_EQ(added.last().at(0, 0), 0xFFFF0000u) << "the top left pixel is not meant";
        EXPECT_EQ(added.last().at(3, 0), 0xFF000000u);
        EXPECT_EQ(added.last().at(7, 3) >> 24, 0u);
        EXPECT_EQ(added.last().at(15, 0) >> 24, 0u);
    }
}

TEST_F(AlphaImageList, AResourceOfTheLibraryIsFound)
{
    EXPECT_EQ(images.AddBitmap(IDB_TOOLBAR_16, false, -1, CSize(16, 16), CSize(16, 16), nullptr, nullptr), 0);
    EXPECT_EQ(::ImageList_GetImageCount(images.GetImageList()), 12);
}

TEST_F(AlphaImageList, OneColourBecomesThatOfButtonTexts)
{
    const int element = COLOR_BTNTEXT;
    const COLORREF before = ::GetSysColor(element);
    const COLORREF text = RGB(10, 20, 200);
    ::SetSysColors(1, &element, &text);
    const TestStrip strip(16, 16, 24, [](int x, int y) { return x + y == 0 ? 0x00FF00u : 0x123456u; });
    const DWORD old[] = {0xFF123456, 0x00FF00}; // its alpha does not count, and only the first is read
    images.AddBitmap(0, false, -1, CSize(16, 16), CSize(16, 16), strip.handle(), old);
    ::SetSysColors(1, &element, &before);
    EXPECT_EQ(added.last().at(0, 0) >> 24, 0u);
    // Not the colour but its number: red and blue change places.
    EXPECT_EQ(added.last().at(5, 5), 0xFF000000u | text);
}

TEST_F(AlphaImageList, WithAlphaNoColourIsTransparentOrExchanged)
{
    const TestStrip strip(16, 16, 32, [](int, int) { return 0xFFC0C0C0u; });
    const DWORD grey = 0xC0C0C0;
    images.AddBitmap(0, false, -1, CSize(16, 16), CSize(16, 16), strip.handle(), &grey);
    EXPECT_EQ(added.last().at(0, 0), 0xFFC0C0C0u);
}

// The lists

TEST_F(AlphaImageList, TheNormalListGetsAMaskOfTheColourOfButtons)
{
    const TestStrip strip(16, 16, 32, squares);
    add(strip, CSize(16, 16), CSize(16, 16));
    EXPECT_EQ(added.last().list, images.GetImageList());
    EXPECT_TRUE(added.last().masked);
    EXPECT_EQ(added.last().maskColour, ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(AlphaImageList, TheHotListGetsNoMask)
{
    const TestStrip strip(16, 16, 32, squares);
    EXPECT_EQ(add(strip, CSize(16, 16), CSize(16, 16), -1, true), 0);
    EXPECT_EQ(added.last().list, images.GetHotImageList());
    EXPECT_FALSE(added.last().masked);
    EXPECT_EQ(::ImageList_GetImageCount(images.GetHotImageList()), 1);
    EXPECT_EQ(::ImageList_GetImageCount(images.GetImageList()), 0);
}

// Failures

TEST_F(AlphaImageList, AMissingResourceIsNoImage)
{
    EXPECT_EQ(images.AddBitmap(60000, false, -1, CSize(16, 16), CSize(16, 16), nullptr, nullptr), -1);
}

TEST_F(AlphaImageList, ADeletedBitmapIsNoImage)
{
    TestStrip strip(16, 16, 32, squares);
    strip.destroy();
    EXPECT_EQ(add(strip, CSize(16, 16), CSize(16, 16)), -1);
}

TEST_F(AlphaImageList, EmptySizesAreNoImage)
{
    const TestStrip strip(16, 16, 32, squares);
    EXPECT_EQ(images.AddBitmap(0, false, -1, CSize(16, 16), CSize(0, 0), strip.handle(), nullptr), -1);
    EXPECT_EQ(images.AddBitmap(0, false, -1, CSize(16, 16), CSize(0, 16), strip.handle(), nullptr), -1);
    EXPECT_EQ(images.AddBitmap(0, false, -1, CSize(0, 16), CSize(16, 16), strip.handle(), nullptr), -1);
    EXPECT_EQ(images.AddBitmap(0, false, 0, CSize(16, 0), CSize(16, 16), strip.handle(), nullptr), -1);
}

TEST_F(AlphaImageList, AStripNarrowerThanAnImageHasNone)
{
    const TestStrip strip(15, 16, 32, squares);
    EXPECT_EQ(add(strip, CSize(16, 16), CSize(16, 16)), -1);
    EXPECT_EQ(added.all().size(), 0u);
}

TEST_F(AlphaImageList, AListThatRefusesLeavesNothingBehind)
{
    const TestStrip strip(16, 16, 32, squares);
    add(strip, CSize(16, 16), CSize(16, 16));
    added.refuse();
    const GdiCounter gdi;
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(add(strip, CSize(16, 16), CSize(16, 16)), -1);
    EXPECT_EQ(gdi.grown(), 0);
}

TEST_F(AlphaImageList, OnlyTheLastBitmapIsKept)
{
    const TestStrip strip(64, 16, 32, squares);
    add(strip, CSize(16, 16), CSize(16, 16));
    const GdiCounter gdi;
    for (int i = 0; i < 50; ++i) {
        add(strip, CSize(16, 16), CSize(24, 24));
        images.Clear();
        images.Create(16, 16, 4);
        add(strip, CSize(16, 16), CSize(16, 16));
    }
    EXPECT_EQ(gdi.grown(), 0);
}

namespace
{

/// What the platform answers before GDI+ is started.
Gdiplus::GpStatus WINGDIPAPI notStarted(INT, INT, INT, Gdiplus::PixelFormat, BYTE*,
                                        Gdiplus::GpBitmap** bitmap)
{
    *bitmap = nullptr;
    return Gdiplus::GdiplusNotInitialized;
}

} // namespace

TEST(AlphaImageListWithoutGdiPlus, NothingIsAddedAndNothingIsLost)
{
    const ImportPatch patch(L"ovoui.dll", "GdipCreateBitmapFromScan0", reinterpret_cast<void*>(&notStarted));
    AddedImages added;
    CAlphaImageList images;
    images.Create(16, 16, 4);
    const TestStrip strip(64, 16, 32, squares);
    const GdiCounter gdi;
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(images.AddBitmap(0, false, -1, CSize(16, 16), CSize(24, 24), strip.handle(), nullptr), -1);
    EXPECT_EQ(gdi.grown(), 0);
    EXPECT_EQ(::ImageList_GetImageCount(images.GetImageList()), 0);
}

// GetHBitmap

namespace
{

DWORD g_headerSize = 0;
LONG g_height = 0;

HBITMAP WINAPI createDibSection(HDC dc, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                                DWORD offset)
{
    g_headerSize = info->bmiHeader.biSize;
    g_height = info->bmiHeader.biHeight;
    return ::CreateDIBSection(dc, info, usage, bits, section, offset);
}

} // namespace

TEST(AlphaImageListBitmap, IsATopDownDibWithThePixelsAsTheyAre)
{
    const GdiPlusSession gdiPlus;
    const ImportPatch patch(L"ovoui.dll", "CreateDIBSection", reinterpret_cast<void*>(&createDibSection));
    Gdiplus::Bitmap picture(5, 3, PixelFormat32bppARGB);
    picture.SetPixel(1, 0, Gdiplus::Color(0x80, 0x12, 0x34, 0x56));
    picture.SetPixel(4, 2, Gdiplus::Color(0x01, 0xFF, 0x00, 0x00));
    const HBITMAP bitmap = CAlphaImageList::GetHBitmap(picture);
    DIBSECTION dib{};
    ASSERT_EQ(::GetObjectW(bitmap, sizeof dib, &dib), static_cast<int>(sizeof dib));
    EXPECT_EQ(dib.dsBm.bmWidth, 5);
    EXPECT_EQ(dib.dsBm.bmHeight, 3);
    EXPECT_EQ(dib.dsBm.bmBitsPixel, 32);
    const auto* pixels = static_cast<const std::uint32_t*>(dib.dsBm.bmBits);
    EXPECT_EQ(pixels[1], 0x80123456u);
    EXPECT_EQ(pixels[14], 0x01FF0000u) << "not premultiplied";
    EXPECT_EQ(g_headerSize, 44u) << "with one entry of a colour table";
    EXPECT_EQ(g_height, -3);
    ::DeleteObject(bitmap);
}

TEST(AlphaImageListBitmap, ThatIsTooLargeForADibIsNone)
{
    const GdiPlusSession gdiPlus;
    // GDI+ takes the size on trust: only the first row is there.
    constexpr INT kSide = 0x8000;
    std::vector<BYTE> row(kSide * 4);
    Gdiplus::Bitmap picture(kSide, kSide + 1, kSide * 4, PixelFormat32bppARGB, row.data());
    ASSERT_EQ(picture.GetLastStatus(), Gdiplus::Ok);
    const HBITMAP bitmap = CAlphaImageList::GetHBitmap(picture);
    EXPECT_EQ(bitmap, nullptr);
    ::DeleteObject(bitmap);
}
