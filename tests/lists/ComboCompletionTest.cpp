// Completion while typing.
#include "ComboScene.h"

#include <testkit/ImportPatch.h>
#include <testkit/TemporaryFiles.h>

#include <gtest/gtest.h>

#include <imm.h>

#include <filesystem>

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

namespace
{

/// What a host may do to the items between two characters, by the combo box or behind its back.
struct ItemChange
{
    const char* name;
    std::initializer_list<const wchar_t*> items;
    const wchar_t* completed; ///< the text, when "b" has been typed
    std::function<void(ComboScene&)> act;
    const wchar_t* completedThen; ///< when "e" has been typed as well
    DWORD style = CBS_DROPDOWN;
};

LPARAM param(const wchar_t* text)
{
    return reinterpret_cast<LPARAM>(text);
}

const ItemChange kItemChanges[] = {
    {"nothing", {L"bread", L"berry"}, L"bread", [](ComboScene&) {}, L"berry"},
    {"CB_ADDSTRING", {L"x"}, L"b", [](ComboScene& scene) { scene.combo.AddString(L"berry"); }, L"berry"},
    {"CB_ADDSTRING, sorted",
     {L"berry"},
     L"berry",
     [](ComboScene& scene) { scene.combo.AddString(L"beech"); },
     L"beech",
     CBS_DROPDOWN | CBS_SORT},
    {"CB_INSERTSTRING",
     {L"x", L"berry"},
     L"berry",
     [](ComboScene& scene) { scene.combo.InsertString(0, L"beech"); },
     L"beech"},
    {"CB_DELETESTRING",
     {L"BEST", L"beech", L"berry"},
     L"beech",
     [](ComboScene& scene) { scene.combo.DeleteString(0); },
     L"beech"},
    {"CB_DIR",
     {L"x"},
     L"b",
     [](ComboScene& scene) {
         const TemporaryFiles files{L"berry.txt"};
         scene.combo.Dir(0, files.path(L"*.txt").c_str());
     },
     L"berry.txt"},
    {"LB_ADDSTRING",
     {L"x"},
     L"b",
     [](ComboScene& scene) { ::SendMessageW(scene.listBox(), LB_ADDSTRING, 0, param(L"berry")); },
     L"berry"},
    {"LB_INSERTSTRING",
     {L"x", L"berry"},
     L"berry",
     [](ComboScene& scene) { ::SendMessageW(scene.listBox(), LB_INSERTSTRING, 0, param(L"beech")); },
     L"beech"},
    {"LB_DELETESTRING",
     {L"BEST", L"beech", L"berry"},
     L"beech",
     [](ComboScene& scene) { ::SendMessageW(scene.listBox(), LB_DELETESTRING, 0, 0); },
     L"beech"},
    {"LB_ADDFILE",
     {L"x"},
     L"b",
     [](ComboScene& scene) {
         const TemporaryFiles files{L"berry.txt"};
         const std::filesystem::path before = std::filesystem::current_path();
         std::filesystem::current_path(files.folder());
         ::SendMessageW(scene.listBox(), LB_ADDFILE, 0, param(L"berry.txt"));
         std::filesystem::current_path(before);
     },
     L"berry.txt"},
};

} // namespace

TEST(ComboTyping, ItemsMayChangeBetweenTwoCharacters)
{
    for (const ItemChange& change : kItemChanges) {
        SCOPED_TRACE(change.name);
        ComboScene scene(change.items, change.style);
        scene.enter();
        scene.robot.type(L"b");
        EXPECT_EQ(scene.text(), change.completed);
        change.act(scene);
        scene.robot.type(L"e");
        EXPECT_EQ(scene.text(), change.completedThen);
    }
}

namespace
{

struct ListSearch
{
    int after;
    std::wstring text;

    bool operator==(const ListSearch&) const = default;
};

void PrintTo(const ListSearch& search, std::ostream* out)
{
    *out << ::testing::PrintToString(search.text) << " after " << search.after;
}

/// What is looked for in a list box, below all that was put in front of it later.
class ListSearches
{
public:
    explicit ListSearches(HWND listBox)
        : m_listBox(listBox)
    {
        ::SetWindowSubclass(listBox, &hear, 1, reinterpret_cast<DWORD_PTR>(&m_all));
    }
    ~ListSearches() { ::RemoveWindowSubclass(m_listBox, &hear, 1); }
    ListSearches(const ListSearches&) = delete;
    ListSearches& operator=(const ListSearches&) = delete;

    std::vector<ListSearch> take() { return std::exchange(m_all, {}); }

private:
    static LRESULT CALLBACK hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                 DWORD_PTR all)
    {
        if (message == LB_FINDSTRING)
            reinterpret_cast<std::vector<ListSearch>*>(all)->push_back(
                {static_cast<int>(wParam), reinterpret_cast<const wchar_t*>(lParam)});
        return ::DefSubclassProc(window, message, wParam, lParam);
    }

    HWND m_listBox;
    std::vector<ListSearch> m_all;
};

/// The first item of a list box that begins with a text, whatever the case.
int firstItemWith(HWND listBox, const std::wstring& text)
{
    const auto count = static_cast<int>(::SendMessageW(listBox, LB_GETCOUNT, 0, 0));
    for (int item = 0; item < count; ++item) {
        wchar_t found[64]{};
        ::SendMessageW(listBox, LB_GETTEXT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(found));
        if (::_wcsnicmp(found, text.c_str(), text.size()) == 0)
            return item;
    }
    return -1;
}

} // namespace

// The platform's combo box looks for the field's text in the list, too, with each change of it.
TEST(ComboTyping, ThePlatformsSearchesGoOnWhereOursHasEnded)
{
    ComboScene scene{L"apple", L"bread", L"cherry", L"BERRY", L"berry pie"};
    ListSearches searches(scene.listBox());
    scene.enter();
    searches.take();
    scene.robot.type(L"be");
    EXPECT_EQ(scene.text(), L"berry pie");
    const ListSearch wholeList{-1, L"b"};
    const std::vector<ListSearch> all = searches.take();
    ASSERT_EQ(std::ranges::count(all, wholeList), 1);
    for (const ListSearch& search : all)
        EXPECT_TRUE(search == wholeList || search.after >= 0) << ::testing::PrintToString(search);

    scene.robot.type(L"x");
    ASSERT_EQ(scene.text(), L"bex");
    searches.take();
    scene.robot.type(L"y");
    EXPECT_TRUE(searches.take().empty()) << "since no item begins with bex";
}

TEST(ComboTyping, TheListAnswersSearchesAsWithoutCompletion)
{
    for (const ItemChange& change : kItemChanges)
        for (const DWORD style : {0L, CBS_OWNERDRAWFIXED | CBS_HASSTRINGS}) {
            SCOPED_TRACE(change.name);
            ComboScene scene(change.items, change.style | style);
            scene.enter();
            scene.robot.type(L"b");
            const auto expectAnswers = [&] {
                for (const wchar_t* text :
                     {L"b", L"B", L"be", L"bee", L"berry", L"bread", L"best", L"x", L"zz"})
                    EXPECT_EQ(
                        ::SendMessageW(scene.listBox(), LB_FINDSTRING, static_cast<WPARAM>(-1), param(text)),
                        firstItemWith(scene.listBox(), text))
                        << ::testing::PrintToString(text);
            };
            expectAnswers();
            change.act(scene);
            expectAnswers();
            scene.robot.type(L"e");
            expectAnswers();
        }
}

namespace
{

LRESULT CALLBACK hearMeasuring(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                               DWORD_PTR measuring)
{
    if (message == WM_MEASUREITEM)
        (*reinterpret_cast<const std::function<void()>*>(measuring))();
    return ::DefSubclassProc(window, message, wParam, lParam);
}

} // namespace

// The parent of a list with items of different heights is asked for each one that comes.
TEST(ComboTyping, SearchesInTheMiddleOfAChangeFindWhatIsThere)
{
    const TemporaryFiles files{L"apple.txt", L"berry.txt", L"cherry.txt"};
    ComboScene scene({L"x"}, CBS_DROPDOWN | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS);
    scene.enter();
    std::vector<std::wstring> texts;
    const std::function<void()> typeB = [&] {
        scene.setText(L"");
        ::SendMessageW(scene.edit(), WM_CHAR, L'b', 1);
        texts.push_back(scene.text());
        EXPECT_EQ(::SendMessageW(scene.listBox(), LB_FINDSTRING, static_cast<WPARAM>(-1), param(L"berry")),
                  firstItemWith(scene.listBox(), L"berry"));
    };
    typeB();
    ::SetWindowSubclass(scene.parent, &hearMeasuring, 1, reinterpret_cast<DWORD_PTR>(&typeB));
    scene.combo.Dir(0, files.path(L"*.txt").c_str());
    ::RemoveWindowSubclass(scene.parent, &hearMeasuring, 1);
    typeB();
    EXPECT_EQ(texts, (std::vector<std::wstring>{L"b", L"b", L"berry.txt", L"berry.txt", L"berry.txt"}));
}

TEST(ComboTyping, AnotherWindowHasOtherItems)
{
    ComboScene scene{L"x", L"berry"};
    scene.enter();
    scene.robot.type(L"b");
    EXPECT_EQ(scene.text(), L"berry");
    scene.combo.DestroyWindow();
    scene.combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN | CBS_AUTOHSCROLL, CRect(10, 10, 210, 160),
                       &scene.parent, 21);
    for (const wchar_t* item : {L"bat", L"x", L"berry"})
        scene.combo.AddString(item);
    scene.combo.SetFocus();
    scene.robot.type(L"b");
    EXPECT_EQ(scene.text(), L"bat");
    scene.robot.type(L"e");
    EXPECT_EQ(scene.text(), L"berry");
    scene.combo.InsertString(0, L"bergamot");
    scene.robot.type(L"r");
    EXPECT_EQ(scene.text(), L"bergamot");
}

namespace
{

LRESULT CALLBACK countSearches(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                               DWORD_PTR count)
{
    *reinterpret_cast<int*>(count) += message == CB_FINDSTRING;
    return ::DefSubclassProc(window, message, wParam, lParam);
}

} // namespace

TEST(ComboTyping, ItemsWithoutTextsAreNotSearched)
{
    for (const DWORD style : {CBS_OWNERDRAWFIXED, CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 0L}) {
        ComboScene scene({}, CBS_DROPDOWN | style);
        scene.combo.AddString(L"berry");
        int searches = 0;
        ::SetWindowSubclass(scene.combo, &countSearches, 1, reinterpret_cast<DWORD_PTR>(&searches));
        scene.enter();
        scene.robot.type(L"b");
        const bool hasTexts = style != CBS_OWNERDRAWFIXED;
        EXPECT_EQ(searches > 0, hasTexts);
        EXPECT_EQ(scene.text(), hasTexts ? L"berry" : L"b");
    }
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
