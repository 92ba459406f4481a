#include <testkit/GdiPlusSession.h>
#include <testkit/ImportPatch.h>

#include <algorithm>
#include <vector>

#include <objidl.h>
#include <gdiplus.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

std::vector<ULONG_PTR> s_started;
std::vector<ULONG_PTR> s_ended;

Gdiplus::GpStatus WINAPI start(ULONG_PTR* token, const Gdiplus::GdiplusStartupInput* input,
                               Gdiplus::GdiplusStartupOutput*)
{
    EXPECT_EQ(input->GdiplusVersion, 1U);
    EXPECT_FALSE(input->SuppressBackgroundThread); // which would need a hook in the message loop
    *token = 100 + s_started.size();
    s_started.push_back(*token);
    return Gdiplus::Ok;
}

void WINAPI end(ULONG_PTR token)
{
    s_ended.push_back(token);
}

} // namespace

TEST(GdiPlusSession, IsStartedOnceAndEndedWithItsOwnToken)
{
    const ImportPatch starting(nullptr, "GdiplusStartup", reinterpret_cast<void*>(&start));
    const ImportPatch ending(nullptr, "GdiplusShutdown", reinterpret_cast<void*>(&end));
    s_started.clear();
    s_ended.clear();
    {
        const GdiPlusSession outer;
        {
            const GdiPlusSession inner;
            EXPECT_EQ(s_started, (std::vector<ULONG_PTR>{100, 101}));
            EXPECT_TRUE(s_ended.empty());
        }
        EXPECT_EQ(s_ended, (std::vector<ULONG_PTR>{101}));
    }
    EXPECT_EQ(s_ended, (std::vector<ULONG_PTR>{101, 100}));
    EXPECT_EQ(s_started.size(), 2U);
}

TEST(GdiPlusSession, PicturesCanBeMadeMeanwhile)
{
    const GdiPlusSession session;
    Gdiplus::Bitmap bitmap(3, 2, PixelFormat32bppARGB);
    EXPECT_EQ(bitmap.GetLastStatus(), Gdiplus::Ok);
    EXPECT_EQ(bitmap.SetPixel(2, 1, Gdiplus::Color(0xFF102030)), Gdiplus::Ok);
    Gdiplus::Color colour;
    bitmap.GetPixel(2, 1, &colour);
    EXPECT_EQ(colour.GetValue(), 0xFF102030);
}
