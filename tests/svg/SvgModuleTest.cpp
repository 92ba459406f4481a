// The module of drawings as hosts use it: bitmaps, strips, image lists, errors.
#include "resource.h"

#include <support/OwnedDib.h>

#include <testkit/GdiCounter.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/ImportPatch.h>
#include <testkit/TemporaryFiles.h>

#include <ovosvg/ovosvg.h>

#include <ovocor/WinError.h>

#include <ovoui/images/ImageStrips.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <cwchar>
#include <fstream>
#include <string_view>
#include <tuple>

using namespace ovo::testkit;
using namespace ovosvg;

namespace
{

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kLime = RGB(0, 255, 0);
constexpr int kPaleLime = 219; // the grey of lime, 0.7152 of white, half transparent on white

/// An image of a list as it looks on white.
class Shown
{
public:
    Shown(HIMAGELIST list, int image, int size)
    {
        m_dc.CreateCompatibleDC(nullptr);
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        m_bitmap.Attach(::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        m_old = m_dc.SelectObject(&m_bitmap);
        m_dc.FillSolidRect(0, 0, size, size, kWhite);
        ::ImageList_Draw(list, image, m_dc, 0, 0, ILD_TRANSPARENT);
    }
    ~Shown() { m_dc.SelectObject(m_old); }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

    COLORREF at(int x, int y) const { return ::GetPixel(m_dc, x, y); }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_old = nullptr;
};

SvgDrawing filled(const std::string& fill)
{
    return SvgDrawing::fromText("<svg viewBox='0 0 4 4'><rect width='4' height='2' fill='" + fill +
                                "'/></svg>");
}

HBITMAP WINAPI noBitmap(HDC, const BITMAPINFO*, UINT, void**, HANDLE, DWORD)
{
    return nullptr;
}

BOOL WINAPI noBytes(HANDLE, void*, DWORD, DWORD*, OVERLAPPED*)
{
    ::SetLastError(ERROR_CRC);
    return FALSE;
}

/// What a call raises.
template <class Call>
SvgError errorOf(const Call& call)
{
    try {
        call();
    } catch (const SvgError& error) {
        return error;
    }
    ADD_FAILURE() << "nothing was raised";
    return SvgError({});
}

} // namespace

TEST(SvgModule, DrawsBitmapsInBothForms)
{
    const OwnedDib straight(filled("#ff804080").draw(8, 4));
    EXPECT_EQ(straight.size(), CSize(8, 4));
    EXPECT_EQ(straight.at(4, 0), 0x80FF8040u) << "from the top";
    EXPECT_EQ(straight.at(4, 3), 0u);
    EXPECT_EQ(straight.at(0, 0), 0u) << "the square picture is in the middle";
    const OwnedDib premultiplied(filled("#ff804080").draw(8, 4, CLR_DEFAULT, SvgPixels::Premultiplied));
    EXPECT_EQ(premultiplied.at(4, 0), 0x80804020u);
    EXPECT_EQ(filled("red").draw(0, 4), nullptr);
    EXPECT_EQ(filled("red").draw(4, -1), nullptr);
}

TEST(SvgModule, CurrentColourIsTheHostsOrTheSystems)
{
    const OwnedDib own(filled("currentColor").draw(4, 4, RGB(1, 2, 3)));
    EXPECT_EQ(own.at(1, 1), 0xFF010203u);
    const COLORREF text = ::GetSysColor(COLOR_BTNTEXT);
    const OwnedDib system(filled("currentColor").draw(4, 4));
    EXPECT_EQ(system.at(1, 1), 0xFF000000u | RGB(GetBValue(text), GetGValue(text), GetRValue(text)));
}

TEST(SvgModule, StripsHaveTheirDrawingsFromTheLeft)
{
    const std::vector<SvgDrawing> three{filled("red"), filled("lime"), filled("blue")};
    for (const int size : {4, 20}) {
        const OwnedDib strip(svgStrip(three, size));
        ASSERT_EQ(strip.size(), CSize(3 * size, size));
        EXPECT_EQ(strip.at(size - 1, 1), 0xFFFF0000u);
        EXPECT_EQ(strip.at(size, 1), 0xFF00FF00u);
        EXPECT_EQ(strip.at(2 * size, 1), 0xFF0000FFu);
        EXPECT_EQ(strip.at(2 * size, size - 1), 0u);
    }
    EXPECT_EQ(svgStrip({}, 16), nullptr);
    EXPECT_EQ(svgStrip(three, 0), nullptr);
    EXPECT_EQ(svgStrip(three, -4), nullptr);
    EXPECT_EQ(svgStrip(three, 20000), nullptr) << "more than a bitmap may have";
}

// Half a picture is drawn and its edge lies between two pixels at each size, so nothing is blurred.
TEST(SvgModule, StripsFillImageListsOfEverySize)
{
    const GdiPlusSession gdiPlus;
    CImageStrips images(SvgStrip({filled("red"), filled("lime")}), 16);
    images.UseDisabledImages(true);
    for (const auto& [dots, size] : {std::pair(96, 16), {120, 20}, {144, 24}, {192, 32}, {240, 40}}) {
        ASSERT_TRUE(images.Load(dots));
        EXPECT_EQ(images.GetSize(), size);
        ASSERT_EQ(::ImageList_GetImageCount(images.GetImageList()), 2);
        ASSERT_EQ(::ImageList_GetImageCount(images.GetDisabledImageList()), 2);
        const Shown normal(images.GetImageList(), 1, size);
        const Shown disabled(images.GetDisabledImageList(), 1, size);
        for (const int x : {0, size / 2, size - 1}) {
            EXPECT_EQ(normal.at(x, 0), kLime) << dots;
            EXPECT_EQ(normal.at(x, size / 2 - 1), kLime) << dots;
            EXPECT_EQ(normal.at(x, size / 2), kWhite) << dots;
            EXPECT_NEAR(GetRValue(disabled.at(x, 0)), kPaleLime, 1) << dots;
            EXPECT_EQ(GetRValue(disabled.at(x, 0)), GetGValue(disabled.at(x, 0))) << dots;
            EXPECT_EQ(disabled.at(x, size / 2), kWhite) << dots;
        }
    }
}

// A half transparent colour lies on what is behind it as far as its alpha says, once.
TEST(SvgModule, AlphaIsBlendedOnce)
{
    const GdiPlusSession gdiPlus;
    CImageStrips images(SvgStrip({filled("#0000ff80")}), 16);
    ASSERT_TRUE(images.Load(96));
    const Shown shown(images.GetImageList(), 0, 16);
    EXPECT_NEAR(GetRValue(shown.at(8, 2)), 127, 1);
    EXPECT_NEAR(GetGValue(shown.at(8, 2)), 127, 1);
    EXPECT_EQ(GetBValue(shown.at(8, 2)), 255);
}

TEST(SvgModule, StripsCanBeAddedToOtherLists)
{
    const GdiPlusSession gdiPlus;
    CAlphaImageList list;
    list.Create(24, 24, 2);
    const OwnedDib strip(svgStrip({filled("red"), filled("lime")}, 24));
    EXPECT_EQ(list.AddBitmap(0, false, -1, CSize(24, 24), CSize(24, 24), strip.handle(), nullptr), 0);
    EXPECT_EQ(::ImageList_GetImageCount(list.GetImageList()), 2);
}

TEST(SvgModule, ReadsFilesAndResources)
{
    const TemporaryFiles files;
    const std::wstring path = files.path(L"größe.svg");
    std::ofstream(std::filesystem::path(path))
        << "<svg viewBox='0 0 4 4'><rect width='4' height='2' fill='red'/></svg>";
    const OwnedDib fromFile(SvgDrawing::fromFile(path).draw(4, 4));
    EXPECT_EQ(fromFile.at(1, 1), 0xFFFF0000u);
    const OwnedDib fromResource(SvgDrawing::fromResource(TESTDRAWING).draw(4, 4));
    EXPECT_EQ(fromResource.at(1, 1), 0xFF0000FFu);

    try {
        SvgDrawing::fromFile(files.path(L"none.svg"));
        FAIL() << "no such file";
    } catch (const WinError& error) {
        EXPECT_EQ(error.code(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
        EXPECT_NE(std::wstring(error.wwhat()).find(L"none.svg"), std::wstring::npos);
    }
    for (const auto& [id, type, name] : {std::tuple(4711u, L"SVG", L"4711 SVG"),
                                         {UINT{TESTDRAWING}, L"OTHER", L"401 OTHER"},
                                         {UINT{TESTDRAWING}, RT_RCDATA, L"401 10"}})
        try {
            SvgDrawing::fromResource(id, type);
            FAIL() << "no such resource";
        } catch (const WinError& error) {
            EXPECT_NE(error.code(), 0u);
            EXPECT_TRUE(std::wstring_view(error.wwhat()).starts_with(name)) << error.what();
        }
    // A file larger than a drawing may be is not read to its end.
    std::ofstream(std::filesystem::path(files.path(L"large.svg"))) << std::string(5 << 20, ' ');
    EXPECT_EQ(errorOf([&] { SvgDrawing::fromFile(files.path(L"large.svg")); }).note().issue,
              SvgIssue::TooLarge);
}

TEST(SvgModule, WithoutABitmapThereIsNoneAndNothingIsLoaded)
{
    const GdiPlusSession gdiPlus;
    CImageStrips images(SvgStrip({filled("red")}), 16);
    ASSERT_TRUE(images.Load(96));
    const HIMAGELIST before = images.GetImageList();
    const ImportPatch patch(L"ovosvg11.dll", "CreateDIBSection", reinterpret_cast<void*>(&noBitmap));
    EXPECT_EQ(filled("red").draw(4, 4), nullptr);
    EXPECT_EQ(svgStrip({filled("red")}, 4), nullptr);
    EXPECT_FALSE(images.Load(144));
    EXPECT_EQ(images.GetImageList(), before) << "what was loaded stays";
    EXPECT_EQ(images.GetSize(), 16);
}

TEST(SvgModule, AFileThatCannotBeReadIsAnError)
{
    const TemporaryFiles files;
    const std::wstring path = files.path(L"a.svg");
    std::ofstream(std::filesystem::path(path)) << "<svg/>";
    const ImportPatch patch(L"ovosvg11.dll", "ReadFile", reinterpret_cast<void*>(&noBytes));
    try {
        SvgDrawing::fromFile(path);
        FAIL() << "nothing was raised";
    } catch (const WinError& error) {
        EXPECT_EQ(error.code(), static_cast<DWORD>(ERROR_CRC));
        EXPECT_NE(std::wstring(error.wwhat()).find(L"a.svg"), std::wstring::npos);
    }
}

TEST(SvgModule, ErrorsNameThePlace)
{
    const SvgError xml = errorOf([] { SvgDrawing::fromText("<svg>\n <g>\n</svg>"); });
    EXPECT_EQ(xml.note(), (SvgNote{SvgIssue::NotWellFormed, 3, 1, "not the end of g"}));
    const std::wstring text = xml.wwhat();
    EXPECT_NE(text.find(L"line 3, column 1"), std::wstring::npos) << xml.what();
    const SvgError html = errorOf([] { SvgDrawing::fromText("<h\xC3\xBCml/>"); });
    EXPECT_NE(std::wstring(html.wwhat()).find(L"\"hüml\""), std::wstring::npos) << html.what();
    const SvgError endlessName = errorOf([] { SvgDrawing::fromText("<" + std::string(5000, 'n') + "/>"); });
    EXPECT_LT(std::wcslen(endlessName.wwhat()), 300u) << "a text that fits a message box";
    const auto endless = SvgDrawing::fromText("<svg><g id='a'><use href='#a'/></g></svg>");
    EXPECT_EQ(errorOf([&] { endless.draw(16, 16); }).note().issue, SvgIssue::TooLarge);
    EXPECT_EQ(errorOf([&] { endless.notes(); }).note().what, "depth");
    EXPECT_EQ(errorOf([&] { svgStrip({endless}, 16); }).note().what, "depth");
    std::string nested = "<svg>";
    for (int i = 0; i < 70; ++i)
        nested += "\n  <g>";
    const SvgError deep = errorOf([&] { SvgDrawing::fromText(nested); });
    EXPECT_NE(std::wstring(deep.wwhat()).find(L"line 65, column 3"), std::wstring::npos) << deep.what();
    const SvgError large = errorOf([] { filled("red").draw(4000, 4000); });
    EXPECT_EQ(large.note(), (SvgNote{SvgIssue::TooLarge, 0, 0, "size"}));
    EXPECT_EQ(std::wstring(large.wwhat()).find(L"line"), std::wstring::npos) << "no place is named";
    const SvgError copy = xml;
    EXPECT_EQ(copy.note().line, 3);
}

TEST(SvgModule, TellsWhatIsNotDrawn)
{
    const auto drawing = SvgDrawing::fromText("<svg>\n<text>a</text><rect width='wide'/></svg>");
    EXPECT_EQ(drawing.notes(), (std::vector<SvgNote>{{SvgIssue::NotSupported, 2, 1, "text"},
                                                     {SvgIssue::BadValue, 2, 15, "width"}}));
    EXPECT_TRUE(filled("red").notes().empty());
}

TEST(SvgModule, LeavesNothingBehind)
{
    const auto endless = SvgDrawing::fromText("<svg><g id='a'><use href='#a'/></g></svg>");
    const GdiCounter gdi;
    for (int i = 0; i < 20; ++i) {
        const OwnedDib strip(svgStrip({filled("red")}, 16));
        const OwnedDib bitmap(filled("red").draw(8, 8));
        EXPECT_THROW(SvgDrawing::fromText("<svg"), SvgError);
        EXPECT_THROW(svgStrip({filled("red"), endless}, 16), SvgError) << "with a bitmap half filled";
        EXPECT_THROW(endless.draw(16, 16), SvgError);
    }
    EXPECT_EQ(gdi.grown(), 0);
}
