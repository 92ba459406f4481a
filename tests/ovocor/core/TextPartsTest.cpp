#include <ovocor/Text.h>

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{

struct Path
{
    const wchar_t* path;
    const wchar_t* directory;
};

} // namespace

TEST(PackTo, CopiesATextThatFits)
{
    wchar_t buffer[] = L"xxxxxxxx";
    EXPECT_EQ(packTo(buffer, 8, L"oak"), 3u);
    EXPECT_STREQ(buffer, L"oak");
    EXPECT_EQ(buffer[4], L'x') << "nothing behind the terminator is touched";
}

TEST(PackTo, CutsATextThatDoesNotFit)
{
    wchar_t buffer[4];
    EXPECT_EQ(packTo(buffer, L"oak"), 3u);
    EXPECT_STREQ(buffer, L"oak");
    EXPECT_EQ(packTo(buffer, L"oaks"), 3u);
    EXPECT_STREQ(buffer, L"oak");
}

TEST(PackTo, LeavesNoHalfOfASurrogatePair)
{
    wchar_t buffer[4];
    const wchar_t tree[] = {L'o', L'a', wchar_t(0xD83C), wchar_t(0xDF33), 0};
    EXPECT_EQ(packTo(buffer, tree), 2u);
    EXPECT_STREQ(buffer, L"oa");
    wchar_t whole[5];
    EXPECT_EQ(packTo(whole, tree), 4u);
    EXPECT_STREQ(whole, tree);
}

TEST(PackTo, KeepsALoneSurrogateThatWasNotCut)
{
    wchar_t buffer[4];
    const wchar_t text[] = {L'a', wchar_t(0xD83C), 0};
    EXPECT_EQ(packTo(buffer, text), 2u);
}

TEST(PackTo, LeavesABufferWithoutRoomAlone)
{
    EXPECT_EQ(packTo(nullptr, 0, L"oak"), 0u);
    wchar_t buffer[1] = {L'x'};
    EXPECT_EQ(packTo(buffer, L"oak"), 0u);
    EXPECT_EQ(buffer[0], L'\0');
}

TEST(GetDirectory, GivesTheDirectoryPart)
{
    for (const Path& row : {
             Path{L"C:\\trees\\oak.txt", L"C:\\trees"},
             {L"C:\\trees\\oak\\", L"C:\\trees\\oak"},
             {L"C:\\trees", L"C:\\"},
             {L"C:\\trees\\\\oak", L"C:\\trees"},
             {L"C:/trees/oak", L"C:/trees"},
             {L"C:oak", L"C:"},
             {L"trees\\oak", L"trees"},
             {L"\\trees", L"\\"},
             {L"\\trees\\oak", L"\\trees"},
             {L"\\\\server\\share\\oak", L"\\\\server\\share"},
             {L"\\\\server\\share\\", L"\\\\server\\share"},
             {L"\\\\?\\C:\\oak", L"\\\\?\\C:\\"},
             {L"\\\\?\\UNC\\server\\share\\oak", L"\\\\?\\UNC\\server\\share"},
             {L"\\\\.\\pipe\\oak", L"\\\\.\\pipe"},
             {L"\\\\?\\\\oak", L"\\\\?\\"},
         })
        EXPECT_EQ(getDirectory(row.path), row.directory) << testing::PrintToString(std::wstring(row.path));
}

TEST(GetDirectory, DrivesAreTheLettersFromAToZ)
{
    for (const wchar_t letter : {L'A', L'Z', L'a', L'z'})
        EXPECT_EQ(getDirectory(std::wstring{letter} + L":oak"), (std::wstring{letter, L':'}));
    for (const wchar_t other : {L'@', L'[', L'`', L'{', L'1'})
        EXPECT_EQ(getDirectory(std::wstring{other} + L":oak"), std::wstring{other} + L":oak");
}

TEST(GetDirectory, GivesBackAPathWithoutParent)
{
    for (const wchar_t* path : {L"", L"oak", L"C:", L"C:\\", L"\\", L"/", L"\\\\server", L"\\\\server\\share",
                                L"\\\\?\\C:\\", L"\\\\?\\UNC\\server\\share", L"\\\\.\\pipe", L"..", L"\\\\"})
        EXPECT_EQ(getDirectory(path), path) << testing::PrintToString(std::wstring(path));
}

TEST(GetDirectory, EndsForEveryPathAfterAFewSteps)
{
    constexpr std::wstring_view kAlphabet = L"\\\\//C:a?.uNC";
    std::mt19937 random(3);
    for (int round = 0; round < 20'000; ++round) {
        std::wstring path(random() % 14, L' ');
        for (wchar_t& c : path)
            c = kAlphabet[random() % kAlphabet.size()];
        while (true) {
            const std::wstring directory = getDirectory(path);
            ASSERT_TRUE(path.starts_with(directory));
            ASSERT_TRUE(path.empty() || !directory.empty());
            if (directory == path)
                break;
            path = directory;
        }
    }
}
