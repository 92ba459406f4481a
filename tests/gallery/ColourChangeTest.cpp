// A change of the system's colours reaches everything that is shown: a page looks as one that is opened
// afterwards.
#include "AccessibleText.h"
#include "GalleryScene.h"

#include <testkit/GuiThread.h>
#include <testkit/Picture.h>

#include <gtest/gtest.h>

#include <array>

using namespace ovo::testkit;

namespace
{

constexpr std::array kElements{COLOR_WINDOW,   COLOR_WINDOWTEXT, COLOR_BTNFACE,
                               COLOR_BTNTEXT,  COLOR_HIGHLIGHT,  COLOR_HIGHLIGHTTEXT,
                               COLOR_GRAYTEXT, COLOR_BTNSHADOW,  COLOR_BTNHIGHLIGHT};
using Colours = std::array<COLORREF, kElements.size()>;

constexpr Colours kOther{RGB(0, 0, 0), RGB(255, 255, 0), RGB(20, 0, 40),  RGB(0, 255, 0),    RGB(255, 0, 255),
                         RGB(0, 0, 0), RGB(0, 128, 128), RGB(90, 90, 90), RGB(200, 200, 255)};

/// Others for all programs, as the user chooses them. They are back as they were in the end.
class OtherColours
{
public:
    OtherColours()
    {
        for (std::size_t i = 0; i < kElements.size(); ++i)
            m_before[i] = ::GetSysColor(kElements[i]);
        set(kOther);
    }
    ~OtherColours() { set(m_before); }
    OtherColours(const OtherColours&) = delete;
    OtherColours& operator=(const OtherColours&) = delete;

private:
    static void set(const Colours& colours)
    {
        ::SetSysColors(static_cast<int>(kElements.size()), kElements.data(), colours.data());
        GuiThread::settleOnScreen();
    }

    Colours m_before{};
};

bool isListView(HWND window)
{
    wchar_t name[64]{};
    ::GetClassNameW(window, name, 64);
    return ::lstrcmpiW(name, WC_LISTVIEWW) == 0;
}

/// What a window shows, with black in place of list views: Wine's keep the ground that they were made with.
Picture withoutListViews(HWND window)
{
    Picture picture = Picture::ofWindow(window);
    CRect whole;
    ::GetWindowRect(window, &whole);
    std::vector<HWND> windows{window};
    ::EnumChildWindows(
        window,
        [](HWND child, LPARAM found) -> BOOL {
            reinterpret_cast<std::vector<HWND>*>(found)->push_back(child);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    for (const HWND one : windows) {
        CRect place;
        ::GetWindowRect(one, &place);
        place.OffsetRect(-whole.TopLeft());
        if (isListView(one))
            ::PatBlt(picture.dc(), place.left, place.top, place.Width(), place.Height(), BLACKNESS);
    }
    return picture;
}

std::vector<Picture> picturesOf(const std::vector<HWND>& windows)
{
    std::vector<Picture> pictures;
    for (const HWND window : windows)
        pictures.push_back(withoutListViews(window));
    return pictures;
}

} // namespace

TEST(GalleryColours, AnOpenPageTakesNewColours)
{
    GalleryScene scene;
    const auto openAnew = [&](const PageEntry& entry) {
        const bool isFirst = &entry == &pageTable().front();
        scene.frame().openPage(isFirst ? pageTable().back() : pageTable().front());
        scene.frame().openPage(entry);
        GuiThread::settleOnScreen();
    };
    for (const PageEntry& entry : pageTable()) {
        openAnew(entry);
        const OtherColours colours;
        const std::vector<Picture> changed = picturesOf(scene.controls());
        openAnew(entry);
        const std::vector<HWND> controls = scene.controls();
        ASSERT_EQ(controls.size(), changed.size());
        for (std::size_t i = 0; i < controls.size(); ++i)
            EXPECT_EQ(withoutListViews(controls[i]).differences(changed[i]), 0)
                << ::testing::PrintToString(std::wstring(entry.name)) << ": "
                << ::testing::PrintToString(readAloudAlone(controls[i]));
    }
}
