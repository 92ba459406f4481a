// Completion by any part of the text.
#include "ComboScene.h"
#include "ListScene.h"

#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>
#include <testkit/TemporaryFiles.h>
#include <testkit/WindowCounter.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

BOOL CALLBACK findHits(HWND window, LPARAM found)
{
    const bool isHits = ::IsWindowVisible(window) && ::FindWindowExW(window, nullptr, L"ListBox", nullptr) &&
                        (::GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_NOACTIVATE);
    if (isHits)
        *reinterpret_cast<HWND*>(found) = window;
    return !isHits;
}

/// The window with the hits; null when none are shown.
HWND hitsWindow()
{
    HWND found = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &findHits, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND hitsList()
{
    return ::FindWindowExW(hitsWindow(), nullptr, L"ListBox", nullptr);
}

/// 0 when none are shown.
int hitCount()
{
    return hitsWindow() ? static_cast<int>(::SendMessageW(hitsList(), LB_GETCOUNT, 0, 0)) : 0;
}

int chosenHit()
{
    return static_cast<int>(::SendMessageW(hitsList(), LB_GETCURSEL, 0, 0));
}

Spot overHit(int index)
{
    CRect place;
    ::SendMessageW(hitsList(), LB_GETITEMRECT, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(static_cast<RECT*>(&place)));
    CPoint middle = place.CenterPoint();
    ::ClientToScreen(hitsList(), &middle);
    return Spot{middle};
}

class ComboSearching : public ::testing::Test
{
protected:
    ComboSearching()
    {
        scene.combo.SearchInside(true);
        scene.enter();
    }

    ComboScene scene{L"berry", L"apple", L"blackberry", L"Cherry"};
};

} // namespace

TEST(ComboSearch, OffAtFirstAndOffAgain)
{
    ComboScene scene{L"berry", L"blackberry"};
    scene.enter();
    scene.robot.type(L"r");
    EXPECT_FALSE(hitsWindow());
    scene.combo.SearchInside(true);
    scene.robot.type(L"r");
    EXPECT_TRUE(hitsWindow());
    scene.combo.SearchInside(false);
    EXPECT_FALSE(hitsWindow());
    scene.robot.key(VK_BACK);
    EXPECT_FALSE(hitsWindow());
}

TEST(ComboSearch, ItemsWithoutTextsAreNoHits)
{
    ComboScene scene({}, CBS_DROPDOWN | CBS_OWNERDRAWFIXED);
    // Such an item is a number of the host's, here with the bytes of letters.
    scene.combo.AddString(reinterpret_cast<LPCWSTR>(0x0062006200620062));
    scene.combo.SearchInside(true);
    scene.enter();
    scene.robot.type(L"b");
    EXPECT_EQ(scene.text(), L"b");
    EXPECT_FALSE(hitsWindow());
}

TEST_F(ComboSearching, ShowsTheItemsThatHaveTheTextAnywhere)
{
    scene.robot.type(L"ERR");
    EXPECT_EQ(hitCount(), 3);
    EXPECT_EQ(scene.text(), L"ERR") << "no item begins so";
    EXPECT_EQ(chosenHit(), -1);
    scene.robot.type(L"Yx");
    EXPECT_EQ(hitCount(), 0);
    scene.robot.key(VK_BACK);
    EXPECT_EQ(hitCount(), 3);
}

namespace
{

HWND WINAPI makeAllButLists(DWORD exStyle, LPCWSTR windowClass, LPCWSTR title, DWORD style, int x, int y,
                            int width, int height, HWND parent, HMENU menu, HINSTANCE instance, void* data)
{
    const bool isList = !IS_INTRESOURCE(windowClass) && std::wstring(windowClass) == WC_LISTBOXW;
    return isList ? nullptr
                  : ::CreateWindowExW(exStyle, windowClass, title, style, x, y, width, height, parent, menu,
                                      instance, data);
}

} // namespace

TEST_F(ComboSearching, AListThatCannotBeMadeIsTriedAgain)
{
    {
        const ImportPatch patch(L"ovomfc.dll", "CreateWindowExW", reinterpret_cast<void*>(&makeAllButLists));
        scene.robot.type(L"er");
        EXPECT_EQ(scene.text(), L"er");
    }
    scene.robot.type(L"r");
    EXPECT_EQ(hitCount(), 3);
}

TEST_F(ComboSearching, BesideTheCompletionByTheBeginning)
{
    scene.robot.type(L"be");
    EXPECT_EQ(scene.text(), L"berry");
    EXPECT_EQ(scene.marked(), std::make_pair(2, 5));
    EXPECT_EQ(hitCount(), 2) << "of what was typed";
}

TEST_F(ComboSearching, WithoutThatTheHitsAreShownAllTheSame)
{
    scene.combo.AutoComplete(false);
    scene.robot.type(L"be");
    EXPECT_EQ(scene.text(), L"be");
    EXPECT_EQ(hitCount(), 2);
}

TEST_F(ComboSearching, TheTextItselfIsNoChoice)
{
    scene.robot.type(L"apple");
    EXPECT_EQ(hitCount(), 0);
}

TEST_F(ComboSearching, LiesBelowTheFieldAndLeavesItTheFocus)
{
    scene.robot.type(L"err");
    CRect hits;
    CRect field;
    ::GetWindowRect(hitsWindow(), &hits);
    scene.combo.GetWindowRect(&field);
    EXPECT_EQ(hits.left, field.left);
    EXPECT_EQ(hits.right, field.right);
    EXPECT_EQ(hits.top, field.bottom);
    EXPECT_EQ(::GetFocus(), scene.edit());
    EXPECT_EQ(::GetActiveWindow(), scene.parent.m_hWnd);
}

TEST_F(ComboSearching, TheHitPartStandsOut)
{
    scene.robot.type(L"err");
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    const Picture shown = Picture::ofClient(hitsList());
    CRect row;
    ::SendMessageW(hitsList(), LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(static_cast<RECT*>(&row)));
    EXPECT_GT(shown.count(highlight, 0, row), 30);
    EXPECT_LT(shown.count(highlight, 0, row), row.Width() * row.Height() / 2) << "and the rest does not";
    int first = 0;
    while (first < row.right && shown.at(first, row.top + 1) != highlight)
        ++first;
    CClientDC dc(&scene.combo);
    CFont* const old = dc.SelectObject(scene.combo.GetFont());
    EXPECT_NEAR(first, dc.GetTextExtent(L"blackb", 6).cx, 6);
    dc.SelectObject(old);
}

TEST_F(ComboSearching, ArrowsChooseAndComeBackToWhatWasTyped)
{
    scene.robot.type(L"err").key(VK_DOWN);
    EXPECT_EQ(chosenHit(), 0);
    EXPECT_EQ(scene.text(), L"berry");
    scene.robot.key(VK_DOWN);
    EXPECT_EQ(scene.text(), L"blackberry");
    scene.robot.key(VK_UP, 2);
    EXPECT_EQ(chosenHit(), -1);
    EXPECT_EQ(scene.text(), L"err");
    EXPECT_EQ(scene.marked(), std::make_pair(3, 3));
    scene.robot.key(VK_UP);
    EXPECT_EQ(scene.text(), L"Cherry");
    scene.robot.key(VK_PRIOR);
    EXPECT_EQ(scene.text(), L"berry");
    scene.robot.key(VK_NEXT);
    EXPECT_EQ(scene.text(), L"Cherry");
    EXPECT_EQ(scene.take(), (Heard{"EDITCHANGE", "EDITCHANGE", "EDITCHANGE"})) << "choosing tells nothing";
}

TEST_F(ComboSearching, EnterAcceptsTheChosenOne)
{
    scene.robot.type(L"err").key(VK_DOWN, 2);
    scene.take();
    scene.robot.key(VK_RETURN);
    EXPECT_FALSE(hitsWindow());
    EXPECT_EQ(scene.text(), L"blackberry");
    EXPECT_EQ(scene.combo.GetCurSel(), 2);
    EXPECT_EQ(scene.take(), (Heard{"SELCHANGE", "SELENDOK"}));
}

TEST_F(ComboSearching, EnterJudgesTheTextWhenNoneIsChosen)
{
    scene.robot.type(L"err");
    scene.take();
    scene.robot.key(VK_RETURN);
    EXPECT_FALSE(hitsWindow());
    EXPECT_EQ(scene.take(), Heard{});
    EXPECT_EQ(scene.text(), L"err");
}

TEST_F(ComboSearching, EscapeFirstTakesTheHitsAwayAndThenRestores)
{
    scene.robot.type(L"err").key(VK_ESCAPE);
    EXPECT_FALSE(hitsWindow());
    EXPECT_EQ(scene.text(), L"err");
    scene.take();
    scene.robot.key(VK_ESCAPE);
    EXPECT_EQ(scene.text(), L"");
    EXPECT_EQ(scene.take(), (Heard{"SELCHANGE", "SELENDCANCEL"}));
    EXPECT_FALSE(hitsWindow()) << "what comes back is not typed";
}

TEST_F(ComboSearching, AClickAccepts)
{
    scene.robot.type(L"err");
    scene.take();
    scene.robot.click(overHit(2));
    EXPECT_FALSE(hitsWindow());
    EXPECT_EQ(scene.text(), L"Cherry");
    EXPECT_EQ(::GetFocus(), scene.edit());
    EXPECT_EQ(scene.take(), (Heard{"SELCHANGE", "SELENDOK"}));
}

TEST_F(ComboSearching, AReleaseThatArrivesAfterTheyHaveGoneChoosesNothing)
{
    scene.robot.type(L"err");
    const HWND list = hitsList();
    scene.robot.type(L"x");
    ASSERT_EQ(hitCount(), 0);
    ::SendMessageW(list, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(scene.text(), L"errx");
}

TEST_F(ComboSearching, WithoutHitsAWindowThatOthersShowIsEmpty)
{
    scene.robot.type(L"err");
    const HWND list = hitsList();
    const HWND window = hitsWindow();
    const CPoint third(5, static_cast<int>(::SendMessageW(list, LB_GETITEMHEIGHT, 0, 0)) * 5 / 2);
    scene.robot.type(L"x");
    ASSERT_FALSE(hitsWindow());
    ::SendMessageW(window, WM_SETREDRAW, TRUE, 0); // by which the system shows a hidden window
    ASSERT_TRUE(hitsWindow());
    ::SendMessageW(list, WM_LBUTTONUP, 0, MAKELPARAM(third.x, third.y));
    GuiThread::settle();
    scene.robot.key(VK_DOWN);
    EXPECT_EQ(::SendMessageW(list, LB_GETCOUNT, 0, 0), 0);
    EXPECT_EQ(scene.text(), L"errx");
}

TEST_F(ComboSearching, FollowsItemsThatTheHostChanges)
{
    scene.robot.type(L"err");
    ASSERT_EQ(hitCount(), 3);
    scene.combo.InsertString(0, L"raspberry");
    scene.combo.InsertString(1, L"plum");
    EXPECT_EQ(hitCount(), 3) << "before it has done all that it wanted";
    GuiThread::settle();
    ASSERT_EQ(hitCount(), 4);
    scene.robot.click(overHit(1));
    EXPECT_EQ(scene.text(), L"berry");
}

TEST_F(ComboSearching, FollowsItemsThatTheHostChangesAgain)
{
    scene.robot.type(L"err");
    for (int more = 1; more <= 3; ++more) {
        scene.combo.InsertString(0, L"raspberry");
        GuiThread::settle();
        EXPECT_EQ(hitCount(), 3 + more);
    }
}

TEST_F(ComboSearching, FollowsFilesThatTheHostAdds)
{
    const TemporaryFiles files{L"elderberry.txt"};
    scene.robot.type(L"err");
    ASSERT_EQ(hitCount(), 3);
    scene.combo.Dir(0, files.path(L"*.txt").c_str());
    GuiThread::settle();
    EXPECT_EQ(hitCount(), 4);
}

TEST_F(ComboSearching, TheHitsShowANewColourAtOnce)
{
    constexpr COLORREF kGreen = RGB(0, 200, 0);
    scene.robot.type(L"err");
    ASSERT_TRUE(hitsWindow());
    ASSERT_EQ(Picture::ofClient(hitsList()).count(kGreen), 0);
    scene.combo.SetItemColour(2, 0xFF000000 | kGreen);
    CRect row;
    ::SendMessageW(hitsList(), LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(static_cast<RECT*>(&row)));
    EXPECT_GT(Picture::ofClient(hitsList()).count(kGreen, 0, row), 50);
}

TEST(ComboSearch, TheHitsShowOtherImagesAtOnce)
{
    constexpr COLORREF kGreen = RGB(0, 200, 0);
    constexpr COLORREF kRed = RGB(220, 0, 0);
    CImageList green;
    CImageList red;
    fillImages(green, 16, {kGreen});
    fillImages(red, 16, {kRed}); // of the same size
    ComboScene scene({L"berry", L"cherry"}, CBS_DROPDOWN | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS);
    scene.combo.SetImageList(&green);
    scene.combo.SetItemImage(0, 0);
    scene.combo.SearchInside(true);
    scene.enter();
    scene.robot.type(L"err");
    ASSERT_EQ(hitCount(), 2);
    ASSERT_EQ(Picture::ofClient(hitsList()).count(kGreen), 12 * 12);
    scene.combo.SetImageList(&red);
    EXPECT_EQ(Picture::ofClient(hitsList()).count(kRed), 12 * 12);
}

TEST_F(ComboSearching, GoesWhenTheHostTakesTheItemsAway)
{
    scene.robot.type(L"err");
    scene.combo.ResetContent();
    GuiThread::settle();
    EXPECT_FALSE(hitsWindow());
}

TEST_F(ComboSearching, AClickedHitWhoseItemTheHostDeletesMeanwhileIsNotTaken)
{
    scene.robot.type(L"err");
    const CPoint second(5, static_cast<int>(::SendMessageW(hitsList(), LB_GETITEMHEIGHT, 0, 0)) * 3 / 2);
    ::SendMessageW(hitsList(), WM_LBUTTONUP, 0, MAKELPARAM(second.x, second.y));
    scene.combo.DeleteString(2); // "blackberry", before the click is handled
    GuiThread::settle();
    EXPECT_EQ(scene.text(), L"err");
    EXPECT_FALSE(hitsWindow());
}

TEST_F(ComboSearching, ThePointerShowsWhereAClickWouldGo)
{
    scene.robot.type(L"err");
    scene.robot.moveTo(overHit(1));
    EXPECT_EQ(chosenHit(), 1);
    EXPECT_EQ(scene.text(), L"err") << "until it is clicked";
}

TEST_F(ComboSearching, TheHitsGoWithTheFocusTheListAndAMove)
{
    scene.robot.type(L"err");
    ASSERT_TRUE(hitsWindow());
    scene.button.SetFocus();
    EXPECT_FALSE(hitsWindow());
    scene.combo.SetFocus();
    scene.robot.type(L"err");
    ASSERT_TRUE(hitsWindow());
    scene.robot.moveTo(Spot{scene.button}).key(VK_F4); // a pointer over the opening list would select
    EXPECT_FALSE(hitsWindow());
    EXPECT_TRUE(scene.combo.GetDroppedState());
    scene.robot.key(VK_F4).key(VK_BACK);
    ASSERT_TRUE(hitsWindow());
    scene.parent.SetWindowPos(nullptr, 80, 80, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_FALSE(hitsWindow());
}

TEST_F(ComboSearching, WhileTheListIsOpenTypingShowsNone)
{
    scene.robot.moveTo(Spot{scene.button}).key(VK_F4); // a pointer over the opening list would select
    ASSERT_TRUE(scene.combo.GetDroppedState());
    scene.robot.type(L"err");
    EXPECT_FALSE(hitsWindow());
}

TEST_F(ComboSearching, AWindowThatIsSizedTakesThemAway)
{
    scene.robot.type(L"err");
    ASSERT_TRUE(hitsWindow());
    scene.parent.SetWindowPos(nullptr, 0, 0, 420, 380, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_FALSE(hitsWindow());
}

namespace
{

/// A window with a title bar, of which another one may be the owner.
void makeDialog(CWnd& dialog, CWnd* owner)
{
    dialog.CreateEx(0, AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW)), L"Dialog",
                    WS_POPUP | WS_CAPTION, CRect(80, 80, 480, 400), owner, 0);
}

void move(CWnd& dialog)
{
    CRect place;
    dialog.GetWindowRect(&place);
    dialog.SetWindowPos(nullptr, place.left + 20, place.top + 20, 0, 0,
                        SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void makeCombo(COVOComboBox& combo, CWnd& parent)
{
    combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL, CRect(10, 10, 210, 160),
                 &parent, 21);
    for (const wchar_t* item : {L"berry", L"blackberry"})
        combo.AddString(item);
    combo.SearchInside(true);
}

void typeInto(COVOComboBox& combo, const wchar_t* text)
{
    combo.SetFocus();
    Robot robot;
    robot.type(text);
}

} // namespace

TEST(ComboSearch, TheHitsGoWhenADialogMovesThatAnotherWindowOwns)
{
    ComboParent owner;
    CWnd dialog;
    makeDialog(dialog, &owner);
    COVOComboBox combo;
    makeCombo(combo, dialog);
    present(owner);
    present(dialog);
    typeInto(combo, L"err");
    ASSERT_TRUE(hitsWindow());
    EXPECT_EQ(::GetWindow(hitsWindow(), GW_OWNER), dialog.m_hWnd);
    move(owner);
    EXPECT_TRUE(hitsWindow()) << "the field is where it was";
    move(dialog);
    EXPECT_FALSE(hitsWindow());
    combo.DestroyWindow();
    dialog.DestroyWindow();
}

TEST(ComboSearch, TheHitsBelongToTheWindowThatTheFieldIsInNow)
{
    CWnd first;
    CWnd second;
    makeDialog(first, nullptr);
    makeDialog(second, nullptr);
    CWnd bar;
    bar.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &first, 31);
    COVOComboBox combo;
    makeCombo(combo, bar);
    present(first);
    typeInto(combo, L"er");
    ASSERT_TRUE(hitsWindow());
    bar.SetParent(&second);
    present(second);
    typeInto(combo, L"r");
    ASSERT_TRUE(hitsWindow());
    EXPECT_EQ(::GetWindow(hitsWindow(), GW_OWNER), second.m_hWnd);
    move(second);
    EXPECT_FALSE(hitsWindow());
    combo.DestroyWindow();
    bar.DestroyWindow();
    second.DestroyWindow();
    first.DestroyWindow();
}

TEST_F(ComboSearching, NoMoreThanTwelveRowsAreShownAtOnce)
{
    for (int i = 0; i < 40; ++i)
        scene.combo.AddString((L"xerr" + std::to_wstring(i)).c_str());
    scene.robot.type(L"err");
    EXPECT_EQ(hitCount(), 43);
    CRect client;
    ::GetClientRect(hitsList(), &client);
    EXPECT_EQ(client.Height(), 12 * ::SendMessageW(hitsList(), LB_GETITEMHEIGHT, 0, 0));
}

TEST_F(ComboSearching, PageKeysGoOnByTheRowsThatAreShownAndABarByAny)
{
    for (int i = 0; i < 40; ++i)
        scene.combo.AddString((L"xerr" + std::to_wstring(i)).c_str());
    scene.robot.type(L"err").key(VK_NEXT);
    EXPECT_EQ(chosenHit(), 11) << "of twelve rows the last one";
    scene.robot.key(VK_NEXT);
    EXPECT_EQ(chosenHit(), 22);
    scene.robot.key(VK_PRIOR);
    EXPECT_EQ(chosenHit(), 11);
    EXPECT_TRUE(::GetWindowLongW(hitsList(), GWL_STYLE) & WS_VSCROLL);
}

TEST_F(ComboSearching, LiesAboveTheFieldWhereTheScreenEndsBelow)
{
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    CRect window;
    CRect field;
    scene.parent.GetWindowRect(&window);
    scene.combo.GetWindowRect(&field);
    scene.parent.SetWindowPos(nullptr, window.left, window.top + work.bottom - field.bottom, 0, 0,
                              SWP_NOSIZE | SWP_NOZORDER);
    scene.robot.type(L"err");
    ASSERT_TRUE(hitsWindow());
    CRect hits;
    ::GetWindowRect(hitsWindow(), &hits);
    scene.combo.GetWindowRect(&field);
    EXPECT_EQ(hits.bottom, field.top);
    EXPECT_EQ(hits.left, field.left);
    EXPECT_EQ(hits.right, field.right);
    EXPECT_GT(hits.Height(), 0);
}

TEST_F(ComboSearching, InTheFontOfTheComboBox)
{
    CFont font;
    font.CreatePointFont(140, L"Courier New");
    scene.combo.SetFont(&font);
    scene.robot.type(L"err");
    EXPECT_EQ(::SendMessageW(hitsList(), WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(font.GetSafeHandle()));
    scene.combo.SetFont(nullptr);
}

TEST_F(ComboSearching, TheHitsReadFromTheRightWhereTheComboBoxDoes)
{
    scene.combo.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    scene.robot.type(L"err");
    ASSERT_TRUE(hitsWindow());
    CRect list;
    ::GetWindowRect(hitsList(), &list);
    const CRect right(list.CenterPoint().x, list.top, list.right, list.bottom);
    const CRect left(list.left, list.top, right.left, list.bottom);
    const auto letters = [](const CRect& place) {
        return Picture::ofScreen().count(::GetSysColor(COLOR_WINDOWTEXT), 0, place);
    };
    GuiThread::settleOnScreen(); // until then the display may show what the hits will cover
    EXPECT_TRUE(GuiThread::runUntil([&] { return letters(right) > 0; }));
    EXPECT_EQ(letters(left), 0);
    scene.robot.click(overHit(1));
    EXPECT_EQ(scene.text(), L"blackberry") << "the mouse finds them there";
}

TEST_F(ComboSearching, WhatAHostWritesShowsNone)
{
    scene.setText(L"err");
    GuiThread::settle();
    EXPECT_FALSE(hitsWindow());
    ::SendMessageW(scene.edit(), EM_SETSEL, 0, -1);
    ::SendMessageW(scene.edit(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"erry"));
    GuiThread::settle();
    EXPECT_EQ(scene.text(), L"erry");
    EXPECT_FALSE(hitsWindow());
}

TEST_F(ComboSearching, ItMayBeDestroyedWhileTheyAreShown)
{
    const WindowCounter windows;
    scene.robot.type(L"err");
    ASSERT_TRUE(hitsWindow());
    scene.combo.DestroyWindow();
    EXPECT_FALSE(hitsWindow());
}

TEST_F(ComboSearching, TheParentMayDestroyItWhenAHitIsAccepted)
{
    for (const std::string when : {"SELCHANGE", "SELENDOK"}) {
        ComboScene another{L"berry", L"blackberry"};
        another.combo.SearchInside(true);
        another.enter();
        another.robot.type(L"err");
        another.parent.hearing = [&](const std::string& heard) {
            if (heard == when)
                another.combo.DestroyWindow();
        };
        another.robot.click(overHit(1));
        EXPECT_FALSE(another.combo.m_hWnd) << when;
        EXPECT_FALSE(hitsWindow());
    }
}

TEST(ComboSearch, TheParentMayDeleteTheComboBoxWhenAHitIsAccepted)
{
    ComboParent parent;
    auto combo = std::make_unique<COVOComboBox>();
    combo->Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN, CRect(10, 10, 210, 160), &parent, 21);
    combo->AddString(L"berry");
    combo->AddString(L"blackberry");
    combo->SearchInside(true);
    present(parent);
    combo->SetFocus();
    Robot robot;
    robot.type(L"err");
    parent.hearing = [&](const std::string& heard) {
        if (heard == "SELENDOK")
            combo.reset();
    };
    robot.click(overHit(0));
    EXPECT_FALSE(combo);
    EXPECT_FALSE(hitsWindow());
    parent.hearing = nullptr;
}
