#include <ovoui/tree/core/SavedView.h>

#include <gtest/gtest.h>

#include <random>

using namespace ovoui::tree;

TEST(SavedView, IsWrittenOneLineForEachItem)
{
    const SavedView view{{{{L"a"}}, {{L"a"}, {L"b"}}}, {{{L"c", 2}}}, {{L"c", 2}}, {}, {{L"a"}}};
    EXPECT_EQ(formatView(view), L"open /a\nopen /a/b\nselected /c\\#2\ncaret /c\\#2\nfirst /a\n");
    EXPECT_EQ(parseView(formatView(view)), view);
    EXPECT_EQ(formatView({}), L"");
    EXPECT_EQ(parseView(L""), SavedView{});
}

TEST(SavedView, LeavesOutWhatItDoesNotKnow)
{
    EXPECT_EQ(parseView(L"zoom /a\nopen\n\nopen /b\ngarbage"), (SavedView{{{{L"b"}}}, {}, {}, {}, {}}));
    EXPECT_EQ(parseView(L"open /b"), (SavedView{{{{L"b"}}}, {}, {}, {}, {}})); // no line end
    EXPECT_EQ(parseView(L"open \nselected \ncaret "), SavedView{});
}

/// Texts of whatever characters come back, those with a meaning among them.
TEST(SavedView, ReadsBackWhatItWrites)
{
    std::mt19937 random(5);
    const std::wstring characters = L"ab/\\#\n\r 12";
    const auto path = [&] {
        TreePath steps;
        for (auto count = random() % 3 + 1; count > 0; --count) {
            PathStep step;
            for (auto length = random() % 5; length > 0; --length)
                step.text += characters[random() % characters.size()];
            step.ordinal = random() % 2 ? 1 : static_cast<unsigned>(random() % 20 + 1);
            steps.push_back(step);
        }
        return steps;
    };
    for (int i = 0; i < 20000; ++i) {
        SavedView view;
        for (auto count = random() % 4; count > 0; --count)
            view.open.push_back(path());
        for (auto count = random() % 4; count > 0; --count)
            view.selected.push_back(path());
        view.caret = path();
        view.first = path();
        ASSERT_EQ(parseView(formatView(view)), view);
    }
}

TEST(SavedView, TakesAnyText)
{
    std::mt19937 random(6);
    const std::wstring characters = L"open selected/\\#\n2";
    for (int i = 0; i < 20000; ++i) {
        std::wstring text;
        for (auto length = random() % 40; length > 0; --length)
            text += characters[random() % characters.size()];
        const SavedView view = parseView(text);
        ASSERT_EQ(parseView(formatView(view)), view);
    }
}
