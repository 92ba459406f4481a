// Pens, brushes, fonts and palettes: what each way of making one gives.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Picture.h>

#include <cstring>

using ovo::testkit::Picture;

TEST(Pen, TheConstructorMakesOneOfStyleWidthAndColour)
{
    CPen pen(PS_SOLID, 3, RGB(1, 2, 3));
    LOGPEN description{};

    EXPECT_NE(pen.GetLogPen(&description), 0);
    EXPECT_EQ(description.lopnStyle, static_cast<UINT>(PS_SOLID));
    EXPECT_EQ(description.lopnWidth.x, 3);
    EXPECT_EQ(description.lopnColor, RGB(1, 2, 3));
}

TEST(Pen, AGeometricPenKeepsItsDashes)
{
    const LOGBRUSH brush{BS_SOLID, RGB(1, 2, 3), 0};
    const DWORD dashes[] = {7, 3};
    CPen pen(PS_GEOMETRIC | PS_USERSTYLE, 2, &brush, 2, dashes);
    BYTE room[sizeof(EXTLOGPEN) + 8]{};
    auto& description = reinterpret_cast<EXTLOGPEN&>(room);

    EXPECT_NE(pen.GetExtLogPen(&description), 0);
    EXPECT_EQ(description.elpNumEntries, 2u);
    EXPECT_EQ(description.elpStyleEntry[0], 7u);
    EXPECT_EQ(description.elpStyleEntry[1], 3u);
}

TEST(Pen, CreatePenIndirectFollowsTheDescription)
{
    LOGPEN wanted{PS_DOT, {1, 0}, RGB(7, 7, 7)};
    CPen pen;
    LOGPEN got{};

    EXPECT_TRUE(pen.CreatePenIndirect(&wanted));
    pen.GetLogPen(&got);
    EXPECT_EQ(got.lopnStyle, wanted.lopnStyle);
    EXPECT_EQ(got.lopnColor, wanted.lopnColor);
}

TEST(Pen, TheConstructorThrowsWhenThereIsNoSuchPen)
{
    const LOGBRUSH brush{BS_SOLID, 0, 0};
    try {
        CPen pen(PS_COSMETIC | PS_SOLID, 5, &brush); // cosmetic pens are one pixel wide
        FAIL() << "a pen was made";
    } catch (CResourceException* exception) {
        exception->Delete();
    }
}

TEST(Brush, SolidAndHatchBrushesAreWhatTheyWereAskedToBe)
{
    CBrush solid(RGB(1, 2, 3));
    CBrush hatch(HS_CROSS, RGB(4, 5, 6));
    LOGBRUSH description{};

    EXPECT_NE(solid.GetLogBrush(&description), 0);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(description.lbColor, RGB(1, 2, 3));
    hatch.GetLogBrush(&description);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_HATCHED));
    EXPECT_EQ(description.lbHatch, static_cast<ULONG_PTR>(HS_CROSS));
}

TEST(Brush, APatternBrushRepeatsItsBitmapAndOutlivesIt)
{
    Picture picture(8, 8);
    CDC* dc = CDC::FromHandle(picture.dc());
    CBrush brush;
    {
        Picture tile(2, 2, RGB(255, 0, 0));
        ::SetPixel(tile.dc(), 1, 0, RGB(0, 0, 255));
        CBitmap* bitmap = CDC::FromHandle(tile.dc())->GetCurrentBitmap();
        brush.CreatePatternBrush(bitmap);
    }

    dc->FillRect(CRect(0, 0, 8, 8), &brush);

    EXPECT_THAT(picture.at(0, 0), ovo::testkit::IsColour(RGB(255, 0, 0)));
    EXPECT_THAT(picture.at(1, 0), ovo::testkit::IsColour(RGB(0, 0, 255)));
    EXPECT_THAT(picture.at(5, 4), ovo::testkit::IsColour(RGB(0, 0, 255)));
    EXPECT_EQ(picture.count(RGB(0, 0, 255)), 16);
}

TEST(Brush, APackedDibOfOneBitMakesACheckeredBrush)
{
    struct
    {
        BITMAPINFOHEADER header{sizeof(BITMAPINFOHEADER), 4, 4, 1, 1, BI_RGB, 0, 0, 0, 2, 0};
        RGBQUAD colours[2]{{0, 0, 0, 0}, {255, 255, 255, 0}};
        DWORD rows[4]{0xC0, 0xC0, 0x30, 0x30};
    } dib;
    Picture picture(4, 4, RGB(9, 9, 9));
    CBrush brush;

    ASSERT_TRUE(brush.CreateDIBPatternBrush(&dib, DIB_RGB_COLORS));
    CDC::FromHandle(picture.dc())->FillRect(CRect(0, 0, 4, 4), &brush);

    EXPECT_EQ(picture.count(RGB(255, 255, 255)), 8);
    EXPECT_EQ(picture.count(RGB(0, 0, 0)), 8);
    EXPECT_NE(picture.at(0, 0), picture.at(3, 0));
    EXPECT_EQ(picture.at(0, 0), picture.at(3, 3));
}

TEST(Brush, APackedDibInGlobalMemoryIsReadAtOnce)
{
    const BITMAPINFOHEADER header{sizeof(BITMAPINFOHEADER), 1, 1, 1, 24, BI_RGB, 4, 0, 0, 0, 0};
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, sizeof header + 4);
    auto* bytes = static_cast<BYTE*>(::GlobalLock(memory));
    std::memcpy(bytes, &header, sizeof header);
    std::memcpy(bytes + sizeof header, "\x10\x20\x30\x00", 4); // blue, green, red
    ::GlobalUnlock(memory);
    CBrush brush;
    Picture picture(2, 2);

    EXPECT_TRUE(brush.CreateDIBPatternBrush(memory, DIB_RGB_COLORS));
    ::GlobalFree(memory);
    CDC::FromHandle(picture.dc())->FillRect(CRect(0, 0, 2, 2), &brush);

    EXPECT_EQ(picture.at(1, 1), RGB(0x30, 0x20, 0x10));
}

TEST(Brush, ASystemColourBrushHasTheSystemColour)
{
    CBrush brush;
    Picture picture(1, 1);

    EXPECT_TRUE(brush.CreateSysColorBrush(COLOR_HIGHLIGHT));
    CDC::FromHandle(picture.dc())->FillRect(CRect(0, 0, 1, 1), &brush);

    EXPECT_EQ(picture.at(0, 0), ::GetSysColor(COLOR_HIGHLIGHT));
}

TEST(Font, APointFontIsAsHighAsItsPointsOnTheDevice)
{
    CFont font;
    LOGFONT description{};

    EXPECT_TRUE(font.CreatePointFont(120, L"Tahoma")); // 12 points
    font.GetLogFont(&description);

    const int pixelsPerInch = CClientDC(nullptr).GetDeviceCaps(LOGPIXELSY);
    EXPECT_EQ(description.lfHeight, -::MulDiv(12, pixelsPerInch, 72));
    EXPECT_STREQ(description.lfFaceName, L"Tahoma");
}

TEST(Font, APointFontFollowsTheMappingOfTheContext)
{
    CClientDC dc(nullptr);
    dc.SetMapMode(MM_TWIPS); // a twentieth of a point
    CFont font;
    LOGFONT description{};

    font.CreatePointFont(100, L"Tahoma", &dc);
    font.GetLogFont(&description);

    EXPECT_NEAR(description.lfHeight, -10 * 20, 20); // whole pixels
}

TEST(Font, CreateFontIndirectAndCreateFontGiveTheSame)
{
    LOGFONT wanted{};
    wanted.lfHeight = -17;
    wanted.lfWeight = FW_BOLD;
    wanted.lfItalic = TRUE;
    ::lstrcpyW(wanted.lfFaceName, L"Tahoma");
    CFont indirect;
    CFont direct;
    LOGFONT first{};
    LOGFONT second{};

    EXPECT_TRUE(indirect.CreateFontIndirect(&wanted));
    EXPECT_TRUE(direct.CreateFont(-17, 0, 0, 0, FW_BOLD, TRUE, FALSE, FALSE, 0, 0, 0, 0, 0, L"Tahoma"));
    indirect.GetLogFont(&first);
    direct.GetLogFont(&second);

    EXPECT_EQ(first.lfHeight, second.lfHeight);
    EXPECT_EQ(first.lfWeight, second.lfWeight);
    EXPECT_EQ(first.lfItalic, second.lfItalic);
    EXPECT_STREQ(first.lfFaceName, second.lfFaceName);
}

TEST(Palette, CountsAndGivesBackItsEntries)
{
    struct
    {
        WORD version = 0x300;
        WORD count = 2;
        PALETTEENTRY entries[2]{{1, 2, 3, 0}, {200, 100, 50, 0}};
    } wanted;
    CPalette palette;
    PALETTEENTRY got[2]{};

    EXPECT_TRUE(palette.CreatePalette(reinterpret_cast<LPLOGPALETTE>(&wanted)));
    EXPECT_EQ(palette.GetEntryCount(), 2);
    EXPECT_EQ(palette.GetPaletteEntries(0, 2, got), 2u);
    EXPECT_EQ(got[1].peRed, 200);
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(190, 110, 60)), 1u);
    EXPECT_TRUE(palette.ResizePalette(1));
    EXPECT_EQ(palette.GetEntryCount(), 1);
}
