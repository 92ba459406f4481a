// Every text of the gallery can be told from what is behind it. The program runs once more for each scheme of
// colours, with visual styles and without.
#include "Readability.h"

#include "GalleryScene.h"
#include "Poses.h"
#include "Resolution.h"
#include "resource.h"

#include <testkit/GuiThread.h>

#include <gtest/gtest.h>

#include <uxtheme.h>

#include <cstdlib>
#include <string_view>

using namespace ovo::testkit;

namespace
{

class GalleryReadability : public ::testing::Test
{
protected:
    void show(const PageEntry& entry)
    {
        scene.frame().openPage(entry);
        showNow();
    }

    void showNow()
    {
        GuiThread::settleOnScreen();
        scene.frame().RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        ::GdiFlush();
    }

    /// A picture of what a control of the page shows.
    Picture pictureOf(int control) { return Picture::ofClient(scene.control(control)); }

    GalleryScene scene;
};

constexpr std::wstring_view kUnseen = L"nothing is seen";

std::string_view scheme()
{
    const char* const name = std::getenv("OVO_SCHEME");
    return name ? name : "";
}

/// Not the gallery's doing: a row's own colour, which lies behind the text of its cell; under a dark scheme
/// the light theme of Wine, white below white texts.
bool isContent(const std::wstring& problem)
{
    const std::wstring colours = L"syslistview32 " + std::to_wstring(IDC_LISTS_MILLION) + L", \"cell ";
    const bool colourCell = problem.starts_with(colours) && problem.find(L", 2\":") != std::wstring::npos;
    const bool themed = scheme() == "dark" && ::IsAppThemed() &&
                        (problem.starts_with(L"msctls_statusbar32") || problem.starts_with(L"sysheader32") ||
                         problem.ends_with(kUnseen));
    return colourCell || themed;
}

} // namespace

/// Otherwise the tests below would look at the usual colours again.
TEST(GalleryReadabilityOfSchemes, TheSystemHasTheColoursAndFontsOfTheRun)
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    if (scheme() == "dark") {
        EXPECT_EQ(::GetSysColor(COLOR_WINDOW), RGB(0, 0, 0));
        EXPECT_EQ(::GetSysColor(COLOR_BTNTEXT), RGB(255, 255, 255));
    } else if (scheme() == "light") {
        EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), RGB(255, 255, 255));
        EXPECT_EQ(metrics.lfMessageFont.lfHeight, -17) << "13 points";
    }
}

TEST_F(GalleryReadability, OfEveryPage)
{
    for (const PageEntry& entry : pageTable()) {
        show(entry);
        Problems problems = readabilityProblems(scene.frame());
        std::erase_if(problems, isContent);
        EXPECT_EQ(linesOf(problems), "") << ::testing::PrintToString(std::wstring(entry.name));
    }
}

/// Popups, dialogs, and states that the pages do not open with. Lists are left out, whose rows come in
/// colours of their own, and the dropper, whose magnifier shows what is below it.
TEST_F(GalleryReadability, OfWhatThePagesCanShow)
{
    const auto look = [this](HWND window) {
        showNow();
        ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        ::GdiFlush();
        Problems problems = readabilityProblemsWithPopups(window);
        std::erase_if(problems, isContent);
        // Some poses lie in part beyond the edge of the screen.
        std::erase_if(problems, [](const std::wstring& problem) { return problem.ends_with(kUnseen); });
        return problems;
    };
    const PosesSeen seen = lookAtPoses(scene, look, [](const std::wstring& name) {
        return !name.starts_with(L"lists/") && name != L"colourpicker/dropper";
    });
    EXPECT_EQ(linesOf(seen.problems), "");
    EXPECT_GT(seen.dialogs, 20u);
}

/// Of windows that draw their texts themselves the test knows where these are.
TEST_F(GalleryReadability, OfTextsThatPagesDraw)
{
    const struct
    {
        const wchar_t* page;
        int control;
        CRect text; // pixels at 96 dots per inch
    } drawn[] = {{L"themes", IDC_THEME_SAMPLES, CRect(0, 0, 110, 150)},
                 {L"images", IDC_IMAGES_SAMPLES, CRect(0, 0, 90, 200)}};
    for (const auto& [page, control, text] : drawn) {
        scene.open(page);
        showNow();
        const CRect part(0, 0, scaled(scene.frame(), text.right), scaled(scene.frame(), text.bottom));
        const auto look = lookOf(pictureOf(control), part);
        ASSERT_TRUE(look) << ::testing::PrintToString(std::wstring(page));
        EXPECT_GE(look->ratio, 4.5) << ::testing::PrintToString(std::wstring(page));
    }
}

/// The middle of the dial: its knob and the pointer on it.
TEST_F(GalleryReadability, OfTheDialsPointer)
{
    constexpr double kLeastOfGraphics = 3;
    scene.open(L"sliders");
    showNow();
    CRect middle;
    ::GetClientRect(scene.control(IDC_SLIDERS_DIAL), &middle);
    middle.DeflateRect(middle.Width() * 3 / 10, middle.Height() * 3 / 10);
    const auto look = lookOf(pictureOf(IDC_SLIDERS_DIAL), middle);
    ASSERT_TRUE(look);
    EXPECT_GE(look->ratio, kLeastOfGraphics);
}

/// What the tests above rely on.
TEST(Readability, OfATextOnItsGround)
{
    const auto look = [](COLORREF text, COLORREF ground) {
        Picture picture(120, 20, ground);
        CFont font;
        font.CreateFont(-11, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");
        CDC& dc = *CDC::FromHandle(picture.dc());
        CFont* const old = dc.SelectObject(&font);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(text);
        dc.TextOut(2, 2, L"Some words to read");
        dc.SelectObject(old);
        return lookOf(picture, CRect(0, 0, 120, 20));
    };
    const COLORREF white = RGB(255, 255, 255);
    EXPECT_NEAR(look(RGB(0, 0, 0), white)->ratio, 21, 0.1);
    EXPECT_NEAR(look(white, RGB(0, 0, 0))->ratio, 21, 0.1);
    EXPECT_NEAR(look(RGB(118, 118, 118), white)->ratio, 4.54, 0.05) << "just enough";
    EXPECT_LT(look(RGB(122, 122, 122), white)->ratio, 4.5) << "just too little";
    EXPECT_EQ(look(RGB(122, 122, 122), white)->ground, white);
    EXPECT_FALSE(look(white, white));
}

TEST(Readability, OfAControlInTheWrongColours)
{
    class Parent : public CFrameWnd
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_CTLCOLORSTATIC)
                return CFrameWnd::WindowProc(message, wParam, lParam);
            ::SetTextColor(reinterpret_cast<HDC>(wParam), colour);
            ::SetBkColor(reinterpret_cast<HDC>(wParam), RGB(255, 255, 255));
            return reinterpret_cast<LRESULT>(::GetStockObject(WHITE_BRUSH));
        }
        COLORREF colour = RGB(0, 0, 0);
    } parent;
    ASSERT_TRUE(parent.Create(nullptr, L"", WS_POPUP | WS_VISIBLE, CRect(100, 100, 400, 200)));
    CStatic label;
    label.Create(L"Some words to read", WS_CHILD | WS_VISIBLE, CRect(10, 10, 200, 30), &parent);
    present(parent);
    const auto problems = [&](COLORREF colour) {
        parent.colour = colour;
        label.RedrawWindow();
        GuiThread::settleOnScreen();
        return linesOf(readabilityProblems(parent));
    };
    EXPECT_EQ(problems(RGB(0, 0, 0)), "");
    EXPECT_NE(problems(RGB(170, 170, 170)).find("170, 170, 170 on 255, 255, 255"), std::string::npos);
    label.EnableWindow(FALSE);
    EXPECT_EQ(problems(RGB(170, 170, 170)), "") << "it cannot be used";
    label.DestroyWindow();
    parent.DestroyWindow();
}
