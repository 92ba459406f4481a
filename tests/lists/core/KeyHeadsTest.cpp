// The numbers that keys of bytes are sorted by first.
#include "AnyKeys.h"

#include <ovoui/lists/core/KeyHeads.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

namespace
{

using Keys = std::vector<std::string_view>;

} // namespace

TEST(KeyHeads, ComeInTheOrderOfTheKeys)
{
    forAnyKeys([](const std::vector<std::string>& texts) {
        const Keys keys(texts.begin(), texts.end());
        const KeyHeads heads(keys);
        for (std::size_t i = 1; i < keys.size(); ++i) {
            const std::string_view one = keys[i - 1];
            const std::string_view other = keys[i];
            const bool same = heads.of(one) == heads.of(other);
            EXPECT_EQ(heads.of(one) < heads.of(other), !same && one < other);
            EXPECT_TRUE(!same || one.substr(0, heads.end()) == other.substr(0, heads.end()));
            EXPECT_TRUE(!heads.tellAll() || same == (one == other));
        }
    });
}

TEST(KeyHeads, TellAllWhereFewPlacesDiffer)
{
    const std::string same(100, 's');
    const std::vector<std::string> texts = {same + "a" + same + "x", same + "b" + same + "x",
                                            same + "b" + same + "y"};
    EXPECT_TRUE(KeyHeads(Keys(texts.begin(), texts.end())).tellAll());
    EXPECT_TRUE(KeyHeads(Keys(5, "equal")).tellAll());
    EXPECT_TRUE(KeyHeads(Keys()).tellAll());
}

/// Two letters take a bit at each place, the alphabet takes five.
TEST(KeyHeads, TellAsMuchAsThereIsRoomFor)
{
    Keys keys = {"aaaaaaaaaaaaaaaaaaaa", "zzzzzzzzzzzzzzzzzzzz"};
    EXPECT_TRUE(KeyHeads(keys).tellAll());
    std::vector<std::string> more;
    for (char letter = 'a'; letter <= 'z'; ++letter)
        more.emplace_back(20, letter);
    keys.assign(more.begin(), more.end());
    EXPECT_FALSE(KeyHeads(keys).tellAll());
    EXPECT_EQ(KeyHeads(keys).end(), 12u);
}

TEST(KeyHeads, TheEndComesBeforeAZero)
{
    const std::string zero(1, '\0');
    const Keys keys = {"", zero};
    const KeyHeads heads(keys);
    EXPECT_LT(heads.of(""), heads.of(zero));
    EXPECT_TRUE(heads.tellAll());
}
