// Strips by resolution, and what follows a monitor.
#include "AddedImage.h"
#include "TestStrip.h"

#include <testkit/GdiCounter.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/ImportPatch.h>
#include <testkit/RecordingParent.h>
#include <testkit/TemporaryFiles.h>

#include <ovoui/images/ImageStrips.h>
#include <ovoui/images/core/DisabledPixels.h>
#include <ovoui/images/core/StripScaling.h>

#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

using namespace ovo::testkit;
using namespace ovoui::images;

namespace
{

constexpr int kImages = 3;

/// The same images at any size: noise of opaque pixels and such that are not there, which GDI+ leaves alone.
std::uint32_t pixelAt(int size, int x, int y)
{
    const auto noise = static_cast<std::uint32_t>((x + 1) * 2654435761u ^ (y + 7) * 40503u * size);
    return noise % 5 == 0 ? 0x00FFFFFFu : 0xFF000000u | (noise >> 4 & 0xFFFFFF);
}

StripPixels pixelsOfSize(int size)
{
    StripPixels strip({size, size}, kImages);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < strip.width(); ++x)
            strip.pixels[static_cast<std::size_t>(y * strip.width() + x)] = pixelAt(size, x, y);
    return strip;
}

HBITMAP bitmapOfSize(int size)
{
    void* bits = nullptr;
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, kImages * size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const StripPixels strip = pixelsOfSize(size);
    std::copy(strip.pixels.begin(), strip.pixels.end(), static_cast<std::uint32_t*>(bits));
    return bitmap;
}

/// A file as bitmaps are stored: the rows from below.
void writeBmp(const std::wstring& path, int size)
{
    const StripPixels strip = pixelsOfSize(size);
    const auto bytes = static_cast<DWORD>(strip.pixels.size() * 4);
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof file + sizeof(BITMAPINFOHEADER);
    file.bfSize = file.bfOffBits + bytes;
    const BITMAPINFOHEADER info{sizeof info, strip.width(), size, 1, 32, BI_RGB, bytes, 0, 0, 0, 0};
    std::ofstream out(std::filesystem::path(path), std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof file);
    out.write(reinterpret_cast<const char*>(&info), sizeof info);
    for (int y = size - 1; y >= 0; --y)
        out.write(reinterpret_cast<const char*>(&strip.pixels[static_cast<std::size_t>(y * strip.width())]),
                  strip.width() * 4);
}

void writePng(const std::wstring& path, int size)
{
    StripPixels strip = pixelsOfSize(size);
    Gdiplus::Bitmap picture(strip.width(), size, strip.width() * 4, PixelFormat32bppARGB,
                            reinterpret_cast<BYTE*>(strip.pixels.data()));
    constexpr CLSID kPng{0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
    ASSERT_EQ(picture.Save(path.c_str(), &kPng, nullptr), Gdiplus::Ok);
}

/// What a drawing is asked for.
struct Drawn
{
    HBITMAP operator()(int size) const
    {
        asked->push_back(size);
        return bitmapOfSize(size);
    }
    std::shared_ptr<std::vector<int>> asked = std::make_shared<std::vector<int>>();
};

class ImageStrips : public ::testing::Test
{
protected:
    ImageStrips()
    {
        for (const int size : {16, 24, 32})
            writeBmp(files.path(std::to_wstring(size) + L".bmp"), size);
    }

    CImageStrips strips(int imageSize = 16) const
    {
        std::vector<CImageStrips::Strip> all;
        for (const int size : {24, 32, 16})
            all.push_back({.size = size, .file = files.path(std::to_wstring(size) + L".bmp")});
        return CImageStrips(std::move(all), imageSize);
    }

    /// What has come into the list of images is this, or with `disabled` its disabled form.
    void expectAdded(const StripPixels& expected, bool disabled = false) const
    {
        ASSERT_GE(added.all().size(), disabled ? 2u : 1u);
        const AddedImage& images = added.all()[added.all().size() - (disabled ? 2 : 1)];
        EXPECT_EQ(CSize(images.width, images.height), CSize(expected.width(), expected.image.height));
        for (std::size_t i = 0; i < expected.pixels.size() && i < images.pixels.size(); ++i)
            if (expected.pixels[i] >> 24) {
                ASSERT_EQ(images.pixels[i], expected.pixels[i]) << i;
            } else {
                ASSERT_EQ(images.pixels[i] >> 24, 0u) << i;
            }
    }

    GdiPlusSession gdiPlus; // outlives the rest
    TemporaryFiles files;
    AddedImages added;
};

CSize imageSize(HIMAGELIST list)
{
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(list, &width, &height);
    return CSize(width, height);
}

} // namespace

// Which strip

TEST_F(ImageStrips, TheOneThatWasDrawnForTheSizeIsShownAsItIs)
{
    CImageStrips images = strips();
    for (const auto& [dots, size] : {std::pair(96, 16), {144, 24}, {192, 32}}) {
        ASSERT_TRUE(images.Load(dots));
        EXPECT_EQ(images.GetSize(), size);
        EXPECT_EQ(imageSize(images.GetImageList()), CSize(size, size));
        EXPECT_EQ(::ImageList_GetImageCount(images.GetImageList()), kImages);
        EXPECT_EQ(images.ImageList()->GetSafeHandle(), images.GetImageList());
        EXPECT_EQ(images.GetDisabledImageList(), nullptr) << "not asked for";
        expectAdded(pixelsOfSize(size));
    }
}

TEST_F(ImageStrips, BetweenThemTheNextLargerOneIsMadeSmaller)
{
    CImageStrips images = strips();
    ASSERT_TRUE(images.Load(168)); // 28 pixels
    const StripPixels expected = scaledStrip(pixelsOfSize(32), {28, 28});
    ASSERT_EQ(added.last().width, kImages * 28);
    for (std::size_t i = 0; i < expected.pixels.size(); ++i) {
        // Halves of transparency pass through GDI+, which rounds.
        EXPECT_NEAR(added.last().pixels[i] >> 24, expected.pixels[i] >> 24, 1) << i;
        for (int shift = 0; shift < 24 && expected.pixels[i] >> 24 > 40; shift += 8)
            EXPECT_NEAR(added.last().pixels[i] >> shift & 0xFF, expected.pixels[i] >> shift & 0xFF, 6) << i;
    }
}

TEST_F(ImageStrips, BeyondAllTheLargestGrows)
{
    CImageStrips images = strips();
    ASSERT_TRUE(images.Load(288)); // 48 pixels
    EXPECT_EQ(imageSize(images.GetImageList()), CSize(48, 48));
    EXPECT_EQ(added.last().width, kImages * 48);
    EXPECT_EQ(added.last().at(0, 0) >> 24, pixelAt(32, 0, 0) >> 24) << "the corner is that of 32 pixels";
}

TEST_F(ImageStrips, TheSameSizeIsNotLoadedAgain)
{
    CImageStrips images = strips();
    images.Load(96);
    const HIMAGELIST list = images.GetImageList();
    EXPECT_TRUE(images.Load(96));
    EXPECT_TRUE(images.Load(97)) << "16 pixels as well";
    EXPECT_EQ(images.GetImageList(), list);
    EXPECT_EQ(added.all().size(), 1u);
}

TEST_F(ImageStrips, TheListsOfBeforeStayUntilTheLoadingAfterThisOne)
{
    CImageStrips images = strips();
    images.Load(96);
    const HIMAGELIST first = images.GetImageList();
    images.Load(144);
    EXPECT_EQ(imageSize(first), CSize(16, 16)) << "a control may still show them";
}

TEST_F(ImageStrips, AWindowTellsItsResolution)
{
    const RecordingParent window;
    CImageStrips images = strips();
    EXPECT_TRUE(images.Load(window));
    CClientDC screen(nullptr);
    EXPECT_EQ(images.GetSize(), 16 * screen.GetDeviceCaps(LOGPIXELSY) / 96);
}

TEST_F(ImageStrips, PngFilesAndResourcesAreReadToo)
{
    writePng(files.path(L"p.png"), 20);
    CImageStrips png({{.size = 20, .file = files.path(L"p.png")}}, 20);
    ASSERT_TRUE(png.Load(96));
    expectAdded(pixelsOfSize(20));
    CImageStrips resource({{IDB_TOOLBAR_16, 16}}, 16);
    ASSERT_TRUE(resource.Load(96));
    EXPECT_EQ(::ImageList_GetImageCount(resource.GetImageList()), 12);
}

TEST_F(ImageStrips, WhatCannotBeLoadedLeavesWhatWasLoadedBefore)
{
    EXPECT_FALSE(CImageStrips().Load(96));
    EXPECT_FALSE(CImageStrips().Reload());
    EXPECT_FALSE(CImageStrips({{4711, 16}}, 16).Load(96)) << "no such resource";
    EXPECT_FALSE(CImageStrips({{.size = 16, .file = L"C:\\none.bmp"}}, 16).Load(96));
    EXPECT_FALSE(CImageStrips({{IDB_TOOLBAR_16, 17}}, 17).Load(96)) << "higher than the strip";
    EXPECT_FALSE(CImageStrips({{IDB_TOOLBAR_16, 0}}, 16).Load(96));
    EXPECT_FALSE(strips(0).Load(96));
    EXPECT_FALSE(strips().Load(96 * 10'000)) << "larger than a picture may be";

    CImageStrips images({{.size = 16, .file = files.path(L"16.bmp")}, {.size = 24, .file = L"C:\\none.bmp"}},
                        16);
    ASSERT_TRUE(images.Load(96));
    const HIMAGELIST list = images.GetImageList();
    EXPECT_FALSE(images.Load(144));
    EXPECT_EQ(images.GetImageList(), list);
    EXPECT_EQ(images.GetSize(), 16);
}

// Drawings

TEST_F(ImageStrips, ADrawingIsAskedForTheVerySize)
{
    const Drawn drawn;
    CImageStrips images(drawn, 16);
    for (const int dots : {96, 120, 144, 240})
        ASSERT_TRUE(images.Load(dots));
    EXPECT_EQ(*drawn.asked, (std::vector{16, 20, 24, 40}));
    expectAdded(pixelsOfSize(40));
}

TEST_F(ImageStrips, ADrawingMayFailOrRaise)
{
    int mischief = 0;
    CImageStrips images(
        [&mischief](int size) -> HBITMAP {
            if (mischief == 1)
                return nullptr;
            if (mischief == 2)
                throw std::runtime_error("no");
            return bitmapOfSize(size);
        },
        16);
    ASSERT_TRUE(images.Load(96));
    const HIMAGELIST list = images.GetImageList();
    mischief = 1;
    EXPECT_FALSE(images.Load(144));
    mischief = 2;
    EXPECT_THROW(images.Load(144), std::runtime_error);
    EXPECT_EQ(images.GetImageList(), list);
    mischief = 0;
    EXPECT_TRUE(images.Load(144));
}

TEST_F(ImageStrips, ADrawingMayDeleteTheStripsAndLoadAgain)
{
    std::unique_ptr<CImageStrips> images;
    images = std::make_unique<CImageStrips>(
        [&images](int size) {
            const auto bitmap = bitmapOfSize(size);
            images.reset();
            return bitmap;
        },
        16);
    images->Load(96);
    EXPECT_EQ(images, nullptr);

    CImageStrips again;
    int depth = 0;
    again = CImageStrips(
        [&](int size) {
            if (++depth == 1)
                again.Load(192);
            return bitmapOfSize(size);
        },
        16);
    EXPECT_TRUE(again.Load(96));
    EXPECT_EQ(again.GetSize(), 16) << "the call that ends last counts";
}

// Disabled images

TEST_F(ImageStrips, DisabledImagesAreMadeFromTheNormalOnes)
{
    CImageStrips images = strips();
    images.UseDisabledImages(true);
    ASSERT_TRUE(images.Load(144));
    ASSERT_NE(images.GetDisabledImageList(), nullptr);
    EXPECT_EQ(imageSize(images.GetDisabledImageList()), CSize(24, 24));
    EXPECT_EQ(::ImageList_GetImageCount(images.GetDisabledImageList()), kImages);
    StripPixels expected = pixelsOfSize(24);
    expectAdded(expected, true);
    for (int i = 0; i < kImages; ++i)
        disable(expected.block(i));
    EXPECT_EQ(added.last().pixels, expected.pixels);
    EXPECT_FALSE(added.last().masked) << "no colour of them is transparent";
}

TEST_F(ImageStrips, DisabledImagesThatAreAskedForLaterAreMadeByTheNextLoading)
{
    CImageStrips images = strips();
    images.Load(96);
    images.UseDisabledImages(true);
    EXPECT_EQ(images.GetDisabledImageList(), nullptr);
    EXPECT_TRUE(images.Load(96)) << "of the same size";
    EXPECT_NE(images.GetDisabledImageList(), nullptr);
}

namespace
{

BOOL WINAPI highContrast(UINT action, UINT size, void* data, UINT flags)
{
    if (action != SPI_GETHIGHCONTRAST)
        return ::SystemParametersInfoW(action, size, data, flags);
    static_cast<HIGHCONTRASTW*>(data)->dwFlags = HCF_HIGHCONTRASTON;
    return TRUE;
}

DWORD WINAPI contrastColour(int index)
{
    return index == COLOR_GRAYTEXT ? RGB(0x10, 0xA0, 0x30) : index == COLOR_BTNFACE ? RGB(0, 0, 0) : 0;
}

} // namespace

TEST_F(ImageStrips, UnderHighContrastDisabledImagesHaveTheSystemsColours)
{
    const ImportPatch scheme(L"ovoui.dll", "SystemParametersInfoW", reinterpret_cast<void*>(&highContrast));
    const ImportPatch colours(L"ovoui.dll", "GetSysColor", reinterpret_cast<void*>(&contrastColour));
    CImageStrips images = strips();
    images.UseDisabledImages(true);
    ASSERT_TRUE(images.Load(96));
    StripPixels expected = pixelsOfSize(16);
    for (int i = 0; i < kImages; ++i)
        disable(expected.block(i), {0x10A030, 0x000000});
    EXPECT_EQ(added.last().pixels, expected.pixels);
}

// Following a monitor

namespace
{

/// A window that follows its monitor, and what happens to it in order.
class Follower : public RecordingParent
{
public:
    explicit Follower(CImageStrips strips)
        : images(std::make_unique<CImageStrips>(std::move(strips)))
    {
        images->Load(96);
        EXPECT_TRUE(images->Follow(*this, [this] {
            story += "images " + std::to_string(images->GetSize()) + "; ";
            if (mischief)
                mischief();
        }));
    }

    void moveTo(int dots) { SendMessage(WM_DPICHANGED, MAKEWPARAM(dots, dots)); }

    std::unique_ptr<CImageStrips> images;
    std::function<void()> mischief;
    std::string story;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_DPICHANGED)
            story += "window; ";
        return RecordingParent::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST_F(ImageStrips, FollowTheMonitorAndTellTheHostBeforeTheWindow)
{
    Follower window(strips());
    window.moveTo(144);
    EXPECT_EQ(window.story, "images 24; window; ");
    EXPECT_EQ(imageSize(window.images->GetImageList()), CSize(24, 24));
    window.story.clear();
    window.moveTo(144);
    EXPECT_EQ(window.story, "window; ") << "the size stays";
}

TEST_F(ImageStrips, FollowTheColoursWhereDisabledImagesAreAskedFor)
{
    Follower window(strips());
    window.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(window.story, "");
    window.images->UseDisabledImages(true);
    window.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(window.story, "images 16; ");
    EXPECT_NE(window.images->GetDisabledImageList(), nullptr);

    Follower drawing(CImageStrips(Drawn(), 16));
    drawing.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(drawing.story, "images 16; ") << "it may use the system's colours";
}

TEST_F(ImageStrips, AreNotFollowedAnyMoreByAnotherOrWithoutThem)
{
    Follower window(strips());
    RecordingParent other;
    int changes = 0;
    EXPECT_TRUE(window.images->Follow(other, [&changes] { ++changes; }));
    window.moveTo(144);
    EXPECT_EQ(window.story, "window; ");
    other.SendMessage(WM_DPICHANGED, MAKEWPARAM(192, 192));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(window.images->GetSize(), 32);
    window.images.reset();
    other.SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96));
    EXPECT_EQ(changes, 1);

    CWnd none;
    CImageStrips images = strips();
    EXPECT_FALSE(images.Follow(none, nullptr)) << "not created";
    EXPECT_TRUE(images.Follow(other, nullptr));
    other.SendMessage(WM_DPICHANGED, MAKEWPARAM(192, 192));
    EXPECT_EQ(images.GetSize(), 32) << "without a function they just load";
}

TEST_F(ImageStrips, TheHostMayDoAnythingWhenItIsTold)
{
    Follower deleting(strips());
    deleting.mischief = [&deleting] { deleting.images.reset(); };
    deleting.moveTo(144);
    EXPECT_EQ(deleting.story, "images 24; window; ");
    deleting.moveTo(96);

    Follower destroying(strips());
    destroying.mischief = [&destroying] { destroying.DestroyWindow(); };
    destroying.moveTo(144);
    EXPECT_EQ(destroying.story, "images 24; ");
    EXPECT_EQ(destroying.m_hWnd, nullptr);

    Follower again(strips());
    again.mischief = [&again] {
        again.mischief = nullptr;
        again.moveTo(192);
    };
    again.moveTo(144);
    EXPECT_EQ(again.story, "images 24; images 32; window; window; ");

    Follower raising(strips());
    raising.mischief = [] { throw std::runtime_error("no"); };
    EXPECT_THROW(raising.moveTo(144), std::runtime_error);
    EXPECT_EQ(raising.images->GetSize(), 24);
    EXPECT_EQ(raising.story, "images 24; window; ") << "the window hears of it all the same";
    raising.story.clear();
    raising.mischief = nullptr;
    raising.moveTo(192);
    EXPECT_EQ(raising.story, "images 32; window; ") << "as good as before";
}

TEST_F(ImageStrips, AllThatFollowAWindowAreToldThoughOneRaises)
{
    RecordingParent window;
    CImageStrips first = strips();
    CImageStrips last = strips();
    std::string story;
    EXPECT_TRUE(first.Follow(window, [&] { story += "first; "; }));
    EXPECT_TRUE(last.Follow(window, [&] {
        story += "last; ";
        throw std::runtime_error("no");
    }));
    EXPECT_THROW(window.SendMessage(WM_DPICHANGED, MAKEWPARAM(144, 144)), std::runtime_error);
    EXPECT_EQ(story, "last; first; ");
}

TEST_F(ImageStrips, ADrawingMayEndThatTheyFollow)
{
    RecordingParent other;
    std::function<void(Follower&)> mischief;
    Follower* drawnFor = nullptr;
    const auto draw = [&](int size) {
        if (drawnFor)
            mischief(*drawnFor);
        return bitmapOfSize(size);
    };
    const auto storyOf = [&](std::function<void(Follower&)> deed) {
        mischief = std::move(deed);
        Follower window(CImageStrips(draw, 16));
        drawnFor = &window;
        window.moveTo(144);
        drawnFor = nullptr;
        return window.story;
    };
    EXPECT_EQ(storyOf([](Follower&) {}), "images 24; window; ");
    EXPECT_EQ(storyOf([&other](Follower& window) { window.images->Follow(other, nullptr); }), "window; ");
    EXPECT_EQ(storyOf([](Follower& window) { window.images.reset(); }), "window; ");
    EXPECT_EQ(storyOf([](Follower& window) { *window.images = CImageStrips(); }), "window; ");
    EXPECT_EQ(storyOf([](Follower& window) { window.DestroyWindow(); }), "");
}

TEST_F(ImageStrips, AnotherLifeLeavesNothingBehind)
{
    const auto live = [this] {
        Follower window(strips());
        window.images->UseDisabledImages(true);
        for (const int dots : {144, 120, 96, 288})
            window.moveTo(dots);
    };
    live();
    const GdiCounter gdi;
    for (int i = 0; i < 10; ++i)
        live();
    EXPECT_EQ(gdi.grown(), 0);
}
