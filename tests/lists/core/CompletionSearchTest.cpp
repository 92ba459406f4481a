// The item that completes a text, and what the search remembers of shorter ones.
#include <ovoui/lists/core/CompletionSearch.h>

#include <gtest/gtest.h>

#include <random>

using ovoui::lists::CompletionSearch;

namespace
{

wchar_t lower(wchar_t c)
{
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

bool beginsWith(std::wstring_view item, std::wstring_view text)
{
    return item.size() >= text.size() &&
           std::equal(text.begin(), text.end(), item.begin(),
                      [](wchar_t a, wchar_t b) { return lower(a) == lower(b); });
}

/// A list whose items are found as a list box finds them: capitals and small letters alike, names of folders
/// also behind their bracket, nothing for no text. Counts the items that were looked at.
class Items
{
public:
    explicit Items(std::vector<std::wstring> items)
        : m_items(std::move(items))
    {
    }

    int find(int after, std::wstring_view text)
    {
        const int count = static_cast<int>(m_items.size());
        if (text.empty())
            return -1;
        for (int step = 1; step <= count; ++step) {
            const int item = (after + step) % count;
            ++looks;
            if (isFound(m_items[static_cast<std::size_t>(item)], text))
                return item;
        }
        return -1;
    }

    int completion(const std::wstring& text)
    {
        return m_search.itemFor(
            text, static_cast<int>(m_items.size()), [&](int after) { return find(after, text); },
            [this](int item) { return m_items[static_cast<std::size_t>(item)]; });
    }

    int firstFor(std::wstring_view text) const { return m_search.firstFor(text); }

    /// As another program part that searches.
    void searchElsewhere(const std::wstring& text) { m_search.take(text, find(-1, text)); }

    /// Without any memory: every item in turn.
    int plainCompletion(const std::wstring& text)
    {
        int other = -1;
        for (std::size_t item = 0; item < m_items.size() && !text.empty(); ++item) {
            if (!isFound(m_items[item], text))
                continue;
            if (m_items[item].starts_with(text))
                return static_cast<int>(item);
            if (other == -1)
                other = static_cast<int>(item);
        }
        return other;
    }

    void insert(std::size_t place, const std::wstring& text)
    {
        m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(place % (m_items.size() + 1)), text);
        m_search.forget();
    }

    void remove(std::size_t place)
    {
        if (!m_items.empty())
            m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(place % m_items.size()));
        m_search.forget();
    }

    int looks = 0;

private:
    static bool isFound(const std::wstring& item, std::wstring_view text)
    {
        return beginsWith(item, text) ||
               (item.starts_with(L'[') && beginsWith(std::wstring_view(item).substr(1), text));
    }

    std::vector<std::wstring> m_items;
    CompletionSearch m_search;
};

Items manyItems(int count, const std::wstring& last)
{
    std::vector<std::wstring> items(static_cast<std::size_t>(count - 1), L"Item");
    items.push_back(last);
    return Items(std::move(items));
}

} // namespace

TEST(CompletionSearch, PrefersTheExactCase)
{
    EXPECT_EQ(Items({L"ABC", L"abd"}).completion(L"ab"), 1);
    EXPECT_EQ(Items({L"ABC", L"abd"}).completion(L"AB"), 0);
    EXPECT_EQ(Items({L"ABC", L"Abx", L"abd", L"abe"}).completion(L"ab"), 2);
}

TEST(CompletionSearch, TakesAnotherCaseWhenThereIsNoBetterOne)
{
    EXPECT_EQ(Items({L"x", L"ABC", L"ABD"}).completion(L"ab"), 1);
}

TEST(CompletionSearch, FindsNothing)
{
    EXPECT_EQ(Items({L"ABC"}).completion(L"b"), -1);
    EXPECT_EQ(Items({}).completion(L"b"), -1);
    EXPECT_EQ(Items({L"ABC"}).completion(L""), -1);
}

TEST(CompletionSearch, EndsWhenItBeginsAgainAtTheTop)
{
    Items items({L"AB1", L"x", L"AB2", L"y"});
    EXPECT_EQ(items.completion(L"ab"), 0);
    EXPECT_EQ(items.looks, 1 + 2 + 2); // the last two: the end, and the first item again
}

TEST(CompletionSearch, DoesNotLookBehindTheLastItem)
{
    Items items({L"x", L"ABC"});
    EXPECT_EQ(items.completion(L"ab"), 1);
    EXPECT_EQ(items.looks, 2);
}

TEST(CompletionSearch, ALongerTextIsLookedForWhereTheShorterOneWasFound)
{
    Items items = manyItems(1000, L"the last");
    EXPECT_EQ(items.completion(L"t"), 999);
    items.looks = 0;
    EXPECT_EQ(items.completion(L"th"), 999);
    EXPECT_EQ(items.completion(L"the la"), 999);
    EXPECT_EQ(items.looks, 2);
}

TEST(CompletionSearch, NoLongerTextIsLookedForWhenTheShorterOneIsNowhere)
{
    Items items = manyItems(1000, L"the last");
    EXPECT_EQ(items.completion(L"x"), -1);
    items.looks = 0;
    EXPECT_EQ(items.completion(L"xy"), -1);
    EXPECT_EQ(items.looks, 0);
}

TEST(CompletionSearch, TheExactCaseIsLookedForWhereItWasFoundForTheShorterText)
{
    Items items = manyItems(1000, L"item in small letters");
    EXPECT_EQ(items.completion(L"i"), 999);
    items.looks = 0;
    EXPECT_EQ(items.completion(L"it"), 999);
    EXPECT_EQ(items.looks, 2); // the first one in any case, and the exact one
    EXPECT_EQ(items.completion(L"iT"), 0);
    items.looks = 0;
    EXPECT_EQ(items.completion(L"iTe"), 0);
    EXPECT_EQ(items.looks, 1); // no exact one, as for the shorter text
}

TEST(CompletionSearch, AfterABackspaceTheShorterTextCountsAgain)
{
    Items items({L"apple", L"apricot", L"april"});
    EXPECT_EQ(items.completion(L"apr"), 1);
    EXPECT_EQ(items.completion(L"apri"), 1);
    EXPECT_EQ(items.completion(L"april"), 2);
    EXPECT_EQ(items.completion(L"apric"), 1);
    EXPECT_EQ(items.completion(L"ap"), 0);
}

TEST(CompletionSearch, AnEmptyTextSaysNothingAboutOthers)
{
    Items items({L"a", L"b"});
    EXPECT_EQ(items.completion(L""), -1);
    EXPECT_EQ(items.completion(L"b"), 1);
}

TEST(CompletionSearch, SaysBeforeWhichItemALongerTextNeedNotBeLookedFor)
{
    Items items({L"x", L"Apple", L"apricot"});
    EXPECT_EQ(items.firstFor(L"apricot"), 0) << "nothing is known yet";
    EXPECT_EQ(items.completion(L"ap"), 2);
    EXPECT_EQ(items.firstFor(L"ap"), 1);
    EXPECT_EQ(items.firstFor(L"apricot"), 1);
    EXPECT_EQ(items.firstFor(L"AP"), 0) << "known for the text as it was typed only";
    EXPECT_EQ(items.firstFor(L"a"), 0);
    EXPECT_EQ(items.firstFor(L""), 0);
    EXPECT_EQ(items.completion(L"apz"), -1);
    EXPECT_EQ(items.firstFor(L"apzo"), -1);
    EXPECT_EQ(items.firstFor(L"ape"), 1);
    items.insert(0, L"apex");
    EXPECT_EQ(items.firstFor(L"ape"), 0);
    EXPECT_EQ(items.firstFor(L"apzo"), 0);
}

TEST(CompletionSearch, TakesOverWhatAnotherSearchHasFound)
{
    Items items = manyItems(1000, L"the last");
    items.searchElsewhere(L"t");
    items.looks = 0;
    EXPECT_EQ(items.completion(L"t"), 999);
    EXPECT_EQ(items.looks, 1);
    items.searchElsewhere(L"q");
    items.looks = 0;
    EXPECT_EQ(items.completion(L"q"), -1);
    EXPECT_EQ(items.completion(L"qu"), -1);
    EXPECT_EQ(items.looks, 0);
}

TEST(CompletionSearch, WhatItFoundItselfSaysMore)
{
    Items items = manyItems(1000, L"item in small letters");
    EXPECT_EQ(items.completion(L"i"), 999);
    items.searchElsewhere(L"i"); // finds an item in another case
    items.looks = 0;
    EXPECT_EQ(items.completion(L"i"), 999);
    EXPECT_EQ(items.looks, 2);
    items.searchElsewhere(L"ite");
    items.looks = 0;
    EXPECT_EQ(items.completion(L"item"), 999);
    EXPECT_EQ(items.looks, 2);
}

// Random users and hosts: with and without memory the same items are found.
TEST(CompletionSearch, RemembersNothingWrong)
{
    std::mt19937 random(11);
    const auto upTo = [&](std::size_t most) { return random() % (most + 1); };
    const auto anyText = [&](std::size_t most) {
        std::wstring text;
        for (std::size_t length = upTo(most); length > 0; --length)
            text += L"abAB["[upTo(4)];
        return text;
    };
    int found = 0;
    for (int list = 0; list < 300; ++list) {
        std::vector<std::wstring> texts;
        for (std::size_t count = upTo(12); count > 0; --count)
            texts.push_back(anyText(5));
        Items items(std::move(texts));
        std::wstring typed;
        for (int step = 0; step < 60; ++step) {
            switch (upTo(9)) {
            case 0:
                items.insert(random(), anyText(5));
                break;
            case 1:
                items.remove(random());
                break;
            case 2:
                typed = anyText(4);
                break;
            case 3:
            case 4:
                typed = typed.substr(0, upTo(typed.size()));
                break;
            default:
                typed += L"abAB["[upTo(4)];
            }
            const int expected = items.plainCompletion(typed);
            ASSERT_EQ(items.completion(typed), expected) << "list " << list << ", step " << step;
            const std::wstring longer = typed.substr(0, upTo(typed.size())) + anyText(2);
            const int from = items.firstFor(longer);
            const int first = items.find(-1, longer);
            ASSERT_TRUE(first == -1 || (from != -1 && from <= first)) << "list " << list << ", step " << step;
            if (upTo(1) == 0)
                items.searchElsewhere(longer);
            found += expected != -1;
        }
    }
    EXPECT_GT(found, 3000);
}
