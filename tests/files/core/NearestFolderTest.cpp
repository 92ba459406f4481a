// The folder to begin in.
#include <ovoui/files/core/NearestFolder.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace
{

const std::set<std::wstring> kFolders{L"C:\\", L"C:\\a", L"C:\\a\\b", L"\\\\server\\share", L"here"};

bool exists(const std::wstring& path)
{
    return kFolders.count(path) > 0;
}

struct Case
{
    const wchar_t* path;
    const wchar_t* climbed;
    const wchar_t* nearest;
};

/// Another seed can be given in the environment, to repeat a failure.
unsigned firstSeed()
{
    const char* const given = std::getenv("OVO_SEED");
    return given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : std::random_device()();
}

/// A path put together from its parts, so that all of its ancestors are known without taking it apart.
struct RandomPath
{
    std::wstring text; ///< with separators at its end, perhaps
    std::vector<std::wstring>
        ancestors; ///< from the root, or from the first name where there is none, to itself
};

class RandomPaths
{
public:
    explicit RandomPaths(unsigned seed)
        : m_random(seed)
    {
    }

    bool chance(unsigned in) { return m_random() % in == 0; }

    RandomPath next()
    {
        RandomPath path;
        path.text = one({L"C:\\", L"q:/", L"\\", L"", L"C:", L"\\\\server\\share", L"\\\\?\\C:\\",
                         L"\\\\?\\UNC\\server\\share"});
        if (!path.text.empty())
            path.ancestors.push_back(path.text);
        const bool share = path.text.ends_with(L"share");
        for (unsigned names = m_random() % 6; names > 0; --names) {
            if (!path.ancestors.empty() && (share || path.ancestors.size() > 1 || isBare(path)))
                path.text += separators();
            path.text += one({L"a", L"b.txt", L"with blank", L"\u00fc\u6587", L"..", L".", L"a;b"});
            path.ancestors.push_back(path.text);
        }
        if (!path.ancestors.empty() && path.ancestors.size() > 1 && chance(4))
            path.text += separators();
        return path;
    }

private:
    /// Whether the path begins with a name instead of a root.
    static bool isBare(const RandomPath& path)
    {
        const std::wstring& first = path.ancestors.front();
        return first.find_first_of(L"\\/:") == std::wstring::npos;
    }

    std::wstring separators() { return one({L"\\", L"\\", L"\\", L"/", L"\\\\", L"\\/"}); }
    std::wstring one(std::initializer_list<const wchar_t*> texts)
    {
        return texts.begin()[m_random() % texts.size()];
    }

    std::mt19937 m_random;
};

} // namespace

TEST(NearestFolder, FollowsTheTable)
{
    for (const Case& c : {
             Case{L"C:\\a\\b", L"C:\\a\\b", L"C:\\a\\b"},
             Case{L"C:\\a\\gone", L"C:\\a", L"C:\\a"},
             Case{L"C:\\a\\gone\\deeper\\still", L"C:\\a", L"C:\\a"},
             Case{L"C:\\a\\b\\file.txt", L"C:\\a\\b", L"C:\\a\\b"},
             Case{L"C:\\a\\b\\", L"C:\\a\\b", L"C:\\a\\b"},
             Case{L"C:\\a\\gone\\", L"C:\\a", L"C:\\a"},
             Case{L"C:/a/b/gone", L"C:/", L""}, // this table knows only the other separator
             Case{L"C:\\gone", L"C:\\", L"C:\\"},
             Case{L"Q:\\gone\\too", L"Q:\\", L""},
             Case{L"\\\\server\\share\\gone", L"\\\\server\\share", L"\\\\server\\share"},
             Case{L"here\\gone", L"here", L"here"},
             Case{L"gone\\too", L"gone", L""},
             Case{L"gone", L"gone", L""},
             Case{L"", L"", L""},
         }) {
        EXPECT_EQ(ovoui::climbToFolder(c.path, &exists), c.climbed) << testing::PrintToString(c.path);
        EXPECT_EQ(ovoui::nearestFolder(c.path, &exists), c.nearest) << testing::PrintToString(c.path);
    }
}

TEST(NearestFolder, EndsForAnyPath)
{
    const auto never = [](const std::wstring&) { return false; };
    for (const wchar_t* path : {L"\\\\?\\C:\\a\\b", L"\\\\?\\UNC\\server\\share\\a", L"\\\\\\\\", L"C:",
                                L"..\\..\\a", L"a|b*?", L"////a////b"})
        EXPECT_EQ(ovoui::nearestFolder(path, never), L"") << testing::PrintToString(path);
    EXPECT_EQ(ovoui::nearestFolder(std::wstring(20000, L'x') + L"\\a", never), L"");
}

TEST(NearestFolder, AgreesWithThePlainListOfAncestorsForRandomPaths)
{
    const unsigned seed = firstSeed();
    std::cout << "seed " << seed << " (OVO_SEED repeats it)\n";
    RandomPaths paths(seed);
    int found = 0;
    int none = 0;
    for (int i = 0; i < 100000; ++i) {
        const RandomPath path = paths.next();
        std::set<std::wstring> folders{L"C:\\elsewhere"};
        std::wstring nearest;
        for (const std::wstring& ancestor : path.ancestors)
            if (paths.chance(4)) {
                folders.insert(ancestor);
                nearest = ancestor;
            }
        const bool any = !nearest.empty();
        const std::wstring last = path.ancestors.empty() ? L"" : path.ancestors.front();
        const auto isFolder = [&](const std::wstring& tried) { return folders.count(tried) > 0; };
        ASSERT_EQ(ovoui::nearestFolder(path.text, isFolder), nearest)
            << "seed " << seed << ", " << testing::PrintToString(path.text);
        ASSERT_EQ(ovoui::climbToFolder(path.text, isFolder), any ? nearest : last)
            << "seed " << seed << ", " << testing::PrintToString(path.text);
        (any ? found : none) += 1;
    }
    EXPECT_GT(found, 1000);
    EXPECT_GT(none, 1000);
}

TEST(NearestFolder, OfSeveralTheFirstThatHasOne)
{
    const std::wstring texts[] = {L"", L"Q:\\gone", L"C:\\a\\gone", L"here"};
    for (const std::wstring& first : texts)
        for (const std::wstring& second : texts) {
            std::vector<std::wstring> asked;
            const auto isFolder = [&](const std::wstring& path) {
                asked.push_back(path);
                return exists(path);
            };
            const std::wstring own = ovoui::nearestFolder(first, &exists);
            EXPECT_EQ(ovoui::nearestFolder(std::vector{first, second}, isFolder),
                      own.empty() ? ovoui::nearestFolder(second, &exists) : own)
                << testing::PrintToString(first) << " and " << testing::PrintToString(second);
            if (!own.empty() && second != first) {
                EXPECT_EQ(std::ranges::count(asked, second), 0) << "a disk may take long to answer";
            }
        }
    EXPECT_EQ(ovoui::nearestFolder(std::vector<std::wstring>{}, &exists), L"");
}
