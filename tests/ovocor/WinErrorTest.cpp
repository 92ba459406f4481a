#include <ovocor/WinError.h>

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr DWORD kNoSuchCode = 0x2FFFFFFF; // customer bit set, no text anywhere

} // namespace

TEST(FormatMessage, GivesTheSystemsTextOnOneLine)
{
    const std::wstring text = formatMessage(ERROR_ACCESS_DENIED);
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(text.find_first_of(L"\r\n"), text.npos);
    EXPECT_FALSE(text.ends_with(L' '));
    EXPECT_NE(text, formatMessage(ERROR_FILE_NOT_FOUND));
}

TEST(FormatMessage, LeavesPlaceholdersInTheText)
{
    // The text of this error names the failing program by a placeholder.
    EXPECT_NE(formatMessage(ERROR_BAD_EXE_FORMAT).find(L"%1"), std::wstring::npos);
}

TEST(FormatMessage, NamesACodeWithoutText)
{
    EXPECT_EQ(formatMessage(kNoSuchCode), L"error 805306367");
    EXPECT_EQ(formatMessage(0xAFFFFFFF), L"error 0xAFFFFFFF");
}

TEST(FormatMessage, LooksIntoAModuleFirstAndThenIntoTheSystem)
{
    const HMODULE catalogue = ::GetModuleHandleW(L"ovomsg11.dll");
    ASSERT_TRUE(catalogue);
    EXPECT_NE(formatMessage(281, catalogue), formatMessage(281));
    EXPECT_NE(formatMessage(281, catalogue).find(L"UpdateType"), std::wstring::npos);
    EXPECT_EQ(formatMessage(ERROR_ACCESS_DENIED, catalogue), formatMessage(ERROR_ACCESS_DENIED));
    EXPECT_EQ(formatMessage(kNoSuchCode, catalogue), formatMessage(kNoSuchCode));
}

TEST(FormatMessage, LeavesTheLastErrorAsItWas)
{
    ::SetLastError(ERROR_SHARING_VIOLATION);
    formatMessage(kNoSuchCode);
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_SHARING_VIOLATION));
}

TEST(WinError, GivesItsCodeAndATextOfBoth)
{
    const WinError error(L"GetTextMetrics", ERROR_ACCESS_DENIED);
    EXPECT_EQ(error.code(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
    EXPECT_EQ(std::wstring(error.wwhat()), L"GetTextMetrics: " + formatMessage(ERROR_ACCESS_DENIED));
}

TEST(WinError, MayHaveNoTextOfItsOwn)
{
    EXPECT_EQ(std::wstring(WinError(L"", ERROR_ACCESS_DENIED).wwhat()), formatMessage(ERROR_ACCESS_DENIED));
}

TEST(WinError, IsCaughtAsAnOvoErrorAndKeepsItsCodeInCopies)
{
    EXPECT_THROW(throw WinError(L"x", 5), OvoError);
    WinError copy(L"x", 5);
    copy = WinError(L"y", 6);
    const WinError again = copy;
    EXPECT_EQ(again.code(), 6u);
    EXPECT_TRUE(std::wstring(again.wwhat()).starts_with(L"y: "));
}
