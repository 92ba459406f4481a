#include <ovocor/Quark.h>

#include <gtest/gtest.h>

#include <string>
#include <unordered_set>
#include <vector>

TEST(Quark, GivesItsText)
{
    EXPECT_EQ(Quark(L"oak").value(), L"oak");
    EXPECT_EQ(Quark().value(), L"");
}

TEST(Quark, HasOneCopyOfEachText)
{
    const std::wstring part = L"birch";
    EXPECT_EQ(&Quark(L"birch").value(), &Quark(part).value());
    EXPECT_EQ(Quark(L"birch"), Quark(std::wstring_view(L"birches").substr(0, 5)));
    EXPECT_EQ(Quark(), Quark(L""));
}

TEST(Quark, TellsTextsApart)
{
    EXPECT_NE(Quark(L"oak"), Quark(L"Oak"));
    EXPECT_NE(Quark(L"oak"), Quark(std::wstring_view(L"oak\0", 4))) << "zero characters count";
}

TEST(Quark, KeepsItsTextWhileOthersAreMade)
{
    const Quark first(L"first");
    const std::wstring* place = &first.value();
    std::vector<Quark> many;
    for (int i = 0; i < 10'000; ++i)
        many.emplace_back(L"quark " + std::to_wstring(i));
    EXPECT_EQ(&Quark(L"first").value(), place);
    EXPECT_EQ(*place, L"first");
    EXPECT_EQ(many[77].value(), L"quark 77");
}

TEST(Quark, IsAKeyOfUnorderedContainers)
{
    const std::unordered_set<Quark> set{Quark(L"a"), Quark(L"b"), Quark(L"a")};
    EXPECT_EQ(set.size(), 2u);
    EXPECT_TRUE(set.contains(Quark(L"b")));
}
