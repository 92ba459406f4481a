// Items that have a text anywhere, and the keys that choose among them.
#include <ovoui/lists/core/HitRules.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

namespace
{

std::vector<int> hits(const std::vector<std::wstring>& items, const std::wstring& part)
{
    return hitsOf(part, static_cast<int>(items.size()),
                  [&](int item) { return items[static_cast<std::size_t>(item)]; });
}

using Items = std::vector<int>;

} // namespace

TEST(ComboHits, AnyPartOfTheText)
{
    const std::vector<std::wstring> fruits{L"berry", L"apple", L"blackberry", L"rye"};
    EXPECT_EQ(hits(fruits, L"err"), (Items{0, 2}));
    EXPECT_EQ(hits(fruits, L"ry"), (Items{0, 2, 3}));
    EXPECT_EQ(hits(fruits, L"x"), Items{});
    EXPECT_EQ(hits({}, L"x"), Items{});
}

TEST(ComboHits, NothingTypedHitsNothing)
{
    EXPECT_EQ(hits({L"berry", L""}, L""), Items{});
}

TEST(ComboHits, TheTextItselfIsNoChoice)
{
    EXPECT_EQ(hits({L"berry", L"apple"}, L"berry"), Items{});
    EXPECT_EQ(hits({L"berry", L"blackberry"}, L"berry"), (Items{0, 1}));
    EXPECT_EQ(hits({L"blackberry", L"berry"}, L"berry"), (Items{0, 1}));
    EXPECT_EQ(hits({L"blackberry", L"apple"}, L"berry"), Items{0});
}

TEST(ComboHits, ArrowsGoRoundByWayOfWhatWasTyped)
{
    EXPECT_EQ(afterHitKey(HitKey::Down, 3, -1, 12), (HitEffect{true, false, 0}));
    EXPECT_EQ(afterHitKey(HitKey::Down, 3, 1, 12), (HitEffect{true, false, 2}));
    EXPECT_EQ(afterHitKey(HitKey::Down, 3, 2, 12), (HitEffect{true, false, -1}));
    EXPECT_EQ(afterHitKey(HitKey::Up, 3, -1, 12), (HitEffect{true, false, 2}));
    EXPECT_EQ(afterHitKey(HitKey::Up, 3, 0, 12), (HitEffect{true, false, -1}));
}

TEST(ComboHits, PagesEndAtTheEnds)
{
    EXPECT_EQ(afterHitKey(HitKey::PageDown, 30, -1, 10), (HitEffect{true, false, 9}));
    EXPECT_EQ(afterHitKey(HitKey::PageDown, 30, 25, 10), (HitEffect{true, false, 29}));
    EXPECT_EQ(afterHitKey(HitKey::PageUp, 30, 25, 10), (HitEffect{true, false, 16}));
    EXPECT_EQ(afterHitKey(HitKey::PageUp, 30, 4, 10), (HitEffect{true, false, 0}));
    EXPECT_EQ(afterHitKey(HitKey::PageDown, 2, 0, 1), (HitEffect{true, false, 1}));
}

TEST(ComboHits, ReturnClosesAndGoesOnAndEscapeOnlyCloses)
{
    for (const int selected : {-1, 0, 2}) {
        EXPECT_EQ(afterHitKey(HitKey::Return, 3, selected, 12), (HitEffect{false, true, selected}));
        EXPECT_EQ(afterHitKey(HitKey::Escape, 3, selected, 12), (HitEffect{true, true, selected}));
        EXPECT_EQ(afterHitKey(HitKey::Other, 3, selected, 12), (HitEffect{false, false, selected}));
    }
}

TEST(HitRules, WhatEveryKeyIsToTheHits)
{
    for (unsigned key = 0; key <= 0xFF; ++key) {
        HitKey expected = HitKey::Other;
        for (const auto& [number, known] : {std::pair{0x26u, HitKey::Up},
                                            {0x28u, HitKey::Down},
                                            {0x21u, HitKey::PageUp},
                                            {0x22u, HitKey::PageDown},
                                            {0x0Du, HitKey::Return},
                                            {0x1Bu, HitKey::Escape}})
            if (key == number)
                expected = known;
        EXPECT_EQ(hitKeyOf(key), expected) << key;
    }
}
