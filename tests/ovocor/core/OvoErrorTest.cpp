#include <ovocor/IntCast.h>
#include <ovocor/OvoError.h>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

TEST(OvoError, GivesItsTextWideAndInUtf8)
{
    const OvoError error(L"the oak \u2260 the elm");
    EXPECT_EQ(std::wstring(error.wwhat()), L"the oak \u2260 the elm");
    EXPECT_EQ(std::string(error.what()), "the oak \xE2\x89\xA0 the elm");
}

TEST(OvoError, WritesSurrogatePairsAsOneCharacter)
{
    EXPECT_EQ(std::string(OvoError(L"\U0001F333").what()), "\xF0\x9F\x8C\xB3");
}

TEST(OvoError, IsCaughtAsAStandardException)
{
    try {
        throw OvoError(L"oak");
    } catch (const std::exception& error) {
        EXPECT_EQ(std::string(error.what()), "oak");
    }
}

TEST(OvoError, CopiesWithoutFailingAndKeepsItsText)
{
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<OvoError>);
    EXPECT_TRUE(std::is_nothrow_copy_assignable_v<OvoError>);
    OvoError copy(L"elm");
    {
        const OvoError original(L"oak");
        copy = original;
    }
    EXPECT_EQ(std::wstring(copy.wwhat()), L"oak");
}

TEST(OvoError, MayHaveAnEmptyText)
{
    EXPECT_EQ(std::wstring(OvoError(L"").wwhat()), L"");
    EXPECT_EQ(std::string(OvoError({}).what()), "");
}

TEST(IntCastError, IsRaisedAndCaughtAsAnOvoError)
{
    EXPECT_THROW(throwIntCast(), IntCastError);
    try {
        throwIntCast();
    } catch (const OvoError& error) {
        EXPECT_STREQ(error.wwhat(), L"The number is out of range.");
    }
}
