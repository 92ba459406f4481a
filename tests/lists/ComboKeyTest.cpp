// Enter, Escape, the arrows, the list, and the focus: what becomes of the text, and what the parent hears.
#include "ComboScene.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace ovo::testkit;

namespace
{

struct Flags
{
    bool confirmAnyText;
    bool notifyEditReturn;
};

constexpr Flags kAllFlags[] = {{false, false}, {false, true}, {true, false}, {true, true}};

void set(COVOComboBox& combo, const Flags& flags)
{
    combo.ConfirmAnyText(flags.confirmAnyText);
    combo.NotifyEditReturn(flags.notifyEditReturn);
}

Heard with(Heard first, const Heard& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// What is heard when the focus goes: the platform's own cancel comes first, that the focus has gone last.
Heard leaving(const Heard& judgement)
{
    return with(with({"SELENDCANCEL"}, judgement), {"KILLFOCUS"});
}

const Heard kAccepted{"SELCHANGE", "SELENDOK"};
const Heard kRejected{"SELCHANGE", "SELENDCANCEL"};
const Heard kClosing{"SELENDCANCEL", "CLOSEUP"}; // from the platform, for a list that closes

/// A window in a thread of its own, in front and active.
class ForeignWindow
{
public:
    ForeignWindow()
        : m_thread([this] { run(); })
    {
        m_window.wait(nullptr);
    }
    ~ForeignWindow()
    {
        ::PostMessageW(m_window, WM_CLOSE, 0, 0);
        m_thread.join();
    }
    ForeignWindow(const ForeignWindow&) = delete;
    ForeignWindow& operator=(const ForeignWindow&) = delete;

private:
    void run()
    {
        m_window = ::CreateWindowExW(0, L"STATIC", L"Another program", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 480,
                                     60, 200, 100, nullptr, nullptr, nullptr, nullptr);
        m_window.notify_one();
        ::SetForegroundWindow(m_window);
        MSG message;
        while (::IsWindow(m_window) && ::GetMessageW(&message, nullptr, 0, 0) > 0)
            ::DispatchMessageW(&message);
    }

    std::atomic<HWND> m_window = nullptr;
    std::thread m_thread;
};

} // namespace

// Enter

TEST(ComboEnter, WithTheListClosed)
{
    for (const Flags& flags : kAllFlags)
        for (const bool match : {true, false}) {
            ComboScene scene{L"apple", L"berry"};
            set(scene.combo, flags);
            scene.enter();
            scene.setText(match ? L"berry" : L"bramble");
            scene.take();
            scene.robot.key(VK_RETURN);
            Heard expected;
            if (match || flags.confirmAnyText)
                expected = kAccepted;
            if (flags.notifyEditReturn)
                expected.push_back("RETURN");
            EXPECT_EQ(scene.take(), expected);
            EXPECT_EQ(scene.text(), match ? L"berry" : L"bramble") << "Enter restores nothing";
            EXPECT_EQ(scene.combo.GetCurSel(), match ? 1 : -1);
        }
}

TEST(ComboEnter, WithoutCompletionAClosedListIsNotSearched)
{
    for (const bool any : {false, true}) {
        ComboScene scene{L"apple", L"berry"};
        scene.combo.AutoComplete(false);
        scene.combo.ConfirmAnyText(any);
        scene.enter();
        scene.setText(L"berry");
        scene.take();
        scene.robot.key(VK_RETURN);
        EXPECT_EQ(scene.take(), any ? kAccepted : Heard{});
        EXPECT_EQ(scene.combo.GetCurSel(), -1);
    }
}

TEST(ComboEnter, WithTheListOpenAndAnItemSelected)
{
    for (const Flags& flags : kAllFlags) {
        ComboScene scene{L"apple", L"berry", L"cherry"};
        set(scene.combo, flags);
        scene.enterWith(0);
        scene.combo.ShowDropDown();
        scene.robot.key(VK_DOWN);
        ASSERT_EQ(scene.combo.GetCurSel(), 1);
        scene.take();
        scene.robot.key(VK_RETURN);
        EXPECT_FALSE(scene.combo.GetDroppedState());
        EXPECT_EQ(scene.text(), L"berry");
        EXPECT_EQ(scene.combo.GetCurSel(), 1);
        EXPECT_EQ(scene.take(), with(kClosing, kAccepted)) << "and no RETURN";
    }
}

TEST(ComboEnter, WithTheListOpenTheSelectionComesBeforeTheText)
{
    ComboScene scene{L"apple", L"berry"};
    scene.enter();
    scene.combo.ShowDropDown();
    scene.setText(L"bramble");
    ::SendMessageW(scene.listBox(), LB_SETCURSEL, 1, 0);
    ASSERT_EQ(scene.combo.GetCurSel(), 1);
    scene.take();
    scene.robot.key(VK_RETURN);
    EXPECT_EQ(scene.text(), L"berry");
    EXPECT_EQ(scene.combo.GetCurSel(), 1);
    EXPECT_EQ(scene.take(), with(kClosing, kAccepted));
}

TEST(ComboEnter, WithTheListOpenAndNothingSelected)
{
    for (const Flags& flags : kAllFlags)
        for (const bool match : {true, false}) {
            ComboScene scene{L"apple", L"berry"};
            scene.combo.AutoComplete(false); // an open list is searched all the same
            set(scene.combo, flags);
            scene.enter();
            scene.combo.ShowDropDown();
            ::SendMessageW(scene.listBox(), LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
            scene.setText(match ? L"berry" : L"bramble");
            ASSERT_EQ(scene.combo.GetCurSel(), -1);
            scene.take();
            scene.robot.key(VK_RETURN);
            EXPECT_FALSE(scene.combo.GetDroppedState());
            EXPECT_EQ(scene.take(), match || flags.confirmAnyText ? with(kClosing, kAccepted) : kClosing);
            EXPECT_EQ(scene.combo.GetCurSel(), match ? 1 : -1);
        }
}

TEST(ComboEnter, ACommandOfAControlIsNone)
{
    ComboScene scene{L"apple", L"berry"};
    scene.combo.ConfirmAnyText(true);
    scene.enter();
    scene.setText(L"berry");
    scene.take();
    for (const WPARAM id : {0x0400, 0x0401, 0x0402, 0x0403})
        scene.combo.SendMessage(WM_COMMAND, id, reinterpret_cast<LPARAM>(scene.edit()));
    EXPECT_EQ(scene.take(), Heard{});
    EXPECT_EQ(scene.text(), L"berry");
}

TEST(ComboEnter, TextMayBeEmptyIsNoMoreThanANote)
{
    for (const Flags& flags : kAllFlags)
        for (const bool mayBe : {false, true})
            for (const bool emptyItem : {false, true}) {
                ComboScene scene{L"apple", emptyItem ? L"" : L"berry"};
                set(scene.combo, flags);
                scene.combo.TextMayBeEmpty(mayBe);
                scene.enterWith(0);
                scene.combo.SetCurSel(-1);
                scene.take();
                scene.robot.key(VK_RETURN);
                Heard expected;
                if (emptyItem || flags.confirmAnyText)
                    expected = kAccepted;
                if (flags.notifyEditReturn)
                    expected.push_back("RETURN");
                EXPECT_EQ(scene.take(), expected);
                EXPECT_EQ(scene.text(), L"");
            }
}

namespace
{

/// Hears of the commands that reach the end of their way.
class Passing : public COVOComboBox
{
public:
    std::vector<UINT> commands;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
    {
        if (code == CN_COMMAND)
            commands.push_back(id);
        return COVOComboBox::OnCmdMsg(id, code, extra, info);
    }
};

} // namespace

TEST(ComboEnter, EveryCommandGoesOnToTheHandlersOfTheHost)
{
    ComboParent parent;
    Passing combo;
    combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN, CRect(10, 10, 210, 160), &parent, 21);
    for (const WPARAM id : {0x0400, 0x0401, 0x0402, 0x0403, 0x0404, 77})
        combo.SendMessage(WM_COMMAND, id, 0);
    for (const UINT id : {0x0400u, 0x0401u, 0x0402u, 0x0403u, 77u})
        EXPECT_EQ(std::ranges::count(combo.commands, id), 1) << id;
}

TEST(ComboEnter, OnlyThePressOfAKeyCounts)
{
    ComboScene scene{L"apple"};
    scene.combo.ConfirmAnyText(true);
    scene.combo.NotifyEditReturn(true);
    scene.enter();
    scene.setText(L"apple");
    scene.take();
    for (const WPARAM key : {VK_RETURN, VK_ESCAPE, VK_UP, VK_DOWN}) {
        MSG up{scene.edit(), WM_KEYUP, key, 1, 0, {}};
        EXPECT_FALSE(scene.combo.PreTranslateMessage(&up)) << key;
    }
    MSG altDown{scene.edit(), WM_SYSKEYDOWN, VK_DOWN, 1, 0, {}}; // which opens the list
    EXPECT_FALSE(scene.combo.PreTranslateMessage(&altDown));
    GuiThread::settle();
    EXPECT_EQ(scene.take(), Heard{});
}

namespace
{

struct Command
{
    UINT id;
    UINT code;
    LPARAM control;

    bool operator==(const Command&) const = default;
};

LRESULT CALLBACK hearCommands(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                              DWORD_PTR commands)
{
    if (message == WM_COMMAND)
        reinterpret_cast<std::vector<Command>*>(commands)->push_back(
            {LOWORD(wParam), HIWORD(wParam), lParam});
    return ::DefSubclassProc(window, message, wParam, lParam);
}

} // namespace

TEST(ComboEnter, NotificationsCarryTheNumberAndTheWindowOfTheComboBox)
{
    ComboScene scene{L"apple"};
    scene.combo.ConfirmAnyText(true);
    scene.combo.NotifyEditReturn(true);
    scene.enter();
    const auto self = reinterpret_cast<LPARAM>(scene.combo.m_hWnd);
    std::vector<Command> commands;
    ::SetWindowSubclass(scene.parent, &hearCommands, 1, reinterpret_cast<DWORD_PTR>(&commands));
    scene.combo.SetDlgCtrlID(0x1234); // both bytes count
    for (const auto& [command, code] : {std::pair{0x0400, 0x40u}, {0x0402, 0x41u}, {0x0403, 0x42u}}) {
        commands.clear();
        scene.combo.SendMessage(WM_COMMAND, static_cast<WPARAM>(command), 0);
        EXPECT_EQ(commands,
                  (std::vector<Command>{{0x1234, 1, self}, {0x1234, 9, self}, {0x1234, code, self}}));
    }
    commands.clear();
    scene.combo.SendMessage(WM_COMMAND, 0x0401, 0);
    EXPECT_EQ(commands, (std::vector<Command>{{0x1234, 1, self}, {0x1234, 10, self}}));
    scene.combo.SetDlgCtrlID(21);
    ::RemoveWindowSubclass(scene.parent, &hearCommands, 1);
}

TEST(ComboEnter, DoesNotReachTheDialog)
{
    ComboScene scene{L"apple"};
    scene.enter();
    scene.setText(L"apple");
    scene.take();
    MSG enter{scene.edit(), WM_KEYDOWN, VK_RETURN, 1, 0, {}};
    EXPECT_TRUE(scene.combo.PreTranslateMessage(&enter));
    EXPECT_EQ(scene.take(), Heard{}) << "after the messages that are on their way";
    GuiThread::settle();
    EXPECT_EQ(scene.take(), kAccepted);
}

// Escape

TEST(ComboEscape, WithoutAChangeGoesOn)
{
    for (const int selection : {-1, 1}) {
        ComboScene scene{L"apple", L"berry"};
        scene.enterWith(selection);
        MSG escape{scene.edit(), WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
        EXPECT_FALSE(scene.combo.PreTranslateMessage(&escape));
        GuiThread::settle();
        EXPECT_EQ(scene.take(), Heard{});
    }
}

TEST(ComboEscape, BringsTheTextOfBeforeBack)
{
    ComboScene scene{L"apple", L"berry"};
    scene.setText(L"bramble");
    scene.show();
    scene.combo.SetFocus();
    scene.take();
    scene.setText(L"x");
    scene.take();
    scene.robot.key(VK_ESCAPE);
    EXPECT_EQ(scene.take(), kRejected);
    EXPECT_EQ(scene.text(), L"bramble");
    EXPECT_EQ(scene.combo.GetCurSel(), -1);
}

TEST(ComboEscape, WhatComesBackIsNotCompleted)
{
    ComboScene scene{L"berry"};
    scene.enter();
    scene.combo.ConfirmAnyText(true);
    scene.combo.AutoComplete(false);
    scene.robot.type(L"be").key(VK_RETURN);
    scene.combo.AutoComplete(true);
    scene.robot.type(L"x").key(VK_ESCAPE);
    EXPECT_EQ(scene.text(), L"be");
}

namespace
{

/// On a platform that tells of texts that programs set as of typed ones.
class Telling : public COVOComboBox
{
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = COVOComboBox::WindowProc(message, wParam, lParam);
        if (message == WM_SETTEXT)
            GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), CBN_EDITUPDATE),
                                     reinterpret_cast<LPARAM>(m_hWnd));
        return result;
    }
};

} // namespace

TEST(ComboEscape, WhatTheControlSetsIsNotCompletedWhateverThePlatformTells)
{
    ComboParent parent;
    Telling combo;
    combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN, CRect(10, 10, 210, 160), &parent, 21);
    combo.AddString(L"berry");
    combo.AutoComplete(false);
    combo.SetWindowText(L"be");
    present(parent);
    combo.SetFocus();
    combo.AutoComplete(true);
    combo.SetWindowText(L"b"); // by the host: taken for typed
    CString text;
    combo.GetWindowText(text);
    ASSERT_EQ(text, L"berry");
    combo.SendMessage(WM_COMMAND, 0x0401, 0);
    combo.GetWindowText(text);
    EXPECT_EQ(text, L"be");
}

TEST(ComboEscape, BringsTheSelectionOfBeforeBack)
{
    ComboScene scene{L"apple", L"berry"};
    scene.enterWith(1);
    scene.combo.SetCurSel(0);
    scene.robot.key(VK_ESCAPE);
    EXPECT_EQ(scene.take(), kRejected);
    EXPECT_EQ(scene.text(), L"berry");
    EXPECT_EQ(scene.combo.GetCurSel(), 1);
}

TEST(ComboEscape, InTheOpenListUndoesTheSelection)
{
    ComboScene scene{L"apple", L"berry", L"cherry"};
    scene.enterWith(0);
    scene.robot.key(VK_F4).key(VK_DOWN, 2);
    ASSERT_TRUE(scene.combo.GetDroppedState());
    scene.take();
    scene.robot.key(VK_ESCAPE);
    EXPECT_EQ(scene.text(), L"apple");
    EXPECT_EQ(scene.combo.GetCurSel(), 0);
    EXPECT_EQ(scene.take(), kRejected);
}

TEST(ComboEscape, InTheOpenListWithoutAChangeClosesIt)
{
    ComboScene scene{L"apple", L"berry"};
    scene.enterWith(1);
    scene.robot.moveTo(Spot{scene.button}).key(VK_F4); // a pointer over the opening list would select
    ASSERT_TRUE(scene.combo.GetDroppedState());
    scene.take();
    scene.robot.key(VK_ESCAPE);
    EXPECT_FALSE(scene.combo.GetDroppedState());
    EXPECT_EQ(scene.take(), kClosing);
    EXPECT_EQ(scene.combo.GetCurSel(), 1);
}

// Arrows

TEST(ComboArrows, WithTheListClosedJudgeTheTextAndDoNotStep)
{
    for (const Flags& flags : kAllFlags)
        for (const bool match : {true, false})
            for (const WORD key : {VK_UP, VK_DOWN}) {
                ComboScene scene{L"apple", L"berry", L"cherry"};
                set(scene.combo, flags);
                scene.enter();
                scene.setText(match ? L"berry" : L"bramble");
                scene.take();
                scene.robot.key(key);
                Heard expected;
                if (match || flags.confirmAnyText)
                    expected = kAccepted;
                if (flags.notifyEditReturn)
                    expected.push_back(key == VK_UP ? "UP" : "DOWN");
                EXPECT_EQ(scene.take(), expected);
                EXPECT_EQ(scene.combo.GetCurSel(), match ? 1 : -1);
            }
}

TEST(ComboArrows, SearchTheListWithoutCompletionToo)
{
    ComboScene scene{L"apple", L"berry"};
    scene.combo.AutoComplete(false);
    scene.enter();
    scene.setText(L"berry");
    scene.take();
    scene.robot.key(VK_DOWN);
    EXPECT_EQ(scene.take(), kAccepted);
    EXPECT_EQ(scene.combo.GetCurSel(), 1);
}

TEST(ComboArrows, WithTheListOpenStepThroughIt)
{
    ComboScene scene{L"apple", L"berry", L"cherry"};
    scene.combo.NotifyEditReturn(true);
    scene.enterWith(0);
    scene.robot.key(VK_F4).key(VK_DOWN);
    EXPECT_EQ(scene.combo.GetCurSel(), 1);
    scene.robot.key(VK_UP);
    EXPECT_EQ(scene.combo.GetCurSel(), 0);
    const Heard heard = scene.take();
    EXPECT_EQ(std::ranges::count(heard, "UP") + std::ranges::count(heard, "DOWN"), 0);
}

// Focus

TEST(ComboFocus, ComingTellsTheParentToFillTheList)
{
    ComboScene scene{L"apple"};
    scene.show();
    scene.combo.SetFocus();
    EXPECT_EQ(scene.take(), (Heard{"DROPDOWN", "CLOSEUP", "SETFOCUS"}));

    scene.button.SetFocus();
    scene.combo.AutoComplete(false);
    scene.take();
    scene.combo.SetFocus();
    EXPECT_EQ(scene.take(), Heard{"SETFOCUS"});
}

TEST(ComboFocus, ComingToAnOpenListTellsNothingOfIt)
{
    ComboScene scene{L"apple"};
    scene.show();
    scene.combo.ShowDropDown();
    ASSERT_TRUE(scene.combo.GetDroppedState());
    scene.take();
    scene.combo.SetFocus();
    EXPECT_EQ(scene.take(), Heard{"SETFOCUS"});
}

TEST(ComboFocus, AListFilledOnDropdownIsThereForCompletion)
{
    ComboScene scene{};
    scene.parent.hearing = [&](const std::string& what) {
        if (what == "DROPDOWN" && scene.combo.GetCount() == 0)
            scene.combo.AddString(L"berry");
    };
    scene.enter();
    scene.robot.type(L"b");
    EXPECT_EQ(scene.text(), L"berry");
}

TEST(ComboFocus, GoingWithoutAChangeIsACancel)
{
    for (const int selection : {-1, 1}) {
        ComboScene scene{L"apple", L"berry"};
        scene.enterWith(selection);
        scene.button.SetFocus();
        EXPECT_EQ(scene.take(), leaving({"SELENDCANCEL"}));
    }
}

TEST(ComboFocus, GoingWithAnotherTextAcceptsOrRestores)
{
    for (const bool any : {false, true})
        for (const bool match : {false, true}) {
            ComboScene scene{L"apple", L"berry"};
            scene.combo.ConfirmAnyText(any);
            scene.enterWith(0);
            scene.combo.SetCurSel(-1);
            scene.setText(match ? L"berry" : L"bramble");
            scene.take();
            scene.button.SetFocus();
            EXPECT_EQ(scene.take(), leaving(match || any ? kAccepted : kRejected));
            EXPECT_EQ(scene.text(), match ? L"berry" : any ? L"bramble" : L"apple");
            EXPECT_EQ(scene.combo.GetCurSel(), match ? 1 : any ? -1 : 0);
        }
}

TEST(ComboFocus, GoingWithoutCompletionDoesNotSearchAClosedList)
{
    ComboScene scene{L"apple", L"berry"};
    scene.combo.AutoComplete(false);
    scene.enter();
    scene.setText(L"berry");
    scene.take();
    scene.button.SetFocus();
    EXPECT_EQ(scene.take(), leaving(kRejected));
    EXPECT_EQ(scene.text(), L"");
}

TEST(ComboFocus, GoingWithTheListOpenTakesItsSelection)
{
    ComboScene scene{L"apple", L"berry"};
    scene.enterWith(0);
    scene.robot.key(VK_F4).key(VK_DOWN);
    ASSERT_TRUE(scene.combo.GetDroppedState());
    scene.take();
    scene.button.SetFocus();
    EXPECT_FALSE(scene.combo.GetDroppedState());
    EXPECT_EQ(scene.text(), L"berry");
    EXPECT_EQ(scene.take(), with(with(kClosing, kAccepted), {"KILLFOCUS"}));
}

// The platform closes the list first, where it tells of the focus afterwards.
TEST(ComboFocus, GoingIsJudgedByAnOpenListWhereThereIsOne)
{
    const auto lose = [](ComboScene& scene) {
        scene.parent.SendMessage(WM_COMMAND, MAKEWPARAM(21, CBN_KILLFOCUS),
                                 reinterpret_cast<LPARAM>(scene.combo.m_hWnd));
    };
    for (const bool selected : {true, false})
        for (const bool match : {true, false}) {
            ComboScene scene{L"apple", L"berry"};
            scene.combo.AutoComplete(false); // an open list is searched all the same
            scene.enter();
            scene.combo.ShowDropDown();
            scene.setText(match ? L"berry" : L"bramble");
            ::SendMessageW(scene.listBox(), LB_SETCURSEL, static_cast<WPARAM>(selected ? 0 : -1), 0);
            scene.take();
            lose(scene);
            EXPECT_FALSE(scene.combo.GetDroppedState());
            EXPECT_EQ(scene.take(),
                      with(with(kClosing, selected || match ? kAccepted : kRejected), {"KILLFOCUS"}));
            EXPECT_EQ(scene.text(), selected ? L"apple" : match ? L"berry" : L"");
        }
}

TEST(ComboFocus, GoingToAnotherWindow)
{
    ComboScene scene{L"apple", L"berry"};
    scene.enterWith(0);
    scene.combo.SetCurSel(-1);
    scene.setText(L"bramble");
    scene.take();
    ComboParent another;
    present(another);
    EXPECT_EQ(scene.take(), leaving(kRejected));
    EXPECT_EQ(scene.text(), L"apple");
}

TEST(ComboFocus, GoingToAnotherProgram)
{
    // To this thread a window of another one is the same as a window of another program.
    for (const bool any : {false, true}) {
        ComboScene scene{L"apple", L"berry"};
        scene.combo.ConfirmAnyText(any);
        scene.enterWith(0);
        scene.combo.SetCurSel(-1);
        scene.setText(L"bramble");
        scene.take();
        ForeignWindow other;
        EXPECT_TRUE(GuiThread::runUntil([] { return ::GetFocus() == nullptr; }));
        EXPECT_EQ(scene.take(), leaving(any ? kAccepted : kRejected));
        EXPECT_EQ(scene.text(), any ? L"bramble" : L"apple");
    }
}

TEST(ComboFocus, GoingWithTheDialog)
{
    auto parent = std::make_unique<ComboParent>();
    COVOComboBox combo;
    combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN, CRect(10, 10, 210, 160), parent.get(),
                 21);
    combo.AddString(L"apple");
    present(*parent);
    combo.SetFocus();
    combo.SetWindowText(L"bramble");
    parent->heard.clear();
    parent->ShowWindow(SW_HIDE);
    GuiThread::settle();
    EXPECT_EQ(parent->heard, leaving(kRejected));
    parent.reset();
    EXPECT_FALSE(combo.m_hWnd);
}

TEST(ComboFocus, WhatWasSavedIsThatOfTheLastAcceptedSelection)
{
    ComboScene scene{L"apple", L"berry"};
    scene.enterWith(0);
    scene.combo.SetCurSel(1);
    scene.robot.key(VK_RETURN); // berry is accepted
    scene.combo.SetCurSel(0);
    scene.take();
    scene.robot.key(VK_ESCAPE);
    EXPECT_EQ(scene.take(), kRejected);
    EXPECT_EQ(scene.text(), L"berry");
}

// The list with the mouse

TEST(ComboList, AClickOnAnItemAcceptsIt)
{
    ComboScene scene{L"apple", L"berry", L"cherry"};
    scene.enterWith(0);
    scene.combo.ShowDropDown();
    scene.take();
    CRect third;
    ::SendMessageW(scene.listBox(), LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(static_cast<RECT*>(&third)));
    CPoint middle = third.CenterPoint();
    ::ClientToScreen(scene.listBox(), &middle);
    scene.robot.click(Spot{middle});
    EXPECT_FALSE(scene.combo.GetDroppedState());
    EXPECT_EQ(scene.text(), L"cherry");
    EXPECT_EQ(scene.combo.GetCurSel(), 2);
    EXPECT_EQ(scene.take(), (Heard{"SELENDOK", "CLOSEUP", "SELCHANGE"}));
    // It is what Escape would bring back now: there is no change.
    MSG escape{scene.edit(), WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    EXPECT_FALSE(scene.combo.PreTranslateMessage(&escape));
}

TEST(ComboList, ClosingItKeepsWhatWasTyped)
{
    ComboScene scene{L"apple", L"berry"};
    scene.combo.AutoComplete(false);
    scene.enter();
    scene.robot.type(L"be");
    scene.combo.ShowDropDown(); // highlights what begins with the text
    ::SendMessageW(scene.listBox(), LB_SETCURSEL, 1, 0);
    scene.setText(L"be");
    ::SendMessageW(scene.listBox(), LB_SETCURSEL, 1, 0);
    ASSERT_EQ(scene.combo.GetCurSel(), 1);
    scene.combo.ShowDropDown(FALSE);
    EXPECT_EQ(scene.text(), L"be");
    EXPECT_EQ(scene.combo.GetCurSel(), -1);
}

namespace
{

LRESULT CALLBACK countTexts(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                            DWORD_PTR count)
{
    *reinterpret_cast<int*>(count) += message == WM_SETTEXT;
    return ::DefSubclassProc(window, message, wParam, lParam);
}

} // namespace

TEST(ComboList, ClosingItWithoutASelectionLeavesTheFieldAlone)
{
    ComboScene scene{L"apple", L"berry"};
    scene.combo.AutoComplete(false);
    scene.enter();
    scene.setText(L"bramble");
    int texts = 0;
    ::SetWindowSubclass(scene.edit(), &countTexts, 1, reinterpret_cast<DWORD_PTR>(&texts));
    // As the platform tells of it.
    scene.parent.SendMessage(WM_COMMAND, MAKEWPARAM(21, CBN_CLOSEUP),
                             reinterpret_cast<LPARAM>(scene.combo.m_hWnd));
    EXPECT_EQ(texts, 0);
    EXPECT_EQ(scene.text(), L"bramble");
    ::RemoveWindowSubclass(scene.edit(), &countTexts, 1);
}

TEST(ComboList, ClosingItKeepsWhatDiffersInCaseOnly)
{
    ComboScene scene{L"apple", L"berry"};
    scene.enter();
    scene.combo.ShowDropDown();
    scene.setText(L"Berry");
    ::SendMessageW(scene.listBox(), LB_SETCURSEL, 1, 0);
    scene.combo.ShowDropDown(FALSE);
    EXPECT_EQ(scene.text(), L"Berry");
    EXPECT_EQ(scene.combo.GetCurSel(), -1);
}

TEST(ComboList, ClosingItKeepsASelectedItemThatHasNoText)
{
    ComboScene scene({L"apple", L"berry"}, CBS_DROPDOWN | CBS_OWNERDRAWFIXED);
    scene.enterWith(0);
    EXPECT_EQ(scene.combo.GetCurSel(), 0) << "the focus tells the parent of a list that opens and closes";
    scene.combo.ShowDropDown();
    ::SendMessageW(scene.listBox(), LB_SETCURSEL, 1, 0);
    ASSERT_EQ(scene.combo.GetCurSel(), 1);
    scene.combo.ShowDropDown(FALSE);
    EXPECT_EQ(scene.combo.GetCurSel(), 1);
}
