// The gallery as its window is moved to a monitor of another resolution: what Windows tells it then, the test
// tells it.
#include "Clipping.h"
#include "GalleryScene.h"
#include "Poses.h"

#include "Resolution.h"
#include "resource.h"
#include "support/WindowFacts.h"

#include <testkit/GuiThread.h>

#include <afxcmn.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>
#include <string_view>

using namespace ovo::testkit;

namespace
{

constexpr int kUsual = 96;
constexpr int kOther = 120; // at more the window would not fit on the screen of the test
constexpr double kGrowth = static_cast<double>(kOther) / kUsual;

/// Under Wine a bar that is made after the move goes by the system's resolution, and what the page puts into
/// it by the monitor's.
bool isForOneResolution(const PageEntry& entry)
{
    return std::wstring_view(entry.name) == L"toolbars";
}

bool hasCaption(HWND window)
{
    return (::GetWindowLongW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
}

/// Popups that are open beside the gallery, its floating bars and its dialogs.
std::vector<std::wstring> openPopups()
{
    std::vector<std::wstring> found;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            if (::IsWindowVisible(window) && !hasCaption(window))
                reinterpret_cast<std::vector<std::wstring>*>(result)->push_back(support::classOf(window));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

class GalleryMonitor : public ::testing::Test
{
protected:
    /// As large on the other monitor as it was on this one.
    void moveTo(int dots)
    {
        CRect place;
        scene.frame().GetWindowRect(&place);
        const int now = dotsPerInch(scene.frame());
        const CRect suggested(CPoint(0, 0),
                              CSize(::MulDiv(place.Width(), dots, now), ::MulDiv(place.Height(), dots, now)));
        scene.frame().SendMessage(WM_DPICHANGED, MAKEWPARAM(dots, dots),
                                  reinterpret_cast<LPARAM>(static_cast<const RECT*>(&suggested)));
        GuiThread::settle();
        CRect taken;
        scene.frame().GetWindowRect(&taken);
        EXPECT_EQ(taken, suggested);
    }

    static int fontHeightOf(CWnd& window)
    {
        LOGFONT facts{};
        window.GetFont()->GetLogFont(&facts);
        return std::abs(facts.lfHeight);
    }

    static CSize imageSizeOf(HWND window, UINT message)
    {
        int width = 0;
        int height = 0;
        ::ImageList_GetIconSize(reinterpret_cast<HIMAGELIST>(::SendMessageW(window, message, 0, 0)), &width,
                                &height);
        return {width, height};
    }

    HWND projectTree() { return ::GetDlgItem(scene.control(IDC_TREE_PROJECT), IDC_PROJECT_TREE); }

    GalleryScene scene;
};

} // namespace

TEST_F(GalleryMonitor, FontsAndImagesGrow)
{
    scene.open(L"tree");
    const int list = fontHeightOf(scene.frame().pageList());
    const int page = fontHeightOf(scene.page());
    moveTo(kOther);
    EXPECT_EQ(dotsPerInch(scene.page()), kOther);
    EXPECT_NEAR(fontHeightOf(scene.frame().pageList()), list * kGrowth, 1);
    EXPECT_NEAR(fontHeightOf(scene.page()), page * kGrowth, 1);
    EXPECT_EQ(imageSizeOf(scene.frame().pageList(), TVM_GETIMAGELIST), CSize(20, 20));
    EXPECT_EQ(imageSizeOf(projectTree(), TVM_GETIMAGELIST), CSize(20, 20));
    EXPECT_EQ(imageSizeOf(scene.frame().bar(), TB_GETIMAGELIST), CSize(20, 20));
}

TEST_F(GalleryMonitor, EveryPageGrowsAndIsSeenWhole)
{
    std::map<std::wstring, CSize> before;
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        before[entry.name] = scene.placeOnPage(scene.controls().front()).Size();
    }
    moveTo(kOther);
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        const CSize size = scene.placeOnPage(scene.controls().front()).Size();
        EXPECT_NEAR(size.cx, before[entry.name].cx * kGrowth, before[entry.name].cx / 10.0 + 4)
            << ::testing::PrintToString(std::wstring(entry.name));
        if (!isForOneResolution(entry)) {
            EXPECT_EQ(linesOf(clippingProblems(scene.frame())), "")
                << ::testing::PrintToString(std::wstring(entry.name));
        }
    }
}

TEST_F(GalleryMonitor, BackOnTheFirstMonitorAllIsAsItWas)
{
    for (const wchar_t* const page : {L"sliders", L"shadedtabs", L"toolbars"}) {
        scene.open(page);
        std::vector<CRect> before;
        for (const HWND control : scene.controls())
            before.push_back(scene.placeOnPage(control));
        moveTo(kOther);
        moveTo(kUsual);
        std::vector<CRect> after;
        for (const HWND control : scene.controls())
            after.push_back(scene.placeOnPage(control));
        EXPECT_TRUE(after == before) << ::testing::PrintToString(std::wstring(page));
    }
}

TEST_F(GalleryMonitor, ThePageThatWasOpenIsOpen)
{
    scene.open(L"lists");
    moveTo(kOther);
    EXPECT_EQ(std::wstring(scene.frame().openedPage()->name), L"lists");
}

TEST_F(GalleryMonitor, APageThatIsOpenFollows)
{
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        moveTo(kOther);
        EXPECT_EQ(dotsPerInch(scene.page()), kOther);
        if (!isForOneResolution(entry)) {
            EXPECT_EQ(linesOf(clippingProblems(scene.frame())), "")
                << ::testing::PrintToString(std::wstring(entry.name));
        }
        moveTo(kUsual);
        EXPECT_EQ(linesOf(clippingProblems(scene.frame())), "")
            << ::testing::PrintToString(std::wstring(entry.name));
    }
}

/// A flyout, a list, sliders, a palette and a label's editor close, and a dialog stays usable.
TEST_F(GalleryMonitor, WhatIsOpenBesideThePageIsLeftInOrder)
{
    const std::set<std::wstring> poses{L"toolbars/flyout",      L"combo/open",  L"sliders/linear",
                                       L"colourpicker/button",  L"tree/label",  L"messagebox/extended-1",
                                       L"colourpicker/palette", L"sysinfo/list"};
    std::set<std::wstring> closed;
    const auto look = [&](HWND window) {
        for (const std::wstring& popup : openPopups())
            closed.insert(popup);
        const bool stays = hasCaption(window); // the slider's popup is a dialog, too
        moveTo(kOther);
        Problems problems;
        for (const std::wstring& popup : openPopups())
            problems.push_back(popup + L" is still open");
        if (stays && !::IsWindowVisible(window))
            problems.push_back(L"the window is gone");
        moveTo(kUsual);
        return problems;
    };
    const PosesSeen seen =
        lookAtPoses(scene, look, [&](const std::wstring& name) { return poses.contains(name); });
    EXPECT_EQ(linesOf(seen.problems), "");
    EXPECT_GE(closed.size(), 3u) << ::testing::PrintToString(closed);
    EXPECT_EQ(seen.dialogs, 4u);
}
