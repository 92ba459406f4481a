// Hosts that change or destroy things while the toolbar calls them.
#include "ToolBarScene.h"

#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>

#include <gtest/gtest.h>

#include <string_view>

using namespace ovo::testkit;

namespace
{

using Ids = std::vector<UINT>;

constexpr char kShown[] = "the flyout";

struct Misdeed
{
    const char* name;
    std::function<void(BarScene&)> commit;
};

const std::vector<Misdeed>& misdeeds()
{
    static const std::vector<Misdeed> all{
        {"deletes the bar", [](BarScene& scene) { scene.deleteBar(); }},
        {"destroys the bar's window", [](BarScene& scene) { scene.bar().DestroyWindow(); }},
        {"destroys the frame", [](BarScene& scene) { scene.frame().DestroyWindow(); }},
        {"deactivates the application", [](BarScene&) { CVantorToolBar::ActivateApp(FALSE); }},
        {"deletes the button", [](BarScene& scene) { scene.bar().DeleteButton(BarScene::Lines); }},
        {"inserts a button",
         [](BarScene& scene) {
             TBBUTTON button{};
             button.idCommand = ID_OTHER;
             button.fsState = TBSTATE_ENABLED;
             scene.bar().InsertButton(0, &button);
         }},
        {"attaches another flyout",
         [](BarScene& scene) { scene.bar().AttachBar(BarScene::Lines, IDR_SHAPES, 16, {0}, false); }},
        {"detaches all", [](BarScene& scene) { scene.bar().DetachAllBars(); }},
        {"opens another flyout",
         [](BarScene& scene) { scene.bar().CreatePopup(BarScene::Shapes, CRect(300, 300, 320, 320), 1); }},
        {"takes the capture",
         [](BarScene& scene) {
             scene.frame().SetCapture();
             ::ReleaseCapture();
         }},
        {"pumps messages",
         [](BarScene&) {
             MSG message;
             while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                 ::DispatchMessageW(&message);
         }},
        {"throws", [](BarScene&) { throw std::runtime_error("misdeed"); }},
    };
    return all;
}

/// Commits it once.
std::function<void()> once(BarScene& scene, const Misdeed& misdeed, int& done)
{
    return [&scene, &misdeed, &done] {
        if (done++ == 0)
            misdeed.commit(scene);
    };
}

} // namespace

TEST(FlyoutMischief, AnUpdateHandlerMayDoAnythingWhileTheFlyoutIsShown)
{
    for (const Misdeed& misdeed : misdeeds()) {
        SCOPED_TRACE(misdeed.name);
        BarScene scene;
        int done = 0;
        const std::function<void()> commit = once(scene, misdeed, done);
        scene.frame().onUpdate = [&](UINT id) {
            if (id == ID_CURVE) // asked for by the flyout alone
                commit();
        };
        try {
            scene.bar().CreatePopup(BarScene::Lines, onScreen(scene.bar(), BarScene::Lines), 0);
        } catch (const std::runtime_error&) {
        }
        EXPECT_EQ(done > 0, true);
        TestBar::ms_popupBar.reset();
        if (scene.frameLives())
            scene.frame().onUpdate = nullptr;
        GuiThread::settle();
    }
}

TEST(FlyoutMischief, TheOwnerMayDoAnythingInTheCommandOfAClick)
{
    for (const Misdeed& misdeed : misdeeds()) {
        if (std::string(misdeed.name) == "throws")
            continue; // it would come out of the loop that the robot runs
        SCOPED_TRACE(misdeed.name);
        BarScene scene;
        int done = 0;
        const std::function<void()> commit = once(scene, misdeed, done);
        scene.frame().onCommand = [&](UINT) { commit(); };
        scene.user.press(scene.button(BarScene::Lines)).waitFor(kShown, &BarScene::flyoutShown).release();
        EXPECT_EQ(done, 1);
        TestBar::ms_popupBar.reset();
        if (scene.frameLives())
            scene.frame().onCommand = nullptr;
    }
}

TEST(FlyoutMischief, TheOwnerIsNotToldOfTheReplacement)
{
    BarScene scene;
    int told = 0;
    scene.frame().onNotify = [&](NMHDR* header) {
        told += header->code == static_cast<UINT>(TBN_DELETINGBUTTON);
        return 0;
    };
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.commands(), Ids{ID_CURVE});
    EXPECT_EQ(told, 0);
    scene.bar().DeleteButton(0);
    EXPECT_EQ(told, 1) << "the host's own deletion is";
}

TEST(FlyoutMischief, TheOwnerHearsNothingOfTheFlyoutsOwnControl)
{
    BarScene scene;
    int told = 0;
    scene.frame().onNotify = [&](NMHDR* header) {
        wchar_t name[64] = L"";
        ::GetClassNameW(header->hwndFrom, name, 64);
        told += std::wstring_view(name) == kFlyoutClass;
        return 0;
    };
    scene.user.press(scene.button(BarScene::Shapes))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.commands(), Ids{ID_DISC});
    EXPECT_EQ(told, 0);
}

TEST(FlyoutMischief, TheBarMayGoWhileItsFlyoutIsOpen)
{
    for (const bool shown : {false, true}) {
        BarScene scene;
        scene.user.press(scene.button(BarScene::Lines))
            .waitFor(kShown, [&] { return !shown || BarScene::flyoutShown(); })
            .then([&] {
                scene.deleteBar();
                EXPECT_TRUE(BarScene::idle());
            })
            .release();
        EXPECT_EQ(scene.commands(), Ids{});
    }
}

namespace
{

/// A host's bar that does not hand WM_DESTROY on to the class that it derives from.
class ForgetfulBar : public TestBar
{
protected:
    afx_msg void OnDestroy() { CToolBar::OnDestroy(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ForgetfulBar, TestBar)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

} // namespace

TEST(FlyoutMischief, ADeletedBarTakesItsFlyoutAlongWhateverItHasHeardBefore)
{
    BarScene scene;
    auto bar = std::make_unique<ForgetfulBar>();
    bar->CreateEx(&scene.frame(), TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
    static constexpr UINT kButtons[] = {ID_ARC, ID_OTHER};
    bar->LoadBitmap(IDR_SHAPES);
    bar->SetButtons(kButtons, 2);
    bar->AttachBar(0, IDR_SHAPES, 16, {0, 1}, false);
    bar->CreatePopup(0, CRect(300, 300, 320, 320), 0);
    ASSERT_TRUE(BarScene::flyoutShown());
    bar->DestroyWindow();
    EXPECT_NE(BarScene::flyout(), nullptr) << "it has not heard";
    bar.reset();
    EXPECT_EQ(BarScene::flyout(), nullptr);
}

TEST(FlyoutMischief, TheFrameMayGoWhileTheFlyoutIsOpen)
{
    RecordingParent bystander(CSize(1000, 800)); // takes the release when the frame has gone
    present(bystander);
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .then([&] {
            scene.frame().DestroyWindow();
            EXPECT_TRUE(BarScene::idle());
        })
        .release();
}

TEST(FlyoutMischief, TheCommandMayDestroyTheOwner)
{
    BarScene scene;
    scene.frame().onCommand = [&](UINT) { scene.frame().DestroyWindow(); };
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .release();
    GuiThread::runUntil([&] { return !scene.frameLives(); });
    EXPECT_FALSE(scene.frameLives());
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutMischief, TheCommandMayAttachAndDelete)
{
    BarScene scene;
    scene.frame().onCommand = [&](UINT) {
        scene.bar().AttachBar(BarScene::Plain, IDR_SHAPES, 16, {0, 1}, false);
        scene.bar().DeleteButton(BarScene::Lines);
    };
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.commands(), Ids{ID_CURVE});
    EXPECT_EQ(scene.bar().SendMessage(TB_BUTTONCOUNT), 4);
    EXPECT_TRUE(scene.bar().HasFlyout(BarScene::Plain));
    EXPECT_TRUE(scene.bar().HasFlyout(BarScene::Lines)) << "that of the next button";
}

TEST(FlyoutMischief, ButtonsMayComeAndGoDuringThePress)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0)) // off the bar, whose buttons move
        .then([&] {
            scene.bar().DeleteButton(BarScene::Plain);
            EXPECT_EQ(TestBar::ms_dragButton, BarScene::Lines - 1);
        })
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.command(BarScene::Lines - 1), ID_CURVE);
    EXPECT_EQ(scene.commands(), Ids{ID_CURVE});
}

TEST(FlyoutMischief, WhatIsNoButtonIsNotDeletedDuringThePress)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .then([&] {
            for (const int index : {-1, 77})
                EXPECT_FALSE(scene.bar().DeleteButton(index));
            EXPECT_EQ(TestBar::ms_dragButton, BarScene::Lines);
        })
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.command(BarScene::Lines), ID_CURVE);
    EXPECT_EQ(scene.command(BarScene::Plain), ID_PLAIN);
}

TEST(FlyoutMischief, AButtonMayBeInsertedDuringThePress)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .then([&] {
            TBBUTTON button{};
            button.idCommand = ID_OTHER;
            button.fsState = TBSTATE_ENABLED;
            scene.bar().InsertButton(0, &button);
            EXPECT_EQ(TestBar::ms_dragButton, BarScene::Lines + 1);
        })
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.command(BarScene::Lines + 1), ID_CURVE);
    EXPECT_EQ(scene.command(BarScene::Lines), ID_PLAIN);
}

TEST(FlyoutMischief, ThePressedButtonMayBeDeleted)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .then([&] {
            scene.bar().DeleteButton(BarScene::Lines);
            EXPECT_EQ(BarScene::flyout(), nullptr);
            EXPECT_EQ(TestBar::ms_dragButton, -1);
        })
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_BOX) << "the button behind it is as it was";
}

TEST(FlyoutMischief, TheBarMayDieInTheMiddleOfTheHold)
{
    BarScene scene;
    scene.bar().CreatePopup(BarScene::Lines, onScreen(scene.bar(), BarScene::Lines), 1);
    ASSERT_NE(BarScene::flyout(), nullptr);
    scene.deleteBar();
    TestBar::ms_popupBar.reset();
    GuiThread::settle();
}
