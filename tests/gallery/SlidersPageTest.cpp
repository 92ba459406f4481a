// The page of the sliders, used as a person would.
#include "GalleryScene.h"

#include "resource.h"

#include <testkit/TestApp.h>

#include <gtest/gtest.h>

#include <string>

using namespace ovo::testkit;

namespace
{

class GallerySliders : public ::testing::Test
{
protected:
    GallerySliders() { scene.open(L"sliders"); }

    std::wstring linearNumber()
    {
        CString text;
        scene.page().GetDlgItemText(IDC_SLIDERS_BUDDY + 1, text);
        return text.GetString();
    }

    /// Which convention is shown after this one was chosen.
    int conventionAfter(int chosen)
    {
        const HWND conventions = scene.control(IDC_SLIDERS_CONVENTION);
        ::SendMessageW(conventions, CB_SETCURSEL, static_cast<WPARAM>(chosen), 0);
        scene.page().SendMessage(WM_COMMAND, MAKEWPARAM(IDC_SLIDERS_CONVENTION, CBN_SELCHANGE),
                                 reinterpret_cast<LPARAM>(conventions));
        return static_cast<int>(::SendMessageW(conventions, CB_GETCURSEL, 0, 0));
    }

    GalleryScene scene;
};

} // namespace

TEST_F(GallerySliders, WriteNumbersInTheChosenConvention)
{
    EXPECT_EQ(linearNumber(), L"2.5");
    EXPECT_EQ(conventionAfter(1), 1);
    EXPECT_EQ(linearNumber(), L"2,5");
}

TEST_F(GallerySliders, KeepTheConventionWhileANumberCannotBeRead)
{
    scene.page().SetDlgItemText(IDC_SLIDERS_BUDDY, L"many");
    EXPECT_EQ(conventionAfter(1), 0);
    EXPECT_EQ(TestApp::instance().boxes().size(), 1u);
    scene.page().SetDlgItemText(IDC_SLIDERS_BUDDY, L"8");
    EXPECT_EQ(conventionAfter(1), 1);
    EXPECT_EQ(linearNumber(), L"2,5");
}
