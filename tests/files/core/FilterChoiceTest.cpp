// Which entry of a filter stands for a default extension.
#include <ovoui/files/core/FilterChoice.h>

#include <gtest/gtest.h>

#include <random>
#include <string>

using ovoui::FilterRules;

namespace
{

bool caseCounts(wchar_t, wchar_t)
{
    return false;
}

wchar_t lower(wchar_t c)
{
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

bool sameButForCase(wchar_t a, wchar_t b)
{
    return lower(a) == lower(b);
}

constexpr FilterRules kOneFile{true, &caseCounts};
constexpr FilterRules kFiles{false, &sameButForCase};

/// Character by character, with nothing remembered but the bars.
int plainEntryOf(const std::wstring& filter, const std::wstring& extension, const FilterRules& rules)
{
    if (extension.empty())
        return 0;
    int bars = 0;
    for (std::size_t p = 0; p < filter.size(); ++p) {
        if (filter[p] == L'|') {
            ++bars;
            continue;
        }
        if (bars % 2 == 0 || p == 0 || filter[p - 1] != L'*' || p + extension.size() > filter.size())
            continue;
        const std::size_t end = p + extension.size();
        const bool ends =
            end == filter.size() ? rules.patternMayEndTheText : filter[end] == L'|' || filter[end] == L';';
        bool same = true;
        for (std::size_t i = 0; i < extension.size(); ++i)
            same = same && (filter[p + i] == extension[i] || rules.same(filter[p + i], extension[i]));
        if (ends && same)
            return bars / 2 + 1;
    }
    return 0;
}

struct Case
{
    const wchar_t* filter;
    const wchar_t* extension;
    int oneFile;
    int files;
};

} // namespace

TEST(FilterChoice, FollowsTheTable)
{
    for (const Case& c : {
             Case{L"Text|*.txt|Pictures|*.png;*.jpg|All|*.*|", L".txt", 1, 1},
             Case{L"Text|*.txt|Pictures|*.png;*.jpg|All|*.*|", L".png", 2, 2},
             Case{L"Text|*.txt|Pictures|*.png;*.jpg|All|*.*|", L".jpg", 2, 2},
             Case{L"Text|*.txt|Pictures|*.png;*.jpg|All|*.*|", L".*", 3, 3},
             Case{L"Text|*.txt|Pictures|*.png;*.jpg|All|*.*|", L".gif", 0, 0},
             // the period belongs to the extension
             Case{L"Text|*.txt|", L"txt", 0, 0},
             Case{L"Text|*txt|", L"txt", 1, 1},
             // case
             Case{L"Text|*.txt|", L".TXT", 0, 1},
             Case{L"Text|*.TXT|", L".txt", 0, 1},
             Case{L"A|*.txt|B|*.TXT|", L".TXT", 2, 1},
             // the end of the text
             Case{L"Text|*.txt", L".txt", 1, 0},
             Case{L"Text|*.doc;*.txt", L".txt", 1, 0},
             Case{L"Text|*.txt;", L".txt", 1, 1},
             Case{L"A|*.txt|B|*.doc", L".doc", 2, 0},
             // whole extensions only
             Case{L"Text|*.txts|", L".txt", 0, 0},
             Case{L"Text|*.tx|", L".txt", 0, 0},
             Case{L"Text|*.tx", L".txt", 0, 0},
             Case{L"Text|*.txt ;*.doc|", L".txt", 0, 0},
             Case{L"Archives|*.tar.gz|", L".gz", 0, 0},
             Case{L"Archives|*.tar.gz|", L".tar.gz", 1, 1},
             // only right behind an asterisk
             Case{L"Text|a.txt|", L".txt", 0, 0},
             Case{L"Text|**.txt|", L".txt", 1, 1},
             // descriptions do not count
             Case{L"*.txt|*.doc|", L".txt", 0, 0},
             Case{L"*.txt|*.doc|*.doc|*.txt|", L".txt", 2, 2},
             Case{L"All (*.txt;*.doc)|*.doc|", L".txt", 0, 0},
             // no extension, no filter, odd filters
             Case{L"Text|*.txt|", L"", 0, 0},
             Case{L"All|*|", L"", 0, 0},
             Case{L"", L".txt", 0, 0},
             Case{L"|", L".txt", 0, 0},
             Case{L"|*.txt|", L".txt", 1, 1},
             Case{L"||*.txt|*.txt|", L".txt", 2, 2},
             Case{L"Text|*", L".txt", 0, 0},
             Case{L"Text|*|", L"|", 0, 0},
             Case{L"Text|*.a|B|", L".a|B", 1, 1},
             Case{L"\u00dc|*.\u00fc|", L".\u00fc", 1, 1},
         }) {
        EXPECT_EQ(ovoui::filterEntryOf(c.filter, c.extension, kOneFile), c.oneFile)
            << testing::PrintToString(c.filter);
        EXPECT_EQ(ovoui::filterEntryOf(c.filter, c.extension, kFiles), c.files)
            << testing::PrintToString(c.filter);
    }
}

TEST(FilterChoice, AgreesWithThePlainWalkForRandomFilters)
{
    std::mt19937 random(4711);
    const std::wstring letters = L"||;;**..aAbB";
    const auto text = [&](std::size_t length) {
        std::wstring made;
        while (made.size() < length)
            made += letters[random() % letters.size()];
        return made;
    };
    int found = 0;
    for (int i = 0; i < 200000; ++i) {
        const std::wstring filter = text(random() % 24);
        const std::wstring extension = text(random() % 4);
        for (const FilterRules& rules : {kOneFile, kFiles}) {
            const int expected = plainEntryOf(filter, extension, rules);
            ASSERT_EQ(ovoui::filterEntryOf(filter, extension, rules), expected)
                << testing::PrintToString(filter) << testing::PrintToString(extension);
            found += expected > 0;
        }
    }
    EXPECT_GT(found, 1000); // the random filters do say something
}
