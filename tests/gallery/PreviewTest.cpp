// The example of a file dialog that shows the picture in the selected file.
#include "model/PreviewDialog.h"

#include <testkit/Desktop.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/Picture.h>
#include <testkit/Robot.h>
#include <testkit/TemporaryFiles.h>

#include <gtest/gtest.h>

#include <commctrl.h>

using namespace ovo::testkit;

namespace
{

constexpr COLORREF kRed = RGB(200, 30, 30);
constexpr COLORREF kBlue = RGB(30, 30, 200);

/// A shown window below the dialog that waits, by its class or its title.
HWND below(const wchar_t* windowClass, const wchar_t* title)
{
    struct Search
    {
        const wchar_t* windowClass;
        const wchar_t* title;
        HWND found;
    } search{windowClass, title, nullptr};
    ::EnumChildWindows(
        shownDialog(),
        [](HWND wnd, LPARAM parameter) -> BOOL {
            auto& looked = *reinterpret_cast<Search*>(parameter);
            wchar_t text[100]{};
            looked.windowClass ? ::GetClassNameW(wnd, text, 100) : ::GetWindowTextW(wnd, text, 100);
            const std::wstring wanted = looked.windowClass ? looked.windowClass : looked.title;
            if (wanted == text && ::IsWindowVisible(wnd))
                looked.found = wnd;
            return looked.found == nullptr;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND pane()
{
    const HWND child = below(nullptr, L"Preview");
    return child ? child : shownWindow(L"Preview");
}

/// What the pane shows in its middle.
COLORREF shown()
{
    if (!pane())
        return CLR_INVALID;
    const Picture picture = Picture::ofClient(pane());
    return picture.at(picture.width() / 2, picture.height() / 2);
}

/// The middle of a name in the list of files.
CPoint fileAt(int index)
{
    const HWND list = below(L"SysListView32", nullptr);
    CRect rect(LVIR_LABEL, 0, 0, 0);
    ::SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
    CPoint middle = rect.CenterPoint();
    ::ClientToScreen(list, &middle);
    return middle;
}

bool listsFiles(int count)
{
    const HWND list = below(L"SysListView32", nullptr);
    return list && ::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) == count;
}

class PreviewTest : public testing::TestWithParam<bool>
{
protected:
    PreviewTest()
    {
        Picture(400, 300, kBlue).savePng(files.path(L"a blue.png"));
        Picture(30, 600, kRed).savePng(files.path(L"b red.png"));
        files.addFile(L"c none.png");
    }

    GdiPlusSession session;
    TemporaryFiles files;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, PreviewTest, testing::Bool(),
                         [](const auto& info) { return info.param ? "newStyle" : "classic"; });

TEST_P(PreviewTest, ShowsThePictureOfTheSelectedFile)
{
    PreviewDialog dialog(nullptr, GetParam(), files.path(L"b red.png"));
    auto answering =
        Robot()
            .waitFor("the first picture", [] { return shownDialog() && listsFiles(3) && shown() == kRed; })
            .click([] { return fileAt(0); })
            .waitFor("the selected picture", [] { return shown() == kBlue; })
            .click([] { return fileAt(2); })
            .waitFor("nothing", [] { return shown() == ::GetSysColor(COLOR_APPWORKSPACE); })
            .key(VK_ESCAPE)
            .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST_P(PreviewTest, LeavesTheFileToOthers)
{
    PreviewDialog dialog(nullptr, GetParam(), files.path(L"a blue.png"));
    BOOL deleted = FALSE;
    auto answering =
        Robot()
            .waitFor("the picture", [] { return shownDialog() && listsFiles(3) && shown() == kBlue; })
            .then([&] { deleted = ::DeleteFileW(files.path(L"a blue.png").c_str()); })
            .key(VK_ESCAPE)
            .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_TRUE(deleted);
}

TEST(PreviewOfTheNewStyle, StandsWhereThereIsRoom)
{
    const GdiPlusSession session;
    PreviewDialog dialog(nullptr, true);
    const auto moveTo = [](int left) {
        return [left] {
            ::SetWindowPos(shownDialog(), nullptr, left, 20, 600, 400, SWP_NOZORDER | SWP_NOACTIVATE);
        };
    };
    const auto place = [] {
        CRect rect;
        ::GetWindowRect(pane(), &rect);
        return rect;
    };
    const int screen = ::GetSystemMetrics(SM_CXSCREEN);
    auto answering = Robot()
                         .waitFor("the pane", [] { return shownDialog() && pane(); })
                         .then(moveTo(10))
                         .waitFor("the pane on the right", [&] { return place().left > 600; })
                         .then(moveTo(screen - 610))
                         .waitFor("the pane on the left", [&] { return place().right < screen - 600; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}
