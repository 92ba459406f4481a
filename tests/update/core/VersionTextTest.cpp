#include <ovoui/update/core/VersionText.h>

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace ovoui::update;

TEST(VersionText, UpToFourNumbersAreRead)
{
    const struct
    {
        const wchar_t* text;
        Version version;
    } rows[] = {{L"11.2.0.1234", {11, 2, 0, 1234}},
                {L"11.2", {11, 2, -1, -1}},
                {L"12", {12, -1, -1, -1}},
                {L"", {0, -1, -1, -1}},
                {L"11.", {11, 0, -1, -1}},
                {L"..5", {0, 0, 5, -1}},
                {L"...", {0, 0, 0, 0}},
                {L"*", {-1, -1, -1, -1}},
                {L"11.*", {11, -1, -1, -1}},
                {L"*.*.3", {-1, -1, 3, -1}},
                {L"007.08", {7, 8, -1, -1}},
                {L"2147483647", {2147483647, -1, -1, -1}},
                {L"00000000000000000000002147483647", {2147483647, -1, -1, -1}}};
    for (const auto& [text, version] : rows)
        EXPECT_EQ(parseVersion(text), version) << testing::PrintToString(text);
}

TEST(VersionText, AnythingElseIsNoVersion)
{
    for (const wchar_t* text :
         {L"1.2.3.4.5", L"1.2.3.4.", L"....", L"-1", L"+1", L" 1", L"1 ", L"1a", L"a", L"0x1", L"1,2", L"**",
          L"1*", L"2147483648", L"99999999999999999999999999", L"\u0661", L"1..2.3.x"})
        EXPECT_FALSE(parseVersion(text)) << testing::PrintToString(text);
}

TEST(VersionText, APatternMatchesWhatHasItsNumbers)
{
    EXPECT_TRUE(matches(*parseVersion(L"11.*"), {11, 5, 3, 7}));
    EXPECT_TRUE(matches(*parseVersion(L"11"), {11, 0, 0, 0}));
    EXPECT_FALSE(matches(*parseVersion(L"11.*"), {12, 5, 3, 7}));
    EXPECT_TRUE(matches(*parseVersion(L"*.5"), {1, 5, 3, 7}));
    EXPECT_FALSE(matches(*parseVersion(L"*.5"), {1, 6, 3, 7}));
    EXPECT_TRUE(matches(*parseVersion(L"1.2.3.4"), {1, 2, 3, 4}));
    EXPECT_FALSE(matches(*parseVersion(L"1.2.3.4"), {1, 2, 3, 5}));
    EXPECT_FALSE(matches(*parseVersion(L"11."), {11, 1, 0, 0})) << "an empty number is 0";
}

TEST(VersionText, TheFirstNumberThatDiffersDecides)
{
    EXPECT_TRUE(isNewer(*parseVersion(L"12"), {11, 5, 0, 0}));
    EXPECT_FALSE(isNewer(*parseVersion(L"11.5"), {11, 5, 3, 0}));
    EXPECT_TRUE(isNewer(*parseVersion(L"11.6"), {11, 5, 9, 9}));
    EXPECT_FALSE(isNewer(*parseVersion(L"11.4.9.9"), {11, 5, 0, 0}));
    EXPECT_FALSE(isNewer(*parseVersion(L"10.9"), {11, 0, 0, 0}));
    EXPECT_TRUE(isNewer(*parseVersion(L"*.6"), {11, 5, 0, 0})) << "what it does not give is skipped";
    EXPECT_FALSE(isNewer(*parseVersion(L"*"), {0, 0, 0, 0}));
    EXPECT_TRUE(isNewer(*parseVersion(L"1.2.3.5"), {1, 2, 3, 4}));
    EXPECT_FALSE(isNewer(*parseVersion(L"1.2.3.4"), {1, 2, 3, 4}));
}

namespace
{

/// Piece by piece, by way of lists.
std::optional<Version> plainParse(const std::wstring& text)
{
    std::vector<std::wstring> pieces{L""};
    for (const wchar_t c : text)
        if (c == L'.')
            pieces.emplace_back();
        else
            pieces.back() += c;
    if (pieces.size() > 4)
        return std::nullopt;
    Version version{-1, -1, -1, -1};
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (pieces[i] == L"*")
            continue;
        if (pieces[i].find_first_not_of(L"0123456789") != std::wstring::npos)
            return std::nullopt;
        const std::wstring digits =
            pieces[i].substr(std::min(pieces[i].find_first_not_of(L'0'), pieces[i].size()));
        if (digits.size() > 10 || (digits.size() == 10 && digits > L"2147483647"))
            return std::nullopt;
        version[i] = digits.empty() ? 0 : std::stoi(digits);
    }
    return version;
}

} // namespace

TEST(VersionText, RandomTextsAreReadAsByAPlainReader)
{
    std::mt19937 random(11);
    const std::wstring signs = L"0123456789..**..0099 -x";
    int valid = 0;
    for (int round = 0; round < 200000; ++round) {
        std::wstring text;
        for (unsigned length = random() % 14; length > 0; --length)
            text += signs[random() % signs.size()];
        const auto expected = plainParse(text);
        valid += expected ? 1 : 0;
        ASSERT_EQ(parseVersion(text), expected) << testing::PrintToString(text);
    }
    EXPECT_GT(valid, 10000);
}

TEST(VersionText, ComparingIsAsComparingFilledUpVersions)
{
    for (int code = 0; code < 6561; ++code) { // every digit from -1 to 1 in both, all four places
        Version offered{};
        Version installed{};
        int rest = code;
        for (std::size_t i = 0; i < 4; ++i) {
            offered[i] = rest % 3 - 1;
            rest /= 3;
            installed[i] = rest % 3;
            rest /= 3;
        }
        Version filled = offered;
        for (std::size_t i = 0; i < 4; ++i)
            if (filled[i] == -1)
                filled[i] = installed[i];
        EXPECT_EQ(isNewer(offered, installed), filled > installed);
        EXPECT_EQ(matches(offered, installed), filled == installed);
    }
}

TEST(VersionText, ListsAreOlderByTheirNumbers)
{
    // What is no number counts as none, and none is before all others; what a number leaves out is 0.
    const std::pair<std::wstring, int> issues[] = {{L"", 0},   {L"x", 0},   {L"0", 0},   {L"1", 1},
                                                   {L"1.", 1}, {L"1.0", 1}, {L"1.1", 2}, {L"12", 3}};
    for (const auto& [issue, rank] : issues)
        for (const auto& [seen, seenRank] : issues)
            EXPECT_EQ(wasIssuedBefore(issue, seen), rank < seenRank)
                << testing::PrintToString(issue) << " and " << testing::PrintToString(seen);
    EXPECT_FALSE(wasIssuedBefore(L"*", L""));
    EXPECT_TRUE(wasIssuedBefore(L"*", L"1"));
}
