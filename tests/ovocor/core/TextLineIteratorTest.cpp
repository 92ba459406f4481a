#include <ovocor/TextLineIterator.h>

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace
{

std::vector<std::wstring> linesOf(std::wstring_view text)
{
    std::vector<std::wstring> lines;
    for (TextLineIterator line(text); line; ++line)
        lines.emplace_back(*line);
    return lines;
}

using Lines = std::vector<std::wstring>;

} // namespace

TEST(TextLineIterator, SplitsAtEveryKindOfLineEnd)
{
    struct Row
    {
        const wchar_t* text;
        Lines lines;
    };
    const Row rows[] = {
        {L"", {}},
        {L"a", {L"a"}},
        {L"a\nb", {L"a", L"b"}},
        {L"a\r\nb", {L"a", L"b"}},
        {L"a\rb", {L"a", L"b"}},
        {L"a\u2028b\u2029c", {L"a", L"b", L"c"}},
        {L"a\n", {L"a"}},
        {L"a\r\n", {L"a"}},
        {L"\n", {L""}},
        {L"\r\n", {L""}},
        {L"\n\r", {L"", L""}},
        {L"\r\r\n\n", {L"", L"", L""}},
        {L"a\n\nb", {L"a", L"", L"b"}},
        {L"\na", {L"", L"a"}},
        {L"a\r\u2028\r\nb", {L"a", L"", L"", L"b"}},
        {L"a\vb\fc\u0085d\te", {L"a\vb\fc\u0085d\te"}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(linesOf(row.text), row.lines) << testing::PrintToString(std::wstring(row.text));
}

TEST(TextLineIterator, KeepsZeroCharacters)
{
    EXPECT_EQ(linesOf(std::wstring_view(L"a\0b\nc", 5)), (Lines{std::wstring(L"a\0b", 3), L"c"}));
}

TEST(TextLineIterator, HasNoLinesWithoutText)
{
    EXPECT_FALSE(TextLineIterator());
    EXPECT_FALSE(TextLineIterator(static_cast<const wchar_t*>(nullptr)));
}

TEST(TextLineIterator, StaysAtTheEnd)
{
    TextLineIterator line(L"a");
    ++line;
    EXPECT_FALSE(line);
    ++line;
    EXPECT_FALSE(line);
    EXPECT_TRUE(line->empty());
}

TEST(TextLineIterator, WorksInARangeFor)
{
    const std::wstring text = L"oak\r\nelm";
    Lines lines;
    for (const std::wstring_view line : TextLineIterator(text))
        lines.emplace_back(line);
    EXPECT_EQ(lines, (Lines{L"oak", L"elm"}));
    EXPECT_TRUE(std::input_iterator<TextLineIterator>);
}

TEST(TextLineIterator, GivesLinesOfTheTextItself)
{
    const std::wstring text = L"oak\nelm";
    TextLineIterator line(text);
    ++line;
    EXPECT_EQ(line->data(), text.data() + 4);
    EXPECT_EQ(line->size(), 3u);
}

TEST(TextLineIterator, DoesNotBorrowATemporary)
{
    EXPECT_FALSE((std::is_constructible_v<TextLineIterator, std::wstring>));
    EXPECT_TRUE((std::is_constructible_v<TextLineIterator, const std::wstring&>));
}

// Whatever the text: no line holds a line end, and lines and line ends together are the text.
TEST(TextLineIterator, LosesNothing)
{
    constexpr std::wstring_view kAlphabet = L"ab\r\n\u2028\u2029";
    std::mt19937 random(1);
    for (int round = 0; round < 5000; ++round) {
        std::wstring text(random() % 12, L' ');
        for (wchar_t& c : text)
            c = kAlphabet[random() % kAlphabet.size()];

        std::size_t at = 0;
        for (const std::wstring_view line : TextLineIterator(text)) {
            ASSERT_EQ(line.find_first_of(L"\r\n\u2028\u2029"), line.npos);
            ASSERT_EQ(text.substr(at, line.size()), line);
            at += line.size();
            if (at < text.size())
                at += text.compare(at, 2, L"\r\n") == 0 ? 2 : 1;
        }
        ASSERT_EQ(at, text.size());
    }
}
