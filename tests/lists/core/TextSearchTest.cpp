// Parts of texts, and what of them is shown when the text is cut.
#include <ovoui/lists/core/TextSearch.h>

#include <gtest/gtest.h>

#include <array>
#include <string>

using namespace ovoui::lists;

namespace
{

using Ranges = std::vector<TextRange>;

} // namespace

TEST(TextSearch, EveryPlaceFromLeftToRight)
{
    EXPECT_EQ(placesOf(L"an", L"banana"), (Ranges{{1, 2}, {3, 2}}));
    EXPECT_EQ(placesOf(L"banana", L"banana"), (Ranges{{0, 6}}));
    EXPECT_EQ(placesOf(L"a", L"banana"), (Ranges{{1, 1}, {3, 1}, {5, 1}}));
}

TEST(TextSearch, NoPlaceOverlapsAnother)
{
    EXPECT_EQ(placesOf(L"aa", L"aaaaa"), (Ranges{{0, 2}, {2, 2}}));
}

TEST(TextSearch, NothingIsFoundNowhere)
{
    EXPECT_EQ(placesOf(L"", L"banana"), Ranges{});
    EXPECT_EQ(placesOf(L"x", L"banana"), Ranges{});
    EXPECT_EQ(placesOf(L"bananas", L"banana"), Ranges{});
    EXPECT_EQ(placesOf(L"a", L""), Ranges{});
}

TEST(TextSearch, PlacesInWhatIsShownStay)
{
    EXPECT_EQ(shownOf({{1, 2}, {3, 2}}, 5, 3), (Ranges{{1, 2}, {3, 2}}));
    EXPECT_EQ(shownOf({}, 5, 3), Ranges{});
}

TEST(TextSearch, APlaceThatIsCutIncludesTheDots)
{
    EXPECT_EQ(shownOf({{3, 4}}, 5, 3), (Ranges{{3, 5}}));
    EXPECT_EQ(shownOf({{0, 6}}, 0, 3), (Ranges{{0, 3}}));
}

TEST(TextSearch, TheDotsStandForAllPlacesThatAreCutOff)
{
    EXPECT_EQ(shownOf({{1, 2}, {6, 2}, {9, 2}}, 5, 3), (Ranges{{1, 2}, {5, 3}}));
    EXPECT_EQ(shownOf({{5, 1}}, 5, 3), (Ranges{{5, 3}}));
    EXPECT_EQ(shownOf({{4, 3}, {7, 1}}, 5, 3), (Ranges{{4, 4}}));
}

TEST(TextSearch, WithoutDotsPlacesEndWithTheText)
{
    EXPECT_EQ(shownOf({{0, 4}}, 1, 0), (Ranges{{0, 1}}));
    EXPECT_EQ(shownOf({{2, 4}}, 1, 0), Ranges{});
}

TEST(TextSearch, WhatWasDrawnTellsHowMuchWasCutOff)
{
    const std::wstring text = L"banana";
    const Ranges places = placesOf(L"an", text);
    EXPECT_EQ(shownOf(places, text, text), places);
    for (std::size_t kept = 0; kept < text.size(); ++kept) {
        const std::wstring beginning = text.substr(0, kept);
        EXPECT_EQ(shownOf(places, text, beginning), shownOf(places, kept, 0)) << kept;
        EXPECT_EQ(shownOf(places, text, beginning + L"..."), shownOf(places, kept, 3)) << kept;
    }
}

TEST(TextSearch, DotsOfTheTextItselfCutNothingOff)
{
    const Ranges places = placesOf(L".", L"wait...");
    EXPECT_EQ(places.size(), 3u);
    EXPECT_EQ(shownOf(places, L"wait...", L"wait..."), places);
}

TEST(TextSearch, EveryResultLiesWithinWhatIsShown)
{
    for (std::size_t kept = 0; kept < 8; ++kept)
        for (std::size_t dots : {0u, 3u})
            for (std::size_t length = 1; length < 4; ++length) {
                const std::wstring text(8, L'a');
                std::size_t last = 0;
                for (const TextRange& range :
                     shownOf(placesOf(std::wstring(length, L'a'), text), kept, dots)) {
                    EXPECT_GE(range.begin, last);
                    EXPECT_GT(range.length, 0u);
                    last = range.begin + range.length;
                }
                EXPECT_LE(last, kept + dots);
            }
}

TEST(TextSearch, ReachesFromTheLeftOrFromTheRight)
{
    const std::array extents{5, 15, 20, 40};
    EXPECT_EQ(reachOf({0, 1}, extents, false), (Reach{0, 5}));
    EXPECT_EQ(reachOf({1, 2}, extents, false), (Reach{5, 20}));
    EXPECT_EQ(reachOf({0, 4}, extents, false), (Reach{0, 40}));
    EXPECT_EQ(reachOf({0, 1}, extents, true), (Reach{35, 40}));
    EXPECT_EQ(reachOf({1, 2}, extents, true), (Reach{20, 35}));
}
