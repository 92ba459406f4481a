// Completion while typing.
#include "ComboScene.h"

#include <testkit/ImportPatch.h>

#include <gtest/gtest.h>

#include <imm.h>

using namespace ovo::testkit;

TEST(ComboTyping, CompletesAndSelectsTheTail)
{
    ComboScene scene{L"apple", L"berry"};
    scene.enter();
    scene.robot.type(L"be");
    EXPECT_EQ(scene.text(), L"berry");
    EXPECT_EQ(scene.marked(), std::make_pair(2, 5));
    scene.robot.type(L"l"); // replaces the tail
    EXPECT_EQ(scene.text(), L"bel");
}

TEST(ComboTyping, PrefersTheExactCase)
{
    ComboScene scene{L"ABC", L"abd"};
    scene.enter();
    scene.robot.type(L"ab");
    EXPECT_EQ(scene.text(), L"abd");
    EXPECT_EQ(scene.marked(), std::make_pair(2, 3));
}

TEST(ComboTyping, TakesAnotherCaseWhenThereIsNoBetterOne)
{
    ComboScene scene{L"ABC", L"xyz"};
    scene.enter();
    scene.robot.type(L"ab");
    EXPECT_EQ(scene.text(), L"ABC");
    EXPECT_EQ(scene.marked(), std::make_pair(2, 3));
}

TEST(ComboTyping, TheParentDoesNotHearOfTheUpdate)
{
    ComboScene scene{L"berry"};
    scene.enter();
    scene.robot.type(L"b");
    EXPECT_EQ(std::ranges::count(scene.take(), "EDITUPDATE"), 0);
}

TEST(ComboTyping, BackspaceAndDeleteDoNotComplete)
{
    for (const WORD key : {VK_BACK, VK_DELETE}) {
        ComboScene scene{L"berry"};
        scene.enter();
        scene.robot.type(L"ber");
        ASSERT_EQ(scene.text(), L"berry");
        scene.robot.key(key); // takes the tail away
        EXPECT_EQ(scene.text(), L"ber");
        scene.robot.key(VK_BACK);
        EXPECT_EQ(scene.text(), L"be");
        scene.robot.type(L"r");
        EXPECT_EQ(scene.text(), L"berry");
    }
}

TEST(ComboTyping, WithTheCaretInTheMiddleTheSelectionStays)
{
    ComboScene scene{L"berry pie"};
    scene.enter();
    scene.combo.AutoComplete(false);
    scene.robot.type(L"bery").key(VK_LEFT);
    scene.combo.AutoComplete(true);
    scene.robot.type(L"r"); // berry, with the caret before the y
    EXPECT_EQ(scene.text(), L"berry pie");
    EXPECT_EQ(scene.marked(), std::make_pair(4, 4));
}

TEST(ComboTyping, AnItemThatIsTheTextGetsNoTail)
{
    ComboScene scene{L"be", L"berry"};
    scene.enter();
    scene.robot.type(L"be");
    EXPECT_EQ(scene.text(), L"be");
    EXPECT_EQ(scene.marked(), std::make_pair(2, 2));
}

TEST(ComboTyping, AnEmptyItemCompletesNothing)
{
    ComboScene scene{L"", L"berry"};
    scene.enter();
    scene.robot.type(L"x");
    EXPECT_EQ(scene.text(), L"x");
    scene.robot.key(VK_BACK);
    EXPECT_EQ(scene.text(), L"");
}

TEST(ComboTyping, OffCompletesNothing)
{
    ComboScene scene{L"berry"};
    scene.combo.AutoComplete(false);
    EXPECT_FALSE(scene.combo.AutoComplete());
    scene.enter();
    scene.robot.type(L"b");
    EXPECT_EQ(scene.text(), L"b");
}

TEST(ComboTyping, PastedTextIsCompleted)
{
    ComboScene scene{L"berry"};
    scene.enter();
    scene.combo.AutoComplete(false);
    scene.robot.type(L"ber");
    scene.combo.AutoComplete(true);
    ::SendMessageW(scene.edit(), EM_SETSEL, 0, -1);
    ::SendMessageW(scene.edit(), WM_CUT, 0, 0);
    ASSERT_NE(scene.text(), L"ber");
    scene.setText(L"");
    ::SendMessageW(scene.edit(), WM_PASTE, 0, 0);
    EXPECT_EQ(scene.text(), L"berry");
    EXPECT_EQ(scene.marked(), std::make_pair(3, 5));
}

TEST(ComboTyping, UndoneTextIsCompletedLikeTypedText)
{
    for (const bool completes : {true, false}) {
        ComboScene scene{L"berry"};
        scene.enter();
        scene.combo.AutoComplete(false);
        scene.robot.type(L"b");
        ::SendMessageW(scene.edit(), EM_EMPTYUNDOBUFFER, 0, 0);
        ::SendMessageW(scene.edit(), EM_SETSEL, 0, -1);
        scene.combo.AutoComplete(completes);
        scene.robot.type(L"x"); // in place of the b
        ASSERT_EQ(scene.text(), L"x");
        ASSERT_TRUE(::SendMessageW(scene.edit(), EM_UNDO, 0, 0));
        EXPECT_EQ(scene.text(), completes ? L"berry" : L"b");
    }
}

TEST(ComboTyping, UndoingWhatReplacedTheAddedPartBringsItBack)
{
    ComboScene scene{L"berry"};
    scene.enter();
    scene.robot.type(L"b");
    ASSERT_EQ(scene.text(), L"berry");
    scene.robot.type(L"x"); // in place of the added part
    ASSERT_EQ(scene.text(), L"bx");
    ASSERT_TRUE(::SendMessageW(scene.edit(), EM_UNDO, 0, 0));
    EXPECT_EQ(scene.text(), L"berry");
}

TEST(ComboTyping, TextThatIsCutToNothingStaysEmpty)
{
    ComboScene scene{L"berry"};
    scene.enter();
    scene.robot.type(L"x");
    ::SendMessageW(scene.edit(), EM_SETSEL, 0, -1);
    scene.robot.holding(VK_CONTROL).key('X');
    EXPECT_EQ(scene.text(), L"");
}

TEST(ComboTyping, ItemsThatDifferInCaseOnlyAreToldApart)
{
    for (const wchar_t* text : {L"Berry", L"berry", L"BERRY"}) {
        ComboScene scene{L"Berry", L"berry"};
        scene.enter();
        scene.robot.type(text);
        const std::wstring expected = text == std::wstring(L"BERRY") ? L"Berry" : text;
        EXPECT_EQ(scene.text(), expected);
        scene.robot.key(VK_RETURN);
        EXPECT_EQ(scene.combo.GetCurSel(), expected == L"berry" ? 1 : 0);
    }
}

TEST(ComboTyping, TextsOfAnInputMethodAreCompleted)
{
    ComboScene scene{L"\x6F22\x5B57 table"};
    scene.enter();
    // The key that an input method takes, and the characters that it composes from it.
    MSG key{scene.edit(), WM_KEYDOWN, VK_PROCESSKEY, 1, 0, {}};
    EXPECT_FALSE(scene.combo.PreTranslateMessage(&key));
    ::SendMessageW(scene.edit(), WM_IME_CHAR, 0x6F22, 1);
    GuiThread::settle();
    EXPECT_EQ(scene.text(), L"\x6F22\x5B57 table");
    EXPECT_EQ(scene.marked(), std::make_pair(1, 8));
}

namespace
{

/// What an input method does to the window with the focus.
class Composition
{
public:
    explicit Composition(HWND window)
        : m_window(window)
        , m_context(::ImmGetContext(window))
    {
    }
    ~Composition() { ::ImmReleaseContext(m_window, m_context); }
    Composition(const Composition&) = delete;
    Composition& operator=(const Composition&) = delete;

    /// False where the platform's input method takes no text.
    bool set(std::wstring text) const
    {
        return ::ImmSetCompositionStringW(m_context, SCS_SETSTR, text.data(),
                                          static_cast<DWORD>(text.size() * sizeof(wchar_t)), nullptr, 0);
    }
    void complete() const { ::ImmNotifyIME(m_context, NI_COMPOSITIONSTR, CPS_COMPLETE, 0); }
    void cancel() const { ::ImmNotifyIME(m_context, NI_COMPOSITIONSTR, CPS_CANCEL, 0); }

private:
    const HWND m_window;
    const HIMC m_context;
};

} // namespace

TEST(ComboTyping, ACompositionIsCompletedWhenItIsOver)
{
    ComboScene scene{L"\x6F22\x5B57 table", L"\x6F22\x8A9E table"};
    scene.enter();
    const Composition composition(scene.edit());
    if (!composition.set(L"\x6F22"))
        GTEST_SKIP() << "the platform's input method takes no text";
    composition.set(L"\x6F22\x8A9E"); // what is composed is another text now
    composition.complete();
    GuiThread::settle();
    EXPECT_EQ(scene.text(), L"\x6F22\x8A9E table");
    EXPECT_EQ(scene.marked(), std::make_pair(2, 8));
}

TEST(ComboTyping, ACompositionThatIsGivenUpLeavesNothing)
{
    ComboScene scene{L"berry"};
    scene.enter();
    const Composition composition(scene.edit());
    if (!composition.set(L"\x6F22"))
        GTEST_SKIP() << "the platform's input method takes no text";
    composition.cancel();
    GuiThread::settle();
    EXPECT_EQ(scene.text(), L"");
}

TEST(ComboTyping, AmongTwentyThousandItems)
{
    ComboScene scene{};
    scene.combo.InitStorage(20000, 20000 * 32);
    for (int i = 0; i < 20000; ++i)
        scene.combo.AddString((L"ITEM " + std::to_wstring(100000 + i)).c_str());
    scene.combo.AddString(L"item 119999 in small letters");
    scene.enter();
    scene.robot.type(L"item 119999");
    EXPECT_EQ(scene.text(), L"item 119999 in small letters");
}

TEST(ComboTyping, KeysCountOnlyWhileCompletionIsOn)
{
    ComboScene scene{L"berry"};
    scene.combo.AutoComplete(false);
    scene.enter();
    scene.robot.key(VK_BACK);
    scene.combo.AutoComplete(true);
    ::SendMessageW(scene.edit(), WM_CHAR, L'b', 1); // a character without a key
    EXPECT_EQ(scene.text(), L"berry");
}

TEST(ComboTyping, TheKeyBeforeDecides)
{
    // Completion is off for whatever changes the text until the next key, which is any but these two.
    ComboScene scene{L"berry"};
    scene.enter();
    scene.robot.key(VK_BACK);
    ::SendMessageW(scene.edit(), WM_CHAR, L'b', 1); // a character without a key
    EXPECT_EQ(scene.text(), L"b");
    scene.robot.key(VK_SHIFT);
    ::SendMessageW(scene.edit(), WM_CHAR, L'e', 1);
    EXPECT_EQ(scene.text(), L"berry");
}
