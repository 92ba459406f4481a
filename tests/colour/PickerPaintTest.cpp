// What the picker shows: patch, wheel, markers and swatches.
#include "PickerScene.h"
#include <testkit/GdiCounter.h>
#include <testkit/ImportPatch.h>

#include <ovoui/colour/core/WheelRaster.h>

#include <gdiplus.h>

#include <random>

using namespace ovo::testkit;

namespace
{

class PickerPaint : public PickerScene
{
protected:
    /// How many pixels of a part differ.
    static int differences(const Picture& one, const Picture& other, CRect part)
    {
        int count = 0;
        for (int y = part.top; y < part.bottom; ++y)
            for (int x = part.left; x < part.right; ++x)
                count += one.at(x, y) != other.at(x, y);
        return count;
    }

    CRect wheelAndMargin() const
    {
        CRect area = picker->m_wheelRect;
        area.InflateRect(3, 3);
        return area;
    }

    Picture shown() const
    {
        picker->UpdateWindow();
        return Picture::ofClient(picker->m_hWnd);
    }

    /// What a dialog looks like that has just been opened with the picker's colour.
    Picture fresh() const
    {
        Picker other(TestApp::instance(), picker->m_mode, picker->GetColour(), nullptr, nullptr);
        other.createColPickerDlgBase();
        ready(other);
        other.UpdateWindow();
        Picture picture = Picture::ofClient(other.m_hWnd);
        other.DestroyWindow();
        return picture;
    }
};

Colour randomColour(std::mt19937& random)
{
    std::uniform_real_distribution<double> part(0, 1);
    return Colour::hls(Angle::degrees(360 * part(random)), part(random), part(random));
}

COLORREF faceColour()
{
    return ::GetSysColor(COLOR_BTNFACE);
}

} // namespace

// The wheel

TEST_F(PickerPaint, RingAndTriangleAreWhatTheRasterGives)
{
    open(ColPickerModeHLS, Colour::hls(Angle::degrees(200), 0.25, 0.5));
    const Picture picture = shown();
    const CRect wheel = picker->m_wheelRect;
    const ovoui::colour::WheelRaster raster({wheel.left, wheel.top, wheel.right, wheel.bottom});
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(wheel.Width() * wheel.Height()), 0);
    raster.drawRing(pixels.data());
    raster.drawTriangle(pixels.data(), Angle::degrees(200));
    int other = 0;
    for (int y = 0; y < wheel.Height(); ++y)
        for (int x = 0; x < wheel.Width(); ++x) {
            const std::uint32_t pixel = pixels[static_cast<std::size_t>(y * wheel.Width() + x)];
            const COLORREF expected =
                pixel ? RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF) : faceColour();
            other += picture.at(wheel.left + x, wheel.top + y) != expected;
        }
    const int radius = ovoui::colour::markerRadius(raster.ring());
    EXPECT_GT(other, 0) << "the markers";
    EXPECT_LT(other, 4 * radius + 8 * radius);
}

TEST_F(PickerPaint, MarkersInvertWhatIsUnderThem)
{
    open(ColPickerModeRGB, Colour::rgb(1, 0, 0)); // at the top vertex of both
    const Picture picture = shown();
    const CPoint centre = picker->centre();
    const double inner = picker->outer() * 0.8;
    const int radius = static_cast<int>(std::lround((picker->outer() - inner) * 0.5));
    const int y = static_cast<int>(std::lround(centre.y - (picker->outer() + inner) / 2));
    EXPECT_EQ(picture.at(centre.x, y), RGB(255, 0, 0)) << "inside of the circle";
    EXPECT_EQ(picture.at(centre.x, y - radius), RGB(0, 255, 255)) << "the circle on red";
    const int apex = static_cast<int>(std::lround(centre.y - inner + 5));
    EXPECT_EQ(picture.at(centre.x, apex), RGB(255, 0, 0)) << "the middle of the cross";
    EXPECT_THAT(picture.at(centre.x, apex + 3), IsColour(RGB(0, 255, 255), 6)) << "below it, nearly red";
}

TEST_F(PickerPaint, MarkersLeaveNoTraceAfterAThousandMoves)
{
    open();
    std::mt19937 random(20240507);
    CRect client;
    picker->GetClientRect(&client);
    for (int i = 0; i < 1000; ++i) {
        picker->SetColour(picker.get(), randomColour(random), true);
        if (i % 3 == 0)
            picker->UpdateWindow();
        if (i % 5 == 0) {
            const int left = static_cast<int>(random() % static_cast<unsigned>(client.right));
            const int top = static_cast<int>(random() % static_cast<unsigned>(client.bottom));
            const CRect part(left, top, left + 1 + static_cast<int>(random() % 60),
                             top + 1 + static_cast<int>(random() % 60));
            picker->InvalidateRect(&part, i % 2 == 0);
        }
        if (i % 11 == 0)
            picker->UpdateWindow();
    }
    const Picture worn = shown();
    EXPECT_EQ(differences(worn, fresh(), wheelAndMargin()), 0);
}

TEST_F(PickerPaint, MinimisingAndChangesOfTheSystemLeaveNoTrace)
{
    open();
    std::mt19937 random(7);
    picker->ShowWindow(SW_MINIMIZE);
    picker->SetColour(picker.get(), randomColour(random), true);
    picker->ShowWindow(SW_RESTORE);
    EXPECT_EQ(differences(shown(), fresh(), wheelAndMargin()), 0);
    present(*picker);
    picker->ShowWindow(SW_HIDE);
    picker->SetColour(picker.get(), randomColour(random), true);
    picker->ShowWindow(SW_SHOW);
    EXPECT_EQ(differences(shown(), fresh(), wheelAndMargin()), 0);
    present(*picker);
    for (const UINT message : {static_cast<UINT>(WM_THEMECHANGED), static_cast<UINT>(WM_SYSCOLORCHANGE)}) {
        picker->SendMessage(message);
        picker->SetColour(picker.get(), randomColour(random), true);
        picker->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }
    EXPECT_EQ(differences(shown(), fresh(), wheelAndMargin()), 0);
}

TEST_F(PickerPaint, PlaceholdersDoNotCoverWhatIsDrawnThere)
{
    open();
    EXPECT_FALSE(picker->GetDlgItem(kWheel)->IsWindowVisible());
    EXPECT_FALSE(picker->GetDlgItem(kPatch)->IsWindowVisible());
}

TEST_F(PickerPaint, WithoutGdiPlusNothingIsDrawnAndNothingCrashes)
{
    const auto refuse = +[](INT, INT, INT, Gdiplus::PixelFormat, BYTE*, void**) -> Gdiplus::GpStatus {
        return Gdiplus::GdiplusNotInitialized;
    };
    const ImportPatch patch(L"ovoui.dll", "GdipCreateBitmapFromScan0", reinterpret_cast<void*>(refuse));
    open();
    const Picture picture = shown();
    CRect wheel = picker->m_wheelRect;
    EXPECT_EQ(picture.count(faceColour(), 0, wheel), wheel.Width() * wheel.Height());
    EXPECT_FALSE(picker->DoLButtonDown(picker.get(), 0, picker->centre()));
    picker->SetColour(picker.get(), Colour::rgb(0, 0, 1), true);
    EXPECT_EQ(shown().at(picker->m_patchRect.CenterPoint()), RGB(0, 0, 255));
}

// The patch

TEST_F(PickerPaint, ThePatchShowsTheColour)
{
    open();
    const CRect patch = picker->m_patchRect;
    EXPECT_EQ(shown().count(RGB(255, 128, 0), 0, patch), patch.Width() * patch.Height());
}

TEST_F(PickerPaint, AColourOfFullOpacityFillsThePatch)
{
    open(ColPickerModeRGB, Colour::rgba(0, 0.6, 0.2, 1));
    const CRect patch = picker->m_patchRect;
    EXPECT_EQ(shown().count(RGB(0, 153, 51), 0, patch), patch.Width() * patch.Height());
}

TEST_F(PickerPaint, HalfOfThePatchShowsTheColourOverBlackAndWhite)
{
    open(ColPickerModeRGB, Colour::rgba(1, 0.6, 0, 0.4));
    const CRect patch = picker->m_patchRect;
    const int middle = patch.right - patch.Width() / 2;
    const CRect left(patch.left, patch.top, middle, patch.bottom);
    const CRect right(middle, patch.top, patch.right, patch.bottom);
    const Picture picture = shown();
    EXPECT_EQ(picture.count(RGB(255, 153, 0), 0, left), left.Width() * left.Height());
    const COLORREF overBlack = RGB(102, 61, 0);
    const COLORREF overWhite = RGB(255, 214, 153);
    EXPECT_EQ(picture.count(overBlack, 0, right) + picture.count(overWhite, 0, right),
              right.Width() * right.Height());
    EXPECT_GT(picture.count(overBlack, 0, right), right.Width() * right.Height() / 3);
    for (int y = right.top; y < right.bottom; ++y)
        for (int x = right.left; x + 8 < right.right; ++x)
            ASSERT_NE(picture.at(x, y), picture.at(x + 8, y)) << "squares of 8 pixels";
    for (int x = right.left; x < right.right; ++x)
        ASSERT_NE(picture.at(x, right.top), picture.at(x, right.top + 8));
}

TEST_F(PickerPaint, ColoursAreFollowed)
{
    open(ColPickerModeRGB, Colour::rgba(1, 0.6, 0, 0.4));
    picker->SetColour(picker.get(), Colour::rgba(0, 0, 1, 0.2), false);
    const Picture picture = shown();
    EXPECT_EQ(picture.at(picker->m_patchRect.left + 2, picker->m_patchRect.top + 2), RGB(0, 0, 255));
    EXPECT_GT(picture.count(RGB(0, 0, 51), 0, picker->m_patchRect), 0);
    EXPECT_GT(picture.count(RGB(204, 204, 255), 0, picker->m_patchRect), 0);
}

// Swatches

TEST_F(PickerPaint, SwatchesAreSunkenAndFilled)
{
    for (const int dialogTemplate : {kSwatchTemplate, kNarrowSwatchTemplate}) {
        openSwatches(dialogTemplate);
        host->UpdateWindow();
        const Picture picture = Picture::ofClient(host->m_hWnd);
        for (std::size_t i = 0; i < 18; ++i) {
            const CRect swatch = host->m_swatches[i];
            const CRect inside(swatch.left + 1, swatch.top + 1, swatch.right - 1, swatch.bottom - 1);
            EXPECT_EQ(picture.count(host->custom[i], 0, inside), inside.Width() * inside.Height()) << i;
            EXPECT_EQ(picture.at(swatch.left, swatch.bottom - 2), ::GetSysColor(COLOR_3DDKSHADOW));
            EXPECT_EQ(picture.at(swatch.right - 2, swatch.top), ::GetSysColor(COLOR_3DDKSHADOW));
            EXPECT_EQ(picture.at(swatch.right - 1, swatch.bottom - 1), ::GetSysColor(COLOR_BTNHIGHLIGHT));
            EXPECT_EQ(picture.at(swatch.left + 1, swatch.bottom - 1), ::GetSysColor(COLOR_BTNHIGHLIGHT));
            int index = -1;
            EXPECT_TRUE(host->PtInCustomColour(swatch.TopLeft(), index));
            EXPECT_EQ(index, static_cast<int>(i));
        }
        CRect edit;
        host->m_value3.GetWindowRect(&edit);
        host->ScreenToClient(&edit);
        EXPECT_EQ(host->m_swatches[8].right + 1, edit.right);
        host->DestroyWindow();
    }
}

TEST_F(PickerPaint, ANarrowAreaHasGapsOfOnePixel)
{
    openSwatches(kNarrowSwatchTemplate);
    host->UpdateWindow();
    EXPECT_EQ(host->m_swatches[1].left - host->m_swatches[0].right, 3) << "1 and what each is inset";
    EXPECT_EQ(host->m_swatches[0].Width() + 2, (host->m_customRect.Width() - 8) / 9);
}

// What a drag costs

namespace
{

int g_allocations = 0;

void* countedNew(std::size_t size)
{
    ++g_allocations;
    return ::operator new(size);
}

} // namespace

TEST_F(PickerPaint, ADragOfAThousandMovesAllocatesNothingAndLosesNothing)
{
    open();
    const CPoint centre = picker->centre();
    const double radius = picker->outer() * 0.9;
    const auto moveTo = [&](int step) {
        const Angle angle = Angle::degrees(step * 7.3);
        const int x = centre.x + static_cast<int>(std::lround(radius * angle.cos()));
        const int y = centre.y + static_cast<int>(std::lround(radius * angle.sin()));
        picker->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, y));
        picker->UpdateWindow();
    };
    picker->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON,
                        MAKELPARAM(centre.x, centre.y - static_cast<int>(radius)));
    picker->told.reserve(2000);
    moveTo(0);

    const ImportPatch counting(L"ovoui.dll", "_Znwy", reinterpret_cast<void*>(&countedNew));
    const GdiCounter gdi;
    g_allocations = 0;
    for (int step = 1; step <= 1000; ++step)
        moveTo(step);
    EXPECT_EQ(g_allocations, 0);
    EXPECT_LE(gdi.grown(), 0);
    EXPECT_GT(picker->told.size(), 1000u);
    picker->DestroyWindow();
    g_allocations = 0;
    picker->createColPickerDlgBase();
    EXPECT_GT(g_allocations, 0) << "it does count";
}

// Leaks

TEST_F(PickerPaint, NothingIsLost)
{
    const auto cycle = [this] {
        open(ColPickerModeRGB, Colour::rgba(1, 0.6, 0, 0.4));
        for (int i = 0; i < 20; ++i) {
            picker->SetColour(picker.get(), Colour::rgba(i / 20.0, 0.5, 0, 0.5), true);
            picker->UpdateWindow();
        }
        picker->DestroyWindow();
        picker.reset();
    };
    cycle();
    cycle(); // what the platform keeps for itself
    const GdiCounter gdi;
    for (int i = 0; i < 10; ++i)
        cycle();
    EXPECT_LE(gdi.grown(), 0);
}
