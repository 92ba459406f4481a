// The folder to begin in.
#include <ovoui/files/core/NearestFolder.h>

#include <gtest/gtest.h>

#include <set>

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
