// Texts that were used last.
#include <ovoui/lists/core/TextHistory.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

using Texts = std::vector<std::wstring>;

TEST(TextHistory, TheLastOneFirstAndEachOnce)
{
    TextHistory history(3);
    history.use(L"a");
    history.use(L"b");
    history.use(L"a");
    EXPECT_EQ(history.texts(), (Texts{L"a", L"b"}));
    history.use(L"A"); // another text
    EXPECT_EQ(history.texts(), (Texts{L"A", L"a", L"b"}));
}

TEST(TextHistory, NoMoreThanTheLimit)
{
    TextHistory history(2);
    EXPECT_EQ(history.use(L"a"), Texts{});
    EXPECT_EQ(history.use(L"b"), Texts{});
    EXPECT_EQ(history.use(L"c"), Texts{L"a"});
    EXPECT_EQ(history.use(L"b"), Texts{});
    EXPECT_EQ(history.texts(), (Texts{L"b", L"c"}));
    for (const int limit : {0, -1}) {
        TextHistory nothing(limit);
        EXPECT_EQ(nothing.use(L"a"), Texts{L"a"});
        EXPECT_EQ(nothing.texts(), Texts{});
    }
}

TEST(TextHistory, EmptyTextsAreNotKept)
{
    TextHistory history(2);
    history.use(L"a");
    EXPECT_EQ(history.use(L""), Texts{});
    EXPECT_EQ(history.texts(), Texts{L"a"});
}

TEST(TextHistory, TextsCanBeForgotten)
{
    TextHistory history(3);
    history.use(L"a");
    history.use(L"b");
    EXPECT_TRUE(history.forget(L"a"));
    EXPECT_FALSE(history.forget(L"a"));
    EXPECT_TRUE(history.has(L"b"));
    EXPECT_FALSE(history.has(L"a"));
}

TEST(TextHistory, WhatIsRestoredIsWhatCouldHaveBeenKept)
{
    TextHistory history(3);
    history.use(L"old");
    history.restore({L"a", L"", L"b", L"a", L"c", L"d"});
    EXPECT_EQ(history.texts(), (Texts{L"a", L"b", L"c"}));
}

TEST(TextHistory, IndicesFollowTheirItems)
{
    // Every move in lists of up to five items, against the moves themselves.
    for (int count = 1; count <= 5; ++count)
        for (int from = 0; from < count; ++from)
            for (int to = 0; to < count; ++to) {
                std::vector<int> items;
                for (int i = 0; i < count; ++i)
                    items.push_back(i);
                items.erase(items.begin() + from);
                items.insert(items.begin() + to, from);
                for (int i = 0; i < count; ++i)
                    EXPECT_EQ(items[static_cast<std::size_t>(indexAfterMove(i, from, to))], i);
            }
    EXPECT_EQ(indexAfterMove(-1, 0, 2), -1);
    EXPECT_EQ(indexAfterRemoval(1, 1), -1);
    EXPECT_EQ(indexAfterRemoval(0, 1), 0);
    EXPECT_EQ(indexAfterRemoval(2, 1), 1);
    EXPECT_EQ(indexAfterRemoval(-1, 0), -1);
    EXPECT_EQ(indexAfterInsertion(0, 0), 1);
    EXPECT_EQ(indexAfterInsertion(0, 1), 0);
    EXPECT_EQ(indexAfterInsertion(-1, 0), -1);
}
