#include <ovoui/update/core/AddressRules.h>

#include <gtest/gtest.h>

#include <set>

using namespace ovoui::update;

TEST(AddressRules, AZeroHidesTheRest)
{
    EXPECT_TRUE(isSeenWhole(L""));
    EXPECT_TRUE(isSeenWhole(L"http://example.org/"));
    using namespace std::string_view_literals;
    EXPECT_FALSE(isSeenWhole(L"http://example.org/\0.exe"sv));
    EXPECT_FALSE(isSeenWhole(L"http://example.org/\0"sv));
    EXPECT_FALSE(isSeenWhole(L"\0"sv));
}

TEST(AddressRules, ThreeSchemesMayBeOpened)
{
    const std::set<int> opened{1, 3, 4}; // ftp, http, https
    for (int scheme = -2; scheme <= 100; ++scheme)
        EXPECT_EQ(mayBeOpened(scheme), opened.contains(scheme)) << scheme;
}

TEST(AddressRules, OnlyHttpsIsSecureInAnyCase)
{
    const std::wstring scheme = L"https:";
    for (unsigned capitals = 0; capitals < 1u << scheme.size(); ++capitals) {
        std::wstring address = scheme;
        for (std::size_t i = 0; i + 1 < scheme.size(); ++i)
            if (capitals & 1u << i)
                address[i] = static_cast<wchar_t>(address[i] - L'a' + L'A');
        EXPECT_TRUE(isSecure(address)) << capitals;
        EXPECT_TRUE(isSecure(address + L"//example.org/list.csv")) << capitals;
        EXPECT_FALSE(isSecure(L" " + address)) << capitals;
        for (std::size_t length = 0; length < address.size(); ++length)
            EXPECT_FALSE(isSecure(address.substr(0, length))) << capitals << ", " << length;
    }
    EXPECT_FALSE(isSecure(L"http://example.org/https:"));
    EXPECT_FALSE(isSecure(L"httpsx://example.org/"));
}

TEST(AddressRules, TheSignatureLiesBesideTheList)
{
    EXPECT_EQ(signatureAddress(L"https://example.org/list.csv"), L"https://example.org/list.csv.sig");
}
