// Lists of texts with a separator between them.
#include <ovoui/sysinfo/core/WordList.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace ovoui::sysinfo;

namespace
{

/// All lists of so many texts, empty ones among them.
std::vector<std::vector<std::wstring>> everyList(std::size_t length)
{
    if (length == 0)
        return {std::vector<std::wstring>()};
    std::vector<std::vector<std::wstring>> lists;
    for (const std::vector<std::wstring>& shorter : everyList(length - 1))
        for (const wchar_t* last : {L"", L"oak", L"ash tree"}) {
            lists.push_back(shorter);
            lists.back().emplace_back(last);
        }
    return lists;
}

} // namespace

TEST(WordList, ASeparatorStandsBetweenTheTextsThatAreNotEmpty)
{
    for (const wchar_t* separator : {L"\t", L", ", L""})
        for (std::size_t length = 0; length <= 5; ++length)
            for (const std::vector<std::wstring>& texts : everyList(length)) {
                WordList list(separator);
                std::wstring expected; // with a separator behind each
                for (const std::wstring& text : texts) {
                    list.add(text);
                    if (!text.empty())
                        expected += text + separator;
                }
                if (!expected.empty())
                    expected.resize(expected.size() - std::wstring_view(separator).size());
                EXPECT_EQ(list.take(), expected);
            }
}

TEST(WordList, IsEmptyAfterItWasTaken)
{
    WordList list(L",");
    list.add(L"oak");
    EXPECT_EQ(list.take(), L"oak");
    EXPECT_EQ(list.take(), L"");
    list.add(L"ash");
    EXPECT_EQ(list.take(), L"ash");
}
