// What the gallery asks the system for, and what it makes of the resolution.
#include "GalleryScene.h"

#include "Resolution.h"
#include "resource.h"

#include <afxcmn.h>

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

namespace
{

int dotsOfScreen()
{
    CClientDC screen(nullptr);
    return screen.GetDeviceCaps(LOGPIXELSX);
}

CSize imageSizeOf(HWND window, UINT question)
{
    const auto images = reinterpret_cast<HIMAGELIST>(::SendMessageW(window, question, TVSIL_NORMAL, 0));
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(images, &width, &height);
    return {width, height};
}

CSize imageSizeOf(HWND tree)
{
    return imageSizeOf(tree, TVM_GETIMAGELIST);
}

/// What the manifest of the program names: the systems that it was written for.
DWORD supportedSystems()
{
    SIZE_T needed = 0;
    std::array<ULONGLONG, 64> room{};
    if (!::QueryActCtxW(0, nullptr, nullptr, CompatibilityInformationInActivationContext, room.data(),
                        sizeof room, &needed))
        return 0;
    // Systems are all that it names; what follows the number differs between versions of Windows.
    return reinterpret_cast<const ACTIVATION_CONTEXT_COMPATIBILITY_INFORMATION*>(room.data())->ElementCount;
}

} // namespace

// Otherwise the system gives the program a screen of 96 dots per inch and stretches what it draws.
TEST(GalleryResolution, IsTheOneOfTheScreen)
{
    const char* const wanted = std::getenv("OVO_DPI");
    ASSERT_NE(wanted, nullptr) << "the run says its resolution";
    EXPECT_EQ(dotsOfScreen(), std::atoi(wanted));
    EXPECT_TRUE(::IsProcessDPIAware());
}

TEST(GalleryResolution, ManifestNamesTheSystems)
{
    EXPECT_EQ(supportedSystems(), 4u);
}

TEST(GalleryResolution, LengthsScale)
{
    GalleryScene scene;
    EXPECT_EQ(dotsPerInch(scene.frame()), dotsOfScreen());
    EXPECT_EQ(scaled(scene.frame(), 96), dotsOfScreen());
    EXPECT_EQ(scaled(scene.frame(), 0), 0);
}

TEST(GalleryResolution, ImagesAreAsLargeAs16PixelsAreAt96)
{
    GalleryScene scene;
    scene.open(L"tree");
    const int size = scaled(scene.frame(), 16);
    EXPECT_EQ(imageSizeOf(::GetDlgItem(scene.frame(), IDC_PAGE_LIST)), CSize(size, size));
    EXPECT_EQ(imageSizeOf(::GetDlgItem(scene.control(IDC_TREE_PROJECT), IDC_PROJECT_TREE)),
              CSize(size, size));
}

TEST(GalleryResolution, PicturesThatAreNotScaledAreTheLargestThatFit)
{
    GalleryScene scene;
    scene.open(L"toolbars");
    const int room = scaled(scene.frame(), 16);
    const int size = room >= 32 ? 32 : room >= 24 ? 24 : 16;
    EXPECT_EQ(imageSizeOf(scene.control(IDC_BARS_SHAPES), TB_GETIMAGELIST), CSize(size, size));
}

TEST(GalleryResolution, TheWindowOpensAsLargeAsThePagesAre)
{
    GalleryScene scene;
    CRect wanted(0, 0, 440, 260);
    scene.page().MapDialogRect(&wanted);
    EXPECT_NEAR(scene.pageSize().cx, wanted.Width(), 8);
    EXPECT_NEAR(scene.pageSize().cy, wanted.Height(), 8);
    // In the proportion of the resolutions, but for what fonts are rounded to.
    EXPECT_NEAR(scene.pageSize().cx, scaled(scene.page(), 660), scaled(scene.page(), 60));
}

TEST(GalleryResolution, AWindowThatDoesNotFitTheScreenIsAsLargeAsTheWorkArea)
{
    GalleryScene scene;
    CRect frame;
    scene.frame().GetWindowRect(&frame);
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_EQ(CRect(work & frame), frame);
}
