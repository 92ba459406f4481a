// What is told of a change of the selection: every case up to the limit, and around it.
#include <ovoui/tree/core/SelectionNews.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace ovoui::tree;

namespace
{

using News = std::vector<SelectionNews>;

constexpr SelectionNews selected(std::size_t index)
{
    return {SelectionEvent::Selected, index};
}

constexpr SelectionNews added(std::size_t index)
{
    return {SelectionEvent::Added, index};
}

constexpr SelectionNews removed(std::size_t index)
{
    return {SelectionEvent::Removed, index};
}

std::size_t count(const News& news, SelectionEvent event)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(news, [event](const SelectionNews& each) { return each.event == event; }));
}

} // namespace

TEST(SelectionNews, NothingWhenNothingHasChanged)
{
    EXPECT_EQ(selectionNews(0, 0, 0), News{});
    EXPECT_EQ(selectionNews(5, 0, 0), News{});
}

TEST(SelectionNews, OneItemAfterAnotherIsOneEvent)
{
    EXPECT_EQ(selectionNews(0, 0, 1), News{selected(0)});
    EXPECT_EQ(selectionNews(1, 1, 1), News{selected(0)});
    EXPECT_EQ(selectionNews(1, 1, 0), News{removed(0)});
}

TEST(SelectionNews, ItemsAreAddedToASelectionAndTakenOutOfIt)
{
    EXPECT_EQ(selectionNews(1, 0, 2), (News{added(0), added(1)}));
    EXPECT_EQ(selectionNews(3, 2, 0), (News{removed(0), removed(1)}));
    EXPECT_EQ(selectionNews(3, 1, 1), (News{removed(0), added(0)}));
    EXPECT_EQ(selectionNews(0, 0, 3), (News{selected(0), added(1), added(2)}));
    EXPECT_EQ(selectionNews(3, 3, 1), (News{removed(0), removed(1), removed(2), selected(0)}));
}

TEST(SelectionNews, ManyAreToldTogether)
{
    for (std::size_t before = 0; before <= 12; ++before)
        for (std::size_t gone = 0; gone <= before; ++gone)
            for (std::size_t came = 0; came <= 12; ++came) {
                const News news = selectionNews(before, gone, came);
                if (gone + came > 8) {
                    EXPECT_EQ(news, (News{{SelectionEvent::Within, 0}}));
                    continue;
                }
                EXPECT_EQ(count(news, SelectionEvent::Within), 0u);
                const bool alone = before == gone && came > 0;
                EXPECT_EQ(count(news, SelectionEvent::Selected), alone ? 1u : 0u);
                EXPECT_EQ(count(news, SelectionEvent::Added), came - (alone ? 1 : 0));
                EXPECT_EQ(count(news, SelectionEvent::Removed), alone && gone == 1 ? 0 : gone);
                EXPECT_TRUE(std::ranges::is_sorted(news, {}, [](const SelectionNews& each) {
                    return each.event != SelectionEvent::Removed;
                })) << "what goes comes first";
            }
}
