// COVOMessageDialog: the host's buttons, details, answers that are kept, the count.
#include "MessageBoxScene.h"

#include <support/Perishing.h>
#include <testkit/Clipboard.h>
#include <testkit/GdiCounter.h>
#include <testkit/ImportPatch.h>
#include <testkit/TemporaryProfile.h>
#include <testkit/TestApp.h>
#include <testkit/WindowCounter.h>

#include <ovoui/frame/MessageDialog.h>
#include <ovoui/frame/MessageBoxIds.h>
#include <ovouires/resource.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;
using namespace ovoui::frame;

namespace
{

constexpr int kReplace = 1001;
constexpr int kKeep = 1002;

COVOMessageDialog withOwnButtons(UINT type = MB_OK)
{
    COVOMessageDialog box(nullptr, L"The message.", L"Box", type);
    box.AddButton(kReplace, L"&Replace them all");
    box.AddButton(kKeep, L"&Keep");
    box.AddButton(IDCANCEL, L"Cancel");
    return box;
}

HWND control(int id)
{
    return ::GetDlgItem(openBox(), id);
}

HWND details()
{
    return control(kDetailsId);
}

bool detailsShown()
{
    return details() && ::IsWindowVisible(details());
}

std::function<bool()> focusOn(int id)
{
    return [id] { return ::GetFocus() == control(id); };
}

CRect workArea()
{
    CRect area;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

Story clicking(int id)
{
    return whenOpen().click([id] { return control(id); });
}

HWND WINAPI makeAllButDetails(DWORD extendedStyle, LPCWSTR windowClass, LPCWSTR name, DWORD style, int x,
                              int y, int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                              void* data)
{
    if (reinterpret_cast<INT_PTR>(menu) == kDetailsId)
        return nullptr;
    return ::CreateWindowExW(extendedStyle, windowClass, name, style, x, y, width, height, parent, menu,
                             instance, data);
}

ULONGLONG g_now = 0; ///< milliseconds, for the library

ULONGLONG WINAPI toldNow()
{
    return g_now;
}

bool isMarked()
{
    return ::SendMessageW(control(kNotAgainId), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

int answerBy(const COVOMessageDialog& box, Story story)
{
    auto answering = std::move(story).start();
    return box.DoModal();
}

class MessageDialogTest : public testing::Test
{
protected:
    static int kept(const wchar_t* entry)
    {
        return static_cast<int>(AfxGetApp()->GetProfileInt(L"answers", entry, -1));
    }
    static void keep(const wchar_t* entry, int answer)
    {
        AfxGetApp()->WriteProfileInt(L"answers", entry, answer);
    }

    TemporaryProfile m_profile;
};

} // namespace

TEST_F(MessageDialogTest, WithoutMoreIsTheMessageBox)
{
    std::vector<int> plain;
    std::vector<int> dialog;
    CRect plainPlace;
    CRect dialogPlace;
    inspect({.type = MB_YESNOCANCEL}, [&](HWND box) {
        plain = buttonsFromTheLeft(box);
        plainPlace = screenRect(box);
    });
    const COVOMessageDialog box(nullptr, L"The message.", L"Box", MB_YESNOCANCEL);
    const int answer = answerBy(box, whenOpen()
                                         .then([&] {
                                             dialog = buttonsFromTheLeft(openBox());
                                             dialogPlace = screenRect(openBox());
                                         })
                                         .key(VK_ESCAPE));
    EXPECT_EQ(answer, IDCANCEL);
    EXPECT_EQ(dialog, plain);
    EXPECT_EQ(dialogPlace, plainPlace);
}

TEST_F(MessageDialogTest, OwnerCaptionIconAndHelpAreTheHosts)
{
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 300, 200,
                   nullptr, nullptr);
    COVOMessageDialog box(owner, L"The message.", L"Own", MB_OK | MB_ICONHAND);
    box.SetHelp(4711);
    EXPECT_EQ(answerBy(box, whenOpen()
                                .then([&owner] {
                                    EXPECT_FALSE(owner.IsWindowEnabled());
                                    EXPECT_EQ(windowText(openBox()), L"Own");
                                    EXPECT_EQ(windowText(iconControl(openBox())), L"STOP");
                                    EXPECT_EQ(windowText(textControl(openBox())), L"The message.");
                                })
                                .key(VK_F1)
                                .waitFor("the help", [] { return !TestApp::instance().helps().empty(); })
                                .key(VK_ESCAPE)),
              IDCANCEL);
    EXPECT_TRUE(owner.IsWindowEnabled());
    owner.DestroyWindow();
    ASSERT_EQ(TestApp::instance().helps().size(), 1u);
    EXPECT_EQ(TestApp::instance().helps()[0].data, 4711u);
    const COVOMessageDialog plain(nullptr, L"The message.");
    EXPECT_EQ(answerBy(plain,
                       whenOpen()
                           .then([] { EXPECT_EQ(windowText(openBox()), libraryString(IDS_MESSAGE_CAPTION)); })
                           .key(VK_ESCAPE)),
              IDCANCEL);
}

TEST_F(MessageDialogTest, ButtonsOfTheHostAnswerWithTheirIds)
{
    for (const int id : {kReplace, kKeep, int{IDCANCEL}})
        EXPECT_EQ(answerBy(withOwnButtons(), clicking(id)), id);
    EXPECT_EQ(answerBy(withOwnButtons(), whenOpen().key(VK_RETURN)), kReplace);
    EXPECT_EQ(answerBy(withOwnButtons(MB_DEFBUTTON2), whenOpen().key(VK_RETURN)), kKeep);
    EXPECT_EQ(answerBy(withOwnButtons(), whenOpen().holding(VK_MENU).key('K').letGo(VK_MENU)), kKeep);
    EXPECT_EQ(answerBy(withOwnButtons(), whenOpen().key(VK_ESCAPE)), IDCANCEL);
}

TEST_F(MessageDialogTest, ButtonsOfTheHostStandInOrderAndHoldTheirLabels)
{
    std::vector<int> ids;
    int width = 0;
    int needed = 0;
    answerBy(withOwnButtons(), whenOpen()
                                   .then([&] {
                                       ids = buttonsFromTheLeft(openBox());
                                       CWnd* const button = CWnd::FromHandle(control(kReplace));
                                       width = screenRect(*button).Width();
                                       CClientDC dc(button);
                                       CFont* const before = dc.SelectObject(button->GetFont());
                                       needed = dc.GetTextExtent(L"Replace them all", 16).cx;
                                       dc.SelectObject(before);
                                   })
                                   .key(VK_ESCAPE));
    EXPECT_EQ(ids, (std::vector<int>{kReplace, kKeep, IDCANCEL}));
    EXPECT_GT(needed, 0);
    EXPECT_GE(width, needed);
}

TEST_F(MessageDialogTest, HelpStandsBesideButtonsOfTheHostAndLeavesTheBoxOpen)
{
    std::vector<int> ids;
    bool open = false;
    const int answer = answerBy(withOwnButtons(MB_HELP), clicking(IDHELP)
                                                             .then([&] {
                                                                 ids = buttonsFromTheLeft(openBox());
                                                                 open = openBox() != nullptr;
                                                             })
                                                             .key(VK_ESCAPE));
    EXPECT_EQ(ids, (std::vector<int>{kReplace, kKeep, IDCANCEL, IDHELP}));
    EXPECT_TRUE(open);
    EXPECT_EQ(answer, IDCANCEL);
}

TEST_F(MessageDialogTest, DetailsAreShownAndHiddenByTheirButton)
{
    COVOMessageDialog box(nullptr, L"The message.", L"Box", MB_OKCANCEL);
    box.SetDetails(L"First line\nSecond line");
    CRect closed;
    CRect open;
    CRect again;
    CRect button;
    CRect buttonWhileOpen;
    std::wstring text;
    const int answer = answerBy(box, whenOpen()
                                         .then([&] {
                                             closed = screenRect(openBox());
                                             button = screenRect(control(IDOK));
                                         })
                                         .click([] { return control(kDetailsButtonId); })
                                         .waitFor("the details", &detailsShown)
                                         .then([&] {
                                             open = screenRect(openBox());
                                             buttonWhileOpen = screenRect(control(IDOK));
                                             text = windowText(details());
                                         })
                                         .click([] { return details(); })
                                         .waitFor("the focus", focusOn(kDetailsId))
                                         .holding(VK_MENU)
                                         .key('D')
                                         .letGo(VK_MENU)
                                         .waitFor("their end", [] { return !detailsShown(); })
                                         .waitFor("the focus on their button", focusOn(kDetailsButtonId))
                                         .then([&] { again = screenRect(openBox()); })
                                         .key(VK_ESCAPE));
    EXPECT_EQ(answer, IDCANCEL);
    EXPECT_EQ(text, L"First line\r\nSecond line");
    EXPECT_GT(open.Height(), closed.Height() + 60);
    EXPECT_EQ(open.TopLeft(), closed.TopLeft());
    EXPECT_EQ(buttonWhileOpen, button);
    EXPECT_EQ(again, closed);
}

TEST_F(MessageDialogTest, DetailsThatCannotBeMadeAreNotShown)
{
    const ImportPatch patch(L"ovoui.dll", "CreateWindowExW", reinterpret_cast<void*>(&makeAllButDetails));
    COVOMessageDialog box(nullptr, L"The message.", L"Box", MB_OKCANCEL);
    box.SetDetails(L"More");
    CRect closed;
    CRect after;
    EXPECT_EQ(answerBy(box, whenOpen()
                                .then([&] { closed = screenRect(openBox()); })
                                .click([] { return control(kDetailsButtonId); })
                                .waitFor("the focus", focusOn(kDetailsButtonId))
                                .then([&] { after = screenRect(openBox()); })
                                .key(VK_ESCAPE)),
              IDCANCEL);
    EXPECT_EQ(after, closed);
}

TEST_F(MessageDialogTest, CtrlCCopiesWhatIsSelectedInTheDetails)
{
    COVOMessageDialog box(nullptr, L"The message.", L"Box", MB_OK);
    box.SetDetails(L"Garden Sans\nHedge Serif");
    const auto copied = [&](int begin, int end) {
        emptyClipboard();
        answerBy(box,
                 whenOpen()
                     .click([] { return control(kDetailsButtonId); })
                     .waitFor("the details", &detailsShown)
                     .click([] { return details(); })
                     .waitFor("the focus", focusOn(kDetailsId))
                     .then([=] { ::SendMessageW(details(), EM_SETSEL, static_cast<WPARAM>(begin), end); })
                     .chordUntil("the text on the clipboard", VK_CONTROL, 'C',
                                 [] { return ::IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE; })
                     .key(VK_ESCAPE));
        return clipboardText();
    };
    EXPECT_EQ(copied(7, 11), L"Sans");
    EXPECT_EQ(copied(7, 7), L"The message.");
}

TEST_F(MessageDialogTest, CtrlCElsewhereCopiesTheMessageWhateverTheDetailsHaveSelected)
{
    COVOMessageDialog box(nullptr, L"The message.", L"Box", MB_OK);
    box.SetDetails(L"Garden Sans\nHedge Serif");
    emptyClipboard();
    answerBy(box, whenOpen()
                      .click([] { return control(kDetailsButtonId); })
                      .waitFor("the details", &detailsShown)
                      .waitFor("the focus", focusOn(kDetailsButtonId))
                      .then([] { ::SendMessageW(details(), EM_SETSEL, 7, 11); })
                      .chordUntil("the text on the clipboard", VK_CONTROL, 'C',
                                  [] { return ::IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE; })
                      .key(VK_ESCAPE));
    EXPECT_EQ(clipboardText(), L"The message.");
}

TEST_F(MessageDialogTest, DetailsShowEightLinesAreReachedByTabAndCannotBeTypedOver)
{
    const std::wstring lines = numberedLines(30);
    COVOMessageDialog box(nullptr, L"The message.", L"Box", MB_OK);
    box.SetDetails(lines);
    std::wstring text;
    int shown = 0;
    answerBy(box, whenOpen()
                      .click([] { return control(kDetailsButtonId); })
                      .waitFor("the details", &detailsShown)
                      .key(VK_TAB)
                      .waitFor("the focus", focusOn(kDetailsId))
                      .type(L"elm")
                      .then([&] {
                          text = windowText(details());
                          ::SendMessageW(details(), WM_VSCROLL, SB_BOTTOM, 0);
                          shown =
                              30 - static_cast<int>(::SendMessageW(details(), EM_GETFIRSTVISIBLELINE, 0, 0));
                      })
                      .key(VK_ESCAPE));
    EXPECT_EQ(shown, 8);
    EXPECT_EQ(text.substr(0, 16), L"Line 1\r\nLine 2\r\n");
    EXPECT_EQ(text.find(L"elm"), text.npos);
}

TEST_F(MessageDialogTest, WhatStandsBelowTheButtonsHasItsWordsAndItsSide)
{
    for (const wchar_t* words : {L"", L"&Always do this"}) {
        COVOMessageDialog box = withOwnButtons();
        box.SetDetails(L"More");
        box.OfferNotToAsk(L"Fonts", words);
        std::vector<std::wstring> labels;
        const auto look = [&labels] { labels.push_back(windowText(control(kDetailsButtonId))); };
        std::wstring offer;
        CRect client;
        CRect check;
        CRect button;
        CRect answer;
        answerBy(box, whenOpen()
                          .then(look)
                          .then([&] {
                              ::GetClientRect(openBox(), &client);
                              offer = windowText(control(kNotAgainId));
                              check = placeInParent(control(kNotAgainId));
                              button = placeInParent(control(kDetailsButtonId));
                              answer = placeInParent(control(kKeep));
                          })
                          .click([] { return control(kDetailsButtonId); })
                          .waitFor("the details", &detailsShown)
                          .then(look)
                          .click([] { return control(kDetailsButtonId); })
                          .waitFor("their end", [] { return !detailsShown(); })
                          .then(look)
                          .key(VK_ESCAPE));
        EXPECT_EQ(offer, *words ? std::wstring(words) : libraryString(IDS_MESSAGE_NOT_AGAIN));
        const std::wstring closed = libraryString(IDS_MESSAGE_SHOW_DETAILS);
        EXPECT_EQ(labels, (std::vector{closed, libraryString(IDS_MESSAGE_HIDE_DETAILS), closed}));
        EXPECT_EQ(check.left, client.right - button.right) << "one at either side";
        EXPECT_LT(check.right, button.left);
        EXPECT_GE(check.top, answer.bottom);
        EXPECT_GE(button.top, answer.bottom);
        EXPECT_LE(button.bottom, client.bottom);
    }
}

// At the lower edge of the screen the box moves up to make room.
TEST_F(MessageDialogTest, OpeningTheDetailsIsNoMoveByTheUser)
{
    const CRect area = workArea();
    const CString place =
        (std::to_wstring(area.left + 300) + L"," + std::to_wstring(area.bottom - 60)).c_str();
    AfxGetApp()->WriteProfileString(L"settings", L"detailed", place);
    COVOMessageDialog box(nullptr, L"The message.", L"Box", MB_OK);
    box.SetDetails(L"More");
    box.SetSettingsKey(L"detailed");
    CRect closed;
    CRect open;
    answerBy(box, whenOpen()
                      .then([&] { closed = screenRect(openBox()); })
                      .click([] { return control(kDetailsButtonId); })
                      .waitFor("the details", &detailsShown)
                      .then([&] { open = screenRect(openBox()); })
                      .key(VK_ESCAPE));
    EXPECT_LT(open.top, closed.top);
    EXPECT_LE(open.bottom, area.bottom);
    EXPECT_EQ(AfxGetApp()->GetProfileString(L"settings", L"detailed"), place);
}

TEST_F(MessageDialogTest, AnAnswerIsKeptAndGivenWithoutABox)
{
    COVOMessageDialog box = withOwnButtons();
    box.OfferNotToAsk(L"Fonts");
    const auto checked = [] {
        return ::SendMessageW(control(kNotAgainId), BM_GETCHECK, 0, 0) == BST_CHECKED;
    };
    EXPECT_EQ(answerBy(box, clicking(kNotAgainId).waitFor("the mark", checked).click([] {
                  return control(kKeep);
              })),
              kKeep);
    EXPECT_EQ(kept(L"Fonts"), kKeep);
    EXPECT_EQ(box.DoModal(), kKeep); // a box would wait for ever

    COVOMessageDialog::ForgetAnswer(L"Fonts");
    EXPECT_EQ(answerBy(box, clicking(kReplace)), kReplace);
    EXPECT_EQ(kept(L"Fonts"), -1);
}

TEST_F(MessageDialogTest, MayBeDeletedByItsHostWhileItIsShown)
{
    auto box = std::make_unique<Perishing<COVOMessageDialog>>(nullptr, L"The message.", L"Box");
    box->AddButton(kReplace, L"&Replace");
    box->SetDetails(L"More");
    box->OfferNotToAsk(L"Fonts");
    const auto checked = [] {
        return ::SendMessageW(control(kNotAgainId), BM_GETCHECK, 0, 0) == BST_CHECKED;
    };
    auto answering = whenOpen()
                         .then([&box] { box.reset(); })
                         .click([] { return control(kDetailsButtonId); })
                         .waitFor("the details", &detailsShown)
                         .click([] { return control(kNotAgainId); })
                         .waitFor("the mark", checked)
                         .click([] { return control(kReplace); })
                         .start();
    EXPECT_EQ(box->DoModal(), kReplace);
    EXPECT_FALSE(box);
    EXPECT_EQ(kept(L"Fonts"), kReplace);
}

TEST_F(MessageDialogTest, AMarkThatIsTakenBackKeepsNothing)
{
    const auto marked = [](WPARAM state) {
        return [state] {
            return ::SendMessageW(control(kNotAgainId), BM_GETCHECK, 0, 0) == static_cast<LRESULT>(state);
        };
    };
    COVOMessageDialog box = withOwnButtons();
    box.OfferNotToAsk(L"Fonts");
    EXPECT_EQ(answerBy(box, clicking(kNotAgainId)
                                .waitFor("the mark", marked(BST_CHECKED))
                                .key(VK_SPACE)
                                .waitFor("its end", marked(BST_UNCHECKED))
                                .click([] { return control(kKeep); })),
              kKeep);
    EXPECT_EQ(kept(L"Fonts"), -1);
}

TEST_F(MessageDialogTest, TheAnswerOfTheCloseBoxIsKept)
{
    COVOMessageDialog box(nullptr, L"The message.", L"Box", MB_YESNO);
    box.OfferNotToAsk(L"Fonts");
    EXPECT_EQ(answerBy(box, clicking(kNotAgainId).waitFor("the mark", &isMarked).then([] {
                  ::PostMessageW(openBox(), WM_CLOSE, 0, 0);
              })),
              IDNO);
    EXPECT_EQ(kept(L"Fonts"), IDNO);
}

/// A box that nobody answers gives IDABORT, which this one has a button for.
TEST_F(MessageDialogTest, WhatNobodyHasAnsweredIsNotKept)
{
    COVOMessageDialog box(nullptr, L"The message.", L"Box", MB_ABORTRETRYIGNORE);
    box.OfferNotToAsk(L"Fonts");
    EXPECT_EQ(answerBy(box, clicking(kNotAgainId).waitFor("the mark", &isMarked).then([] {
                  ::PostQuitMessage(0);
              })),
              IDABORT);
    EXPECT_EQ(kept(L"Fonts"), -1);
    GuiThread::settle();
    EXPECT_TRUE(GuiThread::tookQuit());

    EXPECT_EQ(answerBy(box, clicking(kNotAgainId).waitFor("the mark", &isMarked).click([] {
                  return control(IDABORT);
              })),
              IDABORT);
    EXPECT_EQ(kept(L"Fonts"), IDABORT) << "that of the button is";
}

TEST_F(MessageDialogTest, ABoxThatOffersNothingIsShownWhateverIsKept)
{
    keep(L"", kReplace);
    EXPECT_EQ(answerBy(withOwnButtons(), clicking(kKeep)), kKeep);
}

TEST_F(MessageDialogTest, ForgettingAllShowsEveryBoxAgain)
{
    keep(L"One", kKeep);
    keep(L"Two", kKeep);
    COVOMessageDialog::ForgetAnswers();
    for (const wchar_t* entry : {L"One", L"Two"}) {
        COVOMessageDialog box = withOwnButtons();
        box.OfferNotToAsk(entry);
        EXPECT_EQ(answerBy(box, clicking(kReplace)), kReplace);
    }
}

TEST_F(MessageDialogTest, CancellingIsNeverKept)
{
    COVOMessageDialog box = withOwnButtons();
    box.OfferNotToAsk(L"Fonts");
    EXPECT_EQ(answerBy(box, clicking(kNotAgainId).key(VK_ESCAPE)), IDCANCEL);
    EXPECT_EQ(kept(L"Fonts"), -1);
}

TEST_F(MessageDialogTest, AnAnswerThatHasNoButtonAnyMoreIsAskedForAgain)
{
    for (const int stale : {4711, int{IDCANCEL}, 0, -1}) {
        keep(L"Fonts", stale);
        COVOMessageDialog box = withOwnButtons();
        box.OfferNotToAsk(L"Fonts");
        EXPECT_EQ(answerBy(box, clicking(kKeep)), kKeep) << stale;
    }
}

TEST_F(MessageDialogTest, TheCountPressesTheDefaultButton)
{
    COVOMessageDialog box = withOwnButtons(MB_DEFBUTTON2);
    box.PressDefaultAfter(1);
    // The second passes when the label has been read, however long that takes.
    const ImportPatch clock(L"ovoui.dll", "GetTickCount64", reinterpret_cast<void*>(&toldNow));
    std::wstring label;
    EXPECT_EQ(answerBy(box, whenOpen().then([&] {
                  label = windowText(control(kKeep));
                  g_now += 1000;
              })),
              kKeep);
    EXPECT_EQ(label, L"&Keep (1)");
}

/// As a host shows one by a timer. A box that ended behind it would leave what it locks to the user.
TEST_F(MessageDialogTest, TheCountWaitsBehindAnotherBox)
{
    COVOMessageDialog box = withOwnButtons();
    box.PressDefaultAfter(2);
    HWND behind = nullptr;
    ULONGLONG over = 0;
    const int answer = answerBy(
        box, whenOpen()
                 .then([&] {
                     behind = openBox();
                     over = ::GetTickCount64() + 3000;
                     ::SetTimer(behind, 99, USER_TIMER_MINIMUM, [](HWND wnd, UINT, UINT_PTR timer, DWORD) {
                         ::KillTimer(wnd, timer);
                         OVOMessageBox(wnd, L"In front.", L"Front", MB_OK, nullptr, 0);
                     });
                 })
                 .waitFor("the box in front", [&] { return openBox() && openBox() != behind; })
                 .waitFor("the end of the count", [&] { return ::GetTickCount64() >= over; })
                 .then([&] { EXPECT_TRUE(::IsWindowVisible(behind)); })
                 .key(VK_RETURN)); // answers the one in front
    EXPECT_EQ(answer, kReplace);
}

TEST_F(MessageDialogTest, ACountOnHelpAsksForItAndLeavesTheBoxOpen)
{
    COVOMessageDialog box(nullptr, L"The message.", L"Box", MB_OK | MB_HELP | MB_DEFBUTTON2);
    box.PressDefaultAfter(1);
    const std::wstring help = libraryString(IDS_BUTTON_HELP);
    const auto labelled = [](std::wstring label) {
        return [label] { return windowText(control(IDHELP)) == label; };
    };
    EXPECT_EQ(answerBy(box, whenOpen()
                                .waitFor("the end of the count", labelled(help))
                                .then([] { EXPECT_NE(openBox(), nullptr); })
                                .key(VK_ESCAPE)),
              IDCANCEL);
}

TEST_F(MessageDialogTest, TheCountIsOfADayAtMostAndItsButtonHasTheRoom)
{
    COVOMessageDialog box = withOwnButtons();
    box.PressDefaultAfter(24 * 60 * 60 + 5000);
    int width = 0;
    int needed = 0;
    EXPECT_EQ(
        answerBy(
            box,
            whenOpen()
                .waitFor("a count",
                         [] { return windowText(control(kReplace)).starts_with(L"&Replace them all (86"); })
                .then([&] {
                    CWnd* const button = CWnd::FromHandle(control(kReplace));
                    width = screenRect(*button).Width();
                    CClientDC dc(button);
                    CFont* const before = dc.SelectObject(button->GetFont());
                    needed = dc.GetTextExtent(L"Replace them all (86400)", 24).cx;
                    dc.SelectObject(before);
                })
                .key(VK_ESCAPE)),
        IDCANCEL);
    EXPECT_GT(needed, 0);
    EXPECT_GE(width, needed);
}

TEST_F(MessageDialogTest, AKeyOrAClickEndsTheCount)
{
    const std::function<Story(Story)> inputs[] = {
        [](Story story) { return std::move(story).key(VK_TAB); },
        [](Story story) { return std::move(story).click([] { return textControl(openBox()); }); },
    };
    for (const auto& input : inputs) {
        COVOMessageDialog box = withOwnButtons();
        box.PressDefaultAfter(3600);
        const auto counts = [] {
            return windowText(control(kReplace)).starts_with(L"&Replace them all (35");
        };
        const auto isOver = [] { return windowText(control(kReplace)) == L"&Replace them all"; };
        EXPECT_EQ(answerBy(box, input(whenOpen().waitFor("a count below 3600", counts))
                                    .waitFor("its end", isOver)
                                    .key(VK_ESCAPE)),
                  IDCANCEL);
    }
}

TEST_F(MessageDialogTest, TabGoesRoundAllControls)
{
    COVOMessageDialog box(nullptr, L"The message.", L"Box", MB_OKCANCEL);
    box.SetDetails(L"More");
    box.OfferNotToAsk(L"Fonts");
    EXPECT_EQ(answerBy(box, whenOpen()
                                .waitFor("OK", focusOn(IDOK))
                                .key(VK_TAB)
                                .waitFor("Cancel", focusOn(IDCANCEL))
                                .key(VK_TAB)
                                .waitFor("the check box", focusOn(kNotAgainId))
                                .key(VK_TAB)
                                .waitFor("the button of the details", focusOn(kDetailsButtonId))
                                .key(VK_TAB)
                                .waitFor("the text", focusOn(IDC_MESSAGE_TEXT))
                                .key(VK_TAB)
                                .waitFor("OK again", focusOn(IDOK))
                                .key(VK_ESCAPE)),
              IDCANCEL);
}

TEST_F(MessageDialogTest, LeavesNothingBehind)
{
    const auto once = [] {
        COVOMessageDialog box = withOwnButtons();
        box.SetDetails(L"More");
        box.OfferNotToAsk(L"Fonts");
        box.PressDefaultAfter(3600);
        answerBy(box, clicking(kDetailsButtonId).waitFor("the details", &detailsShown).key(VK_ESCAPE));
    };
    once();
    const WindowCounter windows;
    const GdiCounter gdi;
    for (int i = 0; i < 10; ++i)
        once();
    EXPECT_EQ(windows.grown(), 0);
    EXPECT_LE(gdi.grown(), 2);
}
