// Rows sorted by keys of bytes.
#include "AnyKeys.h"

#include <ovoui/lists/core/SortKeys.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <string>

using namespace ovoui::lists;

namespace
{

using Rows = std::vector<int>;

Rows order(const std::vector<std::string>& keys, bool ascending)
{
    SortKeys sorted;
    for (const std::string& key : keys)
        sorted.add(key);
    return sorted.order(ascending);
}

/// The definition.
Rows expected(const std::vector<std::string>& keys, bool ascending)
{
    Rows rows(keys.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_sort(rows.begin(), rows.end(), [&](int one, int other) {
        const std::string& a = keys[static_cast<std::size_t>(one)];
        const std::string& b = keys[static_cast<std::size_t>(other)];
        return ascending ? a < b : b < a;
    });
    return rows;
}

} // namespace

TEST(SortKeys, ByTheirBytes)
{
    EXPECT_EQ(order({"pear", "apple", "zebra", "apples"}, true), (Rows{1, 3, 0, 2}));
    EXPECT_EQ(order({"\x7F", "\x80", "\x01"}, true), (Rows{2, 0, 1})) << "bytes have no sign";
    EXPECT_EQ(order({}, true), Rows{});
}

TEST(SortKeys, BeyondTheFirstEightBytes)
{
    EXPECT_EQ(order({"12345678b", "12345678a", "12345678"}, true), (Rows{2, 1, 0}));
    EXPECT_EQ(order({"12345678b", "12345678a", "12345678"}, false), (Rows{0, 1, 2}));
}

TEST(SortKeys, ZerosCount)
{
    const std::string longer("a\0\0", 3);
    EXPECT_EQ(order({longer, "a", "", std::string(1, '\0')}, true), (Rows{2, 3, 1, 0}));
}

TEST(SortKeys, EqualKeysKeepTheirOrderBothWays)
{
    EXPECT_EQ(order({"b", "a", "b", "a"}, true), (Rows{1, 3, 0, 2}));
    EXPECT_EQ(order({"b", "a", "b", "a"}, false), (Rows{0, 2, 1, 3}));
}

TEST(SortKeys, BehindWhatAllBeginWith)
{
    EXPECT_EQ(order({"the same c", "the same a", "the same b"}, true), (Rows{1, 2, 0}));
    EXPECT_EQ(order({"the same c", "the same", "the same b"}, true), (Rows{1, 2, 0}));
    EXPECT_EQ(order({"the same", "the same", "the same"}, false), (Rows{0, 1, 2}));
    EXPECT_EQ(order({"the same c", "the same a", "other"}, true), (Rows{2, 1, 0}));
}

TEST(SortKeys, AnyKeys)
{
    forAnyKeys([](const std::vector<std::string>& keys) {
        for (const bool ascending : {true, false})
            EXPECT_EQ(order(keys, ascending), expected(keys, ascending));
    });
}
