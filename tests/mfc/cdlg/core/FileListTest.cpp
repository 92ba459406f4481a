// Chosen files in the buffer of an OPENFILENAME, and back.
#include <mfc/src/cdlg/core/filelist.h>

#include <gtest/gtest.h>

using namespace afxdetail;

namespace
{

std::vector<std::wstring> unpacked(const std::wstring& text, ListStyle style)
{
    std::vector<std::wstring> paths;
    const wchar_t* place = text.c_str();
    while (place)
        paths.push_back(nextPath(text.c_str(), place, style));
    return paths;
}

} // namespace

TEST(FileList, OnePathStaysAsItIs)
{
    const FileList list = packPaths({L"C:\\docs\\My letter.old.txt"});
    EXPECT_EQ(list.text, std::wstring(L"C:\\docs\\My letter.old.txt\0", 26));
    EXPECT_EQ(list.nameOffset, 8u);
    EXPECT_EQ(list.text.c_str() + list.extensionOffset, std::wstring(L"txt"));
    EXPECT_EQ(unpacked(list.text, ListStyle::OneFile),
              std::vector<std::wstring>{L"C:\\docs\\My letter.old.txt"});
}

TEST(FileList, SeveralStandBehindTheirFolder)
{
    const FileList list = packPaths({L"C:\\docs\\a.txt", L"C:\\docs\\b c.txt"});
    EXPECT_EQ(list.text, std::wstring(L"C:\\docs\0a.txt\0b c.txt\0\0", 23));
    EXPECT_EQ(list.nameOffset, 8u);
    EXPECT_EQ(list.extensionOffset, 0u);
}

TEST(FileList, WhatWasPackedComesBack)
{
    const std::vector<std::vector<std::wstring>> cases{
        {L"C:\\a"},
        {L"C:\\a", L"C:\\b"},
        {L"C:\\docs\\a", L"C:\\docs\\b", L"C:\\docs\\c"},
        {L"\\\\server\\share\\a", L"\\\\server\\share\\b"},
        {L"C:\\docs\\a", L"D:\\other\\b", L"C:\\docs\\c"}, // of a library: not of one folder
        {L"C:\\docs\\\u00fc", L"C:\\docs\\\u6587\u4ef6.txt"},
        {L"C:\\" + std::wstring(300, L'x') + L"\\a", L"C:\\" + std::wstring(300, L'x') + L"\\b"},
    };
    for (const auto& paths : cases)
        EXPECT_EQ(unpacked(packPaths(paths).text, ListStyle::Zeros), paths);
}

TEST(FileList, OnePathOfADialogForSeveralIsAListToo)
{
    FileList list = packPaths({L"C:\\docs\\a.txt"});
    list.endAsAList();
    EXPECT_EQ(unpacked(list.text + L"held before", ListStyle::Zeros),
              std::vector<std::wstring>{L"C:\\docs\\a.txt"});
    const FileList several = packPaths({L"C:\\docs\\a.txt", L"C:\\docs\\b.txt"});
    list = several;
    list.endAsAList();
    EXPECT_EQ(list.text, several.text) << "as it is";
}

TEST(FileList, OfTheOldStyleHasBlanks)
{
    struct Case
    {
        const wchar_t* text;
        std::vector<std::wstring> paths;
    };
    for (const Case& c : {
             Case{L"C:\\docs a.txt b.txt", {L"C:\\docs\\a.txt", L"C:\\docs\\b.txt"}},
             Case{L"C:\\ MYLETT~1.TXT b c", {L"C:\\MYLETT~1.TXT", L"C:\\b", L"C:\\c"}},
             Case{L"\\\\server\\share a b", {L"\\\\server\\share\\a", L"\\\\server\\share\\b"}},
             Case{L"C:\\docs  a   b  ", {L"C:\\docs\\a", L"C:\\docs\\b"}},
             Case{L"C:\\docs a D:\\other\\b", {L"C:\\docs\\a", L"D:\\other\\b"}},
             Case{L"C:\\docs\\a.txt", {L"C:\\docs\\a.txt"}},
         })
        EXPECT_EQ(unpacked(c.text, ListStyle::Blanks), c.paths) << testing::PrintToString(c.text);
}

TEST(FileList, OnePathMayHaveBlanksWhereThereAreNoOthers)
{
    EXPECT_EQ(unpacked(L"C:\\my docs\\my letter", ListStyle::OneFile),
              std::vector<std::wstring>{L"C:\\my docs\\my letter"});
}

TEST(FileList, WithoutPathsThereIsNothing)
{
    EXPECT_TRUE(packPaths({}).text.empty());
}

TEST(FileList, PartsOfAPath)
{
    struct Case
    {
        const wchar_t* path;
        const wchar_t* folder;
        const wchar_t* name;
    };
    for (const Case& c :
         {Case{L"C:\\docs\\a.txt", L"C:\\docs", L"a.txt"}, Case{L"C:\\a.txt", L"C:\\", L"a.txt"},
          Case{L"a.txt", L"", L"a.txt"}, Case{L"C:\\docs\\", L"C:\\docs", L""}, Case{L"\\a", L"\\", L"a"},
          Case{L"C:/docs/a", L"C:/docs", L"a"}, Case{L"", L"", L""}}) {
        EXPECT_EQ(splitPath(c.path).folder, c.folder);
        EXPECT_EQ(splitPath(c.path).name, c.name);
    }
}

TEST(FileList, TheExtensionIsBehindTheLastPeriodOfTheName)
{
    const auto extension = [](std::wstring_view path) { return path.substr(extensionOffset(path)); };
    EXPECT_EQ(extension(L"a.txt"), L"txt");
    EXPECT_EQ(extension(L"a.tar.gz"), L"gz");
    EXPECT_EQ(extension(L"a"), L"");
    EXPECT_EQ(extension(L"a."), L"");
    EXPECT_EQ(extension(L"C:\\dir.old\\a"), L"");
    EXPECT_EQ(extension(L""), L"");
}
