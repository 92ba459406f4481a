// Where strips come from and how large they may be.
#include "AddedImage.h"
#include "TestStrip.h"
#include "resource.h"

#include <testkit/GdiCounter.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/ImportPatch.h>

#include <ovoui/images/AlphaImageList.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kBlue = 0xFF0000FF;

std::uint32_t red(int, int)
{
    return kRed;
}

/// A module of resources in the framework's search, in front of all others.
class ResourceModule
{
public:
    explicit ResourceModule(const wchar_t* file)
        : m_before(AfxGetResourceHandle())
        , m_module(::LoadLibraryW(file))
    {
        AfxSetResourceHandle(m_module);
    }
    ~ResourceModule()
    {
        AfxSetResourceHandle(m_before);
        ::FreeLibrary(m_module);
    }
    ResourceModule(const ResourceModule&) = delete;
    ResourceModule& operator=(const ResourceModule&) = delete;

    HMODULE handle() const { return m_module; }

private:
    HINSTANCE m_before;
    HMODULE m_module;
};

class AlphaImageSource : public ::testing::Test
{
protected:
    AlphaImageSource() { images.Create(8, 8, 8); }

    int addResource()
    {
        return images.AddBitmap(TESTSTRIP_OF_MODULE, false, -1, {8, 8}, {8, 8}, nullptr, nullptr);
    }

    /// Adds a strip of eight images, of 8 by 8 pixels unless told.
    int add(CSize target, long index = -1, CSize source = {8, 8})
    {
        const TestStrip strip(64, 8, 32, red);
        return images.AddBitmap(0, false, index, source, target, strip.handle(), nullptr);
    }

    GdiPlusSession gdiPlus; // outlives the rest
    AddedImages added;
    CAlphaImageList images;
};

} // namespace

// Modules

TEST_F(AlphaImageSource, AModuleThatTookThePlaceOfAnotherShowsItsOwnImages)
{
    HMODULE first = nullptr;
    {
        const ResourceModule module(L"strip_red.dll");
        first = module.handle();
        ASSERT_NE(first, nullptr);
        ASSERT_EQ(addResource(), 0);
        EXPECT_EQ(added.last().at(3, 3), kRed);
    }
    const ResourceModule module(L"strip_blue.dll");
    ASSERT_EQ(module.handle(), first) << "the second module is loaded where the first one was";
    ASSERT_EQ(addResource(), 1);
    EXPECT_EQ(added.last().at(3, 3), kBlue);
}

TEST_F(AlphaImageSource, LoadingAResourceAgainAndAgainLosesNothing)
{
    const ResourceModule module(L"strip_red.dll");
    ASSERT_EQ(addResource(), 0);
    const GdiCounter gdi;
    for (int i = 0; i < 50; ++i)
        ASSERT_EQ(addResource(), i + 1);
    EXPECT_EQ(gdi.grown(), 0);
}

namespace
{

HBITMAP g_shared = nullptr;
UINT g_flags = 0;

/// A platform that shares bitmaps.
HANDLE WINAPI loadShared(HINSTANCE, LPCWSTR, UINT, int, int, UINT flags)
{
    g_flags = flags;
    return g_shared;
}

} // namespace

TEST_F(AlphaImageSource, ASharedBitmapIsNotFreed)
{
    const TestStrip strip(8, 8, 32, red);
    g_shared = strip.handle();
    const ImportPatch patch(L"ovoui.dll", "LoadImageW", reinterpret_cast<void*>(&loadShared));
    EXPECT_EQ(addResource(), 0);
    EXPECT_EQ(addResource(), 1);
    EXPECT_EQ(g_flags, 0xA000u) << "LR_CREATEDIBSECTION | LR_SHARED";
    EXPECT_EQ(::GetObjectType(g_shared), static_cast<DWORD>(OBJ_BITMAP));
}

// Sizes

TEST_F(AlphaImageSource, ATargetThatIsTooLargeIsNoImage)
{
    // Most of these products are small numbers in 32 bits, and some in 64.
    const CSize sizes[] = {{0x20000001, 8}, {0x40000001, 8}, {0x7FFFFFFF, 0x7FFFFFFF}, {0x10000, 0x10000},
                           {8, 0x20000001}, {0x20000000, 1}, {0x7FFFFFFF / 8 + 1, 16}, {0x4000001, 1024}};
    const GdiCounter gdi;
    for (const CSize& size : sizes)
        for (const bool sharpen : {false, true}) {
            images.SetSharpenMode(sharpen);
            EXPECT_EQ(add(size), -1) << size.cx << " x " << size.cy;
        }
    EXPECT_EQ(added.all().size(), 0u);
    EXPECT_EQ(gdi.grown(), 0);
}

TEST_F(AlphaImageSource, AnImageFarBeyondTheStripIsEmpty)
{
    for (const long index : {8L, 0x10000000L, 0x20000000L, 0x7FFFFFFFL}) {
        EXPECT_NE(add({8, 8}, index), -1) << index;
        EXPECT_EQ(added.last().at(4, 4) >> 24, 0u) << index;
    }
    EXPECT_NE(add({8, 8}, 2, {0x7FFFFFFF, 8}), -1);
    EXPECT_EQ(added.last().at(4, 4) >> 24, 0u);
}

// Lists

TEST_F(AlphaImageSource, CreatingAgainClearsFirst)
{
    add({8, 8});
    const GdiCounter gdi;
    for (int i = 0; i < 20; ++i) {
        EXPECT_TRUE(images.Create(8, 8, 8));
        EXPECT_EQ(::ImageList_GetImageCount(images.GetImageList()), 0);
        EXPECT_EQ(::ImageList_GetImageCount(images.GetHotImageList()), 0);
        EXPECT_EQ(add({8, 8}), 0);
    }
    EXPECT_EQ(gdi.grown(), 0);
}

TEST_F(AlphaImageSource, CreatingAgainAtASizeThatCannotBeLeavesTheObjectEmpty)
{
    EXPECT_FALSE(images.Create(-1, 8, 8));
    EXPECT_EQ(images.GetImageList(), nullptr);
    EXPECT_EQ(images.GetHotImageList(), nullptr);
    EXPECT_TRUE(images.Create(8, 8, 8));
    EXPECT_EQ(add({8, 8}), 0);
}
