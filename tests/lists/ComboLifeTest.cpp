// How a combo box ends: by itself, and in the middle of its own notifications.
#include "ComboScene.h"

#include <testkit/GdiCounter.h>
#include <testkit/WindowCounter.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

/// Counts its objects.
class Counted : public COVOComboBox
{
public:
    Counted() { ++live; }
    ~Counted() override { --live; }

    static int live;
};

int Counted::live = 0;

class Observer : public COVOComboBoxDeletion
{
public:
    void OnComboBoxDeleted(COVOComboBox* combo) override
    {
        seen.push_back(combo);
        windowGone = !combo->m_hWnd;
        if (deed)
            deed();
    }

    std::vector<COVOComboBox*> seen;
    bool windowGone = false;
    std::function<void()> deed;
};

Counted* makeCombo(CWnd& parent, UINT id = 21)
{
    auto* combo = new Counted;
    combo->AutoDelete(true);
    combo->Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN, CRect(10, 10, 210, 160), &parent, id);
    for (const wchar_t* item : {L"apple", L"berry"})
        combo->AddString(item);
    return combo;
}

} // namespace

TEST(ComboDeletion, DeletesItselfWithItsWindow)
{
    ComboParent parent;
    COVOComboBox* combo = makeCombo(parent);
    combo->DestroyWindow();
    EXPECT_EQ(Counted::live, 0);
}

TEST(ComboDeletion, TellsItsObserverOnceBefore)
{
    Observer observer;
    auto parent = std::make_unique<ComboParent>();
    COVOComboBox* combo = makeCombo(*parent);
    combo->AutoDeleteNotify(&observer);
    int liveThen = 0;
    observer.deed = [&] { liveThen = Counted::live; };
    parent.reset();
    EXPECT_EQ(observer.seen, std::vector<COVOComboBox*>{combo});
    EXPECT_TRUE(observer.windowGone);
    EXPECT_EQ(liveThen, 1);
    EXPECT_EQ(Counted::live, 0);
}

TEST(ComboDeletion, WithoutAutoDeleteTheOwnerKeepsIt)
{
    Observer observer;
    ComboParent parent;
    COVOComboBox combo;
    combo.AutoDeleteNotify(&observer);
    combo.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 100, 100), &parent, 3);
    combo.DestroyWindow();
    EXPECT_TRUE(observer.seen.empty());
    EXPECT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 100, 100), &parent, 3));
}

TEST(ComboDeletion, TheObserverMayDeleteAnotherOne)
{
    Observer observer;
    ComboParent parent;
    COVOComboBox* first = makeCombo(parent, 31);
    COVOComboBox* second = makeCombo(parent, 32);
    first->AutoDeleteNotify(&observer);
    second->AutoDeleteNotify(&observer);
    observer.deed = [&] {
        observer.deed = nullptr;
        second->DestroyWindow();
    };
    first->DestroyWindow();
    EXPECT_EQ(observer.seen, (std::vector<COVOComboBox*>{first, second}));
    EXPECT_EQ(Counted::live, 0);
}

TEST(ComboDeletion, TheObserverMayDestroyTheParent)
{
    Observer observer;
    auto parent = std::make_unique<ComboParent>();
    makeCombo(*parent)->AutoDeleteNotify(&observer);
    makeCombo(*parent, 33);
    observer.deed = [&] {
        observer.deed = nullptr;
        parent->DestroyWindow();
    };
    parent->GetDlgItem(21)->DestroyWindow();
    EXPECT_EQ(Counted::live, 0);
}

TEST(ComboDeletion, AnObserverThatThrowsDoesNotKeepIt)
{
    Observer observer;
    ComboParent parent;
    COVOComboBox* combo = makeCombo(parent);
    combo->AutoDeleteNotify(&observer);
    observer.deed = [] { throw std::runtime_error("observer"); };
    EXPECT_THROW(combo->DestroyWindow(), std::runtime_error);
    EXPECT_EQ(Counted::live, 0);
}

TEST(ComboDeletion, LeavesNothingBehind)
{
    ComboParent parent;
    const auto life = [&] { makeCombo(parent)->DestroyWindow(); };
    life();
    const GdiCounter gdi;
    const WindowCounter windows;
    for (int i = 0; i < 100; ++i)
        life();
    EXPECT_EQ(gdi.grown(), 0);
    EXPECT_EQ(windows.grown(), 0);
}

// Misdeeds: what a host may do in any notification

namespace
{

struct Scenery
{
    std::unique_ptr<ComboParent> parent = std::make_unique<ComboParent>();
    Counted* combo = makeCombo(*parent);
    CButton button;

    Scenery()
    {
        combo->NotifyEditReturn(true);
        combo->ConfirmAnyText(true);
        button.Create(L"b", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 220, 100, 250), parent.get(), 22);
        present(*parent);
        button.SetFocus();
        GuiThread::settle();
    }
    ~Scenery()
    {
        if (parent)
            parent->hearing = nullptr;
    }

    COVOComboBox* comboIfAlive() const { return Counted::live ? combo : nullptr; }
};

struct Misdeed
{
    const char* name;
    std::function<void(Scenery&)> commit;
};

struct Occasion
{
    const char* name;
    const char* notification;
    std::function<void(Scenery&)> act;
};

void PrintTo(const Misdeed& misdeed, std::ostream* out)
{
    *out << misdeed.name;
}

void PrintTo(const Occasion& occasion, std::ostream* out)
{
    *out << occasion.name;
}

const Misdeed kMisdeeds[] = {
    {"DestroysTheCombo", [](Scenery& scene) { scene.combo->DestroyWindow(); }},
    {"DestroysTheParent", [](Scenery& scene) { scene.parent->DestroyWindow(); }},
    {"EmptiesTheList", [](Scenery& scene) { scene.combo->ResetContent(); }},
    {"ChangesTheText", [](Scenery& scene) { scene.combo->SetWindowText(L"other"); }},
    {"OpensTheList", [](Scenery& scene) { scene.combo->ShowDropDown(); }},
    {"TakesTheFocus", [](Scenery& scene) { scene.button.SetFocus(); }},
    {"PumpsMessages",
     [](Scenery& scene) {
         scene.combo->PostMessage(WM_COMMAND, 0x0400, 0);
         MSG message;
         while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
             ::DispatchMessageW(&message);
     }},
    {"Throws", [](Scenery&) { throw std::runtime_error("misdeed"); }},
};

void command(Scenery& scene, WPARAM id)
{
    scene.combo->SetFocus();
    if (!scene.comboIfAlive())
        return;
    scene.combo->SetWindowText(L"berry");
    scene.combo->SendMessage(WM_COMMAND, id, 0);
}

void loseFocus(Scenery& scene)
{
    scene.combo->SetFocus();
    if (!scene.comboIfAlive())
        return;
    scene.combo->SetWindowText(L"berry");
    scene.button.SetFocus();
}

void closeList(Scenery& scene)
{
    scene.combo->SetFocus();
    if (!scene.comboIfAlive())
        return;
    scene.combo->ShowDropDown();
    if (scene.comboIfAlive())
        scene.combo->SendMessage(WM_COMMAND, 0x0400, 0);
}

void type(Scenery& scene)
{
    scene.combo->SetFocus();
    if (scene.comboIfAlive())
        ::SendMessageW(::GetFocus(), WM_CHAR, L'b', 1);
}

const Occasion kOccasions[] = {
    {"FocusDropdown", "DROPDOWN", [](Scenery& scene) { scene.combo->SetFocus(); }},
    {"FocusCloseup", "CLOSEUP", [](Scenery& scene) { scene.combo->SetFocus(); }},
    {"EnterSelchange", "SELCHANGE", [](Scenery& scene) { command(scene, 0x0400); }},
    {"EnterSelendok", "SELENDOK", [](Scenery& scene) { command(scene, 0x0400); }},
    {"EnterReturn", "RETURN", [](Scenery& scene) { command(scene, 0x0400); }},
    {"EscapeSelchange", "SELCHANGE", [](Scenery& scene) { command(scene, 0x0401); }},
    {"EscapeSelendcancel", "SELENDCANCEL", [](Scenery& scene) { command(scene, 0x0401); }},
    {"ArrowUp", "UP", [](Scenery& scene) { command(scene, 0x0402); }},
    {"ArrowDown", "DOWN", [](Scenery& scene) { command(scene, 0x0403); }},
    {"FocusLostSelchange", "SELCHANGE", [](Scenery& scene) { loseFocus(scene); }},
    {"FocusLostSelendok", "SELENDOK", [](Scenery& scene) { loseFocus(scene); }},
    {"ListEnterCloseup", "CLOSEUP", [](Scenery& scene) { closeList(scene); }},
    {"ListEnterSelendok", "SELENDOK", [](Scenery& scene) { closeList(scene); }},
    {"TypingEditchange", "EDITCHANGE", [](Scenery& scene) { type(scene); }},
};

class ComboMischief : public ::testing::TestWithParam<std::tuple<Occasion, Misdeed>>
{
};

} // namespace

TEST(ComboFocus, AParentThatRaisesWhenTheListIsToOpenHearsThatItCloses)
{
    ComboScene scene{L"anise"};
    scene.combo.AutoComplete(true);
    scene.show();
    scene.parent.hearing = [](const std::string& what) {
        if (what == "DROPDOWN")
            throw std::runtime_error("host");
    };
    EXPECT_THROW(scene.combo.SetFocus(), std::runtime_error);
    const Heard heard = scene.take();
    ASSERT_GE(heard.size(), 2u);
    EXPECT_EQ(heard[0], "DROPDOWN");
    EXPECT_EQ(heard[1], "CLOSEUP");
}

TEST_P(ComboMischief, DoesNoHarm)
{
    const auto& [occasion, misdeed] = GetParam();
    {
        Scenery scene;
        bool committed = false;
        scene.parent->hearing = [&](const std::string& what) {
            if (what == occasion.notification && !std::exchange(committed, true))
                misdeed.commit(scene);
        };
        try {
            occasion.act(scene);
            GuiThread::settle();
        } catch (const std::runtime_error&) {
        }
        EXPECT_TRUE(committed);
        // A combo box that is still there works.
        if (scene.comboIfAlive() && scene.combo->m_hWnd) {
            scene.parent->hearing = nullptr;
            if (scene.combo->GetDroppedState())
                scene.combo->ShowDropDown(FALSE);
            scene.combo->ResetContent();
            scene.combo->AddString(L"later");
            scene.combo->SetFocus();
            scene.combo->SetWindowText(L"later");
            EXPECT_TRUE(scene.combo->SelectListboxFromText());
        }
    }
    EXPECT_EQ(Counted::live, 0);
}

INSTANTIATE_TEST_SUITE_P(All, ComboMischief,
                         ::testing::Combine(::testing::ValuesIn(kOccasions), ::testing::ValuesIn(kMisdeeds)),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name;
                         });
