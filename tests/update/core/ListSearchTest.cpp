#include <ovoui/update/core/ListSearch.h>

#include <gtest/gtest.h>

using namespace ovoui::update;

namespace
{

RunningProduct running()
{
    RunningProduct product;
    product.product = L"Board";
    product.version = {11, 5, 0, 7};
    return product;
}

} // namespace

TEST(ListSearch, TheLastRowThatAppliesCounts)
{
    const RunningProduct product = running();
    ListSearch search(product);
    search.feedLine(L"#update,Board,,,,,13,http://x/13,");
    search.feedLine(L"#update,Board,,,,10,14,http://x/14,");
    search.feedLine(L"#update,Board,,,,11.*,12,http://x/12,\"Two");
    search.feedLine(L"lines\"");
    search.finish();
    EXPECT_EQ(search.offer(), (Offer{L"12", L"Two\nlines", L"http://x/12"}));
    EXPECT_EQ(search.issue(), L"");
}

TEST(ListSearch, NothingIsOfferedWithoutARow)
{
    const RunningProduct product = running();
    ListSearch search(product);
    search.finish();
    EXPECT_FALSE(search.offer());
}

TEST(ListSearch, KnowsTheNumberOfTheList)
{
    const RunningProduct product = running();
    ListSearch search(product);
    search.feedLine(L"#issue,,,,,,41,");
    search.feedLine(L"#issue,,,,,,42,");
    search.feedLine(L"#update,#issue,,,,,43,http://x");
    search.finish();
    EXPECT_EQ(search.issue(), L"42");
}

TEST(ListSearch, TellsWhereARowIsNotComplete)
{
    const RunningProduct product = running();
    ListSearch search(product);
    search.feedLine(L"#note,,,,,,1,2,\"three");
    search.feedLine(L"lines\"");
    std::size_t line = 0;
    try {
        search.feedLine(L"#other,a,b");
    } catch (const IncompleteRow& row) {
        line = row.line;
    }
    EXPECT_EQ(line, 3u);
}
