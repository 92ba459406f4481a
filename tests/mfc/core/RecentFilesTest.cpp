// The list of recent files: its order, its menu, its profile.
#include <testkit/TemporaryProfile.h>
#include <testkit/TestApp.h>

#include <afxadv.h>
#include <afxwin.h>

#include <gmock/gmock.h>

using namespace ovo::testkit;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

using Texts = std::vector<std::wstring>;

Texts filesOf(CRecentFileList& list)
{
    Texts files;
    for (int i = 0; i < list.GetSize() && !list[i].IsEmpty(); ++i)
        files.push_back(list[i].GetString());
    return files;
}

/// A file menu: an item before the recent files, theirs, a separator, one after them.
class FileMenu
{
public:
    FileMenu()
    {
        m_menu.CreatePopupMenu();
        m_menu.AppendMenu(MF_STRING, ID_FILE_OPEN, L"&Open...");
        m_menu.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, L"Recent File");
        m_menu.AppendMenu(MF_SEPARATOR);
        m_menu.AppendMenu(MF_STRING, ID_APP_EXIT, L"E&xit");
    }

    /// As a frame does when the menu opens. Gives the place that is to be brought up to date next.
    UINT update(CRecentFileList& list)
    {
        CCmdUI ui;
        ui.m_pMenu = &m_menu;
        ui.m_nID = ID_FILE_MRU_FILE1;
        ui.m_nIndex = 1;
        ui.m_nIndexMax = static_cast<UINT>(m_menu.GetMenuItemCount());
        list.UpdateMenu(&ui);
        EXPECT_TRUE(ui.m_bEnableChanged);
        return ui.m_nIndex + 1;
    }

    Texts texts() const
    {
        Texts all;
        for (UINT i = 0; i < static_cast<UINT>(m_menu.GetMenuItemCount()); ++i) {
            CString text;
            m_menu.GetMenuString(i, text, MF_BYPOSITION);
            all.push_back(text.GetString());
        }
        return all;
    }
    UINT id(int place) const { return m_menu.GetMenuItemID(place); }
    bool greyed(UINT place) const { return (m_menu.GetMenuState(place, MF_BYPOSITION) & MF_GRAYED) != 0; }

private:
    CMenu m_menu;
};

CRecentFileList threePlaces()
{
    return CRecentFileList(0, L"Recent File List", L"File%d", 3);
}

} // namespace

TEST(RecentFiles, TheLatestOneComesFirstAndTheOldestOneGoes)
{
    CRecentFileList list = threePlaces();
    EXPECT_EQ(list.GetSize(), 3);
    EXPECT_THAT(filesOf(list), IsEmpty());
    for (const LPCTSTR file : {L"C:\\a", L"C:\\b", L"C:\\c", L"C:\\d"})
        list.Add(file);
    EXPECT_THAT(filesOf(list), ElementsAre(L"C:\\d", L"C:\\c", L"C:\\b"));
}

TEST(RecentFiles, OneThatIsThereMovesUpWhateverItsCase)
{
    CRecentFileList list = threePlaces();
    for (const LPCTSTR file : {L"C:\\a", L"C:\\b", L"C:\\c", L"c:\\B"})
        list.Add(file);
    EXPECT_THAT(filesOf(list), ElementsAre(L"c:\\B", L"C:\\c", L"C:\\a"));
}

TEST(RecentFiles, TheOthersMoveUpWhenOneIsRemoved)
{
    CRecentFileList list = threePlaces();
    for (const LPCTSTR file : {L"C:\\a", L"C:\\b", L"C:\\c"})
        list.Add(file);
    list.Remove(1);
    EXPECT_THAT(filesOf(list), ElementsAre(L"C:\\c", L"C:\\a"));
    list.Remove(5);
    list.Remove(-1);
    EXPECT_THAT(filesOf(list), ElementsAre(L"C:\\c", L"C:\\a"));
}

class RecentFilesProfile : public ::testing::TestWithParam<TemporaryProfile::Kind>
{
};

TEST_P(RecentFilesProfile, KeepsTheList)
{
    const TemporaryProfile profile(GetParam());
    CRecentFileList written = threePlaces();
    written.Add(L"C:\\a");
    written.Add(L"C:\\b & c");
    written.WriteList();
    EXPECT_EQ(AfxGetApp()->GetProfileString(L"Recent File List", L"File1"), L"C:\\b & c");

    CRecentFileList read = threePlaces();
    read.ReadList();
    EXPECT_THAT(filesOf(read), ElementsAre(L"C:\\b & c", L"C:\\a"));

    written.Remove(0);
    written.WriteList();
    EXPECT_EQ(AfxGetApp()->GetProfileString(L"Recent File List", L"File2", L"none"), L"none")
        << "what is no longer on the list is gone from the profile";
}

INSTANTIATE_TEST_SUITE_P(Everywhere, RecentFilesProfile,
                         ::testing::Values(TemporaryProfile::Kind::Registry,
                                           TemporaryProfile::Kind::IniFile));

TEST(RecentFiles, AGapInTheProfileIsClosed)
{
    const TemporaryProfile profile;
    AfxGetApp()->WriteProfileString(L"Recent File List", L"File2", L"C:\\b");
    CRecentFileList list = threePlaces();
    list.ReadList();
    EXPECT_THAT(filesOf(list), ElementsAre(L"C:\\b"));
}

// The menu

TEST(RecentFilesMenu, ShowsItsOwnItemInGreyWhileThereAreNone)
{
    CRecentFileList list = threePlaces();
    FileMenu menu;
    EXPECT_EQ(menu.update(list), 2u);
    EXPECT_THAT(menu.texts(), ElementsAre(L"&Open...", L"Recent File", L"", L"E&xit"));
    EXPECT_TRUE(menu.greyed(1));
}

TEST(RecentFilesMenu, ShowsTheFilesWithNumbersInItsPlace)
{
    CRecentFileList list = threePlaces();
    for (const LPCTSTR file :
         {L"C:\\a.txt", L"C:\\tea & milk.txt", L"C:\\texts\\of the year\\letters\\mother.txt"})
        list.Add(file);
    FileMenu menu;
    EXPECT_EQ(menu.update(list), 4u) << "what comes after the files is next";
    EXPECT_THAT(menu.texts(), ElementsAre(L"&Open...", L"&1 C:\\...\\letters\\mother.txt",
                                          L"&2 C:\\tea && milk.txt", L"&3 C:\\a.txt", L"", L"E&xit"));
    EXPECT_EQ(menu.id(1), UINT{ID_FILE_MRU_FILE1});
    EXPECT_EQ(menu.id(3), UINT{ID_FILE_MRU_FILE3});
    EXPECT_FALSE(menu.greyed(1));

    list.Remove(0);
    list.Remove(0);
    EXPECT_EQ(menu.update(list), 2u);
    EXPECT_THAT(menu.texts(), ElementsAre(L"&Open...", L"&1 C:\\a.txt", L"", L"E&xit"));
}

TEST(RecentFilesMenu, ShowsItsOwnTextAgainWhenTheLastOneIsGone)
{
    CRecentFileList list = threePlaces();
    FileMenu menu;
    list.Add(L"C:\\a.txt");
    menu.update(list);
    list.Remove(0);
    menu.update(list);
    EXPECT_THAT(menu.texts(), ElementsAre(L"&Open...", L"Recent File", L"", L"E&xit"));
    EXPECT_TRUE(menu.greyed(1));
}

TEST(RecentFilesMenu, NamesAFileOfTheCurrentFolderWithoutIt)
{
    wchar_t folder[MAX_PATH];
    ::GetCurrentDirectoryW(MAX_PATH, folder);
    CRecentFileList list = threePlaces();
    list.Add(CString(folder) + L"\\here.txt");
    FileMenu menu;
    menu.update(list);
    EXPECT_EQ(menu.texts()[1], L"&1 here.txt");
}

TEST(RecentFilesMenu, ItsNumbersBeginWhereTheListSays)
{
    CRecentFileList list(8, L"Section", L"Entry%d", 4);
    for (const LPCTSTR file : {L"C:\\a", L"C:\\b", L"C:\\c"})
        list.Add(file);
    FileMenu menu;
    menu.update(list);
    EXPECT_THAT(menu.texts(),
                ElementsAre(L"&Open...", L"&9 C:\\c", L"1&0 C:\\b", L"11 C:\\a", L"", L"E&xit"));
}

// The program

class RecentFilesOfTheProgram : public ::testing::Test
{
protected:
    /// Lays open what a program protects.
    class App : public TestApp
    {
    public:
        using CWinApp::LoadStdProfileSettings;
        using CWinApp::m_nNumPreviewPages;
        using CWinApp::m_pRecentFileList;
        using CWinApp::SaveStdProfileSettings;
    };

    ~RecentFilesOfTheProgram() override
    {
        delete std::exchange(app().*list(), nullptr);
        app().*pages() = 0;
    }

    static CWinApp& app() { return *AfxGetApp(); }
    static CRecentFileList* CWinApp::*list() { return &App::m_pRecentFileList; }
    static UINT CWinApp::*pages() { return &App::m_nNumPreviewPages; }
    static void load(UINT count) { (app().*&App::LoadStdProfileSettings)(count); }
    static void save() { (app().*&App::SaveStdProfileSettings)(); }
    static Texts files() { return filesOf(*(app().*list())); }

    TemporaryProfile m_profile;
};

TEST_F(RecentFilesOfTheProgram, AreReadAtTheStartAndWrittenAtTheEnd)
{
    app().WriteProfileString(L"Recent File List", L"File1", L"C:\\kept.txt");
    app().WriteProfileInt(L"Settings", L"PreviewPages", 2);
    load(4);
    EXPECT_THAT(files(), ElementsAre(L"C:\\kept.txt"));
    EXPECT_EQ(app().*pages(), 2u);

    app().AddToRecentFileList(L"C:\\folder\\..\\new.txt");
    EXPECT_THAT(files(), ElementsAre(L"C:\\new.txt", L"C:\\kept.txt")) << "with its full path";
    save();
    EXPECT_EQ(app().GetProfileString(L"Recent File List", L"File1"), L"C:\\new.txt");
    EXPECT_EQ(app().GetProfileString(L"Recent File List", L"File2"), L"C:\\kept.txt");
}

TEST_F(RecentFilesOfTheProgram, AreAtMostSixteen)
{
    load(40);
    EXPECT_EQ((app().*list())->GetSize(), 16);
}

TEST_F(RecentFilesOfTheProgram, AreNotKeptUnlessTheProgramAsks)
{
    load(0);
    EXPECT_EQ(app().*list(), nullptr);
    app().AddToRecentFileList(L"C:\\new.txt");
    save();
    EXPECT_EQ(app().GetProfileString(L"Recent File List", L"File1", L"none"), L"none");
}

TEST_F(RecentFilesOfTheProgram, OneThatCannotBeOpenedIsTakenOff)
{
    load(4);
    app().AddToRecentFileList(L"C:\\a.txt");
    app().AddToRecentFileList(L"C:\\b.txt");
    EXPECT_TRUE(app().OnCmdMsg(ID_FILE_MRU_FILE2, CN_COMMAND, nullptr, nullptr));
    EXPECT_THAT(files(), ElementsAre(L"C:\\b.txt")) << "this program opens nothing";
    EXPECT_TRUE(app().OnCmdMsg(ID_FILE_MRU_FILE4, CN_COMMAND, nullptr, nullptr)) << "an empty place";
    EXPECT_THAT(files(), ElementsAre(L"C:\\b.txt"));
}

TEST_F(RecentFilesOfTheProgram, HaveTheirMenuItemGreyWithoutAList)
{
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, L"Recent File");
    CCmdUI ui;
    ui.m_pMenu = &menu;
    ui.m_nID = ID_FILE_MRU_FILE1;
    EXPECT_TRUE(ui.DoUpdate(&app(), TRUE));
    EXPECT_TRUE(menu.GetMenuState(0, MF_BYPOSITION) & MF_GRAYED);
}
