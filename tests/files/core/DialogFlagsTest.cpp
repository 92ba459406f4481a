#include <ovoui/files/core/DialogFlags.h>

#include <gtest/gtest.h>

using ovoui::dialogFlags;
using ovoui::FileWish;

TEST(DialogFlags, AreThoseOfTheAgreedTable)
{
    const struct
    {
        FileWish wish;
        unsigned flags;
    } rows[] = {{{}, 0x480C},
                {{.mustExist = true}, 0x580C},
                {{.saves = true}, 0x480E},
                {{.mustExist = true, .saves = true}, 0x580E},
                {{.mustExist = true, .several = true}, 0x85A0C}};
    for (const auto& [wish, flags] : rows)
        EXPECT_EQ(dialogFlags(wish), flags);
}

TEST(DialogFlags, EachWishAddsItsOwn)
{
    const unsigned none = dialogFlags({});
    for (unsigned bits = 0; bits < 8; ++bits) {
        const FileWish wish{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0};
        unsigned expected = none;
        expected |= wish.mustExist ? 0x1000 : 0;
        expected |= wish.several ? 0x80200 : 0;
        expected |= wish.saves ? 0x2 : 0;
        EXPECT_EQ(dialogFlags(wish), expected) << bits;
        EXPECT_TRUE(dialogFlags(wish) & 0x8) << "the working folder stays";
    }
}
