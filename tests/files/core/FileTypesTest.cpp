// Typed lists of file types.
#include <ovoui/files/core/FileTypes.h>

#include <gtest/gtest.h>

#include <random>

using ovoui::filterTextOf;
using ovoui::typeWith;

namespace
{

/// The texts of the list, each ended by a zero, up to the empty one.
std::vector<std::wstring> partsOf(const std::wstring& text)
{
    std::vector<std::wstring> parts;
    for (const wchar_t* at = text.c_str(); *at; at += parts.back().size() + 1)
        parts.emplace_back(at);
    return parts;
}

using Parts = std::vector<std::wstring>;

} // namespace

TEST(FileTypes, BecomePairs)
{
    EXPECT_EQ(partsOf(filterTextOf({{L"Pictures", {L"*.png", L"*.jpg"}}, {L"All", {L"*.*"}}})),
              (Parts{L"Pictures", L"*.png;*.jpg", L"All", L"*.*"}));
    EXPECT_EQ(filterTextOf({}), std::wstring(1, L'\0'));
}

TEST(FileTypes, CannotBeMalformed)
{
    EXPECT_EQ(partsOf(filterTextOf({{L"", {L"*.txt"}},
                                    {L"A|B", {}},
                                    {L"C", {L"", L"*.c"}},
                                    {std::wstring(L"D\0E", 3), {std::wstring(L"*.\0d", 4)}}})),
              (Parts{L"*.txt", L"*.txt", L"A|B", L"*.*", L"C", L"*.c", L"DE", L"*.d"}));
}

TEST(FileTypes, AreAlwaysPairs)
{
    std::mt19937 random(4711);
    const std::wstring letters(L"ab|;*\0.", 7);
    const auto text = [&] {
        std::wstring made(random() % 4, L' ');
        for (wchar_t& letter : made)
            letter = letters[random() % letters.size()];
        return made;
    };
    for (int i = 0; i < 20000; ++i) {
        std::vector<FileType> types(random() % 4);
        for (FileType& type : types) {
            type.name = text();
            type.patterns.resize(random() % 3);
            for (std::wstring& pattern : type.patterns)
                pattern = text();
        }
        ASSERT_EQ(partsOf(filterTextOf(types)).size(), 2 * types.size());
    }
}

TEST(FileTypes, AreChosenByTheExtension)
{
    const std::vector<FileType> types{
        {L"Text", {L"*.txt"}}, {L"Pictures", {L"*.png", L"*.jpg"}}, {L"All", {L"*.*"}}};
    EXPECT_EQ(typeWith(types, L".txt"), 1);
    EXPECT_EQ(typeWith(types, L".JPG"), 2);
    EXPECT_EQ(typeWith(types, L".*"), 3);
    EXPECT_EQ(typeWith(types, L"txt"), 0);
    EXPECT_EQ(typeWith(types, L".gif"), 0);
    EXPECT_EQ(typeWith(types, L""), 0);
    EXPECT_EQ(typeWith({}, L".txt"), 0);
}

TEST(FileTypes, AnExtensionLosesOnePeriod)
{
    EXPECT_EQ(ovoui::withoutPeriod(L".txt"), L"txt");
    EXPECT_EQ(ovoui::withoutPeriod(L"txt"), L"txt");
    EXPECT_EQ(ovoui::withoutPeriod(L".tar.gz"), L"tar.gz");
    EXPECT_EQ(ovoui::withoutPeriod(L"..a"), L".a");
    EXPECT_EQ(ovoui::withoutPeriod(L"."), L"");
    EXPECT_EQ(ovoui::withoutPeriod(L""), L"");
}
