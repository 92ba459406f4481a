// How the message box is answered: mouse, keys, close box, help.
#include <testkit/ImportPatch.h>
#include "MessageBoxScene.h"
#include <testkit/RecordingParent.h>

#include <gtest/gtest.h>

#include <set>

using namespace ovo::testkit;

namespace
{

/// The middle of the close box in the title bar.
CPoint closeBox()
{
    const CRect box = screenRect(openBox());
    return {box.right - ::GetSystemMetrics(SM_CXDLGFRAME) - ::GetSystemMetrics(SM_CXSIZE) / 2,
            box.top + ::GetSystemMetrics(SM_CYDLGFRAME) + ::GetSystemMetrics(SM_CYCAPTION) / 2};
}

int answerByClosing(UINT type)
{
    auto closing = whenOpen().click(&closeBox).start();
    return show({.type = type});
}

int answerByKey(UINT type, WORD key)
{
    auto answering = whenOpen().key(key).start();
    return show({.type = type});
}

int answerByClicking(UINT type, int button)
{
    auto clicking = whenOpen().click([button] { return ::GetDlgItem(openBox(), button); }).start();
    return show({.type = type});
}

int answerByMnemonic(UINT type, WORD letter)
{
    auto answering = whenOpen().holding(VK_MENU).key(letter).letGo(VK_MENU).start();
    return show({.type = type});
}

int focusedId(HWND box)
{
    const HWND focus = ::GetFocus();
    return ::GetParent(focus) == box ? ::GetDlgCtrlID(focus) : 0;
}

} // namespace

namespace
{

std::vector<std::wstring> labels(HWND box)
{
    std::vector<std::wstring> texts;
    for (const int id : buttonsFromTheLeft(box))
        texts.push_back(windowText(::GetDlgItem(box, id)));
    return texts;
}

int WINAPI noStrings(HINSTANCE, UINT, LPWSTR buffer, int)
{
    *buffer = L'\0';
    return 0;
}

} // namespace

TEST(MessageBoxAnswer, WithoutItsStringsTheButtonsHaveTheSameLabels)
{
    for (const UINT type :
         {UINT{OVOMB_EXTBUTTONS | 3 | MB_HELP}, UINT{MB_ABORTRETRYIGNORE}, UINT{MB_OKCANCEL}}) {
        std::vector<std::wstring> expected;
        inspect({.type = type}, [&](HWND box) { expected = labels(box); });
        const ImportPatch patch{L"ovoui.dll", "LoadStringW", reinterpret_cast<void*>(&noStrings)};
        inspect({.type = type}, [&](HWND box) { EXPECT_EQ(labels(box), expected); });
    }
}

TEST(MessageBoxAnswer, ItsPartsHaveTheNumbersThatHostsKnow)
{
    const struct
    {
        int id;
        UINT label;
    } rows[] = {
        {IDABORT, 20100}, {IDOK, 20101}, {IDCANCEL, 20102}, {IDRETRY, 20103}, {IDIGNORE, 20104},
        {IDYES, 20105},   {IDNO, 20106}, {1298, 20107},     {1299, 20108},    {IDHELP, 20109},
    };
    std::set<int> seen;
    std::set<std::wstring> words;
    for (const UINT type :
         {UINT{MB_ABORTRETRYIGNORE | MB_HELP}, UINT{MB_OKCANCEL}, UINT{OVOMB_EXTBUTTONS | 3}}) {
        inspect({.type = type, .caption = nullptr}, [&](HWND box) {
            for (const auto& row : rows) {
                const HWND button = ::GetDlgItem(box, row.id);
                if (!button)
                    continue;
                EXPECT_EQ(windowText(button), libraryString(row.label)) << row.id;
                seen.insert(row.id);
                words.insert(windowText(button));
            }
            EXPECT_EQ(windowText(box), libraryString(20110));
            const LONG style = ::GetWindowLongW(::GetDlgItem(box, 20507), GWL_STYLE);
            EXPECT_EQ(style & (ES_MULTILINE | ES_READONLY), ES_MULTILINE | ES_READONLY);
        });
    }
    EXPECT_EQ(seen.size(), std::size(rows));
    EXPECT_EQ(words.size(), std::size(rows)) << "each has words of its own";
    EXPECT_FALSE(libraryString(20110).empty());
    EXPECT_NE(::FindResourceW(::GetModuleHandleW(L"ovouires.dll"), MAKEINTRESOURCEW(1505), RT_DIALOG),
              nullptr);
}

TEST(MessageBoxAnswer, EveryButtonOfEverySetAnswersItsIdWhenClicked)
{
    const struct
    {
        UINT type;
        std::vector<int> buttons;
    } rows[] = {
        {MB_OK, {IDOK}},
        {MB_OKCANCEL, {IDOK, IDCANCEL}},
        {MB_ABORTRETRYIGNORE, {IDABORT, IDRETRY, IDIGNORE}},
        {MB_YESNOCANCEL, {IDYES, IDNO, IDCANCEL}},
        {MB_RETRYCANCEL, {IDRETRY, IDCANCEL}},
        {OVOMB_EXTBUTTONS | 3, {IDYES, IDYESTOALL, IDNO, IDNOTOALL, IDCANCEL}},
    };
    for (const auto& row : rows)
        for (const int button : row.buttons)
            EXPECT_EQ(answerByClicking(row.type, button), button) << std::hex << row.type;
}

TEST(MessageBoxAnswer, EnterAnswersTheDefaultButton)
{
    EXPECT_EQ(answerByKey(MB_YESNOCANCEL, VK_RETURN), IDYES);
    EXPECT_EQ(answerByKey(MB_YESNOCANCEL | MB_DEFBUTTON2, VK_RETURN), IDNO);
    EXPECT_EQ(answerByKey(OVOMB_EXTBUTTONS | 3 | OVOMB_EXTDEFBUTTON | 0x400, VK_RETURN), IDCANCEL);
    EXPECT_EQ(answerByKey(MB_OK | MB_DEFBUTTON3, VK_RETURN), IDOK);
}

TEST(MessageBoxAnswer, EnterInTheTextAnswersTheDefaultButton)
{
    auto answering = whenOpen()
                         .click([] { return textControl(openBox()); })
                         .waitFor("focus in the text", [] { return ::GetFocus() == textControl(openBox()); })
                         .key(VK_RETURN)
                         .start();
    EXPECT_EQ(show({.type = MB_YESNO | MB_DEFBUTTON2}), IDNO);
}

TEST(MessageBoxAnswer, TheArrowAndTabKeysReachTheOtherButtons)
{
    auto answering = whenOpen().key(VK_TAB).key(VK_SPACE).start();
    EXPECT_EQ(show({.type = MB_YESNOCANCEL}), IDNO);
}

TEST(MessageBoxAnswer, EscapeAnswersCancelEvenWithoutACancelButton)
{
    for (const UINT type :
         {MB_OK, MB_OKCANCEL, MB_ABORTRETRYIGNORE, MB_YESNOCANCEL, MB_YESNO, MB_RETRYCANCEL})
        EXPECT_EQ(answerByKey(type, VK_ESCAPE), IDCANCEL) << type;
}

TEST(MessageBoxAnswer, EscapeInTheTextAnswersCancelToo)
{
    auto answering = whenOpen()
                         .click([] { return textControl(openBox()); })
                         .waitFor("focus in the text", [] { return ::GetFocus() == textControl(openBox()); })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(show({.type = MB_YESNO}), IDCANCEL) << "the close box would answer No";
}

/// As a host answers Help with a window that belongs to the box.
TEST(MessageBoxAnswer, KeysInAWindowInFrontOfTheBoxAreThatWindows)
{
    HWND box = nullptr;
    HWND front = nullptr;
    auto acting = whenOpen()
                      .then([&] {
                          box = openBox();
                          front = ::CreateWindowExW(0, L"EDIT", L"Help", WS_POPUP | WS_VISIBLE, 10, 10, 200,
                                                    40, box, nullptr, nullptr, nullptr);
                          ::SetForegroundWindow(front);
                          ::SetFocus(front);
                      })
                      .waitFor("the focus in front", [&] { return ::GetFocus() == front; })
                      .key(VK_ESCAPE)
                      .then([&] {
                          EXPECT_TRUE(::IsWindowVisible(box));
                          ::DestroyWindow(front);
                          ::SetForegroundWindow(box);
                      })
                      .waitFor("the focus in the box", [&] { return focusedId(box) == IDOK; })
                      .key(VK_RETURN)
                      .start();
    EXPECT_EQ(show({.type = MB_OK}), IDOK) << "not by Escape";
}

TEST(MessageBoxAnswer, TheCloseBoxAnswersTheMildestButtonThereIs)
{
    EXPECT_EQ(answerByClosing(MB_OK), IDOK);
    EXPECT_EQ(answerByClosing(MB_OKCANCEL), IDCANCEL);
    EXPECT_EQ(answerByClosing(MB_ABORTRETRYIGNORE), IDIGNORE);
    EXPECT_EQ(answerByClosing(MB_YESNOCANCEL), IDCANCEL);
    EXPECT_EQ(answerByClosing(MB_YESNO), IDNO);
    EXPECT_EQ(answerByClosing(MB_RETRYCANCEL), IDCANCEL);
    EXPECT_EQ(answerByClosing(OVOMB_EXTBUTTONS | 4), IDNO);
    EXPECT_EQ(answerByClosing(OVOMB_EXTBUTTONS | 1), IDCANCEL);
}

TEST(MessageBoxAnswer, MnemonicsAnswer)
{
    EXPECT_EQ(answerByMnemonic(MB_YESNO, 'Y'), IDYES);
    EXPECT_EQ(answerByMnemonic(MB_YESNO, 'N'), IDNO);
}

TEST(MessageBoxAnswer, NoTwoButtonsOfABoxShareAMnemonic)
{
    for (const UINT extension : {0u, OVOMB_EXTBUTTONS}) {
        for (UINT set = 0; set <= 5; ++set) {
            inspect({.type = extension | set | MB_HELP}, [](HWND box) {
                std::wstring letters;
                for (const int id : buttonsFromTheLeft(box)) {
                    const std::wstring label = windowText(::GetDlgItem(box, id));
                    const std::size_t mark = label.find(L'&');
                    if (mark != std::wstring::npos)
                        letters += static_cast<wchar_t>(::towlower(label[mark + 1]));
                    else
                        EXPECT_TRUE(id == IDOK || id == IDCANCEL) << "no mnemonic: " << id;
                }
                std::sort(letters.begin(), letters.end());
                EXPECT_EQ(std::adjacent_find(letters.begin(), letters.end()), letters.end());
            });
        }
    }
}

TEST(MessageBoxAnswer, TheDefaultButtonHasTheFocus)
{
    const struct
    {
        UINT type;
        int id;
    } rows[] = {
        {MB_YESNO, IDYES},
        {MB_YESNO | MB_DEFBUTTON2, IDNO},
        {MB_YESNO | MB_HELP | MB_DEFBUTTON3, IDHELP},
        {MB_OK | MB_DEFBUTTON3, IDOK},
        {OVOMB_EXTBUTTONS | 3 | MB_HELP | OVOMB_EXTDEFBUTTON | 0x500, IDHELP},
    };
    for (const auto& row : rows) {
        inspect({.type = row.type}, [&row](HWND box) {
            EXPECT_EQ(focusedId(box), row.id);
            const LONG style = ::GetWindowLongW(::GetDlgItem(box, row.id), GWL_STYLE);
            EXPECT_EQ(style & 0xF, BS_DEFPUSHBUTTON);
        });
    }
}

TEST(MessageBoxAnswer, HelpComesFirstInTheTabOrder)
{
    inspect({.type = MB_YESNO | MB_HELP}, [](HWND box) {
        std::vector<int> order;
        for (HWND wnd = nullptr; (wnd = ::FindWindowExW(box, wnd, L"BUTTON", nullptr)) != nullptr;)
            order.push_back(::GetDlgCtrlID(wnd));
        EXPECT_EQ(order, (std::vector<int>{IDHELP, IDYES, IDNO}));
    });
}

TEST(MessageBoxAnswer, TheHelpButtonTellsTheOwnerAndLeavesTheBoxOpen)
{
    static UINT s_help = 0;
    static WPARAM s_box = 0;
    static LPARAM s_more = 0;
    static int s_times = 0;
    class HelpfulOwner : public CWnd
    {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == s_help) {
                ++s_times;
                s_box = wParam;
                s_more = lParam;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    s_help = ::RegisterWindowMessageW(L"commdlg_help");
    s_times = 0;
    s_more = -1;
    HelpfulOwner owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP, 0, 0, 200, 200, nullptr, nullptr);

    HWND box = nullptr;
    auto story = whenOpen()
                     .then([&box] { box = openBox(); })
                     .click([] { return ::GetDlgItem(openBox(), IDHELP); })
                     .waitFor("the owner to hear", [] { return s_times == 1; })
                     .then([&box] { EXPECT_EQ(openBox(), box); })
                     .key(VK_ESCAPE)
                     .start();
    EXPECT_EQ(show({.type = MB_YESNO | MB_HELP, .owner = owner.m_hWnd}), IDCANCEL);
    story.finish();
    EXPECT_EQ(s_times, 1);
    EXPECT_EQ(reinterpret_cast<HWND>(s_box), box);
    EXPECT_EQ(s_more, 0);
    owner.DestroyWindow();
}

TEST(MessageBoxAnswer, AChildThatOwnsTheBoxHearsOfHelpAndTheWindowAroundItIsDisabled)
{
    class Hearing : public CWnd
    {
    public:
        int helps = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            helps += message == m_help;
            return CWnd::WindowProc(message, wParam, lParam);
        }

    private:
        const UINT m_help = ::RegisterWindowMessageW(L"commdlg_help");
    };
    Hearing around;
    around.CreateEx(0, AfxRegisterWndClass(0), L"around", WS_POPUP | WS_VISIBLE, 0, 0, 300, 300, nullptr,
                    nullptr);
    Hearing child;
    child.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &around, 1);

    bool enabledMeanwhile = true;
    auto story = whenOpen()
                     .then([&] { enabledMeanwhile = around.IsWindowEnabled() != FALSE; })
                     .click([] { return ::GetDlgItem(openBox(), IDHELP); })
                     .waitFor("the child to hear", [&] { return child.helps == 1; })
                     .key(VK_ESCAPE)
                     .start();
    EXPECT_EQ(show({.type = MB_YESNO | MB_HELP, .owner = child.m_hWnd}), IDCANCEL);
    story.finish();
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_TRUE(around.IsWindowEnabled());
    EXPECT_EQ(around.helps, 0);
    around.DestroyWindow();
}

TEST(MessageBoxAnswer, HelpThatNobodyHearsLeavesTheBoxOpen)
{
    auto asking = whenOpen()
                      .key(VK_RETURN) // Help is the default
                      .then([] { EXPECT_NE(openBox(), nullptr); })
                      .click([] { return ::GetDlgItem(openBox(), IDHELP); })
                      .then([] { EXPECT_NE(openBox(), nullptr); })
                      .key(VK_ESCAPE)
                      .start();
    EXPECT_EQ(show({.type = MB_YESNO | MB_HELP | MB_DEFBUTTON3, .owner = nullptr}), IDCANCEL);
}

TEST(MessageBoxAnswer, TheOwnerIsDisabledMeanwhileAndNoLonger)
{
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 300, 200,
                   nullptr, nullptr);
    bool enabledMeanwhile = true;
    inspect({.owner = owner.m_hWnd}, [&](HWND) { enabledMeanwhile = owner.IsWindowEnabled() != FALSE; });
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_TRUE(owner.IsWindowEnabled());
    owner.DestroyWindow();
}

TEST(MessageBoxAnswer, ABoxThatCannotBeCreatedAnswersMinusOne)
{
    const ImportPatch patch{L"ovomfc.dll", "FindResourceW", reinterpret_cast<void*>(&noDialogs)};
    EXPECT_EQ(show({}), -1);
}
