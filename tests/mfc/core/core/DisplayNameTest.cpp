// How paths are shortened for a menu.
#include <mfc/src/app/core/displayname.h>

#include <gtest/gtest.h>

using namespace afxdetail;

TEST(DisplayName, LeavesFoldersOutUntilThePathFits)
{
    struct Case
    {
        const wchar_t* path;
        std::size_t room;
        const wchar_t* shown;
    };
    const Case cases[] = {
        {L"C:\\texts\\mother.txt", 30, L"C:\\texts\\mother.txt"},
        {L"C:\\texts\\mother.txt", 19, L"C:\\texts\\mother.txt"},
        {L"C:\\texts\\mother.txt", 18, L"C:\\...\\mother.txt"},
        {L"C:\\texts\\mother.txt", 16, L"mother.txt"},
        {L"C:\\texts\\of the year\\letters\\mother.txt", 39, L"C:\\texts\\of the year\\letters\\mother.txt"},
        {L"C:\\texts\\of the year\\letters\\mother.txt", 38, L"C:\\...\\of the year\\letters\\mother.txt"},
        {L"C:\\texts\\of the year\\letters\\mother.txt", 30, L"C:\\...\\letters\\mother.txt"},
        {L"C:\\texts\\of the year\\letters\\mother.txt", 25, L"C:\\...\\letters\\mother.txt"},
        {L"C:\\texts\\of the year\\letters\\mother.txt", 24, L"C:\\...\\mother.txt"},
        {L"C:\\texts\\of the year\\letters\\mother.txt", 17, L"C:\\...\\mother.txt"},
        {L"C:\\texts\\of the year\\letters\\mother.txt", 16, L"mother.txt"},
        {L"C:\\texts\\of the year\\letters\\mother.txt", 9, L"mother"},
        {L"\\\\server\\share\\texts\\letters\\mother.txt", 33, L"\\\\server\\share\\...\\mother.txt"},
        {L"\\\\server\\share\\texts\\letters\\mother.txt", 20, L"mother.txt"},
        {L"\\\\server", 3, L"server"},
        {L"relative\\folder\\name.txt", 12, L"name.txt"},
        {L".settings", 3, L".settings"},
        {L"", 0, L""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(abbreviatedPath(c.path, c.room, true), c.shown) << c.room;
}

TEST(DisplayName, ANameThatDoesNotFitIsGivenOnDemandOnly)
{
    EXPECT_EQ(abbreviatedPath(L"C:\\texts\\grandmother.txt", 5, true), L"grandmother");
    EXPECT_EQ(abbreviatedPath(L"C:\\texts\\grandmother.txt", 5, false), L"");
    EXPECT_EQ(abbreviatedPath(L"C:\\texts\\grandmother.txt", 11, false), L"grandmother");
}

TEST(DisplayName, NeverExceedsItsRoomUnlessTheNameAloneDoes)
{
    const std::wstring path = L"D:\\one\\two two\\three three three\\four.five.six";
    for (std::size_t room = 0; room <= path.size(); ++room) {
        EXPECT_LE(abbreviatedPath(path, room, false).size(), room);
        const std::wstring shown = abbreviatedPath(path, room, true);
        EXPECT_TRUE(shown.size() <= room || shown == L"four.five") << room;
    }
}

TEST(DisplayName, AFolderHoldsItsFilesButNotThoseBelow)
{
    EXPECT_TRUE(liesIn(L"C:\\Texts\\a.txt", L"c:\\texts\\"));
    EXPECT_FALSE(liesIn(L"C:\\texts\\below\\a.txt", L"C:\\texts\\"));
    EXPECT_FALSE(liesIn(L"C:\\a.txt", L"C:\\texts\\"));
    EXPECT_FALSE(liesIn(L"C:\\pages\\a.txt", L"C:\\texts\\"));
    EXPECT_TRUE(liesIn(L"C:\\a.txt", L"C:\\"));
    EXPECT_FALSE(liesIn(L"a.txt", L"C:\\texts\\"));
}

TEST(DisplayName, TheNumberIsTheKeyUpToTen)
{
    EXPECT_EQ(numberedItem(1, L"a.txt"), L"&1 a.txt");
    EXPECT_EQ(numberedItem(9, L"a.txt"), L"&9 a.txt");
    EXPECT_EQ(numberedItem(10, L"a.txt"), L"1&0 a.txt");
    EXPECT_EQ(numberedItem(11, L"a.txt"), L"11 a.txt");
    EXPECT_EQ(numberedItem(2, L"salt & pepper.txt"), L"&2 salt && pepper.txt");
}
