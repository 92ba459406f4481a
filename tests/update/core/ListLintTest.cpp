#include <ovoui/update/core/ListLint.h>

#include <gtest/gtest.h>

#include <initializer_list>

using namespace ovoui::update;

namespace
{

constexpr wchar_t kGood[] = L"#update,Board,Pro,Windows,Intel64,11.*,12.1.0.0,https://example.org/12,News";

std::vector<Finding> findings(std::initializer_list<const wchar_t*> rows)
{
    ListLint lint;
    lint.feedLine(kUpdateColumns);
    for (const wchar_t* row : rows)
        lint.feedLine(row);
    return lint.finish();
}

} // namespace

TEST(ListLint, AGoodListHasNoFindings)
{
    EXPECT_TRUE(findings({kGood}).empty());
    EXPECT_TRUE(findings({L"#issue,-,,,,,2024.7,-", kGood}).empty());
    EXPECT_TRUE(findings({L"#issue,-,,,,,7,-", L"", kGood,
                          L"#update,Board,,*,*,,12,ftp://example.org/12,\"With, a comma\""})
                    .empty());
}

TEST(ListLint, EveryMistakeIsFoundWhereItIs)
{
    using Weight = Finding::Weight;
    const struct
    {
        const wchar_t* row;
        Weight weight;
        const wchar_t* says;
    } rows[] = {{L"#update,Board,,,,,13", Weight::Error, L"required field is missing"},
                {L"<html>", Weight::Error, L"required field is missing"},
                {L"#Update,Board,,,,,13,http://x/,", Weight::Error, L"is not #update"},
                {L" update,Board,,,,,13,http://x/,", Weight::Error, L"is not #update"},
                {L"#Issue,-,,,,,7,-", Weight::Error, L"is not #issue"},
                {L"issue ,-,,,,,7,-", Weight::Error, L"is not #issue"},
                {L"#issue,-,,,,,v7,-", Weight::Error, L"\"v7\" is no number of a list"},
                {L"#issue,-,,,,,,-", Weight::Error, L"is no number of a list"},
                {L"#issue,-,,,,,0,-", Weight::Error, L"is no number of a list"},
                {L"#issue,-,,,,,*,-", Weight::Error, L"is no number of a list"},
                {L"#news,Board,,,,,13,http://x/,", Weight::Warning, L"are skipped"},
                {L"#update,,,,,,13,http://x/,", Weight::Error, L"product is empty"},
                {L"#update,Board ,,,,,13,http://x/,", Weight::Warning, L"blanks at its ends"},
                {L"#update,Board,,Linux,,,13,http://x/,", Weight::Warning, L"is not \"Windows\""},
                {L"#update,Board,,,x64,,13,http://x/,", Weight::Warning, L"is not \"Intel64\""},
                {L"#update,Board,,,,11.x,13,http://x/,", Weight::Error, L"not a pattern of versions"},
                {L"#update,Board,,,,,1.2.3.4.5,http://x/,", Weight::Error, L"is not a version"},
                {L"#update,Board,,,,,,http://x/,", Weight::Warning, L"version is empty"},
                {L"#update,Board,,,,,13.*,http://x/,", Weight::Warning, L"leaves numbers out"},
                {L"#update,Board,,,,,13,file:///c:/x.exe,", Weight::Error, L"cannot be opened"},
                {L"#update,Board,,,,,13,http://,", Weight::Error, L"cannot be opened"},
                {L"#update,Board,,,,,13,http://x/,One, two", Weight::Warning, L"more than nine"},
                {L"#update,Board,,,,,13,http://x/,a\"b", Weight::Error, L"quotation mark"},
                {L"#update,Board,,,,,13,http://x/,\"open", Weight::Error, L"closing quotation mark"}};
    for (const auto& [row, weight, says] : rows) {
        const std::vector<Finding> found = findings({kGood, row});
        ASSERT_EQ(found.size(), 1u) << testing::PrintToString(row);
        EXPECT_EQ(found[0].line, 3u) << testing::PrintToString(row);
        EXPECT_EQ(found[0].weight, weight) << testing::PrintToString(row);
        EXPECT_NE(found[0].text.find(says), std::wstring::npos)
            << testing::PrintToString(row) << testing::PrintToString(found[0].text);
    }
}

TEST(ListLint, ARowThatALaterOneHidesIsNamed)
{
    const std::vector<Finding> found =
        findings({L"#update,Board,*,,,,13,http://x/13,", kGood, L"#update,Board,,,*,,12,http://x/12,"});
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].line, 2u);
    EXPECT_NE(found[0].text.find(L"Line 4"), std::wstring::npos);
}

TEST(ListLint, AListWithoutUpdatesOrNamesIsStrange)
{
    EXPECT_EQ(findings({}).size(), 1u);
    ListLint lint;
    lint.feedLine(kGood);
    const std::vector<Finding> found = lint.finish();
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].line, 1u);
    EXPECT_NE(found[0].text.find(L"names of the columns"), std::wstring::npos);
}
