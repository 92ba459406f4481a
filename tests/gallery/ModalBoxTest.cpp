// A page is not alone: another one may be opened, and the gallery closed, while it shows a modal box.
#include "GalleryScene.h"

#include "pages/MessageBoxPage.h"
#include "pages/ThemesPage.h"
#include "resource.h"
#include <testkit/TemporaryProfile.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

class GalleryModalBox : public ::testing::Test
{
protected:
    /// The robot presses the page's button and goes on when the box is open.
    Story whenBoxIsOpen()
    {
        return Robot().click(Spot{scene.control(IDC_BOX_SHOW)}).waitFor("the box", [] {
            return shownDialog() != nullptr;
        });
    }

    /// Sends a change of resolution as the system does when the window comes to another monitor.
    void changeResolution(const CRect& place)
    {
        scene.frame().SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&place));
    }

    template <class Page>
    bool shows()
    {
        return dynamic_cast<Page*>(&scene.page()) != nullptr && ::IsWindowVisible(scene.page());
    }

private:
    TemporaryProfile m_profile;

protected:
    GalleryScene scene;
};

} // namespace

TEST_F(GalleryModalBox, TheAnswerIsShownByThePage)
{
    whenBoxIsOpen().key(VK_RETURN).waitFor("the box to go", [] { return shownDialog() == nullptr; });
    CString answer;
    CWnd::FromHandle(scene.control(IDC_BOX_RESULT))->GetWindowText(answer);
    EXPECT_STREQ(answer, L"IDYES");
}

TEST_F(GalleryModalBox, TheFocusComesBackToTheButton)
{
    whenBoxIsOpen().key(VK_RETURN).waitFor("the box to go", [] { return shownDialog() == nullptr; });
    EXPECT_EQ(::GetFocus(), scene.control(IDC_BOX_SHOW));
}

TEST_F(GalleryModalBox, TheFocusComesToTheListWhenItsControlHasGone)
{
    whenBoxIsOpen().then([this] { scene.open(L"themes"); }).key(VK_ESCAPE).waitFor("the box to go", [] {
        return shownDialog() == nullptr;
    });
    EXPECT_EQ(::GetFocus(), scene.frame().pageList().m_hWnd);
}

TEST_F(GalleryModalBox, AnotherPageMayBeOpenedMeanwhile)
{
    const std::weak_ptr<GalleryPage> page = scene.page().weak_from_this();
    whenBoxIsOpen()
        .then([&] {
            scene.open(L"themes");
            EXPECT_FALSE(page.expired()) << "its handler is under way";
        })
        .key(VK_ESCAPE)
        .waitFor("the box to go", [] { return shownDialog() == nullptr; });
    EXPECT_TRUE(page.expired());
    EXPECT_TRUE(shows<ThemesPage>());
    EXPECT_TRUE(scene.frame().IsWindowEnabled());
}

TEST_F(GalleryModalBox, TheSamePageMayBeOpenedAnewMeanwhile)
{
    whenBoxIsOpen().then([this] { scene.open(L"messagebox"); }).key(VK_ESCAPE).waitFor("the box to go", [] {
        return shownDialog() == nullptr;
    });
    CString answer;
    CWnd::FromHandle(scene.control(IDC_BOX_RESULT))->GetWindowText(answer);
    EXPECT_STREQ(answer, L"None yet") << "the answer is the page's that has gone";
}

TEST_F(GalleryModalBox, TheResolutionMayChangeMeanwhile)
{
    whenBoxIsOpen()
        .then([this] {
            changeResolution({20, 30, 920, 730});
        })
        .key(VK_ESCAPE)
        .waitFor("the box to go", [] { return shownDialog() == nullptr; });
    EXPECT_TRUE(shows<MessageBoxPage>());
}

TEST_F(GalleryModalBox, TheGalleryMayBeClosedMeanwhile)
{
    whenBoxIsOpen().then([this] { scene.frame().DestroyWindow(); }).waitFor("the box to go", [] {
        return shownDialog() == nullptr;
    });
    EXPECT_FALSE(scene.isOpen());
}

TEST_F(GalleryModalBox, KeysThatSwitchPagesDoNothingMeanwhile)
{
    GalleryPage* const page = &scene.page();
    whenBoxIsOpen()
        .key(VK_F6)
        .then([&] { EXPECT_EQ(&scene.page(), page); })
        .key(VK_ESCAPE)
        .waitFor("the box to go", [] { return shownDialog() == nullptr; });
    EXPECT_EQ(&scene.page(), page);

    Robot().key(VK_F6);
    EXPECT_NE(&scene.page(), page) << "they do when the box has gone";
}

TEST_F(GalleryModalBox, AChangeOfResolutionPlacesTheWindowAndOpensThePageAnew)
{
    scene.open(L"themes");
    const HWND before = scene.page();
    changeResolution({40, 50, 940, 750});
    CRect place;
    scene.frame().GetWindowRect(&place);
    EXPECT_EQ(place, CRect(40, 50, 940, 750));
    EXPECT_TRUE(shows<ThemesPage>());
    EXPECT_FALSE(::IsWindow(before));
}
