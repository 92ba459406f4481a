#include <testkit/Desktop.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>

#include <objidl.h>
#include <gdiplus.h>

#include <gtest/gtest-spi.h>

#include <filesystem>

using namespace ovo::testkit;

namespace
{

constexpr COLORREF kRed = RGB(200, 10, 20);
constexpr COLORREF kBlue = RGB(20, 10, 200);

/// A child window in one colour.
class Swatch : public CWnd
{
public:
    Swatch(CWnd& parent, const CRect& place)
    {
        CreateEx(0, AfxRegisterWndClass(0), nullptr, WS_CHILD | WS_VISIBLE, place, &parent, 9);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_PAINT)
            return CWnd::WindowProc(message, wParam, lParam);
        CPaintDC dc{this};
        CRect client;
        GetClientRect(&client);
        dc.FillSolidRect(&client, kRed);
        return 0;
    }
};

std::filesystem::path temporaryPng()
{
    return std::filesystem::temp_directory_path() / L"testkit picture.png";
}

} // namespace

TEST(Picture, BeginsInOneColour)
{
    const Picture picture{8, 5, kBlue};

    EXPECT_EQ(picture.width(), 8);
    EXPECT_EQ(picture.height(), 5);
    EXPECT_THAT(picture.at(0, 0), IsColour(kBlue));
    EXPECT_EQ(picture.count(kBlue), 40);
}

TEST(Picture, OfAnotherColourFailsTheTestAndSaysWhich)
{
    const Picture picture{12, 9, RGB(10, 20, 30)};
    EXPECT_NONFATAL_FAILURE(EXPECT_THAT(picture.at(0, 0), IsColour(RGB(10, 20, 31))),
                            "red 10, green 20, blue 30");
}

TEST(Picture, ShowsWhatIsDrawnFromTheTopLeft)
{
    const Picture picture{10, 10};
    ::SetPixel(picture.dc(), 2, 7, kRed);

    EXPECT_THAT(picture.at(2, 7), IsColour(kRed));
    EXPECT_THAT(picture.at(7, 2), IsColour(RGB(255, 255, 255)));
    EXPECT_EQ(picture.count(kRed), 1);
    EXPECT_EQ(picture.count(kRed, 0, CRect(0, 0, 10, 7)), 0);
    EXPECT_EQ(picture.count(kRed, 0, CRect(2, 7, 3, 8)), 1);
}

TEST(Picture, HasNoColourOutside)
{
    const Picture picture{4, 4};
    for (const CPoint point : {CPoint{-1, 0}, CPoint{0, -1}, CPoint{4, 0}, CPoint{0, 4}})
        EXPECT_EQ(picture.at(point), CLR_INVALID);
}

TEST(Picture, CountsDifferencesBeyondTheTolerance)
{
    const Picture one{6, 6};
    const Picture other{6, 6};
    ::SetPixel(other.dc(), 1, 1, RGB(250, 255, 255));
    ::SetPixel(other.dc(), 2, 1, RGB(255, 255, 200));

    EXPECT_EQ(one.differences(one), 0);
    EXPECT_EQ(one.differences(other), 2);
    EXPECT_EQ(one.differences(other, 4), 2);
    EXPECT_EQ(one.differences(other, 5), 1);
    EXPECT_EQ(one.differences(other, 55), 0);
    EXPECT_EQ(one.differences(Picture{6, 7}), 42) << "another size differs everywhere";
}

TEST(Picture, OfAWindowShowsItsChildren)
{
    RecordingParent parent{{200, 100}};
    const Swatch swatch{parent, CRect(10, 20, 60, 70)};
    present(parent);

    const Picture client = Picture::ofClient(parent);
    EXPECT_EQ(client.width(), 200);
    EXPECT_EQ(client.height(), 100);
    EXPECT_THAT(client.at(10, 20), IsColour(kRed));
    EXPECT_THAT(client.at(59, 69), IsColour(kRed));
    EXPECT_EQ(client.count(kRed), 50 * 50);

    const Picture window = Picture::ofWindow(parent);
    CRect whole;
    parent.GetWindowRect(&whole);
    EXPECT_EQ(window.height(), whole.Height());
    EXPECT_EQ(window.count(kRed), 50 * 50);
}

TEST(Picture, OfTheScreenShowsTheWindowWhereItIs)
{
    RecordingParent parent{{200, 100}};
    const Swatch swatch{parent, CRect(10, 20, 60, 70)};
    present(parent);
    CPoint point{30, 40};
    parent.ClientToScreen(&point);

    EXPECT_THAT(Picture::ofScreen().at(point), IsColour(kRed));
}

TEST(Picture, OfAHiddenWindowDoesNotExist)
{
    const RecordingParent parent;
    EXPECT_THROW(Picture::ofWindow(parent), std::runtime_error);
}

TEST(Picture, SavesAsPng)
{
    const Picture picture{12, 9, kBlue};
    ::SetPixel(picture.dc(), 3, 8, kRed);
    const auto path = temporaryPng();

    ASSERT_TRUE(picture.savePng(path.wstring()));

    {
        Gdiplus::Bitmap saved{path.c_str()};
        EXPECT_EQ(saved.GetWidth(), 12U);
        EXPECT_EQ(saved.GetHeight(), 9U);
        Gdiplus::Color colour;
        saved.GetPixel(3, 8, &colour);
        EXPECT_THAT(colour.ToCOLORREF(), IsColour(kRed));
        saved.GetPixel(3, 7, &colour);
        EXPECT_THAT(colour.ToCOLORREF(), IsColour(kBlue));
    }
    std::filesystem::remove(path);
    EXPECT_FALSE(picture.savePng(L"Z:\\no\\such\\folder\\at all.png"));
}

TEST(Picture, NearColoursDifferByNoMoreThanTheToleranceInEachComponent)
{
    EXPECT_TRUE(isNear(RGB(10, 20, 30), RGB(13, 17, 30), 3));
    EXPECT_FALSE(isNear(RGB(10, 20, 30), RGB(10, 24, 30), 3));
    EXPECT_FALSE(isNear(CLR_INVALID, RGB(255, 255, 255), 255));
}
